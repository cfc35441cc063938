#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Makes the short songs that the tests work on: real audio from ffmpeg, tags from mutagen.

Usage: make-samples.py DIRECTORY. Does nothing when the directory was filled by this very version of the script.

Unless said otherwise a song is called "The Song" by "The Artist", on "The Album", 2001, track 3/9, genre "Rock".

  plain-v23.mp3        ID3v2.3                     plain-v24.mp3       ID3v2.4
  v1-only.mp3          ID3v1 alone                 v1-and-v2.mp3       ID3v2.3 and ID3v1
  v1-fills-v2.mp3      ID3v2.3 without a title, ID3v1 with "Title Of One"
  untagged.mp3         no tag at all               apev2.mp3           ID3v2.3 and an APE tag
  cover.mp3            ID3v2.3, back cover 100x400 (its only picture)
  two-artists.mp3      ID3v2.4, "First Artist" and "Second Artist" in one TPE1 frame
  lyrics.mp3           ID3v2.4, two USLT frames    rated.mp3           ID3v2.3, three POPM frames, of other programs too
  rich.mp3             ID3v2.4, cover, private, user text, comment and popularity frames beside the usual ones
  plain.flac, plain.ogg, plain.opus                Vorbis comments     plain.wma    ASF attributes, rating and picture
  block-cover.flac     picture block 60x40 and an older picture 40x30 in the comment
  comment-cover.flac   picture 60x40 in the comment alone               id3.flac     ID3v2 before a FLAC stream
  cover.ogg            picture 60x40 in the comment                     lyrics.ogg   with a LYRICS field
  plain.m4a            with a rating               rich.m4a            cover, lyrics, free-form item
  lyrics.wma           with WM/Lyrics              plain.aiff          ID3v2 chunk
  id3.wav              ID3v2 chunk with USLT       info.wav            RIFF INFO alone
  plain.ape            header and stuffing that no player decodes, APE tag     plain.wv     APE tag
