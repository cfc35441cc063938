#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What a screen reader finds and hears: walks over AT-SPI through all that the program shows, in a session bus of its own."""
import contextlib
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

from gi.repository import GLib

import rig
from maker import MakerSite
from screenshots import Collector, Gate
from sites import LyricsFreakSite

BUS = ["gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus", "--method"]
LAUNCHER = next((path for path in ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")
                 if pathlib.Path(path).exists()), "at-spi-bus-launcher")
STARTS = 2
PATIENCE_SECONDS = 8
IN_SESSION = "VERSEWELL_PRIVATE_BUS"
LANGUAGES = ["en", *sorted(path.stem.split("_", 1)[1] for path in (rig.TOP / "translations").glob("versewell_*.ts"))]
WALKED_WHOLLY = ("en", "de")
CONTROLS = {"push button", "toggle button", "text", "list item", "slider", "check box", "link", "menu item", "page tab",
            "combo box", "spin button", "split pane"}
# What one comes through with the Tab key, as it stands from top to bottom and from left to right.
WAY = ["Add file", "Add folder", "Options", "Amber Gate, Nora Vale, has lyrics", "Show in the file manager",
       "Width of the list", "Play", "Artist", "Title", "Edit lyrics (F2)", "Force to search lyrics (Ctrl+R)",
       "Copy lyrics to clipboard", "Search lyrics with Google", "Smaller text", "Larger text", "Lyrics",
       "Show an example of a usage event", "Yes, send usage events", "No, send nothing", "Website", "Facebook", "Twitter"]
# The writer waits so long at the end of a save, which then fails.
SLOW_DISK = ["strace", "-D", "-f", "--seccomp-bpf", "-qq", "-o", "/dev/null", "-e", "trace=fsync",
             "-e", "inject=fsync:error=EIO:delay_enter=3000000"]


def prepare_bus(display):
    """Starts the accessibility bus and its registry, and says that there is a screen reader."""
    launcher = subprocess.Popen([LAUNCHER, "--launch-immediately"], stderr=subprocess.DEVNULL)
    rig.wait_until(lambda: subprocess.run([*BUS, "org.a11y.Bus.GetAddress"], capture_output=True).returncode == 0, 10)
    subprocess.run([*BUS, "org.freedesktop.DBus.Properties.Set", "org.a11y.Status", "IsEnabled", "<true>"],
                   check=True, capture_output=True)
    # As desktops tell it. Otherwise Qt 5.15 registers only when an answer from the session bus arrives in time.
    subprocess.run(["xprop", "-display", display, "-root", "-f", "AT_SPI_BUS", "8s", "-set", "AT_SPI_BUS", bus_address()],
                   check=True)
    return launcher


def end_bus(launcher):
    launcher.terminate()
    launcher.wait()


def bus_address():
    answer = subprocess.run([*BUS, "org.a11y.Bus.GetAddress"], capture_output=True, text=True, check=True).stdout
    return re.search("'(.*)'", answer).group(1)


