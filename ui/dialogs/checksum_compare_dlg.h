#pragma once

#include "engine/commands/checksum_comparison.h"
#include "platform/clipboard.h"

#include <QDialog>

/// `compare_checksum` with the clipboard, which is opened only when it can matter and closed again. Main thread only.
std::optional<ChecksumComparison> compare_with_clipboard(platform::Clipboard& clipboard,
                                                         const VellumarkCommand& command, const MVItemsSet& items,
                                                         std::u16string_view text);

/// Shows a generated checksum beside the one in the clipboard. Accepted means that the generated one is to take the
/// clipboard's place. Main thread only.
class ChecksumCompareDlg : public QDialog
{
    Q_OBJECT

public:
    explicit ChecksumCompareDlg(const ChecksumComparison& comparison, QWidget* parent = nullptr);
};
