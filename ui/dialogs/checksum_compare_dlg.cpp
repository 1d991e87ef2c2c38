#include "ui/dialogs/checksum_compare_dlg.h"

#include "ui/text.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

std::optional<std::u16string> clipboard_text(platform::Clipboard& clipboard)
{
    platform::OpenClipboard opened(clipboard);
    return opened ? opened.read_text() : std::nullopt;
}

QLabel* checksum_label(std::u16string_view checksum)
{
    auto* label = new QLabel(to_qstring(checksum));
    label->setTextFormat(Qt::PlainText);
    label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    // The background is white in every colour scheme, so the text can't go by the scheme.
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Text, Qt::black);
    label->setPalette(palette);
    label->setStyleSheet(QStringLiteral("QLabel { background-color: white; padding: 4px 8px; }"));
    return label;
}

QLabel* badge(bool equal)
{
    auto* label = new QLabel(equal ? ChecksumCompareDlg::tr("MATCH") : ChecksumCompareDlg::tr("NO MATCH"));
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setStyleSheet(
        equal ? QStringLiteral(
                    "QLabel { background-color: #2e7d32; color: white; padding: 4px 12px; border-radius: 3px; }")
              : QStringLiteral(
                    "QLabel { background-color: #c62828; color: white; padding: 4px 12px; border-radius: 3px; }"));
    return label;
}

void add_row(QGridLayout& grid, const QString& name, std::u16string_view checksum)
{
    const int row = grid.rowCount();
    grid.addWidget(new QLabel(name), row, 0);
    grid.addWidget(checksum_label(checksum), row, 1);
}

}

std::optional<ChecksumComparison> compare_with_clipboard(platform::Clipboard& clipboard,
                                                         const VellumarkCommand& command, const MVItemsSet& items,
                                                         std::u16string_view text)
{
    return compare_checksum(command, items, text, [&] { return clipboard_text(clipboard); });
}

ChecksumCompareDlg::ChecksumCompareDlg(const ChecksumComparison& comparison, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Vellumark: Checksum comparison"));
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    add_row(*grid, tr("Clipboard:"), comparison.copied);
    add_row(*grid, tr("File:"), comparison.generated);
    QLabel* verdict = badge(comparison.equal);
    verdict->setToolTip(
        QString::fromUtf8(comparison.type_name.data(), static_cast<qsizetype>(comparison.type_name.size())));
    grid->addWidget(verdict, grid->rowCount(), 1, Qt::AlignLeft);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addStretch();
    layout->addWidget(buttons);
}
