# SPDX-License-Identifier: MIT
# Run inside QGIS with the plug-in, on a project with a thousand layers: styles a hundred at once, undoes it, makes two
# schemes, switches between them, and saves the project.
import os
import sys

sys.path.insert(0, os.environ["ORVANE_SCRIPTS"])
from user import *  # noqa: E402,F403

FIRST = "#80c0c0"  # of all these layers
BLUE, GREEN = "#0000ff", "#00ff00"  # the fifth and sixth in the list of colours


def style_a_block():
    before = fills()
    yield from select(0, "Many / Block 3")
    yield from choose("cmbColor1", 4)
    picture("block-selected")
    yield from apply()
    after = fills()
    changed = {name for name in after if after[name] != before[name]}
    expect(changed, set(block(3)), "changed layers")
    expect({after[name] for name in changed}, {BLUE}, "the new colour")
    expect(fill("Lakes"), "#4080e0", "a layer that is not in the group")
    yield from shown(after)
    picture("block-styled")


def undo_and_redo():
    after = fills()
    expect(plugin_action(1).text().startswith("Undo"), True, "the entry " + plugin_action(1).text())
    plugin_action(1).trigger()
    yield Until("the undone colours", lambda: set(fills().values()) == {FIRST})
    yield from shown(fills())
    picture("undone")
    plugin_action(2).trigger()
    yield Until("the colours again", lambda: fills() == after)
    yield from shown(after)


def keep_as_standard():
    yield from show_tab(2)
    click(named("cmdSave"))
    yield from confirm()
    remember("Standard", fills())


def make_quiet():
    yield from select(0, "Many / Block 5")
    yield from choose("cmbColor1", 5)
    yield from apply()
    expect({fill(name) for name in block(5)}, {GREEN}, "the colour of the other group")
    yield from select(1, "Layer 7")
    expect(named("chkSelectable").isEnabled(), True, "Selectable can be set")
    click(named("chkSelectable"), 8)
    yield Until("pending edits", lambda: named("cmdApply").isEnabled())
    yield from apply()
    yield from new_scheme("Quiet")
    remember("Quiet", fills())
    picture("quiet")


def switch():
    for name in ("Standard", "Quiet"):
        yield from switch_scheme(name)
        yield Until("the colours of " + name, lambda: fills() == remembered(name))
        yield from shown(remembered(name))
        picture("scheme-" + name)
    expect(remembered("Standard") == remembered("Quiet"), False, "two schemes are the same")


def steps():
    iface.zoomFull()
    yield from open_dock()
    yield from shown(dict.fromkeys(fills(), FIRST))
    yield from style_a_block()
    yield from undo_and_redo()
    yield from keep_as_standard()
    yield from make_quiet()
    yield from switch()
    yield from save()
    drawn().save(os.path.join(OUT, "..", "drawn.png"))


play(steps())
