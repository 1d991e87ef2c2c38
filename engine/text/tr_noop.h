#pragma once

/// Marks a text that the interface translates when it shows it; the context is for the translation tools alone. Has
/// to stand in full where the text is: those tools expand no macros.
#define TR_NOOP(context, text) text
