"""What corvane-player-settings answers, shows and changes."""
import contextlib
import json
import os
import shlex
import unittest

from home import (CACHE, LICENCE, MASTER, SETTINGS, SHARED_OBJECTS, HomeTest,
                  data_of, file_of, settings)
from make_seeds import BOOL, NUMBER, STRING, entry, image, text

PROGRAM = shlex.quote(os.environ["PROGRAM"])
STAND_INS = shlex.quote(os.environ["STAND_INS"])
DAMAGE = "byte 2: The record type is not 2."
READING = ("show", "inspect", "export", "doctor")


class ProgramTest(HomeTest):
    language = "C"

    def run_program(self, arguments):
        # Without PATH no plug-in of this computer is found.
        return self.run_in_home(f"{PROGRAM} {arguments}", MOZ_PLUGIN_PATH="~",
                                LC_ALL=self.language, PATH="/nonexistent")

    def query(self, arguments, status=0):
        run = self.run_program("--json " + arguments)
        self.assertEqual(run.returncode, status, run.stderr)
        self.assertTrue(run.stdout.isascii())
        return json.loads(run.stdout)

    def states(self, names="", status=0):
        """Of all sites, and of those that are shown."""
        store = self.query("show " + names, status)
        return ["{}: {storage} {storage_limit_kb:g} {camera} {network}".format(
            site.get("site", "all"), **site) + "!" * site["damaged"]
                for site in (store["global"], *store["sites"])]

    def stats(self):
        """Of all files and directories, what any change would change."""
        stats = ((path, path.lstat()) for path in self.home.rglob("*"))
        return {path: (stat.st_ino, stat.st_mode, stat.st_size,
                       stat.st_mtime_ns) for path, stat in stats}

    def expect(self, arguments, status, output, error):
        """The whole output, or None for any, and a part of the errors. Where no
        output is expected nothing changes; reading keeps even access times."""
        with self.subTest(arguments[:80], error=error):
            before = self.stats()
            for path in before:
                os.utime(path, ns=(1, path.lstat().st_mtime_ns),
                         follow_symlinks=False)
            run = self.run_program(arguments)
            self.assertEqual(run.returncode, status, run.stderr)
            if arguments.startswith(READING):
                self.assertEqual([path for path in before if path.is_file()
                                  and path.stat().st_atime_ns != 1], [])
            if output == "" or arguments.startswith((*READING, "--dry-run")):
                self.assertEqual(self.stats(), before)
            if output is not None:
                self.assertEqual(run.stdout, output)
            self.assertIn(error, run.stderr)
            self.assertEqual(run.stderr == "", error == "")
            return run


# Separated by bars.
WRONG_ARGUMENTS = """
| shw | --json | --json=x show | -x show | version --json | version x
| show --jsn | show --permission | show -p storage | show -p storage=
| show -p =block | show -p disk=block | show -p storage=none
| show -p storage=block=x | show --null | show --names a | inspect
| inspect -p storage=block x | inspect --global x | export -o
| export -o a -o b | import | import a b | set | set a.example
| set storage=block | set camera=1 a | set storage=-1 a | set storage=1x a
| set storage=inf a | set storage=1e999 a | set camera=ask camera=ask a
| set -- camera=ask a | set camera=ask a/../b | set camera=ask ''
| set camera=ask ___MASTER_DOMAIN | set --all-sites camera=allow
| set --all-sites network=allow | set --all-sites camera=ask a | remove
| remove a .. | clear | clear all | clear --older-than 3d cache
| clear --older-than d storage | clear --older-than 3 storage
| clear --older-than 3dd storage
| clear --older-than 999999999999999999d storage | trust | trust '' | untrust
| doctor --dry-run | doctor x
"""


