#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What a screen reader finds: walks over AT-SPI through the program's windows, in a session bus of its own."""
import os
import pathlib
import re
import subprocess
import sys
import unittest
import xml.etree.ElementTree as ElementTree

import rig
from maker import MakerSite
from screenshots import Collector, Gate
from sites import LyricsFreakSite

BUS = ["gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus", "--method"]
LAUNCHER = next((path for path in ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")
                 if pathlib.Path(path).exists()), "at-spi-bus-launcher")
# Qt 5.15 registers with the registry only when an answer from the bus happens to arrive in time.
STARTS = 12
IN_SESSION = "VERSEWELL_PRIVATE_BUS"
CONTROLS = {"push button", "toggle button", "text", "list item", "slider", "check box", "link", "menu item", "page tab",
            "combo box", "spin button", "split pane"}
# What one comes through with the Tab key, as it stands from top to bottom and from left to right.
WAY = ["Add file", "Add folder", "Options", "Amber Gate, Nora Vale, has lyrics", "Show in the file manager",
       "Width of the list", "Play", "Artist", "Title", "Edit lyrics (F2)", "Force to search lyrics (Ctrl+R)",
       "Copy lyrics to clipboard", "Search lyrics with Google", "Smaller text", "Larger text", "Lyrics",
       "Show an example of a usage event", "Yes, send usage events", "No, send nothing", "Website", "Facebook", "Twitter"]


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


def setUpModule():
    unittest.addModuleCleanup(end_bus, prepare_bus())


class Catalogue:
    """What stands in the sources, and what a language has in its place; nothing for English."""

    def __init__(self, language):
        path = rig.TOP / "translations" / f"versewell_{language}.ts"
        messages = ElementTree.parse(path).iter("message") if path.exists() else ()
        # Of a text with a number the form for one.
        self.texts = {message.findtext("source").replace("&", ""):
                      (message.findtext("translation/numerusform") or message.findtext("translation")).replace("&", "")
                      for message in messages}

    def say(self, source):
        return self.texts.get(source, source)

    def pattern(self, source):
        """What a text of the source looks like, with anything in place of its placeholders."""
        return re.compile(re.sub(r"%(1|n)", ".*", re.escape(self.say(source))))

    def is_english(self, text):
        return text in self.texts and text not in self.texts.values()


class Walk:
    """The program in one language, with songs in several states, lyrics sites, a maker's site and a collector."""

    language = "en"

    @classmethod
    def setUpClass(cls):
        cls.catalogue = Catalogue(cls.language)
        cls.maker = MakerSite("1.5.6")
        cls.addClassCleanup(cls.maker.may_tell.set)
        cls.session = cls.enterClassContext(rig.Session({"Later": "some words"}, lambda lyrics: Gate(LyricsFreakSite(lyrics)),
                                                        [cls.maker, Collector()]))
        cls.addClassCleanup(cls.session.site.opened.set)
        songs = rig.Songs(cls.session.music)
        paths = [songs.make("one.mp3", {"artist": rig.ARTIST, "title": "Amber Gate"}, lyrics="some words"),
                 songs.make("two.mp3"), songs.make("three.mp3", {"artist": rig.ARTIST, "title": "Later"})]
        for _ in range(STARTS):
            registered()
            cls.program = cls.session.start(paths, settings={"language": cls.language})
            if rig.wait_until(lambda: registered() or cls.program.poll() is not None, 2):
                break
            rig.end(cls.program)
        import pyatspi  # only in the session bus of the test
        cls.atspi = pyatspi
        cls.window = cls.find_window("Versewell")
        rig.wait_until(lambda: any(cls.catalogue.say("searching...") in node.name for node, _ in nodes(cls.window)), 10)
        cls.all = list(nodes(cls.window))

    @classmethod
    def windows(cls):
        """All windows of the program that can be seen."""
        desktop = cls.atspi.Registry.getDesktop(0)
        desktop.clear_cache()
        return [window for program in desktop if program for window in program
                if window and window.getState().contains(cls.atspi.STATE_VISIBLE)]

    @classmethod
    def find_window(cls, title):
        def found():
            return [window for window in cls.windows()
                    if cls.catalogue.pattern(title).fullmatch(window.name)]
        if not rig.wait_until(found, 10):
            raise AssertionError(f"no window {title!r}, but {[(w.getRoleName(), w.name) for w in cls.windows()]}")
        return found()[0]

    def the(self, role, name, within=None):
        all_nodes = self.all if within is None else list(nodes(within))
        found = [node for node, path in all_nodes if path[-1] == role and node.name == self.catalogue.say(name)]
        self.assertEqual(len(found), 1, f"{role} {name!r} among {[(path[-1], node.name) for node, path in all_nodes]}")
        return found[0]

    def states(self, node):
        return {self.atspi.stateToString(state) for state in node.getState().getStates()}

    @staticmethod
    def press(node):
        action = node.queryAction()
        action.doAction([action.getName(index) for index in range(action.nActions)].index("Press"))

    def check(self, window, is_ours=True):
        shown = [(node, path) for node, path in nodes(window) if "showing" in self.states(node)]
        nameless = [path for node, path in shown if path[-1] in CONTROLS and not node.name and "combo box" not in path[:-1]]
        if is_ours:
            self.assertEqual(nameless, [], window.name)
        self.assertEqual([node.name for node, _ in shown if self.catalogue.is_english(node.name)], [], window.name)

    def visit(self, opener, title, leave, is_ours=True):
        """Opens a window by a control of another, looks at it on each of its tabs, and leaves it by one of its own."""
        self.press(opener)
        window = self.find_window(title)
        self.check(window, is_ours)
        for tab in [node for node, path in nodes(window) if path[-1] == "page tab" and is_ours]:
            self.press(tab)
            self.check(window)
        self.press(self.the("push button", leave, window))
        self.assertTrue(rig.wait_until(lambda: window not in self.windows(), 10), f"{title} stays")

    def focused(self):
        self.window.clear_cache()
        return [node.name for node, path in nodes(self.window) if path[-1] in CONTROLS and "focused" in self.states(node)]

    def press_keys_on(self, name, *keys):
        """Goes to a control with the Tab key and presses these keys on it."""
        self.session.screen.focus("Versewell")
        for _ in WAY:
            if self.catalogue.say(name) in self.focused():
                break
            self.session.screen.xdotool("key", "Tab")
        self.session.screen.xdotool("key", "--delay", 100, *keys)

    def test_every_window_has_names_in_its_language(self):
        self.check(self.window)
        self.visit(self.the("menu item", "Preferences"), "Preferences", "Cancel")
        self.visit(self.the("menu item", "About"), "About", "Close")
        self.visit(self.the("menu item", "Add file"), "Select file(s) to add", "Cancel", is_ours=False)
        self.visit(self.the("push button", "Show an example of a usage event"), "Example of a usage event", "Close")
        self.visit(self.the("menu item", "Quit"), "Search for %n songs is currently in progress.", "No")
        self.press_keys_on("Options", "space", "Down", "Down", "Return")
        self.check(self.find_window("Update"))
        self.maker.may_tell.set()
        offer = self.find_window("Update available!")
        self.check(offer)
        self.visit(self.the("push button", "Install update", offer), "Update", "Close")  # it is not signed


