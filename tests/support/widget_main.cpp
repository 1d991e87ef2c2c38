#include "widget_main.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    return run_widget_tests<QApplication>(argc, argv);
}
