#include "ui/colours.h"

#include <gtest/gtest.h>

namespace {

TEST(Colours, FollowTheScheme)
{
    EXPECT_FALSE(colours::dark_mode());
    const QColor light_title = colours::title_text();
    const QColor half_red(255, 0, 0, 128);
    EXPECT_EQ(colours::dark_variant(half_red), half_red);

    colours::set_dark_mode(true);
    // The lightness of 0.24 with a saturation of 0.75 leaves the range from 0.06 to 0.42.
    const QColor dark_red = colours::dark_variant(half_red).toRgb();
    const QColor dark_grey = colours::dark_variant(Qt::white).toRgb();
    const QColor dark_title = colours::title_text();
    colours::set_dark_mode(false);

    EXPECT_EQ(dark_red.name(QColor::HexArgb), "#806b0f0f");
    EXPECT_EQ(dark_grey.name(), "#3d3d3d");
    EXPECT_EQ(light_title.name(), "#777777");
    EXPECT_EQ(dark_title.name(), "#d8d8d8");
}

}
