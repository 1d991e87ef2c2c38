#!/usr/bin/env bash
# Makes the pictures of docs/screenshots anew. To be run by whoever changes the look of the window: the result is
# committed. The test that keeps pictures takes them, so they show what is tested.
#
#     scripts/make_screenshots.sh
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

readonly from=$root/build/dev/screenshots
readonly to=$root/docs/screenshots

# compact NAME: copies a picture with few colours and without the time of its making, which would be a change each time.
compact() {
    convert "$from/$1.png" -strip -colors 128 -define png:exclude-chunk=all -define png:compression-level=9 "PNG8:$to/$1.png"
}

main() {
    "$root/test" -R '^desktop\.look_test$'
    mkdir -p -- "$to"
    compact window-light
    compact window-dark
    compact editor-light
    compact filter-light
    compact presets-light
}

main
