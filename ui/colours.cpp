#include "ui/colours.h"

namespace colours {

namespace {

bool dark = false;

QColor by_scheme(QRgb light_value, QRgb dark_value)
{
    return QColor::fromRgb(dark ? dark_value : light_value);
}

}

bool dark_mode()
{
    return dark;
}

void set_dark_mode(bool new_dark)
{
    dark = new_dark;
}

// One row a colour: light, then dark.
// clang-format off
QColor title_bar_background()             { return by_scheme(0xe8e8e8, 0x353535); }
QColor title_bar_hover_background()       { return by_scheme(0xd8e6f2, 0x3a4a66); }
QColor title_text()                       { return by_scheme(0x777777, 0xd8d8d8); }
QColor hovered_grip()                     { return by_scheme(0x6080a0, 0x90a8c8); }
QColor file_name_command_shown()          { return by_scheme(0x0080ff, 0x6ba8ff); }
QColor file_name_command_shown_nameless() { return by_scheme(0x7aa3ca, 0x6a8db0); }
QColor file_name_command_not_shown()      { return by_scheme(0x000000, 0xe0e0e0); }
QColor builtin_command_shown()            { return by_scheme(0x909090, 0x989898); }
QColor builtin_command_not_shown()        { return by_scheme(0x808080, 0x909090); }
QColor filter_panel_background()          { return by_scheme(0xede6ef, 0x38313c); }
QColor chip_border()                      { return by_scheme(0x808080, 0x606060); }
QColor chip_body()                        { return by_scheme(0xf8f8f8, 0x2b2b2b); }
QColor literal_box()                      { return by_scheme(0xffffff, 0x3a3a3a); }
QColor chip_text()                        { return by_scheme(0x000000, 0xe8e8e8); }
QColor value_box()                        { return by_scheme(0xffff00, 0x5a4a10); }
QColor parts_work_band()                  { return by_scheme(0xffffff, 0x1e1e1e); }
QColor insertion_marker()                 { return by_scheme(0x008000, 0x3cb44c); }
QColor palette_label()                    { return by_scheme(0x808080, 0xc8c8c8); }
QColor work_band_placeholder()            { return by_scheme(0xcccccc, 0x555555); }
QColor palette_row_background()           { return by_scheme(0xeeeeee, 0x2e2e2e); }
QColor preview_background()               { return by_scheme(0xfffde7, 0x2a2620); }
QColor section_background()               { return by_scheme(0xe0e0e0, 0x3a3a3a); }

// clang-format on

QColor dark_variant(const QColor& colour)
{
    if (!dark)
        return colour;
    const QColor hsl = colour.toHsl();
    return QColor::fromHslF(hsl.hslHueF(), hsl.hslSaturationF() * 0.75F, 0.24F, hsl.alphaF());
}

}
