#!/usr/bin/env bash
# Prints the whole gallery for reading: each command with its description and the text that it makes of the paths.
#
#     scripts/print_gallery.sh [PATH...]      (default: the entries of samples/ and of its folders)
#
# The program is the release preset's; VELLUMARK_TEXT names another.
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

tool=${VELLUMARK_TEXT:-$root/build/release/bin/vellumark-text}
[[ -x $tool ]] || fail "$tool is not there; ./run builds it."

# Writes the gallery as a commands file and prints "CATEGORY<tab>NAME<tab>DESCRIPTION" for each command.
as_commands() {
    python3 - "$root/Resources/VKGallery.json" "$1" <<'PYTHON'
import json, sys
with open(sys.argv[1], encoding="utf-8") as file:
    commands = json.load(file)["galleryCommands"]
with open(sys.argv[2], "w", encoding="utf-8") as file:
    json.dump({"menuCommands": commands, "commandsLibrary": [], "extensionsPresets": []}, file)
for command in commands:
    print(command["category"], command["name"], command["description"], sep="\t")
PYTHON
}

main() {
    local commands list index=0 category name description last=''
    if (($# == 0)); then
        shopt -s dotglob nullglob
        set -- "$root"/samples/* "$root"/samples/*/*
    fi
    commands=$(mktemp)
    # shellcheck disable=SC2064
    trap "rm -f -- '$commands'" EXIT
    list=$(as_commands "$commands")
    while IFS=$'\t' read -r category name description; do
        if [[ $category != "$last" ]]; then
            printf '##### %s\n\n' "$category"
            last=$category
        fi
        printf '=== %s\n%s\n\n' "$name" "$description"
        # A text need not end with a line end, the next heading needs one.
        # shellcheck disable=SC1003
        "$tool" --commands "$commands" --index "$((index++))" -- "$@" | LC_ALL=C sed '$a\'
        printf '\n'
    done <<<"$list"
}

main "$@"
