#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Songs of every format go through the program once; then another reader looks into their tags."""
import dataclasses
import re
import unittest

import mutagen.id3

import rig

LATIN1, UTF16, UTF8 = 0, 1, 3
PAIR = ["Nora Vale", "Ida & Tom"]


@dataclasses.dataclass
class Row:
    """A song without lyrics, and what is expected of its ID3 tags afterwards (None: not looked at)."""

    sentence: str
    name: str
    title: str
    artists: list = dataclasses.field(default_factory=lambda: [rig.ARTIST])
    options: dict = dataclasses.field(default_factory=dict)
    plain: bool = False
    id3: str = None
    encoding: int = None
    v1: bool = False
    tagged: bool = True
    v1_only: bool = False

    @property
    def words(self):
        return rig.words_for(self.title, self.plain)


ROWS = [
    Row("ID3v2.4 keeps its version and gets UTF-8", "four.mp3", "Amber Gate", id3="2.4.0", encoding=UTF8),
    Row("ID3v2.4 gets plain text as Latin-1", "plain.mp3", "Birch Road", plain=True, id3="2.4.0", encoding=LATIN1),
    Row("ID3v2.3 keeps its version and gets UTF-16", "three.mp3", "Copper Rain", options={"id3_version": 3}, id3="2.3.0",
        encoding=UTF16),
    Row("ID3v1 beside ID3v2 is kept", "both.mp3", "Drift Wood", options={"id3_version": 3, "id3v1": True}, id3="2.3.0", v1=True),
    Row("ID3v1 alone is kept, ID3v2.3 is added", "one.mp3", "Ember Hill", options={"id3v1": True}, id3="2.3.0", v1=True, v1_only=True),
    Row("a song without a tag gets ID3v2.3 alone", f"{rig.ARTIST} - Fern Lane.mp3", "Fern Lane", id3="2.3.0", tagged=False),
    Row("two artists of one ID3v2.4 frame", "pair4.mp3", "Granite Sky", PAIR, id3="2.4.0"),
    Row("two artists of one ID3v2.3 frame", "pair3.mp3", "Hazel Moon", PAIR, {"id3_version": 3, "separator": None}, id3="2.3.0"),
    Row("two artists of a Vorbis comment", "pair.flac", "Iron Lake", PAIR),
    Row("FLAC", "a.flac", "Juniper Wall"),
    Row("Ogg Vorbis", "a.ogg", "Kestrel Field"),
    Row("Opus", "a.opus", "Linen Clouds"),
    Row("MP4", "a.m4a", "Marble Stairs"),
    Row("MP4 with two artists", "pair.m4a", "Nettle Song", PAIR),
    Row("ASF", "a.wma", "Orchard Bell"),
    Row("WAV", "a.wav", "Pewter Dawn"),
    Row("AIFF", "a.aiff", "Quartz Path"),
    Row("Monkey's Audio", "a.ape", "Russet Lamp"),
]
HAVE_LYRICS = {"has3.mp3": "Silver Reed", "has4.mp3": "Teal Harbor", "has.flac": "Umber Coast", "has.ogg": "Velvet Mill",
               "has.opus": "Willow Fence", "has.m4a": "Yarrow Bridge", "has.wma": "Zinc Meadow", "has.aiff": "Acorn Tower"}


def make_song(songs, row):
    if not row.tagged:
        return songs.make(row.name)
    fields = {"artist": row.artists, "title": row.title, "album": "Paper Fleet", "date": "2001", "genre": "Rock",
              "comment": "bought at the fair", "track": "3"}
    # The other reader does not know binary items of APE tags.
    cover = None if row.name.endswith(".ape") else songs.cover()
    path = songs.make(row.name, fields, cover=cover, **row.options)
    if row.v1_only:
        mutagen.id3.delete(path, delete_v1=False, delete_v2=True)
    return path


def comparable(row, description):
    """All but the lyrics of a tag. ASF has fixed places for some texts; an empty one there says nothing."""
    others = {name: values for name, values in description["others"].items() if any(values)}
    if row.v1_only:
        # An ID3v1 tag has its texts under names that differ a little from ID3v2's.
        texts = {re.sub(r"^(\w{4}).*?=", r"\1=", text) for values in others.values() for text in values}
        others = {text for text in texts if not text.startswith("COMM")}
    return {**{name: description[name] for name in ("title", "artists", "pictures")}, "others": others}


class FormatsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        lyrics = {(row.artists[0], row.title): row.words for row in ROWS}
        lyrics.update({(rig.ARTIST, title): "words from the site" for title in HAVE_LYRICS.values()})
        cls.session = cls.enterClassContext(rig.Session(lyrics))
        songs = rig.Songs(cls.session.music)
        cls.owners = [songs.make(name, {"artist": rig.ARTIST, "title": title}, lyrics="my own words, é",
                                 id3_version=3 if "3" in name else 4) for name, title in HAVE_LYRICS.items()]
        cls.paths = [make_song(songs, row) for row in ROWS]
        cls.before = rig.describe(cls.paths)
        cls.sounds = {path: rig.sound_digest(path) for path in cls.paths}
        cls.digests = {path: rig.digest(path) for path in cls.owners}

        program = cls.session.start([*cls.owners, *cls.paths])
        cls.missing = cls.session.wait_for_lyrics(program, cls.paths)
        cls.status = rig.end(program)
        cls.after = rig.describe(cls.paths)

    def test_every_song_got_its_lyrics_and_the_program_ended_in_order(self):
        self.assertEqual(self.missing, [], self.session.messages())
        self.assertEqual(self.status, 0, self.session.messages())

    def test_the_lyrics_are_in_the_tag_and_all_else_is_as_before(self):
        for row, path in zip(ROWS, self.paths):
            with self.subTest(row.sentence):
                before, found = self.before[path], self.after[path]
                # ID3v2 has CR LF between lines, everything else takes the text as it is.
                self.assertEqual(found["lyrics"], [row.words.replace("\n", "\r\n") if found["id3"] else row.words])
                self.assertEqual(comparable(row, found), comparable(row, before))
                self.assertEqual(found["artists"], row.artists if row.tagged else [])
                self.assertEqual(found["id3v1"] is not None, row.v1)
                self.assertEqual(found["id3v1"], before["id3v1"])
                if row.id3:
                    self.assertEqual(found["id3"], row.id3)
                if row.encoding is not None:
                    self.assertEqual(found["usltEncodings"], [row.encoding])
                self.assertEqual(rig.sound_digest(path), self.sounds[path])

    def test_files_with_lyrics_are_not_touched(self):
        for path, digest in self.digests.items():
            with self.subTest(path.name):
                self.assertEqual(rig.digest(path), digest)

    def test_every_song_is_searched_once(self):
        self.assertEqual(sorted(self.session.asked_titles()), sorted(row.title for row in ROWS))

    def test_nothing_is_left_beside_the_songs(self):
        self.assertEqual({path.name for path in self.session.music.iterdir()}, {path.name for path in [*self.paths, *self.owners]})


if __name__ == "__main__":
    unittest.main()
