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
import shutil
import struct
import subprocess
import sys
import zlib

from mutagen.apev2 import APEv2
from mutagen.asf import ASFByteArrayAttribute
from mutagen.flac import Picture
from mutagen.id3 import APIC, COMM, ID3, POPM, PRIV, TBPM, TCOM, TPE2, TPOS, TXXX, USLT
from mutagen.mp4 import MP4Cover, MP4FreeForm

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "demo"))
import tags  # noqa: E402

BASIC = {"title": "The Song", "artist": "The Artist", "album": "The Album", "date": "2001", "genre": "Rock"}
WORDS = "Old words\nof caf\u00e9"
CODECS = {
    "untagged.mp3": "-c:a libmp3lame -b:a 64k -id3v2_version 0 -write_id3v1 0", "plain.flac": "-c:a flac",
    "plain.ogg": "-c:a libvorbis -b:a 64k", "plain.opus": "-c:a libopus -b:a 48k", "plain.wma": "-c:a wmav2 -b:a 64k",
    "plain.m4a": "-c:a aac -b:a 64k -movflags +faststart", "id3.wav": "-c:a pcm_s16le", "plain.aiff": "-c:a pcm_s16be",
    "plain.wv": "-c:a wavpack",
    "info.wav": "-c:a pcm_s16le -metadata title=The\tSong -metadata artist=The\tArtist -metadata album=The\tAlbum",
}


def png(width, height, red, green, blue):
    """A PNG of one colour."""
    row = b"\0" + bytes((red, green, blue)) * width
    parts = ((b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)), (b"IDAT", zlib.compress(row * height)),
             (b"IEND", b""))
    return b"\x89PNG\r\n\x1a\n" + b"".join(
        struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data)) for kind, data in parts)


WIDE = png(60, 40, 30, 200, 30)


def encode(target, options):
    """Two seconds of a rising tone with some noise, so that no two packets are alike."""
    source = "aevalsrc=0.4*sin(440*t*(2+t))+0.05*random(0):s=44100:d=2"
    words = [option.replace("\t", " ") for option in options.split(" ")]
    command = ["ffmpeg", "-v", "error", "-nostdin", "-y", "-f", "lavfi", "-i", source, "-map_metadata", "-1",
               "-fflags", "+bitexact", "-flags:a", "+bitexact", *words, str(target)]
    subprocess.run(command, check=True)


def flac_picture(data, description):
    picture = Picture()
    picture.type, picture.mime, picture.desc, picture.data = 3, "image/png", description, data
    return picture


def comment_picture(data):
    return base64.b64encode(flac_picture(data, "from the comment").write()).decode("ascii")


def tagged(path, fields, more, source=None):
    """A copy of the source with the fields that demo/tags.py knows and more of the format's own; opened, not saved."""
    if source:
        shutil.copyfile(path.parent / source, path)
    tags.write_tags(path, fields)
    song = tags.open_file(path)
    for key, value in more.items():
        song.tags[key] = value
    return song


def id3v1(title="The Song", artist="The Artist"):
    def field(text):
        return text.encode("latin-1").ljust(30, b"\0")
    return b"TAG" + field(title) + field(artist) + field("The Album") + b"2001" + field("old") + b"\x11"


def make_mp3s(directory):
    """Also answers with an ID3v2 tag for other formats."""
    audio = (directory / "untagged.mp3").read_bytes()

    def mp3(name, version, *frames, without="none", tail=b"", **fields):
        path = directory / name
        path.write_bytes(audio)
        tags.write_tags(path, {**BASIC, "track": "3/9", **fields}, id3_version=version)
        tag = ID3(path)
        tag.delall(without)
        for frame in frames:
            tag.add(frame)
        tag.save(path, v1=0, v2_version=version)
        path.write_bytes(path.read_bytes() + tail)
        return path

    extended = (TPOS(encoding=1, text="1/2"), TBPM(encoding=1, text="120"), TCOM(encoding=1, text="The Composer"),
                TPE2(encoding=1, text="Album Artist"))
    mp3("plain-v23.mp3", 3, *extended)
    mp3("plain-v24.mp3", 4, *extended)
    (directory / "v1-only.mp3").write_bytes(audio + id3v1())
    mp3("v1-and-v2.mp3", 3, tail=id3v1())
    mp3("v1-fills-v2.mp3", 3, without="TIT2", tail=id3v1("Title Of One", "Artist Of One"))
    tag = APEv2()
    tag["Title"], tag["Artist"], tag["Mood"] = "The Song", "The Artist", "calm"
    tag.save(mp3("apev2.mp3", 3))
    mp3("cover.mp3", 3, APIC(encoding=0, mime="image/png", type=4, desc="back", data=png(100, 400, 200, 30, 30)))
    mp3("two-artists.mp3", 4, artist=["First Artist", "Second Artist"])
    mp3("lyrics.mp3", 4, USLT(encoding=3, lang="eng", desc="", text=WORDS.replace("\n", "\r\n")),
        USLT(encoding=3, lang="deu", desc="other", text="Alte Worte"))
    someone = POPM(email="someone@player.example", rating=10, count=7)
    mp3("rated.mp3", 3, someone, POPM(email="Windows Media Player 9 Series", rating=196, count=0),
        POPM(email="zz", rating=255, count=1))
    mp3("rich.mp3", 4, *extended, APIC(encoding=3, mime="image/png", type=3, desc="front", data=WIDE),
        PRIV(owner="org.example", data=b"\0\1\2\xff"), TXXX(encoding=3, desc="Mood", text=["calm", "sad"]),
        COMM(encoding=3, lang="eng", desc="", text="A comment"), someone)
    plain = mp3("tag.mp3", 4)
    id3 = plain.read_bytes().removesuffix(audio)
    plain.unlink()
    return id3


