#!/usr/bin/env bash
# Builds the fuzzers, runs each over what is kept in tests/fuzz/corpus, then lets each look for new finds, as many at
# once as the machine has processors. An input that breaks a rule, takes 20 s or has one allocation of more than 64 MB or
# 512 MB in all is named at the end of the output and lies in build/fuzz/finds; it belongs into the corpus once mended.
#
#     scripts/fuzz.sh [SECONDS [NAME...]]      (default: 30 seconds for every fuzzer)
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

readonly seconds=${1:-30}
[[ $seconds =~ ^[0-9]+$ ]] || fail "'$seconds' is no number of seconds."
shift $(($# > 0))

"$root/scripts/install_packages.sh" build fuzz
configure fuzz
build fuzz
cd -- "$root"
ctest --preset fuzz

readonly found=$root/build/fuzz/finds grown=$root/build/fuzz/corpus
# The address sanitizer keeps freed memory for a while, and for good where each allocation came from, which libraries
# without frame pointers tell differently every time. Both count as used.
export ASAN_OPTIONS=${ASAN_OPTIONS:-quarantine_size_mb=32:malloc_context_size=2}

# fuzz NAME: what is new goes to a corpus of the build folder, which the next run starts from.
fuzz() {
    mkdir -p "$found" "$grown/$1"
    quietly "$root/build/fuzz/bin/fuzz-$1" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=512 -malloc_limit_mb=64 \
        -max_len=4096 -print_final_stats=1 -artifact_prefix="$found/$1-" "$grown/$1" "$root/tests/fuzz/corpus/$1" ||
        fail "The fuzzer '$1' found something; see $found."
    say "fuzz-$1: nothing found in $seconds s"
}

# A find doesn't stop the others: each names its own.
await_one() {
    wait -n || failed=1
}

names=("$@")
((${#names[@]} > 0)) || mapfile -t names < <(ls -- "$root/tests/fuzz/corpus")
failed=0
at_once=$(nproc)
for at in "${!names[@]}"; do
    ((at < at_once)) || await_one
    fuzz "${names[at]}" &
done
for ((at = 0; at < at_once && at < ${#names[@]}; ++at)); do
    await_one
done
exit "$failed"
