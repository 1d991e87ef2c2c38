#include "app/mirvanta_named_pipe_server.h"
#include "platform/paths.h"
#include "read_selection.h"

#include <QCoreApplication>

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace {

std::string variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value ? value : "";
}

void append(const char* file_variable, const std::string& text)
{
    std::ofstream(variable(file_variable), std::ios::app | std::ios::binary) << text << std::flush;
}

/// The index, then each item's path on the host, each with a NUL behind it and a further one at the end.
std::string record(int index, const MVItemsSet& selection)
{
    std::string text = std::to_string(index) + '\0';
    for (const auto& item : selection.items())
        text += platform::to_host_path(item->full_path()) + '\0';
    return text + '\0';
}

}

/// The application's intake without its window. Appends its process id to the file $LISTENER_STARTS and each
/// selection to $LISTENER_SELECTIONS; ends after $LISTENER_MOST of them when that is set.
int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    append("LISTENER_STARTS", std::to_string(getpid()) + "\n");
    const std::string most = variable("LISTENER_MOST");
    Serving<MirvantaNamedPipeServer> server;
    int count = 0;
    const auto take = [&](int index, const QStringList& paths) {
        append("LISTENER_SELECTIONS", record(index, read_selection(paths)->items));
        if (std::to_string(++count) == most)
            QCoreApplication::quit();
    };
    QObject::connect(&server, &MirvantaNamedPipeServer::context_menu_selected, &application, take);
    server.start();
    return QCoreApplication::exec();
}
