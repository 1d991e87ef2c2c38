#include "app/exit_deadline.h"

#include <QDebug>

#include <cstdlib>
#include <system_error>
#include <thread>

void end_process_within(std::chrono::milliseconds patience, int status)
{
    try {
        std::thread([patience, status] {
            std::this_thread::sleep_for(patience);
            std::_Exit(status);
        }).detach();
    } catch (const std::system_error& error) {
        qDebug() << "The end of the program has no deadline:" << error.what();
    }
}
