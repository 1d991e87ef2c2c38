#pragma once

#include <QDateTime>

/// How far an animation has moved when `t` of its time is over, both from 0 to 1: slow at both ends.
constexpr double eased(double t)
{
    return t * t / (2 * (t * t - t) + 1);
}

/// The wall clock that animations go by, in milliseconds.
inline qint64 animation_clock()
{
    return QDateTime::currentMSecsSinceEpoch();
}
