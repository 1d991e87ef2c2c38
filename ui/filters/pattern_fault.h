#pragma once

#include "engine/filters/item_filter.h"

#include <QString>

/// What is wrong with a filter's pattern, in words. Both texts are empty where nothing is.
struct PatternFault {
    QString message;
    QString place; ///< where in a regular expression it goes wrong; empty when it is too large as a whole

    /// As one text.
    QString description() const { return place.isEmpty() ? message : message + u' ' + place; }
};

PatternFault fault_of(const ItemFilter& filter);

/// Of a pattern as it is typed.
PatternFault fault_of(ItemFilter::Mode mode, const QString& text);
