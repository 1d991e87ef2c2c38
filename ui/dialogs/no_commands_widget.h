#pragma once

#include <QWidget>

class AppServices;
class QLabel;
class QPushButton;

/// The page that shows when no editor takes the current command: says why, and offers the default commands when the
/// menu list is empty. Main thread only.
class NoCommandsWidget : public QWidget
{
    Q_OBJECT

public:
    /// The button calls the application's `reset_stored_commands`.
    explicit NoCommandsWidget(AppServices& app, QWidget* parent = nullptr);

    void set_state(bool is_library, bool list_is_empty);

private:
    QLabel* label_ = nullptr;
    QPushButton* reset_button_ = nullptr;
};
