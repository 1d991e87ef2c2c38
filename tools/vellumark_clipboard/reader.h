#pragma once

/// Writes the clipboard's text to standard output as UTF-8. 0, or 1 when there is none or it can't be written.
int read_text(int argc, char* argv[]);
