#include "app/mirvanta_app.h"
#include "app/program.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    Program::prepare();
    QApplication application(argc, argv);
    const Program program(application);
    MirvantaApp window;
    window.show();
    return QApplication::exec();
}
