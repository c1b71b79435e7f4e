# What ./run, ./test and the scripts in packaging/ share. Sourced, under `set -euo pipefail`.
# shellcheck shell=bash

ko_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

ko_say() { printf '== %s\n' "$*"; }

ko_die()
{
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# ko_packages GROUP...: the names in these groups of debian-packages.txt, each once.
ko_packages()
{
    local line word group="" wanted=" $* " seen=" "
    while read -r line || [[ -n $line ]]; do
        for word in ${line%%#*}; do
            if [[ $word == \[*\] ]]; then
                group=${word:1:-1}
            elif [[ $wanted == *" $group "* && $seen != *" $word "* ]]; then
                seen+="$word "
                printf '%s\n' "$word"
            fi
        done
    done <"$ko_root/packaging/debian-packages.txt"
}

# ko_missing NAME...: those of the packages that are not installed.
ko_missing()
{
    local name status installed=" "
    while read -r name status; do
        [[ $status != installed ]] || installed+="$name "
    done < <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null)
    for name in "$@"; do
        [[ $installed == *" $name "* ]] || printf '%s\n' "$name"
    done
}

# ko_install GROUP...: installs what is missing from these groups, and nothing when all is there.
ko_install()
{
    local wanted missing
    mapfile -t wanted < <(ko_packages "$@")
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        ko_die "this system has no apt-get. Install what matches these Debian packages and build with" \
               "\`cmake --preset release\` (README.md): ${wanted[*]}"
    fi
    mapfile -t missing < <(ko_missing "${wanted[@]}")
    [[ ${#missing[@]} -gt 0 ]] || return 0

    local as_root=()
    if [[ $EUID -ne 0 ]]; then
        # Without a terminal sudo could only wait for a password that nobody types.
        if ! command -v sudo >/dev/null || { [[ ! -t 0 ]] && ! sudo -n true 2>/dev/null; }; then
            ko_die "packages are missing, and installing them takes root or sudo. Have this run once:" \
                   "apt-get install --no-install-recommends ${missing[*]}"
        fi
        as_root=(sudo)
    fi
    ko_say "installing ${missing[*]}"
    as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get)
    "${as_root[@]}" -qq update || printf 'The package lists could not be renewed; going on with the old ones.\n' >&2
    "${as_root[@]}" -qq install -y --no-install-recommends "${missing[@]}" ||
        ko_die "apt-get could not install: ${missing[*]}. The packages are those of Debian 12."
}

# ko_build PRESET [TARGET]: configures and builds, with ccache when it is there. Errors do not stop the build, so
# that all of them are seen.
ko_build()
{
    local preset=$1 version
    shift
    [[ $# -gt 0 ]] || set -- all
    read -r _ _ version < <(cmake --version)
    [[ $(printf '%s\n' 3.25 "$version" | sort -V | head -n 1) == 3.25 ]] ||
        ko_die "cmake is $version ($(command -v cmake)); it takes 3.25 or newer, as in Debian 12"
    if command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
        export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros} # or nothing with KO_PRECOMPILE is kept
    fi
    ko_say "building $* in build/$preset"
    (cd "$ko_root" && cmake --preset "$preset" --log-level=WARNING &&
        cmake --build --preset "$preset" --target "$@" -- -k 0)
}
