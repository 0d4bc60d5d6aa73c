"""What corvane-player-settings changes."""
import contextlib
import json
import os

from home import (CACHE, LICENCE, MASTER, SETTINGS, SHARED_OBJECTS, data_of,
                  file_of, settings)
from make_seeds import BOOL, NUMBER, STRING, entry, image
from settings_program import DAMAGE, PROGRAM, ProgramTest


def document(members):
    return '{"format": "corvane-player-settings 1", %s}' % members


POLICY = document("""
    "global": [{"key": "defaultalways", "value": true},
               {"key": "x", "value": {"number": "NaN"}}],
    "trusted_locations": ["/p"],
    "sites": [{"site": "a.example", "settings": [
                  {"key": "klimit", "value": -1},
                  {"key": "p2palways", "value": true}]},
              {"site": "e", "listed": false, "settings": [
                  {"key": "klimit", "value": 5}, {"key": "k", "value": "x"},
                  {"key": "allow", "value": false}]}]""")
# Each row works on what the rows above have left.
CHANGES = [
    ("set --add storage=250 camera=allow a.example b.example",
     "a.example: added; a.example: storage allow → 250; "
     "a.example: camera ask → allow; b.example: added; "
     "b.example: storage allow → 250; b.example: camera ask → allow"),
    ("set storage=allow camera=allow a.example", ""),
    ("set --add network=block storage=unlimited -- c=d", "c=d: added; "
     "c=d: storage allow → unlimited; c=d: network ask → block"),
    ("set network=block a.example", "a.example: network ask → block"),
    ("set --all-sites camera=block storage=7", "all sites: camera ask → block; "
     "a.example: camera allow → block; b.example: camera allow → block; "
     "c=d: camera ask → block; all sites: storage allow → 7"),
    ("set --all-sites network=block", "all sites: network ask → block"),
    ("clear --older-than 4d storage", ""),
    ("clear --older-than 48h --keep .example storage", ""),
    ("clear --older-than 48h --keep a.example storage", ""),
    ("clear --older-than 2d storage",
     "all sites: stored data older than 2d deleted"),
    ("set storage=block a.example", "a.example: storage 250 → block"),
    ("remove --keep-data c=d nobody c=d", "c=d: removed"),
    ("remove d.example", "d.example: stored data deleted"),
    ("trust /t/1 /t/2 /t/1", "/t/1: trusted; /t/2: trusted"),
    ("untrust /t/1 /t/3", "/t/1: no longer trusted"),
    ("trust r", os.getcwd() + "/r: trusted"),
    ("untrust r", os.getcwd() + "/r: no longer trusted"),
    ("import ~/policy", "all sites: x unset → nan; /p: trusted; e: added; "
     'e: storage unset → 5; e: camera unset → ask; e: k unset → "x"'),
    ("import --replace ~/policy", "all sites: storage 7 → allow; "
     "all sites: network block → ask; /t/2: no longer trusted; b.example: "
     "removed; a.example: camera block → unset; a.example: p2pallow false → "
     "unset"),
    ("clear --keep a.example/x settings", "e: removed"),
    ("clear settings cache licences storage", "all sites: stored data deleted; "
     "all sites: settings removed; asset cache: deleted; licences: deleted"),
]


WRONG_DOCUMENTS = [
    ("", ":1:0: "), ("[" * 100000, "maximum parsing depth"),
    ("[]", ": the document: is not an object"),
    ("{}", ": format: is missing"),
    ('{"format": "corvane-player-settings 2"}', ": format: is not"),
]
WRONG_DOCUMENTS += [(document(members), problem) for members, problem in (
    ('\n"sites": x', ":2:10: "),
    ('"sites": [], "sites": []', "duplicate object key"),
    (r'"\u001b": 1', ": \\x1B: is an unknown member"),
    ('"global": {}', ": global: is not an array"),
    ('"global": [{"key": "domains", "value": 1}]',
     ": global[0].key: has a member of its own"),
    ('"global": [{"key": "trustedPaths", "value": 1}]',
     ": global[0].key: has a member of its own"),
    ('"trusted_locations": [""]', ": trusted_locations[0]: is empty"),
    ('"sites": [{"site": "..", "settings": []}]',
     ": sites[0].site: can be no site"),
    ('"sites": [{"site": "a", "settings": []}, '
     '{"site": {"bytes": "61"}, "settings": []}]',
     ": sites[1].site: is there twice"),
    ('"sites": [{"site": "a", "listed": 1, "settings": []}]',
     ": sites[0].listed: is neither true nor false"),
)]
WRONG_DOCUMENTS += [(document("""
    "sites": [{"site": "a", "settings": []}, {"site": "b", "settings": [
        {"key": "k", "value": VALUE}]}]""".replace("VALUE", value)), problem)
    for value, problem in (
    ("null", ": sites[1].settings[0].value: is no value"),
    ('{"bytes": "6"}', ".value.bytes: is not a text of hex"),
    ('{"bytes": "00"}', ".value.bytes: is not a text of hex"),
    (r'"a\u0000b"', ":3:"), ("1e999", ":3:"),
    ('"' + "x" * 65536 + '"', "longer than 65535"),
    ('{"number": "1"}', ".value.number: is not"),
    ('{"array": [{"name": "", "value": 1}]}',
     ".value.array[0].name: is empty"),
    ('{"array": [{"name": "a", "value": {"array": []}}]}',
     ".value.array[0].value: is an array within an array"),
    ('1}, {"key": "k", "value": 1',
     ": sites[1].settings[1].key: is there twice"),
)]


