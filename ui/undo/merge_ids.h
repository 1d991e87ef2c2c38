#pragma once

/// The steps of undo that join others of their kind, so that a run of key strokes in one field is undone at once.
enum class MergeId : int {
    None = -1, ///< stays a step of its own
    Separator = 1000,
    StartText = 1001,
    EndText = 1002,
    Text = 2000,
    PathSeparator = 3000,
    PathParents = 3001,
    NumberStart = 4000,
    NumberStep = 4001,
    NumberDigits = 4002,
    FolderIndent = 5000,
    FolderStart = 5001,
    FolderEnd = 5002
};
