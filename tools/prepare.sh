# Sourced by run, test, .ci/run and others: the packages and the folders that they need.

# need PACKAGE...: installs those of the Debian packages that are missing.
need() {
    missing=
    for package in "$@"; do
        status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) || status=
        [ "$status" = installed ] || missing="$missing $package"
    done
    [ -z "$missing" ] && return 0
    install="env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends$missing"
    if [ "$(id -u)" -eq 0 ]; then
        as_root=
    elif command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
        as_root=sudo
    else
        echo "Some packages are missing. Please run this line as root, then start again:" >&2
        echo "    apt-get update && $install" >&2
        exit 1
    fi
    echo "Installing:$missing"
    $as_root apt-get update -q || true # the packages may be there all the same
    $as_root $install
}

# A private folder for sockets and locks, where the system gives the user none.
private_runtime_folder() {
    if [ -z "${XDG_RUNTIME_DIR:-}" ] || [ ! -w "${XDG_RUNTIME_DIR:-}" ]; then
        XDG_RUNTIME_DIR=${TMPDIR:-/tmp}/halvenmoor-runtime-$(id -u)
        mkdir -p -m 700 "$XDG_RUNTIME_DIR"
        # Somebody else's folder of this name is none of ours.
        [ -O "$XDG_RUNTIME_DIR" ] || XDG_RUNTIME_DIR=$(mktemp -d)
        chmod 700 "$XDG_RUNTIME_DIR"
        export XDG_RUNTIME_DIR
    fi
}

BUILD_PACKAGES="g++ cmake ninja-build"
QT_PACKAGES="qt6-base-dev qt6-translations-l10n librsvg2-bin libgl-dev fonts-dejavu-core"
MANUAL_PACKAGES="cmark-gfm" # for manual.html in the program folder; everything else goes without
SCREEN_READER_PACKAGES="at-spi2-core dbus gir1.2-atspi-2.0 python3-gi xvfb" # for tests that read the windows
# The compiler for Windows; Qt's tools that run while building are those of Debian's Qt.
WINDOWS_BUILD_PACKAGES="g++-mingw-w64-x86-64-posix xz-utils cmake ninja-build qt6-base-dev qt6-base-dev-tools libgtest-dev librsvg2-bin
    icoutils qt6-l10n-tools qt6-translations-l10n python3 $MANUAL_PACKAGES"
WINDOWS_PACKING_PACKAGES="advancecomp nsis"
WINE_PACKAGES="wine wine64 fonts-wine"
