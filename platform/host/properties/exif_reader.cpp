#include "platform/host/properties/camera_file.h"
#include "platform/host/properties/exif_block.h"
#include "platform/host/properties/exif_tags.h"
#include "platform/host/properties/moments.h"
#include "platform/host/properties/readers.h"
#include "platform/host/properties/text_bytes.h"

#include <cmath>

namespace platform {

namespace {

enum class Shape { Whole, Fraction, Positive, Ascii, Ucs2, Ucs2List };

struct TagRow {
    ExifIfd directory;
    int tag;
    Shape shape;
    std::u16string_view name;
};

// Numbers of tags: Exif 2.32; 0x4746 and 0x9C9B to 0x9C9F: Windows' own. Where a name stands twice, the first wins.
constexpr TagRow tags[] = {
    {EXIF_IFD_0, 0x9C9B, Shape::Ucs2, u"System.Title"},
    {EXIF_IFD_0, 0x010E, Shape::Ascii, u"System.Title"},
    {EXIF_IFD_0, 0x9C9F, Shape::Ucs2, u"System.Subject"},
    {EXIF_IFD_0, 0x9C9D, Shape::Ucs2List, u"System.Author"},
    {EXIF_IFD_0, 0x9C9E, Shape::Ucs2List, u"System.Keywords"},
    {EXIF_IFD_0, 0x9C9C, Shape::Ucs2, u"System.Comment"},
    {EXIF_IFD_0, 0x8298, Shape::Ascii, u"System.Copyright"},
    {EXIF_IFD_0, 0x0131, Shape::Ascii, u"System.ApplicationName"},
    {EXIF_IFD_0, 0x011A, Shape::Fraction, u"System.Image.HorizontalResolution"},
    {EXIF_IFD_0, 0x011B, Shape::Fraction, u"System.Image.VerticalResolution"},
    {EXIF_IFD_0, 0x0128, Shape::Whole, u"System.Image.ResolutionUnit"},
    {EXIF_IFD_EXIF, 0xA001, Shape::Whole, u"System.Image.ColorSpace"},
    {EXIF_IFD_0, 0x010F, Shape::Ascii, u"System.Photo.CameraManufacturer"},
    {EXIF_IFD_0, 0x0110, Shape::Ascii, u"System.Photo.CameraModel"},
    {EXIF_IFD_EXIF, 0xA431, Shape::Ascii, u"System.Photo.CameraSerialNumber"},
    {EXIF_IFD_EXIF, 0xA433, Shape::Ascii, u"System.Photo.LensManufacturer"},
    {EXIF_IFD_EXIF, 0xA434, Shape::Ascii, u"System.Photo.LensModel"},
    {EXIF_IFD_EXIF, 0x829D, Shape::Positive, u"System.Photo.FNumber"},
    {EXIF_IFD_EXIF, 0x829A, Shape::Fraction, u"System.Photo.ExposureTime"},
    {EXIF_IFD_EXIF, 0x8827, Shape::Whole, u"System.Photo.ISOSpeed"},
    {EXIF_IFD_EXIF, 0x9204, Shape::Fraction, u"System.Photo.ExposureBias"},
    {EXIF_IFD_EXIF, 0x8822, Shape::Whole, u"System.Photo.ExposureProgram"},
    {EXIF_IFD_EXIF, 0x920A, Shape::Fraction, u"System.Photo.FocalLength"},
    {EXIF_IFD_EXIF, 0xA405, Shape::Whole, u"System.Photo.FocalLengthInFilm"},
    {EXIF_IFD_EXIF, 0x9202, Shape::Fraction, u"System.Photo.Aperture"},
    {EXIF_IFD_EXIF, 0x9205, Shape::Fraction, u"System.Photo.MaxAperture"},
    {EXIF_IFD_EXIF, 0x9201, Shape::Fraction, u"System.Photo.ShutterSpeed"},
    {EXIF_IFD_EXIF, 0x9207, Shape::Whole, u"System.Photo.MeteringMode"},
    {EXIF_IFD_EXIF, 0x9209, Shape::Whole, u"System.Photo.Flash"},
    {EXIF_IFD_EXIF, 0x9208, Shape::Whole, u"System.Photo.LightSource"},
    {EXIF_IFD_EXIF, 0xA403, Shape::Whole, u"System.Photo.WhiteBalance"},
    {EXIF_IFD_EXIF, 0x9206, Shape::Fraction, u"System.Photo.SubjectDistance"},
    {EXIF_IFD_EXIF, 0xA404, Shape::Fraction, u"System.Photo.DigitalZoom"},
    {EXIF_IFD_0, 0x0112, Shape::Whole, u"System.Photo.Orientation"},
    {EXIF_IFD_EXIF, 0x9000, Shape::Ascii, u"System.Photo.EXIFVersion"},
};

void set_tag(const ExifTags& exif, const TagRow& row, PropertyBag& bag)
{
    const auto number = exif.number(row.directory, row.tag);
    const auto bytes = [&] { return exif.bytes(row.directory, row.tag); };
    switch (row.shape) {
    case Shape::Whole:
        if (number && *number >= 0)
            bag.set_count(row.name, static_cast<std::uint64_t>(*number));
        break;
    case Shape::Fraction:
        if (number)
            bag.set(row.name, *number);
        break;
    case Shape::Positive:
        if (number && *number > 0)
            bag.set(row.name, *number);
        break;
    case Shape::Ascii: bag.set_text(row.name, bytes()); break;
    case Shape::Ucs2: bag.set_text(row.name, decode_ucs2(bytes())); break;
    case Shape::Ucs2List: bag.set_list(row.name, tidy_text(decode_ucs2(bytes()))); break;
    }
}

std::string text_of(const ExifTags& exif, int tag)
{
    const std::string bytes = exif.bytes(EXIF_IFD_EXIF, tag);
    return bytes.substr(0, bytes.find('\0'));
}

/// The time of the shutter, with its fraction of a second and its zone where the camera wrote them.
void set_date_taken(const ExifTags& exif, PropertyBag& bag)
{
    constexpr int original = 0x9003, fraction = 0x9291, offset = 0x9011;
    std::string text = text_of(exif, original);
    if (const std::string digits = text_of(exif, fraction); !digits.empty() && !text.empty())
        text += "." + digits.substr(0, digits.find(' '));
    bag.set_time(u"System.Photo.DateTaken", parse_moment(text + text_of(exif, offset), AssumedZone::Local));
}

/// Degrees, minutes and seconds, negative in the south and west.
void set_coordinate(const ExifTags& exif, int tag, char negative, std::u16string_view name, PropertyBag& bag)
{
    const auto parts = exif.numbers(EXIF_IFD_GPS, tag);
    constexpr std::size_t degrees_minutes_seconds = 3;
    if (parts.size() != degrees_minutes_seconds)
        return;
    const double degrees = parts[0] + parts[1] / 60 + parts[2] / 3600;
    const bool is_negative = exif.bytes(EXIF_IFD_GPS, tag - 1).starts_with(negative);
    // A millionth of a degree is a tenth of a metre.
    constexpr double precision = 1e6;
    bag.set(name, std::round((is_negative ? -degrees : degrees) * precision) / precision);
}

void set_altitude(const ExifTags& exif, PropertyBag& bag)
{
    constexpr int reference = 5, altitude = 6;
    if (const auto metres = exif.number(EXIF_IFD_GPS, altitude))
        bag.set(u"System.GPS.Altitude", exif.number(EXIF_IFD_GPS, reference) == 1 ? -*metres : *metres);
}

/// A developed picture may have been cut since the camera wrote its size, but no decoder tells a camera file's.
void set_dimensions(const ExifTags& exif, PropertyBag& bag)
{
    const auto width = exif.number(EXIF_IFD_EXIF, 0xA002), height = exif.number(EXIF_IFD_EXIF, 0xA003);
    if (width && height && *width >= 1 && *height >= 1)
        bag.set_dimensions(static_cast<std::uint64_t>(*width), static_cast<std::uint64_t>(*height));
}

/// The stars of Windows' rating tag on the scale of the property, 1 to 99.
void set_rating(const ExifTags& exif, PropertyBag& bag)
{
    constexpr int rating = 0x4746;
    constexpr std::uint64_t of_stars[] = {0, 1, 25, 50, 75, 99};
    const auto stars = exif.number(EXIF_IFD_0, rating);
    if (stars && *stars >= 1 && *stars <= 5)
        bag.set_count(u"System.Rating", of_stars[static_cast<std::size_t>(*stars)]);
}

}

bool read_exif(SubjectFile& file, PropertyBag& bag)
{
    const std::string block = exif_block(file);
    if (block.empty())
        return false;
    const ExifTags exif(block);
    if (exif.is_empty())
        return false;
    for (const auto& row : tags)
        set_tag(exif, row, bag);
    constexpr int artist = 0x013B;
    bag.set_list(u"System.Author", tidy_text(decode_bytes(exif.bytes(EXIF_IFD_0, artist))));
    set_date_taken(exif, bag);
    set_coordinate(exif, 2, 'S', u"System.GPS.LatitudeDecimal", bag);
    set_coordinate(exif, 4, 'W', u"System.GPS.LongitudeDecimal", bag);
    set_altitude(exif, bag);
    set_rating(exif, bag);
    if (is_camera_file(file))
        set_dimensions(exif, bag);
    return true;
}

}
