#!/usr/bin/env bash
# The project's two entry points on a fresh Debian machine:
#   ./run.sh test             install what is missing, build, run every test
#   ./run.sh test --sanitize  the same in a separate AddressSanitizer + UndefinedBehaviorSanitizer build
set -euo pipefail
cd "$(dirname "$0")"

packages=(cmake ninja-build g++ pkg-config
          qt6-base-dev qt6-tools-dev qt6-l10n-tools libpugixml-dev libbenchmark-dev)

install_missing_packages() {
    local missing=()
    for package in "${packages[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

configure_and_build() {
    local build_dir=$1; shift
    cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@"
    cmake --build "$build_dir"
}

run_tests() {
    local sanitize=0
    [ "${1:-}" = "--sanitize" ] && sanitize=1
    install_missing_packages
    if [ $sanitize -eq 1 ]; then
        configure_and_build build-sanitize -DALARM_SANITIZE=ON -DALARM_BUILD_BENCH=OFF
        export ASAN_OPTIONS="halt_on_error=1:detect_leaks=1:abort_on_error=1"
        export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"
        export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
        ctest --test-dir build-sanitize --output-on-failure -j2
    else
        configure_and_build build
        ctest --test-dir build --output-on-failure -j2
    fi
}

case "${1:-}" in
    test) shift; run_tests "$@" ;;
    *) echo "usage: $0 test [--sanitize]" >&2; exit 2 ;;
esac
