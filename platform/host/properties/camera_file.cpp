#include "platform/host/properties/camera_file.h"

namespace platform {

bool is_camera_file(SubjectFile& file)
{
    const std::string& head = file.head();
    constexpr std::size_t brand_at = 4;
    if (head.size() > brand_at && std::string_view(head).substr(brand_at).starts_with("ftyp"))
        return true;
    std::string extension;
    for (const char16_t unit : file.extension())
        extension += unit < 0x80 ? static_cast<char>(unit | 0x20) : '?';
    const bool is_plain = extension.empty() || extension == ".tif" || extension == ".tiff";
    return !is_plain && (head.starts_with("II") || head.starts_with("MM"));
}

}
