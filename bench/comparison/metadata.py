"""Properties of many small songs and photos, against exiftool."""

import pathlib
import struct

from comparison import commands
from comparison.measure import ComparisonError, Task, best_of

PROGRAMS = {"exiftool": "libimage-exiftool-perl"}
FILES = 2_000
TARGET = 0.5
SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
SYNCHRONY = b"\xFF\xFB"  # what a frame of MPEG 1 layer 3 begins with


def run(machine, workspace, report):
    report.section(f"metadata: a line of properties of each of {FILES:,} files, against exiftool -p")
    dash = commands.text(" - ")
    song = [commands.property_text("System.Music.TrackNumber"), dash,
            commands.property_text("System.Music.DisplayArtist"), dash, commands.property_text("System.Title")]
    photo = [commands.property_date("System.Photo.DateTaken"), dash, commands.property_text("System.Photo.CameraModel")]
    songs = workspace.files("songs", {f"{i:04}.mp3": song_content(i) for i in range(FILES)})
    photos = workspace.files("photos", {f"{i:04}.jpg": photo_content(i) for i in range(FILES)})
    compare(machine, workspace, report, "songs: track - artist - title", songs, song, ["$Track - $Artist - $Title"])
    compare(machine, workspace, report, "photos: date taken - camera", photos, photo,
            ["$DateTimeOriginal - $Model", "-d", "%Y-%m-%d %H:%M:%S"])


def compare(machine, workspace, report, title, files, parts, pattern):
    kind = files[0].suffix[1:]
    command = commands.store(workspace, f"metadata-{kind}", parts, end="\n")
    tasks = {"ours": machine.our_task(command, files, workspace.output(f"ours-{kind}")),
             "theirs": Task(["exiftool", "-q", "-p", *pattern, *files], workspace.output(f"theirs-{kind}"))}
    best = best_of(tasks, machine.runs)
    ours, theirs = (task.output.read_text().splitlines() for task in tasks.values())
    if ours != theirs or len(set(ours)) != FILES:
        raise ComparisonError(f"{title}: the outputs differ or are too short: {ours[:1]} here, {theirs[:1]} there")
    report.times(title, best["ours"], best["theirs"], TARGET)


def song_content(index):
    """The sample's sound behind a tag of ID3 2.3 with what players write, and some room for more."""
    def frame(name, text):
        data = b"\1" + text.encode("utf-16")
        return name + struct.pack(">IH", len(data), 0) + data
    frames = b"".join(frame(*pair) for pair in [
        (b"TIT2", f"Song with the number {index}"), (b"TPE1", f"The Artist {index % 50}"), (b"TRCK", str(index % 20 + 1)),
        (b"TALB", f"Album {index // 20}"), (b"TPE2", "Various"), (b"TYER", "2019"), (b"TCON", "Ambient"),
        (b"TCOM", "Ada Ring")]) + bytes(1024)
    size = bytes(len(frames) >> shift & 0x7F for shift in (21, 14, 7, 0))
    sample = (SAMPLES / "Sounds" / "Morning Bell.mp3").read_bytes()
    return b"ID3\3\0\0" + size + frames + sample[sample.index(SYNCHRONY):]


def photo_content(index):
    """The sample with a camera and a date of its own, in local time as most cameras write it."""
    content = (SAMPLES / "Photos" / "Harbour.jpg").read_bytes()
    date = f"2024:03:{index % 28 + 1:02} {index % 24:02}:{index % 60:02}:11"
    for old, new in {"2024:03:05 14:02:11": date, "VO-1 Sample": f"VO-{index:08}", "+01:00": " " * 6}.items():
        if content.count(old.encode()) != 1:
            raise ComparisonError(f"the sample photo has no '{old}'")
        content = content.replace(old.encode(), new.encode())
    return content
