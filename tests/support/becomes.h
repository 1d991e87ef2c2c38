#pragma once

#include <QTest>

/// Processes events until it is so; false after a minute without.
template <typename Condition>
bool becomes(Condition condition)
{
    return QTest::qWaitFor(condition, 60'000);
}
