"""The real program in a real window, as an assistive technology sees it.

Needs a desktop of its own (on_desktop). Main window and dialogs are known by
their titles. Verbs wait for what they need and fail the test when it does not
come. Any warning of the toolkit ends the program.
"""
import os
import shlex
import subprocess
import tempfile
import time

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

from home import HomeTest, MASTER, file_of, typed
from make_seeds import entry

PROGRAM = os.environ["PANEL_PROGRAM"]
PATIENCE = 30  # seconds
MAIN_WINDOW = "Tessary Corvane Player Preferences"
CLICKABLE = ("push button", "radio button", "check box", "table column header")
CLICK = "mousedown 1 sleep 0.15 mouseup 1".split()

def is_in(node, state):
    node.clear_cache()
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def place_of(node):
    """The middle, in pixels of the screen."""
    box = node.get_extents(Atspi.CoordType.SCREEN)
    return [str(box.x + box.width // 2), str(box.y + box.height // 2)]


def children(node):
    """As they are now, not as they were."""
    for i in range(node.get_child_count()):
        if (child := node.get_child_at_index(i)) is not None:
            child.clear_cache()
            yield child


def find_all(node, fits):
    """Those below that fit, each before its own children."""
    found = []
    for child in children(node):
        found += ([child] if fits(child) else []) + find_all(child, fits)
    return found


def output_of(*command):
    return subprocess.run(command, capture_output=True, text=True,
                          check=False).stdout.strip()


def send(*command):
    subprocess.run(["xdotool", *command], check=True)


def click_at(node):
    send("mousemove", *place_of(node), *CLICK)


def press(keys):
    send("key", *keys.split())


def write(text):
    send("type", text)


class PanelTest(HomeTest):
    def start(self, options="", title=MAIN_WINDOW, **environment):
        self.errors = tempfile.TemporaryFile()
        self.addCleanup(self.errors.close)
        self.program = subprocess.Popen(
            f"exec {shlex.quote(PROGRAM)} {options}", shell=True,
            stderr=self.errors, env=dict(
                os.environ, HOME=str(self.home), G_DEBUG="fatal-warnings",
                GTK_MODULES="gail:atk-bridge",
                LSAN_OPTIONS="detect_leaks=0", **environment))
        self.addCleanup(self.end)
        self.see(title)

    def end(self):
        """Ends a program that still runs, and has nothing to complain about."""
        if self.program.returncode is None:
            self.program.terminate()
            self.program.wait()
            self.expect_errors("")

    def expect_errors(self, pattern):
        self.errors.seek(0)
        self.assertRegex(self.errors.read().decode(), rf"\A(?:{pattern})\Z")

    def eventually(self, condition, what=""):
        deadline = time.monotonic() + PATIENCE
        while True:
            try:
                if result := condition():
                    return result
            except (GLib.Error, FileNotFoundError):  # it has gone
                pass
            if time.monotonic() > deadline:
                self.fail(f"{what} does not come")
            time.sleep(0.01)

    @staticmethod
    def windows(title):
        return [window for program in children(Atspi.get_desktop(0))
                for window in children(program)
                if window.get_name() == title and is_in(window, "SHOWING")]

    def see(self, title):
        """The active window of that title: the one other verbs mean."""
        self.window = self.eventually(
            lambda: [window for window in self.windows(title)
                     if is_in(window, "ACTIVE")], title)[0]

    def get(self, name, *roles):
        """What shows in the window; a menu has a window of its own."""
        place = (Atspi.get_desktop(0) if "menu item" in roles
                 else self.window)
        return self.eventually(lambda: find_all(
            place, lambda node: node.get_name() == name and
            node.get_role_name() in roles and is_in(node, "SHOWING")), name)[0]

    def click(self, name):
        node = self.get(name, *CLICKABLE)
        self.eventually(lambda: is_in(node, "SENSITIVE") and node.do_action(0),
                        name)

    def select(self, *rows):
        """Clicks on those cells, with Ctrl on all but the first."""
        for row in rows:
            keys = ("", "") if row == rows[0] else ("keydown ctrl", "keyup ctrl")
            clicked = []

            def is_selected():
                cell = self.get(row, "table cell")
                if clicked and is_in(cell, "SELECTED"):
                    return True
                # Again where it was still on its way.
                if (place := place_of(cell)) not in clicked:
                    clicked.append(place)
                    send(*keys[0].split(), "mousemove", *place, *CLICK,
                         *keys[1].split())
                return False
            self.eventually(is_selected, row)

    def expect_selected(self, row):
        self.eventually(lambda: is_in(self.get(row, "table cell"),
                                      "SELECTED"), row)

    def cells(self):
        """The texts of the list, row by row."""
        return [name for node in find_all(
            self.window, lambda node: node.get_role_name() == "table cell")
                if (name := node.get_name())]

    def expect_cells(self, *texts):
        self.eventually(lambda: self.cells() == list(texts), str(texts))

    def expect_rows(self, *names):
        """The names of sites or locations, from top to bottom."""
        self.eventually(lambda: [
            name for name in self.cells()
            if name.endswith("example") or name[:1] == "/"] == list(names),
                        str(names))

    def expect_stored(self, value, key, site=None):
        """What comes to be on disk; of a list, the names of true elements."""
        if isinstance(value, list):
            value = [(name, True) for name in value]
        stored = entry(key, *typed(value))
        self.eventually(lambda: stored in self.read(
            file_of(site) if site else MASTER), f"{site} {key} = {value}")

    def expect_end(self, errors=""):
        """Standard error holds what matches the pattern and nothing else."""
        self.assertEqual(self.program.wait(PATIENCE), 0)
        self.expect_errors(errors)

    def close(self, errors=""):
        self.window = self.windows(MAIN_WINDOW)[0]
        self.click("Close")
        self.expect_end(errors)
