#!/usr/bin/env bash
# Fails when clang-format would change a C++ file. Files that git doesn't know yet count as well, ignored ones don't.
#
#     scripts/check_format.sh [--fix]
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

mode=(--dry-run --Werror)
[[ ${1-} != --fix ]] || mode=(-i)

cd -- "$root"
git ls-files -z --deduplicate --cached --others --exclude-standard -- '*.h' '*.cpp' ':!samples' |
    while IFS= read -rd '' file; do
        # One that is deleted but not committed is still listed.
        [[ ! -e $file ]] || printf '%s\0' "$file"
    done |
    xargs -0r clang-format "${mode[@]}"
