#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""usage: orvane.py PROCESS FOLDER: the session in Orvane, whose window has the focus, with the map of the city."""
import sys

from keys import User

user = User(int(sys.argv[1]), sys.argv[2])
user.await_window("Orvane")
user.await_rest()
user.step("open", "F4", "[Layer Control]")
user.step("find", "ctrl+f", "'pipe'", "Return ctrl+a")
user.step("style", "alt+n Home Down Down Down Down Down Down",
          "alt+m", "[Value]", "'1000'", "Return", "[Layer Control]",
          "alt+x", "[Value]", "'50000'", "Return", "[Layer Control]", "alt+a")
user.step("alone", "ctrl+f Tab Menu Down Down Down Down Down Return")
user.step("back", "Tab space")
user.step("scheme", "shift+Tab Right alt+n", "[New Scheme]", "'pipes'", "Return", "[Layer Control]")
user.step("compare", "alt+m", "[Manage Schemes]", "Down alt+p")
user.step("undo", "Escape", "[Layer Control]", "Escape", "[Orvane]", "alt+e e")
user.report(sys.argv[2] + "/figures")
