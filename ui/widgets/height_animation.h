#pragma once

#include <QtGlobal>

/// A height on its way to another one. Times in milliseconds of one clock, heights in pixels.
struct HeightAnimation {
    static constexpr qint64 duration = 250;

    int from = 0;
    int to = 0;
    qint64 start = 0;

    /// Also true when the clock was set back in the meantime: nobody should wait for it to catch up.
    bool is_over(qint64 now) const;
    /// Exactly `to` once it is over.
    int height_at(qint64 now) const;
};
