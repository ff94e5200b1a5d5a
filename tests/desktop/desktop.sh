# Sourced by the tests of this folder with the program as first argument: gives them a home, a display and a window
# manager of their own, and the words in which they tell what the learner does.
set -eu
program=$1
work=$(mktemp -d)
export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime XDG_CONFIG_HOME=$work/config LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY QT_QPA_PLATFORM QT_STYLE_OVERRIDE XDG_DATA_HOME
mkdir -p -m 700 "$HOME" "$XDG_RUNTIME_DIR"
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $1" >&2
    cat "$work/errors" >&2 2>/dev/null || true
    xdotool search --name . getwindowname %@ >&2 2>/dev/null || true
    import -window root "${TMPDIR:-/tmp}/morvanti-desktop-test.png" 2>/dev/null || true
    exit 1
}
# within SECONDS CONDITION...: whether it comes true by then.
within() {
    local limit=$((SECONDS + $1))
    until "${@:2}" >/dev/null 2>&1; do
        [ $SECONDS -lt $limit ] || return 1
        sleep 0.02
    done
}
# wait_for WHAT CONDITION...: at most a minute; Xvfb may start slowly.
wait_for() { within 60 "${@:2}" || fail "never came: $1"; }
# press_for "KEY..." CONDITION...: presses the keys until it comes true: a window just shown may still lack the keyboard.
press_for() {
    for _ in {1..12}; do
        xdotool key $1
        within 5 "${@:2}" && return
    done
    fail "never came with $1: ${*:2}"
}

# Xvfb would start anew whenever its last window closes, and take the window manager with it.
open_display() {
    Xvfb -displayfd 3 -noreset -screen 0 1280x800x24 3>"$work/display" 2>/dev/null &
    wait_for "the display" test -s "$work/display"
    export DISPLAY=:$(cat "$work/display")
    openbox >/dev/null 2>&1 &
    wait_for "the window manager" xdotool get_desktop
}
active() { [ "$(xdotool getactivewindow getwindowname)" = "$1" ]; }
# start [FOLDER]: starts the program and waits for its main window.
start() {
    (cd "$HOME" && exec "$program" "$@" 2>"$work/errors") &
    running=$!
    wait_for "the main window" active Velmorane
}
# go WINDOW KEY...: presses the keys until the window comes.
go() { press_for "${*:2}" active "$1"; }
ended() { ! kill -0 "$running"; }
# end_with KEY: presses it until the program ends, which is to complain of nothing.
end_with() {
    press_for "$1" ended
    wait "$running" || fail "the program ended with status $?"
    [ ! -s "$work/errors" ] || fail "it said on standard error"
}
