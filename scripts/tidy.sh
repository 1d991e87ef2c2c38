#!/usr/bin/env bash
# Runs clang-tidy over the program's own sources (not the tests'), as the dev preset compiles them. What passed is
# remembered in the user's cache, beside ccache's: a source is checked again once it, a header it includes, a rule or
# clang-tidy itself has changed.
#
#     scripts/tidy.sh [SOURCE PATH PART...]      (default: all sources)
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

# Prints the sources that the build compiles and that haven't passed yet, each behind the path of the mark that it gets
# once it passes; NUL-separated. One that the build doesn't compile has no flags to check it with.
sources() {
    python3 - "$root" "$passed" "$@" <<'PYTHON'
import functools, hashlib, json, os, shlex, subprocess, sys
root, passed, parts = sys.argv[1], sys.argv[2], sys.argv[3:]
build = os.path.join(root, "build/dev")
rooms = tuple(os.path.join(root, room, "") for room in ("platform", "engine", "store", "tools", "ui", "app"))


@functools.cache
def state(path):
    """Ours by content, so that every checkout shares it; what a package installed by its time."""
    real = os.path.realpath(os.path.join(build, path))
    if not real.startswith(root + os.sep):
        return f"{real} {os.stat(real).st_mtime_ns}"
    with open(real, "rb") as file:
        return f"{os.path.relpath(real, root)} {hashlib.sha256(file.read()).hexdigest()}"


def included():
    """What each object was made of, by the object's path."""
    found = {}
    for line in subprocess.check_output(["ninja", "-C", build, "-t", "deps"], text=True).splitlines():
        if line.startswith("    "):
            found[target].append(line.strip())
        elif ": #deps" in line:
            target = line.split(": #deps")[0]
            found[target] = []
    return found


with open(os.path.join(build, "compile_commands.json")) as commands:
    entries = {entry["file"]: entry for entry in json.load(commands)}
chosen = [f for f in sorted(entries) if f.startswith(rooms) and (not parts or any(part in f for part in parts))]
if not chosen:
    sys.exit("No source to check.")
tool = subprocess.check_output(["clang-tidy-16", "--version"], text=True)
headers = included()
for file in chosen:
    command = entries[file]["command"]
    made = shlex.split(command)
    what = [tool, state(os.path.join(root, ".clang-tidy")), command.replace(root, "")]
    what += map(state, headers[made[made.index("-o") + 1]])
    mark = os.path.join(passed, hashlib.sha256("\n".join(what).encode()).hexdigest())
    if not os.path.exists(mark):
        sys.stdout.write(f"{mark}\0{file}\0")
PYTHON
}

# The rooms' headers are found through links in the build folder, and what the build makes must be there.
configure dev
build dev
readonly passed=${XDG_CACHE_HOME:-$HOME/.cache}/vellumark-tidy
mkdir -p -- "$passed"
# Most marks belong to code that is gone; one that doesn't is made anew once a month.
find "$passed" -type f -mtime +30 -delete
list=$(mktemp)
trap 'rm -f -- "$list"' EXIT
sources "$@" >"$list"
# The flags are those of g++, some of which clang doesn't know. Each run's findings come out in one piece; the count of
# suppressed findings in system headers is dropped.
# shellcheck disable=SC2016
xargs -0 -r -P "$(nproc)" -n 2 bash -c \
    'out=$(clang-tidy-16 -p "$0" --quiet --extra-arg=-Wno-unknown-warning-option "$2" 2>&1); status=$?
     ((status != 0)) || touch -- "$1"
     grep -vE "^[0-9]+ warnings? (and [0-9]+ errors? )?(generated|treated as errors?)" <<<"$out" | sed "/^$/d"; exit $status' \
    "$root/build/dev" <"$list"
