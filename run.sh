#!/usr/bin/env bash
# The project's two entry points on a fresh Debian machine:
#   ./run.sh test             install what is missing, build, run every test
#   ./run.sh test --sanitize  the same in a separate AddressSanitizer + UndefinedBehaviorSanitizer build
#   ./run.sh demo [options]   build the reference host and show the sample site: the QML page when there is
#                             a display, otherwise the printed alarm list and a fired alarm (options go to
#                             alarm-host; ./run.sh demo --help lists them)
#   ./run.sh fuzz [SECONDS]   build the libFuzzer targets with clang and run each for SECONDS (default 45)
#   ./run.sh package          build the Debian packages (plug-in and host; the SDK's -dev) into build/packages
set -euo pipefail
cd "$(dirname "$0")"

packages=(cmake ninja-build g++ pkg-config
          qt6-base-dev qt6-tools-dev qt6-l10n-tools libpugixml-dev libbenchmark-dev
          qt6-declarative-dev qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts
          qml6-module-qtquick-templates qml6-module-qtquick-window qml6-module-qtqml-workerscript
          qml6-module-qtmultimedia qt6-qpa-plugins fonts-dejavu-core fonts-wqy-microhei)

fuzz_packages=(clang-14 libclang-rt-14-dev)

package_tools=(dpkg-dev file)

install_missing_packages() {
    local missing=()
    for package in "$@"; do
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
    install_missing_packages "${packages[@]}"
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

run_fuzzers() {
    local seconds=${1:-45}
    install_missing_packages "${packages[@]}" "${fuzz_packages[@]}"
    CXX=clang++-14 configure_and_build build-fuzz -DALARM_BUILD_FUZZ=ON -DALARM_SANITIZE=ON \
        -DALARM_BUILD_TESTS=OFF -DALARM_BUILD_HOST=OFF
    export ASAN_OPTIONS="halt_on_error=1:detect_leaks=1"
    export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"
    export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
    local root=$PWD workdir
    workdir=$(mktemp -d)
    for target in xml2json alarmlist ruletexts alarmeventparser clientnotificationparser plugin; do
        local binary=$root/build-fuzz/bin/fuzz_$target
        # Inputs that once failed are replayed first, one run each.
        if compgen -G "fuzz/regressions/$target/*" >/dev/null; then
            "$binary" -runs=1 fuzz/regressions/$target/*
        fi
        local seeds=("$root/fuzz/corpus/$target")
        [ "$target" != plugin ] && seeds+=("$root/tests/data")
        [[ "$target" = alarmlist || "$target" = ruletexts ]] && [ -d samples ] && seeds+=("$root/samples")
        mkdir -p "$workdir/$target"
        echo "fuzz_$target: ${seconds}s"
        if ! (cd "$workdir" && "$binary" -dict="$root/fuzz/xml.dict" -max_total_time="$seconds" -timeout=10 \
                -rss_limit_mb=4096 -print_final_stats=1 "$target" "${seeds[@]}" >"$target.log" 2>&1); then
            cat "$workdir/$target.log"
            echo "fuzz_$target failed; the input is in $workdir" >&2
            return 1
        fi
        grep -E '^(#[0-9]+ +DONE|stat::number_of_executed_units)' "$workdir/$target.log" || true
    done
    rm -rf "$workdir"
}

run_demo() {
    install_missing_packages "${packages[@]}"
    cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
    cmake --build build --target alarm-host
    local host=build/bin/alarm-host
    if [ $# -gt 0 ]; then
        exec "$host" "$@"
    elif [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
        exec "$host" --gui
    else
        echo "No display: the sample site's alarm list, then the virtual trigger \"Open gate\" fired."
        "$host" --list
        echo
        "$host" --fire "Open gate" --no-list
    fi
}

run_package() {
    install_missing_packages "${packages[@]}" "${package_tools[@]}"
    cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
    cmake --build build --target alarm-host PluginAlarmManager uiframework
    rm -f build/packages/*.deb
    (cd build && cpack -G DEB)
}

case "${1:-}" in
    demo) shift; run_demo "$@" ;;
    test) shift; run_tests "$@" ;;
    fuzz) shift; run_fuzzers "$@" ;;
    package) run_package ;;
    *) echo "usage: $0 demo [alarm-host options] | test [--sanitize] | fuzz [SECONDS] | package" >&2; exit 2 ;;
esac
