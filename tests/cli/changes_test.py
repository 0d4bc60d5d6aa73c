"""What corvane-player-settings changes."""
import contextlib
import json
import os
import pathlib

from home import (CACHE, LICENCE, MASTER, SETTINGS, SHARED_OBJECTS, data_of,
                  file_of, settings)
from make_seeds import BOOL, NUMBER, STRING, entry, image
from settings_program import DAMAGE, ProgramTest

FORMAT = "corvane-player-settings 1"
POLICY = {
    "global": [{"key": "defaultalways", "value": True},
               {"key": "x", "value": {"number": "NaN"}}],
    "trusted_locations": ["/p"],
    "sites": [
        {"site": "a.example", "settings": [
            {"key": "klimit", "value": -1},
            {"key": "p2palways", "value": True}]},
        {"site": "e", "listed": False, "settings": [
            {"key": "klimit", "value": 5}, {"key": "allow", "value": False},
            {"key": "k", "value": "x"}]}]}
# Each row works on what the rows above have left.
CHANGES = [
    ("set --add storage=250 camera=allow a.example b.example",
     "a.example: added", "a.example: storage allow → 250",
     "a.example: camera ask → allow", "b.example: added",
     "b.example: storage allow → 250", "b.example: camera ask → allow"),
    ("set storage=allow camera=allow a.example",),
    ("set --add network=block -- c=d a.example", "c=d: added",
     "c=d: network ask → block", "a.example: network ask → block"),
    ("set --all-sites camera=block storage=7", "all sites: camera ask → block",
     "a.example: camera allow → block", "b.example: camera allow → block",
     "c=d: camera ask → block", "all sites: storage allow → 7"),
    ("set --all-sites network=block", "all sites: network ask → block"),
    ("clear --older-than 4d storage",),
    ("clear --older-than 48h --keep .example storage",),
    ("clear --older-than 2d storage",
     "all sites: stored data older than 2d deleted"),
    ("set storage=block a.example d.example",
     "a.example: storage 250 → block"),
    ("remove --keep-data c=d nobody", "c=d: removed"),
    ("remove d.example", "d.example: stored data deleted"),
    ("trust /t/1 /t/2 /t/1", "/t/1: trusted", "/t/2: trusted"),
    ("untrust /t/1 /t/3", "/t/1: no longer trusted"),
    ("import ~/policy", "all sites: x unset → nan", "/p: trusted", "e: added",
     "e: storage unset → 5", "e: camera unset → ask", 'e: k unset → "x"'),
    ("import --replace ~/policy", "all sites: storage 7 → allow",
     "all sites: network block → ask", "/t/2: no longer trusted",
     "b.example: removed", "a.example: camera block → unset",
     "a.example: p2pallow false → unset"),
    ("clear --keep a.example settings", "e: removed"),
    ("clear settings cache licences storage", "all sites: stored data deleted",
     "all sites: settings removed", "asset cache: deleted",
     "licences: deleted"),
]


def document(members):
    return '{"format": "%s", %s}' % (FORMAT, members)


def with_value(value):
    return document('"sites": [{"site": "a", "settings": []},\n{"site": "b", '
                    '"settings": [{"key": "k", "value": %s}]}]' % value)


WRONG_DOCUMENTS = [
    ("", ":1:0: "),
    (document('\n"sites": x'), ":2:10: "),
    (document('"sites": [], "sites": []'), "duplicate object key"),
    ("[" * 100000, "maximum parsing depth"),
    ("[]", ": the document: is not an object"),
    ("{}", ": format: is missing"),
    ('{"format": "corvane-player-settings 2"}', ": format: is not"),
    (document(r'"\u001b": 1'), ": \\x1B: is an unknown member"),
    (document('"global": {}'), ": global: is not an array"),
    (document('"global": [{"key": "domains", "value": 1}]'),
     ": global[0].key: has a member of its own"),
    (document('"trusted_locations": [""]'),
     ": trusted_locations[0]: is empty"),
    (document('"sites": [{"site": "..", "settings": []}]'),
     ": sites[0].site: can be no site"),
    (document('"sites": [{"site": "a", "settings": []}, '
              '{"site": {"bytes": "61"}, "settings": []}]'),
     ": sites[1].site: is there twice"),
    (document('"sites": [{"site": "a", "listed": 1, "settings": []}]'),
     ": sites[0].listed: is neither true nor false"),
    (with_value("null"), ": sites[1].settings[0].value: is no value"),
    (with_value('{"bytes": "6"}'), ".value.bytes: is not a text of hex"),
    (with_value('{"bytes": "00"}'), ".value.bytes: is not a text of hex"),
    (with_value(r'"a\u0000b"'), ":2:"),
    (with_value('"' + "x" * 65536 + '"'), "longer than 65535"),
    (with_value('{"number": "1"}'), ".value.number: is not"),
    (with_value("1e999"), ":2:"),
    (with_value('{"array": [{"name": "", "value": 1}]}'),
     ".value.array[0].name: is empty"),
    (with_value('{"array": [{"name": "a", "value": {"array": []}}]}'),
     ".value.array[0].value: is an array within an array"),
    (with_value('1}, {"key": "k", "value": 1'),
     ": sites[1].settings[1].key: is there twice"),
]


