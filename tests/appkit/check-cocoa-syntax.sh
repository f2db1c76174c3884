#!/usr/bin/env bash
# Checks the syntax of everything in src/appkit that is built on macOS, for both architectures, by clang against
# GNUstep's headers and declarations of what only Cocoa has. Unknown messages and functions are errors.
# check-cocoa-syntax.sh STAMP: the file has the checksum of what passed before, which is not checked again.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
shim="$root/tests/appkit/cocoa-shim"
clang_headers=$(clang++ -print-resource-dir)/include
gcc_headers=$(dirname "$(gcc -print-file-name=include/objc/objc.h)")/..
machine=$(gcc -print-multiarch)
system=/usr/include/$machine
version=$(gcc -dumpversion)
standard=/usr/include/c++/$version
headers=$(gnustep-config --variable=GNUSTEP_SYSTEM_HEADERS)
# The standard library's configuration for this machine, and for the other architecture.
case $machine in
x86_64-*) configuration_of_64=. configuration_of_32=32 ;;
*) configuration_of_64=64 configuration_of_32=. ;;
esac

stamp=$1
sources=$(cd "$root" && find src tests/appkit/cocoa-shim "$0" -type f -print0 | sort -z | xargs -0 sha256sum | sha256sum)
[ "$(cat "$stamp" 2>/dev/null)" != "$sources" ] || exit 0

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

compile() { # ARCHITECTURE CONFIGURATION ARGUMENT...
    local architecture=$1 configuration=$2
    shift 2
    clang++ -target "$architecture-apple-macosx10.13" -U__APPLE__ -U__MACH__ -U__nonnull -D__linux__ -D__unix__ \
        -D__gnu_linux__ -D_GNU_SOURCE -D__ELF__ -Wno-everything -Werror=objc-method-access -fblocks -fobjc-exceptions \
        -std=c++20 -nostdinc -nostdinc++ -isystem "$shim" -isystem "$standard" \
        -isystem "$system/c++/$version/$configuration" -isystem "$clang_headers" -isystem "$system" -isystem /usr/include \
        -idirafter "$gcc_headers" -isystem "$headers" -I "$root/src" -I "$root/src/support" "$@"
}

check() { # ARCHITECTURE CONFIGURATION FILE
    compile "$1" "$2" -include-pch "$folder/$1.pch" -x objective-c++ -fsyntax-only "$3" ||
        echo "${3#"$root"/}: does not compile for $1"
}

check_all() { # ARCHITECTURE CONFIGURATION
    local file
    compile "$1" "$2" -x objective-c++-header "$shim/declarations.h" -o "$folder/$1.pch" || return 0
    while read -r file; do
        check "$1" "$2" "$file"
    done < <(find "$root/src/appkit" -name '*.mm' -not -path '*/gnustep/*' | sort)
}

check_all x86_64 "$configuration_of_64" >"$folder/x86_64.log" 2>&1 &
check_all i386 "$configuration_of_32" >"$folder/i386.log" 2>&1
wait $!
cat "$folder"/*.log
if [ -s "$folder/x86_64.log" ] || [ -s "$folder/i386.log" ]; then
    exit 1
fi
echo "$sources" >"$stamp"
