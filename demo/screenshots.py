#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Saves pictures of all that the program can show, light and dark, at 1x and 2x; and of much of it in large text, in high
contrast and in other languages.

The real program runs on virtual screens with generated songs, sites of its own and a private configuration, and is driven
by keys and clicks.
"""
import argparse
import contextlib
import dataclasses
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading
import xml.etree.ElementTree as ElementTree

import run_demo
import songs
import stage
import tags
from maker import MakerSite
from server import Answer, Sites

MAIN, PREFERENCES, ABOUT, RECOVERY = "Versewell", "Preferences", "About", "OpenGL settings"
# Where to click, in the pixels of a window at 1x.
FILE_MENU, ADD_FOLDER, GEAR = (20, 11), (48, 37), (1007, 37)
ROW_HEIGHT, FIRST_ROW = 60, (200, 92)
NOWHERE = (620, 668)  # in the status bar, where nothing answers to the mouse
WAIT_SECONDS = 30
# What is older than the versions that its maker's site has.
VERSION = "1.5.6"
# The program asks a site so many times at once.
CONNECTIONS = 6

# Songs that no site knows, so that the list is longer than the window and more songs wait than are searched for at once.
UNKNOWN = [f"Sketch No. {number}" for number in range(1, 5)]
# What the sites answer about at once while all other songs are held back.
PROMPT = "Harbour Lights"
FAILING = "Undertow"
# The songs that are larger than this cannot be written where it is the limit.
WRITE_LIMIT_BYTES = 80000

# As the desktop stores them.
DARK = """\
[Colors:Window]
BackgroundNormal=43,45,48
ForegroundNormal=236,237,240
[Colors:View]
BackgroundNormal=31,32,35
BackgroundAlternate=38,40,43
ForegroundNormal=236,237,240
ForegroundLink=96,156,255
ForegroundVisited=170,140,230
[Colors:Button]
BackgroundNormal=54,56,60
ForegroundNormal=236,237,240
[Colors:Selection]
BackgroundNormal=56,120,230
ForegroundNormal=255,255,255
[Colors:Tooltip]
BackgroundNormal=54,56,60
ForegroundNormal=236,237,240
"""
COLOURS = {"light": "", "dark": DARK}
for name, ground, ink, link, selection in [("black-on-white", "255,255,255", "0,0,0", "0,0,160", "0,0,0"),
                                           ("white-on-black", "0,0,0", "255,255,255", "255,255,0", "255,255,0")]:
    groups = "".join(f"[Colors:{group}]\nBackgroundNormal={ground}\nBackgroundAlternate={ground}\nForegroundNormal={ink}\n"
                     f"ForegroundLink={link}\nForegroundVisited={link}\n" for group in ("Window", "View", "Button", "Tooltip"))
    COLOURS[name] = f"{groups}[Colors:Selection]\nBackgroundNormal={selection}\nForegroundNormal={ground}\n"
# Twice as large as desktops have it unasked.
LARGE_TEXT = "[General]\nfont=Sans Serif,18,-1,5,50,0,0,0,0,0\nmenuFont=Sans Serif,18,-1,5,50,0,0,0,0,0\n"


@dataclasses.dataclass(frozen=True)
class Appearance:
    colours: str
    scale: int
    language: str = ""
    large: bool = False

    @property
    def name(self):
        parts = [self.colours, f"{self.scale}x", *["large"] * self.large, *[self.language] * bool(self.language)]
        return "-".join(parts)

    @property
    def desktop(self):
        """What the desktop's file of settings holds."""
        return COLOURS[self.colours] + LARGE_TEXT * self.large

    @property
    def environment(self):
        desktop = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"} if self.desktop else {"XDG_CURRENT_DESKTOP": ""}
        language = {"LC_ALL": f"{self.language}_{self.language.upper()}.UTF-8"} if self.language else {}
        return {**desktop, **language, "QT_SCALE_FACTOR": str(self.scale)}

    def title(self, source):
        """What a window of this title is called in the language."""
        if not self.language:
            return source
        texts = ElementTree.parse(run_demo.TOP / f"translations/versewell_{self.language}.ts")
        return next((message.findtext("translation") for message in texts.iter("message")
                     if message.findtext("source") == source), source)


