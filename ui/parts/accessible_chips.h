#pragma once

class ItemPartsWidget;

/// Tells screen readers of chips, which are no widgets: each has a name, a role, states, and the actions "press", and
/// for those of the row "delete". Has to run before the first such widget is asked; later calls do nothing more.
void install_accessible_chips();

/// The chips, or what they show, are others now.
void announce_chips(ItemPartsWidget& widget);

/// The chip that keys go to is another one, or its selection changed.
void announce_current_chip(ItemPartsWidget& widget);
