#pragma once

/// Keeps the text on standard input on the clipboard. Returns twice: in the foreground process when the one that it
/// leaves in the background owns the clipboard (0) or can't (1), and there when another program has copied.
int keep_text(int argc, char* argv[]);
