#pragma once

#include "app/path_probe.h"
#include "app/selection_paths.h"

#include <vector>

/// What the application is given of paths that answer at once.
inline std::shared_ptr<NewSelection> read_selection(const QStringList& paths)
{
    std::vector<PathAnswer> answers;
    for (const QString& path : paths)
        answers.push_back({true, PathProbe::read_attributes(path)});
    return select_paths(paths, answers);
}
