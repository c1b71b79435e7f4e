# A bare Debian 12 to try things in. Sourced after lib.sh, by scripts that run as root.
# shellcheck shell=bash

ko_place=${KO_CLEAN_ROOT:-/tmp/ko-clean-root}

# ko_make_root: a new bare system in $ko_place/root, with the mirror, and the settings for reaching it, of this one.
ko_make_root()
{
    [[ $EUID -eq 0 ]] || ko_die "takes root, for chroot and mounts"
    command -v debootstrap >/dev/null || ko_die "debootstrap is missing (apt-get install debootstrap)"
    local bare=$ko_place/bare root=$ko_place/root
    if [[ ! -e $bare/etc/debian_version ]]; then
        ko_say "making a bare Debian 12 in $bare"
        rm -rf "$bare"
        mkdir -p "$bare"
        debootstrap --variant=minbase bookworm "$bare" >"$ko_place/debootstrap.log" 2>&1 ||
            ko_die "debootstrap failed, see $ko_place/debootstrap.log"
    fi
    rm -rf "$root"
    cp -a "$bare" "$root"
    cp -L /etc/resolv.conf "$root/etc/resolv.conf"
    if [[ -e /etc/apt/sources.list.d/debian.sources ]]; then
        rm -f "$root/etc/apt/sources.list"
        cp /etc/apt/sources.list.d/debian.sources "$root/etc/apt/sources.list.d/"
    fi
    { grep -h '^Acquire::' /etc/apt/apt.conf /etc/apt/apt.conf.d/* 2>/dev/null || :; } >"$root/etc/apt/apt.conf.d/90host"
}

# ko_in_root COMMAND: runs there, in /src. Mounts live in a namespace of their own, so that nothing stays mounted,
# whatever happens.
ko_in_root()
{
    # shellcheck disable=SC2016 # expanded inside
    unshare --mount --pid --fork bash -euc '
        mount -t proc proc "$1/proc"
        mount --rbind /dev "$1/dev"
        mount -t sysfs sysfs "$1/sys"
        exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root TERM=dumb ${http_proxy:+"http_proxy=$http_proxy"} \
            ${https_proxy:+"https_proxy=$https_proxy"} chroot "$1" bash -euc "cd /src; $2" </dev/null
    ' - "$ko_place/root" "$1"
}
