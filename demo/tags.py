# SPDX-License-Identifier: MIT
"""Reads and writes the tags of the generated songs with mutagen, which shares no code with the program."""
import base64
import pathlib
import struct

import mutagen
from mutagen import aiff, apev2, asf, flac, id3, mp3, mp4, oggopus, oggvorbis, wave

FIELDS = ("artist", "title", "album", "date", "genre", "comment", "track")
ID3_FRAMES = {"artist": id3.TPE1, "title": id3.TIT2, "album": id3.TALB, "date": id3.TDRC, "genre": id3.TCON, "track": id3.TRCK}
MP4_ITEMS = {"artist": "\xa9ART", "title": "\xa9nam", "album": "\xa9alb", "date": "\xa9day", "genre": "\xa9gen", "comment": "\xa9cmt"}
ASF_NAMES = {"artist": "Author", "title": "Title", "album": "WM/AlbumTitle", "date": "WM/Year", "genre": "WM/Genre",
             "comment": "Description", "track": "WM/TrackNumber"}
APE_NAMES = {"artist": "Artist", "title": "Title", "album": "Album", "date": "Year", "genre": "Genre", "comment": "Comment", "track": "Track"}
FRONT_COVER = 3


def open_file(path):
    """The file as mutagen sees it, or None when it knows no audio in it. The name decides on the format."""
    kinds = {".mp3": mp3.MP3, ".flac": flac.FLAC, ".ogg": oggvorbis.OggVorbis, ".opus": oggopus.OggOpus, ".m4a": mp4.MP4,
             ".wma": asf.ASF, ".wav": wave.WAVE, ".aiff": aiff.AIFF, ".ape": apev2.APEv2File}
    try:
        return kinds[pathlib.Path(path).suffix.lower()](path)
    except (KeyError, mutagen.MutagenError):
        return None


def lyrics_of(path):
    """The lyrics as they stand in the tag, None when there are none."""
    audio = open_file(path)
    tags = audio.tags if audio is not None else None
    if tags is None:
        return None
    if isinstance(tags, id3.ID3):
        frames = tags.getall("USLT")
        return frames[0].text if frames else None
    if isinstance(tags, mp4.MP4Tags):
        values = tags.get("\xa9lyr")
    elif isinstance(tags, asf.ASFTags):
        values = tags.get("WM/Lyrics")
    elif isinstance(tags, apev2.APEv2):
        return str(tags["Lyrics"]) if "Lyrics" in tags else None
    else:
        values = tags.get("lyrics")
    return str(values[0]) if values else None


def write_id3(tags, fields, cover, lyrics):
    for name, values in fields.items():
        if name == "comment":
            tags.add(id3.COMM(encoding=3, lang="eng", desc="", text=values))
        else:
            tags.add(ID3_FRAMES[name](encoding=3, text=values))
    if cover:
        tags.add(id3.APIC(encoding=0, mime="image/jpeg", type=FRONT_COVER, desc="", data=cover))
    if lyrics:
        tags.add(id3.USLT(encoding=3, lang="eng", desc="", text=lyrics))


def write_vorbis(audio, fields, cover, lyrics):
    for name, values in fields.items():
        audio.tags[{"track": "tracknumber"}.get(name, name)] = values
    if lyrics:
        audio.tags["lyrics"] = lyrics
    if not cover:
        return
    picture = flac.Picture()
    picture.type, picture.mime, picture.data = FRONT_COVER, "image/jpeg", cover
    if isinstance(audio, flac.FLAC):
        audio.add_picture(picture)
    else:
        audio.tags["metadata_block_picture"] = base64.b64encode(picture.write()).decode()


def write_mp4(tags, fields, cover, lyrics):
    for name, values in fields.items():
        if name == "track":
            tags["trkn"] = [(int(values[0]), 0)]
        else:
            tags[MP4_ITEMS[name]] = values
    if cover:
        tags["covr"] = [mp4.MP4Cover(cover, mp4.MP4Cover.FORMAT_JPEG)]
    if lyrics:
        tags["\xa9lyr"] = lyrics


def write_asf(tags, fields, cover, lyrics):
    tags.update({ASF_NAMES[name]: values for name, values in fields.items()})
    if cover:
        header = struct.pack("<BI", FRONT_COVER, len(cover)) + "image/jpeg\0\0".encode("utf-16-le")
        tags["WM/Picture"] = [asf.ASFByteArrayAttribute(header + cover)]
    if lyrics:
        tags["WM/Lyrics"] = lyrics


def write_ape(tags, fields, cover, lyrics):
    tags.update({APE_NAMES[name]: values for name, values in fields.items()})
    if cover:
        tags["Cover Art (Front)"] = apev2.APEValue(b"cover.jpg\0" + cover, apev2.BINARY)
    if lyrics:
        tags["Lyrics"] = lyrics


def write_tags(path, fields, cover=None, lyrics=None, id3_version=4, id3v1=False, separator="/"):
    """Writes the fields (name of FIELDS -> text or list of texts), a JPEG cover and lyrics into the file's own tag.

    separator: what joins several values in one ID3v2.3 frame; None keeps them apart with NUL.
    """
    fields = {name: values if isinstance(values, list) else [values] for name, values in fields.items()}
    audio = open_file(path)
    if audio.tags is None:
        audio.add_tags()
    if isinstance(audio.tags, id3.ID3):
        write_id3(audio.tags, fields, cover, lyrics)
        if id3_version == 3:
            audio.tags.update_to_v23()
        options = {"v1": id3.ID3v1SaveOptions.CREATE if id3v1 else id3.ID3v1SaveOptions.REMOVE} if path.suffix == ".mp3" else {}
        audio.save(v2_version=id3_version, v23_sep=separator, **options)
        return
    for kind, write in ((mp4.MP4Tags, write_mp4), (asf.ASFTags, write_asf), (apev2.APEv2, write_ape)):
        if isinstance(audio.tags, kind):
            write(audio.tags, fields, cover, lyrics)
            break
    else:
        write_vorbis(audio, fields, cover, lyrics)
    audio.save()