class CommandLineTest(ProgramTest):
    def test_is_refused_when_it_is_wrong(self):
        for arguments in WRONG_ARGUMENTS.split("|")[1:]:
            self.expect(arguments.strip(), 2, "", "--help")

    def test_fails_when_its_output_is_lost(self):
        self.expect("show >/dev/full", 1, "", "No space left on device")
        self.expect("show >&- <&-", 1, "", "Bad file descriptor")
        self.expect("export -o /dev/full", 1, "", "No space left on device")

    def test_version_of_a_stand_in_for_the_plug_in_or_none(self):
        for stand_in, answer in (
                ("none", "{} is not{}"), ("good.so", "{} 10.1 r53 is{}"),
                ("failing.so", "Unable to determine the version of {}{}")):
            self.run_in_home(
                f"ln -sf {STAND_INS}/{stand_in} ~/libcorvaneplayer.so")
            self.expect("version", 0, "corvane-player-settings 1.0.0\n" +
                        answer.format("Tessary Corvane Player",
                                      " installed on this computer.\n"), "")

    # A sanitizer reserves more than any limit.
    @unittest.skipIf(os.environ["SANITIZED"] == "1", "no limit of memory")
    def test_ends_with_one_line_when_memory_runs_out(self):
        self.put(MASTER)
        os.truncate(self.home / MASTER, 60 << 20)
        run = self.run_in_home(f"ulimit -v 50000; {PROGRAM} show")
        self.assertEqual((run.returncode, run.stderr), (1, "Out of memory.\n"))


ESC, BYTE, LONG = "日\x1b", os.fsdecode(b"\xff"), 17 * "e\u0301" + 32 * "x"
SITES = dict.fromkeys(("gone", "block", ESC, "ask", "empty", BYTE, LONG), True)
TABLE = f"""Tessary Corvane Player Preferences
  Local Storage Settings          Allow (100 kB)
  Camera and Microphone Settings  Ask me
  Peer-assisted Networking        Ask me

Website   Storage Used  Storage Access    Camera and Mic Access  Network Access
  block   none          Block             Block                  Ask me
  日\\x1B  none          Allow (10.00 MB)  Allow                  Block
  ask     none          Ask me            Ask me                 Ask me
  \\xFF    none          Allow (∞)         Ask me                 Ask me
  {LONG}  none          Ask me            Ask me                 Ask me

Trusted File or Folder Location
  /a\\x0A
"""


