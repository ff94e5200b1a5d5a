#!/usr/bin/env bash
# Installs the program from its build folder, the second argument, and starts it twice in a home of its own with a sound
# server that it is listened to on. At first it fills the learner's folder with the samples that were installed, and is
# silent. With sound on it is heard sample by sample when it starts, and once more before it ends.
data=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../data" && pwd)
. "$data/../tests/desktop/desktop.sh"
cmake --install "$2" --prefix "$work/usr" >"$work/errors" || fail "it cannot be installed"
program=$work/usr/bin/morvanti
own=$HOME/.local/share/morvanti
open_display

# The output takes back nothing that it has played, so that the recording is true to the sample.
export PULSE_SERVER=unix:$XDG_RUNTIME_DIR/sound PULSE_COOKIE=$work/cookie
unset PULSE_SINK PULSE_SOURCE PULSE_RUNTIME_PATH
pulseaudio -n --daemonize=no --use-pid-file=no --exit-idle-time=-1 --disable-shm=yes --realtime=no \
    --high-priority=no --log-target="file:$work/server" \
    -L "module-null-sink format=s16le rate=44100 channels=1 norewinds=1" \
    -L "module-native-protocol-unix socket=$XDG_RUNTIME_DIR/sound auth-anonymous=1" 2>/dev/null &
wait_for "the sound server" pactl info
parec --raw --device=@DEFAULT_MONITOR@ --format=s16le --rate=44100 --channels=1 --latency-msec=20 >"$work/recording" &
wait_for "the recording" test -s "$work/recording"
# Without zeros: neither silence nor the gap that a busy machine leaves in a sound makes a difference.
hears() { cmp -s <(tr -d '\0' <"$work/recording") <(for sound; do tail -c +45 "$data/$sound" | tr -d '\0'; done); }

start
for sample in "$data"/*.{cfg,lst,hlp,wav,WAV}; do
    cmp "$sample" "$own/$(basename "$sample")" || fail "the own folder lacks $sample"
done
end_with alt+x
[ "$(wc -l <"$own/morvanti.ini")" -eq 36 ] || fail "the settings file has not 36 lines"

sed -i $'3s/.*/-1\r/' "$own/morvanti.ini"
start
wait_for "the sound of the start alone" hears VELMOR2.WAV
grep -q "$work/usr/lib/morvanti/libmorvanti_sound.so" "/proc/$running/maps" || fail "the installed plugin is not used"
end_with alt+x
wait_for "the sound of the end" hears VELMOR2.WAV VELMOR2.WAV
