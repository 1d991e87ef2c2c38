#pragma once

#include "engine/parts/item_part_base.h"

class ExemplarItemProvider;
class ItemControlsBaseWidget;
class QWidget;
class TemplateEdits;

/// The widget that edits parts of a type; never null for a type in the table. `edits` and `exemplar` outlive it.
ItemControlsBaseWidget* make_part_controls(ItemPartBase::Type type, TemplateEdits& edits,
                                           ExemplarItemProvider& exemplar, QWidget* parent);
