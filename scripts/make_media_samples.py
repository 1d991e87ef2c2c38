#!/usr/bin/env python3
"""Makes the sample files with metadata below samples/: a photo, songs, a film and documents, each a few KB.

    scripts/make_media_samples.py [FOLDER]      (default: samples/ of the checkout)

With them come the films below tests/platform/films, one of each container, which the tests alone read.

Sound and pictures are made by ffmpeg from test signals and all tags are invented here, so nothing of anyone else is in
them. Other ffmpeg versions encode to other bytes with the same metadata.
"""

import pathlib
import struct
import subprocess
import sys
import zipfile

QUIET = ["ffmpeg", "-v", "error", "-nostdin", "-y", "-fflags", "+bitexact"]
EXACT = ["-flags:v", "+bitexact", "-flags:a", "+bitexact", "-fflags", "+bitexact", "-map_metadata", "-1"]


def ffmpeg(target, sources, options, tags):
    inputs = [word for source in sources for word in ("-f", "lavfi", "-i", source)]
    metadata = [word for item in tags.items() for word in ("-metadata", "%s=%s" % item)]
    subprocess.run([*QUIET, *inputs, *EXACT, *options, *metadata, str(target)], check=True)


class Directory:
    """One directory of tags of a little-endian TIFF structure."""

    def __init__(self):
        self.entries = []

    def ascii(self, tag, text):
        data = text.encode() + b"\0"
        self.entries.append((tag, 2, len(data), data))

    def ucs2(self, tag, text):
        data = (text + "\0").encode("utf-16-le")
        self.entries.append((tag, 1, len(data), data))

    def undefined(self, tag, data):
        self.entries.append((tag, 7, len(data), data))

    def byte(self, tag, value):
        self.entries.append((tag, 1, 1, bytes([value])))

    def short(self, tag, value):
        self.entries.append((tag, 3, 1, struct.pack("<H", value)))

    def long(self, tag, value):
        self.entries.append((tag, 4, 1, struct.pack("<I", value)))

    def rationals(self, tag, *pairs, signed=False):
        data = b"".join(struct.pack("<ii" if signed else "<II", *pair) for pair in pairs)
        self.entries.append((tag, 10 if signed else 5, len(pairs), data))

    def size(self):
        return 2 + 12 * len(self.entries) + 4 + sum((len(e[3]) + 1) // 2 * 2 for e in self.entries if len(e[3]) > 4)

    def bytes(self, start):
        fixed, extra = struct.pack("<H", len(self.entries)), b""
        extra_start = start + 2 + 12 * len(self.entries) + 4
        for tag, kind, count, data in sorted(self.entries):
            value = data.ljust(4, b"\0")
            if len(data) > 4:
                value = struct.pack("<I", extra_start + len(extra))
                extra += data + b"\0" * (len(data) % 2)
            fixed += struct.pack("<HHI", tag, kind, count) + value
        return fixed + b"\0\0\0\0" + extra


def exif():
    main, photo, gps = Directory(), Directory(), Directory()
    main.ascii(0x010F, "Vellumark Optics")
    main.ascii(0x0110, "VO-1 Sample")
    main.short(0x0112, 6)
    main.rationals(0x011A, (300, 1))
    main.rationals(0x011B, (300, 1))
    main.short(0x0128, 2)
    main.ascii(0x0131, "Sample Maker 1.0")
    main.ascii(0x013B, "Zoë Marsh")
    main.short(0x4746, 4)
    main.ascii(0x8298, "Public domain")
    main.ucs2(0x9C9B, "Harbour at dusk — 港")
    main.ucs2(0x9C9C, "Made of a test signal")
    main.ucs2(0x9C9E, "harbour;evening; sea")
    main.ucs2(0x9C9F, "Boats")
    photo.rationals(0x829A, (1, 250))
    photo.rationals(0x829D, (28, 10))
    photo.short(0x8822, 3)
    photo.short(0x8827, 400)
    photo.undefined(0x9000, b"0232")
    photo.ascii(0x9003, "2024:03:05 14:02:11")
    photo.ascii(0x9011, "+01:00")
    photo.rationals(0x9201, (7966, 1000), signed=True)
    photo.rationals(0x9202, (2971, 1000))
    photo.rationals(0x9204, (-1, 3), signed=True)
    photo.rationals(0x9205, (2, 1))
    photo.rationals(0x9206, (25, 10))
    photo.short(0x9207, 5)
    photo.short(0x9208, 1)
    photo.short(0x9209, 0x10)
    photo.rationals(0x920A, (50, 1))
    photo.ascii(0x9291, "25")
    photo.short(0xA001, 1)
    photo.short(0xA403, 0)
    photo.rationals(0xA404, (3, 2))
    photo.short(0xA405, 75)
    photo.ascii(0xA431, "SN-0042")
    photo.ascii(0xA433, "Vellumark Glass")
    photo.ascii(0xA434, "50mm F2")
    gps.ascii(1, "S")
    gps.rationals(2, (33, 1), (51, 1), (3588, 100))
    gps.ascii(3, "E")
    gps.rationals(4, (151, 1), (12, 1), (4014, 100))
    gps.byte(5, 0)
    gps.rationals(6, (345, 10))
    main.long(0x8769, 0)
    main.long(0x8825, 0)
    photo_start = 8 + main.size()
    gps_start = photo_start + photo.size()
    main.entries = [e for e in main.entries if e[0] not in (0x8769, 0x8825)]
    main.long(0x8769, photo_start)
    main.long(0x8825, gps_start)
    tiff = b"II*\0" + struct.pack("<I", 8) + main.bytes(8) + photo.bytes(photo_start) + gps.bytes(gps_start)
    return b"Exif\0\0" + tiff


def photo(folder):
    target = folder / "Photos" / "Harbour.jpg"
    ffmpeg(target, ["testsrc=size=80x60:rate=1:duration=1"], ["-frames:v", "1", "-q:v", "12", "-f", "mjpeg"], {})
    jpeg, block = target.read_bytes(), exif()
    target.write_bytes(jpeg[:2] + b"\xFF\xE1" + struct.pack(">H", len(block) + 2) + block + jpeg[2:])


SONG = {
    "title": "Morning Bell", "artist": "The Sample Makers", "album": "Test Signals", "album_artist": "Various Bells",
    "track": "3/12", "disc": "1/2", "genre": "Ambient", "composer": "Ada Ring", "copyright": "Public domain",
    "comment": "A sine of 440 Hz",
}


def songs(folder):
    sounds = folder / "Sounds"
    bell = ["sine=frequency=440:sample_rate=44100:duration=1"]
    ffmpeg(sounds / "Morning Bell.mp3", bell, ["-ac", "2", "-b:a", "64k", "-write_xing", "0", "-id3v2_version", "3"],
           {**SONG, "date": "2019", "publisher": "Ring Records", "TBPM": "96", "encoded_by": "sample maker",
            "language": "eng"})
    ffmpeg(sounds / "Evening Bell.flac", ["sine=frequency=220:sample_rate=8000:duration=1"], ["-sample_fmt", "s16"],
           {**SONG, "title": "Evening Bell — 鐘", "date": "2020-05-01", "publisher": "Ring Records",
            "comment": "", "description": "A sine of 220 Hz"})
    ffmpeg(sounds / "Night Bell.ogg", bell, ["-c:a", "libvorbis", "-q:a", "-1"], {**SONG, "title": "Night Bell"})


def film(folder):
    target = folder / "Films" / "Test Card.mp4"
    target.parent.mkdir(exist_ok=True)
    ffmpeg(target, ["color=c=navy:size=64x48:rate=25:duration=2", "sine=frequency=440:sample_rate=8000:duration=2"],
           ["-c:v", "mpeg4", "-vtag", "mp4v", "-b:v", "20k", "-c:a", "aac", "-b:a", "16k"],
           {"title": "Test Card", "artist": "The Sample Makers", "date": "2021", "comment": "Two quiet seconds",
            "creation_time": "2021-06-07T08:09:10Z"})


def test_films(folder):
    folder.mkdir(exist_ok=True)
    picture, sound = "color=c=navy:size=32x24:rate=5:duration=1", "sine=frequency=440:sample_rate=8000:duration=1"
    tags = {"title": "Small Film", "artist": "Ada Ring", "album": "Reels", "genre": "Still", "date": "2021-02-03",
            "comment": "Made of a test signal"}
    ffmpeg(folder / "silent.mp4", [picture], ["-c:v", "mpeg4"], tags)
    ffmpeg(folder / "silent.wmv", [picture], ["-c:v", "wmv2"], tags)
    ffmpeg(folder / "sounding.wmv", [picture, sound], ["-c:v", "wmv2", "-c:a", "wmav2", "-b:a", "24k"], tags)
    ffmpeg(folder / "sounding.avi", [picture, sound], ["-c:v", "mpeg4", "-c:a", "pcm_u8"], tags)
    ffmpeg(folder / "silent.mkv", [picture], ["-c:v", "mpeg4"], tags)
    ffmpeg(folder / "silent.ts", ["color=c=navy:size=32x24:rate=25:duration=1"], ["-c:v", "mpeg2video"], tags)


def pdf(folder):
    objects = [
        b"<< /Type /Catalog /Pages 2 0 R /Lang (en-GB) >>",
        b"<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 /MediaBox [0 0 200 100] >>",
        b"<< /Type /Page /Parent 2 0 R >>",
        b"<< /Type /Page /Parent 2 0 R >>",
        b"<< /Title <" + ("Tide tables – 潮".encode("utf-16-be")).hex().encode().join([b"FEFF", b""]) + b"> "
        b"/Author (Ada Ring; Zo\xeb Marsh) /Subject (High and low water) /Keywords (tide; sea) "
        b"/Creator (Sample Maker) /CreationDate (D:20230405060708+02'00') /ModDate (D:20230405070809Z) >>",
    ]
    out, places = b"%PDF-1.4\n", []
    for number, content in enumerate(objects, 1):
        places.append(len(out))
        out += b"%d 0 obj\n%s\nendobj\n" % (number, content)
    start = len(out)
    out += b"xref\n0 %d\n0000000000 65535 f \n" % (len(objects) + 1)
    out += b"".join(b"%010d 00000 n \n" % place for place in places)
    out += b"trailer\n<< /Size %d /Root 1 0 R /Info 5 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (len(objects) + 1, start)
    (folder / "Documents" / "Tide tables.pdf").write_bytes(out)


def archive(target, files):
    with zipfile.ZipFile(target, "w") as packed:
        for name, content in files.items():
            entry = zipfile.ZipInfo(name, (2024, 1, 1, 0, 0, 0))
            entry.compress_type = zipfile.ZIP_STORED if name == "mimetype" else zipfile.ZIP_DEFLATED
            packed.writestr(entry, content)


HEAD = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
PACKAGE = "http://schemas.openxmlformats.org/package/2006"
OFFICE = "http://schemas.openxmlformats.org/officeDocument/2006"


def docx(folder):
    archive(folder / "Documents" / "Report.docx", {
        "[Content_Types].xml": HEAD + f'<Types xmlns="{PACKAGE}/content-types">'
        '<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
        '<Override PartName="/word/document.xml" ContentType="application/vnd.openxmlformats-officedocument.'
        'wordprocessingml.document.main+xml"/><Override PartName="/docProps/core.xml" '
        'ContentType="application/vnd.openxmlformats-package.core-properties+xml"/><Override '
        'PartName="/docProps/app.xml" ContentType="application/vnd.openxmlformats-officedocument.'
        'extended-properties+xml"/></Types>',
        "_rels/.rels": HEAD + f'<Relationships xmlns="{PACKAGE}/relationships">'
        f'<Relationship Id="r1" Type="{OFFICE}/relationships/officeDocument" Target="word/document.xml"/>'
        f'<Relationship Id="r2" Type="{PACKAGE}/relationships/metadata/core-properties" Target="docProps/core.xml"/>'
        f'<Relationship Id="r3" Type="{OFFICE}/relationships/extended-properties" Target="docProps/app.xml"/>'
        '</Relationships>',
        "word/document.xml": HEAD + '<w:document xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/'
        'main"><w:body><w:p><w:r><w:t>The tide comes in.</w:t></w:r></w:p></w:body></w:document>',
        "docProps/core.xml": HEAD + f'<cp:coreProperties xmlns:cp="{PACKAGE}/metadata/core-properties" '
        'xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:dcterms="http://purl.org/dc/terms/" '
        'xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"><dc:title>Harbour report</dc:title>'
        '<dc:subject>Tides &amp; boats</dc:subject><dc:creator>Ada Ring; Zoë Marsh</dc:creator>'
        '<cp:keywords>tide; harbour</cp:keywords><dc:description>First draft</dc:description>'
        '<cp:lastModifiedBy>Zoë Marsh</cp:lastModifiedBy><cp:revision>7</cp:revision>'
        '<dcterms:created xsi:type="dcterms:W3CDTF">2024-01-02T03:04:05Z</dcterms:created>'
        '<dcterms:modified xsi:type="dcterms:W3CDTF">2024-02-03T04:05:06Z</dcterms:modified>'
        '<cp:category>Reports</cp:category><dc:language>en-GB</dc:language></cp:coreProperties>',
        "docProps/app.xml": HEAD + f'<Properties xmlns="{OFFICE}/extended-properties"><TotalTime>42</TotalTime>'
        '<Pages>1</Pages><Words>1234</Words><Characters>5678</Characters><Lines>90</Lines>'
        '<Application>Sample Maker</Application><Company>Harbour Office</Company></Properties>',
    })


def odt(folder):
    kind = "application/vnd.oasis.opendocument.text"
    names = "urn:oasis:names:tc:opendocument:xmlns"
    archive(folder / "Documents" / "Notes.odt", {
        "mimetype": kind,
        "META-INF/manifest.xml": f'<manifest:manifest xmlns:manifest="{names}:manifest:1.0" manifest:version="1.2">'
        f'<manifest:file-entry manifest:full-path="/" manifest:media-type="{kind}"/>'
        '<manifest:file-entry manifest:full-path="content.xml" manifest:media-type="text/xml"/>'
        '<manifest:file-entry manifest:full-path="meta.xml" manifest:media-type="text/xml"/></manifest:manifest>',
        "content.xml": f'<office:document-content xmlns:office="{names}:office:1.0" xmlns:text="{names}:text:1.0" '
        'office:version="1.2"><office:body><office:text><text:p>The tide goes out.</text:p></office:text>'
        '</office:body></office:document-content>',
        "meta.xml": f'<office:document-meta xmlns:office="{names}:office:1.0" xmlns:meta="{names}:meta:1.0" '
        'xmlns:dc="http://purl.org/dc/elements/1.1/" office:version="1.2"><office:meta>'
        '<meta:generator>Sample Maker</meta:generator><dc:title>Harbour notes</dc:title>'
        '<dc:subject>Boats</dc:subject><dc:description>Loose ends</dc:description><meta:keyword>tide</meta:keyword>'
        '<meta:keyword>rope</meta:keyword><meta:initial-creator>Ada Ring</meta:initial-creator>'
        '<dc:creator>Zoë Marsh</dc:creator><meta:creation-date>2023-01-02T03:04:05Z</meta:creation-date>'
        '<dc:date>2023-02-03T04:05:06.5Z</dc:date><dc:language>en-GB</dc:language>'
        '<meta:editing-cycles>5</meta:editing-cycles><meta:editing-duration>PT1H2M3S</meta:editing-duration>'
        '<meta:document-statistic meta:page-count="2" meta:word-count="345" meta:character-count="2100"/>'
        '</office:meta></office:document-meta>',
    })


def main():
    checkout = pathlib.Path(__file__).resolve().parent.parent
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else checkout / "samples"
    for name in ("Photos", "Sounds", "Documents"):
        (folder / name).mkdir(parents=True, exist_ok=True)
    for make in (photo, songs, film, pdf, docx, odt):
        make(folder)
    if len(sys.argv) == 1:
        test_films(checkout / "tests" / "platform" / "films")


main()
