# SPDX-License-Identifier: MIT
"""Acts as a user of QGIS, from inside it: real clicks and keys, and looks at what is on the screen.

A script is a generator: it yields Until(...) wherever a user would wait, and raises where something is not as expected.
"""
import json
import os
import subprocess
import time
import traceback

from qgis.core import (
    Qgis, QgsApplication, QgsMapRendererSequentialJob, QgsMapSettings, QgsPointXY, QgsProject)
from qgis.PyQt.QtCore import QPoint, QSize, Qt, QTimer
from qgis.PyQt.QtGui import QColor, QGuiApplication, QImage
from qgis.PyQt.QtWidgets import (
    QAbstractButton, QApplication, QComboBox, QDockWidget, QPlainTextEdit, QTabBar, QToolButton, QTreeView, QWidget)
from qgis.utils import iface

OUT = os.environ["ORVANE_OUT"]
PATIENCE = 120.0  # seconds; the first drawing of a thousand layers took 34 on a busy machine
POLL = 50  # milliseconds

warnings = []  # what QGIS has logged
awaited = []  # parts of messages that were to come


class Until:
    """Waits until the condition holds; if it never does, that is a failure which says what was awaited."""

    def __init__(self, what, condition):
        self.what, self.condition = what, condition
        self.begin = time.monotonic()

    def is_over(self):
        passed = time.monotonic() - self.begin
        if self.condition():
            tell("%.1f s for %s" % (passed, self.what))
            return True
        if passed > PATIENCE:
            raise AssertionError("waited in vain for " + self.what)
        return False


def expect(actual, expected, what):
    if actual != expected:
        raise AssertionError("%s: %r instead of %r" % (what, actual, expected))


def tell(text):
    print("user:", text, flush=True)


# The screen

def picture(name):
    path = os.path.join(OUT, name + ".png")
    subprocess.run(["import", "-window", "root", path], check=True)


def canvas_image():
    """The canvas as it is on the screen."""
    canvas = iface.mapCanvas()
    corner = canvas.mapToGlobal(QPoint(0, 0))
    screen = QGuiApplication.primaryScreen()
    return screen.grabWindow(0, corner.x(), corner.y(), canvas.width(), canvas.height()).toImage()


def colour_at(image, x, y):
    """The colour at a place of the map, "#rrggbb"."""
    place = iface.mapCanvas().getCoordinateTransform().transform(QgsPointXY(x, y))
    return image.pixelColor(int(place.x()), int(place.y())).name()


def colours_at(places):
    image = canvas_image()
    return [colour_at(image, *place) for place in places]


def still_map():
    """Waits until the canvas has not changed for a second: QGIS draws some time after a change, and shows parts first."""
    last, since = canvas_image(), time.monotonic()

    def is_still():
        nonlocal last, since
        now = canvas_image()
        if now != last or iface.mapCanvas().isDrawing():
            last, since = now, time.monotonic()
        return time.monotonic() > since + 1

    yield Until("a still map", is_still)


# Mouse and keys

def click(widget, x=None, y=None):
    """A real click, which arrives through the window system."""
    middle = widget.rect().center()
    place = widget.mapToGlobal(QPoint(middle.x() if x is None else x, middle.y() if y is None else y))
    subprocess.run(["xdotool", "mousemove", "--sync", str(place.x()), str(place.y()), "click", "1"], check=True)


def key(*names):
    subprocess.run(["xdotool", "key", *names], check=True)


def type_text(text):
    subprocess.run(["xdotool", "type", "--delay", "20", text], check=True)


def answer(title, *keys):
    """Waits for the modal window of that title, and answers it."""
    def window():
        active = QApplication.activeModalWidget()
        return active is not None and title in active.windowTitle() and active.isActiveWindow()

    yield Until("the window " + title, window)
    shown = QApplication.activeModalWidget()
    key(*keys)
    yield Until("the end of " + title, lambda: QApplication.activeModalWidget() is not shown)


