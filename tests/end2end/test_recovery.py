#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The start with Shift held, by real keys on a real screen."""
import os
import pathlib
import signal
import unittest

import rig

STARTED_SECONDS = 30


class RecoveryTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(rig.Session({"Amber Gate": rig.words_for("Amber Gate")}))
        self.screen = self.session.screen
        songs = rig.Songs(self.session.music)
        self.paths = [songs.make("Amber Gate.mp3", {"artist": rig.ARTIST, "title": "Amber Gate"})]

    def start_with_shift(self):
        self.screen.xdotool("keydown", "shift")
        program = self.session.start(self.paths, settings={"openGlMethod": "2", "lyricsFontSize": "17"})
        self.window("OpenGL settings")
        self.screen.xdotool("keyup", "shift")
        return program

    def window(self, title):
        """Waits for the window with this title and gives it the keyboard."""
        self.assertIsNotNone(self.screen.focus(title, STARTED_SECONDS), f'no window "{title}"' + self.session.messages())

    def test_clearing_starts_a_new_program_with_default_settings(self):
        first = self.start_with_shift()
        self.screen.xdotool("key", "space")
        self.window("Clear settings")
        self.screen.xdotool("key", "alt+y")
        self.assertTrue(rig.wait_until(lambda: not self.screen.windows("Clear settings"), STARTED_SECONDS), "Yes was not taken")
        self.window("OpenGL settings")
        self.screen.xdotool("key", "Return")
        self.assertEqual(first.wait(STARTED_SECONDS), 2, self.session.messages())
        path = str(self.session.stage.program)
        rig.wait_until(lambda: self.started_by_itself(), STARTED_SECONDS)
        (second, arguments), = self.started_by_itself().items()
        self.addCleanup(end_if_running, second)
        self.assertEqual(arguments, [path, path])
        self.window("Versewell")
        os.kill(second, signal.SIGTERM)
        self.assertTrue(rig.wait_until(lambda: not self.started_by_itself(), STARTED_SECONDS), "it does not end")
        stored = self.session.stage.settings_path.read_text(encoding="ascii")
        self.assertIn("openGlMethod=2", stored)
        self.assertIn("lyricsFontSize=12", stored)
        self.assertNotIn("endpoints", stored)
        self.assertEqual(self.session.sites.requests(), [], "the list was worked on before the question was answered")

    def test_ok_alone_goes_on_with_the_list(self):
        program = self.start_with_shift()
        self.assertEqual(self.session.sites.requests(), [], "the list was worked on before the question was answered")
        self.screen.xdotool("key", "Return")
        self.assertEqual(self.session.wait_for_lyrics(program, self.paths), [], self.session.messages())
        self.assertEqual(rig.end(program), 0, self.session.messages())

    def started_by_itself(self):
        """Process id -> arguments of the programs on this session's home that the session did not start."""
        ours = {process.pid for process in self.session.stage.running}
        home = f"HOME={self.session.stage.home}".encode()
        found = {}
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                arguments = (folder / "cmdline").read_bytes().decode().split("\0")[:-1]
                if home in (folder / "environ").read_bytes().split(b"\0") and int(folder.name) not in ours and arguments:
                    found[int(folder.name)] = arguments
            except OSError:
                pass  # it ended meanwhile
        return found


def end_if_running(process_id):
    try:
        os.kill(process_id, signal.SIGKILL)
    except ProcessLookupError:
        pass


if __name__ == "__main__":
    unittest.main()
