# SPDX-License-Identifier: MIT
"""Acts as a user at the screen: finds controls by their accessible names, and uses the real mouse and keys."""

import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

PATIENCE = 20.0  # seconds to wait for something to appear


def wait_for(what, look):
    """Polls until look() returns something true; on timeout raises an error that names what was awaited."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = look()
        except Exception:  # a control may vanish while it is examined
            found = None
        if found:
            return found
        time.sleep(0.05)
    raise TimeoutError(f"waited in vain for {what}")


def walk(node):
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is None:
            continue
        yield child
        yield from walk(child)


def showing(node):
    states = node.get_state_set()
    return states.contains(Atspi.StateType.SHOWING) and states.contains(Atspi.StateType.VISIBLE)


def has_state(node, state):
    return node.get_state_set().contains(state)


class Program:
    """One running program, seen through the accessibility bus."""

    def __init__(self, arguments, output):
        self.output = output
        self.log = open(output / "program.log", "w", encoding="utf-8")
        self.process = subprocess.Popen(arguments, stdout=self.log, stderr=self.log)
        self.name = arguments[0].split("/")[-1]

    def application(self):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child is not None and child.get_process_id() == self.process.pid:
                return child
        return None

    def find(self, name, role=None, within=None):
        """The first shown control of that name (and role, as AT-SPI names it)."""

        def look():
            root = within or self.application()
            for node in walk(root):
                if node.get_name() == name and (role is None or node.get_role_name() == role) and showing(node):
                    return node
            return None

        return wait_for(f"{role or 'control'} \"{name}\"", look)

    def window(self, part_of_title):
        def look():
            root = self.application()
            for i in range(root.get_child_count()):
                child = root.get_child_at_index(i)
                if part_of_title in child.get_name() and showing(child):
                    return child
            return None

        return wait_for(f"window \"{part_of_title}\"", look)

    def has_window(self, part_of_title):
        root = self.application()
        children = [root.get_child_at_index(i) for i in range(root.get_child_count())] if root else []
        return any(part_of_title in child.get_name() and showing(child) for child in children if child)

    def wait_for_end(self):
        return self.process.wait(timeout=PATIENCE)


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


def extents(node):
    return node.get_extents(Atspi.CoordType.SCREEN)


def move_to(node, across=0.5, down=0.5):
    box = extents(node)
    xdotool("mousemove", "--sync", int(box.x + box.width * across), int(box.y + box.height * down))


def click(node, across=0.5, down=0.5, times=1, button=1):
    move_to(node, across, down)
    xdotool("click", "--repeat", times, "--delay", 60, button)


def click_with(key, node, across=0.5):
    """Clicks while the key is held down."""
    xdotool("keydown", key)
    click(node, across)
    xdotool("keyup", key)


def press(*keys):
    xdotool("key", *keys)


def tab_to(node):
    """Moves the keys to the control, as a user without a mouse does."""
    for _ in range(40):
        if has_state(node, Atspi.StateType.FOCUSED):
            return
        press("Tab")
        time.sleep(0.05)
    raise RuntimeError(f"the Tab key does not lead to {node.get_name()}")


def type_text(text):
    xdotool("type", "--delay", 20, text)


def picture(path):
    subprocess.run(["import", "-window", "root", str(path)], check=True)


def pixels(box):
    """The raw pixels of a part of the screen, as it is now."""
    geometry = f"{box.width}x{box.height}+{box.x}+{box.y}"
    return subprocess.run(
        ["import", "-window", "root", "-crop", geometry, "+repage", "-depth", "8", "rgb:-"],
        check=True, capture_output=True,
    ).stdout