class Gate:
    """Holds back a site's answers about all songs but one until it is opened."""

    def __init__(self, site):
        self.endpoints = site.endpoints
        self.site = site
        self.opened = threading.Event()

    def answer(self, request):
        if request.query.get("q", PROMPT) != PROMPT:
            self.opened.wait(10 * WAIT_SECONDS)
        return self.site.answer(request)


class Breakdown:
    """A site that breaks down whenever it is asked for one song."""

    def __init__(self, site):
        self.endpoints = site.endpoints
        self.site = site

    def answer(self, request):
        asked = " ".join([request.path, *request.query.values()]).lower()
        return Answer(status=500) if FAILING.lower() in asked else self.site.answer(request)


class Collector:
    """Takes usage events, and forgets them."""

    endpoints = ("Collector",)

    def answer(self, _request):
        return Answer()


class Show:
    """One home of the program on a screen, and the hands and the camera before it."""

    def __init__(self, options, screen, place, appearance, sites, music):
        self.folder = options.folder
        self.screen = screen
        self.place = place
        self.appearance = appearance
        self.sites = sites
        # Every show writes into songs of its own.
        self.music = shutil.copytree(music, place.home / "Music")
        self.paths = [self.music / song.name for song in songs.SONGS]
        if appearance.desktop:
            (place.home / "xdg_config_home" / "kdeglobals").write_text(appearance.desktop, encoding="ascii")

    def start(self, *prefix, files=(), title=MAIN, **general):
        """Starts the program with these files in its list and waits for its window."""
        self.place.write_settings(files, self.sites.endpoints(), **general)
        program = self.place.start(*prefix, log=self.place.home / "program.log", **self.appearance.environment)
        self.focus(title)
        return program

    def focus(self, title):
        title = self.appearance.title(title)
        self.wait_for(lambda: self.screen.windows(title), f'the window "{title}"')
        return self.screen.focus(title)

    def keys(self, *names):
        self.screen.xdotool("key", "--delay", 60, *names)

    def click(self, place, button=1, row=0):
        """Clicks there, so many rows below it, and takes the mouse away."""
        for x, y, *click in [(place[0], place[1] + row * ROW_HEIGHT, "click", button), NOWHERE]:
            self.screen.xdotool("mousemove", x * self.appearance.scale, y * self.appearance.scale, *click)

    def choose_by_keys(self, *keys):
        """Chooses from the menu "File", wherever it is."""
        self.keys("Alt_L", "Down", *keys, "Return")

    def choose(self, menu, *keys):
        """Opens a menu by a click and chooses from it by keys."""
        self.click(menu)
        self.settled()
        self.keys(*keys, "Return")

    def wait_for(self, condition, what):
        if not stage.wait_until(condition, WAIT_SECONDS):
            sys.exit(f"{self.appearance.name}: waited in vain for {what}")

    def settled(self):
        """Waits until the screen is the same for a moment."""
        shots = [b""]

        def is_still():
            command = ["import", "-display", self.screen.display, "-window", "root", "rgb:-"]
            shots.append(subprocess.run(command, check=True, capture_output=True).stdout)
            return shots.pop(0) == shots[0]
        stage.wait_until(is_still, 5, step=0.3)

    def picture(self, name, window="root"):
        self.settled()
        self.screen.photograph(self.folder / f"{name}-{self.appearance.name}.png", window)


