#pragma once

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <string_view>

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

    /// Copies the text and keeps the command as the last one run, as far as the user waits for that; null keeps none.
    /// A checksum that the user has copied before is compared with the text first. False when the text couldn't be
    /// copied, which the user has been told then; true also when the user leaves the comparison without OK.
    /// Events are processed meanwhile: what is copied is what came in.
    bool run(std::shared_ptr<const VellumarkCommand> command, const MVItemsSet& selection, QString text);

    /// Tells the user that nothing is copied, and why. Always false.
    bool refuse(const QString& reason);

private:
    platform::Clipboard& clipboard_;
    QWidget& window_;

    bool settle(const VellumarkCommand* command, const MVItemsSet& selection, std::u16string_view text);
    bool is_declined(const VellumarkCommand& command, const MVItemsSet& selection, std::u16string_view text);
    bool copy(std::u16string_view text);
    void keep_as_last_run(const VellumarkCommand& command);
    static QString failed_to_copy();
    bool warn(const QString& sentence);
};