class ChangesTest(ProgramTest):
    def test_are_printed_once_and_made_once(self):
        for name in (data_of("a.example"), data_of("d.example"), CACHE,
                     LICENCE):
            self.put(name)
        long_ago = (self.home / data_of("a.example")).stat().st_mtime - 259200
        os.utime(self.home / data_of("a.example"), (long_ago, long_ago))
        self.put("policy", json.dumps({"format": FORMAT} | POLICY).encode())
        for arguments, *lines in CHANGES:
            output = "".join(line + "\n" for line in lines)
            before = self.disk()
            dry = self.run_program("--dry-run " + arguments)
            self.assertEqual(dry.stdout, output)
            self.assertEqual(self.disk(), before)
            self.assertEqual(self.run_program(arguments).stdout, output)
            after = self.contents()
            self.assertEqual(self.run_program(arguments).stdout, "")
            self.assertEqual(self.contents(), after)

    def contents(self):
        return {path: path.is_file() and path.read_bytes()
                for path in self.home.rglob("*")}

    def test_are_refused_as_a_whole(self):
        self.put(MASTER, b"damaged")
        before = self.disk()
        refused = ("set --add camera=ask a", "remove a", "clear settings",
                   "trust /x", "untrust /x")
        for arguments in refused:
            self.expect(arguments, 1, None, "doctor --relist")
            self.assertEqual(self.disk(), before)
        with contextlib.suppress(PermissionError):  # only root gives it away
            os.chown(self.home, 1234, 1234)
            for arguments in refused:
                self.assertIn("run it as that user",
                              self.run_program(arguments).stderr)

    def test_leave_out_what_is_damaged_or_unknown(self):
        self.put(file_of("bad"), b"damaged")
        self.run_program("set --add camera=ask good")
        for arguments, output, error in (
                ("set camera=block bad good", "good: camera ask → block\n",
                 DAMAGE),
                ("set camera=ask Good good", "good: camera block → ask\n",
                 "Good: no such site; did you mean good?; --add adds it"),
                ("export", "", DAMAGE),
                ("export nobody", "", "nobody: no such site")):
            self.expect(arguments, 1, output, error)
        self.assertEqual(self.read(file_of("bad")), b"damaged")

    def test_of_a_wrong_document_are_not_made(self):
        for wrong, problem in WRONG_DOCUMENTS:
            self.put("document", wrong.encode())
            self.expect("import ~/document", 2, "", problem)
        self.put("document", document('"sites": []').encode())
        self.expect("import --replace ~/document", 2, "", "global: is missing")
        self.put("document", bytes((64 << 20) + 1))
        self.expect("import ~/document", 2, "", "larger than 64 MiB")
        self.expect("import /nonexistent", 2, "", "No such file")
        self.expect("import /", 2, "", "directory")
        self.assertEqual([path.name for path in self.home.iterdir()],
                         ["document"])

    def test_carry_all_settings_to_another_home(self):
        self.put(file_of(os.fsdecode(b"\xff")), image(
            entry("a", 3, [(b"\xfe", STRING, "x\x7f\u202e"),
                           ("b", NUMBER, -0.0)]),
            entry("", BOOL, 1), entry("least", NUMBER, 5e-324),
            entry("third", NUMBER, 1 / 3),
            entry("endless", NUMBER, -float("inf"))))
        self.run_program("set --add camera=allow listed a/b a")
        self.run_program("trust /x")
        exported = self.run_program("export").stdout
        exported.encode()  # UTF-8
        self.assertNotIn("\x7f", exported)
        (self.home / "other").mkdir()
        self.home /= "other"
        self.put("document", exported.encode())
        self.assertEqual(self.run_program("import ~/document").returncode, 0)
        self.assertEqual(self.run_program("export").stdout, exported)
        self.assertEqual(self.names(), ["a", "a/b", "listed", "\ufffd"])
        # The sites below and above it stay.
        one = json.loads(self.run_program("export a/b").stdout)
        self.put("b", json.dumps(
            one | {"global": [], "trusted_locations": []}).encode())
        run = self.run_program("import --replace --delete-data ~/b")
        self.assertEqual(run.returncode, 0)
        self.assertEqual(self.names(), ["a/b"])

    def test_are_proposed_by_the_doctor(self):
        self.expect("doctor", 0, None, "")
        self.run_program("set --add camera=allow good Up 'b c' bad gone")
        self.put(file_of("bad"), b"damaged")
        (self.home / file_of("gone")).unlink()
        self.put(file_of("new"), settings({"klimit": 5}))
        self.put(data_of("data"))
        self.put(SHARED_OBJECTS + "/z/x")
        (self.home / SETTINGS / "#link").symlink_to("/tmp")
        self.assertEqual(
            [finding["kind"] + " " +
             (finding.get("site") or pathlib.Path(finding["path"]).name)
             for finding in self.query("doctor", status=1)["findings"]],
            ["impossible-name Up", "impossible-name b c", "missing-file gone",
             "damaged-file settings.sol", "unlisted-settings new",
             "further-directory z", "unlisted-data data", "link #link"])
        self.put(MASTER, b"")
        changes = ["all sites: defaults again", "Up: added", "b c: added",
                   "good: added", "new: added"]
        dry = self.query("doctor --relist --dry-run", status=1)
        self.assertEqual(dry["changes"], changes)
        self.assertIn("\n".join(changes),
                      self.run_program("doctor --relist").stdout)
        self.assertEqual(
            [(site["site"], site["storage_limit_kb"])
             for site in self.query("show", 1)["sites"] if site["listed"]],
            [("Up", 100), ("b c", 100), ("good", 100), ("new", 5)])
