#include "app/application.h"
#include "support/widget_main.h"

int main(int argc, char* argv[])
{
    return run_widget_tests<Application>(argc, argv);
}
