#include "platform/host/properties/camera_file.h"
#include "platform/host/properties/image_header.h"
#include "platform/host/properties/readers.h"

#include <QIODevice>
#include <QImageReader>
#include <QLoggingCategory>
#include <QPixelFormat>

#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>

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

std::atomic<QLoggingCategory::CategoryFilter> filter_before = nullptr;

void without_decoders(QLoggingCategory* category)
{
    if (const auto filter = filter_before.load())
        filter(category);
    if (std::string_view(category->categoryName()).starts_with("qt.gui.imageio"))
        for (const QtMsgType type : {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg})
            category->setEnabled(type, false);
}

/// The decoders tell a broken file on the standard error output. All other categories stay as they are.
void silence_decoders()
{
    static std::once_flag is_silent;
    std::call_once(is_silent, [] { filter_before = QLoggingCategory::installFilter(without_decoders); });
}

/// Formats whose header tells the size; others, such as drawings, would be read whole.
bool is_quick(const QByteArray& format)
{
    constexpr std::array<std::string_view, 4> formats{"jpeg", "jpg", "ico", "cur"};
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

std::optional<ImageHeader> decoder_header(SubjectFile& file)
{
    silence_decoders();
    FileDevice device(file);
    QImageReader reader(&device);
    if (!is_quick(reader.format()))
        return {};
    const QSize size = reader.size();
    if (!size.isValid())
        return {};
    return ImageHeader{static_cast<std::uint64_t>(size.width()), static_cast<std::uint64_t>(size.height()),
                       static_cast<std::uint64_t>(bit_depth(reader.imageFormat()))};
}

}

bool read_image(SubjectFile& file, PropertyBag& bag)
{
    if (file.descriptor() < 0 || is_camera_file(file))
        return false;
    const auto header = has_plain_header(file) ? image_header(file) : decoder_header(file);
    if (!header || header->width == 0 || header->height == 0)
        return false;
    bag.set_dimensions(header->width, header->height);
    if (header->bit_depth > 0)
        bag.set_count(u"System.Image.BitDepth", header->bit_depth);
    return true;
}

}
