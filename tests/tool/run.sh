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

report=$work/report
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

# show_run ARGUMENT... - adds one run to the report. CR, which rewritten text has before every LF, is left out.
show_run() {
    run "$@"
    {
        printf '$ daksdp'
        printf ' %q' "$@"
        echo
        tr -d '\r' <"$work/out"
        sed 's/^/stderr: /' "$work/err"
        echo "status: $(cat "$work/status")"
    } >>"$report"
}

# compare NAME - the report, as a whole, with expected/NAME.txt; another report begins.
compare() {
    local name=$1
    checks=$((checks + 1))
    echo "$name.txt" >>"$work/used"
    if [ "$update" = yes ]; then
        cp "$report" "$expected/$name.txt"
    elif ! diff -u --text "$expected/$name.txt" "$report"; then
        fail "$name" "other output than expected"
    fi
    : >"$report"
}

# expect NAME ARGUMENT... - one run, compared with expected/NAME.txt.
expect() {
    local name=$1
    shift
    show_run "$@"
    compare "$name"
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

# expect_cr_lf NAME - every line of the last run's output ends in CR LF, and nothing else holds a CR.
expect_cr_lf() {
    checks=$((checks + 1))
    [ "$(tr -cd '\r' <"$work/out" | wc -c)" -eq "$(wc -l <"$work/out")" ] &&
        ! grep -qv $'\r$' "$work/out" || fail "$1" "not all lines end in CR LF"
}

# show_rewriting FILE - a rewriting, and what a parse of its text does not find again.
show_rewriting() {
    local file=$1
    show_run rewrite "$file"
    [ "$(cat "$work/status")" = 0 ] || return 0
    expect_cr_lf "rewritten $file"
    cp "$work/out" "$work/rewritten.sdp"
    "${tool[@]}" show --json "$file" >"$work/before"
    "${tool[@]}" show --json "$work/rewritten.sdp" >"$work/after"
    echo 'in the container before and after:' >>"$report"
    if cmp -s "$work/before" "$work/after"; then
        echo 'the same' >>"$report"
    else
        diff "$work/before" "$work/after" | grep '^[<>]' >>"$report" || true
    fi
}

every_example() {
    local file
    cd "$examples"
    for file in *.sdp; do
        show_run show "$file"
        show_run show --json "$file"
        show_rewriting "$file"
        compare "${file%.sdp}"
        run show --document "$file"
        expect_words "$file"
    done
}

documents() {
    cd "$examples"
    expect document_maximal show --document maximal.sdp
    expect document_file_transfer show --document msrp_file_transfer.sdp
    expect document_vilte show --document vilte_offer.sdp
}

every_codec_has_an_example() {
    local codec
    for codec in PCMU PCMA G723 G722 G729 G711AB H263 MP4V-ES H264 EVRC AMR AMR-WB G722_2 EVRC0 EVRCB0 EVRCB \
        EVRC1 EVRCB1 telephone-event H263-1998 H263-2000 EVRCWB0 EVRCWB EVRCWB1; do
        checks=$((checks + 1))
        grep -q "^  format [0-9]*  *$codec," "$expected"/*.txt || fail "codec $codec" "in no example"
    done
}

standard_input() {
    local command
    cd "$examples"
    for command in 'show' 'show --json' 'show --document' 'rewrite'; do
        checks=$((checks + 1))
        # shellcheck disable=SC2086
        run $command volte_offer.sdp
        cp "$work/out" "$work/from_file"
        # shellcheck disable=SC2086
        "${tool[@]}" $command - <volte_offer.sdp >"$work/out"
        cmp "$work/from_file" "$work/out" || fail "$command of standard input" "other output than from a file"
    done
    cd "$work"
    body bad.sdp 'v=0\r\nthis is no body\r\n'
    expect standard_input_refused show - <bad.sdp
}

log_lines() {
    cd "$examples"
    expect log_static_payloads show --log static_payloads.sdp
    expect log_rewriting rewrite --log minimal.sdp
    cd "$work"
    body hostile_log.sdp "${session}m=audio 4000 RTP/A\\033[2JVP 96\\r\\na=rtcp-fb:* nack\\r\\n"
    expect log_hostile show hostile_log.sdp --log
}

# A body cannot write to the terminal what it likes, and JSON stays JSON.
hostile_text() {
    cd "$work"
    body controls.sdp 'v=0\r\no=\033 1 1 IN IP4 \302\233\r\ns=\033]0;owned\007 \177 \tx\r\ni=a\\x1bb "\302\233" \342\200\256 \377\300\200 \303\274\r\n'
    show_run show controls.sdp
    show_run show --json controls.sdp
    show_run show --document controls.sdp
    compare hostile_controls
    body media.sdp "${session}m=au\\033dio 4000 RTP/\\0332J 96\\r\\na=rtpmap:96 A\\033MR/8000\\r\\na=\\033x:\\033\\r\\nb=\\033\\r\\nq\\033=1\\r\\nm=video 4000 RTP/\\0332J 96\\r\\na=mid:\\033\\r\\n"
    show_run show media.sdp
    show_run show --json media.sdp
    show_run show --document media.sdp
    compare hostile_media
    body $'\e[31m.sdp' 'x=1\r\n'
    expect hostile_file_name show $'\e[31m.sdp'
}

# unread NAME LINES - a body of which the container does not hold all.
unread() {
    printf '%s\n' "$2" >"$work/$1.sdp"
    show_run show "$1.sdp"
    show_run show --json "$1.sdp"
    compare "unread_$1"
}

# What the container does not hold is told.
unread_parts() {
    cd "$work"
    unread session 'v=0
o=- 1 1 IN IP4 192.0.2.1
b=AS:64
b=X-YZ:128
b=CT:12
t=soon
a=group:SRF one
a=group:LS one
a=group:LS one three
a=group:FID one
m=audio 4000 RTP/AVP 0
a=mid:one
b=AS:
m=audio 4000 RTP/AVP 0
a=rtpmap:0 PCMU/8000
b=lots'
    unread formats 'v=0
o=- 1 1 IN IP4 192.0.2.1
s=-
t=0 0
m=audio 4000 RTP/AVP 3 20 96 97 0 98 099 18
a=rtpmap:96 opus/48000/2
a=rtpmap:0 AMR/8000
a=fmtp:0 mode-set=9
a=rtpmap:98 EVRC1/8000
a=fmtp:98 fixedrate=2
a=rtpmap:18 G729/8000
a=ptime:soon
m=video 4002 RTP/AVPF 96 97
a=rtpmap:96 H264/90000
a=fmtp:96 sar-understood=13;packetization-mode=x;profile-level-id='"$(printf 'f%.0s' $(seq 130))"'
a=rtpmap:97 H263-1998/90000
a=fmtp:97 P=7;CUSTOM=1,2
a=rtcp-fb:96 ccm fir
a=rtcp-fb:* nack rpsi
m=audio 4004 RTP/AVP 96
a=rtpmap:96 EVRCWB/16000
a=fmtp:96 sendmode=8'
    unread lines 'v=0
o=- 1 1 IN IP4 192.0.2.1
s=-
t=0 0
m=audio 4000 RTP/AVP 0
c=IN IP5 192.0.2.1
a=rtpmap:0 PCMU/8000
m=audio 4000 RTP/AVP 0
a=mid:longer-than-twenty-characters
m=audio 4000 RTP/AVP 0
a=curr:qos local maybe
m=text 4000 RTP/AVP 98
m=image 4000 udptl t38
m=message 4000 TCP/TLS/MSRP *
a=path:msrps://host.example.com:2855/ab;tcp
m=message 4000 TCP/MSRP *
a=accept-types:text/plain application/unheard-of
a=file-selector
a=file-selector:name:"c.gif" type:image/gif size:12
a=file-disposition:session'
    body part.sdp "${session}m=audio 4000 RTP/AVP 96 97 98\\r\\na=rtpmap:96 AMR/8000\\r\\na=fmtp:96 mode-set=9\\r\\na=sendonly\\r\\n"
    expect rewritten_part rewrite part.sdp
    body nul.sdp "${session}a=sendonly\\r\\n\\000a=inactive\\r\\n"
    show_run show nul.sdp
    show_run show --json nul.sdp
    show_run rewrite nul.sdp
    show_run show --document nul.sdp
    compare nul_ends_body
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
    expect partial_codecs show --document codecs.sdp
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
    expect partial_feedback show --document feedback.sdp
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
    expect partial_messages show --document messages.sdp
    expect_words messages.sdp
}

# refused NAME FORMAT - a body that does not parse.
refused() {
    body "$1.sdp" "$2"
    show_run show "$1.sdp"
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
    refused twenty_one_lines "$session$(printf 'm=audio 4000 RTP/AVP 0\\r\\n%.0s' $(seq 21))"
    refused six_groups "$session$(printf 'a=group:LS\\r\\n%.0s' $(seq 6))"
    refused no_origin 'v=0\r\ns=-\r\nt=0 0\r\n'
    refused no_version 'o=- 1 1 IN IP4 192.0.2.1\r\n'
    refused short_origin 'v=0\r\no=- 1 1 IN IP4\r\n'
    refused short_connection "${session}c=IN\\r\\n"
    refused address_type 'v=0\r\no=- 1 1 IN IP5 192.0.2.1\r\n'
    refused session_id 'v=0\r\no=- one 1 IN IP4 192.0.2.1\r\n'
    compare refused_bodies
    body refused.sdp 'v=0\r\nq=1\r\n'
    show_run show --json refused.sdp
    show_run show --document refused.sdp
    show_run rewrite refused.sdp
    compare refused_by_every_command
    body last_line.sdp "${session}m=video"
    expect refused_logged show --log last_line.sdp
}

# unwritable NAME FORMAT - a body that parses and cannot be generated again.
unwritable() {
    body "$1.sdp" "$2"
    show_run rewrite "$1.sdp"
}

unwritable_bodies() {
    local video="${session}m=video 4000 RTP/AVPF 96\\r\\n"
    cd "$work"
    unwritable version_one 'v=1\r\no=- 1 1 IN IP4 192.0.2.1\r\n'
    unwritable lowest_id 'v=0\r\no=- -9223372036854775808 1 IN IP4 192.0.2.1\r\n'
    unwritable media_type "${session}m=image 4000 RTP/AVP 96\\r\\n"
    unwritable transport "${session}m=video 4000 RTP/SAVP 96\\r\\n"
    unwritable no_ports "${session}m=audio 4000/0 RTP/AVP 0\\r\\n"
    unwritable ten_preconditions "$video$(printf 'a=curr:qos local none\\r\\n%.0s' $(seq 10))"
    unwritable precondition_type "${video}a=curr:sec local none\\r\\n"
    unwritable feedback_text "${video}a=rtpmap:96 H264/90000\\r\\na=rtcp-fb:96 nack rpsi\\r\\n"
    unwritable codec "${video}a=rtpmap:96 VP8/90000\\r\\na=rtcp-fb:96 nack\\r\\n"
    unwritable long_config "${video}a=rtpmap:96 MP4V-ES/90000\\r\\na=fmtp:96 config=$(printf 'ab%.0s' $(seq 99))\\r\\n"
    unwritable long_text "$session$(printf "m=video 4000 RTP/AVP 96\\r\\na=rtpmap:96 H264/90000\\r\\na=fmtp:96 profile-level-id=$(printf 'f%.0s' $(seq 119))\\r\\n%.0s" $(seq 20))"
    compare unwritable_bodies
}

valid_examples() {
    cd "$examples"
    show_run offer volte_offer.sdp
    show_run answer volte_answer.sdp volte_offer.sdp
    show_run answer vilte_answer.sdp vilte_offer.sdp
    show_run reoffer hold_offer.sdp volte_offer.sdp
    show_run answer hold_answer.sdp hold_offer.sdp
    show_run reoffer resume_offer.sdp hold_offer.sdp
    show_run reoffer add_video_offer.sdp resume_offer.sdp
    show_run answer --json volte_answer.sdp volte_offer.sdp
    compare valid_examples
}

invalid_examples() {
    cd "$examples"
    show_run answer answer_wrong_codec.sdp volte_offer.sdp
    show_run answer answer_missing_line.sdp vilte_offer.sdp
    show_run answer answer_weaker_preconditions.sdp volte_offer.sdp
    show_run answer answer_wrong_direction.sdp hold_offer.sdp
    show_run reoffer resume_offer.sdp add_video_offer.sdp
    show_run offer evrc_family.sdp
    show_run offer msrp_chat.sdp
    show_run offer minimal.sdp
    show_run answer --json answer_wrong_codec.sdp volte_offer.sdp
    show_run answer --json answer_missing_line.sdp vilte_offer.sdp
    compare invalid_examples
}

# offered NAME LINES - an offer with these lines behind those of a session.
offered() {
    printf 'v=0\no=- 1 1 IN IP4 192.0.2.1\ns=-\n%s\n' "$2" >"$work/$1.sdp"
    show_run offer "$1.sdp"
}

# Each names the media line that fails, or none where the session or its groups do.
invalid_offers() {
    local connected='c=IN IP4 192.0.2.1
t=0 0'
    local audio='m=audio 4000 RTP/AVP 0'
    cd "$work"
    offered connection "t=0 0
$audio
c=IN IP4 192.0.2.2
$audio"
    offered bandwidth "$connected
b=AS:0
$audio
a=ptime:0"
    offered no_line "$connected"
    offered no_formats "$connected
$audio
m=audio 4002 RTP/AVP opus"
    offered codec "$connected
$audio
m=audio 4002 RTP/AVP 98"
    offered events_alone "$connected
m=audio 0 RTP/AVP 0
m=audio 4002 RTP/AVP 97
a=rtpmap:97 telephone-event/8000
a=fmtp:97 0-15"
    offered ptime "$connected
$audio
$audio
$audio
a=ptime:0"
    offered preconditions "$connected
$audio
$audio
a=curr:qos local none"
    offered mid_missing "$connected
a=group:FID one two
$audio
a=mid:one
m=audio 4002 RTP/AVP 0
a=mid:two
m=audio 4004 RTP/AVP 0"
    offered mid_repeated "$connected
$audio
a=mid:one
m=audio 4002 RTP/AVP 0
a=mid:one"
    offered group_of_one "$connected
a=group:LS one
$audio
a=mid:one"
    offered group_of_rejected "$connected
a=group:FID one two
$audio
a=mid:one
m=audio 0 RTP/AVP 0
a=mid:two"
    offered group_twice "$connected
a=group:FID one two
a=group:FID two
$audio
a=mid:one
m=audio 4002 RTP/AVP 0
a=mid:two"
    compare invalid_offers
}

# modified NAME FORMAT - a body validated as a modified offer against the last one, and as an answer to it.
modified() {
    body "$1.sdp" "$2"
    show_run reoffer "$1.sdp" previous.sdp
    show_run answer "$1.sdp" previous.sdp
}

invalid_changes() {
    local start='v=0\r\no=- 1 2 IN IP4 192.0.2.1\r\ns=-\r\nc=IN IP4 192.0.2.1\r\n'
    local one='m=audio 4000 RTP/AVP 96\r\na=rtpmap:96 AMR/8000\r\na=mid:one\r\n'
    local two='m=video 4002 RTP/AVPF 97\r\na=rtpmap:97 H264/90000\r\na=mid:two\r\na=sendonly\r\n'
    local received=${two/sendonly/recvonly}
    local groups='t=0 0\r\na=group:LS one two\r\n'
    cd "$work"
    body previous.sdp "$start$groups$one$two"
    modified unchanged "$start$groups$one$received"
    modified changed_codec "$start$groups$one${received//H264/H263-1998}"
    modified changed_mid "$start${groups/two/2}$one${received/mid:two/mid:2}"
    modified changed_first_mid "$start${groups/one/1}${one/mid:one/mid:1}$received"
    modified changed_direction "$start$groups$one${two/sendonly/sendrecv}"
    modified changed_type "$start$groups${one/audio/video}$received"
    modified two_faults "$start$groups${one//AMR/EVRC}${received}a=ptime:0\\r\\n"
    modified faults_alike "$start$groups${one//AMR/EVRC}${received/a=rtpmap/a=x}"
    modified no_time "$start${groups/t=0 0\\r\\n/}$one$received"
    modified later_version "${start/1 2/1 4}$groups$one$received"
    modified all_rejected "${start}t=0 0\\r\\n${one/4000/0}${received/4002/0}"
    modified fewer_lines "${start}t=0 0\\r\\n$one"
    compare invalid_changes
}

validation_warnings() {
    cd "$work"
    body clock.sdp 'v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=-\r\nc=IN IP4 192.0.2.1\r\nt=1 2\r\nm=audio 4000 RTP/AVP 0\r\nm=text 4000 RTP/AVP 98\r\n\000a=inactive\r\n'
    show_run offer clock.sdp
    show_run offer --json clock.sdp
    body other_clock.sdp 'v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=-\r\nc=IN IP4 192.0.2.1\r\nt=3 4\r\nm=audio 4000 RTP/AVP 0\r\nm=text 0 RTP/AVP 98\r\n'
    show_run answer other_clock.sdp clock.sdp
    compare validation_warnings
    cd "$examples"
    expect log_validation answer --log volte_answer.sdp volte_offer.sdp
}

hostile_validation() {
    local start="${session}c=IN IP4 192.0.2.1\\r\\nm=audio 4000 RTP/AVP 0\\r\\na=mid:"
    cd "$work"
    body mid_before.sdp "${start}a\\033[2J\\302\\233\\r\\n"
    body mid_after.sdp "${start}b\\033]0;x\\007\\377\\r\\n"
    show_run reoffer mid_after.sdp mid_before.sdp
    show_run reoffer --json mid_after.sdp mid_before.sdp
    compare hostile_validation
}

unparsable_for_validation() {
    cd "$work"
    body broken.sdp "${session}q=1\r\n"
    cp "$examples/volte_offer.sdp" good.sdp
    show_run offer broken.sdp
    show_run offer --json broken.sdp
    show_run reoffer good.sdp broken.sdp
    show_run reoffer broken.sdp good.sdp
    show_run answer good.sdp broken.sdp
    show_run answer good.sdp missing.sdp
    show_run answer missing.sdp broken.sdp
    compare unparsable_for_validation
}

validation_of_standard_input() {
    cd "$examples"
    show_run offer - <volte_offer.sdp
    show_run answer - volte_offer.sdp <answer_wrong_codec.sdp
    show_run answer volte_answer.sdp - <volte_offer.sdp
    compare validation_of_standard_input
}

unusable_files() {
    cd "$work"
    show_run show missing.sdp
    show_run show --json missing.sdp
    show_run show --document missing.sdp
    show_run rewrite missing.sdp
    mkdir folder
    show_run show folder
    show_run rewrite folder
    compare unusable_files
    { printf 's=-\r\n'; head -c 65531 /dev/zero | tr '\0' '\n'; } >long.sdp
    expect long_body show long.sdp
    head -c 65535 long.sdp >longest.sdp
    expect longest_body show longest.sdp
}

full_disk() {
    local command
    cd "$examples"
    for command in 'show' 'show --json' 'show --document' 'rewrite' 'offer' 'offer --json'; do
        local status=0
        checks=$((checks + 1))
        # shellcheck disable=SC2086
        "${tool[@]}" $command minimal.sdp >/dev/full 2>"$work/err" || status=$?
        [ "$status" = 2 ] || fail "$command on a full disk" "status $status instead of 2"
        [ "$(cat "$work/err")" = "daksdp: standard output: cannot be written" ] ||
            fail "$command on a full disk" "$(cat "$work/err")"
    done
}

wrong_arguments() {
    cd "$examples"
    expect_usage_error no_command 'subcommand'
    expect_usage_error no_file 'FILE' show
    expect_usage_error unknown_option '--colour' show --colour minimal.sdp
    expect_usage_error unknown_command 'subcommand' print minimal.sdp
    expect_usage_error two_views 'excludes' show --json --document minimal.sdp
    expect_usage_error no_file_to_rewrite 'FILE' rewrite
    expect_usage_error view_of_rewriting '--json' rewrite --json minimal.sdp
    expect_usage_error no_file_to_validate 'FILE' offer
    expect_usage_error two_offers 'volte_offer.sdp' offer hold_offer.sdp volte_offer.sdp
    expect_usage_error no_previous_offer 'PREVIOUS' reoffer hold_offer.sdp
    expect_usage_error no_offer 'OFFER' answer volte_answer.sdp
    expect_usage_error standard_input_twice 'only one' answer - -
    expect_usage_error document_of_verdict '--document' offer --document volte_offer.sdp
    expect_usage_error two_files 'small_audio_offer.sdp' show minimal.sdp small_audio_offer.sdp
}

# expect_told NAME PATTERN ARGUMENT... - a question about the program itself.
expect_told() {
    local name=$1 pattern=$2
    shift 2
    checks=$((checks + 1))
    run "$@"
    [ "$(cat "$work/status")" = 0 ] || fail "$name" "status $(cat "$work/status") instead of 0"
    grep -qE -e "$pattern" "$work/out" || fail "$name" "says: $(cat "$work/out")"
}

questions() {
    expect_told version '^daksdp [0-9]+\.[0-9]+\.[0-9]+$' --version
    expect_told help 'show .*body' --help
    expect_told help_lists_rewrite 'rewrite .*SDP' --help
    expect_told help_lists_statuses '1 .*cannot be generated' --help
    expect_told help_of_show 'FILE .*standard input' show --help
    expect_told help_of_views '--json .*keys' show --help
    expect_told help_of_rewrite 'FILE .*standard input' rewrite --help
    expect_told help_lists_answer 'answer .*against its offer' --help
    expect_told help_of_reoffer 'PREVIOUS .*compared' reoffer --help
    expect_told help_of_verdict '--json .*verdict' offer --help
    expect_told help_of_all '--document ' --help-all
}

no_expectation_left_over() {
    local file
    checks=$((checks + 1))
    for file in "$expected"/*.txt; do
        grep -qxF "${file##*/}" "$work/used" || fail "${file##*/}" "no check uses it"
    done
}

every_example
documents
every_codec_has_an_example
standard_input
log_lines
hostile_text
unread_parts
lines_without_record
refused_bodies
unwritable_bodies
valid_examples
invalid_examples
invalid_offers
invalid_changes
validation_warnings
hostile_validation
unparsable_for_validation
validation_of_standard_input
unusable_files
full_disk
wrong_arguments
questions
no_expectation_left_over

printf '%d checks, %d failed\n' "$checks" "$failures"
[ "$failures" -eq 0 ]
