#pragma once

#include "engine/parts/item_progress_sink.h"

/// The interface that text generation sees of whoever runs it.
using VellumarkRunner = ItemProgressSink;
