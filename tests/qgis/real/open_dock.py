# SPDX-License-Identifier: MIT
# Run inside QGIS: opens the dock by a click on its button.
import os
import sys

sys.path.insert(0, os.environ["ORVANE_SCRIPTS"])
from user import *  # noqa: E402,F403


def steps():
    yield from open_dock()
    expect(plugin_action(0).text(), "Layer Control", "the entry in the menu")
    expect(message_bar(), [], "messages")
    picture("dock")


play(steps())
