# SPDX-License-Identifier: MIT
# Run inside QGIS with the plug-in, on a small project: what changes on either side is seen on the other, layers are made
# and deleted by QGIS's own commands, and nothing goes wrong when layers or projects vanish under pending edits.
import os
import sys
import zipfile
from xml.etree import ElementTree

sys.path.insert(0, os.environ["ORVANE_SCRIPTS"])
from user import *  # noqa: E402,F403

SOIL = ["#fdd49e", "#fc8d59", "#b30000"]


def classes():
    return [each.symbol().color().name() for each in layer("Soil").renderer().categories()]


def layer_names():
    return sorted(each.name() for each in QgsProject.instance().mapLayers().values())


def in_list(tab):
    model = named("tvLayers%d" % (tab + 1), QTreeView).model()
    return [model.index(at, 0).data() for at in range(model.rowCount())]


def edit_a_group():
    yield from select(0, "Nature")
    yield from choose("cmbColor1", 4)
    yield from apply()
    expect(fill("Lakes"), fill("Woods"), "colours in the group")
    expect(fill("Lakes") == "#4080e0", False, "the old colour")
    expect(classes(), SOIL, "colours of classes in the group")
    yield Until("the colour on the canvas", lambda: colours_at([(50, 290)]) == [fill("Lakes")])
    picture("applied")
    plugin_action(1).trigger()
    yield Until("the undone colours", lambda: (fill("Lakes"), fill("Woods")) == ("#4080e0", "#50a050"))
    yield Until("the old colour on the canvas", lambda: colours_at([(50, 290)]) == ["#4080e0"])


def chosen_in_list():
    selection = named("tvLayers2", QTreeView).selectionModel()
    return sorted(index.data() for index in selection.selectedIndexes())


def find_and_edit():
    """With the keyboard alone, from the list to the list."""
    before = {name: fill(name) for name in ("Schools", "Woods", "Houses")}
    yield from select(1, "Houses")
    key("ctrl+f")
    field = named("txtFind2")
    yield Until("the focus of the field", field.hasFocus)
    type_text("oo")
    yield Until("the layers that were found", lambda: in_list(1) == ["Schools", "Woods"])
    key("Down", "ctrl+a")
    yield Until("the chosen layers", lambda: chosen_in_list() == ["Schools", "Woods"])
    picture("found")
    yield from choose("cmbColor1", 5)
    yield from apply()
    expect(fill("Schools"), fill("Woods"), "the colours of what was found")
    expect(fill("Houses"), before["Houses"], "the colour of another layer")
    expect("2" in plugin_action(1).text(), True, "two layers in " + plugin_action(1).text())
    plugin_action(1).trigger()
    yield Until("the undone colours", lambda: {name: fill(name) for name in before} == before)
    key("ctrl+f")
    yield Until("the focus of the field again", field.hasFocus)
    key("Escape")
    yield Until("all layers", lambda: len(in_list(1)) > 2)
    expect(chosen_in_list(), ["Schools", "Woods"], "the chosen layers in the whole list")


def change_in_qgis():
    layer("Lakes").renderer().symbol().setColor(QColor("#ff00ff"))
    layer("Lakes").emitStyleChanged()
    layer("Lakes").setName("Ponds")
    QgsProject.instance().layerTreeRoot().findGroup("Town").setName("City")
    yield from show_tab(0)
    yield Until("the new name of the group", lambda: "City" in in_list(0) and "Town" not in in_list(0))
    yield from select(1, "Ponds")
    expect("Lakes" in in_list(1), False, "the old name of the layer")
    picture("changed-in-qgis")


def make_and_delete():
    before = layer_names()
    yield from show_tab(1)
    click(named("cmdNewLayer"))
    yield from answer("New Temporary Scratch Layer", "Tab", "Down", "Down", "Return")
    yield Until("the new layer", lambda: len(layer_names()) == len(before) + 1)
    made = next(name for name in layer_names() if name not in before)
    yield from select(1, made)
    click(named("cmdDeleteLayer"))
    yield from answer("Remove layers", "Return")
    yield Until("the deleted layer", lambda: layer_names() == before and made not in in_list(1))


def saved_ticks():
    """Of each layer, whether the file of the project shows it."""
    with zipfile.ZipFile(QgsProject.instance().fileName()) as archive:
        text = archive.read(next(name for name in archive.namelist() if name.endswith(".qgs")))
    nodes = ElementTree.fromstring(text).iter("layer-tree-layer")
    return {node.get("name"): node.get("checked") == "Qt::Checked" for node in nodes}


def save_with_pending_edits():
    yield from select(1, "Woods")
    click(named("chkVisible"), 8)
    yield Until("a project that has changed", lambda: QgsProject.instance().isDirty())
    key("ctrl+s")
    yield from confirm()
    yield Until("the saved project", lambda: not QgsProject.instance().isDirty())
    expect(saved_ticks()["Woods"], False, "the tick that was applied while the project was saved")
    yield Until("the same editor", lambda: named("cmdApply") is not None and not named("cmdApply").isEnabled())
    expect(named("tvLayers2", QTreeView).currentIndex().data(), "Woods", "the layer in the panel")


def lose_pending_edits():
    yield from select(1, "Woods")
    click(named("chkLocked"), 8)
    yield Until("a project that has changed", lambda: QgsProject.instance().isDirty())
    QgsProject.instance().removeMapLayer(layer("Woods").id())
    yield Until("a list without the layer", lambda: "Woods" not in in_list(1))
    picture("layer-gone")
    yield from told("Woods")
    iface.newProject(False)
    yield Until("an empty list", lambda: in_list(1) == [])
    picture("new-project")


def steps():
    iface.zoomFull()
    yield from open_dock()
    yield from edit_a_group()
    yield from find_and_edit()
    yield from change_in_qgis()
    yield from make_and_delete()
    yield from save_with_pending_edits()
    yield from lose_pending_edits()


play(steps())
