#include "app/editors.h"
#include "app/mirvanta_app.h"
#include "app/program.h"
#include "ui/clipboard/system_clipboard.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    Program::prepare();
    SystemClipboard::prepare();
    QApplication application(argc, argv);
    const Program program(application);
    SystemClipboard clipboard;
    MirvantaApp window(editors_with(clipboard));
    // The window is hidden already when a comparison of checksums ends the run.
    QObject::connect(&window, &QDialog::finished, &application, &QCoreApplication::quit);
    window.show();
    return QApplication::exec();
}
