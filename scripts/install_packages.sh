#!/usr/bin/env bash
# Installs the Debian packages of the named groups that are not there yet. Without anything missing it only asks dpkg:
# no network, no privileges, a few milliseconds.
#
#     scripts/install_packages.sh GROUP...      (build, test, lint, bench, fuzz)
#
# VELLUMARK_INSTALL=no leaves the machine as it is, for systems where the dependencies came another way.
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

# The names with a version are needed: Debian's unversioned Boost is 1.74, which has no JSON library; clang before 16
# can't read the ranges of g++ 12's standard library.
declare -Ar groups=(
    [build]="g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-tools-dev qt6-l10n-tools libqt6svg6 qt6-wayland
        libssl-dev libpcre2-dev libxcb1-dev
        libexif-dev libtag1-dev libmediainfo-dev libqpdf-dev libzip-dev
        libboost-json1.81-dev libboost-filesystem1.81-dev libboost-program-options1.81-dev"
    [test]="libgtest-dev python3 strace
        xvfb openbox xdotool xclip x11-utils imagemagick dbus-daemon at-spi2-core python3-pyatspi
        sway wl-clipboard"
    [lint]="git python3 clang-format clang-tidy-16 shellcheck"
    [bench]="libbenchmark-dev python3 openssl xxhash rhash findutils libimage-exiftool-perl"
    [fuzz]="clang-16 libclang-rt-16-dev"
)

# Prints those of the packages, one a line, that dpkg doesn't have whole.
missing_of() {
    declare -A present=()
    local name status
    # A package that dpkg never heard of is an error to it, and simply missing to us.
    while read -r name status; do
        [[ $status == installed ]] && present[$name]=1
    done < <(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null)
    for name in "$@"; do
        [[ -v present[$name] ]] || printf '%s\n' "$name"
    done
}

fetching_step() { step='Fetching the lists of packages'; }

# apt-get tells how many packages there will be, and then goes through them three times.
package_count=0
packages_begun=0
installing_step() {
    local words
    read -ra words <<<"$1"
    case $1 in
        *' newly installed, '*) package_count=$((${words[0]-0} + ${words[2]-0})) ;;
        Get:*) package_step Downloading "${words[4]-}" ;;
        'Unpacking '*) package_step Installing "${words[1]-}" ;;
        'Setting up '*) package_step 'Setting up' "${words[2]-}" ;;
    esac
}

# package_step VERB PACKAGE
package_step() {
    [[ ${1%% *} == "$stage" ]] || packages_begun=0
    step="$1 ${2%%:*} ... ($((++packages_begun)) of $package_count)"
}

# apt STEP ARGS...: runs apt-get as root, directly or through sudo, in English as the function STEP knows it.
apt() {
    local as_root=() step=$1
    shift
    ((EUID == 0)) || as_root=(sudo)
    with_progress "$step" "${as_root[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -y -q \
        -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 "$@" </dev/null
}

install() {
    local by_hand="Install by hand: $*"
    command -v apt-get >/dev/null || fail "apt-get is not here (is this Debian?). $by_hand"
    ((EUID == 0)) || command -v sudo >/dev/null ||
        fail "Packages are missing; to install them takes root or sudo, and neither is here. $by_hand"
    say "Installing: $*"
    # Some other source of this machine may be the one that is gone, so what decides is whether the packages come.
    apt fetching_step -o APT::Update::Error-Mode=any update || say "apt-get update failed; going on with the lists that are here."
    apt installing_step install --no-install-recommends "$@" || fail "apt-get install failed. $by_hand"
}

main() {
    local group names packages=() missing
    for group in "$@"; do
        [[ -v groups[$group] ]] || fail "No group of packages is named '$group'."
        read -rd '' -a names <<<"${groups[$group]}" || true
        packages+=("${names[@]}")
    done
    if [[ ${VELLUMARK_INSTALL:-yes} == no ]] || ((${#packages[@]} == 0)); then
        return
    fi
    command -v dpkg-query >/dev/null ||
        fail "This is no Debian. Install the like of: ${packages[*]}; then set VELLUMARK_INSTALL=no."
    mapfile -t missing < <(missing_of "${packages[@]}")
    if ((${#missing[@]} > 0)); then
        install "${missing[@]}"
    fi
}

main "$@"
