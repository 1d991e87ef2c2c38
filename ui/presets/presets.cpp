#include "ui/presets/presets.h"

#include <utility>

void Presets::set_working(List presets)
{
    working_ = std::move(presets);
    emit changed();
}

void Presets::set_saved(List presets)
{
    saved_ = std::move(presets);
    emit changed();
}

void Presets::set_both(List presets)
{
    saved_ = presets;
    set_working(std::move(presets));
}
