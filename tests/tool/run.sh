#!/usr/bin/env bash
# Runs the inspector as a person would and compares all that it says with what is expected.
#
#   run.sh [--update] EXAMPLES TOOL...
#
# EXAMPLES is the folder of example bodies, TOOL the built program, with an emulator in front of it if need be.
# --update writes the expectations anew: read the differences before you keep them.
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

checks=0
failures=0

fail() {
    failures=$((failures + 1))
    printf 'FAILED %s: %s\n' "$1" "$2"
}

# run ARGUMENT... - leaves "out", "err" and "status" in the work folder.
run() {
    local status=0
    "${tool[@]}" "$@" >"$work/out" 2>"$work/err" || status=$?
    echo "$status" >"$work/status"
}

# expect NAME ARGUMENT... - one run, compared as a whole with expected/NAME.txt.
expect() {
    local name=$1 report=$work/report
    shift
    checks=$((checks + 1))
    echo "$name.txt" >>"$work/used"
    run "$@"
    {
        printf '$ daksdp'
        printf ' %q' "$@"
        echo
        cat "$work/out"
        sed 's/^/stderr: /' "$work/err"
        echo "status: $(cat "$work/status")"
    } >"$report"
    if [ "$update" = yes ]; then
        cp "$report" "$expected/$name.txt"
    elif ! diff -u --text "$expected/$name.txt" "$report"; then
        fail "$name" "other output than expected"
    fi
}

# expect_usage_error NAME PATTERN ARGUMENT... - the argument parser words these, so only the gist is fixed.
expect_usage_error() {
    local name=$1 pattern=$2
    shift 2
    checks=$((checks + 1))
    run "$@"
    [ "$(cat "$work/status")" = 2 ] || fail "$name" "status $(cat "$work/status") instead of 2"
    [ ! -s "$work/out" ] || fail "$name" "writes to standard output"
    [ "$(wc -l <"$work/err")" -eq 1 ] || fail "$name" "no single line on standard error"
    grep -q "^daksdp: .*$pattern" "$work/err" || fail "$name" "says: $(cat "$work/err")"
}

