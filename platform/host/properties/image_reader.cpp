#include "platform/host/properties/readers.h"

#include <QIODevice>
#include <QImageReader>
#include <QLoggingCategory>
#include <QPixelFormat>

#include <algorithm>
#include <array>

namespace platform {

namespace {

/// The file as Qt's decoders take it.
class FileDevice final : public QIODevice
{
public:
    explicit FileDevice(SubjectFile& file) : file_(file) { open(QIODevice::ReadOnly); }

    qint64 size() const override { return static_cast<qint64>(file_.size()); }

protected:
    qint64 readData(char* data, qint64 count) override
    {
        return static_cast<qint64>(
            file_.read_at(static_cast<std::uint64_t>(pos()), data, static_cast<std::size_t>(count)));
    }

    qint64 writeData(const char*, qint64) override { return -1; }

private:
    SubjectFile& file_;
};

/// The decoders tell a broken file on the standard error output.
void silence_decoders()
{
    static const bool is_silent = (QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false")), true);
    static_cast<void>(is_silent);
}

/// Formats whose header tells the size; others, such as drawings, would be read whole.
bool is_quick(const QByteArray& format)
{
    constexpr std::array<std::string_view, 13> formats{"jpeg", "jpg", "gif", "bmp", "webp", "tiff", "tif",
                                                       "ico",  "cur", "ppm", "pgm", "pbm",  "tga"};
    return std::ranges::find(formats, std::string_view(format.data(), static_cast<std::size_t>(format.size()))) !=
           formats.end();
}

/// Bits of a pixel in the file. A decoder names the format in which it would hold the image: colours without
/// transparency take 32 bits in memory, where the file has 24.
int bit_depth(QImage::Format format)
{
    if (format == QImage::Format_Invalid)
        return 0;
    return format == QImage::Format_RGB32 ? 24 : QImage::toPixelFormat(format).bitsPerPixel();
}

struct Header {
    std::uint64_t width = 0, height = 0, bit_depth = 0;
};

/// The decoder of PNG tells errors on the standard error output past all logging, so its first chunk is read here:
/// width, height, bits a sample, colour type (PNG 1.2, 4.1.1).
std::optional<Header> png_header(const std::string& head)
{
    constexpr std::string_view start("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
    constexpr std::size_t header_size = 26;
    if (head.size() < header_size || !head.starts_with(start))
        return {};
    const auto byte = [&head](std::size_t at) {
        return static_cast<std::uint64_t>(static_cast<unsigned char>(head[at]));
    };
    const auto number = [&byte](std::size_t at) {
        return byte(at) << 24 | byte(at + 1) << 16 | byte(at + 2) << 8 | byte(at + 3);
    };
    constexpr std::array<std::uint64_t, 7> samples_of_type{1, 0, 3, 1, 2, 0, 4};
    const std::uint64_t type = byte(25);
    if (type >= samples_of_type.size() || samples_of_type[type] == 0)
        return {};
    return Header{number(16), number(20), byte(24) * samples_of_type[type]};
}

std::optional<Header> decoder_header(SubjectFile& file)
{
    silence_decoders();
    FileDevice device(file);
    QImageReader reader(&device);
    if (!is_quick(reader.format()))
        return {};
    const QSize size = reader.size();
    if (!size.isValid())
        return {};
    return Header{static_cast<std::uint64_t>(size.width()), static_cast<std::uint64_t>(size.height()),
                  static_cast<std::uint64_t>(bit_depth(reader.imageFormat()))};
}

}

bool read_image(SubjectFile& file, PropertyBag& bag)
{
    if (file.descriptor() < 0)
        return false;
    const bool is_png = file.head().starts_with("\x89PNG");
    const auto header = is_png ? png_header(file.head()) : decoder_header(file);
    if (!header || header->width == 0 || header->height == 0)
        return false;
    bag.set_count(u"System.Image.HorizontalSize", header->width);
    bag.set_count(u"System.Image.VerticalSize", header->height);
    bag.set_text(u"System.Image.Dimensions", *to_text(header->width) + u" x " + *to_text(header->height));
    if (header->bit_depth > 0)
        bag.set_count(u"System.Image.BitDepth", header->bit_depth);
    return true;
}

}
