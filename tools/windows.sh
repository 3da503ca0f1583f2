# The windows of the program on a display with a window manager, for scripts to source after
# waiting.sh, with tools as the folder of both: started, found by name, brought to the front, seen to go.

# on_virtual_display SCRIPT [ARGUMENT ...]: begins the script again on a display of its own, unless it is
# there already.
on_virtual_display() {
    [ -n "${ON_VIRTUAL_DISPLAY:-}" ] || ON_VIRTUAL_DISPLAY=yes exec "$tools/virtual_display" 1280x1024 "$@"
}

# Gives the program a home of its own, so that it neither reads nor writes anybody's files.
use_home_of_its_own() {
    own_home=$(mktemp -d)
    chmod 700 "$own_home"
    trap '[ -z "${game:-}" ] || kill -KILL "$game" 2>/dev/null || true; rm -rf "$own_home"' EXIT
    export HOME=$own_home XDG_RUNTIME_DIR=$own_home QT_QPA_PLATFORM=xcb
    unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_DATA_DIRS
}

# start_program PROGRAM: starts it and waits for its main window; sets game to its process and board
# to its window.
start_program() {
    "$1" >"$EVIDENCE/program.log" 2>&1 &
    game=$!
    board=''
    wait_until "the main window" main_window
    board=$window
    to_board
}

main_window() {
    ended "$game" && hopeless="The program ended before its window was there."
    new_window '^Kelvarine'
}

# new_window NAME: sets window to a visible window of that name that is not the main one.
new_window() {
    local each
    for each in $(xdotool search --onlyvisible --name "$1" 2>/dev/null); do
        if [ "$each" != "$board" ]; then
            window=$each
            return 0
        fi
    done
    return 1
}

# window_gone WINDOW: whether a window beside the main one has gone. A search that fails finds nothing at
# all, so what it finds counts only with the main window among it.
window_gone() {
    local seen
    seen=$(xdotool search --onlyvisible --name '.')
    grep -qx "$board" <<<"$seen" && ! grep -qx "$1" <<<"$seen"
}

# Gives the window the focus and waits until it has it: a key that is sent before gets lost.
in_front() {
    wait_until "the focus of a window" has_focus "$window"
}

to_board() {
    window=$board
    in_front
}

has_focus() {
    [ "$(xdotool getwindowfocus)" = "$1" ] && return 0
    xdotool windowactivate "$1"
    [ "$(xdotool getwindowfocus)" = "$1" ]
}

# Waits for the end of the program and fails when it ended badly.
end_of_program() {
    wait_until "the end of the program" ended "$game"
    local result=0
    wait "$game" || result=$?
    game=''
    [ "$result" -eq 0 ] || fail "The program ended with return code $result."
}
