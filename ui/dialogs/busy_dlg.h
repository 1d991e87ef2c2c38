#pragma once

#include <QDialog>

class BackgroundJob;

/// Shown while a disk takes its time; Cancel rejects. Whoever opens it closes it. Main thread only.
class BusyDlg final : public QDialog
{
    Q_OBJECT

public:
    /// `text` tells what is done, such as "Saving...".
    BusyDlg(const QString& text, QWidget* parent);

    /// Waits for the job while events are processed but for the user's input; when that takes long, behind such a
    /// dialog. False when the user has cancelled it: the job goes on then, and is of no use any more.
    static bool wait_for(const BackgroundJob& job, const QString& text, QWidget* window);
};
