#!/usr/bin/env bash
# Starts the real program on a display of its own: in an empty folder, and in one with lists, where it goes through
# a tense, looks at the window, and comes back to find the settings kept.
set -eu
program=$1
work=$(mktemp -d)
export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime XDG_CONFIG_HOME=$work/config LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY QT_QPA_PLATFORM QT_STYLE_OVERRIDE
mkdir -p -m 700 "$HOME" "$XDG_RUNTIME_DIR"

# Waits for a condition, at most a minute; Xvfb may start slowly.
wait_for() {
    local what=$1 limit=$((SECONDS + 60))
    shift
    until "$@" >/dev/null 2>&1; do
        [ $SECONDS -lt $limit ] || fail "never came: $what"
        sleep 0.05
    done
}
fail() {
    echo "FAILED: $1" >&2
    cat "$work/errors" >&2 2>/dev/null || true
    xdotool search --name . getwindowname %@ >&2 2>/dev/null || true
    import -window root "$work/last.png" 2>/dev/null && cp "$work/last.png" "${TMPDIR:-/tmp}/morvanti-desktop-test.png"
    exit 1
}

Xvfb -displayfd 3 -screen 0 1280x800x24 3>"$work/display" 2>/dev/null &
trap 'kill $(jobs -p) 2>/dev/null; wait 2>/dev/null; rm -rf "$work"' EXIT
wait_for "the display" test -s "$work/display"
DISPLAY=:$(cat "$work/display")
export DISPLAY
openbox >/dev/null 2>&1 &
wait_for "the window manager" xdotool get_desktop

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
ended() { ! kill -0 "$running"; }
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

# An empty folder: the program starts all the same, and writes its settings when it ends.
mkdir "$work/empty"
start_in "$work/empty"
wait_for_window Velmorane
end_with alt+x
[ "$(wc -l <"$work/empty/morvanti.ini")" -eq 36 ] || fail "the settings file has not 36 lines"

# Alt+F4 ends without saving, whether or not the window manager takes it first.
rm "$work/empty/morvanti.ini"
start_in "$work/empty"
wait_for_window Velmorane
end_with alt+F4
[ ! -e "$work/empty/morvanti.ini" ] || fail "Alt+F4 saved the settings"

# A folder with one verb of each class, so that the answers are known.
mkdir "$work/full"
cat >"$work/full/verbs.cfg" <<'LIST'
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
{
    printf '6\r\n 0\r\n 0\r\n 1\r\nGerman\r\nNGDAAb\r\nSequential\r\n 0\r\n-1\r\n'
    for _ in $(seq 27); do printf ' 0\r\n'; done
} >"$work/full/morvanti.ini"
start_in "$work/full"
wait_for_window Velmorane
go "Eine Konjugation Auswählen" Return
go "1. Konjugation" Home Return

grey='#808080'
xdotool type amo
xdotool key Return
wait_for "the first box in grey" shows "$grey" 2000
for form in amas amat amamus amatis; do
    before=$(pixels "$grey")
    wait_for "the feedback's end" shows_no '#308CC6' 10000
    xdotool type "$form"
    xdotool key Return
    wait_for "$form in grey" shows "$grey" $((before + 2000))
done
wait_for "the feedback's end" shows_no '#308CC6' 10000
xdotool type wrong
xdotool key Return
go "Eine Konjugation Auswählen" Escape
go Velmorane Escape
end_with alt+e
grep -q '^German' "$work/full/morvanti.ini" || fail "the language was not kept"
grep -q '^ 1' "$work/full/morvanti.ini" || fail "the delay was not kept"
[ ! -s "$work/errors" ] || fail "said on standard error: $(cat "$work/errors")"
