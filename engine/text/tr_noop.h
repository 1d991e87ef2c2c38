#pragma once

/// Marks a text that the interface translates when it shows it. The context is for the translation tools alone:
/// lupdate reads it through its alias for QT_TRANSLATE_NOOP.
#define TR_NOOP(context, text) text
