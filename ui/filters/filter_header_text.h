#pragma once

#include <QString>

/// What the header of a filter tells while the filter itself is hidden. All empty for no filter.
struct FilterSummary {
    QString label; ///< of the filter's type
    QString value; ///< the pattern, or the name of a preset
    bool is_invalid = false;
};

/// Rich text: the title alone for an empty summary.
QString filter_header_text(const FilterSummary& summary);
