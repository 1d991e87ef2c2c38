#include "app_test.h"

#include "app/main_app_ui.h"
#include "support/becomes.h"
#include "support/visible_labels.h"
#include "ui/dialogs/change_command_name_dlg.h"
#include "ui/lists/commands_list_model.h"
#include "ui/lists/commands_list_widget.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTimer>
#include <QTranslator>

namespace {

constexpr QChar opening(0x27e6), closing(0x27e7);

/// Marks every text and makes it 40 % longer.
class PseudoTranslator final : public QTranslator
{
public:
    PseudoTranslator() { QCoreApplication::installTranslator(this); }

    ~PseudoTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char*, const char* text, const char*, int) const override
    {
        const QString source = QString::fromUtf8(text);
        return source.isEmpty() ? source : opening + source + QString(source.size() * 2 / 5, u'~') + closing;
    }
};

QString name_of(const QWidget& widget)
{
    return QString(widget.metaObject()->className());
}

/// All that a widget says. What is the user's or a proper name is not in it.
QStringList texts_of(const QWidget& widget)
{
    QStringList texts{widget.toolTip(), widget.accessibleName(), widget.accessibleDescription(), widget.statusTip()};
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        texts += label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        texts += button->text();
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        texts += edit->placeholderText();
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        for (int tab = 0; tab < tabs->count(); ++tab)
            texts += {tabs->tabText(tab), tabs->tabToolTip(tab)};
    for (const QAction* action : widget.actions())
        texts += {action->text(), action->toolTip()};
    return texts;
}

bool is_proper_name(const QString& text)
{
    return text == "Vellumark" || text == "Vellumark Configure" || text.startsWith("v4.") ||
           (text.startsWith("<a href") && text.contains("vellumark.example"));
}

/// Empty when the widget shows all that it has to show.
QString cut(const QWidget& widget)
{
    for (const QWidget* inner = &widget; !inner->isWindow(); inner = inner->parentWidget())
        if (!inner->parentWidget()->rect().contains(inner->geometry()))
            return "outside of " + name_of(*inner->parentWidget());
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool is_text =
        label || qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QTabBar*>(&widget);
    if (!is_text)
        return {};
    if (label && label->wordWrap())
        return widget.heightForWidth(widget.width()) > widget.height() ? "too low" : "";
    return widget.sizeHint().width() > widget.width() || widget.sizeHint().height() > widget.height() ? "too small"
                                                                                                      : "";
}

/// What is wrong with a window, one finding a line.
std::string findings(const QWidget& window)
{
    QCoreApplication::processEvents();
    QStringList found;
    const auto look_at = [&found](const QWidget& widget) {
        for (const QString& text : texts_of(widget))
            if (!text.isEmpty() && !text.contains(opening) && !is_proper_name(text))
                found += name_of(widget) + " not translated: " + text;
        if (const QString fault = cut(widget); !fault.isEmpty())
            found += name_of(widget) + ' ' + fault + ": " + texts_of(widget).join(' ');
    };
    if (!window.windowTitle().contains(opening) && !is_proper_name(window.windowTitle()))
        found += "title not translated: " + window.windowTitle();
    for (const QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && !widget->objectName().startsWith("qt_"))
            look_at(*widget);
    return found.join('\n').toStdString();
}

/// The same for the box or dialog that `open` runs or leaves open, which is closed then.
std::string findings_of_dialog(const std::function<void()>& open)
{
    const std::string none = "no dialog";
    std::string found = none;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            found = findings(*dialog);
            dialog->close();
        }
    });
    timer.start(0);
    open();
    [[maybe_unused]] const bool seen = becomes([&] { return found != none; });
    return found;
}

TEST_F(AppTest, ShowsNothingUntranslatedAndNothingCut)
{
    const PseudoTranslator translator;
    store("A, B", "L");
    open();
    EXPECT_EQ(findings(*app), "");
    app->new_command_btn_pressed();
    app->findChild<MainAppUi*>()->show_silent_items(3);
    EXPECT_NE(visible_labels(*app).find("3 item(s) did not answer"), std::string::npos);
    app->resize(0, 0);
    EXPECT_EQ(findings(*app), "");
    for (const CommandsListWidget* list : app->findChildren<CommandsListWidget*>())
        for (const ListMenuEntry& entry : const_cast<CommandsListWidget*>(list)->menu_entries(0))
            EXPECT_TRUE(entry.text.contains(opening)) << entry.text.toStdString();

    using Model = CommandsListModel;
    for (const auto& [column, role] : {std::pair{Model::MarkColumn, Qt::ToolTipRole},
                                       {Model::NameColumn, Qt::ToolTipRole},
                                       {Model::NameColumn, Qt::DisplayRole},
                                       {Model::NameColumn, Qt::AccessibleTextRole}})
        EXPECT_TRUE(app->menu_list().model().index(1, column).data(role).toString().contains(opening)) << role;

    EXPECT_EQ(findings_of_dialog([this] { app->on_about(); }), "");
    EXPECT_EQ(findings_of_dialog([this] { app->on_ok(); }), "");
    EXPECT_EQ(findings_of_dialog([this] { app->save_commands_list(); }), "");
    EXPECT_EQ(findings_of_dialog([this] { ChangeCommandNameDlg(*editor->current, app.get()).exec(); }), "");
    folder.write(shipped_file, "broken");
    EXPECT_EQ(findings_of_dialog([this] { app->reset_stored_commands(); }), "");
    select_rows(app->menu_list(), {0, 1, 2});
    app->delete_command_btn_pressed();
    EXPECT_EQ(findings(*app), "");
    EXPECT_EQ(findings_of_dialog([this] { app->save_commands_list(); }), "");
    show_tab(1);
    app->delete_command_btn_pressed();
    EXPECT_EQ(findings(*app), "");
}

}
