#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

/// Texts with dates, names of months and separators are compared, so the zone and the locale are fixed.
int main(int argc, char* argv[])
{
    setenv("LC_ALL", "C", 1);
    setenv("TZ", "UTC", 1);
    tzset();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