class ChangesTest(ProgramTest):
    def test_are_printed_once_and_made_once(self):
        data = data_of("a.example")
        for name in (data, data_of("d.example"), CACHE, LICENCE):
            self.put(name)
        long_ago = (self.home / data).stat().st_mtime - 259200
        os.utime(self.home / data, (long_ago, long_ago))
        self.put("policy", POLICY.encode())
        for arguments, changes in CHANGES:
            output = changes and changes.replace("; ", "\n") + "\n"
            self.expect("--dry-run " + arguments, 0, output, "")
            self.expect(arguments, 0, output, "")
            self.expect(arguments, 0, "", "")

    def test_are_refused_as_a_whole(self):
        self.put(MASTER, b"damaged")
        refused = ("set --add camera=ask a", "remove a", "clear settings",
                   "trust /x", "untrust /x")
        for arguments in refused:
            self.expect(arguments, 1, "", "doctor --relist")
        with contextlib.suppress(PermissionError):  # only root gives it away
            os.chown(self.home, 1234, 1234)
            for arguments in (*refused, "doctor --relist"):
                self.expect(arguments, 1, "", "run it as that user")
            self.assertIn("settings.sol: foreign-owner",
                          self.run_program("doctor").stdout)

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
        for members, missing in (('"sites": []', "global"), (
                '"global": [], "sites": []', "trusted_locations")):
            self.put("document", document(members).encode())
            self.expect("import --replace ~/document", 2, "",
                        missing + ": is missing")
        run = self.run_in_home(
            f"head -c 67108865 /dev/zero | '{PROGRAM}' import -")
        self.assertEqual(run.returncode, 2)
        self.assertIn("larger than 64 MiB", run.stderr)
        self.expect("import /nonexistent", 2, "", "No such file")
        self.expect("import /", 2, "", "directory")

    def test_carry_all_settings_to_another_home(self):
        self.put(file_of(os.fsdecode(b"\xff")), image(
            entry("a", 3, [(b"\xfe", STRING, "x\x7f\u202e"),
                           ("b", NUMBER, -0.0)]),
            entry("", BOOL, 1), entry("least", NUMBER, 5e-324)))
        self.run_program("set --add camera=allow listed a/b a")
        self.run_program("trust /x")
        self.run_program("export -o ~/document")
        exported = self.read("document").decode()
        self.assertRegex(exported, r"\A[\n -~]*\Z")
        self.assertIn('"number": "-0"', exported)
        self.home /= "other"
        self.put("x")
        self.expect("import ~/../document", 0, None, "")
        self.assertEqual(self.run_program("export").stdout, exported)
        self.expect("show --names --null", 0, "a\0a/b\0listed\0", "")
        # The sites below and above it stay.
        one = json.loads(self.run_program("export a/b").stdout)
        self.put("b", json.dumps(
            one | {"global": [], "trusted_locations": []}).encode())
        self.expect("import --replace --delete-data ~/b", 0, None, "")
        self.expect("show --names", 0, "a/b\n", "")

    def test_of_a_site_that_is_listed_twice(self):
        for arguments, output, names in (
                ("export -o ~/a", "", "a\na\n"),
                ("import --replace --delete-data ~/a", "a: listed once\n",
                 "a\n"),
                ("set storage=block a", "a: storage 5 → block\n"
                 "a: stored data deleted\n", "a\na\n"),
                ("remove a", "a: removed\na: stored data deleted\n", "")):
            self.put(MASTER, settings({"domains": [("a", True)] * 2}))
            self.put(file_of("a"), settings({"klimit": 5}))
            self.put(data_of("a"))
            self.expect("doctor", 1, "a: duplicate-name: is listed twice\n", "")
            self.assertEqual(self.run_program(arguments).stdout, output)
            self.expect("show --names", 0, names, "")
        self.expect("doctor", 0, "", "")
        self.put(data_of("b"))
        self.put("b", document(
            '"sites": [{"site": "b", "settings": []}]').encode())
        self.expect("import --delete-data ~/b", 0, "b: added\n", "")

    def test_are_proposed_by_the_doctor(self):
        for self.home in (self.home / "missing", self.home):
            self.expect("doctor", 0, "", "")
            self.assertEqual(self.states(), ["all: allow 100 ask ask"])
            self.expect("show", 0, None, "")
        self.run_program("set --add camera=allow good Up 'b c' bad gone")
        self.put(file_of("bad"), b"damaged")
        (self.home / file_of("gone")).unlink()
        self.put(file_of("n/ew"), settings({"klimit": 5}))
        self.put(data_of("data"))
        self.put(data_of("good"))
        self.put(SHARED_OBJECTS + "/z/x")
        (self.home / SETTINGS / "#link").symlink_to("#good")
        self.assertEqual(
            [finding["kind"] + " " +
             (finding.get("site") or os.path.basename(finding["path"]))
             for finding in self.query("doctor", status=1)["findings"]],
            ["impossible-name Up", "impossible-name b c", "missing-file gone",
             "damaged-file settings.sol", "unlisted-settings n/ew",
             "further-directory z", "unlisted-data data", "link #link"])
        self.expect("set camera=allow gone", 0,
                    "gone: added\ngone: camera ask → allow\n", "")
        self.put(MASTER, b"")
        changes = ["all sites: defaults again", "Up: added", "b c: added",
                   "gone: added", "good: added", "n/ew: added"]
        dry = self.query("doctor --relist --dry-run", status=1)
        self.assertEqual(dry["changes"], changes)
        self.assertIn("\n".join(changes),
                      self.run_program("doctor --relist").stdout)
        self.assertEqual(
            [(site["site"], site["storage_limit_kb"])
             for site in self.query("show", 1)["sites"] if site["listed"]],
            [("Up", 100), ("b c", 100), ("gone", 100), ("good", 100),
             ("n/ew", 5)])
