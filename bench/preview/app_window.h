#pragma once

#include "app/mirvanta_app.h"
#include "preview/paint_watch.h"
#include "ui/clipboard/system_clipboard.h"
#include "ui/preview/preview_text_edit.h"

#include <QTemporaryDir>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// The application's window, with settings of its own and 200 stored commands, of which the first one is edited.
class AppWindow
{
public:
    explicit AppWindow(std::string_view command);

    MirvantaApp& app() { return *app_; }

    PreviewTextEdit& edit() { return *app_->findChild<PreviewTextEdit*>(); }

    /// As another program sends it; returns when its text shows.
    void select(const QStringList& paths);
    void select(const std::vector<std::u16string>& paths);
    /// Changes the command's separator, as each key does in its box.
    void type(const std::u16string& separator);
    /// A key typed into a widget of the window.
    static void press(QWidget& widget, Qt::Key key, const QString& text = {});
    /// Runs the event loop until the text that is being made is painted.
    void wait_for_text();

private:
    QTemporaryDir folder_;
    SystemClipboard clipboard_;
    std::unique_ptr<MirvantaApp> app_;
    std::unique_ptr<PaintWatch> paints_;
};
