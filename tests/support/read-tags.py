#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Prints as JSON what mutagen, a reader that shares no code with this project, finds in audio files.

Usage: read-tags.py FILE... prints an array with one object a file; without files, paths are read line by line, and each
is answered with one line of an object:
  format      name of mutagen's class, null when it does not know the file; then only "file" and "error" follow
  title, artists, lyrics (null when there are none; a list of one text for each frame or field)
  id3         "2.3.0", "2.4.0" or null        id3v1   the bytes of the ID3v1 tag at the end in hexadecimal, or null
  usltEncodings  0 Latin-1, 1 UTF-16, 3 UTF-8, one for each USLT frame
  ape         whether there is an APE tag     pictures  SHA-256 of the bytes of each picture
  others      every other frame, item or field that is not empty as text, by its name
  duration    seconds
"""
import base64
import hashlib
import json
import pathlib
import sys

import mutagen
from mutagen.apev2 import APENoHeaderError, APEv2
from mutagen.flac import Picture
from mutagen.id3 import ID3

# In lower case, since Vorbis comments and APE tags do not tell capitals from small letters.
TITLES = {"tit2", "title", "\xa9nam"}
ARTISTS = {"tpe1", "artist", "author", "\xa9art"}
LYRICS = {"uslt", "lyrics", "\xa9lyr", "wm/lyrics"}
PICTURES = {"apic", "covr", "wm/picture", "metadata_block_picture", "coverart"}


def digest(data):
    return hashlib.sha256(data).hexdigest()


def id3_entries(tag):
    for frame in tag.values():
        if frame.FrameID == "APIC":
            yield "APIC", [frame.data]
        elif frame.FrameID in ("USLT", "TIT2", "TPE1"):
            yield frame.FrameID, [frame.text] if frame.FrameID == "USLT" else [str(text) for text in frame.text]
        else:
            yield frame.HashKey, [frame.pprint()]


def picture_bytes(name, value):
    if name == "metadata_block_picture":
        return Picture(base64.b64decode(value)).data
    return value.value if name == "WM/Picture" else bytes(value)


def mapping_entries(tag):
    for name, values in tag.items():
        values = values if isinstance(values, list) else list(values) if hasattr(values, "kind") else [values]
        if name.lower() in PICTURES:
            yield name, [picture_bytes(name, value) for value in values]
        elif name.lower().startswith("cover art"):  # APE: a file name, NUL and the picture
            yield name, [digest(value.value) for value in values]
        else:
            yield name, [str(value) for value in values]


def has_ape(path):
    try:
        APEv2(path)
        return True
    except APENoHeaderError:
        return False


def describe(path):
    song = mutagen.File(path)
    if song is None:
        return {"file": path, "format": None, "error": "unknown format"}
    result = {"file": path, "format": type(song).__name__, "title": None, "artists": [], "lyrics": None, "pictures": [],
              "others": {}, "id3": None, "usltEncodings": [], "duration": song.info.length}
    for name, values in id3_entries(song.tags) if isinstance(song.tags, ID3) else mapping_entries(song.tags or {}):
        if name.lower() in TITLES:
            result["title"] = values[0]
        elif name.lower() in ARTISTS:
            result["artists"] += values
        elif name.lower() in LYRICS:
            result["lyrics"] = (result["lyrics"] or []) + values
        elif name.lower() in PICTURES:
            result["pictures"] += [digest(value) for value in values]
        elif any(values):
            result["others"][name.capitalize() if isinstance(song.tags, APEv2) else name] = values
    result["pictures"] += [digest(picture.data) for picture in getattr(song, "pictures", [])]
    if isinstance(song.tags, ID3):
        result["id3"] = ".".join(str(part) for part in song.tags.version)
        result["usltEncodings"] = [int(frame.encoding) for frame in song.tags.getall("USLT")]
    end = pathlib.Path(path).read_bytes()[-128:]
    result["id3v1"] = end.hex() if end.startswith(b"TAG") else None
    result["ape"] = has_ape(path)
    return result


def safely(path):
    try:
        return describe(path)
    except Exception as error:  # whatever a broken file makes the reader raise is the answer
        return {"file": path, "format": None, "error": repr(error)}


if sys.argv[1:]:
    print(json.dumps([safely(path) for path in sys.argv[1:]], indent=1))
else:
    for line in sys.stdin:
        print(json.dumps(safely(line.rstrip("\n"))), flush=True)
