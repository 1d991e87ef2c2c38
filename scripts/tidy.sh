#!/usr/bin/env bash
# Runs clang-tidy over the program's own sources (not the tests'), as the dev preset compiles them.
#
#     scripts/tidy.sh [SOURCE PATH PART...]      (default: all sources)
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

# Prints the sources that the build compiles, NUL-separated: one that it doesn't has no flags to check it with.
sources() {
    python3 - "$root" "$@" <<'PYTHON'
import json, os, sys
root, parts = sys.argv[1], sys.argv[2:]
rooms = tuple(os.path.join(root, room, "") for room in ("platform", "engine", "store", "tools", "ui", "app"))
with open(os.path.join(root, "build/dev/compile_commands.json")) as commands:
    files = sorted({entry["file"] for entry in json.load(commands)})
chosen = [f for f in files if f.startswith(rooms) and (not parts or any(part in f for part in parts))]
if not chosen:
    sys.exit("No source to check.")
sys.stdout.write("".join(f + "\0" for f in chosen))
PYTHON
}

# The rooms' headers are found through links in the build folder, and what the build makes must be there.
configure dev
build dev
list=$(mktemp)
trap 'rm -f -- "$list"' EXIT
sources "$@" >"$list"
# The flags are those of g++, some of which clang doesn't know. Each run's findings come out in one piece; the count of
# suppressed findings in system headers is dropped.
# shellcheck disable=SC2016
xargs -0 -P "$(nproc)" -n 1 bash -c \
    'out=$(clang-tidy-16 -p "$0" --quiet --extra-arg=-Wno-unknown-warning-option "$1" 2>&1); status=$?
     grep -vE "^[0-9]+ warnings? (and [0-9]+ errors? )?(generated|treated as errors?)" <<<"$out" | sed "/^$/d"; exit $status' \
    "$root/build/dev" <"$list"
