# SPDX-License-Identifier: MIT
"""The dozen files of the demo: several formats, tagged and untagged, and the odd ones of every collection."""
import dataclasses
import pathlib
import tempfile

import audio
import tags
from catalogue import CORRECTIONS, LYRICS, SITE_OF

ORANGE, BLUE, GREEN, VIOLET = "C8704A", "4A80C8", "5CA57C", "8A62BC"


@dataclasses.dataclass(frozen=True)
class Song:
    """One file of the demo. Without `tagged` the file's name is all that tells artist and title."""

    name: str
    artist: str
    title: str
    album: str = ""
    colour: str = ""
    tagged: bool = True
    own_lyrics: str = ""
    is_audio: bool = True

    @property
    def expected(self):
        """The lyrics that its tag holds in the end, None when there are none to find."""
        if not self.is_audio or self.own_lyrics:
            return self.own_lyrics or None
        names = self.artist, self.title
        return LYRICS.get(CORRECTIONS.get(names, [names])[0])

    @property
    def site(self):
        """The site that has its lyrics; empty when none has or nobody asks."""
        return SITE_OF.get(self.title, "LyricsFreak") if self.expected and not self.own_lyrics else ""


SONGS = [
    Song("01 - Harbour Lights.flac", "Nora Vale", "Harbour Lights", "Paper Fleet", ORANGE),
    Song("02 - Paper Boats.flac", "Nora Vale", "Paper Boats", "Paper Fleet", ORANGE),
    Song("Северный Ветер - Слово за слово.mp3", "Северный Ветер", "Слово за слово", "Лёд", BLUE),
    Song("low_tide_live.ogg", "The Cartographers", "Low Tide (Live)", "Legend and Scale", GREEN),
    Song("Ida & Tom - Seventh Street.m4a", "Ida & Tom", "Seventh Street"),
    Song("glass_mountain.opus", "The Cartographers", "Glass Mountain", "Legend and Scale", GREEN),
    Song("Marl - Undertow.wma", "Marl", "Undertow", "Undertow", VIOLET),
    Song("café d'hiver.aiff", "Agnès Rivière", "Café d'hiver", "Comptoir", BLUE),
    Song("Nora Vale - Second Kettle.mp3", "Nora Vale", "Second Kettle", tagged=False),
    Song("legend and scale.mp3", "The Kartografers", "Legend and Scale", "Legend and Scale", GREEN),
    Song("03 - Windowsill.mp3", "Nora Vale", "Windowsill", "Paper Fleet", ORANGE,
         own_lyrics="A jar of pebbles, a jar of rain,\nI had these words before the train."),
    Song("Nobody Yet - Never Written.mp3", "Nobody Yet", "Never Written"),
    Song("track07.mp3", "", "", tagged=False, is_audio=False),
]


def make_song(song, folder, covers):
    path = folder / song.name
    if not song.is_audio:
        path.write_text("This is a shopping list that somebody named like a song.\n", encoding="utf-8")
        return
    audio.encode(path, seconds=4, pitch=180 + 20 * SONGS.index(song))
    if song.tagged:
        fields = {"artist": song.artist, "title": song.title, "album": song.album}
        cover = covers[song.colour].read_bytes() if song.colour else None
        tags.write_tags(path, {name: text for name, text in fields.items() if text}, cover, song.own_lyrics)


def make_songs(folder):
    """Makes all songs in the folder, which is made when it is missing; returns their paths in order."""
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as scratch:
        covers = {colour: pathlib.Path(scratch, colour + ".jpg") for colour in (ORANGE, BLUE, GREEN, VIOLET)}
        for colour, path in covers.items():
            audio.cover(path, colour)
        for song in SONGS:
            make_song(song, folder, covers)
    return [folder / song.name for song in SONGS]