# expect_words FILE - every word of a body's values is somewhere in the output of the last run.
expect_words() {
    local missing
    checks=$((checks + 1))
    missing=$(tr '\r' '\n' <"$1" | awk -v out="$work/out" '
        # The names that the output has in words of its own.
        BEGIN {
            skip["cid"]; skip["creation"]; skip["modification"]
            RS = "\001"; getline text <out; RS = "\n"
            text = tolower(text)
        }
        { sub(/^[ \t]*[a-z]=/, ""); sub(/^[a-z0-9-]+:/, "") }
        {
            count = split($0, words, /[^A-Za-z0-9.-]+/)
            for (i = 1; i <= count; i++)
                if (!(words[i] in skip) && !index(text, tolower(words[i])))
                    print words[i]
        }')
    [ -z "$missing" ] || fail "words of ${1##*/}" "not shown: $(echo "$missing" | tr '\n' ' ')"
}

# body NAME FORMAT [ARGUMENT...] - a body in the work folder, as printf has it.
body() {
    local name=$1
    shift
    # shellcheck disable=SC2059
    printf "$@" >"$work/$name"
}

session='v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=-\r\nt=0 0\r\n'

every_example() {
    local file
    cd "$examples"
    for file in *.sdp; do
        expect "${file%.sdp}" show "$file"
        expect_words "$file"
    done
}

standard_input() {
    checks=$((checks + 1))
    cd "$examples"
    run show volte_offer.sdp
    cp "$work/out" "$work/from_file"
    "${tool[@]}" show - <volte_offer.sdp >"$work/out"
    cmp "$work/from_file" "$work/out" || fail "standard input" "other output than from a file"
    cd "$work"
    body bad.sdp 'v=0\r\nthis is no body\r\n'
    expect standard_input_refused show - <bad.sdp
}

log_lines() {
    cd "$examples"
    expect log_static_payloads show --log static_payloads.sdp
    cd "$work"
    body hostile_log.sdp "${session}m=audio 4000 RTP/A\\033[2JVP 96\\r\\na=rtcp-fb:* nack\\r\\n"
    expect log_hostile show hostile_log.sdp --log
}

# A body cannot write to the terminal what it likes.
hostile_text() {
    cd "$work"
    body controls.sdp 'v=0\r\ns=\033]0;owned\007 \177 \tx\r\ni=a\\x1bb \302\233 \342\200\256 \377\300\200 \303\274\r\n'
    expect hostile_controls show controls.sdp
    body media.sdp "${session}m=au\\033dio 4000 RTP/\\0332J 96\\r\\na=rtpmap:96 A\\033MR/8000\\r\\na=\\033x:\\033\\r\\nb=\\033\\r\\nq\\033=1\\r\\n"
    expect hostile_media show media.sdp
    body $'\e[31m.sdp' 'x=1\r\n'
    expect hostile_file_name show $'\e[31m.sdp'
}

# What no record holds is shown as it was received.
lines_without_record() {
    cd "$work"
    body codecs.sdp "${session}m=audio 4000/1 RTP/AVP 96 97 98 99 096 extra *\\r\\n%s" "$(cat <<'B'
a=rtpmap:96 AMR/8000
a=fmtp:96 octet-align=1; mode-set=0;mode-set=7;speed=9
a=fmtp:96 crc=1
a=fmtp:96 CRC=1
a=rtpmap:97 opus/48000/2
a=fmtp:97 useinbandfec=1
a=rtpmap:98 G729/8000
a=fmtp:98 annexb=no
a=rtpmap:99 first/8000
a=rtpmap:99 second/16000/2
a=rtpmap:55 none/8000
a=fmtp:55 x=1
a=fmtp:99
a=fmtp:96 ;
a=rtcp:4001
b=AS:1
b=AS:2
b=AS:3
b=AS:4
b=AS:5
c=IN IP4 192.0.2.7
c=IN IP4 192.0.2.8
z=0 0
a=
a=ptime : 20
nonsense
B
)"
    expect partial_codecs show codecs.sdp
    expect_words codecs.sdp
    body feedback.sdp "${session}m=video 4000 RTP/AVPF 96 97\\r\\n%s\\nm=video 4002 RTP/AVP 96\\na=rtcp-fb:* nack\\n" "$(cat <<'B'
a=rtcp-fb:* nack
a=rtcp-fb:* nack pli
a=rtcp-fb:* nack rpsi
a=rtcp-fb:* ccm fir
a=rtcp-fb:* ccm vbcm
a=rtcp-fb:* nack sli
a=rtcp-fb:* trr-int 100
a=rtcp-fb:96 97 nack pli
a=rtcp-fb:97 ccm fir
a=rtcp:4001 IN IP4
a=curr:qos local none
a=curr
a=des:qos  mandatory local sendrecv
B
)"
    expect partial_feedback show feedback.sdp
    expect_words feedback.sdp
    body messages.sdp "${session}m=message 2855 TCP/MSRP *\\r\\n%s\\n" "$(cat <<'B'
a=accept-types:text/plain application/unheard-of
a=accept-wrapped-types:text/plain text/html image/png image/bmp image/gif image/jpeg
a=path:msrp://host.example.com:2855/ab;tcp
a=max-size:lots
a=file-selector:size:12 name:"b.txt" type:text/plain hash:md5:00
a=file-selector:name:"c.gif" type:image/gif
a=file-selector
a=file-disposition:session
a=file-date:creation:"Mon, 1 May 2023 08:00:00 +0000" read:"Tue, 2 May 2023 08:00:00 +0000"
a=file-date:modification:"Wed, 3 May 2023 08:00:00 +0000"
a=file-icon:http://192.0.2.1/icon
a=file-range:7-*
B
)"
    expect partial_messages show messages.sdp
    expect_words messages.sdp
    body nul.sdp "${session}a=seen\\r\\n\\000a=unseen\\r\\n"
    expect nul_ends_body show nul.sdp
}

