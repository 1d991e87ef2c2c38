#include "engine/items/mv_items_set.h"
#include "support/becomes.h"
#include "support/temp_folder.h"
#include "support/visible_labels.h"
#include "ui/colours.h"
#include "ui/preview/clipboard_preview_container_widget.h"
#include "ui/preview/elided_label.h"
#include "ui/preview/exemplar_item_provider.h"
#include "ui/preview/no_paths_info_widget.h"
#include "ui/preview/preview_text_edit.h"
#include "ui/preview/wait_for_text_dlg.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QFontInfo>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace {

QRgb background(QWidget& edit)
{
    return edit.grab().toImage().pixel(edit.width() / 2, edit.height() - 5);
}

}

TEST(ClipboardPreview, ShowsTextOrWorkOrHelp)
{
    ClipboardPreviewContainerWidget preview;
    auto& edit = *preview.findChild<PreviewTextEdit*>();
    preview.resize(400, 300);
    preview.show();
    EXPECT_TRUE(edit.isVisible() && edit.isReadOnly());
    EXPECT_EQ(edit.textInteractionFlags(), Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    EXPECT_EQ(edit.tabStopDistance(), 30.0);
    EXPECT_EQ(edit.lineWrapMode(), QPlainTextEdit::NoWrap);
    EXPECT_TRUE(QFontInfo(edit.font()).fixedPitch());
    preview.show_updating();
    EXPECT_EQ(visible_labels(preview), "Updating...");
    preview.show_progress("Computing checksums...", "C:\\a");
    EXPECT_EQ(visible_labels(preview), "Updating...|Computing checksums...|C:\\a");
    preview.set_text("a\tb");
    EXPECT_EQ(edit.toPlainText(), "a\tb");
    EXPECT_TRUE(edit.isVisible());
    preview.show_updating();
    EXPECT_EQ(visible_labels(preview), "Updating...") << "of the run before nothing is left";
    EXPECT_EQ(edit.toPlainText(), "");
    preview.show_page_for(0);
    EXPECT_TRUE(visible_labels(preview).starts_with("<h2><b>No items selected</b></h2><p>To select items:</p><ul>"));
    preview.show_page_for(1);
    EXPECT_EQ(visible_labels(preview), "Updating...");
}

TEST(ClipboardPreview, BackgroundFollowsTheScheme)
{
    ClipboardPreviewContainerWidget preview;
    auto& edit = *preview.findChild<PreviewTextEdit*>();
    preview.resize(400, 300);
    preview.show();
    for (const bool dark : {true, false}) {
        colours::set_dark_mode(dark);
        QPalette palette = preview.palette();
        palette.setColor(QPalette::Window, dark ? Qt::black : Qt::white);
        preview.setPalette(palette);
        EXPECT_EQ(background(edit), colours::preview_background().rgb()) << dark;
    }
}

TEST(ElidedLabel, LeavesTheMiddleOutAndAsksForNoWidth)
{
    ElidedLabel label;
    label.show();
    label.set_text("C:\\" + QString(500, 'x') + "\nend");
    label.resize(200, 20);
    EXPECT_TRUE(label.text().startsWith("C:\\x") && label.text().endsWith("x end"));
    EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), 200);
    EXPECT_EQ(label.accessibleName().size(), 507);
    QFont larger = label.font();
    larger.setPointSizeF(2 * larger.pointSizeF());
    label.setFont(larger);
    EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), 200);
    label.resize(100'000, 20);
    EXPECT_EQ(label.text().size(), 507);
    EXPECT_EQ(label.sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
}

TEST(WaitForTextDlg, KeepsItsSizeAndCancels)
{
    WaitForTextDlg dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.open();
    EXPECT_TRUE(dialog.isModal());
    const QSize size = dialog.size();
    dialog.show_progress("Computing checksums...", QString(5000, 'x'));
    QTest::qWait(10);
    EXPECT_EQ(dialog.size(), size);
    EXPECT_TRUE(visible_labels(dialog).starts_with(
        "Please wait while the text is generated.|This dialog will automatically close once the text has been "
        "generated.|Computing checksums...|xxx"))
        << visible_labels(dialog);
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
    EXPECT_EQ(rejected.size(), 1);
}

TEST(ExemplarItemProvider, ReadsPropertiesOnDemandOfTheNewestItem)
{
    const TempFolder folder;
    const MVItemsSet items(std::vector{folder.write("one"), folder.write("two.txt", "content")});
    ExemplarItemProvider provider;
    QSignalSpy changed(&provider, &ExemplarItemProvider::exemplar_item_changed);
    QSignalSpy read(&provider, &ExemplarItemProvider::exemplar_properties_read);
    EXPECT_EQ(provider.exemplar(), nullptr);
    provider.set_item(items.items()[0]);
    provider.exemplar()->properties();
    provider.set_item(items.items()[1]);
    EXPECT_EQ(changed.size(), 2);
    QTest::qWait(50);
    EXPECT_EQ(read.size(), 0) << "nobody asked for the second item's";
    provider.exemplar()->properties();
    ASSERT_TRUE(becomes([&] { return !read.isEmpty(); }));
    ASSERT_TRUE(becomes([&] { return provider.exemplar()->properties().complete; }));
    const auto properties = provider.exemplar()->properties().list;
    EXPECT_EQ(std::ranges::count(properties, ExemplarProperty{"System.FileName", "Filename", "two.txt"}), 1);
}
