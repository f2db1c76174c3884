# Builds, for the scripts that source it; $root is the project's folder. CMakePresets.json says what each build is.

# Runs the commands at the project's root; shows what they printed only if one fails.
quietly() { # LOG COMMAND...
    local log="$root/build/logs/$1"
    shift
    mkdir -p "${log%/*}"
    if ! (cd "$root" && "$@") >"$log" 2>&1; then
        cat "$log" >&2
        printf 'This failed: %s\nAll of the above is in %s\n' "$*" "$log" >&2
        return 1
    fi
}

# Writes the build folder of the preset, with its compile database.
configure_preset() { # PRESET
    quietly "$1-configure.log" cmake --preset "$1"
}

build_preset() { # PRESET
    printf 'Building %s ...\n' "$1"
    configure_preset "$1" &&
        quietly "$1-build.log" cmake --build --preset "$1"
}
