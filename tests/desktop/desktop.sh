# Sourced by the tests of this folder with the program as first argument: gives them a home, a display and a window
# manager of their own, and the words in which they tell what the learner does.
set -eu
program=$1
work=$(mktemp -d)
export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime XDG_CONFIG_HOME=$work/config LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY QT_QPA_PLATFORM QT_STYLE_OVERRIDE
mkdir -p -m 700 "$HOME" "$XDG_RUNTIME_DIR"
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $1" >&2
    cat "$work/errors" >&2 2>/dev/null || true
    xdotool search --name . getwindowname %@ >&2 2>/dev/null || true
    import -window root "$work/last.png" 2>/dev/null && cp "$work/last.png" "${TMPDIR:-/tmp}/morvanti-desktop-test.png"
    exit 1
}
# Waits for a condition, at most a minute; Xvfb may start slowly.
wait_for() {
    local what=$1 limit=$((SECONDS + 60))
    shift
    until "$@" >/dev/null 2>&1; do
        [ $SECONDS -lt $limit ] || fail "never came: $what"
        sleep 0.05
    done
}

# Xvfb would start anew whenever its last window closes, and take the window manager with it.
open_display() {
    Xvfb -displayfd 3 -noreset -screen 0 1280x800x24 3>"$work/display" 2>/dev/null &
    wait_for "the display" test -s "$work/display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    openbox >/dev/null 2>&1 &
    wait_for "the window manager" xdotool get_desktop
}

start_in() {
    (cd "$1" && exec "$program" "$1" 2>"$work/errors") &
    running=$!
}
active() { [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; }
wait_for_window() { wait_for "the window \"$1\"" active "$1"; }
# go WINDOW KEY...: presses the keys until the window comes: a window that was just shown may still lack the keyboard.
go() {
    local window=$1 limit=$((SECONDS + 60)) soon
    shift
    until active "$window"; do
        [ $SECONDS -lt $limit ] || fail "never came: the window \"$window\""
        xdotool key "$@"
        soon=$((SECONDS + 5))
        until active "$window" || [ $SECONDS -ge $soon ]; do sleep 0.05; done
    done
}
answer() {
    xdotool type "$1"
    xdotool key Return
}
ended() { ! kill -0 "$running" 2>/dev/null; }
# end_with KEY: presses it until the program ends.
end_with() {
    local limit=$((SECONDS + 60)) soon
    until ended; do
        [ $SECONDS -lt $limit ] || fail "the program does not end with $1"
        xdotool key "$1"
        soon=$((SECONDS + 5))
        until ended || [ $SECONDS -ge $soon ]; do sleep 0.05; done
    done
    wait "$running" || fail "the program ended with status $?: $(cat "$work/errors")"
}
# pixels COLOUR: how many pixels of the screen have exactly this colour.
pixels() {
    import -window root png:- |
        convert png:- -fill black +opaque "$1" -fill white -opaque "$1" -colorspace gray -format '%[fx:round(w*h*mean)]' info:
}
shows() { [ "$(pixels "$1")" -ge "$2" ]; }
shows_no() { [ "$(pixels "$1")" -lt "$2" ]; }
wait_for_the_feedbacks_end() { wait_for "the feedback's end" shows_no '#308CC6' 10000; }

# verbs_in FOLDER: a list with one verb of each class, so that the answers are known.
verbs_in() {
    cat >"$1/verbs.cfg" <<'LIST'
First conjugation
1
am, ama:t, ama:v, love, loved, loved, loving
Second conjugation
stems and translations
1
mon, monit, monu, warn, warned, warned, warning
Third conjugation
stems and translations
1
reg, re:ct, re:x, rule, ruled, ruled, ruling
-io
stems and translations
1
cap, capt, ce:p, take, took, taken, taking
Fourth conjugation
stems and translations
1
aud, audi:t, audi:v, hear, heard, heard, hearing
LIST
}
# settings_in FOLDER SOUND PAUSE: German, sound on (-1) or off (" 0"), and a pause of so many seconds.
settings_in() {
    {
        printf '6\r\n 0\r\n%s\r\n %s\r\nGerman\r\nNGDAAb\r\nSequential\r\n 0\r\n-1\r\n' "$2" "$3"
        for _ in $(seq 27); do printf ' 0\r\n'; done
    } >"$1/morvanti.ini"
}
