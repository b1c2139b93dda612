#!/usr/bin/env bash
# Checks what the linker sees of the built library.
#
# usage: abi_test.sh exports|needed|soname|undefined|writable|pages|thumb
#
# MAP, SHARED and ARCHIVE name the version script and the two libraries; NM and READELF the tools.
set -euo pipefail
export LC_ALL=C

NM=${NM:-nm}
READELF=${READELF:-readelf}

# What the library may import: the platform, the C library's plain memory and string functions,
# and what compilers call on their own. Nothing that formats, scans, allocates or throws.
allowed_imports='
    dak_malloc dak_free dak_strtok dak_assert_failed platInetPton __android_log_print
    memchr memcmp memcpy memmove memrchr memset bcmp
    strchr strcmp strcspn strlen strncmp strnlen strpbrk strrchr strspn strstr
    __stack_chk_fail __stack_chk_guard __stack_chk_fail_local __tls_get_addr
    __cxa_finalize __gmon_start__ _ITM_deregisterTMCloneTable _ITM_registerTMCloneTable
    __divdi3 __moddi3 __udivdi3 __umoddi3 __divmoddi4 __udivmoddi4
    __aeabi_.* __memcpy_chk __memmove_chk __memset_chk __strlen_chk'

words_as_lines() {
    tr -s ' \n' '\n' | sed '/^$/d'
}

# Prints the rows of a list, if any, under a heading and fails for them.
expect_none() {
    local heading=$1 rows=$2
    [ -z "$rows" ] && return 0
    printf '%s:\n%s\n' "$heading" "$rows" >&2
    return 1
}

mapped_names() {
    sed -n '/global:/,/local:/p' "$MAP" | sed -n 's/^ *\([A-Za-z_0-9]*\);$/\1/p' | sort
}

exported_names() {
    "$NM" -D --defined-only "$SHARED" | awk '{ sub(/@.*/, "", $NF); print $NF }' | grep -vx DAKSDP_1 | sort
}

check_exports() {
    local mapped exported status=0
    mapped=$(mapped_names)
    exported=$(exported_names)
    [ -n "$mapped" ] || { echo "no names in $MAP" >&2; return 1; }
    expect_none "in the list twice" "$(uniq -d <<<"$mapped")" || status=1
    expect_none "listed but not defined" "$(comm -23 <(uniq <<<"$mapped") <(echo "$exported"))" || status=1
    expect_none "exported but not listed" "$(comm -13 <(uniq <<<"$mapped") <(echo "$exported"))" || status=1
    return $status
}

dynamic_values() {
    "$READELF" -dW "$SHARED" | sed -n "s/.*($1).*\[\(.*\)\]\$/\1/p"
}

check_needed() {
    local needed
    needed=$(dynamic_values NEEDED)
    expect_none "needs more than the C library" \
        "$(grep -vxE 'libc\.so(\.6)?|ld-linux.*|lib(asan|tsan|ubsan)\.so\.[0-9]+' <<<"$needed" | sed '/^$/d')"
}

check_soname() {
    local soname
    soname=$(dynamic_values SONAME)
    [ "$soname" = libdaksdp.so.1 ] || { echo "SONAME is '$soname'" >&2; return 1; }
}

check_undefined() {
    local imports pattern
    imports=$("$NM" -D --undefined-only "$SHARED" | awk '{ sub(/@.*/, "", $NF); print $NF }' | sort -u)
    grep -qx dak_malloc <<<"$imports" || { echo "dak_malloc is not imported: not the library?" >&2; return 1; }
    # The compiler's division routines for 32-bit ARM raise a signal when the divisor is zero.
    ! "$READELF" -h "$SHARED" | grep -q 'Machine: *ARM$' || allowed_imports+=' raise'
    pattern=$(words_as_lines <<<"$allowed_imports" | paste -sd '|')
    expect_none "imports beyond what is allowed" "$(grep -vxE "$pattern" <<<"$imports" || true)"
}

# A writable section with content, in any object. Relocated constants are closed after loading;
# initialisers that run at load time have a writable section too and are found the same way.
writable_sections() {
    "$READELF" -SW "$ARCHIVE" | awk '
        /^File:/ { file = $2; ++objects }
        /^ *\[ *[0-9]+\]/ {
            sub(/^ *\[ *[0-9]+\] */, "")
            if ($7 ~ /W/ && $7 ~ /A/ && $5 !~ /^0+$/ && $1 !~ /^\.data\.rel\.ro/)
                print file, $1, "of 0x" $5 " bytes"
        }
        END { if (!objects) print "no objects in the archive" }'
}

# What the shared library's symbol table has in a section that stays writable. The start-up code that every
# library is linked with brings a flag and two marks.
writable_symbols() {
    "$READELF" -SsW "$SHARED" | awk '
        /^ *\[ *[0-9]+\]/ {
            gsub(/[][]/, " ")
            if ($2 !~ /^\.(data\.rel\.ro|dynamic|got|got\.plt|(init|fini)_array)$/ && $8 ~ /W/ && $8 ~ /A/)
                open_to_writing[$1] = $2
            next
        }
        $7 in open_to_writing && $4 != "SECTION" && $8 !~ /^([$]d|completed\.0|__dso_handle|__TMC_END__)/ {
            print $8, "of", $3, "bytes in", open_to_writing[$7]
        }
        /^Symbol table .\.symtab/ { ++tables }
        END { if (!tables) print "no symbol table in the shared library" }'
}

check_writable() {
    local status=0
    expect_none "writable data" "$(writable_sections)" || status=1
    expect_none "writable symbols" "$(writable_symbols)" || status=1
    return $status
}

# Kernels with pages of 16 KB map segments from such pages, and close relocated constants against writing up
# to the end of one.
check_pages() {
    local kind address size align segments=0 status=0
    while read -r kind address size align; do
        segments=$((segments + 1))
        case $kind in
        LOAD) ((align % 16384 == 0)) ;;
        GNU_RELRO) (((address + size) % 16384 == 0)) ;;
        esac || { echo "not for pages of 16 KB: $kind $address $size $align" >&2; status=1; }
    done < <("$READELF" -lW "$SHARED" | awk '$1 == "LOAD" || $1 == "GNU_RELRO" { print $1, $3, $6, $NF }')
    [ $segments -ge 3 ] || { echo "only $segments segments" >&2; status=1; }
    return $status
}

# 32-bit ARM: ARMv7-A with floating point in registers, and every exported function in Thumb-2.
check_thumb() {
    local tag attributes status=0
    attributes=$("$READELF" -A "$SHARED")
    for tag in 'Tag_CPU_arch: v7' 'Tag_THUMB_ISA_use: Thumb-2' 'Tag_ABI_VFP_args: VFP registers'; do
        grep -qF "$tag" <<<"$attributes" || { echo "not there: $tag" >&2; status=1; }
    done
    # A Thumb function's address is odd in the symbol table.
    expect_none "functions in ARM code" "$("$READELF" --dyn-syms -W "$SHARED" | awk '
        $4 == "FUNC" && $7 != "UND" { ++functions; if ($2 ~ /[02468ace]$/) print $8 }
        END { if (!functions) print "no functions" }')" || status=1
    return $status
}

case ${1:-} in
exports | needed | soname | undefined | writable | pages | thumb) "check_$1" ;;
*) sed -n '2,6s/^# \{0,1\}//p' "$0" >&2 && exit 2 ;;
esac
