#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What a screen reader finds: a walk over AT-SPI from the program's window, in a session bus of its own."""
import os
import pathlib
import re
import subprocess
import sys
import unittest

import rig

BUS = ["gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus", "--method"]
LAUNCHER = next((path for path in ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")
                 if pathlib.Path(path).exists()), "at-spi-bus-launcher")
# Qt 5.15 registers with the registry only when an answer from the bus happens to arrive in time.
STARTS = 12
IN_SESSION = "VERSEWELL_PRIVATE_BUS"


def prepare_bus():
    """Starts the accessibility bus and its registry, and says that there is a screen reader."""
    launcher = subprocess.Popen([LAUNCHER, "--launch-immediately"], stderr=subprocess.DEVNULL)
    rig.wait_until(lambda: subprocess.run([*BUS, "org.a11y.Bus.GetAddress"], capture_output=True).returncode == 0, 10)
    subprocess.run([*BUS, "org.freedesktop.DBus.Properties.Set", "org.a11y.Status", "IsEnabled", "<true>"],
                   check=True, capture_output=True)
    return launcher


def end_bus(launcher):
    launcher.terminate()
    launcher.wait()


def registered():
    """The programs that the registry knows."""
    address = subprocess.run([*BUS, "org.a11y.Bus.GetAddress"], capture_output=True, text=True, check=True).stdout
    address = re.search("'(.*)'", address).group(1)
    answer = subprocess.run(["gdbus", "call", "--address", address, "--dest", "org.a11y.atspi.Registry", "--object-path",
                             "/org/a11y/atspi/accessible/root", "--method", "org.a11y.atspi.Accessible.GetChildren"],
                            capture_output=True, text=True).stdout
    return answer.count("objectpath")


def nodes(node, path=()):
    """All nodes below and with this one, each with the roles on the way to it."""
    path = (*path, node.getRoleName())
    yield node, path
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is not None:
            yield from nodes(child, path)


class AccessibilityTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.addClassCleanup(end_bus, prepare_bus())
        cls.session = cls.enterClassContext(rig.Session({}))
        songs = rig.Songs(cls.session.music)
        paths = [songs.make("one.mp3", {"artist": rig.ARTIST, "title": "Amber Gate"}, lyrics="some words"),
                 songs.make("two.mp3")]
        for _ in range(STARTS):
            registered()
            program = cls.session.start(paths)
            if rig.wait_until(lambda: registered() or program.poll() is not None, 2):
                break
            rig.end(program)
        import pyatspi  # only in the session bus of the test
        cls.atspi = pyatspi
        cls.window = cls.find_window(pyatspi)
        rig.wait_until(lambda: any("no names" in node.name for node, _ in nodes(cls.window)), 10)
        cls.all = list(nodes(cls.window))

    @staticmethod
    def find_window(pyatspi):
        """The one window of the program that can be seen."""
        def windows():
            desktop = pyatspi.Registry.getDesktop(0)
            desktop.clear_cache()
            return [window for program in desktop if program for window in program
                    if window and window.getState().contains(pyatspi.STATE_VISIBLE)]
        rig.wait_until(windows, 10)
        found = windows()
        if [window.name for window in found] != ["Versewell"]:
            raise AssertionError(f"not one window, but {[(window.getRoleName(), window.name) for window in found]}")
        return found[0]

    def the(self, role, name):
        found = [node for node, path in self.all if path[-1] == role and node.name == name]
        self.assertEqual(len(found), 1, f"{role} {name!r} among {[(path[-1], node.name) for node, path in self.all]}")
        return found[0]

    def states(self, node):
        return {self.atspi.stateToString(state) for state in node.getState().getStates()}

    def test_rows_say_title_artist_and_state(self):
        first = self.the("list item", "Amber Gate, Nora Vale, has lyrics")
        second = self.the("list item", "No title, No artist, no names")
        self.assertIn("selected", self.states(first))
        self.assertIn("selectable", self.states(second))
        self.assertNotIn("selected", self.states(second))
        self.assertEqual(first.parent.getRoleName(), "list")

    def test_fields_and_buttons_have_names_and_states(self):
        rows = [("text", "Artist", "editable"), ("text", "Title", "focusable"), ("text", "Lyrics", "multi line"),
                ("push button", "Play", "focusable"), ("push button", "Edit lyrics (F2)", "focusable"),
                ("push button", "Larger text", "enabled"), ("slider", "Position in the song", "enabled")]
        for role, name, state in rows:
            with self.subTest(name):
                self.assertLessEqual({state, "showing"}, self.states(self.the(role, name)))

    def test_what_is_hidden_is_not_shown(self):
        for role, name in [("push button", "Show hidden files"), ("push button", "Add files..."), ("push button", "Cancel")]:
            with self.subTest(name):
                self.assertNotIn("showing", self.states(self.the(role, name)))

    def test_every_control_has_a_name(self):
        controls = {"push button", "text", "list item", "slider", "check box", "link"}
        nameless = [path for node, path in self.all
                    if path[-1] in controls and not node.name and "showing" in self.states(node)]
        self.assertEqual(nameless, [])

    def test_places_on_the_screen_are_those_of_the_scene(self):
        def box(node):
            extents = node.queryComponent().getExtents(self.atspi.DESKTOP_COORDS)
            return extents.x, extents.y, extents.x + extents.width, extents.y + extents.height
        left, top, right, bottom = box(self.window)
        x, y, end, low = box(self.the("list item", "Amber Gate, Nora Vale, has lyrics"))
        self.assertTrue(left <= x < end <= right and top < y < low <= bottom, (box(self.window), (x, y, end, low)))
        self.assertEqual(low - y, 60)

    def test_a_screen_reader_can_press_a_button(self):
        edit = self.the("push button", "Edit lyrics (F2)")
        action = edit.queryAction()
        action.doAction([action.getName(index) for index in range(action.nActions)].index("Press"))
        save = self.the("push button", "Save lyrics (Ctrl+S)")
        self.assertTrue(rig.wait_until(lambda: "showing" in self.states(save), 10), "the edit did not begin")


if __name__ == "__main__":
    if IN_SESSION not in os.environ:
        sys.exit(subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv],
                                env={**os.environ, IN_SESSION: "1"}).returncode)
    unittest.main()
