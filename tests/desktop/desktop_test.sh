#!/usr/bin/env bash
# Drives the real program by keys on a display of its own: out of an empty folder with Alt+F4, which saves nothing, and
# through a tense and back, to find the settings kept.
. "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
open_display
folder=$work/folder
mkdir "$folder"

start "$folder"
# The Alt key is held until the window is gone, as fingers do, whether or not the window manager takes F4 first.
xdotool keydown alt
end_with F4
xdotool keyup alt
[ -z "$(ls "$folder")" ] || fail "Alt+F4 left $(ls "$folder")"

printf 'First conjugation\n1\nam, ama:t, ama:v, love, loved, loved, loving\n' >"$folder/verbs.cfg"
# German, without sound, and with a pause of one second.
{ printf '%s\r\n' 6 ' 0' ' 0' ' 1' German NGDAAb Sequential ' 0' -1 && printf ' 0\r\n%.0s' {1..27}; } >"$work/settings"
cp "$work/settings" "$folder/morvanti.ini"
start "$folder"
go "Eine Konjugation Auswählen" Return
go "Eine Zeitform Auswählen" End Return
go "1. Konjugation" Home Return
windows() { [ "$(xdotool search --onlyvisible --class morvanti | wc -l)" -eq "$1" ]; }
for form in amo amas amat amamus amatis amant; do
    xdotool type "$form"
    xdotool key Return
    within 2 windows 2 || true
    wait_for "the end of the feedback on $form" windows 1
done
wait_for "the same tense of the next class" active "2. Konjugation"
go "Eine Zeitform Auswählen" Escape
go "Eine Konjugation Auswählen" Escape
go Velmorane Escape
rm "$folder/morvanti.ini"
end_with alt+e
cmp "$work/settings" "$folder/morvanti.ini" || fail "the settings were not kept"
