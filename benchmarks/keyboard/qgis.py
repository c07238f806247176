#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""usage: qgis.py PROCESS FOLDER

The keys of a user who gives the 37 pipes one look in QGIS, in a city's project that is open. QGIS finds one layer at a
time, so a few pipes are measured, and all are taken to need as much as the mean of them. Writes FOLDER/figures.
"""
import os
import sys
import time

import keys

FEW = 5
PIPES = 37
MENU = 0.4  # seconds until the user sees the menu, or keys come too early for it


class QgisUser(keys.User):
    """QGIS always has a blinking cursor in one of its fields: what rests is the processor."""

    def screen(self):
        return b""

    def press(self, key):
        super().press(key)
        if key.startswith("alt+"):
            time.sleep(MENU)

    def repeat(self, name, times, words):
        """A step for each of a few pipes; the mean, and what so many pipes need."""
        first = len(self.steps)
        for pipe in range(2, 2 + FEW):
            self.step("%s %d" % (name, pipe), *(word.replace("PIPE", str(pipe)) for word in words))
        few = self.steps[first:]
        del self.steps[first:]
        self.steps.append(("%s, one pipe" % name, *(sum(step[column] for step in few) / FEW for column in (1, 2, 3))))
        self.steps.append(("%s, %d pipes" % (name, times), *(sum(step[column] for step in few) * times / FEW for column in (1, 2, 3))))


def main():
    user = QgisUser(int(sys.argv[1]), sys.argv[2])
    user.step("find the first pipe", "ctrl+k", "'l water pipe 1'", "Return")
    user.step("its line in blue", "alt+l p", "[Layer Properties]", " ".join(["Tab"] * 14), "space", "[Select Color]",
              " ".join(["shift+Tab"] * 5), "'blue'", "Return", "[Layer Properties]", " ".join(["shift+Tab"] * 10), "space", "[QGIS]")
    user.step("its scale range", "alt+l", " ".join(["Up"] * 9), "Return", "[scale visibility]",
              "space Tab", "'50000'", "Tab Tab", "'1000'", "Return", "[QGIS]")
    user.step("copy its style", "alt+l", "Down Down Down Down Down Return")
    user.repeat("find and paste the style", PIPES - 1, ["ctrl+k", "'l water pipe PIPE'", "Return", "alt+l", "Down Down Down Down Down Down Return"])
    user.step("hide all", "ctrl+shift+h")
    user.repeat("find and show", PIPES, ["ctrl+k", "'l water pipe PIPE'", "Return", "alt+v", "Up Up Up Up Up Up Right Down Down Return"])
    user.report(os.path.join(sys.argv[2], "figures"))


main()