def show_adding(show):
    """The empty list, and folders of a slow disk that are scanned."""
    albums = [show.place.home / "Slow disk" / f"Album {number}" for number in range(9)]
    for album, path in zip(albums, show.paths):
        album.mkdir(parents=True)
        shutil.copy(path, album)
    trace = show.place.home / "trace"
    slow = [word for album in albums for word in ("-P", album)]
    show.start("strace", "-D", "-f", "--seccomp-bpf", "-qq", "-o", trace, *slow,
               "-e", "inject=getdents64:delay_enter=1500000", lastFolderDir=albums[0].parent)
    show.picture("empty")
    show.click(ADD_FOLDER)
    show.focus("Select folder to add")
    show.picture("add-folder")
    show.keys("Return")
    show.wait_for(lambda: trace.read_text(encoding="utf-8").count("getdents64") >= 4, "the scan")
    show.picture("scanning")


def show_work(show):
    """Songs that wait and are searched for, and what can be done with those that are found."""
    files = [*show.paths, *(show.music / f"{title}.mp3" for title in UNKNOWN)]
    program = show.start(files=files)
    show.wait_for(lambda: show.sites.open_requests() == CONNECTIONS, "the searches")
    show.picture("working")
    show.keys("End")
    show.picture("queued")
    show.choose(FILE_MENU, "Up")
    show.picture("exit")
    show.keys("Escape")
    show.focus(MAIN)
    for server in show.sites.servers:
        if isinstance(server.site, Gate):
            server.site.opened.set()
    show.wait_for(lambda: run_demo.all_found(show.sites, show.paths), "the lyrics")
    show_lyrics(show)
    show_dialogs(show)
    show_small(show)
    stage.end(program)


def show_lyrics(show):
    show.keys("Home", "Down")
    show.picture("lyrics")
    show.keys("F2", "ctrl+End", "Return")
    show.screen.xdotool("type", "and one more line")
    show.picture("editing")
    show.keys("Escape")
    show.click(FIRST_ROW)
    show.screen.xdotool("keydown", "shift")
    show.click(FIRST_ROW, row=3)
    show.screen.xdotool("keyup", "shift")
    show.picture("several")
    show.click(FIRST_ROW, button=3, row=2)
    show.picture("context-menu")
    show.keys("Escape", "ctrl+l")
    show.picture("hidden")
    show.keys("ctrl+l", "Home")


def show_dialogs(show):
    show.click(FILE_MENU)
    show.picture("menu")
    show.keys("Escape", "Escape")
    show.choose(GEAR, "Down")
    show_preferences(show)
    show.keys("Alt_L", "Left", "Down", "Return")
    show.picture("about", show.focus(ABOUT))
    show.keys("Escape")


def show_preferences(show):
    preferences = show.focus(PREFERENCES)
    for tab in ("general", "network", "sites"):
        show.picture(f"preferences-{tab}", preferences)
        show.keys("ctrl+Tab")
    show.keys("Escape")
    show.focus(MAIN)


def show_small(show):
    window = show.focus(MAIN)
    scale = show.appearance.scale
    show.screen.xdotool("windowsize", window, 640 * scale, 400 * scale)
    show.picture("small", window)


def show_troubles(show):
    """Songs that cannot be written, a site that breaks down, and the question before the words are lost."""
    program = show.start("prlimit", f"--fsize={WRITE_LIMIT_BYTES}", files=show.paths)
    show.wait_for(lambda: run_demo.all_asked(show.sites), "the searches")
    show.keys("Home")
    show.picture("error-writing")
    show.keys(*["Down"] * [song.title for song in songs.SONGS].index(FAILING))
    show.picture("error-site")
    show.keys("End")
    show.picture("error-names")
    show.keys("Home", "F2")
    show.picture("error-edit")
    show.keys("Escape")
    show.choose_by_keys("Up", "Up")
    show_preferences(show)
    show.choose_by_keys("Up")
    show.picture("unsaved")
    stage.end(program)


