# SPDX-License-Identifier: MIT
"""Performs the steps of docs/guide with real mouse and key events, and makes its pictures.

usage: guide.py PROGRAM WORK_DIRECTORY PICTURE_DIRECTORY
The work directory holds a folder "town" with data.
"""

import os
import pathlib
import subprocess
import sys

from desktop import Program, click, click_with, extents, picture, pixels, press, showing, tab_to, type_text, walk, wait_for

SHOW_LINE_AND_FILL = 4  # of the entries that are possible for one layer
SHOW_ONLY_THESE = 5  # for several
FRAME = 26  # pixels that a window manager adds above a window; a few on the other sides


class Guide:
    """Each method is one step of the guide."""

    def __init__(self, program, work, pictures):
        self.town = work / "town"
        self.pictures = pictures
        self.command = program
        # Started in the folder with the data: the file dialogs open there.
        os.chdir(self.town)
        self.program = Program([str(program)], work)

    def screen(self, name):
        self.settle()
        picture(self.pictures / f"{name}.png")

    def crop(self, name, geometry):
        """A picture of that part of the screen."""
        file = str(self.pictures / f"{name}.png")
        subprocess.run(["import", "-window", "root", "-crop", geometry, "+repage", file], check=True)

    def part(self, name, window):
        box = extents(window)
        geometry = f"{box.width + 8}x{box.height + FRAME + 4}+{max(box.x - 4, 0)}+{max(box.y - FRAME, 0)}"
        self.crop(name, geometry)

    def around(self, name, node, below=0):
        """A picture of what it takes of the screen, and of some pixels below."""
        box = extents(node)
        geometry = f"{box.width}x{box.height + below}+{box.x}+{box.y}"
        self.crop(name, geometry)

    def settle(self):
        """Waits until the map has stopped changing."""
        before = pixels(extents(self.canvas))

        def still():
            nonlocal before
            now = pixels(extents(self.canvas))
            same, before = now == before, now
            return same

        wait_for("a still map", still)

    def active_window(self, part_of_title):
        """Waits until that window is active, so that it gets the keys; returns it."""

        def is_active():
            answer = subprocess.run(["xdotool", "getactivewindow", "getwindowname"], capture_output=True, text=True)
            return part_of_title in answer.stdout

        wait_for(f"the active window {part_of_title}", is_active)
        return self.program.window(part_of_title)

    def answer_file_dialog(self, title, path):
        self.active_window(title)
        wait_for("a field for the name", lambda: self.program.find("File name:", within=self.program.window(title)))
        type_text(str(path))
        press("Return")
        wait_for(f"an end of {title}", lambda: not self.program.has_window(title))

    def open_data(self):
        self.main = self.active_window("Orvane")
        self.canvas = self.program.find("Map", within=self.main)
        empty = pixels(extents(self.canvas))
        press("ctrl+d")
        names = " ".join(f'"{path.name}"' for path in sorted(self.town.glob("*.gpkg")))
        self.answer_file_dialog("Open Data", names)
        self.active_window("Orvane")
        wait_for("a map", lambda: pixels(extents(self.canvas)) != empty)
        self.screen("data")

    def store_map(self):
        press("ctrl+shift+s")
        self.answer_file_dialog("Save Map As", self.town / "town.orvane")
        self.main = self.active_window("town - Orvane")

    def look_at_layer_control(self):
        self.dialog = self.program.find("Layer Control", "frame", within=self.main)
        click(self.control("Layers", "page tab"))
        self.select("lake")
        self.screen("layer-control")

    def control(self, name, role=None):
        return self.program.find(name, role, within=self.dialog)

    def row(self, layer):
        tree = self.control("Layers", "tree")
        rows = [tree.get_child_at_index(i) for i in range(min(tree.get_child_count(), 60))]
        return next(row for row in rows if row is not None and row.get_name() == layer)

    def select(self, layer):
        click(self.row(layer), across=0.3)

    def go_to(self, label):
        """Gives the keys to the list after the label."""
        caption = self.control(label, "label")
        below = caption.get_parent().get_child_at_index(caption.get_index_in_parent() + 1)
        click(below, across=0.3)
        press("Escape")

    def open_list(self, row):
        """Opens the list that has the keys, and goes to the row."""
        press("alt+Down", "Home", *["Down"] * row)

    def find(self):
        press("ctrl+f")
        type_text("st")
        self.program.find("3 of 9", within=self.dialog)
        self.around("find", self.dialog)
        press("Escape", "Escape")

    def open_menu(self, row):
        self.after_change(lambda: click(row, across=0.3, button=3))

    def after_change(self, act):
        """Waits until that has changed what the layer control shows."""
        box = extents(self.dialog)
        before = pixels(box)
        act()
        wait_for("a change", lambda: pixels(box) != before)
        self.settle()

    def choose(self, row, entry):
        """Chooses the entry of that number in the menu of the row."""
        self.open_menu(row)
        press(*["Down"] * entry, "Return")

    def choose_several(self):
        self.select("main roads")
        click_with("ctrl", self.row("streets"), across=0.3)
        self.around("several", self.dialog)

    def show_only_these(self):
        self.open_menu(self.row("streets"))
        self.around("node-menu", self.dialog)
        press("Escape")
        self.choose(self.row("streets"), SHOW_ONLY_THESE)
        again = self.control("Show All Again")
        self.screen("only-these")
        click(again)
        self.settle()

    def show_samples(self):
        self.select("lake")
        self.choose(self.row("lake"), SHOW_LINE_AND_FILL)
        self.settle()
        self.around("samples", self.dialog)
        self.choose(self.row("lake"), SHOW_LINE_AND_FILL)

    def type_a_scale(self):
        self.select("houses")
        self.go_to("Fill colour:")
        press("Tab", "Tab", "Tab")  # past background and fill style
        self.after_change(lambda: press("space"))
        self.after_change(lambda: type_text("50000"))
        self.around("slider", self.dialog, below=50)
        press("Escape")

    def apply(self):
        click(self.control("Apply", "push button"))
        self.settle()

    def style_a_layer(self):
        click(self.control("Layers", "page tab"))
        self.select("lake")
        self.go_to("Fill colour:")
        self.open_list(7)
        press("Return")
        press("Tab", "Tab")  # past the background
        self.open_list(16)
        self.screen("fill-styles")
        press("Return")
        self.apply()
        self.screen("styled")

    def paste_settings(self):
        self.select("lake")
        press("ctrl+c")
        self.select("river")
        press("ctrl+v")
        self.part("paste-settings", self.active_window("Paste Settings"))
        press("Escape")
        self.active_window("town - Orvane")

    def look_at_a_table_of_places(self):
        press("ctrl+d")
        self.answer_file_dialog("Open Data", self.town / "shops.csv")
        self.part("table-columns", self.active_window("Table Columns"))
        press("Escape")
        self.active_window("town - Orvane")

    def look_at_attributes(self):
        self.select("houses")
        press("F6")
        window = self.active_window("Attributes of houses")
        self.settle()
        self.part("attributes", window)
        press("alt+F4")
        self.active_window("town - Orvane")

    def choose_a_system(self):
        press("alt+v", "c")
        window = self.active_window("Coordinate System of the Map")
        type_text("wgs utm 32n")
        wait_for("the systems found", lambda: "EPSG:32632" in [node.get_name() for node in walk(window)])
        self.part("systems", window)
        press("Escape")
        self.active_window("town - Orvane")

    def has_question(self):
        return any(node.get_role_name() == "alert" for node in walk(self.program.application()))

    def save_scheme(self):
        click(self.control("Schemes", "page tab"))
        click(self.control("Save", "push button"))
        wait_for("the question", self.has_question)
        press("Return")
        wait_for("a saved scheme", lambda: not self.has_question())

    def make_scheme(self, name):
        click(self.control("Schemes", "page tab"))
        click(self.control("New...", "push button"))
        self.active_window("New Scheme")
        type_text(name)
        press("Return")
        wait_for("the scheme", lambda: not self.program.has_window("New Scheme"))

    def hide_layers(self, *layers):
        click(self.control("Layers", "page tab"))
        for layer in layers:
            self.select(layer)
            tab_to(self.control("Visible", "check box"))
            press("space")
            self.apply()

    def manage_schemes(self):
        click(self.control("Manage Schemes...", "push button"))
        window = self.active_window("Manage Schemes")
        click(self.program.find("Standard", within=self.program.find("Layer schemes", within=window)))
        self.part("manage", window)
        click(self.program.find("Compare", "page tab", within=window))
        self.program.find("Differences", within=window)
        self.part("compare", window)
        press("Escape")
        self.active_window("town - Orvane")

    def export(self):
        click(self.control("Layers", "page tab"))
        press("F4")
        wait_for("a closed layer control", lambda: not showing(self.dialog))
        press("ctrl+e")
        dialog = self.active_window("Export Map")
        self.part("export", dialog)
        press("Return")
        self.answer_file_dialog("Export Map", self.town / "town.pdf")
        wait_for("the file", (self.town / "town.pdf").exists)
        self.active_window("town - Orvane")

    def preview(self):
        press("ctrl+p")
        self.active_window("Print Map")
        press("Return")
        preview = self.active_window("Print Preview")
        self.settle()
        self.part("preview", preview)
        press("Escape")

    def quit(self):
        press("ctrl+q")
        status = self.program.wait_for_end()
        if status != 0:
            raise RuntimeError(f"the program ended with {status}")

    def export_without_a_window(self):
        for scheme in ("Standard", "Quiet"):
            target = self.pictures / f"page-{scheme.lower()}.png"
            arguments = [self.command, self.town / "town.orvane", "--export", target, "--scheme", scheme,
                         "--resolution", "72", "--title", f"Our town, {scheme.lower()}"]
            subprocess.run([str(argument) for argument in arguments], check=True)


def main():
    program, work, pictures = (pathlib.Path(argument) for argument in sys.argv[1:4])
    guide = Guide(program, work, pictures)
    try:
        guide.open_data()
        guide.store_map()
        guide.look_at_layer_control()
        guide.find()
        guide.style_a_layer()
        guide.paste_settings()
        guide.look_at_a_table_of_places()
        guide.look_at_attributes()
        guide.choose_a_system()
        guide.choose_several()
        guide.show_only_these()
        guide.show_samples()
        guide.type_a_scale()
        guide.save_scheme()
        guide.hide_layers("fields", "bus stops")
        guide.make_scheme("Quiet")
        guide.screen("schemes")
        guide.manage_schemes()
        guide.export()
        guide.preview()
        guide.quit()
        guide.export_without_a_window()
    except BaseException:
        picture(work / "where-it-stopped.png")
        guide.program.process.kill()
        raise


main()
