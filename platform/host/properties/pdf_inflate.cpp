#include "platform/host/properties/pdf_inflate.h"

#include <qpdf/Pl_Flate.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFStreamFilter.hh>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t most_bytes = 4 << 20;
thread_local std::size_t bytes_left = 0;

/// Counts what passes and undoes the predictors of PNG, one row at a time (PDF 1.7, 7.4.4.4). `row_size` is 0 for
/// data without a predictor.
class Unpredict final : public Pipeline
{
public:
    Unpredict(Pipeline* sink, std::size_t row_size, std::size_t pixel_size)
        : Pipeline("unpredict", sink), pixel_size_(pixel_size), above_(row_size, '\0')
    {}

    void write(unsigned char const* data, size_t length) override
    {
        if (length > bytes_left)
            throw std::runtime_error("too much to inflate");
        bytes_left -= length;
        if (above_.empty())
            return getNext()->write(data, length);
        for (std::size_t i = 0; i < length; ++i) {
            row_ += static_cast<char>(data[i]);
            if (row_.size() == above_.size() + 1)
                finish_row();
        }
    }

    void finish() override { getNext()->finish(); }

private:
    std::size_t pixel_size_;
    /// One row with the predictor's number before it; the row above without.
    std::string row_, above_;

    unsigned char left_of(std::size_t i) const
    {
        return static_cast<unsigned char>(i < pixel_size_ ? 0 : row_[i - pixel_size_]);
    }

    unsigned char prediction(char predictor, std::size_t i) const
    {
        const auto up = static_cast<unsigned char>(above_[i]);
        const auto left = left_of(i);
        const auto corner = static_cast<unsigned char>(i < pixel_size_ ? 0 : above_[i - pixel_size_]);
        const auto away = [&](int from) { return std::abs(left + up - corner - from); };
        switch (predictor) {
        case 1: return left;
        case 2: return up;
        case 3: return static_cast<unsigned char>((left + up) / 2);
        case 4:
            return away(left) <= away(up) && away(left) <= away(corner) ? left
                   : away(up) <= away(corner)                           ? up
                                                                        : corner;
        default: return 0;
        }
    }

    void finish_row()
    {
        const char predictor = row_.front();
        row_.erase(0, 1);
        for (std::size_t i = 0; i < row_.size(); ++i)
            row_[i] = static_cast<char>(row_[i] + prediction(predictor, i));
        getNext()->write(reinterpret_cast<unsigned char const*>(row_.data()), row_.size());
        above_ = std::exchange(row_, {});
    }
};

class LimitedFlate final : public QPDFStreamFilter
{
public:
    bool setDecodeParms(QPDFObjectHandle parameters) override
    {
        if (!parameters.isDictionary())
            return parameters.isNull();
        const auto number = [&parameters](const char* key, long long missing) {
            auto value = parameters.getKey(key);
            return value.isInteger() ? value.getIntValue() : missing;
        };
        const auto predictor = number("/Predictor", 1), columns = number("/Columns", 1);
        const auto bits = number("/Colors", 1) * number("/BitsPerComponent", 8);
        constexpr long long widest = 100'000, most_bits = 128, first_png = 10, last_png = 15;
        if (predictor != 1 && (predictor < first_png || predictor > last_png))
            return false;
        if (columns < 1 || columns > widest || bits < 1 || bits > most_bits)
            return false;
        row_size_ = predictor == 1 ? 0 : static_cast<std::size_t>((columns * bits + 7) / 8);
        pixel_size_ = static_cast<std::size_t>((bits + 7) / 8);
        return true;
    }

    Pipeline* getDecodePipeline(Pipeline* sink) override
    {
        limit_ = std::make_unique<Unpredict>(sink, row_size_, pixel_size_);
        flate_ = std::make_unique<Pl_Flate>("inflate", limit_.get(), Pl_Flate::a_inflate);
        flate_->setWarnCallback([](char const*, int) {});
        return flate_.get();
    }

private:
    std::size_t row_size_ = 0, pixel_size_ = 1;
    std::unique_ptr<Unpredict> limit_;
    std::unique_ptr<Pl_Flate> flate_;
};

class Refused final : public QPDFStreamFilter
{
public:
    bool setDecodeParms(QPDFObjectHandle) override { return false; }

    Pipeline* getDecodePipeline(Pipeline*) override { return nullptr; }
};

template <typename Filter>
std::shared_ptr<QPDFStreamFilter> make()
{
    return std::make_shared<Filter>();
}

}

void limit_inflation()
{
    static const bool is_registered = [] {
        QPDF::registerStreamFilter("/FlateDecode", make<LimitedFlate>);
        for (const char* const name : {"/LZWDecode", "/RunLengthDecode"})
            QPDF::registerStreamFilter(name, make<Refused>);
        return true;
    }();
    static_cast<void>(is_registered);
    bytes_left = most_bytes;
}

}