class GermanTest(Walk, unittest.TestCase):
    language = "de"


class EnglishTest(Walk, unittest.TestCase):
    def test_rows_say_title_artist_and_state(self):
        first = self.the("list item", "Amber Gate, Nora Vale, has lyrics")
        second = self.the("list item", "No title, No artist, no names")
        self.assertIn("selected", self.states(first))
        self.assertIn("selectable", self.states(second))
        self.assertNotIn("selected", self.states(second))
        self.assertEqual(first.parent.getRoleName(), "list")

    def test_fields_and_buttons_have_names_and_states(self):
        rows = [("text", "Artist", "editable"), ("text", "Lyrics", "multi line"), ("push button", "Play", "focusable"),
                ("push button", "Larger text", "enabled"), ("slider", "Position in the song", "visible")]
        for role, name, state in rows:
            with self.subTest(name):
                self.assertLessEqual({state, "showing"}, self.states(self.the(role, name)))

    def test_what_is_hidden_is_not_shown(self):
        for role, name in [("push button", "Show hidden files"), ("push button", "Add files..."), ("push button", "Cancel")]:
            with self.subTest(name):
                self.assertNotIn("showing", self.states(self.the(role, name)))

    def test_places_on_the_screen_are_those_of_the_scene(self):
        def box(node):
            extents = node.queryComponent().getExtents(self.atspi.DESKTOP_COORDS)
            return extents.x, extents.y, extents.x + extents.width, extents.y + extents.height
        left, top, right, bottom = box(self.window)
        x, y, end, low = box(self.the("list item", "Amber Gate, Nora Vale, has lyrics"))
        self.assertTrue(left <= x < end <= right and top < y < low <= bottom, (box(self.window), (x, y, end, low)))
        self.assertEqual(low - y, 60)

    def test_a_screen_reader_can_press_a_button(self):
        self.press(self.the("push button", "Edit lyrics (F2)"))
        save = self.the("push button", "Save lyrics (Ctrl+S)")
        self.assertTrue(rig.wait_until(lambda: "showing" in self.states(save), 10), "the edit did not begin")
        self.check(self.window)
        self.press(self.the("push button", "Cancel editing (Esc)"))

    def test_the_tab_key_goes_as_one_reads(self):
        self.session.screen.focus("Versewell")
        way = []
        while len(way) <= len(WAY):
            way += self.focused()
            self.session.screen.xdotool("key", "Tab")
        start = WAY.index(way[0])
        self.assertEqual(way, [*WAY[start:], *WAY[:start], way[0]])

    def test_what_a_song_has_become_is_said(self):
        self.session.site.opened.set()
        row = self.the("list item", "Later, Nora Vale, searching...")

        def name():
            row.clear_cache()
            return row.name
        self.assertTrue(rig.wait_until(lambda: name() == "Later, Nora Vale, has lyrics", 20), name())


if __name__ == "__main__":
    if IN_SESSION not in os.environ:
        sys.exit(subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv],
                                env={**os.environ, IN_SESSION: "1"}).returncode)
    unittest.main()
