#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

/// As the main of the other tests, with an application object that draws into memory unless told otherwise.
template <typename Application>
int run_widget_tests(int argc, char* argv[])
{
    setenv("LC_ALL", "C", 1);
    setenv("TZ", "UTC", 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    tzset();
    const Application application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
