"""The lists of sites, and of trusted locations."""
import os
import re

from home import MASTER, data_of, file_of, settings
from panel import (CLICK, MAIN_WINDOW, PanelTest, click_at, is_in, output_of,
                   place_of, press, send, write)

A, B, C = "a.example", "b.example", "c.example"
BLOCK, ASK, ALLOW = "Block", "Ask me", "Allow"
# The keys that choose them in a menu or a box.
KEYS = {BLOCK: "Home", ASK: "Home Down", ALLOW: "End"}
LIMITS = {BLOCK: -1, ASK: 0, ALLOW: 100}
# A page, the start of titles, a column, the choice where a site is added, and
# the keys of the permission.
STORAGE = ("storage", "Local Storage", "Storage Access", ALLOW, None)
CAMERA = ("privacy", "Camera and Microphone", "Camera and Mic Access", ASK,
          ("always", "allow"))
PEERS = ("playback", "Peer-assisted Networking", "Network Access", ALLOW,
         ("p2palways", "p2pallow"))


def size_of_tooltip():
    """In pixels; none without a tooltip. It has no window manager's frame."""
    shown = output_of("xdotool", "search", "--onlyvisible", "--maxdepth", "1",
                      "--class", "corvane", "getwindowgeometry")
    return re.findall(r"(\d+)x(\d+)", shown)


class SiteListTest(PanelTest):
    def open(self, which, *names, **environment):
        self.page, self.kind, self.column, self.preset, self.keys = which
        self.add_sites(*names)
        self.start("-p " + self.page, **environment)
        self.title = self.kind + " Settings by Site"
        self.click(self.title + "…")
        self.see(self.title)

    def add(self, site, choice=None):
        self.click("Add…")
        self.see(f"Add {self.kind} Setting by Site")
        if choice:
            press(f"Tab {KEYS[choice]} shift+Tab")
        write(site)
        press("Return")
        self.see(self.title)

    def expect_state(self, site, choice):
        if not self.keys:
            self.expect_stored(LIMITS[choice], "klimit", site)
            return
        self.expect_stored(choice != ASK, self.keys[0], site)
        self.expect_stored(choice == ALLOW, self.keys[1], site)

    def expect_no_selection(self):
        self.assertFalse(is_in(self.get("Remove", "push button"), "SENSITIVE"))


class StorageListTest(SiteListTest):
    which = STORAGE

    def test_a_site_is_added_or_a_known_one_changed(self):
        self.open(self.which, B, A)
        # As typed: not trimmed, not in lower case.
        self.add(" New.Example")
        self.expect_stored([B, A, " New.Example"], "domains")
        self.expect_state(" New.Example", self.preset)
        self.add(A, BLOCK)
        self.expect_state(A, BLOCK)
        self.expect_stored([B, A, " New.Example"], "domains")

    def test_a_choice_reaches_every_selected_site(self):
        self.open(self.which, A, B, C)
        before = self.read(file_of(B))
        for choice in (BLOCK, ALLOW, ASK):
            self.select(C, A)
            for keys in ("Right Right Right Return", "space"):
                press(keys)
                menu = self.get(ALLOW, "menu item")
                if keys != "space":
                    press("Escape")  # back to the list
                    self.eventually(lambda: not is_in(menu, "SHOWING"))
            press(KEYS[choice] + " Return")
            self.expect_state(A, choice)
            self.expect_state(C, choice)
            # By then the rows are others, and none is selected.
            self.get(choice, "table cell")
            press("Down")
            self.expect_selected(B)
        self.assertEqual(self.read(file_of(B)), before)
        for choice in (BLOCK, ALLOW):  # then in a row that is not selected
            press("space")
            self.get(ALLOW, "menu item")
            press(KEYS[choice] + " Return")
            self.expect_state(B, choice)
        self.select(C)
        press("ctrl+Up Right Right Right Return")  # the cursor is on another
        self.get(ALLOW, "menu item")
        press(KEYS[BLOCK] + " Return")
        self.expect_state(C, BLOCK)
        self.expect_state(B, ALLOW)

    # By reversed name, or by permission; the order outlives a change.
    def test_selected_sites_of_a_sorted_list_are_removed(self):
        self.put(data_of("example"))
        self.open(self.which, "shop.a.example", "z.b.example", A)
        self.click("Website")
        self.expect_rows(A, "shop.a.example", "z.b.example")
        self.add("example", ASK)
        self.expect_rows("example", A, "shop.a.example", "z.b.example")
        self.add("z.b.example", BLOCK)
        self.click(self.column)
        self.expect_rows("z.b.example", "example", A, "shop.a.example")
        self.expect_no_selection()
        self.select("example", "z.b.example")
        self.click("Remove")
        self.expect_stored(["shop.a.example", A], "domains")
        self.expect_no_selection()
        press("Down")
        self.expect_selected(A)
        self.close()
        self.assertFalse(self.has(data_of("example")))
        self.assertFalse(self.has(file_of("z.b.example")))
        self.expect_stored(100, "klimit", A)

    def test_names_that_are_hard_to_show_keep_their_bytes(self):
        names = [os.fsdecode(b"caf\xe9"), "%s%n", "<b>&amp;</i>", "a\nb\tc",
                 "שלום", os.fsdecode(b"w" * 253 + b"\xff")]
        self.open(self.which, *names)
        self.assertTrue(self.get(self.title, "table").grab_focus())
        press("ctrl+a Right Right Right Return")
        self.get(ALLOW, "menu item")
        press(KEYS[BLOCK] + " Return")
        for name in names:
            self.expect_state(name, BLOCK)
        self.get(BLOCK, "table cell")
        press("shift+Down shift+Down shift+Down Delete")
        self.see("Confirmation Needed")
        press("Tab Return")
        self.expect_stored(names[3:], "domains")


