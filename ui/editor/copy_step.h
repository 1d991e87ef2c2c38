#pragma once

#include <QCoreApplication>

namespace platform {
class Clipboard;
}
class MVItemsSet;
class QWidget;
class VellumarkCommand;

/// What OK does with a finished text. Main thread only.
class CopyStep
{
    Q_DECLARE_TR_FUNCTIONS(CopyStep)

public:
    /// `window` is hidden for the comparison of a checksum and stays so, unless the user has to be told something.
    CopyStep(platform::Clipboard& clipboard, QWidget& window) : clipboard_(clipboard), window_(window) {}

    /// Copies the text and keeps the command as the last one run; null keeps none. A checksum that the user has
    /// copied before is compared with the text first. False when the text couldn't be copied, which the user has been
    /// told then; true also when the user leaves the comparison without OK.
    bool run(const VellumarkCommand* command, const MVItemsSet& selection, const QString& text);

private:
    platform::Clipboard& clipboard_;
    QWidget& window_;

    bool is_declined(const VellumarkCommand& command, const MVItemsSet& selection, const QString& text);
    bool copy(const QString& text);
    bool warn(const QString& sentence);
};
