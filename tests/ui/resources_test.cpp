#include <gtest/gtest.h>

#include <QIcon>
#include <QImage>
#include <QImageReader>

#include <set>

namespace {

/// How far the most different pixel of the icon, as it lies on a ground of that grey, stands out from it.
int contrast(const QIcon& icon, int ground)
{
    const QImage image = icon.pixmap(16, 16).toImage().convertToFormat(QImage::Format_ARGB32);
    int most = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            most = std::max(most, qAlpha(pixel) * std::abs(qGray(pixel) - ground) / 255);
        }
    return most;
}

TEST(Resources, HoldTheApplicationIconInAllSizes)
{
    QImageReader reader(":/MirvantaApp/Resources/AppIcon.ico");
    std::set<int> widths;
    for (int i = 0; i < reader.imageCount(); ++i) {
        reader.jumpToImage(i);
        widths.insert(reader.read().width());
    }
    EXPECT_EQ(widths, (std::set<int>{16, 24, 32, 48, 64, 128, 256}));
}

TEST(Resources, MarksStandOutInBothSchemes)
{
    for (const char* name : {"unsaved", "no_save"}) {
        const QIcon icon(QStringLiteral(":/MirvantaApp/Resources/%1.svg").arg(name));
        EXPECT_GT(contrast(icon, 0xff), 100) << name;
        EXPECT_GT(contrast(icon, 0x2b), 100) << name;
    }
}

}
