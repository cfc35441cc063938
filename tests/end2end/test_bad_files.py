#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Files that cannot be read, are no audio, or have names that break programs. A last song tells when all were seen."""
import os
import pathlib
import shutil
import unittest

import rig

SENTINEL = "Willow Fence"
NOBODY = 65534

# Names of sound files that must get their lyrics: sentence, name, title.
NAMES = [
    ("a number sign", "a#b.mp3", "Amber Gate"),
    ("a percent sign, and what looks like an escape", "50%20 off%.mp3", "Birch Road"),
    ("a line break", "two\nlines.mp3", "Copper Rain"),
    ("a question mark and a semicolon", "why?;.flac", "Drift Wood"),
    ("quotes, a backslash and a comma", 'a "b" \\c, d.ogg', "Ember Hill"),
    ("a hyphen in front", "-n.mp3", "Fern Lane"),
    ("spaces at both ends", " x .mp3", "Granite Sky"),
    ("letters of three alphabets", "ёж ß 歌.m4a", "Hazel Moon"),
    ("255 bytes", "x" * 251 + ".mp3", "Iron Lake"),
]
# Files that are no audio, by names that hold artist and title: sentence, title, suffix, content.
NO_AUDIO = [
    ("an empty file", "Juniper Wall", ".mp3", b""),
    ("a text", "Kestrel Field", ".mp3", b"Nothing but a shopping list.\n" * 40),
    ("a text called FLAC", "Linen Clouds", ".flac", b"Nothing but a shopping list.\n" * 40),
    ("zeros", "Marble Stairs", ".ogg", bytes(100_000)),
    ("a picture", "Nettle Song", ".m4a", b"\x89PNG\r\n\x1a\n" + bytes(5000)),
    ("half a header", "Orchard Bell", ".wma", b"\x30\x26\xb2\x75\x8e\x66\xcf\x11"),
]


class BadFilesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        titles = [row[2] for row in NAMES] + [row[1] for row in NO_AUDIO] + ["Pewter Dawn", "Quartz Path", SENTINEL]
        cls.session = cls.enterClassContext(rig.Session({title: rig.words_for(title) for title in titles}))
        cls.music = cls.session.music
        songs = rig.Songs(cls.music)

        def song(name, title):
            return songs.make(name, {"artist": rig.ARTIST, "title": title})

        cls.good = [song(name, title) for _, name, title in NAMES]
        cls.junk = [cls.music / f"{rig.ARTIST} - {title}{suffix}" for _, title, suffix, _ in NO_AUDIO]
        for path, (_, _, _, content) in zip(cls.junk, NO_AUDIO):
            path.write_bytes(content)
        cls.unreadable = song(f"{rig.ARTIST} - Pewter Dawn.mp3", "Pewter Dawn")
        # No url can say this name in a way that every program understands; it must only do no harm.
        cls.odd = song("odd.mp3", "Quartz Path").rename(pathlib.Path(os.fsdecode(os.fsencode(cls.music) + b"/\xff\xfe.mp3")))
        cls.vanished = cls.music / f"{rig.ARTIST} - Nowhere.mp3"
        cls.folder = cls.music / f"{rig.ARTIST} - Folder.mp3"
        cls.folder.mkdir()
        cls.pipe = cls.music / f"{rig.ARTIST} - Pipe.mp3"
        os.mkfifo(cls.pipe)
        cls.sentinel = song("last.mp3", SENTINEL)
        cls.digests = {path: rig.digest(path) for path in [*cls.junk, cls.unreadable]}
        cls.unreadable.chmod(0)
        cls.listing = set(os.listdir(os.fsencode(cls.music)))
        cls.run_as_ordinary_user()

    @classmethod
    def run_as_ordinary_user(cls):
        """Nothing is unreadable for root: as root the program runs as nobody, from a place that nobody can reach."""
        prefix, environment = (), {}
        if os.getuid() == 0:
            if shutil.which("setpriv") is None:
                raise RuntimeError("setpriv is needed to run the program as an ordinary user")
            program = shutil.copy(rig.PROGRAM, cls.session.stage.home / "versewell")
            cls.session.stage.program = pathlib.Path(program)
            prefix = ("setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups")
            # The list of known leaks may lie where nobody can read it; the other suites look for leaks.
            environment = {"ASAN_OPTIONS": "detect_leaks=0", "LSAN_OPTIONS": ""}
        odd_entries = ["not a url", "http://127.0.0.1/x.mp3", "file:///"]
        files = [*odd_entries, cls.unreadable, cls.vanished, cls.folder, cls.pipe, cls.odd, *cls.junk, *cls.good, cls.sentinel]
        cls.session.stage.write_settings(files, cls.session.sites.endpoints())
        cls.session.log.touch()
        if prefix:
            hand_over(cls.session.stage.home)
        program = cls.session.start(None, *prefix, **environment)
        cls.missing = cls.session.wait_for_lyrics(program, [*cls.good, cls.sentinel])
        cls.lived = program.poll() is None
        cls.status = rig.end(program) if cls.lived else program.returncode

    def test_the_program_lived_and_ended_in_order(self):
        self.assertTrue(self.lived, f"it ended by itself with {self.status}" + self.session.messages())
        self.assertEqual(self.status, 0, self.session.messages())

    def test_songs_with_odd_names_have_their_lyrics(self):
        for (sentence, _, title), path in zip(NAMES, self.good):
            with self.subTest(sentence):
                found = rig.tags.lyrics_of(path)
                self.assertEqual(found and found.replace("\r\n", "\n"), rig.words_for(title), self.session.messages())

    def test_what_is_no_audio_is_not_touched(self):
        for (sentence, *_), path in zip(NO_AUDIO, self.junk):
            with self.subTest(sentence):
                self.assertEqual(rig.digest(path), self.digests[path])

    def test_a_file_that_may_not_be_read_is_not_touched(self):
        self.assertEqual(self.unreadable.stat().st_mode & 0o777, 0)
        self.unreadable.chmod(0o400)  # for whoever runs the tests
        self.assertEqual(rig.digest(self.unreadable), self.digests[self.unreadable])

    def test_the_sound_under_an_odd_name_is_whole(self):
        self.assertEqual(rig.sound_digest(self.odd), rig.sound_digest(self.sentinel))

    def test_no_file_was_made_or_lost(self):
        self.assertEqual(set(os.listdir(os.fsencode(self.music))), self.listing)



def hand_over(folder):
    """Gives a folder and all in it to the ordinary user."""
    for path in [folder, *folder.rglob("*")]:
        os.chown(path, NOBODY, NOBODY, follow_symlinks=False)


if __name__ == "__main__":
    unittest.main()
