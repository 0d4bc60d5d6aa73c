"""Runs corvane-player-settings on a temporary home."""
import json
import os

from home import HomeTest

PROGRAM = os.environ["PROGRAM"]
DAMAGE = "byte 2: The record type is not 2."
READING = ("show", "inspect", "export", "doctor")


class ProgramTest(HomeTest):
    language = "C"

    def run_program(self, arguments):
        # Without PATH no plug-in of this computer is found.
        return self.run_in_home(f"'{PROGRAM}' {arguments}", MOZ_PLUGIN_PATH="~",
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
        """The whole output, or None for any, and a part of the errors.

        Where no output is expected nothing changes; reading leaves even the
        access times."""
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
            if error:
                self.assertIn(error, run.stderr)
            else:
                self.assertEqual(run.stderr, "")
            return run