# refused NAME FORMAT - a body that does not parse.
refused() {
    body "$1.sdp" "$2"
    expect "refused_$1" show "$1.sdp"
}

refused_bodies() {
    local long numbers sections
    long=$(printf 'x%.0s' $(seq 199))
    numbers=$(seq -s ' ' 96 116)
    sections=$(printf 'm=audio 4000 RTP/AVP 0\\r\\n\\r\\n%.0s' $(seq 31))
    cd "$work"
    refused empty ''
    refused nul_first '\000v=0\r\n'
    refused unknown_type "$session\\r\\nq=1\\r\\nm=audio x RTP/AVP 0\\r\\n"
    refused short_line 'v=0\nv\n'
    refused no_sdp 'INVITE sip:ann@example.com SIP/2.0\r\n\r\nv=0\r\n'
    refused long_value "v=0\\rs=$long\\r"
    refused media_port "${session}m=audio x RTP/AVP 0\\r\\n"
    refused media_count "${session}m=audio 4000/two RTP/AVP 0\\r\\n"
    refused media_profile "${session}a=sendrecv\\r\\n\\r\\n  m=audio 4000\\r\\na=late\\r\\n"
    refused many_formats "${session}m=audio 4000 RTP/AVP $numbers\\r\\n"
    refused many_sections "$session$sections"
    body last_line.sdp "${session}m=video"
    expect refused_logged show --log last_line.sdp
}

unusable_files() {
    cd "$work"
    expect missing_file show missing.sdp
    mkdir folder
    expect folder show folder
    { printf 's=-\r\n'; head -c 65531 /dev/zero | tr '\0' '\n'; } >long.sdp
    expect long_body show long.sdp
    head -c 65535 long.sdp >longest.sdp
    expect longest_body show longest.sdp
}

full_disk() {
    local status=0
    checks=$((checks + 1))
    cd "$examples"
    "${tool[@]}" show minimal.sdp >/dev/full 2>"$work/err" || status=$?
    [ "$status" = 2 ] || fail "full disk" "status $status instead of 2"
    [ "$(cat "$work/err")" = "daksdp: standard output: cannot be written" ] || fail "full disk" "$(cat "$work/err")"
}

wrong_arguments() {
    cd "$examples"
    expect_usage_error no_command 'subcommand'
    expect_usage_error no_file 'FILE' show
    expect_usage_error unknown_option '--colour' show --colour minimal.sdp
    expect_usage_error unknown_command 'subcommand' print minimal.sdp
    expect_usage_error two_files 'small_audio_offer.sdp' show minimal.sdp small_audio_offer.sdp
}

# expect_told NAME PATTERN ARGUMENT... - a question about the program itself.
expect_told() {
    local name=$1 pattern=$2
    shift 2
    checks=$((checks + 1))
    run "$@"
    [ "$(cat "$work/status")" = 0 ] || fail "$name" "status $(cat "$work/status") instead of 0"
    grep -qE "$pattern" "$work/out" || fail "$name" "says: $(cat "$work/out")"
}

questions() {
    expect_told version '^daksdp [0-9]+\.[0-9]+\.[0-9]+$' --version
    expect_told help 'show .*body' --help
    expect_told help_of_show 'FILE .*standard input' show --help
}

no_expectation_left_over() {
    local file
    checks=$((checks + 1))
    for file in "$expected"/*.txt; do
        grep -qxF "${file##*/}" "$work/used" || fail "${file##*/}" "no check uses it"
    done
}

every_example
standard_input
log_lines
hostile_text
lines_without_record
refused_bodies
unusable_files
full_disk
wrong_arguments
questions
no_expectation_left_over

printf '%d checks, %d failed\n' "$checks" "$failures"
[ "$failures" -eq 0 ]
