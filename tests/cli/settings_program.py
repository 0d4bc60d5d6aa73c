"""Runs corvane-player-settings on a temporary home."""
import json
import os

from home import HomeTest

PROGRAM = os.environ["PROGRAM"]
DAMAGE = "byte 2: The record type is not 2."


class ProgramTest(HomeTest):
    language = "C"

    def run_program(self, arguments):
        return self.run_in_home(f"'{PROGRAM}' {arguments}",
                                LC_ALL=self.language)

    def query(self, arguments, status=0):
        run = self.run_program("--json " + arguments)
        self.assertEqual(run.returncode, status, run.stderr)
        run.stdout.encode()  # UTF-8
        return json.loads(run.stdout)

    def names(self, arguments="show", status=0):
        return [site["site"] for site in
                self.query(arguments, status)["sites"]]

    def expect(self, arguments, status, output, error):
        """The whole output, and a part of the errors; None for anything."""
        with self.subTest(arguments[:80], error=error):
            run = self.run_program(arguments)
            self.assertEqual(run.returncode, status, run.stderr)
            if output is not None:
                self.assertEqual(run.stdout, output)
            if error:
                self.assertIn(error, run.stderr)
            else:
                self.assertEqual(run.stderr, "")