def registered():
    """The number of programs that the registry knows."""
    answer = subprocess.run(["gdbus", "call", "--address", bus_address(), "--dest", "org.a11y.atspi.Registry", "--object-path",
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


class Ear:
    """What the bus tells a screen reader: what happened, with 1 or 0, and the role and the name of whom it happened to."""

    EVENTS = ("object:state-changed:focused", "object:state-changed:selected", "object:property-change:accessible-name")

    def __init__(self, atspi):
        self.atspi = atspi
        self.heard = []

    def __enter__(self):
        self.atspi.Registry.registerEventListener(self.listen, *self.EVENTS)
        return self

    def __exit__(self, *_):
        self.atspi.Registry.deregisterEventListener(self.listen, *self.EVENTS)

    def listen(self, event):
        with contextlib.suppress(GLib.Error):  # it may have gone meanwhile
            what = str(event.type).rsplit(":", 1)[1]
            self.heard.append((what, event.detail1, event.source.getRoleName(), event.source.name))

    def hears(self, *what):
        """Whether this is told within a while, and after all that was asked for before."""
        def told():
            deliver()
            return what in self.heard
        if not rig.wait_until(told, PATIENCE_SECONDS):
            return False
        del self.heard[:self.heard.index(what) + 1]
        return True


def deliver():
    """Lets the library take what the bus has sent."""
    while GLib.MainContext.default().iteration(False):
        pass


def setUpModule():
    """One bus for all, since the library stays with the first that it finds."""
    Walk.maker = MakerSite("1.5.6")
    Walk.session = unittest.enterModuleContext(rig.Session({"Later": "some words"},
                                                           lambda lyrics: Gate(LyricsFreakSite(lyrics)),
                                                           [Walk.maker, Collector()]))
    for held_back in (Walk.maker.may_tell, Walk.session.site.opened):
        unittest.addModuleCleanup(held_back.set)
    unittest.addModuleCleanup(end_bus, prepare_bus(Walk.session.screen.display))
    import pyatspi  # only in the session bus of the test
    Walk.atspi = pyatspi


class Walk(unittest.TestCase):
    """The program on one screen, with songs in several states, lyrics sites, a maker's site and a collector."""

    @classmethod
    def start(cls, *prefix, language="en", title="Versewell", songs=3, **environment):
        """Starts the program with fresh songs and waits for its window, which is returned and kept as `window`."""
        cls.catalogue = Catalogue(language)
        make = rig.Songs(cls.session.music).make
        paths = [make("one.mp3", {"artist": rig.ARTIST, "title": "Amber Gate"}, lyrics="some words"), make("two.mp3"),
                 make("three.mp3", {"artist": rig.ARTIST, "title": "Later"})][:songs]
        for _ in range(STARTS):
            rig.wait_until(lambda: not registered(), PATIENCE_SECONDS)  # of one that has ended
            cls.program = cls.session.start(paths, *prefix, settings={"language": language}, **environment)
            cls.addClassCleanup(rig.end, cls.program)
            if rig.wait_until(lambda: cls.found(title), PATIENCE_SECONDS):
                cls.window = cls.found(title)[0]
                return cls.window
            rig.end(cls.program)
        raise AssertionError(f"no window {title!r}, but {cls.names()}" + cls.session.messages())

    @classmethod
    def start_searching(cls, language="en"):
        """Starts the program, and waits until a song is searched for, which goes on until the site's gate is opened."""
        cls.maker.may_tell.clear()
        cls.session.site.opened.clear()
        cls.start(language=language)
        rig.wait_until(lambda: any(cls.catalogue.say("searching...") in node.name for node, _ in nodes(cls.window)), 10)

    @classmethod
    def windows(cls):
        """All windows of the program that can be seen."""
        deliver()
        desktop = cls.atspi.Registry.getDesktop(0)
        desktop.clear_cache()
        found = []
        for program in desktop:
            with contextlib.suppress(GLib.Error):  # of a program that ends at this moment
                found += [window for window in program or ()
                          if window and window.getState().contains(cls.atspi.STATE_VISIBLE)]
        return found

    @classmethod
    def names(cls):
        return [(window.getRoleName(), window.name) for window in cls.windows()]

    @classmethod
    def found(cls, title):
        return [window for window in cls.windows() if cls.catalogue.pattern(title).fullmatch(window.name)]

    def find_window(self, title):
        self.assertTrue(rig.wait_until(lambda: self.found(title), PATIENCE_SECONDS), f"no window {title!r}, but {self.names()}")
        return self.found(title)[-1]

    def the(self, role, name, within=None):
        all_nodes = list(nodes(within or self.window))
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
        self.assertNotEqual(window.name, "", window.getRoleName())
        shown = [(node, path) for node, path in nodes(window) if "showing" in self.states(node)]
        nameless = [path for node, path in shown if path[-1] in CONTROLS and not node.name and "combo box" not in path[:-1]]
        if is_ours:
            self.assertEqual(nameless, [], window.name)
        self.assertEqual([node.name for node, _ in shown if self.catalogue.is_english(node.name)], [], window.name)

    def look(self, title, leave, is_ours=True):
        """Looks at a window that opens, on each of its tabs, and leaves it by one of its own buttons."""
        window = self.find_window(title)
        self.check(window, is_ours)
        for tab in [node for node, path in nodes(window) if path[-1] == "page tab" and is_ours]:
            self.press(tab)
            self.check(window)
        self.press(self.the("push button", leave, window))
        self.assertTrue(rig.wait_until(lambda: window not in self.windows(), PATIENCE_SECONDS), f"{title} stays")

    def visit(self, opener, title, leave, is_ours=True):
        """Opens a window by an entry of a menu."""
        self.press(self.the("menu item", opener))
        self.look(title, leave, is_ours)

    def focused(self):
        self.window.clear_cache()
        return [node.name for node, path in nodes(self.window) if path[-1] in CONTROLS and "focused" in self.states(node)]

    def press_keys(self, *keys):
        self.session.screen.focus("Versewell")
        self.session.screen.xdotool("key", "--delay", 100, *keys)

    def tab(self, before):
        """Presses the Tab key, waits for the keyboard to move on from `before`, and tells where it is then."""
        self.session.screen.xdotool("key", "Tab")
        at = before

        def has_moved():
            nonlocal at
            at = self.focused()
            return len(at) == 1 and at != before
        rig.wait_until(has_moved, PATIENCE_SECONDS)
        return at

    def press_keys_on(self, name, *keys):
        """Goes to a control with the Tab key and presses these keys on it."""
        self.session.screen.focus("Versewell")
        at = self.focused()
        for _ in WAY:
            if self.catalogue.say(name) in at:
                break
            at = self.tab(at)
        self.press_keys(*keys)

    def leave_menus(self):
        """Presses Escape until the keyboard is back in the window; a menu that closes hands it to the bar first."""
        def is_back():
            if set(self.focused()) & set(WAY):
                return True
            self.session.screen.xdotool("key", "Escape")
            return False
        self.assertTrue(rig.wait_until(is_back, PATIENCE_SECONDS, step=0.5), self.focused())

    def begin_edit(self):
        self.session.screen.focus("Versewell")
        self.press(self.the("push button", "Edit lyrics (F2)"))
        save = self.the("push button", "Save lyrics (Ctrl+S)")
        self.assertTrue(rig.wait_until(lambda: "showing" in self.states(save), PATIENCE_SECONDS), "the edit did not begin")


class EveryLanguageTest(Walk):
    def test_whatever_opens(self):
        for language in LANGUAGES:
            with self.subTest(language):
                self.start_searching(language)
                self.check(self.window)
                self.visit("Preferences", "Preferences", "Cancel")
                if language in WALKED_WHOLLY:
                    self.walk_dialogs()
                    self.walk_updates()
                    self.walk_questions()
                rig.end(self.program)

    def walk_dialogs(self):
        self.visit("About", "About", "Close")
        self.visit("Add file", "Select file(s) to add", "Cancel", is_ours=False)
        self.visit("Add folder", "Select folder to add", "Cancel", is_ours=False)
        self.visit("Quit", "Search for %n songs is currently in progress.", "No")
        self.press(self.the("push button", "Show an example of a usage event"))
        self.look("Example of a usage event", "Close")

    def walk_updates(self):
        self.press_keys_on("Options", "space", "Down", "Down", "Return")
        self.check(self.find_window("Update"))
        self.maker.may_tell.set()
        offer = self.find_window("Update available!")
        self.check(offer)
        self.press(self.the("push button", "Install update", offer))
        self.look("Update", "Close")  # it is not signed

    def walk_questions(self):
        self.begin_edit()
        self.press_keys("x")
        self.visit("Quit", "The lyrics of “%1” have been changed.", "Cancel")
        self.press(self.the("push button", "Cancel editing (Esc)"))
        self.session.site.opened.set()
        self.press_keys_on("Title", "x", "Return")
        self.visit("Quit", "The changed artist or title of one song is not in its file yet.", "Cancel")

    def test_the_recovery(self):
        self.start(title="OpenGL settings", VERSEWELL_RECOVERY="1")  # before any language is chosen
        self.press(self.the("push button", "Clear all settings"))
        self.look("Clear settings", "No")
        self.look("OpenGL settings", "OK")
        self.find_window("Versewell")
        rig.end(self.program)

    def test_a_scene_that_cannot_be_built(self):
        broken = self.session.stage.home / "QtQuick.2"
        broken.mkdir()
        (broken / "qmldir").write_text("module QtQuick\nplugin none\n")
        for language in WALKED_WHOLLY:
            with self.subTest(language):
                self.start(language=language, QML2_IMPORT_PATH=str(self.session.stage.home))
                self.look("Versewell", "Close")
                self.assertEqual(self.program.wait(PATIENCE_SECONDS), 3)

    def test_saves_that_are_slow_and_fail(self):
        self.start(*SLOW_DISK, language="de", songs=2)
        self.save_lyrics()
        self.press(self.the("menu item", "Remove selected"))
        self.check(self.find_window("Changes are still being written into the songs."))
        self.look("The lyrics of one song are not in its file and stand in the list only.", "Discard")
        self.check(self.window)  # with notices
        self.save_lyrics()
        self.press(self.the("menu item", "Quit"))
        rig.wait_until(lambda: not self.windows(), PATIENCE_SECONDS)
        self.look("Versewell", "Close")

    def save_lyrics(self):
        self.begin_edit()
        self.press_keys("x", "ctrl+s")


class EnglishTest(Walk):
    @classmethod
    def setUpClass(cls):
        cls.start_searching()

    def test_rows_fields_and_buttons_have_names_and_states(self):
        rows = [("list item", "Amber Gate, Nora Vale, has lyrics", {"selected", "showing"}, set()),
                ("list item", "No title, No artist, no names", {"selectable", "showing"}, {"selected"}),
                ("text", "Artist", {"editable", "showing"}, set()),
                ("text", "Lyrics", {"multi line", "showing"}, set()),
                ("push button", "Play", {"focusable", "showing"}, set()),
                ("push button", "Larger text", {"enabled", "showing"}, set()),
                ("slider", "Position in the song", {"visible", "showing"}, set()),
                ("push button", "Show hidden files", set(), {"showing"}),
                ("push button", "Add files...", set(), {"showing"}),
                ("push button", "Cancel", set(), {"showing"})]
        for role, name, has, has_not in rows:
            with self.subTest(name):
                states = self.states(self.the(role, name))
                self.assertLessEqual(has, states)
                self.assertEqual(has_not & states, set())
        self.assertEqual(self.the(*rows[0][:2]).parent.getRoleName(), "list")

    def test_places_on_the_screen_are_those_of_the_scene(self):
        def box(node):
            extents = node.queryComponent().getExtents(self.atspi.DESKTOP_COORDS)
            return extents.x, extents.y, extents.x + extents.width, extents.y + extents.height
        left, top, right, bottom = box(self.window)
        x, y, end, low = box(self.the("list item", "Amber Gate, Nora Vale, has lyrics"))
        self.assertTrue(left <= x < end <= right and top < y < low <= bottom, (box(self.window), (x, y, end, low)))
        self.assertEqual(low - y, 60)

    def test_a_screen_reader_can_press_a_button(self):
        self.begin_edit()
        self.check(self.window)
        self.press(self.the("push button", "Cancel editing (Esc)"))

    def test_the_tab_key_goes_as_one_reads(self):
        self.session.screen.focus("Versewell")
        at = self.focused()
        way = [*at]
        for _ in WAY:
            at = self.tab(at)
            way += at
        start = WAY.index(way[0])
        self.assertEqual(way, [*WAY[start:], *WAY[:start], way[0]])

    def test_the_keyboard_is_heard(self):
        song, other = "Amber Gate, Nora Vale, has lyrics", "No title, No artist, no names"
        rows = [("back from a menu of the bar", ["alt+f", "Escape", "Escape"], "focused", 1, "list item", song),
                ("another song", ["Down"], "focused", 1, "list item", other),
                ("the song before", ["Up"], "focused", 1, "list item", song),
                ("a song is not selected any more", ["ctrl+space"], "selected", 0, "list item", song),
                ("a song is selected", ["ctrl+space"], "selected", 1, "list item", song),
                ("the menu of the songs", ["Menu"], "focused", 1, "popup menu", "Songs"),
                ("its first entry", ["Down"], "focused", 1, "menu item", "Force to search lyrics"),
                ("its second entry", ["Down"], "focused", 1, "menu item", "Export lyrics to TXT file"),
                ("and back to the song", ["Escape"], "focused", 1, "list item", song),
                ("the menu of the gear", ["shift+Tab", "space", "Down"], "focused", 1, "menu item", "Preferences"),
                ("and back to the gear", ["Escape"], "focused", 1, "push button", "Options"),
                ("the words, from a button of the window", ["F2"], "focused", 1, "text", "Lyrics"),
                ("a menu of the bar", ["Escape", "alt+e"], "focused", 1, "menu item", "Select all")]
        self.press_keys_on(song)
        self.addCleanup(self.leave_menus)
        with Ear(self.atspi) as ear:
            for sentence, keys, *what in rows:
                with self.subTest(sentence):
                    self.session.screen.xdotool("key", "--delay", 100, *keys)
                    self.assertTrue(ear.hears(*what), ear.heard)

    def test_what_a_song_has_become_is_said(self):
        row = self.the("list item", "Later, Nora Vale, searching...")
        with Ear(self.atspi) as ear:
            self.session.site.opened.set()
            self.assertTrue(ear.hears("accessible-name", 0, "list item", "Later, Nora Vale, has lyrics"), ear.heard)
        row.clear_cache()
        self.assertEqual(row.name, "Later, Nora Vale, has lyrics")


if __name__ == "__main__":
    if IN_SESSION not in os.environ:
        with tempfile.TemporaryDirectory() as folder:  # in which the bus has its socket
            os.chmod(folder, 0o700)
            sys.exit(subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv],
                                    env={**os.environ, IN_SESSION: "1", "XDG_RUNTIME_DIR": folder}).returncode)
    unittest.main()
