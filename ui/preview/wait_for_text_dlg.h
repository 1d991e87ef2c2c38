#pragma once

#include <QDialog>

class ProgressLines;

/// Shown while somebody waits for the text to be copied; Cancel rejects. Whoever opens it closes it. Main thread
/// only.
class WaitForTextDlg final : public QDialog
{
    Q_OBJECT

public:
    explicit WaitForTextDlg(QWidget* parent = nullptr);

public slots:
    /// What the run is doing and the path that it is at.
    void show_progress(const QString& status, const QString& item);

private:
    ProgressLines* const progress_;
};
