# What .ci/bare-debian proves of the Debian packages; it sources this after common.sh.
# shellcheck shell=bash disable=SC2154

# Installs "$@" and what they depend on.
install_inside() {
    inside apt-get install -qq -y --no-install-recommends "$@" >"$root/tmp/apt.log" 2>&1 || {
        cat "$root/tmp/apt.log" >&2
        fail "cannot install $*"
    }
}

# Names of installed packages, or of those whose configuration is still there, that match the patterns "$@".
installed_packages() {
    # shellcheck disable=SC2016 # dpkg-query's own
    inside dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null |
        sed -n 's/^\(installed\|config-files\) //p'
}

expect_none() {
    [ -z "$2" ] || fail "$1: $2"
}

# --- Building ---

tree() { (cd "$root/$project" && find . -type f -print0 | sort -z | xargs -0 sha256sum && find . -type d | sort); }

build_packages() {
    heading "built with what they say they need"
    enter_fresh builder /build/orvcameraguiapi
    tree >"$place/tree"
    install_inside build-essential fakeroot
    local which
    for which in arch indep; do
        inside apt-get build-dep -qq -y --no-install-recommends "--$which-only" ./ >"$place/build-$which.log" 2>&1
        inside dpkg-buildpackage --no-sign "--build=$([ $which = arch ] && echo any || echo all)" \
            >>"$place/build-$which.log" 2>&1 || {
            tail -40 "$place/build-$which.log" >&2
            fail "cannot build the packages, $which"
        }
        [ $which = indep ] || expect_none "needed for nothing" "$(installed_packages doxygen)"
    done
    inside debian/rules clean >/dev/null
    tree | diff "$place/tree" - || fail "debian/rules clean leaves another tree"
    debs=$root/build
}

# --- Using ---

try_runtime() {
    heading "runtime packages alone"
    install_inside liborvgenapi1 orvgenapi-tools liborvcameraapi1 liborvcameraguiapi1 liborvcameraguiapiqt6-1 \
        orv-camera-explorer
    expect_none "runtime packages bring" "$(installed_packages '*-dev')"
    as_user orv-camera-explorer --version
    as_user genapi_dump --version
    as_user env QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=default.warning=false \
        orv-camera-explorer --screenshot /tmp/pictures >/dev/null
    [ -s "$root/tmp/pictures/explorer.png" ] || fail "no picture of the explorer"
    inside sh -c 'ldd /usr/lib/*/libOrv*.so.1 /usr/lib/*/OrvCameraApi/*' >"$place/ldd"
    expect_none "not found" "$(grep 'not found' "$place/ldd" || true)"
}

try_pages() {
    heading "manual pages, udev rule"
    install_inside man-db udev
    local page rule=70-orv-usb3vision.rules
    for page in orv-camera-explorer genapi_dump; do
        expect_none "man $page" "$(inside man --warnings "$page" 2>&1 >/dev/null)"
    done
    inside udevadm test /sys/devices/virtual/mem/null >"$place/udev" 2>&1
    grep -q "^Reading rules file: .*$rule" "$place/udev" || fail "udev does not read $rule"
    expect_none "udev" "$(grep "$rule:" "$place/udev" || true)"
}

try_without_qt() {
    heading "camera access without Qt"
    install_inside g++ pkg-config liborvcameraapi-dev
    expect_none "liborvcameraapi-dev brings" "$(installed_packages 'qt*-dev' 'liborvcameraguiapi*-dev')"
    cat >"$root/tmp/list.cpp" <<'END'
#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <cstdio>

int main()
{
    OrvCam::System *const system = OrvCam_GetSystem();
    OrvCam::InterfaceList *const interfaces = system->GetInterfaceList(OrvCam::AllInterfaceTypes);
    std::printf("%zu interfaces\n", interfaces->GetSize());
    interfaces->Release();
    system->Release();
}
END
    # shellcheck disable=SC2016
    inside sh -c 'cd /tmp && g++ -std=c++17 -o list list.cpp $(pkg-config --cflags --libs OrvCameraApi)'
    as_user /tmp/list
}

