#!/usr/bin/env bash
# check_files.sh: the form of the files in the repository, line ends to include directions. Tells every fault, ends with
# 1 if there is one. The files are those that git knows or would add; the example programs keep the bytes of their day.
set -euo pipefail

# Our own text: what people wrote here, in the form that the tools rely on.
readonly ours=(. ':!examples/*/*' ':!tests/data' ':!*.bin')
readonly sources=('*.h' '*.cpp' '*.def' '*.sh' '*.cmake' '*CMakeLists.txt' dev .ci/run)
readonly longestFile=600
faults=0

# report RULE: each line of the standard input is a fault against the rule.
report() {
    local found
    while IFS= read -r found; do
        printf '%s: %s\n' "$found" "$1"
        faults=$((faults + 1))
    done
}

files() { git ls-files --cached --others --exclude-standard -- "$@" | while IFS= read -r f; do [[ ! -f $f ]] || echo "$f"; done; }
search() { git grep --untracked -nIE "$@" || true; }

checkBytes() {
    report "the file's name holds more than ASCII" < <(git ls-files -z --cached --others --exclude-standard |
        LC_ALL=C grep -zP '[^\x21-\x7e]' | tr '\0' '\n')
    report "a line ends in CR LF" < <(git grep --untracked -lI $'\r$' -- "${ours[@]}" || true)
    report "no line end at the end of the file" < <(files "${sources[@]}" | while IFS= read -r f; do
        [[ ! -s $f || -z $(tail -c 1 "$f") ]] || echo "$f"; done)
    report "is no UTF-8 in composed form" < <(files "${ours[@]}" | checkUnicode)
}

# Perl comes with git. Files with a zero byte are no text.
checkUnicode() {
    perl -MUnicode::Normalize=checkNFC -ne '
        chomp; open(my $file, "<:raw", $_) or next; local $/; my $text = <$file> // "";
        next if $text =~ /\0/; print "$_\n" unless utf8::decode($text) && checkNFC($text);'
}

checkLines() {
    report "blanks at the end of the line" < <(search '[[:blank:]]+$' -- "${sources[@]}" '*.md' | cut -d: -f1,2)
    report "a tab" < <(search $'\t' -- '*.h' '*.cpp' '*.def' '*.cmake' '*CMakeLists.txt' | cut -d: -f1,2)
    report "a header without #pragma once" < <(files '*.h' | while IFS= read -r f; do
        grep -q '^#pragma once' "$f" || echo "$f"; done)
    report "over $longestFile lines: split it" < <(files 'src/*' 'tests/*.cpp' 'tests/*.h' 'bench/*' 'fuzz/*' |
        xargs -d '\n' wc -l | awk -v most=$longestFile '$2 != "total" && $1 > most { print $2 }')
    report "a reference that leads out of the repository" < <(search \
        'Part [1-9]\.[0-9]|shared/[s]pec|spec\.md|[Tt]he spec\b|[Pp]er spec\b|/wo[r]k/|/fa[r]m/' -- . | cut -d: -f1,2)
}

# checkRoom ROOM SEEN...: the room includes from itself and the rooms it may see, and from no other.
checkRoom() {
    local room=$1 seen
    seen=$(IFS='|' && echo "$*")
    report "src/$room may include from ${seen//|/, } only" < <(search '^#include "' -- "src/$room/*" |
        grep -vE ":#include \"($seen)/" || true)
}

checkIncludes() {
    checkRoom core
    checkRoom vba core
    checkRoom readers core
    checkRoom workspace readers vba core
    checkRoom cli workspace readers vba core
    checkRoom studio workspace readers vba core
    report "the core and the language see the standard library and the processor's vector header only" < <(
        search '^#include <([^>]*/|[^>]*\.h>)' -- 'src/core/*' 'src/vba/*' | grep -v '<emmintrin\.h>' || true)
    report "Qt belongs into src/studio" < <(search '^#include <Q' -- src ':!src/studio')
    report "<regex>, <format> and <ranges> stay out" < <(search '^#include <(regex|format|ranges)>' -- src)
}

# The glossary explains names that the code bears.
checkGlossary() {
    report "a name that src/ does not hold" < <(grep -oE '^\| [^|]+\|' docs/GLOSSARY.md | grep -oP '\x60\K[^\x60…]+' |
        sort -u | while IFS= read -r name; do
            git grep -qF --untracked -e "$name" -- src || echo "docs/GLOSSARY.md, $name"
        done)
}

checkBytes
checkLines
checkGlossary
checkIncludes
((faults == 0)) || exit 1
