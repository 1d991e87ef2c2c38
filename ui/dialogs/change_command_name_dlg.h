#pragma once

#include <QDialog>

class MVCommandBase;
class QLineEdit;

/// Asks for a command's two names. It changes nothing itself: after `exec` has returned Accepted, `name` and `name1`
/// are what was typed. Main thread only.
class ChangeCommandNameDlg : public QDialog
{
    Q_OBJECT

public:
    ChangeCommandNameDlg(const MVCommandBase& command, QWidget* main_window);

    /// Both as the command has them until the dialog was accepted.
    const QString& name() const { return name_; }

    /// Empty means derived from `name`.
    const QString& name1() const { return name1_; }

    void accept() override;

private:
    QString name_;
    QString name1_;
    QLineEdit* name_edit_ = nullptr;
    QLineEdit* name1_edit_ = nullptr;
};
