# SPDX-FileCopyrightText: 2026 The Morvel developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Shell code shared by scripts/setup and scripts/test. Source it; it runs nothing by itself.

MORVEL_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# What building, testing and running Morvel needs on Debian 12.
MORVEL_PACKAGES=(
    cmake ninja-build g++ pkg-config
    qt6-base-dev libsqlite3-dev nlohmann-json3-dev
    libgtest-dev libgmock-dev googletest libbenchmark-dev
    xvfb xauth x11-utils openbox libgl-dev
    clang libclang-rt-14-dev
    gcovr
    reuse
)

morvel_say() { printf '==> %s\n' "$*"; }

# Prints the packages of MORVEL_PACKAGES that are not installed, one a line.
morvel_missing_packages() {
    local package
    for package in "${MORVEL_PACKAGES[@]}"; do
        if [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
            printf '%s\n' "$package"
        fi
    done
}

# Installs whatever is missing. As root it runs apt-get itself; otherwise it prints the command
# to run and fails, so that nothing is built against half an environment.
morvel_install_packages() {
    if ! command -v dpkg-query >/dev/null 2>&1; then
        echo "This script installs its packages with apt-get on Debian 12; install these by hand:" >&2
        echo "  ${MORVEL_PACKAGES[*]}" >&2
        return 1
    fi
    local missing
    mapfile -t missing < <(morvel_missing_packages)
    if ((${#missing[@]} == 0)); then
        morvel_say "All required packages are installed."
        return 0
    fi
    if [[ $(id -u) -ne 0 ]]; then
        echo "Missing packages: ${missing[*]}" >&2
        echo "Install them with:" >&2
        echo "  sudo apt-get update && sudo apt-get install -y --no-install-recommends ${missing[*]}" >&2
        return 1
    fi
    morvel_say "Installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update
    apt-get install -y --no-install-recommends "${missing[@]}"
}

# Runs a command on a fresh X display with a window manager: Xvfb on a free display number, then
# openbox, so that windows are activated and take the keyboard focus as on a desktop. The
# command's exit status is returned; the display and the window manager are stopped after it.
morvel_in_x_session() {
    local display=99
    while [[ -e /tmp/.X11-unix/X$display || -e /tmp/.X$display-lock ]]; do
        display=$((display + 1))
    done
    Xvfb ":$display" -screen 0 1280x900x24 -nolisten tcp >/dev/null 2>&1 &
    local xvfb=$!
    local tries
    for tries in $(seq 50); do
        xdpyinfo -display ":$display" >/dev/null 2>&1 && break
        sleep 0.1
    done
    DISPLAY=":$display" openbox >/dev/null 2>&1 &
    local manager=$!
    # The manager is ready once it has announced itself on the root window.
    for tries in $(seq 50); do
        DISPLAY=":$display" xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' &&
            break
        sleep 0.1
    done
    local status=0
    DISPLAY=":$display" "$@" || status=$?
    kill "$manager" "$xvfb" 2>/dev/null || true
    wait "$manager" "$xvfb" 2>/dev/null || true
    return "$status"
}

# Build parallelism: the caller's CMAKE_BUILD_PARALLEL_LEVEL, else one job per core.
morvel_jobs() { echo "${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}"; }

# Configures and builds one preset. Configuring again is cheap and picks up packages installed
# since the last run (the Qt layers are skipped when Qt was missing at configure time).
morvel_build() {
    local preset=$1
    morvel_say "Configuring and building the '$preset' preset"
    (cd "$MORVEL_ROOT" && cmake --preset "$preset" >/dev/null &&
        cmake --build --preset "$preset" --parallel "$(morvel_jobs)")
}
