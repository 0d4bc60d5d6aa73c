"""What every window shows, whom it belongs to, and that it can be left."""
import ast
import pathlib
import re

from gi.repository import Atspi
from home import CACHE, LICENCE, data_of
from panel import PanelTest, find_all, is_in, output_of, press

SOURCES = pathlib.Path(__file__).parents[2]
ROW = re.compile(r'\{(\d+),\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\}')
TEXTS = {int(number): "".join(ast.literal_eval(part) for part in re.findall(
    r'"(?:[^"\\]|\\.)*"', text)) for number, text in ROW.findall(
        (SOURCES / "strings/languages/german.h").read_text())}
SITE_NAME = "a.example"
CLOSE, CANCEL, LEARN_MORE, DELETE = 11003, 11001, 11011, 11006
TABS = [21000, 31000, 41000, 51000]
NEW_SITE = [91001, 91000, 91000, CANCEL, 11004]
# A page, the buttons that open dialogs from it in turn, the title, and what
# that window shows from top to bottom.
WINDOWS = [
    ("storage", [], 11400,
     [21001, 21002, 21003, 21004, 21005, 21006, 21007, DELETE, 21301, 21302,
      CLOSE]),
    ("privacy", [], 11400, [31001, 31002, 31003, 31004, CLOSE]),
    ("playback", [], 11400, [41001, 41002, LEARN_MORE, 41004, 41005, 41006, CLOSE]),
    ("advanced", [], 11400,
     [51100, 51101, DELETE, 51200, 51206, 51205, 41100, 41101, LEARN_MORE,
      41103, 51400, 51401, 51402, CLOSE]),
    ("storage", [21006], 21100, [21101, CANCEL, 21100]),
    *((page, [DELETE], 71000,
       [71001, 71008, 71003, 71007, 71002, 71009, CANCEL, 11007])
      for page in ("storage", "advanced")),
    ("advanced", [41103], 41104, [(41105, 41106), CANCEL, 11008]),
    ("advanced", [51402], 81000,
     [81001, LEARN_MORE, 81000, 81003, 11013, 11012, 11009, CLOSE]),
    ("storage", [21007], 61009,
     [61009, 61000, 61004, 61003, 21200, 11102, 11005, 11009, CLOSE]),
    ("privacy", [31004], 61005,
     [61005, 61000, 61001, 11101, 11005, 11009, CLOSE]),
    ("playback", [41006], 61007,
     [61007, 61000, 61002, 11101, 11005, 11009, CLOSE]),
    ("storage", [21007, 11005], 21107, [21108, 21108, *NEW_SITE]),
    ("privacy", [31004, 11005], 31006, [31007, 31007, *NEW_SITE]),
    ("playback", [41006, 11005], 41200, [41201, 41201, *NEW_SITE]),
]
SITE = "www.tessary.example/go/"
HELP = f"http://{SITE}learn_cp_settings_"
# A page, the way to a button, and the address that it opens.
ADDRESSES = [
    ("storage", [21003], HELP + "privacy_controls_de"),
    ("storage", [21302], HELP + "private_browsing_de"),
    ("playback", [LEARN_MORE], HELP + "peer_assisted_networking_de"),
    ("advanced", [LEARN_MORE], HELP + "protected_content_de"),
    ("advanced", [51402, LEARN_MORE], HELP + "trusted_locations_de"),
    ("advanced", [51205], f"https://{SITE}corvane-player-updates-de")]


# The titles of dialogs that open others, by the buttons that open them.
TITLES = {21007: 61009, 31004: 61005, 41006: 61007, 51402: 81000}


def text(ids):
    """The text of an id, or of two as paragraphs."""
    return (TEXTS[ids] if isinstance(ids, int) else
            "\n\n".join(map(text, ids)))


# Dialogs of which one button deletes something, and Enter presses another.
ANSWERED = {21100, 71000, 41104}


