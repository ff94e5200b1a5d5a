# Sourced by ./run and ./test: installs the Debian packages that are missing.

needs() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Missing, and no sudo to install it: ${missing[*]}" >&2; exit 1; }
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    local log
    log=$(mktemp)
    if ! { "${as_root[@]}" apt-get update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install --yes --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
        tail -n 5 "$log" >&2
        echo "Could not install: ${missing[*]}" >&2
        exit 1
    fi
    rm -f "$log"
}

# build PRESET: configures where that was not done with these presets, and builds. Prints what it does only when it
# fails.
build() {
    local preset=$1 log=build/$1.log
    mkdir -p build
    [ "build/$preset/build.ninja" -nt CMakePresets.json ] || cmake --preset "$preset" >"$log" 2>&1 ||
        { cat "$log" >&2; exit 1; }
    cmake --build --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
}

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-multimedia-dev libqt6sql6-sqlite
    qt6-translations-l10n)
