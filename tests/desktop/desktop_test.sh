#!/usr/bin/env bash
# Starts the real program on a display of its own: in an empty folder, and in one with lists, where it goes through
# a tense, looks at the window, and comes back to find the settings kept.
. "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
open_display

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
# The Alt key is held until the window is gone, as fingers do.
xdotool keydown alt
end_with F4
xdotool keyup alt
[ ! -e "$work/empty/morvanti.ini" ] || fail "Alt+F4 saved the settings"

mkdir "$work/full"
verbs_in "$work/full"
settings_in "$work/full" ' 0' 1
start_in "$work/full"
wait_for_window Velmorane
go "Eine Konjugation Auswählen" Return
go "1. Konjugation" Home Return

grey='#808080'
answer amo
wait_for "the first box in grey" shows "$grey" 2000
for form in amas amat amamus amatis; do
    before=$(pixels "$grey")
    wait_for_the_feedbacks_end
    answer "$form"
    wait_for "$form in grey" shows "$grey" $((before + 2000))
done
wait_for_the_feedbacks_end
answer wrong
go "Eine Konjugation Auswählen" Escape
go Velmorane Escape
end_with alt+e
grep -q '^German' "$work/full/morvanti.ini" || fail "the language was not kept"
grep -q '^ 1' "$work/full/morvanti.ini" || fail "the delay was not kept"
[ ! -s "$work/errors" ] || fail "said on standard error: $(cat "$work/errors")"
