# Help and refusals, for the scripts that source it. The comment at the head of a script is its help.

program=${0##*/} # in refusals

refuse() { # WHY
    echo "$program: $1; --help says more" >&2
    exit 2
}

# Shows the help when it is asked for, and refuses every other word that begins with -.
help_or_refuse() { # WORD...
    local word
    for word in "$@"; do
        case $word in
        --help | -h)
            sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0"
            exit 0
            ;;
        -*) refuse "unknown option '$word'" ;;
        esac
    done
}
