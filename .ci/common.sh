# Sourced by ./run, ./test and .ci/run, which set $top to the project's root directory first.
# shellcheck shell=bash disable=SC2034

: "${top:?set by the script that sources this}"

packages_build=(
    g++ cmake ninja-build pkg-config
    qtbase5-dev qttools5-dev libpugixml-dev libminizip-dev libbenchmark-dev libxcb1-dev
    libaravis-dev libusb-1.0-0-dev
)
# The same with Qt 6; Qt Designer's private headers are for the test of its plug-in.
packages_qt6=(
    qt6-base-dev qt6-base-private-dev libqt6opengl6-dev qt6-tools-dev qt6-tools-private-dev qt6-tools-dev-tools
    qt6-l10n-tools
)
# What programs with windows need on a machine that has no desktop: a font, a display for the tests that want one.
# And a program that stands for a GigE Vision camera.
packages_run=(fonts-dejavu-core xvfb xauth aravis-tools)
# For tst_wayland, which is left out without them.
packages_wayland=(weston qtwayland5 qt6-wayland)

say() { printf '%s\n' "$*"; }

heading() { printf '\n=== %s ===\n' "$*"; }

fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Installs those of the packages "$@" that this machine does not have. Does nothing, quickly, when it has them all.
install_packages() {
    command -v dpkg-query >/dev/null || fail "this is no Debian; install yourself what $* stand for"
    local package missing=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    say "Installing Debian packages: ${missing[*]}"
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        fail "neither root nor sudo; install these yourself: apt-get install ${missing[*]}"
    fi
    as_root apt-get update -qq </dev/null
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -qq -y --no-install-recommends "${missing[@]}" </dev/null
}

# Configures the preset $1 and builds the targets after it, everything when there are none. A warning is an error in CI
# alone: somebody's newer compiler may have one more.
build_preset() {
    local preset=$1
    shift
    cmake --preset "$preset" "-DCMAKE_COMPILE_WARNING_AS_ERROR=${CI:-false}" >"$top/build/$preset.configure.log" 2>&1 || {
        cat "$top/build/$preset.configure.log" >&2
        fail "cannot configure preset $preset"
    }
    cmake --build --preset "$preset" ${1:+--target "$@"}
}

# Writes the blocks of language $1 in the page $2 to the files $3_1.$1, $3_2.$1...; compilers tell the page's lines.
take_blocks() {
    awk -v language="$1" -v prefix="$3" '
        $0 == "```" language {
            inside = 1
            file = prefix "_" ++n "." language
            printf "#line %d \"%s\"\n", NR + 1, FILENAME >file
            next
        }
        /^```$/ { inside = 0; next }
        inside { print >file }' "$2"
}

# Tells the links in the pages "$@", Markdown or HTML, that lead to no file. Fails if there are any.
broken_links() {
    local page link result=0
    for page in "$@"; do
        while read -r link; do
            [ -e "$(dirname "$page")/$link" ] || {
                say "$page: there is no $link" >&2
                result=1
            }
        done < <(links_of "$page")
    done
    return $result
}

# Files that the page $1 links to.
links_of() {
    # shellcheck disable=SC2016 # a fence of a block, which is no shell
    case $1 in
    *.md) awk '/^```/ { inside = !inside } !inside' "$1" | grep -oE '\]\([^)]+\)' | sed 's/^](//; s/)$//' ;;
    *) grep -oE '(href|src)="[^"]+' "$1" | sed 's/.*="//' ;;
    esac | grep -vE '^([a-z]+:|#)' | sed 's/#.*//' | sort -u || true
}

cd "$top" || exit 1
mkdir -p "$top/build"
