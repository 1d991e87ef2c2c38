#include <gtest/gtest.h>

#include <QApplication>

#include <cstdlib>
#include <ctime>

/// As the main of the other tests, with an application object that draws into memory unless told otherwise.
int main(int argc, char* argv[])
{
    setenv("LC_ALL", "C", 1);
    setenv("TZ", "UTC", 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    tzset();
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
