# SPDX-License-Identifier: MIT
"""Makes short sounds in many formats, and covers, with ffmpeg."""
import pathlib
import subprocess

CODECS = {
    ".mp3": ["-c:a", "libmp3lame", "-b:a", "96k", "-id3v2_version", "0", "-write_xing", "0"],
    ".flac": ["-c:a", "flac"],
    ".ogg": ["-c:a", "libvorbis", "-q:a", "2"],
    ".opus": ["-c:a", "libopus", "-b:a", "48k"],
    ".m4a": ["-c:a", "aac", "-b:a", "64k", "-movflags", "+faststart"],
    ".wma": ["-c:a", "wmav2", "-b:a", "64k"],
    ".wav": ["-c:a", "pcm_s16le"],
    ".aiff": ["-c:a", "pcm_s16be"],
}
FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"


def ffmpeg(*arguments):
    command = ["ffmpeg", "-nostdin", "-hide_banner", "-loglevel", "error", "-y", *map(str, arguments)]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def encode(path, seconds=3, pitch=220):
    """A soft tone of that pitch in Hz, without any tag. The suffix of the path chooses the format."""
    tone = f"sine=frequency={pitch}:duration={seconds}:sample_rate=44100,tremolo=f=2:d=0.6,afade=t=in:d=0.3"
    ffmpeg("-f", "lavfi", "-i", tone, "-map_metadata", "-1", "-fflags", "+bitexact", "-flags:a", "+bitexact",
           *CODECS[pathlib.Path(path).suffix], path)


def packets_md5(path):
    """The digest of the sound as it is stored, tags and covers left out."""
    return ffmpeg("-i", path, "-map", "0:a", "-c", "copy", "-f", "md5", "-").strip()


def cover(path, colour="C8704A", size=400):
    """A square JPEG of that colour (RRGGBB) with a note on it."""
    note = f"drawtext=fontfile={FONT}:text=♫:fontcolor=0xFFF3C4:fontsize={size // 2}:x=(w-tw)/2:y=(h-th)/2"
    ffmpeg("-f", "lavfi", "-i", f"color=c=0x{colour}:s={size}x{size}:d=1", "-vf", note, "-frames:v", 1, path)
