#!/usr/bin/env bash
# new_check.sh KEY: starts a new check. Adds its row to the catalogue behind the last one of its group, with the next
# free box and message numbers, and its page and fixture; prints what is left to do by hand.
set -euo pipefail

readonly catalogue=src/core/checks/catalogue.def messages=src/core/language/messages.def

fail() {
    echo "new-check: $*" >&2
    exit 1
}

(($# == 1)) || fail "wants the key of the check, such as CmdEndWirdVerwendet"
readonly key=$1 page=docs/checks/$1.md fixture=tests/checks/$1.vba
[[ $key =~ ^(Mod|Proc|Cmd)[A-Z][A-Za-z0-9]+$ ]] || fail "a key begins with Mod, Proc or Cmd and is ASCII: $key"
! grep -q "^CHECK($key," "$catalogue" || fail "the catalogue holds $key already"
[[ ! -e $page && ! -e $fixture ]] || fail "$page or $fixture exists already"

case $key in
Mod*) group=Module file=module_structure.cpp ;;
Proc*) group=Procedures file=procedures.cpp ;;
Cmd*) group=Commands file=statements.cpp ;;
esac

nextMessage() { sed -nE 's/^MESSAGE\(([0-9]+),.*/\1/p' "$messages" | sort -n | tail -n 1 | awk '{ print $1 + 1 }'; }
nextBox() { sed -nE "s/^CHECK\([^,]+, +$group, +([0-9]+),.*/\1/p" "$catalogue" | sort -n | tail -n 1 | awk '{ print $1 + 1 }'; }
# The row and the list of keys before and after stay sorted by the order of the run: behind the group's last row.
addRow() {
    local row=$1 last
    last=$(grep -nE "^CHECK\([^,]+, +$group," "$catalogue" | tail -n 1 | cut -d: -f1)
    sed -i "${last}a $row" "$catalogue"
}

box=$(nextBox)
label=$(nextMessage)
hint=$((label + 1))
addRow "$(printf 'CHECK(%-49s %-11s %3d,  %3d,  %3d,  %3d,  %s)' "$key," "$group," "$box" "$label" "$hint" 0 PerComponent)"

cat >"$page" <<END
# $key

(German label) · (English label)
Group: $group, box $box.

## Erläuterung

(60 bis 120 Wörter: was die Prüfung findet, warum es zählt, was man stattdessen schreibt.)

## Explanation

(60 to 120 words: what the check finds, why it matters, what to write instead.)

## Wrong

\`\`\`vb
Option Explicit
\`\`\`

## Right

\`\`\`vb
Option Explicit
\`\`\`
END

cat >"$fixture" <<END
'= Modul Beispiel
Option Explicit
Public Sub Zeigen()
    Beep '! Zeigen
End Sub
END

cat <<END
added   $catalogue: the row of $key, message $label as label and $hint as hint
added   $page
added   $fixture
left to do
  1. $messages: messages $label and $hint, German and English
  2. src/core/checks/$file: void $key(const VBComponent& vbc, Hints& hints)
  3. src/core/checks/catalogue.h: the counts in the static_asserts
  4. $page: both texts, the wrong and the right example; docs/checks/README.md: its line
  5. $fixture: every form that counts, and those that look like it
  6. examples/kunden: one place that it finds, then ./dev accept
  7. CHANGELOG.md, then ./dev check
END