def make_xiphs(directory, id3):
    fields = {**BASIC, "track": "3"}

    def xiph(name, **more):
        source = "plain" + pathlib.Path(name).suffix
        return tagged(directory / name, fields, {"tracktotal": "9", **more}, source if source != name else None)

    song = xiph("block-cover.flac", metadata_block_picture=comment_picture(png(40, 30, 30, 30, 200)))
    song.add_picture(flac_picture(WIDE, "from the block"))
    song.save()
    xiph("comment-cover.flac", metadata_block_picture=comment_picture(WIDE)).save()
    id3_flac = directory / "id3.flac"
    xiph(id3_flac.name).save()
    id3_flac.write_bytes(id3 + id3_flac.read_bytes())
    xiph("cover.ogg", metadata_block_picture=comment_picture(WIDE)).save()
    xiph("lyrics.ogg", lyrics=WORDS).save()
    xiph("plain.ogg").save()
    xiph("plain.opus").save()
    xiph("plain.flac", discnumber="1", bpm="120", composer="The Composer", albumartist="Album Artist", rating="80",
         mood=["calm", "sad"]).save()


def make_others(directory):
    more = {"trkn": [(3, 9)], "disk": [(1, 0)], "tmpo": [120], "\xa9wrt": "The Composer", "aART": "Album Artist",
            "rate": "100"}
    rich = {**more, "covr": [MP4Cover(WIDE, MP4Cover.FORMAT_PNG)], "\xa9lyr": WORDS,
            "----:org.example:mood": MP4FreeForm(b"calm")}
    tagged(directory / "rich.m4a", BASIC, rich, "plain.m4a").save()
    tagged(directory / "plain.m4a", BASIC, more).save()

    texts = "image/png\0front\0".encode("utf-16-le")
    more = {"WM/BeatsPerMinute": "120", "WM/Composer": "The Composer", "WM/AlbumArtist": "Album Artist",
            "WM/PartOfSet": "1/2", "WM/SharedUserRating": 75, "Mood": "calm",
            "WM/Picture": ASFByteArrayAttribute(struct.pack("<BI", 3, len(WIDE)) + texts + WIDE)}
    fields = {**BASIC, "track": "3"}
    tagged(directory / "lyrics.wma", fields, {**more, "WM/Lyrics": WORDS}, "plain.wma").save()
    tagged(directory / "plain.wma", fields, more).save()

    fields = {**BASIC, "track": "3/9"}
    tags.write_tags(directory / "id3.wav", fields, lyrics="Old words")
    tags.write_tags(directory / "plain.aiff", fields)
    # The header of a Monkey's Audio 3.99 file (52 bytes of descriptor, 24 of header) before stuffing in place of frames.
    frames = bytes(range(256)) * 16
    descriptor = struct.pack("<4sHHIIIIIII16s", b"MAC ", 3990, 0, 52, 24, 8, 0, len(frames), 0, 0, b"\0" * 16)
    header = struct.pack("<HHIIIHHI", 2000, 0, 73728, 14472, 2, 16, 2, 44100)
    path = directory / "plain.ape"
    path.write_bytes(descriptor + header + struct.pack("<II", 84, 84 + len(frames) // 2) + frames)
    for name in ("plain.ape", "plain.wv"):
        tag = APEv2()
        tag.update({"Title": "The Song", "Artist": "The Artist", "Album": "The Album", "Year": "2001", "Genre": "Rock",
                    "Track": "3/9", "Mood": "calm"})
        tag.save(directory / name)


def main():
    directory = pathlib.Path(sys.argv[1])
    stamp = directory / ".made-by"
    version = hashlib.sha256(pathlib.Path(__file__).read_bytes() + pathlib.Path(tags.__file__).read_bytes()).hexdigest()
    if stamp.exists() and stamp.read_text() == version:
        return
    directory.mkdir(parents=True, exist_ok=True)
    for name, options in CODECS.items():
        encode(directory / name, options)
    make_xiphs(directory, make_mp3s(directory))
    make_others(directory)
    stamp.write_text(version)


if __name__ == "__main__":
    main()
