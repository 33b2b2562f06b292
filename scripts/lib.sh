# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# What the scripts beside this file share. Each of them sources it first, which also takes it to the top
# folder of the project.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit

# Qt encodes file names as the locale says, and the plain C locale has no Chinese ones.
case ${LC_ALL:-${LC_CTYPE:-${LANG:-}}} in
    *[Uu][Tt][Ff]8* | *[Uu][Tt][Ff]-8*) ;;
    *) export LC_ALL=C.UTF-8 ;;
esac

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Whether there is a program $1. One at a time: of several, "command -v" is content with a single one.
has() {
    command -v "$1" >/dev/null
}

# Ends the script when there is no program $1, with the name of the Debian package $2 that it is in.
need() {
    has "$1" || fail "there is no $1: please install $2"
}

# Configures the preset $1 when that was not done since its description changed. The build itself sees
# every other reason to configure again.
configure() {
    local made=build/$1/build.ninja
    if [[ ! -f $made || CMakePresets.json -nt $made ]]; then
        cmake --preset "$1"
        touch "$made"
    fi
}
