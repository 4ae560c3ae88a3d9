"""press.py NAME CELLS: does the action "Press" of the cell that comes so many cells behind the last one of this name."""
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def find(item, name):
    if item.get_name() == name:
        return item
    for number in reversed(range(item.get_child_count())):
        child = item.get_child_at_index(number)
        found = child and find(child, name)
        if found:
            return found
    return None


named = find(find(Atspi.get_desktop(0), "echotable"), sys.argv[1])
cell = named.get_parent().get_child_at_index(named.get_index_in_parent() + int(sys.argv[2]))
actions = [Atspi.Action.get_action_name(cell, number) for number in range(cell.get_n_actions())]
cell.do_action(actions.index("Press"))
