#include "platform/host/properties/exif_tags.h"

#include <cmath>

namespace platform {

namespace {

double number_at(const unsigned char* at, ExifFormat format, ExifByteOrder order)
{
    const auto divide = [](double over, double under) { return under == 0 ? std::nan("") : over / under; };
    switch (format) {
    case EXIF_FORMAT_BYTE: return *at;
    case EXIF_FORMAT_SHORT: return exif_get_short(at, order);
    case EXIF_FORMAT_SSHORT: return exif_get_sshort(at, order);
    case EXIF_FORMAT_LONG: return exif_get_long(at, order);
    case EXIF_FORMAT_SLONG: return exif_get_slong(at, order);
    case EXIF_FORMAT_RATIONAL: {
        const ExifRational value = exif_get_rational(at, order);
        return divide(value.numerator, value.denominator);
    }
    case EXIF_FORMAT_SRATIONAL: {
        const ExifSRational value = exif_get_srational(at, order);
        return divide(value.numerator, value.denominator);
    }
    default: return std::nan("");
    }
}

}

ExifTags::ExifTags(const std::string& block) : data_(exif_data_new())
{
    // The library mends tags that break the standard, and takes away those that shouldn't be there: both would hide
    // what the file says.
    exif_data_unset_option(data_.get(), EXIF_DATA_OPTION_FOLLOW_SPECIFICATION);
    exif_data_unset_option(data_.get(), EXIF_DATA_OPTION_IGNORE_UNKNOWN_TAGS);
    exif_data_set_option(data_.get(), EXIF_DATA_OPTION_DONT_CHANGE_MAKER_NOTE);
    exif_data_load_data(data_.get(), reinterpret_cast<const unsigned char*>(block.data()),
                        static_cast<unsigned>(block.size()));
}

bool ExifTags::is_empty() const
{
    for (const auto* content : data_->ifd)
        if (content && content->count > 0)
            return false;
    return true;
}

const ExifEntry* ExifTags::find(ExifIfd directory, int tag) const
{
    const ExifEntry* const entry = exif_content_get_entry(data_->ifd[directory], static_cast<ExifTag>(tag));
    return entry && entry->data && entry->size > 0 ? entry : nullptr;
}

std::vector<double> ExifTags::numbers(ExifIfd directory, int tag) const
{
    std::vector<double> result;
    const ExifEntry* const entry = find(directory, tag);
    const std::size_t size = entry ? exif_format_get_size(entry->format) : 0;
    constexpr std::size_t most = 16;
    for (std::size_t i = 0; size > 0 && i < most && i < entry->components && (i + 1) * size <= entry->size; ++i)
        if (const double number =
                number_at(entry->data + i * size, entry->format, exif_data_get_byte_order(data_.get()));
            std::isfinite(number))
            result.push_back(number);
    return result;
}

std::optional<double> ExifTags::number(ExifIfd directory, int tag) const
{
    const auto all = numbers(directory, tag);
    return all.empty() ? std::nullopt : std::optional(all.front());
}

std::string ExifTags::bytes(ExifIfd directory, int tag) const
{
    const ExifEntry* const entry = find(directory, tag);
    return entry ? std::string(reinterpret_cast<const char*>(entry->data), entry->size) : std::string();
}

}
