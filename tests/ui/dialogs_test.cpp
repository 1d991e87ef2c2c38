#include "store/mv_command_builtin.h"
#include "support/browser.h"
#include "support/visible_labels.h"
#include "ui/dialogs/about_dlg.h"
#include "ui/dialogs/change_command_name_dlg.h"
#include "ui/dialogs/checksum_compare_dlg.h"
#include "ui/text.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

TEST(ChangeCommandNameDlg, KeepsBothTextsOnOk)
{
    MVCommandBuiltin command(CommandType::MultiRename, u"Rename Files");
    command.set_name1(u"Rename it");
    ChangeCommandNameDlg dialog(command, nullptr);
    const auto edits = dialog.findChildren<QLineEdit*>();
    ASSERT_EQ(edits.size(), 2);
    EXPECT_EQ(edits[0]->text() + '|' + edits[1]->text(), "Rename Files|Rename it");
    EXPECT_EQ(edits[1]->placeholderText(), "Rename File");

    edits[0]->setText(" Folders & Paths ");
    edits[1]->clear();
    EXPECT_EQ(edits[1]->placeholderText(), " Folder & Path ");
    EXPECT_EQ(dialog.name(), "Rename Files");
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.name() + '|' + dialog.name1(), " Folders & Paths |");
    EXPECT_EQ(command.name(), u"Rename Files");
}

TEST(ChecksumCompareDlg, ShowsBothChecksumsReadably)
{
    const QPalette before = QApplication::palette();
    const QPalette dark(QColor(0x30, 0x30, 0x30));
    QApplication::setPalette(dark);
    for (const bool equal : {true, false}) {
        const ChecksumComparison comparison{u"ABCD", equal ? u"abcd" : u"<b>1", u"CRC32", equal};
        ChecksumCompareDlg dialog(comparison);
        ASSERT_NE(dialog.palette().color(QPalette::WindowText), QColor(Qt::black));
        dialog.show();
        EXPECT_EQ(visible_labels(dialog),
                  equal ? "Clipboard:|ABCD|File:|abcd|MATCH" : "Clipboard:|ABCD|File:|<b>1|NO MATCH");
        for (const QLabel* label : dialog.findChildren<QLabel*>())
            if (label->textInteractionFlags() & Qt::TextSelectableByMouse) {
                EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(Qt::black));
            }
        const auto pressed = equal ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
        dialog.findChild<QDialogButtonBox*>()->button(pressed)->click();
        EXPECT_EQ(dialog.result(), equal ? QDialog::Accepted : QDialog::Rejected);
    }
    QApplication::setPalette(before);
}

TEST(AboutDlg, TellsTheVersionAndLeadsToTheWebSite)
{
    AboutDlg dialog;
    dialog.show();
    EXPECT_NE(visible_labels(dialog).find("v4.7.2.0-IN"), std::string::npos);
    QPalette palette;
    palette.setColor(QPalette::Link, QColor(0x12, 0x34, 0x56));
    dialog.setPalette(palette);
    EXPECT_NE(visible_labels(dialog).find(
                  R"(<a href="link" style="color:#123456; text-decoration:underline;">vellumark.example</a>)"),
              std::string::npos);

    const Browser browser;
    for (QLabel* label : dialog.findChildren<QLabel*>())
        emit label->linkActivated("link");
    EXPECT_EQ(browser.opened(), "https://vellumark.example");
}

TEST(AboutDlg, MarksTheBuildByItsFolder)
{
    EXPECT_EQ(version_line(R"(C:\Program Files\windowsapps\Vellumark_4.7)"), "v4.7.2.0-MS");
    EXPECT_EQ(version_line(R"(C:\Program Files\WindowsApps)"), "v4.7.2.0-MS");
    EXPECT_EQ(version_line(R"(C:\My WindowsApps\x)"), "v4.7.2.0-IN");
}

}
