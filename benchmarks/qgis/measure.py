# SPDX-License-Identifier: MIT
# Run inside QGIS by speed.sh: measures the layer control, or what QGIS has for the same work. Writes lines "name wall
# processor" in seconds, and "name over LIMIT" for what was begun.
import os
import signal
import statistics
import sys
import time
import traceback

from qgis.core import (
    Qgis, QgsFillSymbol, QgsLayerTreeLayer, QgsMapLayerStyle, QgsMapThemeCollection, QgsProject, QgsSingleSymbolRenderer,
    QgsVectorLayer)
from qgis.PyQt.QtCore import QEvent, QCoreApplication, QItemSelectionModel, QMetaObject, Qt, QTimer
from qgis.PyQt.QtGui import QColor
from qgis.PyQt.QtTest import QTest
from qgis.PyQt.QtWidgets import (
    QAbstractButton, QApplication, QComboBox, QDockWidget, QInputDialog, QLineEdit, QMessageBox, QTabBar, QTreeView,
    QWidget)
from qgis.utils import iface

OUT = os.environ["ORVANE_OUT"]
PART = os.environ["ORVANE_PART"]
LIMIT = int(os.environ["ORVANE_LIMIT"])
IS_EXPANDED = os.environ["ORVANE_TREE"] == "expanded"
ROUNDS = 9
QUIET = 0.002  # seconds: a turn of the event loop that had nothing to do
GROUP = "Many"


def limited(name):
    """QGIS is ended if what follows takes too long; that is then known."""
    note(name, ("over", float(LIMIT)))
    signal.signal(signal.SIGALRM, signal.SIG_DFL)  # no other handler runs while QGIS is at work
    signal.alarm(LIMIT)


def note(name, seconds):
    with open(os.path.join(OUT, "figures"), "a", encoding="utf-8") as figures:
        figures.write("%s %s %s\n" % (name, *seconds))


def settle():
    """Returns when QGIS has done all that it had to do."""
    quiet = 0
    while quiet < 3:
        begin = time.perf_counter()
        QCoreApplication.sendPostedEvents(None, QEvent.DeferredDelete)
        QApplication.processEvents()
        quiet = quiet + 1 if time.perf_counter() - begin < QUIET else 0


def timed(act, until=None):
    """Wall and processor time of act, until the event loop is idle or a condition holds."""
    wall, processor = time.perf_counter(), time.process_time()
    act()
    if until:
        while not until():
            QApplication.processEvents()
    else:
        settle()
    return time.perf_counter() - wall, time.process_time() - processor


def middle(times):
    return tuple(statistics.median(column) for column in zip(*times))


def dock():
    return iface.mainWindow().findChild(QDockWidget, "EditorDock.Main")


def named(name, kind=QWidget):
    return dock().findChild(kind, name)


def show_tab(number):
    named("tsLists", QTabBar).setCurrentIndex(number)
    settle()


def row_of(tree, text):
    return tree.model().match(tree.model().index(0, 0), Qt.DisplayRole, text, 1, Qt.MatchExactly | Qt.MatchRecursive)[0]


def choose(tab, tree, text):
    show_tab(tab)
    view = named(tree, QTreeView)
    view.setCurrentIndex(row_of(view, text))
    settle()


def add_many(count):
    """QGIS takes a quarter of an hour to open a project of ten thousand layers, but not to add them to an open one."""
    group = QgsProject.instance().layerTreeRoot().addGroup(GROUP)
    layers = [QgsVectorLayer("Polygon?crs=EPSG:3857", "Layer %d" % number, "memory") for number in range(count)]
    for layer in layers:
        symbol = QgsFillSymbol.createSimple({"color": "#80c0c0", "outline_color": "#404040"})
        layer.setRenderer(QgsSingleSymbolRenderer(symbol))
    QgsProject.instance().addMapLayers(layers, False)
    group.insertChildNodes(-1, [QgsLayerTreeLayer(layer) for layer in layers])
    settle()


def many_layers():
    return [node.layer() for node in QgsProject.instance().layerTreeRoot().findGroup(GROUP).findLayers()]


def colours():
    return {layer.renderer().symbol().color().name() for layer in many_layers()}


def must(holds, what):
    if not holds:
        raise RuntimeError("not as expected: " + what)


def open_dock():
    action = next(a for a in iface.pluginToolBar().actions() if a.objectName() == "OrvaneLayerControl")
    note("dock", timed(action.trigger))


def choose_colour(steps):
    """As a user with the keyboard does."""
    combo = named("cmbColor1", QComboBox)
    combo.setFocus()
    for key in [Qt.Key_Home] + [Qt.Key_Down] * steps:
        QTest.keyClick(combo, key)
    settle()
    must(named("cmdApply").isEnabled(), "an edit that can be applied")