def show_recovery(show):
    """What Shift at the start offers."""
    show.screen.xdotool("keydown", "shift")
    try:
        show.start(title=RECOVERY)
    finally:
        show.screen.xdotool("keyup", "shift")
    show.picture("recovery", show.focus(RECOVERY))
    show.keys("space")
    show.picture("recovery-question", show.focus("Clear settings"))


def show_consent(show):
    """The question about usage events, and what one of them holds."""
    program = show.start(files=show.paths[:3])
    show.picture("consent")
    stage.end(program)


def show_update(show):
    """A check for a newer version by the user, and what follows."""
    maker = show.sites.servers[0].site
    program = show.start()
    show.click(GEAR)
    show.picture("update-menu")
    show.keys("Down", "Down", "Return")
    show.picture("update-checking", show.focus("Update"))
    maker.may_tell.set()
    show.picture("update-offer", show.focus("Update available!"))
    show.keys("Return")  # nothing is downloaded that is not signed
    show.picture("update-failed", show.focus("Update"))
    show.keys("Escape")
    maker.newer = []
    show.choose(GEAR, "Down", "Down")
    show.picture("update-none", show.focus("Update"))
    stage.end(program)


SHOWS = {
    show_adding: lambda sites: sites,
    show_work: lambda sites: [Gate(sites[0]), *sites[1:]],
    show_troubles: lambda sites: [*map(Breakdown, sites[:-1]), sites[-1]],
    show_recovery: lambda sites: sites,
    show_consent: lambda sites: [*sites, Collector()],
    show_update: lambda _sites: [MakerSite(VERSION)],
}


APPEARANCES = [*(Appearance(colours, scale) for colours in ("light", "dark") for scale in (1, 2)), Appearance("light", 1, "de"),
               Appearance("black-on-white", 1), Appearance("white-on-black", 1),
               *(Appearance("light", 1, language, True) for language in ("", "de", "ru")), Appearance("dark", 2, "", True)]


def is_shown(scenes, appearance):
    """The clicks of most shows are for text of the usual size; what is told in words alone is the same in all colours."""
    if appearance.large:
        return scenes is show_troubles
    if appearance.colours not in ("light", "dark"):
        return scenes in (show_work, show_troubles)
    return not appearance.language or scenes in (show_work, show_consent)


def make_music(folder):
    """The songs of the demo, and some that no site knows."""
    songs.make_songs(folder)
    for title in UNKNOWN:
        path = shutil.copy(folder / "Nobody Yet - Never Written.mp3", folder / f"{title}.mp3")
        tags.write_tags(pathlib.Path(path), {"artist": "Nobody Yet", "title": title})


def run(options, scenes, appearance, music):
    with contextlib.ExitStack() as stack:
        screen = stack.enter_context(stage.Screen(stage.window_size(appearance.scale)))
        sites = stack.enter_context(Sites(*SHOWS[scenes](run_demo.all_sites())))
        place = stack.enter_context(stage.Stage(options.program, screen.display))
        scenes(Show(options, screen, place, appearance, sites, music))


def arguments():
    parser = argparse.ArgumentParser(prog="script/screenshots", description=__doc__)
    parser.add_argument("folder", nargs="?", type=pathlib.Path, default=run_demo.TOP / "build/screenshots")
    parser.add_argument("--program", type=pathlib.Path, default=run_demo.TOP / "build/release/bin/versewell")
    parser.add_argument("--only", metavar="WORD", default="", help="shows and appearances with this in their name")
    return parser.parse_args()


def main():
    options = arguments()
    stage.unwind_on_signals()
    options.folder.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as music:
        make_music(pathlib.Path(music))
        for appearance in APPEARANCES:
            for scenes in SHOWS:
                if is_shown(scenes, appearance) and options.only in f"{scenes.__name__} {appearance.name}":
                    run(options, scenes, appearance, music)
    print(f"Pictures: {options.folder}")


if __name__ == "__main__":
    main()
