#pragma once

#include <QDialog>

class QLabel;

/// The version with the mark of how the program came to the machine: "v4.7.2.0-MS" from the store (its folder lies
/// below one that is named WindowsApps, in any case), else "v4.7.2.0-IN". `program_folder` in drive form, without a
/// trailing backslash.
QString version_line(const QString& program_folder);

/// What the program is, its version, and the way to its web site. Main thread only.
class AboutDlg : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDlg(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void show_link();

    QLabel* link_ = nullptr;
};
