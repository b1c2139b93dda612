#!/usr/bin/env bash
# Replays the transcripts in expected/: shell commands behind "$ ", what they read behind "> ", and all that
# they said. Text behind "# " tells why.
#
#   run.sh [--update] EXAMPLES TOOL...
#
# EXAMPLES is the folder of example bodies, TOOL the built program, with an emulator in front of it if need be.
# Commands run in a folder with copies of the examples. What they write to standard error is marked, a carriage
# return shows as \r, and a status other than 0 is told.
#
# --update writes anew what was said: read the differences before you keep them.
set -euo pipefail
export LC_ALL=C

update=no
if [ "${1-}" = --update ]; then
    update=yes
    shift
fi
examples=$(cd "$1" && pwd)
shift
tool=("$@")
tool[-1]=$(realpath "${tool[-1]}")
[ -x "${tool[-1]}" ] || { echo "no program: ${tool[-1]}" >&2; exit 2; }
expected=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/expected
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/folder"
cp "$examples"/*.sdp "$work/folder"
cd "$work/folder"

daksdp() { "${tool[@]}" "$@"; }

# body NAME - keeps its input as a file, its lines ended by CR LF and escapes such as \x1b replaced.
body() {
    local line
    while IFS= read -r line; do
        printf '%b\r\n' "$line"
    done >"$1"
}

# reparsed FILE - what a parse of the rewritten text does not find again, or finds otherwise.
reparsed() {
    diff --unchanged-line-format= --old-line-format='before: %L' --new-line-format='after:  %L' \
        <(daksdp show --json "$1") <(daksdp rewrite "$1" | daksdp show --json -)
}

# about WORD - the gist of a complaint in the argument parser's own words: a single line that names WORD.
about() { sed "s/^daksdp: .*$1.*/daksdp: ... $1 .../"; }

# tells PATTERN - whether a line of its input matches; all of the input is read, so that nobody writes in vain.
tells() { [ "$(grep -cE -e "$1")" -gt 0 ]; }

# A command with its input, and what it says.
run() {
    local status=0
    [ -n "$1" ] || return 0
    printf '$ %s\n' "$1"
    sed "s/^/> /; s/^> \$/>/" "$work/in"
    (eval "$1") <"$work/in" >"$work/out" 2>"$work/err" || status=$?
    sed 's/\r/\\r/g' "$work/out"
    sed 's/^/stderr: /' "$work/err"
    [ "$status" = 0 ] || echo "status: $status"
}

# replay TRANSCRIPT - the transcript with what its commands say now.
replay() {
    local line command=
    while IFS= read -r line || [ -n "$line" ]; do
        case $line in
        '$ '* | '# '*) run "$command" ;;&
        '# '*) command= && echo "$line" ;;
        '$ '*) command=${line#??} && : >"$work/in" ;;
        '>' | '> '*) line=${line#>} && echo "${line# }" >>"$work/in" ;;
        esac
    done <"$1"
    run "$command"
}

failures=0
for example in "$examples"/*.sdp; do
    name=$(basename "$example" .sdp)
    [ -e "$expected/$name.txt" ] && continue
    [ "$update" = yes ] || { echo "FAILED: no transcript of $name" && failures=$((failures + 1)); }
    printf '$ %s '"$name.sdp\\n" 'daksdp show' 'daksdp show --json' 'daksdp show --document' 'daksdp rewrite' \
        reparsed >"$work/commands"
    [ "$update" = no ] || mv "$work/commands" "$expected/$name.txt"
done
for transcript in "$expected"/*.txt; do
    replay "$transcript" >"$work/replayed"
    if [ "$update" = yes ]; then
        cp "$work/replayed" "$transcript"
    elif ! diff -u --text "$transcript" "$work/replayed"; then
        echo "FAILED ${transcript##*/}: other output than expected" && failures=$((failures + 1))
    fi
done
[ "$failures" -eq 0 ]
