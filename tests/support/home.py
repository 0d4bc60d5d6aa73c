"""A home directory of a test's own, with what the panel keeps in it."""
import os
import pathlib
import subprocess
import tempfile
import unittest

from make_seeds import ARRAY, BOOL, NUMBER, STRING, entry, image

BASE = ".orbelline/Corvane_Player"
SETTINGS = BASE + "/tessary.example/support/corvaneplayer/sys"
SHARED_OBJECTS = BASE + "/#SharedObjects"
MASTER = SETTINGS + "/settings.sol"
CACHE = ".tessary/Corvane_Player/AssetCache/a/b"
LICENCE = ".tessary/Corvane_Player/APSPrivateData2/x/y"


def file_of(site):
    return f"{SETTINGS}/#{site}/settings.sol"


def data_of(site):
    return f"{SHARED_OBJECTS}/QK5SFBDP/{site}/data"


def typed(value):
    """A value with its type; an array as a dictionary or as pairs."""
    if isinstance(value, bool):
        return BOOL, value
    if isinstance(value, (int, float)):
        return NUMBER, value
    if isinstance(value, (str, bytes)):
        return STRING, value
    pairs = value.items() if isinstance(value, dict) else value
    return ARRAY, [(os.fsencode(name), *typed(element))
                   for name, element in pairs]


def settings(values, name="n"):
    """The bytes of a file; values by their keys."""
    return image(*(entry(key, *typed(value)) for key, value in values.items()),
                 name=name)


class HomeTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        directory = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.addCleanup(directory.cleanup)
        self.home = pathlib.Path(directory.name)

    def put(self, name, data=b"x"):
        path = self.home / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)

    def has(self, name):
        return (self.home / name).exists()

    def read(self, name):
        return (self.home / name).read_bytes()

    def add_sites(self, *names, locations=()):
        """Known sites with default settings, and trusted locations."""
        self.put(MASTER, settings({
            "domains": dict.fromkeys(names, True), "defaultklimit": 100,
            "trustedPaths": [(path, True) for path in locations]}))
        for name in names:
            self.put(file_of(name), settings(
                {"klimit": 100, "always": False, "allow": False,
                 "p2palways": False, "p2pallow": False}))

    def disk(self):
        """Every file: its bytes and when they were written."""
        return {path: (path.read_bytes(), path.stat().st_mtime_ns)
                for path in self.home.rglob("*") if path.is_file()}

    def run_in_home(self, command, **environment):
        return subprocess.run(
            command, shell=isinstance(command, str), capture_output=True,
            text=True, check=False, stdin=subprocess.DEVNULL,
            env=os.environ | {"HOME": str(self.home)} | environment)
