#pragma once

class DisclosureControl;

/// Makes screen readers understand the widgets of this folder that paint themselves. More than once is no harm.
void install_accessible_widgets();

/// Tells screen readers that the control was expanded or collapsed.
void announce_expanded(DisclosureControl& control);
