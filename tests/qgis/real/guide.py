# SPDX-License-Identifier: MIT
# Run inside QGIS, where the plug-in is installed and not switched on: does what docs/guide/qgis.md describes, and takes
# its pictures.
import os
import sys

sys.path.insert(0, os.environ["ORVANE_SCRIPTS"])
from user import *  # noqa: E402,F403
from qgis.PyQt.QtWidgets import QAction, QDialog, QListView, QListWidget  # noqa: E402


def plugin_manager():
    found = QApplication.activeModalWidget()
    return found if isinstance(found, QDialog) and "Plugins" in found.windowTitle() else None


def switch_on():
    QTimer.singleShot(0, iface.mainWindow().findChild(QAction, "mActionManagePlugins").trigger)
    yield Until("the manager of plug-ins", plugin_manager)
    entries = plugin_manager().findChild(QListView, "vwPlugins")
    sections = plugin_manager().findChild(QListWidget, "mOptionsListWidget")
    sections.setCurrentRow(1)  # what is installed

    def entry():
        found = entries.model().match(entries.model().index(0, 0), 0, "Layer Control", 1, Qt.MatchExactly)
        return found[0] if found else None

    yield Until("the entry in the list", entry)
    entries.scrollTo(entry())
    place = entries.visualRect(entry())
    click(entries.viewport(), place.left() + 60, place.center().y())
    yield Until("the selected entry", lambda: entries.currentIndex().data() == "Layer Control")
    click(entries.viewport(), place.left() + 10, place.center().y())
    yield Until("the loaded plug-in", dock)
    picture("qgis-plugins")
    key("Escape")
    yield Until("the closed manager", lambda: QApplication.activeModalWidget() is None)


def style_a_group():
    yield from select(0, "Town / Buildings")
    yield from still_map()
    picture("qgis-dock")
    yield from choose("cmbColor1", 14)
    picture("qgis-group")
    yield from apply()


def style_a_layer():
    yield from select(1, "Lakes")
    yield from choose("cmbFillStyles", 16)
    yield from apply()
    yield from still_map()
    picture("qgis-styled")


def make_schemes():
    yield from show_tab(2)
    click(named("cmdSave"))
    yield from confirm()
    yield from select(1, "Soil")
    click(named("chkVisible"), 8)
    yield Until("pending edits", lambda: named("cmdApply").isEnabled())
    yield from apply()
    yield from new_scheme("Quiet")
    yield from still_map()
    picture("qgis-schemes")


def steps():
    yield from switch_on()
    yield from open_dock()
    iface.zoomFull()
    yield from style_a_group()
    yield from style_a_layer()
    yield from make_schemes()
    yield from save()


play(steps())
