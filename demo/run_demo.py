#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Runs the program on a dozen generated songs and lyrics sites of its own, and shows what it wrote into the tags.

On a display the window stays until it is closed. Without one it runs on a virtual screen until every song is done,
and a picture of that screen is saved. The user's own settings and songs are not touched.
"""
import argparse
import contextlib
import os
import pathlib
import subprocess
import sys

import songs
import stage
import tags
from catalogue import CORRECTIONS, LYRICS, SITE_OF
from server import Sites
from sites import LYRICS_SITES, LastfmService

TOP = pathlib.Path(__file__).resolve().parent.parent
TIME_LIMIT_SECONDS = 90


def arguments():
    parser = argparse.ArgumentParser(prog="script/run --demo", description=__doc__)
    parser.add_argument("--program", type=pathlib.Path, default=TOP / "build/release/bin/versewell")
    parser.add_argument("--keep", metavar="DIR", type=pathlib.Path, help="make the songs in DIR and leave them there")
    parser.add_argument("--screenshot", metavar="FILE", type=pathlib.Path, default=TOP / "build/demo.png")
    return parser.parse_args()


def all_sites():
    """Every site with its own songs, so that each has something to find, and the name service."""
    def songs_on(site):
        return {names: words for names, words in LYRICS.items() if SITE_OF.get(names[1], "LyricsFreak") == site}
    return [*(site(songs_on(site.endpoints[0])) for site in LYRICS_SITES), LastfmService(CORRECTIONS)]


def same_words(found, expected):
    return found is not None and found.replace("\r\n", "\n").strip() == expected


def all_asked(sites):
    """Whether every song was searched for and no site is asked any more."""
    titles = {song.title for song in songs.SONGS if song.is_audio and not song.own_lyrics}
    return titles <= {request.query.get("q") for request in sites.requests()} and not sites.open_requests()


def all_found(sites, paths):
    """Whether, besides, the songs of these paths have the lyrics that they are to have."""
    return all_asked(sites) and all(same_words(tags.lyrics_of(path), song.expected)
                                    for path, song in zip(paths, songs.SONGS) if song.expected)


def run_on_virtual_screen(program, screen, sites, paths, picture):
    """Waits until every song is done, takes the picture and ends the program; True when all went well."""
    def ended():
        return program.poll() is not None

    finished = stage.wait_until(lambda: ended() or all_found(sites, paths), TIME_LIMIT_SECONDS) and not ended()
    if ended():
        print(f"The program ended by itself with status {program.returncode}.")
        return False
    # The last row's state is painted a moment after its tag was written.
    with contextlib.suppress(subprocess.TimeoutExpired):
        program.wait(1)
    picture.parent.mkdir(parents=True, exist_ok=True)
    screen.photograph(picture)
    print(f"Picture of the screen: {picture}")
    if not finished:
        print(f"Not every song was done within {TIME_LIMIT_SECONDS} seconds.")
    status = stage.end(program)
    if status != 0:
        print(f"The program was asked to end and ended with status {status}.")
    return finished and status == 0


def verdict(song, found):
    if not song.expected:
        return "nothing to find" if found is None else "UNEXPECTED LYRICS"
    if found is None:
        return "NO LYRICS"
    if not same_words(found, song.expected):
        return "OTHER WORDS"
    return "its own lyrics kept" if song.own_lyrics else "lyrics written"


def report(paths):
    print(f"\n{'file':36} {'another reader finds':21} {'from':12} first line")
    for path, song in zip(paths, songs.SONGS):
        found = tags.lyrics_of(path)
        first = found.strip().splitlines()[0] if found else ""
        print(f"{song.name:36} {verdict(song, found):21} {song.site:12} {first}")


def main():
    options = arguments()
    if not options.program.is_file():
        sys.exit(f"{options.program} does not exist; build it first.")
    if options.keep and options.keep.exists() and (not options.keep.is_dir() or any(options.keep.iterdir())):
        sys.exit(f"{options.keep} holds files already; name a folder that is empty or not there yet.")
    stage.unwind_on_signals()
    with contextlib.ExitStack() as stack:
        virtual = not (os.environ.get("DISPLAY") or os.environ.get("WAYLAND_DISPLAY"))
        screen = stack.enter_context(stage.Screen(stage.window_size(os.environ.get("QT_SCALE_FACTOR") or 1))) if virtual else None
        sites = stack.enter_context(Sites(*all_sites()))
        place = stack.enter_context(stage.Stage(options.program, screen.display if screen else None))
        print("Making the songs...", flush=True)
        paths = songs.make_songs((options.keep or place.home / "Music").resolve())
        place.write_settings(paths, sites.endpoints())
        # What each site answered would hide the table in the end.
        rules = os.environ.get("QT_LOGGING_RULES", "versewell.lyrics.info=false")
        program = place.start(QT_LOGGING_RULES=rules)
        if screen:
            good = run_on_virtual_screen(program, screen, sites, paths, options.screenshot)
        else:
            print("Close the window to see what stands in the files.", flush=True)
            good = program.wait() == 0
        report(paths)
        if options.keep:
            print(f"\nThe songs stay in {options.keep.resolve()}")
    return 0 if good else 1


if __name__ == "__main__":
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit(130)
