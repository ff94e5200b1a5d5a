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

# A window never includes another folder's window class, but for the shared ones of the shell.
if grep -rnE --include='*.h' --include='*.cpp' '^#include "(verbs|verbdrills|nouns|vocabulary)/windows/' \
    shell platform verbs verbdrills nouns vocabulary 2>/dev/null |
    awk -F'[:"]' '{ file = $1; sub(/\.(h|cpp)$/, "", file); included = $(NF - 1); sub(/(_captions)?\.h$/, "", included);
                    if (file != included) print }' | grep .; then
    wrong=1
fi
exit $wrong
