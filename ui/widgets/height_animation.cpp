#include "ui/widgets/height_animation.h"

#include "ui/widgets/easing.h"

#include <cmath>

bool HeightAnimation::is_over(qint64 now) const
{
    return now < start || now - start >= duration;
}

int HeightAnimation::height_at(qint64 now) const
{
    if (is_over(now))
        return to;
    const double done = eased(static_cast<double>(now - start) / duration);
    return static_cast<int>(std::lround(done * (to - from) + from));
}
