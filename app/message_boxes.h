#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <QPointer>

#include <exception>

class QWidget;

/// The boxes that the application puts before the user. Each runs until it is answered, above `parent`.
class MessageBoxes
{
    Q_DECLARE_TR_FUNCTIONS(MessageBoxes)

public:
    enum class SaveChoice { Save, DontSave, Cancel };
    enum class OtherChanges { Merge, Overwrite, Cancel };

    /// `sentence` tells what failed, the failure why.
    static void show_failure(QWidget* parent, const QString& sentence, const QString& reason);
    static void show_failure(QWidget* parent, const QString& sentence, const std::exception& failure);

    static void show_menu_is_empty(QWidget* parent);

    /// Whether a menu without the command that opens this program shall be saved.
    static bool save_without_configure_command(QWidget* parent);

    /// What a save is to do about the changes of another program; closing the box cancels.
    static OtherChanges ask_about_other_changes(QWidget* parent);

    /// What becomes of unsaved changes; closing the box cancels. `open` is the box while it shows.
    static SaveChoice ask_about_changes(QWidget* parent, QPointer<QDialog>& open);
};
