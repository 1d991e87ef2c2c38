#!/usr/bin/env bash
# Makes Resources/AppIcon.ico anew from the drawing beside it. To be run by whoever changes the drawing: the result is
# committed, so that a build needs no drawing program. Takes rsvg-convert (Debian package librsvg2-bin) and python3.
#
#     scripts/make_icons.sh
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

readonly sizes=(16 24 32 48 64 128 256)

# Packs the PNG files that are named into the ICO file of the first name: a header, a directory entry a picture, then
# the pictures as they are. A width or height of 256 is written as 0.
pack='
import pathlib, struct, sys

target, *names = sys.argv[1:]
pictures = [pathlib.Path(name).read_bytes() for name in names]
offset = 6 + 16 * len(pictures)
directory = struct.pack("<HHH", 0, 1, len(pictures))
for picture in pictures:
    width, height = struct.unpack(">II", picture[16:24])
    directory += struct.pack("<BBBBHHII", width % 256, height % 256, 0, 0, 1, 32, len(picture), offset)
    offset += len(picture)
pathlib.Path(target).write_bytes(directory + b"".join(pictures))
'

main() {
    command -v rsvg-convert >/dev/null || fail "rsvg-convert is not here; install librsvg2-bin."
    local work size pictures=()
    work=$(mktemp -d)
    # shellcheck disable=SC2064 # the folder of now, not of the time of leaving
    trap "rm -rf -- '$work'" EXIT
    for size in "${sizes[@]}"; do
        rsvg-convert --width="$size" --height="$size" --output="$work/$size.png" "$root/Resources/AppIcon.svg"
        pictures+=("$work/$size.png")
    done
    python3 -c "$pack" "$root/Resources/AppIcon.ico" "${pictures[@]}"
}

main
