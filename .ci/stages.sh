# The stages of .ci/run, which sources this after common.sh. One build with debug information serves tests, consumers,
# packages and documentation.
# shellcheck shell=bash disable=SC2034,SC2154

stages=(format tidy sanitizers threads fuzz genicam qt6 consumers abi docs packages test)
declare -A about=(
    [format]="sources are formatted, scripts are sound, rooms include as drawn, licenses are told"
    [tidy]="clang-tidy on src/ and platform/"
    [sanitizers]="whole suite with address and undefined-behaviour sanitizers"
    [threads]="tests labelled threads, with the thread sanitizer"
    [fuzz]="each fuzzer 30 s, the planted faults, what the corpora reach"
    [genicam]="library against installed GenICam headers and libraries"
    [qt6]="whole suite with Qt 6; what clang says to all sources"
    [consumers]="installed headers, examples by CMake and by pkg-config, for Qt 5 and Qt 6"
    [abi]="binary interface against the released one, which sees a virtual function more"
    [docs]="Doxygen, links, examples, pictures, the pages followed"
    [packages]="Debian packages, twice the same; lintian; archive"
    [test]="release build and whole suite"
)

stage_format() {
    install_packages clang-format shellcheck reuse
    git ls-files -z '*.cpp' '*.h' | xargs -0 -n 40 clang-format --dry-run --Werror
    shellcheck -x run test .ci/run .ci/stages.sh .ci/common.sh .ci/consumers .ci/genicam-build .ci/genicam-prefix \
        .ci/packages .ci/manpages .ci/abi .ci/docs .ci/follow docs/pictures .ci/tidy .ci/clang .ci/fuzz .ci/rooms \
        .ci/bare-debian .ci/bare-packages.sh benchmarks/run debian/tests/*-* tests/windows/onwayland
    .ci/rooms
    reuse lint
}

stage_tidy() {
    install_packages clang-tidy
    build_preset release
    .ci/tidy
}

stage_sanitizers() {
    install_packages "${packages_wayland[@]}"
    build_preset asan
    ctest --preset asan
}

stage_threads() {
    build_preset tsan orv-tests-threads
    ctest --preset tsan -L threads
}

stage_fuzz() {
    install_packages clang libclang-rt-14-dev llvm
    .ci/fuzz 30
    .ci/fuzz planted
    .ci/fuzz coverage
}

stage_genicam() { .ci/genicam-build; }

# Both versions of Qt.
build_releases() {
    install_packages "${packages_qt6[@]}"
    build_preset release
    build_preset release-qt6
}

stage_qt6() {
    install_packages "${packages_qt6[@]}" "${packages_wayland[@]}" clang
    cmake --preset release-qt6 -DORV_BUILD_BENCHMARKS=ON >/dev/null
    build_preset release-qt6
    .ci/clang release-qt6
    ctest --preset release-qt6
}

stage_consumers() {
    build_releases
    .ci/consumers
}

stage_abi() {
    install_packages abigail-tools
    build_releases
    .ci/abi
}

stage_docs() {
    install_packages doxygen graphviz file pngquant help2man dpkg-dev
    [ -d build/stage ] || stage_consumers
    .ci/docs
}

stage_packages() {
    install_packages dpkg-dev debhelper fakeroot lintian appstream desktop-file-utils blhc man-db doxygen graphviz file \
        "${packages_qt6[@]}"
    build_preset release
    .ci/packages
}

stage_test() { ./test; }