class CameraListTest(StorageListTest):
    which = CAMERA


class PeersListTest(StorageListTest):
    which = PEERS


class OneListTest(SiteListTest):
    def test_storage_is_sorted_by_bytes_and_deleted_by_a_block(self):
        # The texts of the last two sort the other way round.
        big, empty, small = "big.example", "empty.example", "small.example"
        self.put(data_of(big), bytes(2 << 20))
        self.put(data_of(small), bytes(900 << 10))
        self.open(STORAGE, big, empty, small)
        self.click("Storage Used")
        self.expect_rows(empty, small, big)
        self.click("Storage Used")  # descending
        self.add(big, BLOCK)
        self.expect_rows(small, big, empty)
        self.assertFalse(self.has(data_of(big)))
        self.expect_state(big, BLOCK)

    def test_typing_finds_a_site_and_delete_removes_it(self):
        self.open(CAMERA, A, B, C, "z.example", "sunny.example")
        self.assertTrue(self.get(self.title, "table").grab_focus())
        write("NNY")
        self.expect_selected("sunny.example")
        press("Return Delete")
        self.expect_stored([A, B, C, "z.example"], "domains")
        press("Down")
        self.expect_selected("z.example")
        self.select("z.example", A)
        for answer in ("Escape", "Return", "Tab Return"):
            press("Delete")
            self.see("Confirmation Needed")
            press(answer)
            self.see(self.title)
        self.expect_stored([B, C], "domains")
        press("Down")
        self.expect_selected(B)
        press("ctrl+space Delete")  # now that nothing is selected
        self.add_sites(C, A)
        press("F5")  # reads them again
        self.expect_rows(C, A)
        press("ctrl+a Delete")  # with the cursor where it was
        self.see("Confirmation Needed")
        self.assertTrue(self.has(file_of(B)))

    # A click on the permission of a selected row keeps the selection; a double
    # click opens the menu and chooses nothing, whatever is under the pointer.
    def test_several_permissions_are_changed_by_mouse(self):
        self.open(STORAGE, A, B, C)
        self.select(A, C)
        click_at(self.get(ALLOW, "table cell"))
        click_at(self.get(BLOCK, "menu item"))
        for site, choice in ((A, BLOCK), (C, BLOCK), (B, ALLOW)):
            self.expect_state(site, choice)
        # What one of them has already.
        self.select(A, B)
        click_at(self.get(ALLOW, "table cell"))
        self.get(ALLOW, "menu item")
        press(KEYS[ALLOW] + " Return")
        self.expect_state(A, ALLOW)
        self.add(B, ASK)
        # Of a row that is not selected: selects it.
        self.select(A, C)
        click_at(self.get(ASK, "table cell"))
        self.expect_selected(B)
        self.assertFalse(is_in(self.get(A, "table cell"), "SELECTED"))
        before = self.disk()
        for gap in ("0.02", "0.2", "0.5"):
            self.select(C, B)
            place = place_of(self.get(ASK, "table cell"))
            send("mousemove", *place, *CLICK, "sleep", gap, *CLICK)
            self.get(BLOCK, "menu item")
            self.assertEqual(self.disk(), before)
            press("Escape")

    # As some themes show them.
    def test_a_choice_from_a_list_instead_of_a_menu(self):
        self.put("gtkrc", b'style "list" { GtkComboBox::appears-as-list = 1 }'
                 b'class "GtkComboBox" style "list"')
        self.open(STORAGE, A, B, GTK2_RC_FILES=str(self.home / "gtkrc"))
        self.select(A, B)
        for _ in range(2):  # the second one opens the list
            click_at(self.get(ALLOW, "table cell"))
        self.get("Ask me for permission", "menu item", "table cell")
        press("Home Return")
        self.expect_state(A, BLOCK)
        self.get(BLOCK, "table cell")

    def test_a_menu_opens_with_the_row_s_choice_under_the_pointer(self):
        self.open(CAMERA, A)
        before = self.read(file_of(A))
        self.select(A)
        permission = self.get(ASK, "table cell")
        click_at(permission)
        choice = self.get("Ask me for permission", "menu item")
        click_at(permission)
        self.eventually(lambda: not is_in(choice, "SHOWING"))
        self.close()
        self.assertEqual(self.read(file_of(A)), before)


