#include "app/application.h"
#include "app/editors.h"
#include "app/end_requests.h"
#include "app/exit_deadline.h"
#include "app/mirvanta_app.h"
#include "app/program.h"
#include "ui/clipboard/system_clipboard.h"
#include "ui/clipboard/window_system_choice.h"

#include <chrono>

int main(int argc, char* argv[])
{
    Program::prepare();
    const WindowSystemChoice window_system;
    Application application(argc, argv);
    window_system.forget();
    const Program program(application);
    SystemClipboard clipboard;
    MirvantaApp window(editors_with(clipboard));
    follow_end_requests(window);
    // The window is hidden already when a comparison of checksums ends the run.
    QObject::connect(&window, &QDialog::finished, &application, &QCoreApplication::quit);
    window.show();
    const int status = QApplication::exec();
    // More than the toolkit takes to hand to a clipboard manager what was copied in an edit.
    end_process_within(std::chrono::seconds(10), status);
    return status;
}
