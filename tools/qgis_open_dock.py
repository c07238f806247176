# SPDX-License-Identifier: MIT
# Run inside QGIS: opens the dock by a click on its button, and takes pictures.
import os
import subprocess
import time
import traceback

from qgis.core import QgsProject
from qgis.PyQt.QtCore import QPoint, Qt, QTimer
from qgis.PyQt.QtGui import QColor
from qgis.PyQt.QtWidgets import QApplication, QDockWidget, QTabBar, QToolButton, QTreeView, QWidget
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


def named(name, kind=QWidget):
    return dock().findChild(kind, name)


def click_tab(number):
    tabs = named("tsLists", QTabBar)
    click(tabs, tabs.tabRect(number).center().x(), tabs.tabRect(number).center().y())


def click_row(tree, text):
    row = tree.model().match(tree.model().index(0, 0), 0, text, 1, Qt.MatchExactly | Qt.MatchRecursive)[0]
    place = tree.visualRect(row).center()
    click(tree.viewport(), tree.visualRect(row).left() + 30, place.y())


def key(*names):
    subprocess.run(["xdotool", "key", *names], check=False)


def fills():
    layers = sorted(QgsProject.instance().mapLayers().values(), key=lambda layer: layer.name())
    return {layer.name(): layer.renderer().symbol().color().name() if layer.renderer().type() == "singleSymbol"
            else [c.symbol().color().name() for c in layer.renderer().categories()] for layer in layers}


def undo_action():
    """Of the plug-in's own menu: show, undo, redo."""
    menus = [action.menu() for action in iface.pluginMenu().actions() if action.menu()]
    return next(menu for menu in menus if menu.actions()[0].objectName() == "OrvaneLayerControl").actions()[1]


def edit_group():
    click_tab(0)
    yield 700
    tree = named("tvLayers1", QTreeView)
    click_row(tree, "Nature")
    yield 700
    picture("3-group")
    print("before", fills(), flush=True)
    click(named("cmbColor1"))
    yield 700
    picture("4-colours")
    key("Home", "Down", "Down", "Down", "Down", "Return")
    yield 700
    picture("5-edited")
    click(named("cmdApply"))
    yield 1500
    picture("6-applied")
    print("applied", fills(), undo_action().text(), flush=True)


def undo_and_restyle():
    undo_action().trigger()
    yield 1500
    picture("7-undone")
    print("undone", fills(), flush=True)
    lakes = QgsProject.instance().mapLayersByName("Lakes")[0]
    lakes.setName("Ponds")
    lakes.renderer().symbol().setColor(QColor("#ff00ff"))
    lakes.emitStyleChanged()
    lakes.triggerRepaint()
    QgsProject.instance().layerTreeRoot().findGroup("Town").setName("City")
    yield 1500
    picture("8-changed-in-qgis")


def layer_names():
    return sorted(layer.name() for layer in QgsProject.instance().mapLayers().values())


def new_and_delete():
    click_tab(1)
    yield 700
    click(named("cmdNewLayer"))
    yield 2000
    picture("9-new-layer")
    key("Tab", "Down", "Down", "Return")
    yield 2000
    print("new", layer_names(), flush=True)
    click_row(named("tvLayers2", QTreeView), layer_names()[0])
    yield 700
    click(named("cmdDeleteLayer"))
    yield 1500
    picture("10-delete-layer")
    key("Return")
    yield 1500
    print("deleted", layer_names(), flush=True)


def lose_pending_edits():
    """A layer goes, then the whole project, while edits were not applied."""
    click_row(named("tvLayers2", QTreeView), "Woods")
    yield 700
    click(named("chkLocked"))
    yield 1200
    print("pending: project is dirty", QgsProject.instance().isDirty(), flush=True)
    QgsProject.instance().removeMapLayer(QgsProject.instance().mapLayersByName("Woods")[0].id())
    yield 1500
    picture("11-layer-gone")
    click(named("cmdApply"))
    yield 1500
    picture("12-applied-to-nothing")
    key("Escape")
    yield 700
    iface.newProject(False)
    yield 1500
    picture("13-new-project")
    print("messages", [item.text() for item in iface.messageBar().items()], flush=True)


def settled(begin):
    """Seconds until QGIS has done all that it had to do."""
    QApplication.processEvents()
    return time.time() - begin


def colour_many(name):
    """One colour for the group with many layers, by the dialog."""
    click_tab(0)
    yield 700
    click_row(named("tvLayers1", QTreeView), "Many")
    yield 1500
    for unfolded in (False, True):
        iface.layerTreeView().expandAll() if unfolded else iface.layerTreeView().collapseAll()
        yield 2500
        click(named("cmbColor1"))
        yield 700
        key("Home", *["Down"] * (5 if unfolded else 4), "Return")
        yield 700
        begin = time.time()
        named("cmdApply").click()
        applied = time.time() - begin
        print("many", "unfolded" if unfolded else "folded", "apply %.3f s, idle %.3f s" % (applied, settled(begin)),
              flush=True)
        yield 1500
    picture(name)


def steps():
    action = next(a for a in iface.pluginToolBar().actions() if a.objectName() == "OrvaneLayerControl")
    iface.mainWindow().showMaximized()
    iface.mainWindow().insertToolBarBreak(iface.pluginToolBar())  # on a small screen it is cut off
    iface.zoomFull()
    yield 1500
    if os.environ.get("ORVANE_MANY"):
        iface.mapCanvas().setRenderFlag(False)  # drawing a thousand layers takes longer than all else
        yield 3000
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
    if os.environ.get("ORVANE_MANY"):
        yield from colour_many("3-many")
        begin = time.time()
        QgsProject.instance().mapLayersByName("Layer 7")[0].setName("Layer seven")
        print("one layer, gathered and shown: %.4f s" % settled(begin), flush=True)
        begin = time.time()
        undo_action().trigger()
        print("undo %.3f s" % settled(begin), flush=True)
        return
    yield from edit_group()
    yield from undo_and_restyle()
    print("saved", QgsProject.instance().write(), flush=True)
    yield from new_and_delete()
    yield from lose_pending_edits()


def run(iterator):
    try:
        wait = next(iterator)
    except StopIteration:
        QgsProject.instance().setDirty(False)
        iface.actionExit().trigger()
        return
    except Exception:
        traceback.print_exc()
        open(os.path.join(OUT, "done"), "w").close()
        return
    QTimer.singleShot(wait, lambda: run(iterator))


if not os.environ.get("ORVANE_STEPS"):
    QTimer.singleShot(3000, lambda: run(steps()))
