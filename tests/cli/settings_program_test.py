"""What corvane-player-settings answers and shows."""
import os
import struct
import unittest

from home import MASTER, data_of, file_of, settings
from make_seeds import BOOL, NUMBER, STRING, entry, image, text
from settings_program import DAMAGE, PROGRAM, ProgramTest

STAND_INS = os.environ["STAND_INS"]
# By commands, separated by bars.
WRONG_ARGUMENTS = """
| shw | --json | --json=x show | -x show | version --json | version x
| show --jsn | show --permission | show -p storage | show -p storage=
| show -p =block | show -p disk=block | show -p storage=none
| show -p storage=block=x | show --null | show --names a
| inspect | inspect -p storage=block x | inspect --global x
| export -o | export -o a -o b | import | import a b
| set | set a.example | set storage=block | set camera=1 a
| set storage=-1 a | set storage=1x a | set storage=inf a
| set storage=1e999 a | set camera=ask camera=ask a | set -- camera=ask a
| set camera=ask a/../b | set camera=ask '' | set camera=ask ___MASTER_DOMAIN
| set --all-sites camera=allow | set --all-sites network=allow
| set --all-sites camera=ask a | remove | remove a ..
| clear | clear all | clear --older-than 3d cache
| clear --older-than d storage | clear --older-than 3 storage
| clear --older-than 3dd storage
| clear --older-than 999999999999999999d storage
| trust | trust '' | untrust | doctor --dry-run | doctor x
"""


class CommandLineTest(ProgramTest):
    def test_is_refused_when_it_is_wrong(self):
        for arguments in WRONG_ARGUMENTS.split("|")[1:]:
            self.expect(arguments.strip(), 2, "", "--help")

    def test_fails_when_its_output_is_lost(self):
        self.expect("show >/dev/full", 1, "", "No space left on device")
        self.expect("show >&- <&-", 1, "", "Bad file descriptor")
        self.expect("export -o /dev/full", 1, "", "No space left on device")

    # With a stand-in for the plug-in, or none.
    def test_version(self):
        for stand_in, answer in (
                ("none", "{} is not{}"), ("good.so", "{} 10.1 r53 is{}"),
                ("failing.so", "Unable to determine the version of {}{}")):
            library = self.home / "libcorvaneplayer.so"
            library.unlink(missing_ok=True)
            library.symlink_to(f"{STAND_INS}/{stand_in}")
            self.expect("version", 0, "corvane-player-settings 1.0.0\n" +
                        answer.format("Tessary Corvane Player",
                                      " installed on this computer.\n"), "")

    # A sanitizer reserves more than any limit.
    @unittest.skipIf(os.environ["SANITIZED"] == "1", "no limit of memory")
    def test_ends_with_one_line_when_memory_runs_out(self):
        self.put(MASTER)
        os.truncate(self.home / MASTER, 60 << 20)
        run = self.run_in_home(f"ulimit -v 50000; '{PROGRAM}' show")
        self.assertEqual((run.returncode, run.stderr), (1, "Out of memory.\n"))


