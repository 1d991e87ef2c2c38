#pragma once

namespace platform {

/// Begins a document on this thread: from here on qpdf inflates 4 MiB in all, and refuses what is more. Without a
/// limit a small document could fill the memory. The decoders stand in for qpdf's own in the whole process, for its
/// general stream filters; others than Flate are refused, since no program writes a document's structure with them.
void limit_inflation();

}
