# SPDX-License-Identifier: MIT
# Run inside QGIS: opens the dock by a click on its button, and takes pictures.
import os
import subprocess
import time
import traceback

from qgis.PyQt.QtCore import QPoint, QTimer
from qgis.PyQt.QtWidgets import QDockWidget, QToolButton, QWidget
from qgis.utils import iface

OUT = os.environ["ORVANE_OUT"]


def picture(name):
    subprocess.run(["import", "-window", "root", os.path.join(OUT, name + ".png")], check=False)


def click(widget, x=None, y=None):
    """A real click, which arrives through the window system."""
    middle = widget.rect().center()
    place = widget.mapToGlobal(QPoint(middle.x() if x is None else x, middle.y() if y is None else y))
    subprocess.run(["xdotool", "mousemove", str(place.x()), str(place.y()), "click", "1"], check=False)


def button_of(action):
    for widget in action.associatedWidgets():
        if isinstance(widget, QToolButton):
            return widget
        for button in widget.findChildren(QToolButton):
            if button.defaultAction() == action:
                return button
    return None


def dock():
    return iface.mainWindow().findChild(QDockWidget, "EditorDock.Main")


def steps():
    action = next(a for a in iface.pluginToolBar().actions() if a.objectName() == "OrvaneLayerControl")
    iface.mainWindow().showMaximized()
    iface.mainWindow().insertToolBarBreak(iface.pluginToolBar())  # on a small screen it is cut off
    iface.zoomFull()
    yield 1500
    picture("1-before")
    begin = time.time()
    click(button_of(action))
    while not dock().isVisible() and time.time() < begin + 15:
        yield 20
    print("dock shown after %.3f s" % (time.time() - begin), flush=True)
    yield 1500
    picture("2-dock")
    for widget in dock().findChildren(QWidget):
        if os.environ.get("ORVANE_NAMES") and widget.isVisible() and widget.objectName():
            print(type(widget).__name__, widget.objectName(), flush=True)


def run(iterator):
    try:
        wait = next(iterator)
    except StopIteration:
        open(os.path.join(OUT, "done"), "w").close()
        return
    except Exception:
        traceback.print_exc()
        open(os.path.join(OUT, "done"), "w").close()
        return
    QTimer.singleShot(wait, lambda: run(iterator))


if not os.environ.get("ORVANE_STEPS"):
    QTimer.singleShot(3000, lambda: run(steps()))
