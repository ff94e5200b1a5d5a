#!/usr/bin/env bash
# Installs the program from its build folder, the second argument, and starts it in a home of its own: it fills the
# learner's folder with the samples that were installed, and finds what plays its sounds.
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/desktop.sh"
cmake --install "$2" --prefix "$work/usr" >"$work/errors" || fail "it cannot be installed"
installed=$work/usr/bin/morvanti
own=$HOME/.local/share/morvanti
unset XDG_DATA_HOME
mkdir -p "$own"
settings_in "$own" -1 1

open_display
(cd "$HOME" && exec "$installed" 2>"$work/errors") &
running=$!
wait_for_window Velmorane
for sample in "$here"/../../data/*.{cfg,lst,hlp,wav,WAV}; do
    cmp "$sample" "$own/$(basename "$sample")" || fail "the own folder lacks $sample"
done
grep -q "$work/usr/lib/morvanti/libmorvanti_sound.so" "/proc/$running/maps" || fail "nothing plays its sounds"
rm "$own/morvanti.ini"
end_with alt+e
grep -q '^German' "$own/morvanti.ini" || fail "the settings were not written"
