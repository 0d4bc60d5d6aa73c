"""The pages, and what holds for all sites at once."""
import itertools
import subprocess

from gi.repository import Atspi
from home import CACHE, LICENCE, MASTER, data_of, file_of, settings
from panel import (MAIN_WINDOW, PROGRAM, PanelTest, find_all, is_in, place_of,
                   press, send)

ASK = "Ask me before allowing new sites to save information on this computer"
BLOCK = "Block all sites from storing information on this computer"
DELETE_ALL = "Delete All Site Data in Corvane Player"
A, B = "a.example", "b.example"


class AllSitesTest(PanelTest):
    def setUp(self):
        super().setUp()
        self.add_sites(A, B)
        for name in (data_of(B), CACHE, LICENCE):
            self.put(name)

    def expect_limits(self, limit):
        for site in (A, B):
            self.expect_stored(limit, "klimit", site)
        self.expect_stored(limit, "defaultklimit")

    # The dialog forgets what was chosen when it was cancelled.
    def delete_all(self, sites, licences):
        for answer in ("Cancel", "Delete Data"):
            self.see(MAIN_WINDOW)
            self.click("Delete All…")
            self.see(DELETE_ALL)
            if not sites:
                self.click("Delete All Site Data and Settings")
            if licences:
                self.click("Delete All Audio and Video License Files")
            self.click(answer)

    def test_storage_is_blocked_only_when_confirmed(self):
        self.start()
        self.click(ASK)
        self.expect_limits(0)
        self.click(BLOCK)
        self.see("Disable Local Storage")
        self.click("Cancel")
        self.see(MAIN_WINDOW)
        choice = self.get(ASK, "radio button")
        self.assertTrue(is_in(choice, "CHECKED"))
        self.eventually(lambda: is_in(choice, "FOCUSED"), "focus")
        self.expect_limits(0)
        self.assertTrue(self.has(data_of(B)))
        self.click(BLOCK)
        self.see("Disable Local Storage")
        self.click("Disable Local Storage")
        self.expect_limits(-1)
        self.close()
        self.assertFalse(self.has(data_of(B)))
        self.assertTrue(self.has(CACHE))

    def test_cameras_are_blocked_and_asked_for_again(self):
        self.start("-p privacy")
        self.click("Block all sites from using the camera and microphone")
        for site in (A, B):
            self.expect_stored(True, "always", site)
            self.expect_stored(False, "allow", site)
        self.expect_stored(True, "defaultalways")
        self.click("Ask me when a site wants to use the camera or microphone "
                   "(recommended)")
        self.expect_stored(False, "always", B)
        self.expect_stored(False, "defaultalways")

    # The list says that all are blocked, and keeps what was set for each.
    def test_peers_are_blocked_and_asked_for_again(self):
        self.put(file_of(B), settings({"p2palways": True, "p2pallow": True}))
        before = self.read(file_of(B))
        self.start("-p playback")
        title = "Peer-assisted Networking Settings by Site"
        pages = self.window
        self.click(title + "…")
        self.see(title)
        dialog = self.window
        users = [self.get("Add…", "push button"), self.get(title, "table"),
                 *find_all(pages, lambda node: node.get_name() == title + "…")]
        for choice, is_blocked, shown in (
                ("Block all sites from using", True, ["Block", "Block"]),
                ("Ask me when a site wants to use", False,
                 ["Ask me", "Allow"])):
            self.window = pages
            self.click(choice + " peer-assisted networking")
            self.window = dialog
            self.expect_stored(is_blocked, "disallowP2PUplink")
            self.expect_cells(A, shown[0], B, shown[1])
            self.assertEqual([is_in(node, "SENSITIVE") for node in users],
                             [not is_blocked] * 3)
        self.assertEqual(self.read(file_of(B)), before)
        for owner, button, name in (
                (MAIN_WINDOW, title + "…", title),
                (title, "Add…", "Add Peer-assisted Networking Setting by Site")):
            for _ in range(2):  # brings the dialog to the front again
                send("search", "--name", f"^{owner}$", "windowactivate")
                self.see(owner)
                self.click(button)
                self.see(name)

    def test_licences_are_reset(self):
        self.start("-p advanced")
        self.click("Deauthorize This Computer…")
        self.see("Deauthorize This Computer")
        self.click("Deauthorize")
        self.close()
        self.assertFalse(self.has(LICENCE))
        self.assertTrue(self.has(data_of(B)))

    def test_what_is_checked_is_deleted(self):
        for sites, licences in itertools.product((False, True), repeat=2):
            with self.subTest(sites=sites, licences=licences):
                self.setUp()
                self.start()
                before = self.disk()
                self.delete_all(sites, licences)
                self.see(MAIN_WINDOW)
                self.close()
                for name in (data_of(B), CACHE, file_of(A)):
                    self.assertEqual(self.has(name), not sites, name)
                self.expect_stored([] if sites else [A, B], "domains")
                self.expect_stored(100, "defaultklimit")
                self.assertEqual(self.has(LICENCE), not licences)
                self.assertEqual(self.disk() == before,
                                 not sites and not licences)

    def test_says_what_could_not_be_deleted_and_goes_on(self):
        directory = self.home / ".tessary/Corvane_Player"
        subprocess.run(["rm", "-r", directory], check=True)
        directory.touch()
        self.start()
        self.delete_all(True, True)
        shown = [self.eventually(lambda: find_all(
            Atspi.get_desktop(0), lambda node: node.get_name().startswith(
                "Corvane Player was unable to delete all " + kind)), kind)[0]
                 for kind in ("local storage", "license files")]
        # Neither window hides the other.
        self.eventually(lambda: abs(int(place_of(shown[0])[1]) -
                                    int(place_of(shown[1])[1])) > 99)
        for kind in ("Storage", "Protected Content"):
            self.see("Unable to Delete Files – " + kind)
            press("ctrl+w")
            self.eventually(lambda: not is_in(self.window, "SHOWING"))
        self.close(r"(RemoveFilesRecursively: stat: Not a directory\n)*")
        self.assertFalse(self.has(data_of(B)))


