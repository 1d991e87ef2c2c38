"""What a screen reader sees of a program. To be imported when the desktop is there: the library looks for its bus at
once."""

import pyatspi
from gi.repository import GLib

from desktop import wait_until

# What asking a node that has just gone away raises.
GONE = (LookupError, GLib.GError)


def walk(node):
    """The node and all below it, a parent before its children. What goes away meanwhile is left out."""
    yield node
    try:
        children = [node.getChildAtIndex(i) for i in range(node.childCount)]
    except GONE:
        return
    for child in children:
        if child is not None:
            yield from walk(child)


def is_showing(node):
    return node.getState().contains(pyatspi.STATE_SHOWING)


def find_all(root, role=None, name=None, showing=True):
    """Nodes below `root` by role ("push button", "label", "text", "table cell", ...) and name."""

    def matches(node):
        try:
            return (
                (role is None or node.getRoleName() == role)
                and (name is None or node.name == name)
                and (not showing or is_showing(node))
            )
        except GONE:
            return False

    return [node for node in walk(root) if matches(node)]


def find(root, role=None, name=None, showing=True):
    """The first such node, once there is one."""

    def search():
        found = find_all(root, role, name, showing)
        if not found:
            # The library remembers what it has seen, for good where word of a change was lost.
            root.clearCache()
        return found

    return wait_until(search, f"'{name}', a {role}")[0]


def text_of(node):
    """The content of a text field."""
    text = node.queryText()
    return text.getText(0, text.characterCount)


def press(node):
    """A push of a button, or whatever the node's first action is."""
    if not node.queryAction().doAction(0):
        raise AssertionError(f"'{node.name}' can't be pressed")
