# A session of its own for GNUstep programs: defaults, notifications and running applications apart from the user's,
# a display when there is none. For the scripts that source it.

session_scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

# Everything that is started from now on uses that home. The session ends with the shell.
session_start() { # HOME
    local home=$1
    # Sockets are in TEMP, and their paths must be short.
    session_temp=$(mktemp -d /tmp/qb.XXXXXX)
    trap session_end EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    mkdir -p "$home/GNUstep/Defaults" "$home/GNUstep/Library/Bundles" "$home/GNUstep/Applications"
    # GNUstep takes no notice of a configuration that others could write.
    (umask 077 && session_configuration "$home" >"$session_temp/GNUstep.conf")
    # Access to the user's own display takes the key in the user's own home.
    export XAUTHORITY=${XAUTHORITY-$HOME/.Xauthority}
    export HOME=$home TEMP=$session_temp GNUSTEP_CONFIG_FILE=$session_temp/GNUstep.conf
    export XDG_CONFIG_HOME=$home/.config XDG_DATA_HOME=$home/.local/share XDG_STATE_HOME=$home/.local/state
    export LC_ALL=C.UTF-8
}

# GNUstep's configuration with the folders of that home.
session_configuration() { # HOME
    local folder=${1//\\/\\\\} installed
    installed=$(gnustep-config --variable=GNUSTEP_CONFIG_FILE)
    folder=${folder//\"/\\\"}/GNUstep
    grep -v -E '^GNUSTEP_USER_(CONFIG_FILE|DEFAULTS_DIR|DIR_LIBRARY|DIR_APPS)=' "$installed"
    printf '%s="%s"\n' GNUSTEP_USER_CONFIG_FILE "" GNUSTEP_USER_DEFAULTS_DIR "$folder/Defaults" \
        GNUSTEP_USER_DIR_LIBRARY "$folder/Library" GNUSTEP_USER_DIR_APPS "$folder/Applications"
}

# Starts a virtual display with the window manager that GNUstep needs.
session_display() {
    local number="$session_temp/display" managed="$session_temp/managed"
    # The library of GLX takes longer to load than all the rest, and nothing draws by it.
    env -u TEMP Xvfb -displayfd 3 -screen 0 1280x1000x24 -nolisten tcp -extension GLX -noreset 3>"$number" \
        >/dev/null 2>&1 &
    session_server=$!
    session_wait "the virtual display" test -s "$number"
    DISPLAY=:$(cat "$number")
    export DISPLAY
    openbox --config-file "$session_scripts/openbox.xml" --startup "touch $managed" >/dev/null 2>&1 &
    session_wait "the window manager" test -e "$managed"
}

# Runs a program to its end. Unlike a foreground command, it does not delay a signal that ends the session.
session_run() { # COMMAND...
    "$@" &
    wait $!
}

# Waits until the command succeeds, ten seconds at most.
session_wait() { # WHAT COMMAND...
    local what=$1 limit=$((SECONDS + 10))
    shift
    until "$@"; do
        if ((SECONDS >= limit)); then
            echo "timed out waiting for $what" >&2
            return 1
        fi
        sleep 0.05
    done
}

# The processes of the session, however they were started: all have its TEMP.
session_processes() {
    local environment pid
    # What looks for the mark must not have it itself.
    for environment in $(env -u TEMP grep -lszFx -e "TEMP=$session_temp" /proc/[0-9]*/environ); do
        pid=${environment#/proc/}
        pid=${pid%/environ}
        [ "$pid" = $$ ] || echo "$pid"
    done
}

# Those of them that use the notification daemon and the window manager.
session_applications() {
    local pid
    for pid in $(session_processes); do
        case $(cat "/proc/$pid/comm" 2>/dev/null) in
        gdnc | openbox | "") ;;
        *) echo "$pid" ;;
        esac
    done
}

session_is_idle() {
    [ -z "$(session_applications)" ]
}

session_is_empty() {
    [ -z "$(session_processes)" ]
}

session_signal() { # SIGNAL PROCESS...
    local signal=$1 pid
    shift
    for pid in "$@"; do
        kill "-$signal" "$pid" 2>/dev/null || true
    done
}

# Ends every process of the session, the applications before what they use.
session_end() {
    session_signal TERM $(session_applications)
    session_wait "the end of the applications" session_is_idle 2>/dev/null || session_signal KILL $(session_applications)
    session_signal TERM $(session_processes)
    session_wait "the end of the session" session_is_empty 2>/dev/null || session_signal KILL $(session_processes)
    if [ -n "${session_server-}" ]; then
        kill "$session_server" 2>/dev/null || true
        wait "$session_server" 2>/dev/null || true
    fi
    # A process that was just being started had no environment for a moment, and shows up now.
    session_signal KILL $(session_processes)
    rm -rf "$session_temp"
}
