# SPDX-License-Identifier: MIT
"""The typical session, driven by real mouse and key events; makes a picture of each step and the call trace.

usage: tour.py PROGRAM MAP OUTPUT_DIRECTORY
"""

import pathlib
import shutil
import sys

from desktop import Atspi, Program, click, extents, has_state, picture, pixels, press, showing, tab_to, wait_for

VIEW_STATE = "9000:7000:LAYERS:EXPANDED"

# Calls that the trace must contain, in this order: the session as the host sees it.
STORY = [
    "NewStyleEditor",
    "Visible(true",
    f'ReadSetting("DrawStyleEditor::Main") -> "{VIEW_STATE}"',
    "SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name",
    "ShowEditor(",
    "Seek(",
    "BeginLayerEdit(",
    'SetField("Visible"',
    "LayerChanged(",
    "Update(",
    "RedrawMap(",
    "EditorClosed(",
    "WriteSetting(",
]


class Tour:
    """Each method is one action of the user."""

    def __init__(self, program, map_file, output):
        self.output = output
        self.step = 0
        # A copy with its data beside it: the tour changes the map.
        shutil.copytree(map_file.parent, output / "map")
        self.map_file = output / "map" / map_file.name
        self.trace = output / "trace.txt"
        self.store_view_state()
        arguments = [str(program), str(self.map_file), "--layer-control", "--trace", str(self.trace)]
        self.program = Program(arguments, output)

    def store_view_state(self):
        settings = self.output / "config" / "Orvane" / "Orvane.conf"
        settings.parent.mkdir(parents=True)
        settings.write_text(f"[Editors]\nDrawStyleEditor%3A%3AMain={VIEW_STATE}\n", encoding="utf-8")

    def picture(self, name):
        self.step += 1
        picture(self.output / f"{self.step:02d}-{name}.png")
        print(f"  {self.step:02d}-{name}.png")

    def open(self):
        self.main = self.program.window("Orvane")
        self.dialog = self.program.find("Layer Control", "frame", within=self.main)
        self.canvas = self.program.find("Map", within=self.main)
        self.when_still()
        self.picture("map-and-layer-control")

    def when_still(self):
        """Waits until the map has stopped changing."""
        before = pixels(extents(self.canvas))

        def still():
            nonlocal before
            now = pixels(extents(self.canvas))
            same, before = now == before, now
            return same

        wait_for("a still map", still)
        return before

    def control(self, name, role=None):
        return self.program.find(name, role, within=self.dialog)

    def first_rows(self, name):
        tree = self.control(name, "tree")
        rows = [tree.get_child_at_index(i) for i in range(min(tree.get_child_count(), 60))]
        return [row for row in rows if row is not None and row.get_name()]

    def change_a_layer(self):
        row = self.first_rows("Layers")[0]
        self.layer_name = row.get_name()
        click(row, across=0.3)
        visible = self.control("Visible", "check box")
        self.picture("a-layer-is-selected")
        before = self.when_still()
        was_ticked = has_state(visible, Atspi.StateType.CHECKED)
        click(visible, across=0.1)
        wait_for("the other tick", lambda: has_state(visible, Atspi.StateType.CHECKED) != was_ticked)
        self.picture("visible-is-changed")
        click(self.control("Apply", "push button"))
        wait_for("another map", lambda: pixels(extents(self.canvas)) != before)
        self.when_still()
        self.picture("the-map-has-changed")

    def change_it_back_by_keys(self):
        before = self.when_still()
        apply = self.control("Apply", "push button")
        tab_to(self.control("Visible", "check box"))
        press("space")
        wait_for("an enabled button", lambda: has_state(apply, Atspi.StateType.SENSITIVE))
        press("alt+a")
        wait_for("another map", lambda: pixels(extents(self.canvas)) != before)
        self.when_still()
        self.picture("changed-back-by-keys")

    def look_at_a_group(self):
        click(self.control("Groups", "page tab"))
        row = self.first_rows("Layer groups")[0]
        click(row, across=0.3)
        self.picture("a-group-is-selected")
        click(self.control("Set Minimum Visible Scale"))
        self.program.window("")
        self.picture("the-slider-popup")
        press("Escape")

    def look_at_the_schemes(self):
        click(self.control("Schemes", "page tab"))
        self.picture("the-schemes")

    def close_the_layer_control(self):
        click(self.control("Layers", "page tab"))
        self.picture("the-layers-again")
        press("F4")
        wait_for("a closed layer control", lambda: not showing(self.dialog))
        self.picture("the-layer-control-is-closed")

    def quit(self):
        press("ctrl+q")
        status = self.program.wait_for_end()
        if status != 0:
            raise RuntimeError(f"the program ended with {status}")

    def check_trace(self):
        lines = self.trace.read_text(encoding="utf-8").splitlines()
        place = 0
        for event in STORY:
            while place < len(lines) and event not in lines[place]:
                place += 1
            if place == len(lines):
                raise RuntimeError(f"the call trace lacks, in its place, {event}")
        print(f"  trace.txt: {len(lines)} calls, the story is complete")


def main():
    program, map_file, output = (pathlib.Path(argument) for argument in sys.argv[1:4])
    tour = Tour(program, map_file, output)
    try:
        tour.open()
        tour.change_a_layer()
        tour.change_it_back_by_keys()
        tour.look_at_a_group()
        tour.look_at_the_schemes()
        tour.close_the_layer_control()
        tour.quit()
        tour.check_trace()
    except BaseException:
        tour.picture("where-it-stopped")
        tour.program.process.kill()
        raise
    print(f"the tour is complete: {output}")


main()