try_development() {
    heading "development packages, Qt 6 alone"
    install_inside cmake ninja-build liborvcameraguiapiqt6-dev
    expect_none "liborvcameraguiapiqt6-dev brings" "$(installed_packages qtbase5-dev liborvcameraguiapi-dev)"
    as_user debian/tests/build-consumers 6

    heading "autopkgtest"
    install_inside autopkgtest apt-utils
    inside sh -c 'autopkgtest --apt-upgrade --output-dir /tmp/autopkgtest /debs/*.deb . -- null' \
        >"$place/autopkgtest.log" 2>&1 || {
        tail -60 "$place/autopkgtest.log" >&2
        fail "autopkgtest failed"
    }
    cat "$root/tmp/autopkgtest/summary"
}

try_documentation() {
    heading "documentation"
    install_inside doc-base liborvcameraguiapi-doc
    inside install-docs --check /usr/share/doc-base/liborvcameraguiapi-doc.orvcameraguiapi
    local directory=$root/usr/share/doc/liborvcameraguiapi-dev
    [ -f "$directory/html/index.html" ] || fail "no index.html"
    # shellcheck disable=SC2046
    broken_links $(find "$directory" -name '*.html' -o -name '*.md') || fail "links of the documentation"
    du -sh "$directory/html" "$directory/docs"
}

# --- Removing ---

files() {
    (cd "$root" && find . -xdev \( -path ./tmp -o -path ./debs -o -path ".$project" -o -path ./var/log -o \
        -path ./var/lib/apt -o -path ./var/lib/dpkg -o -path ./var/cache \) -prune -o -print | sort)
}

# $1: remove or purge
take_away() {
    inside apt-get "$1" -qq -y "${ours[@]}" >"$root/tmp/apt.log" 2>&1 || {
        tail -20 "$root/tmp/apt.log" >&2
        fail "cannot $1"
    }
}

# What there is to do, dpkg's triggers do.
look_for_scripts() {
    local deb
    for deb in "$root"/debs/*.deb; do
        expect_none "$(basename "$deb") has scripts" \
            "$(dpkg-deb --ctrl-tarfile "$deb" | tar -t | grep -E 'inst$|rm$' || true)"
    done
}

try_removal() {
    heading "removed, purged"
    look_for_scripts
    mapfile -t ours < <(cd "$root/debs" && printf '%s\n' ./*.deb | sed 's#^\./##; s#_.*##')
    install_inside "${ours[@]}"
    say "${#ours[@]} packages: ${ours[*]}"
    take_away purge
    files >"$place/files"
    expect_none "left" "$(grep -E '/(lib)?[Oo]rv|-orv-|genapi_dump' "$place/files" || true)"
    expect_none "left in the configuration" \
        "$(grep -rIilE 'orv-?camera|orvgen' "$root/etc" "$root/usr/share/applications" || true)"
    expect_none "left in the loader's cache" "$(inside ldconfig -p | grep Orv || true)"
    expect_none "left in dpkg's database" "$(installed_packages '*orv*')"
    local how
    for how in remove purge; do
        install_inside "${ours[@]}"
        take_away $how
        files | diff "$place/files" - || fail "$how leaves files"
    done
}

prove_packages() {
    [ -d "$debs" ] || build_packages
    say "packages from $debs"
    enter_fresh root /project
    mkdir "$root/debs"
    cp "$debs"/*.deb "$root/debs/"
    rm -f "$root"/debs/*-dbgsym_*
    (cd "$root/debs" && dpkg-scanpackages . >Packages 2>"$place/scan.log")
    echo "deb [trusted=yes] file:/debs ./" >"$root/etc/apt/sources.list.d/debs.list"
    inside apt-get update -qq
    try_runtime
    try_pages
    try_without_qt
    try_development
    try_documentation
    try_removal
    say "all of it holds"
}
