#include "app/editors.h"
#include "app/mirvanta_app.h"
#include "app/program.h"
#include "platform/clipboard.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    Program::prepare();
    QApplication application(argc, argv);
    const Program program(application);
    const auto clipboard = platform::make_clipboard();
    MirvantaApp window(editors_with(*clipboard));
    // The window is hidden already when a comparison of checksums ends the run.
    QObject::connect(&window, &QDialog::finished, &application, &QCoreApplication::quit);
    window.show();
    return QApplication::exec();
}
