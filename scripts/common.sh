# Shared by run, test, .ci/run and the other scripts; sourced, never started. Everything here that talks to the user
# writes to standard error: standard output belongs to what the caller was asked for.
# shellcheck shell=bash

set -euo pipefail
# Without it a failure inside $(...) would go on with the next line there.
shopt -s inherit_errexit

root=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

# Objects of one checkout serve another one too, such as CI's fresh clone beside a developer's tree.
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$root}
# ccache compiles with relative paths then; the compiler's messages name files in full all the same.
export CCACHE_ABSSTDERR=1

say() { printf '%s\n' "$*" >&2; }

# shellcheck source=progress.sh
source "$root/scripts/progress.sh"

fail() {
    say "$*"
    exit 1
}

# Runs a command whose output nobody needs unless it fails: on a terminal it may show its progress, elsewhere it stays
# silent and a failure prints all of it.
quietly() {
    local out status=0
    if [[ -t 2 ]]; then
        "$@" >&2
        return
    fi
    out=$("$@" 2>&1) || status=$?
    if ((status != 0)); then
        say "$out"
    fi
    return "$status"
}

# configure PRESET [CMAKE ARGS...]
configure() {
    local preset=$1 out
    shift
    [[ -e $root/build/$preset/build.ninja ]] || say "Configuring"
    # CMake tells the same dozen findings every time, so here even a terminal sees them only after a failure.
    if ! out=$(cmake -S "$root" --preset "$preset" "$@" 2>&1); then
        say "$out"
        fail "Configuring the preset '$preset' failed."
    fi
}

# build PRESET [NINJA ARGS...]
build() {
    local preset=$1
    shift
    (cd -- "$root/build/$preset" && with_progress building_step ninja "$@") || fail "Building the preset '$preset' failed."
}