ESC, BYTE = "日\x1b", os.fsdecode(b"\xff")
SITES = dict.fromkeys(("gone", "block", ESC, "ask", "empty", BYTE), True)
TABLE = """Tessary Corvane Player Preferences
  Local Storage Settings          Allow (100 kB)
  Camera and Microphone Settings  Ask me
  Peer-assisted Networking        Ask me

Website   Storage Used  Storage Access    Camera and Mic Access  Network Access
  block   none          Block             Block                  Ask me
  日\\x1B  none          Allow (10.00 MB)  Allow                  Block
  ask     none          Ask me            Ask me                 Ask me
  \\xFF    none          Allow (∞)         Ask me                 Ask me

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
            "\ufffd: allow -2 ask ask"])
        self.assertEqual(self.query("show")["trusted_locations"], ["/a\n"])
        self.expect("show", 0, TABLE, "")

    def test_measures_the_data_of_sites(self):
        self.put(data_of("ask"), bytes(1500))
        directory = (self.home / data_of("ask")).parent
        used = directory.stat().st_size + 1500
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
                ("--permission=storage=ask", 0, "ask"),
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
        half = image(name="n")[2:] + text("klimit") + b"\0" + struct.pack(
            ">d", 7)  # still read
        for name, data, damage, shown in (
                (file_of("ask"), b"garbage", DAMAGE,
                 "allow block allow block! allow"),
                (file_of("ask"), struct.pack(">H", 0x0080 | len(half)) + half,
                 "byte 36: ReadU8() " + end, "allow block allow allow! allow"),
                (MASTER, b"", "byte 0: ReadU16() " + end,
                 "allow! allow! block allow allow")):  # listed no more
            self.put(name, data)
            self.assertEqual(" ".join(
                state.split()[1] + "!" * state.endswith("!")
                for state in self.states(status=1)), shown)
            self.expect("show", 1, None, "corvane-player-settings: "
                        f"{self.home / name}: {damage}\n")
        (self.home / MASTER).unlink()
        (self.home / MASTER).mkdir()
        self.expect("show", 1, None, "not a settings file")

    def test_speaks_the_language_of_the_user_but_not_in_json(self):
        self.language = "de_DE.UTF-8"
        self.assertIn("Kamera- und Mikrofoneinstellungen  ",
                      self.run_program("show").stdout)
        self.assertEqual(self.query("show")["global"]["camera"], "ask")


class InspectTest(ProgramTest):
    def inspect(self, data, status=1):
        self.put("f", data)
        return self.query(f"inspect '{self.home}/f'", status)[0]

    def test_lists_entries_with_types_and_offsets(self):
        self.put("f", image(
            entry("klimit", NUMBER, 0.5), entry("", BOOL, 9),
            entry("list", 3, [("a b", STRING, 'x"\n'), ("n", NUMBER, -1),
                              ("y", BOOL, 0)]),
            entry("text", STRING, ""), name="name"))
        self.expect(f"inspect '{self.home}/f'", 0, rf"""{self.home}/f
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
        flag, end = text("k") + b"\1\1", "() attempted"

        def of(data):
            return image(data, name="name")
        for data, listed, offset, message in (
                (b"", 0, 0, "ReadU16" + end),
                (b"another kind of file", 0, 2, "The record type is not 2."),
                (of(good)[:20], 0, 2, "The declared length"),
                (of(good) + b"\0\x09a", 2, 33, "ReadAndCopyPString"),
                (of(good) + flag, 2, 36, "ReadU8" + end),
                (of(good + flag + b"x" + good), 1, 37,
                 "The entry is not closed by a zero byte."),
                (of(good + text("k") + b"\3\0\0\x08\0" + good), 1, 38,
                 "The array is not closed by its marker."),
                # Values that are skipped.
                (of(good + text("k") + b"\7\0" + good), 3, 35,
                 "Unexpected data-type"),
                (of(good + text("k") + b"\3\0\1a\3\0\0\x09\0" + good), 3, 39,
                 "Nested arrays")):
            found = self.inspect(data)
            self.assertEqual((len(found.get("entries", [])),
                              found["damage"]["offset"]), (listed, offset))
            run = self.expect(f"inspect '{self.home}/f'", 1, None,
                              f"f: byte {offset}: {message}")
            self.assertIn(f"{offset}  damage   {message}", run.stdout)
        # It goes on to the next file.
        arguments = f"inspect '{self.home}/f' '{self.home}/.' /missing /missing"
        self.assertEqual(["damage" in file for file in
                          self.query(arguments, status=1)],
                         [True, False, False, False])
        for error in ("missing: No such file or directory\n",
                      "/.: not a settings file\n"):
            self.expect(arguments, 1, None, error)

    def test_writes_json_for_any_bytes(self):
        every = bytes(range(1, 256))
        infinity = float("inf")
        listed = self.inspect(image(
            entry(every, STRING, every),
            entry("list", 3, [('x"\n', BOOL, 0), ("n", NUMBER, -infinity)]),
            entry("nan", NUMBER, float("nan")),
            entry("max", NUMBER, 1.7976931348623157e308),
            entry("zero", NUMBER, -0.0), name=every), status=0)
        first, *others = listed["entries"]
        self.assertEqual(len(listed["name"]), 255)
        self.assertEqual(listed["name"], first["key"])
        self.assertEqual(listed["name"], first["value"])
        self.assertEqual(
            [(entry["offset"], entry["key"], entry["type"],
              repr(entry["value"])) for entry in others],
            [(793, "list", "array", repr([
                {"name": 'x"\n', "type": "boolean", "value": False},
                {"name": "n", "type": "number", "value": "-Infinity"}])),
             (823, "nan", "number", "'NaN'"),
             (838, "max", "number", "1.7976931348623157e+308"),
             (853, "zero", "number", "-0.0")])
