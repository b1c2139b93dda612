#!/usr/bin/env bash
# Runs examples/hold.c on example bodies and compares what it writes with hold.txt.
#
#   hold_test.sh EXAMPLES PROGRAM...
set -euo pipefail

expected=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/hold.txt
cd "$1"
shift
for file in small_audio_offer.sdp h263.sdp msrp_tls.sdp nowhere.sdp; do
    echo "== $file"
    { "$@" "$file" 2>/dev/null || echo "status $?"; } | tr -d '\r'
done | diff -u "$expected" -
