#!/usr/bin/env bash
# Three times in a row, ./run shows the main window on the display that it makes itself, where the window manager takes
# its time.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
. "$root/tests/desktop/desktop.sh"
mkdir "$work/folder" "$work/slow"
printf '#!/bin/sh\nsleep 1\nexec %s "$@"\n' "$(command -v openbox)" >"$work/slow/openbox"
chmod +x "$work/slow/openbox"
export PATH=$work/slow:$PATH
for _ in 1 2 3; do
    unset DISPLAY
    rm -f "$work/said"
    MORVANTI_PRESET=$(basename "$2") "$root/run" "$work/folder" >"$work/said" 2>"$work/errors" &
    running=$!
    wait_for "the display" grep -q 'DISPLAY=' "$work/said"
    DISPLAY=$(sed -n 's/.*DISPLAY=\(:[0-9]*\).*/\1/p' "$work/said")
    export DISPLAY
    wait_for "the main window" xdotool search --onlyvisible --name '^Velmorane$'
    xdotool get_desktop >/dev/null 2>&1 || fail "the program did not wait for the window manager"
    end_with alt+x
done
