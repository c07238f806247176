# SPDX-License-Identifier: MIT
# Run inside a German QGIS: plug-in and component find their texts, and QGIS's own words stay as they are.
import os
import sys

sys.path.insert(0, os.environ["ORVANE_SCRIPTS"])
from user import *  # noqa: E402,F403


def steps():
    yield from open_dock()
    expect(plugin_action(0).text(), "Layersteuerung", "the entry in the menu")
    expect(named("cmdApply").text(), "An&wenden", "a button")
    expect(iface.projectMenu().title().replace("&", ""), "Projekt", "a menu of QGIS")
    picture("in-german")


play(steps())