class ProgramTest(PanelTest):
    def test_every_way_of_closing_ends_well(self):
        for key in ("Escape", "alt+F4", "Return", "ctrl+q"):
            with self.subTest(key):
                self.start()
                if key == "Return":
                    self.get("Close", "push button").grab_focus()
                press(key)
                self.expect_end()

    def test_answers_on_the_command_line(self):
        for arguments, status, output, errors, *display in (
                ("--no-such-option", 1, "",
                 "Unknown option --no-such-option\n"),
                ("--show-page", 1, "", "Missing argument for --show-page\n"),
                ("--help", 0, "Usage:\n", ""),
                ("", 1, "", "Cannot open display: \n"),
                ("--display=:77", 1, "", "Cannot open display: :77\n"),
                ("", 1, "", "Cannot open display: :78\n", "DISPLAY=:78")):
            run = self.run_in_home(["env", "-u", "DISPLAY", *display, PROGRAM,
                                    *arguments.split()])
            self.assertEqual((run.returncode, run.stderr), (status, errors))
            self.assertTrue(run.stdout.startswith(output), run.stdout)
        self.assertEqual(list(self.home.iterdir()), [])

    # A page that shows a choice presses its button, as a click does.
    def test_shows_some_page_whatever_the_name_and_changes_nothing(self):
        self.put(MASTER, settings({"defaultklimit": 0, "defaultalways": True,
                                   "disallowP2PUplink": True}))
        for name, first in (("nonsense", 0), ("storage_by_site", 3)):
            self.start("-p " + name)
            before = self.disk()
            tabs = self.get("", "page tab list")
            self.assertTrue(Atspi.Selection.is_child_selected(tabs, first))
            for page in (1, 2, 0, 3, 1, 2):
                Atspi.Selection.select_child(tabs, page)
                self.eventually(
                    lambda: Atspi.Selection.is_child_selected(tabs, page))
            self.close()
            self.assertEqual(self.disk(), before)

    # Whatever the files hold: a usable window, and the reader's own messages.
    def test_starts_on_damaged_files(self):
        self.add_sites(A, B)
        master = self.read(MASTER)
        site = self.read(file_of(A))
        for damaged in (b"", b"\xff", master[:40], b"\3" * 100000,
                        master + b"\0"):
            self.put(MASTER, damaged)
            self.put(file_of(A), site[:30])
            self.start()
            self.click(ASK)
            self.expect_stored(0, "defaultklimit")
            self.close("(SMSettingsReader: [^\n]*\n)*")
        self.put(MASTER, b"\xff")
        # Where messages could go into the display's connection.
        self.start("2>&-")
        self.close()
