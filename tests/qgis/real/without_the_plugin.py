# SPDX-License-Identifier: MIT
# Run inside a QGIS without the plug-in, on the project that many_layers.py has saved: it must look the same.
# Saves it again.
import os
import sys

sys.path.insert(0, os.environ["ORVANE_SCRIPTS"])
from user import *  # noqa: E402,F403


def steps():
    expect(dock(), None, "a dock of the layer control")
    expect(fills(), remembered("Quiet"), "colours")
    iface.zoomFull()
    yield from shown(remembered("Quiet"))
    picture("without-plugin")
    before = QImage(os.path.join(OUT, "..", "drawn.png")).convertToFormat(QImage.Format_RGB32)
    expect(drawn() == before, True, "the same picture as with the plug-in")
    QgsProject.instance().setDirty(True)
    yield from save()


play(steps())