class TrustedLocationsTest(PanelTest):
    def open(self, *locations, **environment):
        if not self.has(MASTER):
            self.add_sites(locations=locations)
        (self.home / "media").mkdir()
        self.folder = str(self.home / "media")
        self.start("-p advanced", **environment)
        self.click("Trusted Location Settings…")
        self.see("Trusted Location Settings")

    def expect_locations(self, *locations):
        self.expect_stored(list(locations), "trustedPaths")

    def add_folder(self, folder=None):
        self.click("Add Folder…")
        self.see("Choose the trusted directory")
        self.get(self.home.name, "toggle button")
        press("alt+o")  # nothing chosen yet
        write(folder or self.folder)
        press("Return")
        self.see("Trusted Location Settings")

    def edit(self, row, text):
        self.select(row)
        press("Return")
        write(text)
        press("Return")

    def test_are_added_edited_and_removed(self):
        self.open("/a", "/c", "/d")
        self.add_folder()
        self.add_folder()
        self.expect_locations("/a", "/c", "/d", self.folder, self.folder)
        self.edit("/a", "/b")
        self.expect_locations("/b", "/c", "/d", self.folder, self.folder)
        self.select("/b", "/d")
        press("Delete")
        self.expect_locations("/c", self.folder, self.folder)
        # Kept however the dialog is left; Escape leaves the entry first.
        for old, text, keys, new in (("/c", "/x", "Escape Escape", "/c"),
                                     ("/c", "/d", "ctrl+w", "/d"),
                                     ("/d", "/e", "alt+F4", "/e"),
                                     ("/e", "/f", "", "/f")):
            self.select(old)
            press("Return")
            write(text)
            if keys:
                press(keys)
            else:
                click_at(self.get("Close", "push button"))
            self.see(MAIN_WINDOW)
            self.expect_locations(new, self.folder, self.folder)
            self.click("Trusted Location Settings…")
            self.see("Trusted Location Settings")
        self.add_folder(str(self.home))
        self.expect_locations("/f", self.folder, self.folder, str(self.home))
        self.close()
        self.assertNotIn("recently-used.xbel",
                         os.listdir(os.environ["XDG_DATA_HOME"]))

    # The rows are then in another order than the stored list.
    def test_the_row_is_meant_in_a_sorted_list(self):
        self.open("/b", "/d", "/a", "/b", "/c")
        for _ in range(2):  # descending
            self.click("Trusted File or Folder Location")
        self.expect_rows("/d", "/c", "/b", "/b", "/a")
        self.edit("/c", "/e")
        self.expect_locations("/b", "/d", "/a", "/b", "/e")
        self.select("/e", "/d", "/b")
        self.click("Remove")
        self.expect_locations("/a", "/b")

    # Bytes that are no text are shown escaped; an edit that leaves the row as
    # it is must not write what replaces them in the entry.
    def test_keep_bytes_that_are_no_text(self):
        cafe, deep = os.fsdecode(b"/caf\xe9"), "/" + "d" * 400
        self.open(cafe, "/b", deep + "/\u202e")
        self.select(deep[:128] + "…" + "d" * 115 + r"/\xE2\x80\xAE")
        press("Return End BackSpace Return")
        self.expect_locations(cafe, "/b", deep + "/")
        self.select(r"/caf\xE9")
        press("Return Return")
        self.select("/b")
        press("Delete")
        self.expect_locations(cafe, deep + "/")

    # The longest one of all, and some that need many lines.
    def test_of_any_length_leave_room_around_their_tooltips(self):
        self.put("gtkrc", b'gtk-font-name = "Sans 40"')
        locations = ["\t" * 65535, *(text * 2800 for text in (
            "W", "wide enough\n", "\U0001f468\u200d", "e\u0301"))]
        self.open(*locations, GTK2_RC_FILES=str(self.home / "gtkrc"))
        self.assertTrue(
            self.get("Trusted Location Settings", "table").grab_focus())
        for _ in locations:
            press("Down ctrl+F1")
            (width, height), = self.eventually(size_of_tooltip, "a tooltip")
            self.assertLessEqual(int(width), 1280 / 2)
            self.assertIn(int(height), range(200, 1024 // 2))  # many lines
            press("ctrl+F1")
            self.eventually(lambda: not size_of_tooltip())

    # Another type under the key is no list: nothing to show or to change.
    def test_leave_alone_what_is_no_list(self):
        self.put(MASTER, settings({"trustedPaths": 7}))
        self.open()
        self.add_folder()
        self.close()
        self.expect_stored(7, "trustedPaths")
