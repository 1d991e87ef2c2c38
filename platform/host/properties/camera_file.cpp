#include "platform/host/properties/camera_file.h"

namespace platform {

bool is_camera_file(SubjectFile& file)
{
    const std::string& head = file.head();
    constexpr std::size_t brand_at = 4;
    if (head.size() > brand_at && std::string_view(head).substr(brand_at).starts_with("ftyp"))
        return true;
    const bool is_plain = file.extension().empty() || file.named_format() == FileFormat::Tiff;
    return !is_plain && (head.starts_with("II") || head.starts_with("MM"));
}

}