def confirm():
    """Answers a question of the layer control with Yes."""
    yield from answer("Layer Control", "Return")


# The layer control

def dock():
    return iface.mainWindow().findChild(QDockWidget, "EditorDock.Main")


def named(name, kind=QWidget):
    return dock().findChild(kind, name)


def plugin_action(number):
    """Of the plug-in's menu: show, undo, redo."""
    menus = [action.menu() for action in iface.pluginMenu().actions() if action.menu()]
    return next(menu for menu in menus if menu.actions()[0].objectName() == "OrvaneLayerControl").actions()[number]


def still(widget):
    """Waits until the widget has kept its place for a moment: a tool bar moves after it was told to."""
    last, since = None, time.monotonic()

    def is_still():
        nonlocal last, since
        now = widget().mapToGlobal(QPoint()) if widget() else None
        if now is None or now != last:
            last, since = now, time.monotonic()
        return now is not None and time.monotonic() > since + 0.3

    yield Until("a widget in its place", is_still)


def button_of(action):
    for toolbar in iface.mainWindow().findChildren(QToolButton):
        if toolbar.defaultAction() == action and toolbar.isVisible():
            return toolbar
    return None


def open_dock():
    """By its button, as far as it is not open already."""
    iface.mainWindow().insertToolBarBreak(iface.pluginToolBar())  # on a small screen it is cut off
    yield from still(lambda: button_of(plugin_action(0)))
    if not dock().isVisible():
        click(button_of(plugin_action(0)))
    yield Until("the dock", lambda: dock().isVisible() and named("tvLayers1") is not None)


def show_tab(number):
    tabs = named("tsLists", QTabBar)
    click(tabs, tabs.tabRect(number).center().x(), tabs.tabRect(number).center().y())
    yield Until("tab %d" % number, lambda: tabs.currentIndex() == number)


def select(tab, text):
    """A row of the list of groups (0) or of layers (1)."""
    yield from show_tab(tab)
    tree = named("tvLayers%d" % (tab + 1), QTreeView)

    def row():
        found = tree.model().match(tree.model().index(0, 0), 0, text, 1, Qt.MatchExactly | Qt.MatchRecursive)
        return found[0] if found else None

    yield Until("the row " + text, row)
    tree.scrollTo(row())
    click(tree.viewport(), tree.visualRect(row()).left() + 30, tree.visualRect(row()).center().y())
    yield Until("the selected row " + text, lambda: tree.currentIndex().data() == text)


def choose(name, number):
    """An entry of a list of samples."""
    box = named(name, QComboBox)
    click(box)
    yield Until("the open list " + name, lambda: QApplication.activePopupWidget() is not None)
    key("Home", *["Down"] * number, "Return")
    yield Until("the closed list " + name, lambda: QApplication.activePopupWidget() is None)
    yield Until("pending edits", lambda: named("cmdApply").isEnabled())


def apply():
    click(named("cmdApply", QAbstractButton))
    yield Until("applied edits", lambda: not named("cmdApply").isEnabled())


def new_scheme(name):
    yield from show_tab(2)
    click(named("cmdNew"))
    yield Until("the question for a name", lambda: QApplication.activeModalWidget() is not None)
    type_text(name)
    yield from answer("", "Return")
    yield Until("the scheme " + name, lambda: named("cmbScheme").currentText() == name)


def switch_scheme(name):
    yield from show_tab(2)
    box = named("cmbScheme", QComboBox)
    click(box)
    yield Until("the open list of schemes", lambda: QApplication.activePopupWidget() is not None)
    key("Home", *["Down"] * box.findText(name), "Return")
    yield from confirm()
    yield Until("the scheme " + name, lambda: box.currentText() == name)


# The project

def layer(name):
    return QgsProject.instance().mapLayersByName(name)[0]


def fill(name):
    return layer(name).renderer().symbol().color().name()


def block(number):
    """The names of the layers of a block."""
    return ["Layer %d" % at for at in range(number * 100, number * 100 + 100)]


