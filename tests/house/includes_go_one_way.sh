#!/usr/bin/env bash
# Fails where a folder includes one that it may not know, a rule includes Qt, or the kit a window built from it.
set -u
wrong=0

# none: fails where lines come in, and shows them.
none() { ! grep . || wrong=1; }

# may FOLDER OTHERS...: the folders of ours that FOLDER may include besides itself.
may() {
    local folder=$1 known
    known=$(IFS='|'; echo "$*")
    none < <(grep -rnE --include='*.h' --include='*.cpp' '^#include "' "$folder" | grep -vE "#include \"($known)/")
    none < <(find "$folder" -maxdepth 1 -name '*.[hc]*' -exec grep -nHE '^#include (<Q|"[a-z]+/(windows|kit)/)' {} +)
}
may platform
may shell platform
may verbs platform shell
may verbdrills platform shell verbs
may nouns platform shell
may vocabulary platform shell
may tables platform shell verbs verbdrills nouns
may progress platform shell verbs verbdrills nouns tables
none < <(grep -rn '^#include "shell/windows/' shell/kit verbs verbdrills nouns vocabulary tables progress)

exit $wrong
