# SPDX-License-Identifier: MIT
"""A user with nothing but a keyboard: sends keys to the window that has the focus, and takes the time until the screen shows
what they do."""
import hashlib
import os
import subprocess
import time

PAUSE = 0.1  # seconds between two keys, as a practised user types
STILL = 1.0  # seconds without a change of the screen, and with an idle program: it is done
PATIENCE = 180.0
TICKS = os.sysconf("SC_CLK_TCK")


def run(*command):
    return subprocess.run(command, check=True, capture_output=True).stdout


def active_title():
    try:
        return run("xdotool", "getactivewindow", "getwindowname").decode()
    except subprocess.CalledProcessError:
        return ""


class User:
    """The user of one program. Keys are written as xdotool takes them; "[Title]" waits for a window of such a title, "'text'"
    types a text."""

    def __init__(self, process, folder):
        self.process, self.folder, self.keys, self.steps = process, folder, 0, []

    def step(self, name, *words):
        """Presses the keys, waits until the program has done it, and takes a picture."""
        keys, began, processor = self.keys, time.monotonic(), self.processor()
        for word in words:
            self.obey(word)
        ended = self.await_rest()
        self.steps.append((name, self.keys - keys, ended - began, self.processor() - processor))
        print("%s: %d keys, %.1f s, processor %.1f s" % self.steps[-1], flush=True)
        self.picture(name)

    def obey(self, word):
        if word.startswith("["):
            self.await_window(word[1:-1])
        elif word.startswith("'"):
            for letter in word[1:-1]:
                self.press("space" if letter == " " else letter)
        else:
            for key in word.split():
                self.press(key)

    def press(self, key):
        self.keys += 1
        run("xdotool", "key", key)
        time.sleep(PAUSE)

    def await_window(self, title):
        began = time.monotonic()
        while title not in active_title():
            if time.monotonic() - began > PATIENCE:
                self.picture("where-it-stopped")
                raise SystemExit("waited in vain for the window %s, there is %s" % (title, active_title()))
            time.sleep(0.05)

    def await_rest(self):
        """Returns when the screen changed last."""
        last, since, processor = None, time.monotonic(), self.processor()
        while time.monotonic() - since < STILL:
            now, busy = self.screen(), self.processor()
            if now != last or busy - processor > 0.1:
                last, since, processor = now, time.monotonic(), busy
            time.sleep(0.05)
        return since

    def screen(self):
        return hashlib.md5(run("import", "-silent", "-window", "root", "-depth", "8", "rgb:-")).digest()

    def processor(self):
        """The seconds that the program has used."""
        with open("/proc/%d/stat" % self.process, encoding="utf-8") as file:
            times = file.read().rsplit(")", 1)[1].split()
        return (int(times[11]) + int(times[12])) / TICKS

    def picture(self, name):
        run("import", "-silent", "-window", "root", os.path.join(self.folder, name.replace(" ", "-") + ".png"))

    def report(self, path):
        with open(path, "w", encoding="utf-8") as file:
            for step in self.steps:
                file.write("%s;%d;%.1f;%.1f\n" % step)