class ShowTest(ProgramTest):
    """On a home with a site of each kind."""
    def setUp(self):
        super().setUp()
        self.store("block", klimit=-1, always=True)
        self.store(ESC, klimit=10240, always=True, allow=True, p2palways=True)
        self.store("ask", klimit=0)
        self.store(BYTE, klimit=-2)
        self.store(LONG, klimit=0)
        self.put(file_of("empty"), b"")
        self.store_master(trustedPaths={"/a\n": True})

    def store(self, site, **values):
        self.put(file_of(site), settings(values))

    def store_master(self, **values):
        self.put(MASTER, settings({"domains": SITES} | values))

    def test_shows_sites_in_order_with_all_their_settings(self):
        self.assertEqual(self.states(), [
            "all: allow 100 ask ask", "block: block -1 block ask",
            ESC + ": allow 10240 allow block", "ask: ask 0 ask ask",
            "\ufffd: allow -2 ask ask", LONG + ": ask 0 ask ask"])
        self.assertEqual(self.query("show")["trusted_locations"], ["/a\n"])
        self.expect("show", 0, TABLE, "")

    def test_measures_the_data_of_sites(self):
        self.put(data_of("ask"), bytes(1500))
        used = (self.home / data_of("ask")).parent.stat().st_size + 1500
        site, = self.query("show ask")["sites"]
        self.assertEqual(site["storage_used_bytes"], used)
        self.assertIn(f" ({used}) ", self.run_program("show").stdout)

    def test_a_global_block_overrides_a_site(self):
        self.put(file_of("ask"), image(entry("p2palways", BOOL, 1),
                                       entry("p2pallow", BOOL, 7)))
        self.assertEqual(self.states("ask")[1:], ["ask: block -1 ask allow"])
        self.store_master(disallowP2PUplink=True, defaultalways=True,
                          defaultklimit="of another type")
        self.assertEqual(self.states("ask"), ["all: block -1 block block",
                                              "ask: block -1 ask block"])

    def test_shows_the_sites_that_were_asked_for(self):
        self.store("unlisted", klimit=10)
        for arguments, status, *names in (
                ("ask block", 0, "block", "ask"),
                (BYTE, 0, "\ufffd"),
                ("ask gone", 1, "ask"),
                ("unlisted", 0, "unlisted"),
                ("-p storage=block", 0, "block"),
                ("--permission network=block", 0, ESC),
                ("-p camera=ask -p storage=allow", 0, "\ufffd", "unlisted"),
                ("-p storage=block -p storage=ask", 0),
                ("-p storage=block -- ask", 0)):
            shown = self.states(arguments, status)[1:]
            self.assertEqual([state.split(": ")[0] for state in shown], names)
        for options in ("", "--json "):
            self.expect(f"show {options}empty Ask", 1, "", "corvane-player-"
                        "settings: empty: no such site\ncorvane-player-settings"
                        ": Ask: no such site; did you mean ask?\n")

    def test_names_what_is_damaged_and_shows_the_rest(self):
        end = "attempted to read beyond end-of-stream."
        half = image(entry("klimit", NUMBER, 7)[:-1], name="n")  # still read
        for name, data, damage, shown in (
                (file_of("ask"), b"garbage", DAMAGE,
                 "allow block allow block! allow ask"),
                (file_of("ask"), half, "byte 36: ReadU8() " + end,
                 "allow block allow allow! allow ask"),
                (MASTER, b"", "byte 0: ReadU16() " + end,
                 "allow! allow! block ask allow allow")):  # listed no more
            self.put(name, data)
            self.assertEqual(" ".join(
                state.split()[1] + "!" * state.endswith("!")
                for state in self.states(status=1)), shown)
            self.expect("show", 1, None, "corvane-player-settings: "
                        f"{self.home / name}: {damage}\n")

    def test_speaks_the_language_of_the_user_but_not_in_json(self):
        self.language = "de_DE.UTF-8"
        self.assertIn("Kamera- und Mikrofoneinstellungen  ",
                      self.run_program("show").stdout)
        self.assertEqual(self.query("show")["global"]["camera"], "ask")


class InspectTest(ProgramTest):
    def test_lists_entries_with_types_and_offsets(self):
        self.put("f", image(
            entry("klimit", NUMBER, 0.5), entry("", BOOL, 9),
            entry("list", 3, [("a b", STRING, 'x"\n'), ("n", NUMBER, -1),
                              ("y", BOOL, 0)]),
            entry("text", STRING, ""), name="name"))
        self.expect("inspect ~/f", 0, rf"""{self.home}/f
  "name"
        26  number   klimit = 0.5
        44  boolean   = true
        49  array    list
            string     a b = "x"\x0A"
            number     n = -1
            boolean    y = false
        88  string   text = ""
""", "")

    def test_lists_up_to_the_damage_and_says_where_it_is(self):
        good = entry("good", BOOL, 1)  # nine bytes
        for data, listed, offset, message in (
                (b"another kind of file", 0, 2, "The record type is not 2."),
                (image(good)[:20], 0, 2, "The declared length"),
                (image(good) + b"\0\x09a", 2, 37, "ReadAndCopyPString"),
                (image(good + b"\0\1u\7\0\0\1k\1\1x" + good), 2, 46,
                 "The entry is not closed by a zero byte."),
                (image(good + text("k") + b"\3\0\0\x08\0" + good), 1, 42,
                 "The array is not closed by its marker."),
                # Values that are skipped.
                (image(good + text("k") + b"\7\0" + good), 3, 39,
                 "Unexpected data-type"),
                (image(good + text("k") + b"\3\0\1a\3\0\0\x09\0" + good), 3, 43,
                 "Nested arrays")):
            self.put("f", data)
            found, = self.query("inspect ~/f", status=1)
            self.assertEqual((len(found.get("entries", [])),
                              found["damage"]["offset"]), (listed, offset))
            run = self.expect("inspect ~/f", 1, None,
                              f"f: byte {offset}: {message}")
            self.assertIn(f"{offset}  damage   {message}", run.stdout)
        arguments = "inspect ~/f ~/. /missing /missing"  # all are tried
        self.assertEqual(["damage" in file for file in
                          self.query(arguments, status=1)],
                         [True, False, False, False])
        self.expect(arguments, 1, None, "/.: not a settings file\ncorvane-"
                    "player-settings: /missing: No such file or directory\n")

    def test_writes_json_for_any_bytes(self):
        every = bytes(range(1, 256))
        self.put("f", image(
            entry(every, STRING, every),
            entry("list", 3, [('x"\n', BOOL, 0), ("n", NUMBER, -float("inf"))]),
            entry("nan", NUMBER, float("nan")), entry("zero", NUMBER, -0.0),
            entry("max", NUMBER, 1.7976931348623157e308), name=every))
        output = self.expect("--json inspect ~/f", 0, None, "").stdout
        listed, = json.loads(output)
        first = listed["entries"][0]
        self.assertEqual([len(listed["name"]), first["key"], first["value"]],
                         [255, listed["name"], listed["name"]])
        self.assertIn(r"""
{"offset":793,"key":"list","type":"array","value":[
{"name":"x\"\n","type":"boolean","value":false},
{"name":"n","type":"number","value":"-Infinity"}]},
{"offset":823,"key":"nan","type":"number","value":"NaN"},
{"offset":838,"key":"zero","type":"number","value":-0.0},
{"offset":854,"key":"max","type":"number","value":1.7976931348623157e308}]}]
""".replace("\n", ""), output)


