#pragma once

#include "platform/host/properties/subject_file.h"
#include "platform/properties.h"

#include <span>

namespace platform {

/// How a value is shown.
enum class Display : std::uint8_t {
    Plain,
    Number,   ///< digits in groups, two decimals at the most
    Size,     ///< bytes
    Moment,   ///< date and time of day
    Duration, ///< hours, minutes, seconds
    YesNo,
    Pixels,
    Resolution,       ///< dots per inch
    MetricResolution, ///< dots per centimetre
    BitRate,          ///< bits a second
    SampleRate,       ///< Hz
    Bits,
    Channels,
    FrameRate, ///< frames in 1000 seconds
    FourCc,
    Degrees,
    Stars, ///< 0 to 99
    Attributes,
    Seconds, ///< exposure time
    FNumber,
    ApexAperture,
    ApexSpeed,
    Steps, ///< exposure bias
    Millimetres,
    Metres,
    Iso,
    Flash,
    Metering,
    Light,
    WhiteBalance,
    Orientation,
    Program,
    ColorSpace,
    ResolutionUnit
};

struct PropertyRow {
    std::u16string_view name;
    std::u16string_view display_name;
    /// Set of `Reader`: those that can find the property.
    unsigned readers;
    PropertyType type;
    Display display;
};

/// All properties: general ones first, then by kind of file.
std::span<const PropertyRow> property_rows();

/// Null for an unknown name; case counts.
const PropertyRow* find_property_row(std::u16string_view name);

}
