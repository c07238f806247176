# SPDX-License-Identifier: MIT
# Run inside QGIS with the plug-in, on the project that many_layers.py has saved, and a QGIS without the plug-in after
# it: its schemes and what the layer control keeps for QGIS must be there.
import os
import sys

sys.path.insert(0, os.environ["ORVANE_SCRIPTS"])
from user import *  # noqa: E402,F403


def go(command, name):
    """Switches to that scheme by undo or redo, while QGIS is drawing the former one."""
    iface.mapCanvas().refreshAllLayers()
    yield Until("the drawing of the map", iface.mapCanvas().isDrawing)
    plugin_action(command).trigger()
    yield from shown(remembered(name))


def steps():
    iface.zoomFull()
    yield from open_dock()
    schemes = named("cmbScheme", QComboBox)
    expect([schemes.itemText(at) for at in range(schemes.count())], ["Quiet", "Standard"], "schemes")
    expect(schemes.currentText(), "Quiet", "the current scheme")
    expect(fills(), remembered("Quiet"), "colours")
    expect((yield from selectable("Layer 7")), False, "Layer 7 is selectable in Quiet")
    expect((yield from selectable("Layer 8")), True, "Layer 8 is selectable in Quiet")
    yield from switch_scheme("Standard")
    yield Until("the colours of Standard", lambda: fills() == remembered("Standard"))
    yield from shown(remembered("Standard"))
    for _ in range(3):
        yield from go(1, "Quiet")
        yield from go(2, "Standard")
    expect((yield from selectable("Layer 7")), True, "Layer 7 is selectable in Standard")
    picture("opened-again")
    yield from save()


play(steps())