def apply_colour(name, steps):
    choose_colour(steps)
    before = colours()
    note(name, timed(named("cmdApply", QAbstractButton).click))
    must(len(colours()) == 1 and colours() != before, "one new colour in all layers")


# ---- one layer changed in QGIS


def rename(layer, name):
    layer.setName("%s %s" % (layer.name(), name))


def restyle(layer, name):
    layer.renderer().symbol().setColor(layer.renderer().symbol().color().darker(110))
    layer.emitStyleChanged()


def change_each(change, layers, name):
    times = []
    for layer in layers:
        settle()
        times.append(timed(lambda: change(layer, name)))
    return middle(times)


def change_one_layer(name):
    layers = many_layers()
    note(name + "-rename", change_each(rename, layers[20:20 + ROUNDS], name))
    note(name + "-restyle", change_each(restyle, layers[40:40 + ROUNDS], name))


def until_shown(layer, number):
    text = "Layer %d now" % number
    view = named("tvLayers2", QTreeView)
    layer.setName(text)  # QGIS's own work is not the plug-in's
    return timed(lambda: None, lambda: view.model().match(
        view.model().index(0, 0), Qt.DisplayRole, text, 1, Qt.MatchExactly))


# ---- schemes and themes


def answered(act, text):
    """Runs act, and answers the dialogs that it opens."""
    waits = []

    def answer():
        box = QApplication.activeModalWidget()
        if box is None:
            return
        waits.append(box)
        for field in box.findChildren(QLineEdit):
            field.setText(text)
        QTest.keyClick(box, Qt.Key_Return) if not isinstance(box, QMessageBox) else box.defaultButton().click()

    timer = QTimer()
    timer.timeout.connect(answer)
    timer.start(5)
    act()
    settle()
    timer.stop()
    return waits


def new_scheme(name):
    show_tab(2)
    answered(lambda: (named("cmdNew", QAbstractButton).click(), QTest.qWait(300)), name)


def switch_scheme():
    combo = named("cmbScheme", QComboBox)
    other = next(at for at in range(combo.count()) if at != combo.currentIndex())
    before = colours()
    combo.setFocus()
    begin = []

    def yes():
        box = QApplication.activeModalWidget()
        if box is None:
            return
        timer.stop()
        begin.extend((time.perf_counter(), time.process_time()))
        box.button(QMessageBox.Yes).click()

    timer = QTimer()
    timer.timeout.connect(yes)
    timer.start(5)
    QTest.keyClick(combo, Qt.Key_Up if other < combo.currentIndex() else Qt.Key_Down)
    while not begin:
        QApplication.processEvents()
    settle()
    note("scheme", (time.perf_counter() - begin[0], time.process_time() - begin[1]))
    must(colours() != before, "the colour of the other scheme")


def make_themes():
    """Two themes: the style of now, and one with another colour."""
    layers = many_layers()
    themes = QgsProject.instance().mapThemeCollection()
    first = layers[0]
    kept = QgsMapLayerStyle()
    kept.readFromLayer(first)
    first.renderer().symbol().setColor(QColor("#123456"))
    other = QgsMapLayerStyle()
    other.readFromLayer(first)
    kept.writeToLayer(first)
    for name in ("now", "other"):
        record = QgsMapThemeCollection.MapThemeRecord()
        for layer in layers:
            if name == "other":
                layer.styleManager().addStyle("other", other)
            entry = QgsMapThemeCollection.MapThemeLayerRecord(layer)
            entry.isVisible = True
            entry.usingCurrentStyle = True
            entry.currentStyle = "other" if name == "other" else layer.styleManager().currentStyle()
            record.addLayerRecord(entry)
        themes.insert(name, record)
    settle()


def switch_theme():
    view = iface.layerTreeView()
    before = colours()
    limited("theme")
    note("theme", timed(lambda: QgsProject.instance().mapThemeCollection().applyTheme(
        "other", QgsProject.instance().layerTreeRoot(), view.layerTreeModel())))
    signal.alarm(0)
    must(colours() != before, "the colour of the other theme")


def paste_style():
    """Copies the style of one layer, and pastes it on the group."""
    view = iface.layerTreeView()
    source = many_layers()[0]
    source.renderer().symbol().setColor(QColor("#a02050"))
    view.setCurrentLayer(source)
    settle()
    iface.actionCopyLayerStyle().trigger()
    group = QgsProject.instance().layerTreeRoot().findGroup(GROUP)
    view.setCurrentIndex(view.node2index(group))
    view.selectionModel().select(view.node2index(group), QItemSelectionModel.ClearAndSelect)
    if not IS_EXPANDED:
        view.collapseAll()
    settle()
    before = colours()
    limited("paste")
    note("paste", timed(lambda: QMetaObject.invokeMethod(iface.mainWindow(), "applyStyleToGroup")))
    signal.alarm(0)
    must(len(colours()) == 1 and colours() != before, "the pasted colour in all layers")


