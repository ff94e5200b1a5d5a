#!/usr/bin/env bash
# Listens to the real program on a sound server of its own: with sound off nothing is heard, and with sound on each
# sound is heard whole when its time comes, the last one while the program ends.
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/desktop.sh"
data=$here/../../data
recording=$work/recording
export PULSE_SERVER=unix:$XDG_RUNTIME_DIR/sound PULSE_COOKIE=$work/cookie
unset PULSE_SINK PULSE_SOURCE PULSE_RUNTIME_PATH

# The output takes back nothing that it has played, so that the recording is true to the sample.
open_sound_server() {
    pulseaudio -n --daemonize=no --use-pid-file=no --exit-idle-time=-1 --disable-shm=yes --realtime=no \
        --high-priority=no --log-target="file:$work/server" \
        -L "module-null-sink format=s16le rate=44100 channels=1 norewinds=1" \
        -L "module-native-protocol-unix socket=$XDG_RUNTIME_DIR/sound auth-anonymous=1" 2>/dev/null &
    wait_for "the sound server" pactl info
    parec --raw --device=@DEFAULT_MONITOR@ --format=s16le --rate=44100 --channels=1 --latency-msec=20 >"$recording" &
    wait_for "the recording" test -s "$recording"
}
recorded() { stat -c %s "$recording"; }
has_recorded() { [ "$(recorded)" -ge "$1" ]; }
# Everything that was played before the call is in the recording after it: a second is more than any buffer holds.
let_it_fade() { wait_for "a second more of the recording" has_recorded $(($(recorded) + 88200)); }
heard() { python3 "$here/sounds_heard.py" "$recording" "$data"/{VELMOR2.WAV,right.wav,wrong.wav}; }
hears() { [ "$(heard)" = "$1" ]; }
wait_to_hear() { wait_for "the sounds \"$1\"; heard so far \"$(heard)\"" hears "$1"; }
visible_windows() { xdotool search --onlyvisible --class morvanti | wc -l; }
one_window_more() { [ "$(visible_windows)" -eq $((windows + 1)) ]; }

# tour SOUND HEARD_AT_THE_START AND_RIGHT AND_WRONG AND_AT_THE_END: a right answer and a wrong one, in a folder of its
# own; each argument holds all sounds that have been heard by then.
tour() {
    local folder windows
    folder=$(mktemp -d "$work/folder.XXXXXX")
    cp "$data"/*.{wav,WAV} "$folder"
    verbs_in "$folder"
    settings_in "$folder" "$1" 3
    start_in "$folder"
    wait_for_window Velmorane
    wait_to_hear "$2"
    go "Eine Konjugation Auswählen" Return
    go "1. Konjugation" Home Return
    answer amo
    wait_for "the right answer's feedback" shows '#308CC6' 10000
    wait_to_hear "$3"
    wait_for_the_feedbacks_end
    windows=$(visible_windows)
    answer wrong
    wait_for "the wrong answer's feedback" one_window_more
    wait_to_hear "$4"
    go "Eine Konjugation Auswählen" Escape
    go Velmorane Escape
    end_with alt+e
    let_it_fade
    hears "$5" || fail "heard \"$(heard)\" instead of \"$5\""
    grep -q "^$1" "$folder/morvanti.ini" || fail "whether sound is on was not kept"
    [ ! -s "$work/errors" ] || fail "said on standard error: $(cat "$work/errors")"
}

open_display
open_sound_server
tour ' 0' '' '' '' ''
tour -1 VELMOR2.WAV 'VELMOR2.WAV right.wav' 'VELMOR2.WAV right.wav wrong.wav' \
    'VELMOR2.WAV right.wav wrong.wav VELMOR2.WAV'
