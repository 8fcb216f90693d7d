#!/usr/bin/env bash
# install-packages.sh [GROUP...]: installs the Debian packages of these groups that are missing
# (default: build test). Groups: build, test, bench, wayland, format. Without anything missing it needs no
# network and no privilege.
#
# Status: 0 everything is there, 1 the installation failed, 2 unknown group, 3 it may not install: the
# command to type is printed.
set -euo pipefail

packages_of() {
    case $1 in
    build)
        # The last three: fonts for the Latin and the East Asian languages, and what
        # find_package(Qt6 UiTools) asks for although no package depends on it.
        echo g++ cmake ninja-build ccache qt6-base-dev qt6-tools-dev qt6-l10n-tools libcups2-dev \
            libpoppler-qt6-dev fonts-dejavu-core fonts-wqy-microhei libqt6opengl6-dev
        ;;
    # cupsd and its filters are for a private server of the tests, cups-client brings cupstestppd.
    test) echo libgtest-dev libgmock-dev cups-daemon cups-client cups-core-drivers ;;
    bench) echo libbenchmark-dev ;;
    wayland) echo qt6-wayland ;;
    format) echo clang-format git ;;
    *)
        echo "install-packages.sh: no group '$1' (groups: build test bench wayland format)" >&2
        return 2
        ;;
    esac
}

missing_of() {
    local package
    for package in "$@"; do
        [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
            echo "$package"
    done
}

# Sets $privilege to the words that go before a command of root, and fails when there are none.
find_privilege() {
    privilege=()
    [[ $(id -u) == 0 ]] && return
    privilege=(sudo -n)
    sudo -n true 2>/dev/null
}

# Shows apt-get's output only when it fails.
apt_get() {
    local output
    output=$("${privilege[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q \
        -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 "$@" </dev/null 2>&1) && return
    echo "$output" >&2
    return 1
}

# A stale package list and a busy mirror both look like a failed installation; one more try with a
# fresh list tells them from a real one.
install_missing() {
    local attempt
    for attempt in 1 2; do
        echo "install-packages.sh: reading the package lists (attempt $attempt)"
        apt_get update || echo "install-packages.sh: no fresh package lists, using the old ones" >&2
        echo "install-packages.sh: installing $* (a minute or two)"
        apt_get install -y --no-install-recommends "$@" && return
    done
    echo "install-packages.sh: apt-get could not install: $*" >&2
    return 1
}

main() {
    local group names
    local -a packages wanted=() missing=()
    (($#)) || set -- build test
    for group in "$@"; do
        names=$(packages_of "$group")
        read -ra packages <<<"$names"
        wanted+=("${packages[@]}")
    done

    if ! command -v dpkg-query >/dev/null; then
        echo "install-packages.sh: no Debian system; install what Debian calls ${wanted[*]}" >&2
        return 3
    fi
    mapfile -t missing < <(missing_of "${wanted[@]}")
    ((${#missing[@]})) || return 0

    if ! find_privilege; then
        echo "install-packages.sh: packages are missing, and only root can install them. Type:" >&2
        echo "sudo apt-get update && sudo apt-get install -y --no-install-recommends ${missing[*]}" >&2
        return 3
    fi
    install_missing "${missing[@]}"
}

main "$@"