# ---- projects


def save_and_open():
    """The project with its many layers is written, and read again by the same QGIS."""
    path = os.path.join(OUT, "many.qgz")
    count = len(many_layers())
    limited("save")
    note("save", timed(lambda: must(QgsProject.instance().write(path), "a saved project")))
    signal.alarm(0)
    QgsProject.instance().clear()
    settle()
    limited("open")
    note("open", timed(lambda: must(QgsProject.instance().read(path), "an opened project")))
    signal.alarm(0)
    must(len(many_layers()) == count, "all layers in the opened project")


# ---- maps of real layers


def add_real(path, count):
    """All layers of one GeoPackage, in the group."""
    group = QgsProject.instance().layerTreeRoot().addGroup(GROUP)
    layers = [QgsVectorLayer("%s|layername=layer %d" % (path, number), "Layer %d" % number, "ogr")
              for number in range(count)]
    must(all(layer.isValid() for layer in layers), "layers that can be read")
    for layer in layers:
        symbol = QgsFillSymbol.createSimple({"color": "#80c0c0", "outline_color": "#404040"})
        layer.setRenderer(QgsSingleSymbolRenderer(symbol))
    QgsProject.instance().addMapLayers(layers, False)
    group.insertChildNodes(-1, [QgsLayerTreeLayer(layer) for layer in layers])
    settle()


def until_drawn(act):
    """Wall and processor time of act, until the map is drawn."""
    drawn = []
    iface.mapCanvas().mapCanvasRefreshed.connect(lambda: drawn.append(True))
    return timed(act, lambda: drawn)


def draw_real():
    """A project is opened without its map being drawn, then drawn, and drawn again after a change of one layer."""
    canvas = iface.mapCanvas()
    canvas.resize(800, 600)
    path = os.path.join(OUT, "real.qgz")
    must(QgsProject.instance().write(path), "a saved project")
    QgsProject.instance().clear()
    settle()
    limited("map-open")
    note("map-open", timed(lambda: must(QgsProject.instance().read(path), "an opened project")))
    canvas.setRenderFlag(True)
    canvas.setExtent(canvas.fullExtent())
    limited("map-draw")
    note("map-draw", until_drawn(canvas.refreshAllLayers))
    layers = many_layers()
    times = []
    for number in range(ROUNDS):
        layer = layers[len(layers) // 2]
        layer.renderer().symbol().setColor(QColor(20 * number, 90, 120))
        times.append(until_drawn(layer.triggerRepaint))
    signal.alarm(0)
    note("map-redraw", middle(times))


# ---- all


def arrange_tree():
    view = iface.layerTreeView()
    view.expandAll() if IS_EXPANDED else view.collapseAll()
    settle()


def measure_layer_control():
    change_one_layer("alone")
    open_dock()
    choose(0, "tvLayers1", GROUP)
    apply_colour("apply", 4)
    change_one_layer("group-shown")
    choose(1, "tvLayers2", "Lakes")
    change_one_layer("other-shown")
    layers = many_layers()
    note("until-shown", middle([until_shown(layers[number], number) for number in range(60, 60 + ROUNDS)]))
    choose(0, "tvLayers1", GROUP)
    new_scheme("First")
    choose(0, "tvLayers1", GROUP)
    apply_colour("apply-again", 5)
    new_scheme("Second")
    switch_scheme()


def run():
    try:
        count = int(os.environ["ORVANE_LAYERS"])
        add_real(os.environ["ORVANE_DATA"], count) if PART == "map" else add_many(count)
        print("QGIS", Qgis.QGIS_VERSION, "layers", len(many_layers()), flush=True)
        arrange_tree()
        if PART == "control":
            measure_layer_control()
        elif PART == "paste":
            paste_style()
        elif PART == "project":
            save_and_open()
        elif PART == "map":
            draw_real()
        else:
            make_themes()
            switch_theme()
    except Exception:
        traceback.print_exc()
        sys.stderr.flush()
    open(os.path.join(OUT, "done"), "w", encoding="utf-8").close()


def start():
    iface.mainWindow().showMaximized()
    iface.mapCanvas().setRenderFlag(False)  # drawing a thousand layers takes longer than all else
    QTimer.singleShot(3000, run)


QTimer.singleShot(2000, start)