# What is part of a control that has a name.
SILENT = ("menu", "menu item", "table cell", "icon", "image")


class GermanTest(PanelTest):
    def open(self, page, buttons, **environment):
        """Clicks on the buttons; the titles of all windows but the last."""
        titles = [TEXTS[11400]]
        self.start("-p " + page, titles[0], LC_ALL="de_DE.UTF-8",
                   **environment)
        for button in buttons:
            self.click(TEXTS[button])
            if button != buttons[-1]:
                titles.append(TEXTS[TITLES[button]])
                self.see(titles[-1])
        return titles

    def owner_of(self, title):
        """The title of the window that a dialog belongs to."""
        self.eventually(lambda: output_of(
            "xdotool", "getactivewindow", "getwindowname") == title, title)
        owner = output_of("xprop", "-id", output_of(
            "xdotool", "getactivewindow"), "WM_TRANSIENT_FOR").split()[-1]
        return output_of("xdotool", "getwindowname", owner)

    def shown(self, are_tabs):
        nodes = find_all(self.window, lambda node: (
            is_in(node, "SHOWING") and
            node.get_role_name() not in ("icon", "panel") and
            (node.get_role_name() == "page tab") == are_tabs))
        names = [node.get_name() for node in nodes]
        return [name for name in names if name not in ("", SITE_NAME, "/srv/media")]

    def expect_controls_that_differ(self):
        """By ear, that is, by name and description."""
        nodes = find_all(self.window, lambda node: (
            is_in(node, "FOCUSABLE") and node.get_role_name() not in SILENT))
        heard = [(node.get_name(), node.get_description()) for node in nodes]
        self.assertEqual(sorted(heard), sorted(set(heard)))
        for node in nodes:
            if node.get_role_name() == "radio button":
                self.assertTrue(node.get_parent().get_name())
            if seen := node.get_text_iface():
                self.assertIn(Atspi.Text.get_text(seen, 0, -1),
                              node.get_name())

    def test_every_window_shows_its_texts_and_can_be_left(self):
        self.add_sites(SITE_NAME, locations=["/srv/media"])
        for name in (data_of("b.example"), CACHE, LICENCE):
            self.put(name)
        for page, buttons, title, expected in WINDOWS:
            with self.subTest(title, page=page):
                openers = self.open(page, buttons)
                self.see(TEXTS[title])
                before = self.disk()
                self.expect_controls_that_differ()
                self.assertEqual(self.shown(are_tabs=False),
                                 [text(ids) for ids in expected])
                self.assertEqual(self.shown(are_tabs=True),
                                 [] if buttons else [text(i) for i in TABS])
                if buttons:
                    self.assertEqual(self.owner_of(TEXTS[title]), openers[-1])
                    for opener in reversed(openers):
                        press("Escape")
                        self.see(opener)
                if title in ANSWERED:
                    self.click(TEXTS[buttons[-1]])
                    self.see(TEXTS[title])
                    press("Return")
                    self.see(openers[-1])
                press("Escape")
                self.expect_end()
                self.assertEqual(self.disk(), before)

    # What the desktop opens is written to a file.
    def test_addresses_are_opened(self):
        data = ".local/share/applications/"
        opened = self.home / "opened"
        self.put(data + "browser.desktop", (
            "[Desktop Entry]\nType=Application\nName=Browser\n"
            f"Exec=sh -c 'echo $0 >{opened}.new; mv {opened}.new {opened}' %u"
            "\n").encode())
        self.put(data + "mimeapps.list", (
            b"[Default Applications]\nx-scheme-handler/http=browser.desktop\n"
            b"x-scheme-handler/https=browser.desktop\n"))
        for page, buttons, address in ADDRESSES:
            with self.subTest(address):
                self.open(page, buttons,
                          XDG_DATA_HOME=str(self.home / ".local/share"))
                self.eventually(opened.exists, address)
                self.assertEqual(opened.read_text(), address + "\n")
                opened.unlink()
                self.end()
