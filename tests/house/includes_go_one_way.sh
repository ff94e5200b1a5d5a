#!/usr/bin/env bash
# Fails where a folder includes one that it may not know, or a rule includes Qt.
set -u
wrong=0

# may FOLDER OTHERS...: the folders of ours that FOLDER may include besides itself.
may() {
    local folder=$1 known
    known=$(IFS='|'; echo "$*")
    if grep -rnE --include='*.h' --include='*.cpp' '^#include "' "$folder" | grep -vE "#include \"($known)/"; then
        wrong=1
    fi
}
may platform
may shell platform
may verbs platform shell
may verbdrills platform shell verbs
[ -d nouns ] && may nouns platform shell
[ -d vocabulary ] && may vocabulary platform shell

for folder in platform shell verbs verbdrills nouns vocabulary; do
    [ -d "$folder" ] || continue
    if find "$folder" -maxdepth 1 -name '*.[hc]*' -exec grep -nHE '^#include (<Q|"[a-z]+/windows/)' {} + | grep .; then
        wrong=1
    fi
done

exit $wrong
