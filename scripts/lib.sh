# Shared by the scripts beside it; sourced, not run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

build_packages=(build-essential cmake ninja-build libgtest-dev libgmock-dev libcli11-dev nlohmann-json3-dev pkgconf)

package_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Runs apt-get as root, or returns non-zero where there is no way to be root.
apt_get() {
    if [ "$(id -u)" -eq 0 ]; then
        DEBIAN_FRONTEND=noninteractive apt-get "$@"
    else
        sudo -n env DEBIAN_FRONTEND=noninteractive apt-get "$@"
    fi
}

may_install() {
    [ "$(id -u)" -eq 0 ] || { command -v sudo && sudo -n true; } >/dev/null 2>&1
}

# Installs those of the named packages that are missing.
need() {
    local package missing=()
    if ! command -v dpkg-query >/dev/null; then
        echo "note: not a Debian system; this needs what these packages hold: $*" >&2
        return 0
    fi
    for package in "$@"; do
        package_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if ! may_install; then
        echo "missing packages, and no way to install them: please install ${missing[*]}" >&2
        return 1
    fi
    echo "installing ${missing[*]}"
    apt_get update -qq
    apt_get install -y -qq --no-install-recommends "${missing[@]}"
}

# configure DIRECTORY CC CXX [CMAKE OPTION...]
configure() {
    local directory=$1 cc=$2 cxx=$3
    shift 3
    cmake -S "$root" -B "$directory" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" "$@"
}

build() {
    cmake --build "$1" --parallel "$jobs" "${@:2}"
}

# run_tests DIRECTORY [CTEST OPTION...]
run_tests() {
    local directory=$1
    shift
    ctest --test-dir "$directory" --output-on-failure --parallel "$jobs" --no-tests=error "$@"
}
