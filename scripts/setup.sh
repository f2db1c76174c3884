#!/usr/bin/env bash
# setup.sh PURPOSE...: installs the Debian packages that the purposes need and the machine lacks; says so first.
# Purposes: core (the portable rooms and their tests), house (the house's own rules), application (the plug-in and what
# it runs in), tests (of the application), pictures (of the pane), coverage, tidy, fuzzing, mutants, benchmark, package
# (the Debian package and the checks of it), roots (fresh root file systems of other releases and architectures).
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/usage.sh"
help_or_refuse "$@"

drawing='^gnustep-back[0-9.]+-cairo$'

# A name that begins with ^ is a pattern, for a package that each release of Debian names after its own version of it.
packages_for() {
    case $1 in
    core) echo cmake ninja-build clang libclang-rt-dev g++ nlohmann-json3-dev googletest python3 ;;
    application)
        echo cmake ninja-build make g++ gobjc++ gnustep-make nlohmann-json3-dev \
            libgnustep-gui-dev libpreferencepanes-dev libxml2-dev gnustep-gui-runtime gnustep-base-runtime "$drawing" \
            pkg-config libx11-dev libxkbcommon-dev libfontconfig-dev fonts-dejavu-core xvfb openbox
        ;;
    tests)
        echo googletest python3 clang libclang-rt-dev clang-format doxygen g++-multilib \
            x11-xkb-utils libxtst-dev xdotool desktop-file-utils systempreferences.app weston xwayland \
            fonts-wqy-microhei fonts-symbola
        ;;
    house) echo clang-format doxygen ;;
    coverage) echo gcovr ;;
    tidy) echo clang-tidy ;;
    fuzzing) echo clang libclang-rt-dev libxml2-dev ;;
    mutants) echo git python3-clang ;;
    roots) echo git mmdebstrap arch-test util-linux ;;
    pictures) echo imagemagick ;;
    benchmark) echo libbenchmark-dev gnuplot-nox python3 systempreferences.app ;;
    package) echo dpkg-dev file lintian appstream gzip xz-utils ;;
    *) refuse "unknown purpose '$1'" ;;
    esac
}

is_installed() {
    case $1 in
    ^*)
        dpkg-query -W -f '${Package} ${db:Status-Status}\n' | sed -n 's/ installed$//p' | grep -E "$1" >/dev/null
        return
        ;;
    esac
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Where its packages are used, packages_for runs in a shell of its own, which is all that a refusal would end.
for purpose in "$@"; do packages_for "$purpose" >/dev/null; done

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This system is not Debian. What these Debian packages hold must be installed:" >&2
    for purpose in "$@"; do packages_for "$purpose"; done | xargs >&2
    exit 0
fi

missing=()
for purpose in "$@"; do
    for package in $(packages_for "$purpose"); do
        is_installed "$package" || missing+=("$package")
    done
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
        echo "These Debian packages are missing, and installing them takes root or sudo: ${missing[*]}" >&2
        exit 1
    }
    as_root=(sudo)
fi

echo "Installing Debian packages: ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
install_missing() {
    "${as_root[@]}" apt-get update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}
install_missing >"$log" 2>&1 || {
    cat "$log" >&2
    echo "The packages could not be installed." >&2
    exit 1
}