def document(members):
    return '{"format": "corvane-player-settings 1", %s}' % members


POLICY = document("""
    "global": [{"key": "defaultalways", "value": true},
               {"key": "x", "value": {"number": "NaN"}}],
    "trusted_locations": ["/p"], "sites": [
    {"site": "a.example", "settings": [
        {"key": "klimit", "value": -1}, {"key": "p2palways", "value": true}]},
    {"site": "e", "listed": false, "settings": [
        {"key": "klimit", "value": 5}, {"key": "k", "value": "x"},
        {"key": "allow", "value": false}]}]""")
# Each row works on what the rows above have left.
CHANGES = f"""
set --add storage=250 camera=allow a.example b.example # a.example: added;
 a.example: storage allow → 250; a.example: camera ask → allow;
 b.example: added; b.example: storage allow → 250; b.example: camera ask → allow
set storage=allow camera=allow a.example #
set --add network=block storage=unlimited -- c=d # c=d: added;
 c=d: storage allow → unlimited; c=d: network ask → block
set network=block a.example # a.example: network ask → block
set --all-sites camera=block storage=7 # all sites: camera ask → block;
 a.example: camera allow → block; b.example: camera allow → block;
 c=d: camera ask → block; all sites: storage allow → 7
set --all-sites network=block # all sites: network ask → block
clear --older-than 4d storage #
clear --older-than 48h --keep .example storage #
clear --older-than 48h --keep a.example storage #
clear --older-than 2d storage # all sites: stored data older than 2d deleted
set storage=block a.example # a.example: storage 250 → block
remove --keep-data c=d nobody c=d # c=d: removed
remove d.example # d.example: stored data deleted
trust /t/1 /t/2 /t/1 # /t/1: trusted; /t/2: trusted
untrust /t/1 /t/3 # /t/1: no longer trusted
trust r # {os.getcwd()}/r: trusted
untrust r # {os.getcwd()}/r: no longer trusted
import ~/policy # all sites: x unset → nan; /p: trusted; e: added;
 e: storage unset → 5; e: camera unset → ask; e: k unset → "x"
import --replace ~/policy # all sites: storage 7 → allow;
 all sites: network block → ask; /t/2: no longer trusted; b.example: removed;
 a.example: camera block → unset; a.example: p2pallow false → unset
clear --keep a.example/x settings # e: removed
clear settings cache licences storage # all sites: stored data deleted;
 all sites: settings removed; asset cache: deleted; licences: deleted
"""
# Wrong documents, members, members for a replacement and values.
WRAPS = {"D": "%s", "M": document("%s"), "R": document("%s"), "V": document("""
    "sites": [{"site": "a", "settings": []}, {"site": "b", "settings": [
        {"key": "k", "value": %s}]}]""")}
