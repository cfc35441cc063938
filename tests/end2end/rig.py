# SPDX-License-Identifier: MIT
"""What the end-to-end suites share: a session of the program, songs to give it, and what stands in their tags."""
import contextlib
import hashlib
import json
import os
import pathlib
import shutil
import struct
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(TOP / "demo"))
READER = TOP / "tests" / "support" / "read-tags.py"

import audio  # noqa: E402
import tags  # noqa: E402
from server import Sites  # noqa: E402
from sites import LyricsFreakSite  # noqa: E402
from stage import Screen, Stage, end, wait_until  # noqa: E402

PROGRAM = pathlib.Path(os.environ.get("VERSEWELL_PROGRAM", TOP / "build/release/bin/versewell"))
ARTIST = "Nora Vale"
TIME_LIMIT_SECONDS = 120


def words_for(title, plain=False):
    """Made-up lyrics that tell which song they belong to; not plain: with letters outside of ASCII."""
    return f"{title}, first line\nthe second line\n\na new verse" + ("" if plain else ", caf\u00e9 и ветер")


class Session:
    """One stage with a virtual screen and a lyrics site, and the program running on it now and then."""

    def __init__(self, lyrics, site=LyricsFreakSite, others=()):
        """lyrics: title -> words, or (artist, title) -> words. `others`: more sites and services, ready made."""
        self.lyrics = {key if isinstance(key, tuple) else (ARTIST, key): text for key, text in lyrics.items()}
        self.site = site(self.lyrics)
        self.others = others

    def __enter__(self):
        if not PROGRAM.is_file():
            raise FileNotFoundError(f"{PROGRAM} is not built")
        with contextlib.ExitStack() as stack:
            self.screen = stack.enter_context(Screen())
            self.sites = stack.enter_context(Sites(self.site, *self.others))
            self.stage = stack.enter_context(Stage(PROGRAM, self.screen.display))
            self.music = self.stage.home / "music"
            self.music.mkdir()
            self.log = self.stage.home / "program.log"
            self.leave = stack.pop_all()
        return self

    def __exit__(self, *_):
        self.leave.close()

    def start(self, files=None, *prefix, settings=None, **environment):
        """Starts the program with these files in its list; files None: with the settings that are there."""
        if files is not None:
            self.stage.write_settings(files, self.sites.endpoints(), **(settings or {}))
        return self.stage.start(*prefix, log=self.log, **environment)

    def asked_titles(self):
        return [request.query["q"] for request in self.sites.requests() if "q" in request.query]

    def wait_for_lyrics(self, process, paths, seconds=TIME_LIMIT_SECONDS):
        """Waits until all these files have lyrics, and no longer than the program lives; what is missing then."""
        def missing():
            return [path.name for path in paths if not has_lyrics(path)]
        wait_until(lambda: process.poll() is not None or not missing(), seconds)
        return missing()

    def messages(self, lines=25):
        """The last messages of the program, from a sanitizer's report on where there is one; for a failure's text."""
        text = self.log.read_text(errors="replace") if self.log.exists() else ""
        shown = text.splitlines()
        report = next((number for number, line in enumerate(shown) if "Sanitizer" in line or "runtime error" in line), None)
        shown = shown[-lines:] if report is None else shown[report:report + lines]
        return "\nthe program's messages:\n" + "\n".join(shown)


def has_lyrics(path):
    """Whether lyrics can be read from the tag now; a file that is being written at this moment has none yet."""
    try:
        return bool(tags.lyrics_of(path))
    except Exception:  # mutagen raises whatever a half-written tag makes it raise
        return False


def digest(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def describe(paths):
    """Path -> what tests/support/read-tags.py finds in it."""
    output = subprocess.run(["/usr/bin/python3", READER, *paths], capture_output=True, check=True, text=True).stdout
    return {pathlib.Path(row["file"]): row for row in json.loads(output)}


class Songs:
    """Makes songs in a folder; what was encoded once is copied from then on."""

    def __init__(self, folder):
        self.folder = folder
        self.raw = folder.parent / "raw"
        self.raw.mkdir(exist_ok=True)

    def make(self, name, fields=None, **options):
        """A sound in the format that the name's suffix tells, with the fields and options of tags.write_tags."""
        path = self.folder / name
        shutil.copyfile(self.sound(path.suffix), path)
        if fields:
            tags.write_tags(path, fields, **options)
        return path

    def sound(self, suffix):
        path = self.raw / ("sound" + suffix)
        if not path.exists():
            if suffix == ".ape":
                path.write_bytes(monkeys_audio())
            else:
                audio.encode(path, seconds=2)
        return path

    def cover(self):
        path = self.raw / "cover.jpg"
        if not path.exists():
            audio.cover(path)
        return path.read_bytes()


def monkeys_audio():
    """The two headers of a Monkey's Audio 3.99 file (two seconds in stereo) and stuffing in place of its frames."""
    frames = bytes(range(256)) * 16
    descriptor = struct.pack("<4sHHIIIIIII16s", b"MAC ", 3990, 0, 52, 24, 8, 0, len(frames), 0, 0, bytes(16))
    header = struct.pack("<HHIIIHHI", 2000, 0, 73728, 14472, 2, 16, 2, 44100)
    return descriptor + header + struct.pack("<II", 84, 84 + len(frames) // 2) + frames


def sound_digest(path):
    """The digest of the sound alone; for Monkey's Audio, which has no decoder here, of all that comes before the tag."""
    if path.suffix == ".ape":
        return hashlib.sha256(path.read_bytes()[:len(monkeys_audio())]).hexdigest()
    return audio.packets_md5(path)