def fills():
    """The fill colours of all layers in the blocks."""
    return {each.name(): each.renderer().symbol().color().name()
            for each in QgsProject.instance().mapLayers().values() if each.name().startswith("Layer ")}


def place_of(name):
    """The middle of the square that a layer of a block has."""
    row, column = divmod(int(name.split()[1]), 50)
    return column * 20 + 8, -40 - row * 20 + 8


def shown(colours):
    """Waits until the canvas on the screen shows them."""
    names = list(colours)
    places = [place_of(name) for name in names]
    yield Until("the colours on the canvas", lambda: colours_at(places) == [colours[name] for name in names])


def drawn():
    """The whole map, drawn apart from the screen."""
    settings = QgsMapSettings(iface.mapCanvas().mapSettings())
    settings.setOutputSize(QSize(900, 900))
    settings.setExtent(iface.mapCanvas().fullExtent())
    job = QgsMapRendererSequentialJob(settings)
    job.start()
    job.waitForFinished()
    return job.renderedImage().convertToFormat(QImage.Format_RGB32)


def selectable(name):
    """Whether the layer control shows that layer as selectable."""
    yield from select(1, name)
    yield Until("the settings of " + name, lambda: named("chkSelectable").isEnabled())
    return named("chkSelectable").property("Value") == "1"


def save():
    iface.actionSaveProject().trigger()
    yield Until("the saved project", lambda: not QgsProject.instance().isDirty())


def remember(name, value):
    with open(os.path.join(OUT, "..", name + ".json"), "w", encoding="utf-8") as file:
        json.dump(value, file)


def remembered(name):
    with open(os.path.join(OUT, "..", name + ".json"), encoding="utf-8") as file:
        return json.load(file)


# The course of a script

def hear(text, tag, level):
    if level in (Qgis.Warning, Qgis.Critical):
        warnings.append("%s: %s" % (tag, text))


def message_bar():
    return [item.text() for item in iface.messageBar().items()]


def told(part):
    """Waits for the message in QGIS's window, and closes it."""
    yield Until("the message " + part, lambda: any(part in text for text in message_bar()))
    awaited.append(part)
    iface.messageBar().clearWidgets()


def unawaited(texts):
    return [text for text in texts if not any(part in text for part in awaited)]


def logged():
    """The lines about the plug-in in QGIS's panel of messages, also from before the script began."""
    texts = iface.mainWindow().findChild(QDockWidget, "MessageLog").findChildren(QPlainTextEdit)
    lines = [line for text in texts for line in text.toPlainText().splitlines()]
    return [line for line in lines if " INFO " not in line and ("layercontrol" in line.lower() or "Layer Control" in line)]


def fail():
    text = traceback.format_exc()
    tell(text)
    try:
        picture("where-it-stopped")
    finally:
        with open(os.path.join(OUT, "failed"), "w", encoding="utf-8") as file:
            file.write(text)


def finish():
    expect(unawaited(warnings), [], "warnings in QGIS's log")
    expect(unawaited(logged()), [], "what QGIS says about the plug-in")
    expect(message_bar(), [], "messages in QGIS's window")
    expect(QgsProject.instance().isDirty(), False, "unsaved changes")
    open(os.path.join(OUT, "passed"), "w", encoding="utf-8").close()
    iface.actionExit().trigger()


def proceed(steps, waiting):
    try:
        if waiting is None or waiting.is_over():
            waiting = next(steps)
    except StopIteration:
        try:
            finish()
        except Exception:
            fail()
        return
    except Exception:
        fail()
        return
    QTimer.singleShot(POLL, lambda: proceed(steps, waiting))


def play(steps):
    QgsApplication.messageLog().messageReceived.connect(hear)
    iface.mainWindow().showMaximized()
    proceed(steps, Until("QGIS", lambda: QgsProject.instance().mapLayers() and iface.mainWindow().isActiveWindow()))
