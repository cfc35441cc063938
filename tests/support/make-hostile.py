#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Makes audio files that no recorder ever wrote: make-hostile.py SAMPLES FOLDER

FOLDER/refused/ gets files on which a reader would crash, hang or take all memory; each has to be given up.
FOLDER/odd/ gets files that are broken, huge or random, but may be read: among them every sample cut at 64 places.
"""
import os
import pathlib
import random
import struct
import sys
import zlib

EXTENSIONS = ["aifc", "aiff", "aif", "opus", "aac", "ogg", "wma", "alac", "ape", "flac", "m4p", "m4a", "mp3", "wav", "wv"]
CUTS = 64
FLAC_START = b"fLaC\0\0\0\x22" + bytes(10) + b"\x0a\xc4\x42\xf0" + bytes(20)


def synchsafe(number):
    return bytes(number >> shift & 0x7F for shift in (21, 14, 7, 0))


def frame(name, size, flags=0):
    return name + synchsafe(size) + flags.to_bytes(2, "big")


def id3(body):
    return b"ID3\x04\0\0" + synchsafe(len(body)) + body


def text_frame(name, text):
    return frame(name, len(text) + 1) + b"\x03" + text


def picture_frame(data):
    head = b"\0image/png\0\x03\0"
    return frame(b"APIC", len(head) + len(data)) + head + data


def chapters(depth):
    own = b"a\0" + bytes(16)
    level = 10 + len(own)
    return id3(b"".join(frame(b"CHAP", len(own) + level * (depth - 1 - i)) + own for i in range(depth)))


def frame_bomb(size):
    packer = zlib.compressobj(9)
    block = bytes(1 << 20)
    data = b"".join(packer.compress(block) for _ in range(size >> 20)) + packer.flush()
    compressed_with_length = 0x0009
    return id3(frame(b"USLT", len(data) + 4, compressed_with_length) + synchsafe(size & 0x0FFFFFFF) + data)


def atom(name, body=b""):
    return struct.pack(">I", len(body) + 8) + name + body


def nested_atoms(depth):
    return atom(b"ftyp", b"M4A " + bytes(4)) + b"".join(struct.pack(">I", 8 * (depth - i)) + b"moov" for i in range(depth))


def flat_atoms(count):
    return atom(b"ftyp", b"M4A " + bytes(4)) + atom(b"moov", atom(b"free") * count)


def wavpack_loop():
    # A block without samples, whose size takes a reader back to where it stands.
    return b"wvpk" + struct.pack("<IHBBIIII", 0xFFFFFFF8, 0x0410, 0, 0, 0, 0, 0, 0) + bytes(100)


def xiph_fields(count):
    comment = struct.pack("<I", 0) + struct.pack("<I", count) + (struct.pack("<I", 2) + b"a=") * count
    return FLAC_START + b"\x84" + len(comment).to_bytes(3, "big") + comment


def asf_objects(count):
    header = bytes.fromhex("3026b2758e66cf11a6d900aa0062ce6c")
    body = (bytes(16) + struct.pack("<Q", 24)) * count
    return header + struct.pack("<QIBB", 30 + len(body), count, 1, 2) + body


def ape_items(count):
    items = b"".join(struct.pack("<II", 1, 0) + b"k%07d\0x" % i for i in range(count))
    footer = b"APETAGEX" + struct.pack("<IIII", 2000, len(items) + 32, count, 0) + bytes(8)
    return items + footer


def png(side):
    """Of one bit a pixel, all black."""
    packer = zlib.compressobj(9)
    data = b"".join(packer.compress(bytes(1 + side // 8)) for _ in range(side)) + packer.flush()
    head = struct.pack(">IIBBBBB", side, side, 1, 0, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + b"".join(
        struct.pack(">I", len(body)) + name + body + struct.pack(">I", zlib.crc32(name + body))
        for name, body in ((b"IHDR", head), (b"IDAT", data), (b"IEND", b"")))


def write_all(folder, files):
    folder.mkdir(parents=True)
    for name, content in files.items():
        (folder / name).write_bytes(content)


def write_zeros(path):
    path.touch()
    os.truncate(path, 4 << 30)


def write_refused(folder):
    write_all(folder, {
        "nested-atoms.m4a": nested_atoms(100_000),
        "nested-chapters.mp3": chapters(200_000),
        "frame-bomb.mp3": frame_bomb(1 << 30),
        "wavpack-loop.wv": wavpack_loop(),
        "atoms.m4a": flat_atoms(2_000_000),
        "asf-objects.wma": asf_objects(1_000_000),
        "flac-blocks.flac": FLAC_START + b"\x01\0\0\x01\0" * 4_000_000,
    })
    write_zeros(folder / "zeros.mp3")


def write_odd(folder, samples):
    dice = random.Random(8)
    write_all(folder, {
        "frames.mp3": id3((text_frame(b"TXXX", b"ab")) * 1_000_000),
        "fields.flac": xiph_fields(2_700_000),
        "ape-items.ape": ape_items(500_000),
        "long-texts.mp3": id3(text_frame(b"TIT2", b"t\x07" * 8_000_000)),
        "picture-20000.mp3": id3(picture_frame(png(20_000))),
        "picture-8000.mp3": id3(picture_frame(png(8_000))),
        "picture-40-MB.mp3": id3(picture_frame(bytes(40 << 20))),
        **{f"random.{extension}": dice.randbytes(1 << 20) for extension in EXTENSIONS},
    })
    for extension in EXTENSIONS:
        if extension != "mp3":
            write_zeros(folder / f"zeros.{extension}")
    for sample in samples:
        content = sample.read_bytes()
        for cut in range(CUTS):
            (folder / f"{sample.stem}-{cut}{sample.suffix}").write_bytes(content[:len(content) * cut // CUTS])


samples, target = map(pathlib.Path, sys.argv[1:])
write_refused(target / "refused")
write_odd(target / "odd", sorted(path for path in samples.iterdir() if path.suffix[1:] in EXTENSIONS))
