#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Breaks saves in every way that can be arranged, and counts the files that were harmed.

Usage: faults.py PROGRAM [--sample]. PROGRAM is versewell_update_tags. Prints a table: for each kind of song how many
saves were broken, how many files were harmed, and how many were old or new, whole, afterwards. --sample takes fewer
kinds and faults. Exit status 0 when nothing was harmed, 77 when this machine does not allow strace, 1 otherwise.

  kill    SIGKILL at evenly spaced system calls that change something on the disk; then the program starts again
  error   the same calls fail with ENOSPC or EIO, once, or from then on
  full    a file system without room for a copy, and one without any room
  limit   a limit on the size of files
  order   what must be on the disk before what, which only a power cut would show, read from the calls of one save

Old is byte for byte as it was; new is byte for byte what an undisturbed save makes. That one is judged first, by
programs that are not ours: equal packets and a decode without a complaint (ffmpeg), flac -t, lyrics and all other tags
(mutagen), equal bytes where ffmpeg cannot play. A save that says it succeeded must have left the new file.
"""
import collections
import hashlib
import json
import os
import pathlib
import random
import resource
import shutil
import struct
import subprocess
import sys
import tempfile

import mutagen
from mutagen.id3 import TIT2, TPE1

SAVED, NO_ROOM = 1, 9  # of UpdateResult
ORDERED = "fsync,newfstatat,stat,lstat,rename,renameat,unlink,pwrite64,copy_file_range"
CHANGING = ("pwrite64", "write", "copy_file_range", "ftruncate", "fallocate", "fsync", "sync_file_range", "fchmod",
            "fchown", "rename", "renameat", "unlink", "unlinkat", "openat")
FAILING = ("pwrite64", "write", "copy_file_range", "ftruncate", "fallocate", "fsync", "sync_file_range", "renameat")
LYRICS = "\n".join("A line of words that nobody has sung yet, number %d" % n for n in range(60)) + "\nand caf\u00e9\n"
READ_TAGS = pathlib.Path(__file__).parent.parent / "support" / "read-tags.py"

Kind = collections.namedtuple("Kind", "name file seconds options")
KINDS = (
    Kind("MP3", "song.mp3", 150, ("-c:a", "libmp3lame", "-b:a", "192k", "-id3v2_version", "3")),
    Kind("FLAC", "song.flac", 25, ("-c:a", "flac")),
    Kind("M4A, index first", "first.m4a", 120, ("-c:a", "aac", "-b:a", "192k", "-movflags", "+faststart")),
    Kind("M4A, index last", "last.m4a", 120, ("-c:a", "aac", "-b:a", "192k")),
    Kind("Ogg Vorbis", "song.ogg", 150, ("-c:a", "libvorbis", "-b:a", "192k")),
    Kind("Opus", "song.opus", 150, ("-c:a", "libopus", "-b:a", "160k")),
    Kind("WMA", "song.wma", 150, ("-c:a", "wmav2", "-b:a", "192k")),
    Kind("WAV", "song.wav", 40, ("-c:a", "pcm_s16le")),
    Kind("AIFF", "song.aiff", 40, ("-c:a", "pcm_s16be")),
    Kind("APE", "song.ape", 0, ()),
    Kind("MP3, hard link", "linked.mp3", 150, ("-c:a", "libmp3lame", "-b:a", "192k", "-id3v2_version", "3")),
)
IN_SAMPLE = ("MP3", "FLAC", "M4A, index first", "Ogg Vorbis", "MP3, hard link")


def run(*command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False, **options)


def make_song(kind, path, sample):
    """Real audio of 2 to 20 MB, a title and an artist, and no padding that would make room for lyrics."""
    if not kind.seconds:  # no encoder for it here: a true header, and stuffing that stands for frames
        frames = random.Random(1).randbytes(2_000_000 if not sample else 200_000)
        head = struct.pack("<4sHHIIIIIII16s", b"MAC ", 3990, 0, 52, 24, 8, 0, len(frames), 0, 0, b"\0" * 16)
        head += struct.pack("<HHIIIHHI", 2000, 0, 73728, 14472, 2, 16, 2, 44100)
        path.write_bytes(head + struct.pack("<II", 84, 84 + len(frames) // 2) + frames)
        return
    seconds = kind.seconds // 8 if sample else kind.seconds
    source = "aevalsrc=0.4*sin(440*t*(2+t/20))+0.1*random(0)|0.3*sin(300*t)+0.1*random(1):s=44100:d=%d" % seconds
    subprocess.run(["ffmpeg", "-v", "error", "-nostdin", "-y", "-f", "lavfi", "-i", source, "-metadata", "title=The Song",
                    "-metadata", "artist=The Artist", *kind.options, str(path)], check=True)
    song = mutagen.File(path)
    if song.tags is None:  # chunks of names, which a new tag would take over
        song.add_tags()
        song.tags.add(TIT2(encoding=3, text="The Song"))
        song.tags.add(TPE1(encoding=3, text="The Artist"))
    song.save(padding=lambda info: 0)


def packets(path):
    """What stays equal whatever is done to tags."""
    if path.suffix == ".ape":
        return hashlib.sha256(path.read_bytes().partition(b"APETAGEX")[0]).hexdigest()
    return run("ffmpeg", "-v", "error", "-i", path, "-map", "0:a", "-c", "copy", "-f", "md5", "-").stdout.decode()


def complaints(path):
    judges = [] if path.suffix == ".ape" else [run("ffmpeg", "-v", "error", "-i", path, "-map", "0:a", "-f", "null", "-")]
    if path.suffix == ".flac":
        judges.append(run("flac", "-t", "-s", path))
    return [judge.stderr.decode() for judge in judges if judge.returncode or judge.stderr]


def tags(path):
    return json.loads(run("/usr/bin/python3", READ_TAGS, path).stdout)[0]


def plain(text):
    return (text or "").replace("\r\n", "\n")


class Trial:
    """One song, and what an undisturbed save makes of it."""

    def __init__(self, program, kind, directory, sample):
        self.program, self.kind, self.sample = program, kind, sample
        self.root = directory
        self.music = directory / "music"
        self.data = directory / "data"
        self.lyrics = directory / "lyrics.txt"
        self.lyrics.write_text(LYRICS, encoding="utf-8")
        self.song = self.music / kind.file
        self.music.mkdir()
        original = directory / ("original" + self.song.suffix)
        make_song(kind, original, sample)
        self.original = original
        self.old = original.read_bytes()
        self.faults = self.harmed = self.olds = self.news = 0
        self.notes = []
        self.points = self.trace()
        self.new = self.song.read_bytes()
        self.judge_new()

    def fresh(self):
        shutil.rmtree(self.music)
        shutil.rmtree(self.data, ignore_errors=True)
        self.music.mkdir()
        self.song.write_bytes(self.old)
        if "hard link" in self.kind.name:
            os.link(self.song, self.music / "other-name.mp3")

    def command(self):
        return [self.program, self.song, self.lyrics, self.data]

    def trace(self):
        """The calls of an undisturbed save that change something, each with its number among those of its name."""
        self.fresh()
        log = self.root / "trace"
        traced = run("strace", "-o", log, "-e", "trace=" + ",".join(CHANGING), *self.command())
        if traced.returncode != SAVED:
            raise SystemExit("%s: not saved, status %d: %s" % (self.kind.name, traced.returncode, traced.stderr.decode()))
        numbers = collections.Counter()
        points = []
        for line in log.read_text(errors="replace").splitlines():
            name = line.split("(")[0]
            if name not in CHANGING:
                continue
            numbers[name] += 1
            if name != "openat" or "O_CREAT" in line:
                points.append((name, numbers[name]))
        return points

    def judge_new(self):
        after = tags(self.song)
        before = tags(self.original)
        problems = complaints(self.song)
        if packets(self.song) != packets(self.original) or self.new == self.old:
            problems.append("the packets differ")
        if [plain(text) for text in after["lyrics"] or []] != [LYRICS]:
            problems.append("the lyrics are not there")
        for key in ("title", "artists", "pictures", "others"):
            if after.get(key) != before.get(key):
                problems.append("%s differs: %s, %s" % (key, before.get(key), after.get(key)))
        if problems:
            raise SystemExit("%s: an undisturbed save is wrong: %s" % (self.kind.name, "; ".join(problems)))

    def evenly(self, points, count):
        count = min(count // 5 if self.sample else count, len(points))
        return [points[i * len(points) // count] for i in range(count)]

    def judge(self, status, what):
        self.faults += 1
        content = self.song.read_bytes() if self.song.exists() else b""
        lied = status == SAVED and content != self.new
        left = [name for name in os.listdir(self.music) if name not in (self.song.name, "other-name.mp3")]
        if content == self.old and not lied and not left:
            self.olds += 1
        elif content == self.new and not left:
            self.news += 1
        else:
            self.harmed += 1
            self.notes.append("%s: status %s, left over: %s" % (what, status, left))

    def inject(self, fault, name, when):
        self.fresh()
        broken = run("strace", "-o", "/dev/null", "-e", "trace=" + name, "-e", "inject=%s:%s:when=%s" % (name, fault, when),
                     *self.command())
        run(self.program, "--mend", self.data)
        self.judge(broken.returncode, "%s at %s %s" % (fault, name, when))

    def kills(self):
        for name, number in self.evenly(self.points, 40):
            self.inject("signal=KILL", name, number)

    def errors(self):
        points = [point for point in self.points if point[0] in FAILING]
        for error in ("ENOSPC", "EIO"):
            for name, number in self.evenly(points, 15):
                for lasting in ("", "+"):
                    self.inject("error=" + error, name, "%d%s" % (number, lasting))

    def limit(self):
        self.fresh()
        size = len(self.old)
        limited = run(*self.command(), preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (size, size)))
        self.judge(limited.returncode, "limit on file size")

    def order(self):
        self.fresh()
        log = self.root / "order"
        run("strace", "-y", "-o", log, "-e", "trace=" + ORDERED, *self.command())
        calls = log.read_text(errors="replace").splitlines()

        def last(*parts):
            return max((n for n, call in enumerate(calls) if all(part in call for part in parts)), default=-1)

        song = str(self.song)
        if "hard link" in self.kind.name:  # the entry, the song, the end of the entry
            steps = [last("rename(", ".entry"), last("pwrite64(", "<%s>" % song), last("fsync(", "<%s>" % song),
                     last("unlink(", ".entry")]
        else:  # the content, a last look at the song by its name, the new name
            steps = [last("fsync(", ".part>"), last('"%s"' % song, "AT_SYMLINK_NOFOLLOW"), last("renameat(", ".part")]
        self.faults += 1
        if -1 in steps or steps != sorted(steps):
            self.harmed += 1
            self.notes.append("the steps of a save are in another order: %s" % steps)
        else:
            self.news += 1

    def full(self):
        """In a mount namespace of its own: the song lies on a small file system, the program's folder does not. Of
        that system nobody knows whether overwriting needs room, so nothing may be begun without it."""
        for spare in (0, 64, 3 * 1024):  # kB free beside the song
            self.fresh()
            size = (len(self.old) + 4095) // 4096 * 4 + spare
            out = self.root / "after-full"
            out.unlink(missing_ok=True)
            link = 'ln "$3" "$1/other-name.mp3" && ' if "hard link" in self.kind.name else ""
            script = ('mount -t tmpfs -o size=%dk none "$1" && cp "$2" "$3" && %s{ "$4" "$3" "$5" "$6"; status=$?; } && '
                      '"$4" --mend "$6" && cp "$3" "$7" && [ "$(ls -A "$1" | wc -l)" = %d ] && exit $status; exit 99'
                      % (size, link, 2 if link else 1))
            ended = run("unshare", "-m", "sh", "-c", script, "sh", self.music, self.original, self.song, self.program,
                        self.lyrics, self.data, out)
            if not out.exists():
                self.notes.append("full disk skipped: " + ended.stderr.decode().strip())
                return
            shutil.copyfile(out, self.song)
            self.judge(ended.returncode, "%d kB free" % spare)
            if spare < 3 * 1024 and ended.returncode != NO_ROOM:
                self.harmed += 1
                self.notes.append("%d kB free, and the save says %d" % (spare, ended.returncode))


def main():
    program, sample = sys.argv[1], "--sample" in sys.argv[2:]
    if run("strace", "-o", "/dev/null", "true").returncode:
        print("skipped: strace is not there, or not allowed here")
        return 77
    harmed = 0
    print("%-18s %7s %7s %7s %7s" % ("format", "faults", "harmed", "old", "new"), flush=True)
    for kind in KINDS:
        if sample and kind.name not in IN_SAMPLE:
            continue
        with tempfile.TemporaryDirectory(prefix="versewell-faults-") as directory:
            trial = Trial(program, kind, pathlib.Path(directory), sample)
            for breaking in (trial.kills, trial.errors, trial.limit, trial.order, trial.full):
                breaking()
        print("%-18s %7d %7d %7d %7d" % (kind.name, trial.faults, trial.harmed, trial.olds, trial.news), flush=True)
        for note in trial.notes:
            print("    " + note)
        harmed += trial.harmed
    return 1 if harmed else 0


if __name__ == "__main__":
    sys.exit(main())
