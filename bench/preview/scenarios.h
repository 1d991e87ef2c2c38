#pragma once

#include "preview/report.h"

/// Texts of 20 MB and long lines in the preview: until they show, while they come, scrolled, resized, copied and
/// replaced.
void measure_big_texts(Report& report);

/// From a change of the command to the new text in the application's window, with 10,000 files.
void measure_key_strokes(Report& report);

/// The application's window taking selections of 100,000 files, one after the other.
void measure_selections(Report& report);

/// What a run costs more when somebody looks at its progress.
void measure_progress(Report& report);

/// The editing pane of a command with 50 chips, beside 100 presets: other rows chosen, and typed into its fields.
void measure_pane(Report& report);

/// A row of 300 chips: painted, and typed into one of its text parts.
void measure_chips(Report& report);
