#pragma once

class QGuiApplication;

/// To be called before the application object is made. Makes it an X11 program without a screen reader, a session
/// manager and whatever else a window would want. False when no X server answers, where the object would abort.
bool prepare_x11();

/// Whether the X server says that this process owns the clipboard: the toolkit believes so even when it is refused.
bool owns_clipboard(QGuiApplication& application);
