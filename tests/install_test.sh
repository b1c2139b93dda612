#!/usr/bin/env bash
# Installs the build, moves what was installed to another place, and lets small projects use it there.
#
# usage: install_test.sh files|version|find_package_c|find_package_cpp|subdirectory|pkg_config
#
# "files" installs; the others find its work. SOURCE, BUILD, BUILD_TYPE, VERSION, LIBDIR, GENERATOR, CC and CXX
# tell of the build.
set -euo pipefail
export LC_ALL=C

work=$BUILD/install_test
prefix=$work/moved
consumers=$SOURCE/tests/consumers

fail() {
    echo "$*" >&2
    exit 1
}

wanted_files() {
    (cd "$SOURCE/src" && find . -name '*.h' -printf 'include/daksdp/%P\n')
    printf '%s\n' bin/daksdp "$LIBDIR"/{libdakport.a,libdaksdp.{a,so,so."${VERSION%%.*}",so."$VERSION"}} \
        "$LIBDIR"/pkgconfig/{daksdp,dakport}.pc \
        "$LIBDIR"/cmake/daksdp/daksdp{Config,ConfigVersion,Targets,"Targets-${BUILD_TYPE,,}"}.cmake
    [ ! -e "$SOURCE/docs/daksdp.1" ] || echo share/man/man1/daksdp.1
}

check_files() {
    rm -rf "$work"
    cmake --install "$BUILD" --prefix "$work/first" >/dev/null
    mv "$work/first" "$prefix"
    diff <(wanted_files | sort) <(cd "$prefix" && find . ! -type d -printf '%P\n' | sort)
    ! grep -rIlF -e "$SOURCE" -e "$BUILD" "$prefix" || fail "names places of the build"
}

# project() has the version, and all else is to follow.
check_version() {
    local changelog
    [ "$("$prefix/bin/daksdp" --version)" = "daksdp $VERSION" ] || fail "the tool is no daksdp $VERSION"
    [ "$(PKG_CONFIG_PATH=$prefix/$LIBDIR/pkgconfig pkg-config --modversion daksdp dakport)" = \
        "$VERSION"$'\n'"$VERSION" ] || fail "pkg-config finds no $VERSION"
    changelog=$(sed -n 's/^## \([0-9][^ ]*\).*/\1/p' "$SOURCE/CHANGELOG.md" | head -n 1)
    [ "$changelog" = "$VERSION" ] || fail "CHANGELOG.md begins with '$changelog', not $VERSION"
}

# run_programs DIRECTORY - all of them; those in C need the C library at most.
run_programs() {
    local program ran=0
    for program in "$1"/hold*; do
        LD_LIBRARY_PATH=$prefix/$LIBDIR "$program"
        [ "$1" = "$work/find_package_cpp" ] || ! readelf -dW "$program" | grep 'NEEDED.*c++' ||
            fail "a C program needs the C++ runtime"
        ran=$((ran + 1))
    done
    echo "$ran programs ran"
}

check_cmake_project() {
    cmake -S "$consumers/$1" -B "$work/$1" -G "$GENERATOR" -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_C_COMPILER="$CC" -DCMAKE_CXX_COMPILER="$CXX" >/dev/null
    cmake --build "$work/$1" --parallel "$(nproc)"
    run_programs "$work/$1"
}

check_pkg_config() {
    mkdir -p "$work/pkg_config"
    PKG_CONFIG_PATH=$prefix/$LIBDIR/pkgconfig make -C "$work/pkg_config" -f "$consumers/pkg_config/Makefile" CC="$CC"
    run_programs "$work/pkg_config"
}

case ${1:-} in
files | version | pkg_config) "check_$1" ;;
find_package_c | find_package_cpp | subdirectory) check_cmake_project "$1" ;;
*) sed -n '4s/^# //p' "$0" >&2 && exit 2 ;;
esac
