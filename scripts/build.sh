# Builds, for the scripts that source it; $root is the project's folder. A build that fails shows what it printed.

# Configures and builds one folder; says nothing when all is well. Sources are compiled in batches: these folders are
# built from scratch more often than they are edited in.
build_folder() { # FOLDER [CMAKE OPTION...]
    local folder=$1 log
    shift
    mkdir -p "$folder"
    log="$folder/build.log"
    printf 'Building %s ...\n' "${folder#"$root"/}"
    if ! { cmake -S "$root" -B "$folder" -G Ninja -DCMAKE_UNITY_BUILD=ON "$@" && cmake --build "$folder"; } >"$log" 2>&1; then
        cat "$log" >&2
        printf 'The build failed; all of the above is in %s\n' "$log" >&2
        return 1
    fi
}

# The plug-in, the stand-ins and the player.
build_application() {
    build_folder "$root/build"
}

# The portable core with its tests, instrumented.
build_core() { # NAME [CMAKE OPTION...]
    local name=$1
    shift
    build_folder "$root/build/$name" -DSORTERPANE_CORE_ONLY=ON "$@"
}
