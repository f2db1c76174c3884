#!/usr/bin/env bash
# in-fresh-root.sh SUITE ARCHITECTURE: runs ./run and ./test, as HEAD has them, on a bare machine with that suite of
# Debian: in a root file system that is made for it and removed afterwards, from the archive that this machine's apt
# uses. Fails when either fails.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/usage.sh"
program="test --in"
help_or_refuse "$@"
project=/root/sorter-pane # in the fresh root
fresh=
processes=

# The archive of Debian's releases, among those that apt uses here.
archive() {
    apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Label: Debian' | head -n 1
}

check_names() { # ARCHIVE SUITE ARCHITECTURE
    local release known
    release=$(mktemp)
    if ! /usr/lib/apt/apt-helper download-file "$1dists/$2/Release" "$release" >"$release.log" 2>&1; then
        known=$(cat "$release.log")
        rm -f "$release" "$release.log"
        refuse "this suite could not be found: $2"$'\n'"$known"
    fi
    known=$(sed -n 's/^Architectures: all //p' "$release")
    rm -f "$release" "$release.log"
    [[ " $known " == *" $3 "* ]] || refuse "$2 has no architecture $3, but $known"
}

# What apt here needs to reach the archive, apt in the fresh root needs too.
apt_settings() {
    apt-config dump | grep -E '^Acquire::([a-z]+::)?(Proxy|CaInfo|Check-|Verify|Retries|Timeout|Max-)'
}

make_root() { # ARCHIVE SUITE ARCHITECTURE
    local settings=() certificates
    mapfile -t settings < <(apt_settings)
    mmdebstrap --quiet --variant=apt --architectures="$3" "${settings[@]/#/--aptopt=}" "$2" "$fresh" "$1"
    while read -r certificates; do
        install -D -m 644 "$certificates" "$fresh$certificates"
    done < <(printf '%s\n' "${settings[@]}" | sed -n 's/.*CaInfo "\(.*\)";/\1/p')
    cp /etc/resolv.conf /etc/hosts "$fresh/etc/"
    git clone --quiet --no-local "$root" "$fresh$project"
}

# Runs the command in the fresh root. Its processes and what is mounted for them are in namespaces of their own: they go
# with its first process, and nothing of this machine is ever below the folder that is removed.
in_root() { # COMMAND...
    local status=0
    unshare --mount --pid --fork --kill-child bash -euc '
        fresh=$1
        shift
        mount -t proc proc "$fresh/proc"
        mount -t sysfs -o ro sys "$fresh/sys"
        mount --rbind /dev "$fresh/dev"
        env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root TERM=dumb chroot "$fresh" "$@"
    ' in_root "$fresh" "$@" &
    processes=$!
    wait "$processes" || status=$?
    processes=
    return "$status"
}

remove_root() {
    if [ -n "$processes" ]; then
        kill -KILL "$processes" 2>/dev/null || true
        wait "$processes" 2>/dev/null || true
    fi
    [ -z "$fresh" ] || rm -rf --one-file-system "$fresh"
}

versions() {
    in_root sh -c '
        echo "Debian $(cat /etc/debian_version), $(dpkg --print-architecture)"
        dpkg-query -W -f "\${Package} \${Version}\n" cmake g++ clang gnustep-make "libgnustep-base[0-9]*" \
            "libgnustep-gui[0-9]*" 2>/dev/null || true'
}

tell() { # COMMAND STATUS
    if [ "$2" -eq 0 ]; then
        echo "$1: passed"
    else
        echo "$1: failed"
    fi
}

[ "$(id -u)" -eq 0 ] || refuse "making a root file system takes root; run it by sudo"
[ $# -eq 2 ] || refuse "takes a suite of Debian and an architecture, such as trixie amd64"
"$root/scripts/setup.sh" roots
mirror=$(archive)
[ -n "$mirror" ] || refuse "apt here knows no archive of Debian; apt-get update may help"
check_names "$mirror" "$1" "$2"

trap remove_root EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
fresh=$(mktemp -d "${TMPDIR:-/var/tmp}/sorter-pane-$1-$2.XXXXXX")
chmod 755 "$fresh"
echo "Making a root of $1 $2 in $fresh ..."
make_root "$mirror" "$1" "$2"

run=0 test=0
printf '\n== ./run in %s %s ==\n' "$1" "$2"
in_root "$project/run" || run=$?
printf '\n== ./test in %s %s ==\n' "$1" "$2"
in_root "$project/test" || test=$?

printf '\n== %s %s ==\n' "$1" "$2"
versions
tell ./run "$run"
tell ./test "$test"
[ "$run" -eq 0 ] && [ "$test" -eq 0 ]
