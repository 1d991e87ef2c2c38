"""What a screen reader sees of a program. To be imported when the desktop is there: the library looks for its bus at
once."""

import pyatspi
from gi.repository import GLib

from desktop import wait_until

# What asking a node that has just gone away raises.
GONE = (LookupError, GLib.GError)
# They have nothing below them.
LEAVES = (pyatspi.ROLE_LABEL, pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_LIST_ITEM,
          pyatspi.ROLE_SCROLL_BAR, pyatspi.ROLE_TABLE_CELL)


def matches(node, role=None, name=None, showing=True):
    """Yields the node and those below it that have this role ("push button", "label", "text", "table cell", ...) and
    name. What goes away meanwhile is left out, and so is what doesn't show with all below it, unless `showing` is
    false. Each question takes a message, so that nothing is asked of what can't be meant."""
    try:
        fits = role in (None, node.getRoleName()) and name in (None, node.name)
        is_leaf = node.getRole() in LEAVES
        if (is_leaf and not fits) or (showing and not is_showing(node)):
            return
        if fits:
            yield node
        children = [] if is_leaf else [node.getChildAtIndex(i) for i in range(node.childCount)]
    except GONE:
        return
    for child in children:
        if child is not None:
            yield from matches(child, role, name, showing)


def is_showing(node):
    return node.getState().contains(pyatspi.STATE_SHOWING)


def find_all(root, role=None, name=None, showing=True):
    return list(matches(root, role, name, showing))


def find(root, role=None, name=None, showing=True):
    """The first such node, once there is one."""

    def search():
        found = next(matches(root, role, name, showing), None)
        if found is None:
            # The library remembers what it has seen, for good where word of a change was lost.
            root.clearCache()
        return found

    return wait_until(search, f"'{name}', a {role}")


def find_control(root, role, label):
    """A combo box tells its value as its name, so it is found by its label."""
    if role != "combo box":
        return find(root, role, label)
    relations = find(root, "label", label).getRelationSet()
    return next(r.getTarget(0) for r in relations if r.getRelationType() == pyatspi.RELATION_LABEL_FOR)


def text_of(node):
    """The content of a text field."""
    text = node.queryText()
    return text.getText(0, text.characterCount)


def press(node):
    """A push of a button, or whatever the node's first action is."""
    if not node.queryAction().doAction(0):
        raise AssertionError(f"'{node.name}' can't be pressed")