WRONG = r"""
D  # :1:0:
D [] # : the document: is not an object
D {} # : format: is missing
D {"format": "corvane-player-settings 2"} # : format: is not
M "sites": x # :1:50:
M "sites": [], "sites": [] # duplicate object key
M "\u001b": 1 # : \x1B: is an unknown member
M "global": {} # : global: is not an array
M "global": [{"key": "domains", "value": 1}] # global[0].key: has a member of
M "global": [{"key": "trustedPaths", "value": 1}] # key: has a member of its own
M "trusted_locations": [""] # : trusted_locations[0]: is empty
M "sites": [{"site": "..", "settings": []}] # : sites[0].site: can be no site
M "sites": [{"site": "a", "listed": 1}] # : sites[0].listed: is neither true
R "sites": [] # : global: is missing
R "global": [], "sites": [] # : trusted_locations: is missing
V null # : sites[1].settings[0].value: is no value
V {"bytes": "6"} # .value.bytes: is not a text of hex
V {"bytes": "00"} # .value.bytes: is not a text of hex
V "a\u0000b" # :3:
V 1e999 # :3:
V {"number": "1"} # .value.number: is not
V {"array": [{"name": "", "value": 1}]} # .value.array[0].name: is empty
V {"array":[{"name":"a","value":{"array":[]}}]} # [0].value: is an array within
V 1}, {"key": "k", "value": 1 # : sites[1].settings[1].key: is there twice
V 1}]}, {"site": {"bytes": "61"}}, {"": [{"": 1 # sites[2].site: is there twice
"""


class ChangesTest(ProgramTest):
    def test_are_printed_once_and_made_once(self):
        data = data_of("a.example")
        for name in (data, data_of("d.example"), CACHE, LICENCE):
            self.put(name)
        self.run_in_home(f"touch -d '3 days ago' ~/'{data}'")
        self.put("policy", POLICY.encode())
        for row in CHANGES.strip().replace("\n ", " ").splitlines():
            arguments, changes = row.split(" #")
            output = "".join(change.strip() + "\n"
                             for change in changes.split(";") if change)
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
        self.run_program("set --add camera=ask good loop")
        self.run_in_home(f"ln -sf settings.sol ~/'{file_of('loop')}';"
                         f"ln -s / ~/'{SHARED_OBJECTS}';>~/'{SETTINGS}/#e'")
        self.put("policy", POLICY.encode())
        for arguments, output, error in (
                ("set --all-sites camera=block", "all sites: camera ask → block"
                 "\ngood: camera ask → block\n", "Too many levels"),
                ("set storage=block good", "good: storage allow → block\n",
                 "good: could not be changed"),
                ("set camera=ask bad good", "good: camera block → ask\n",
                 DAMAGE),
                ("set camera=block Good good", "good: camera ask → block\n",
                 "Good: no such site; did you mean good?; --add adds it"),
                ("show", None, SHARED_OBJECTS + ": Too many levels"),
                ("export", "", DAMAGE),
                ("export nobody", "", "nobody: no such site"),
                ("import ~/policy", None, "e: could not be changed")):
            self.expect(arguments, 1, output, error)
        self.assertEqual(self.read(file_of("bad")), b"damaged")

    def test_of_a_wrong_document_are_not_made(self):
        for row in WRONG.strip().splitlines() + [
                "D " + "[" * 100000 + " # maximum parsing depth",
                f'V "{"x" * 65536}" # longer than 65535']:
            wrong, problem = row.split(" # ")
            self.put("document", (WRAPS[wrong[0]] % wrong[2:]).encode())
            options = "--replace " * (wrong[0] == "R")
            self.expect(f"import {options}~/document", 2, "", problem)
        self.expect(  # what a pipe holds is not known before
            f"version|/usr/bin/head -c 67108865 /dev/zero|{PROGRAM} import -",
            2, "", "larger than 64 MiB")
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
        for name in (data_of("data"), data_of("good"), SHARED_OBJECTS + "/z/x"):
            self.put(name)
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