"""
import base64
import hashlib
import pathlib
import struct
import subprocess
import sys
import zlib

from mutagen.aiff import AIFF
from mutagen.apev2 import APEv2
from mutagen.asf import ASF, ASFByteArrayAttribute
from mutagen.flac import FLAC, Picture
from mutagen.id3 import APIC, COMM, ID3, POPM, PRIV, TALB, TBPM, TCOM, TCON, TDRC, TIT2, TPE1, TPE2, TPOS, TRCK, TXXX, USLT
from mutagen.mp4 import MP4, MP4Cover, MP4FreeForm
from mutagen.oggopus import OggOpus
from mutagen.oggvorbis import OggVorbis
from mutagen.wave import WAVE

BASIC = {"title": "The Song", "artist": "The Artist", "album": "The Album", "date": "2001", "genre": "Rock"}


def png(width, height, red, green, blue):
    """A PNG of one colour."""
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    row = b"\0" + bytes((red, green, blue)) * width
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(row * height)) + chunk(b"IEND", b""))


TALL = png(100, 400, 200, 30, 30)
WIDE = png(60, 40, 30, 200, 30)
SMALL = png(40, 30, 30, 30, 200)


def encode(target, *options):
    """Two seconds of a rising tone with some noise, so that no two packets are alike."""
    source = "aevalsrc=0.4*sin(440*t*(2+t))+0.05*random(0):s=44100:d=2"
    command = ["ffmpeg", "-v", "error", "-nostdin", "-y", "-f", "lavfi", "-i", source, "-map_metadata", "-1",
               "-fflags", "+bitexact", "-flags:a", "+bitexact", *options, str(target)]
    subprocess.run(command, check=True)


def flac_picture(data, description):
    picture = Picture()
    picture.type, picture.mime, picture.desc, picture.data = 3, "image/png", description, data
    return picture


def comment_picture(data):
    return base64.b64encode(flac_picture(data, "from the comment").write()).decode("ascii")


def id3_basics(tag, artists=("The Artist",), encoding=3):
    for frame in (TIT2(encoding=encoding, text="The Song"), TPE1(encoding=encoding, text=list(artists)),
                  TALB(encoding=encoding, text="The Album"), TDRC(encoding=encoding, text="2001"),
                  TCON(encoding=encoding, text="Rock"), TRCK(encoding=encoding, text="3/9")):
        tag.add(frame)


def id3v1(title="The Song", artist="The Artist"):
    def field(text, size):
        return text.encode("latin-1").ljust(size, b"\0")
    return b"TAG" + field(title, 30) + field(artist, 30) + field("The Album", 30) + b"2001" + field("old", 30) + b"\x11"


def make_mp3s(directory):
    encode(directory / "untagged.mp3", "-c:a", "libmp3lame", "-b:a", "64k", "-id3v2_version", "0", "-write_id3v1", "0")
    audio = (directory / "untagged.mp3").read_bytes()

    def tagged(name, version, *frames, artists=("The Artist",), tail=b""):
        path = directory / name
        path.write_bytes(audio + tail)
        tag = ID3()
        id3_basics(tag, artists, 3 if version == 4 else 1)
        for frame in frames:
            tag.add(frame)
        # v1=1 keeps an ID3v1 tag that is there and makes none.
        tag.save(path, v1=1, v2_version=version, v23_sep="/")
        return path

    extended = (TPOS(encoding=1, text="1/2"), TBPM(encoding=1, text="120"), TCOM(encoding=1, text="The Composer"),
                TPE2(encoding=1, text="Album Artist"))
    tagged("plain-v23.mp3", 3, *extended)
    tagged("plain-v24.mp3", 4, *extended)
    (directory / "v1-only.mp3").write_bytes(audio + id3v1())
    tagged("v1-and-v2.mp3", 3, tail=id3v1())
    (directory / "v1-and-v2.mp3").write_bytes((directory / "v1-and-v2.mp3").read_bytes()[:-128] + id3v1())
    path = tagged("v1-fills-v2.mp3", 3)
    tag = ID3(path)
    tag.delall("TIT2")
    tag.save(path, v1=0, v2_version=3)
    path.write_bytes(path.read_bytes() + id3v1("Title Of One", "Artist Of One"))
    path = tagged("apev2.mp3", 3)
    tag = APEv2()
    tag["Title"], tag["Artist"], tag["Mood"] = "The Song", "The Artist", "calm"
    tag.save(path)
    tagged("cover.mp3", 3, APIC(encoding=0, mime="image/png", type=4, desc="back", data=TALL))
    tagged("two-artists.mp3", 4, artists=("First Artist", "Second Artist"))
    tagged("lyrics.mp3", 4, USLT(encoding=3, lang="eng", desc="", text="Old words\r\nof caf\u00e9"),
           USLT(encoding=3, lang="deu", desc="other", text="Alte Worte"))
    tagged("rated.mp3", 3, POPM(email="someone@player.example", rating=10, count=7),
           POPM(email="Windows Media Player 9 Series", rating=196, count=0), POPM(email="zz", rating=255, count=1))
    tagged("rich.mp3", 4, *extended, APIC(encoding=3, mime="image/png", type=3, desc="front", data=WIDE),
           PRIV(owner="org.example", data=b"\0\1\2\xff"), TXXX(encoding=3, desc="Mood", text=["calm", "sad"]),
           COMM(encoding=3, lang="eng", desc="", text="A comment"), POPM(email="someone@player.example", rating=10, count=7))


def make_xiphs(directory):
    encode(directory / "plain.flac", "-c:a", "flac")
    encode(directory / "plain.ogg", "-c:a", "libvorbis", "-b:a", "64k")
    encode(directory / "plain.opus", "-c:a", "libopus", "-b:a", "48k")
    for name in ("block-cover.flac", "comment-cover.flac", "id3.flac"):
        (directory / name).write_bytes((directory / "plain.flac").read_bytes())
    for name in ("cover.ogg", "lyrics.ogg"):
        (directory / name).write_bytes((directory / "plain.ogg").read_bytes())

    def tagged(kind, name, **more):
        song = kind(directory / name)
        song.delete()
        if song.tags is None:
            song.add_tags()
        for key, value in {**BASIC, "tracknumber": "3", "tracktotal": "9", **more}.items():
            song[key] = value
        song.save()
        return song

    tagged(FLAC, "plain.flac", discnumber="1", bpm="120", composer="The Composer", albumartist="Album Artist", rating="80",
           mood=["calm", "sad"])
    song = tagged(FLAC, "block-cover.flac", metadata_block_picture=comment_picture(SMALL))
    song.add_picture(flac_picture(WIDE, "from the block"))
    song.save()
    tagged(FLAC, "comment-cover.flac", metadata_block_picture=comment_picture(WIDE))
    tagged(FLAC, "id3.flac")
    tag = ID3()
    id3_basics(tag)
    tag.save(directory / "id3.flac", v1=0)
    tagged(OggVorbis, "plain.ogg")
    tagged(OggVorbis, "cover.ogg", metadata_block_picture=comment_picture(WIDE))
    tagged(OggVorbis, "lyrics.ogg", lyrics="Old words\nof caf\u00e9")
    tagged(OggOpus, "plain.opus")


def make_mp4s(directory):
    encode(directory / "plain.m4a", "-c:a", "aac", "-b:a", "64k", "-movflags", "+faststart")
    (directory / "rich.m4a").write_bytes((directory / "plain.m4a").read_bytes())

    def tagged(name, **more):
        song = MP4(directory / name)
        song.delete()
        song["\xa9nam"], song["\xa9ART"], song["\xa9alb"] = "The Song", "The Artist", "The Album"
        song["\xa9day"], song["\xa9gen"], song["trkn"], song["disk"] = "2001", "Rock", [(3, 9)], [(1, 0)]
        song["tmpo"], song["\xa9wrt"], song["aART"], song["rate"] = [120], "The Composer", "Album Artist", "100"
        for key, value in more.items():
            song[key] = value
        return song

    tagged("plain.m4a").save()
    song = tagged("rich.m4a", covr=[MP4Cover(WIDE, MP4Cover.FORMAT_PNG)])
    song["\xa9lyr"] = "Old words\nof caf\u00e9"
    song["----:org.example:mood"] = MP4FreeForm(b"calm")
    song.save()


def make_wmas(directory):
    encode(directory / "plain.wma", "-c:a", "wmav2", "-b:a", "64k")
    (directory / "lyrics.wma").write_bytes((directory / "plain.wma").read_bytes())
    for name in ("plain.wma", "lyrics.wma"):
        song = ASF(directory / name)
        song["Title"], song["Author"], song["WM/AlbumTitle"] = "The Song", "The Artist", "The Album"
        song["WM/Year"], song["WM/Genre"], song["WM/TrackNumber"] = "2001", "Rock", "3"
        song["WM/BeatsPerMinute"], song["WM/Composer"], song["WM/AlbumArtist"] = "120", "The Composer", "Album Artist"
        song["WM/PartOfSet"], song["WM/SharedUserRating"], song["Mood"] = "1/2", 75, "calm"
        description = "front".encode("utf-16-le") + b"\0\0"
        song["WM/Picture"] = ASFByteArrayAttribute(
            struct.pack("<BI", 3, len(WIDE)) + "image/png".encode("utf-16-le") + b"\0\0" + description + WIDE)
        if name == "lyrics.wma":
            song["WM/Lyrics"] = "Old words\nof caf\u00e9"
        song.save()


def make_riffs(directory):
    encode(directory / "id3.wav", "-c:a", "pcm_s16le")
    encode(directory / "info.wav", "-c:a", "pcm_s16le", "-metadata", "title=The Song", "-metadata", "artist=The Artist",
           "-metadata", "album=The Album")
    encode(directory / "plain.aiff", "-c:a", "pcm_s16be")
    song = WAVE(directory / "id3.wav")
    song.add_tags()
    id3_basics(song.tags)
    song.tags.add(USLT(encoding=3, lang="eng", desc="", text="Old words"))
    song.save()
    song = AIFF(directory / "plain.aiff")
    song.add_tags()
    id3_basics(song.tags)
    song.save()


def make_apes(directory):
    """The header of a Monkey's Audio 3.99 file (52 bytes of descriptor, 24 of header) before stuffing that stands for frames."""
    frames = bytes(range(256)) * 16
    descriptor = struct.pack("<4sHHIIIIIII16s", b"MAC ", 3990, 0, 52, 24, 8, 0, len(frames), 0, 0, b"\0" * 16)
    header = struct.pack("<HHIIIHHI", 2000, 0, 73728, 14472, 2, 16, 2, 44100)
    path = directory / "plain.ape"
    path.write_bytes(descriptor + header + struct.pack("<II", 84, 84 + len(frames) // 2) + frames)
    encode(directory / "plain.wv", "-c:a", "wavpack")
    for name in ("plain.ape", "plain.wv"):
        tag = APEv2()
        tag["Title"], tag["Artist"], tag["Album"], tag["Year"] = "The Song", "The Artist", "The Album", "2001"
        tag["Genre"], tag["Track"], tag["Mood"] = "Rock", "3/9", "calm"
        tag.save(directory / name)


def main():
    directory = pathlib.Path(sys.argv[1])
    stamp = directory / ".made-by"
    version = hashlib.sha256(pathlib.Path(__file__).read_bytes()).hexdigest()
    if stamp.exists() and stamp.read_text() == version:
        return
    directory.mkdir(parents=True, exist_ok=True)
    for make in (make_mp3s, make_xiphs, make_mp4s, make_wmas, make_riffs, make_apes):
        make(directory)
    stamp.write_text(version)


if __name__ == "__main__":
    main()
