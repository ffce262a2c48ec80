#!/bin/bash
# Tries the Debian package in a bare Debian 12 made for this: installs it with what it depends on, starts the program there
# as a user on a display, opens a project, ends it, and removes the package without a trace. Needs root and takes a few
# minutes; not part of test.sh. Leaves pictures in build/package/.
#
#   test_package.sh PACKAGE.deb [SYSTEM]    SYSTEM: a folder with a bare Debian 12, used instead of a new one
set -euo pipefail
package=$(realpath "$1")
system=${2:+$(realpath "$2")}
source "$(dirname "${BASH_SOURCE[0]}")/steps.sh"
tools/install_packages.sh package-test
pictures=$PWD/build/package
root=$(mktemp -d)
display=:$((90 + RANDOM % 900))

clean_up() {
    local job
    for job in $(jobs -p); do
        kill "$job" 2>/dev/null || true
    done
    umount "$root/proc" 2>/dev/null || true
    rm -rf --one-file-system "$root"
}
trap clean_up EXIT

# The steps are chains of &&, as a step that fails must end there although the caller asks how it went.

bare_system() {
    local options=() line
    if [ -n "$system" ]; then
        cp -a "$system/." "$root" || return
    else
        while read -r line; do # reaches its packages as this machine does
            options+=("--aptopt=$line")
        done < <(apt-config dump | grep -E '^Acquire::(Check-|https?::)')
        mmdebstrap --quiet --variant=apt "${options[@]}" bookworm "$root" || return
    fi
    mount -t proc proc "$root/proc" # a program asks it where it lies
}

inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}

files() { # without what a package manager notes down for itself, and caches
    (cd "$root" && find . -xdev \( -path ./proc -o -path ./sys -o -path ./dev -o -path ./tmp -o -path ./home \
        -o -path ./var/cache -o -path ./var/log -o -path ./var/lib/dpkg -o -path ./var/lib/apt \) -prune -o \
        \( -type d -printf '%p/\n' \) -o -printf '%p %s %l\n' | sort)
}

# Without the package itself, so that what is new afterwards is what it left behind.
install_dependencies() {
    inside apt-get -qq update &&
        inside apt-get -qq --yes --no-install-recommends install desktop-file-utils hicolor-icon-theme &&
        inside apt-get -qq --yes --no-install-recommends satisfy "$(dpkg-deb --field "$package" Depends)" &&
        cp "$package" "$root/tmp/ventaro.deb" &&
        files >"$root/tmp/before"
}

# A double click on a project: its name has a type, and the type a program.
desktop_knows_it() {
    grep '^[0-9]*:application/x-ventaro-project:\*\.vnt$' "$root/usr/share/mime/globs2" &&
        grep 'application/x-ventaro-project=de.tarnwald.ventaro.desktop' \
            "$root/usr/share/applications/mimeinfo.cache" &&
        inside ventaro-box-simulator --help
}

window_is_there() {
    DISPLAY=$display xwininfo -root -tree 2>/dev/null | grep '"Ventaro'
}

wait_for() { # COMMAND...: up to 30 s, while the program lives
    local try
    for try in {1..150}; do
        ! "$@" || return 0
        kill -0 "$program" || return 1
        sleep 0.2
    done
    return 1
}

# As an ordinary user; the display's abstract socket reaches into the system.
works_on_a_display() {
    mkdir -p "$root/home/user"
    echo '{"fileVersion": "7", "projectName": "Gehäusedeckel", "sensor 1": [[0, 4, 9, 7, 2]]}' >"$root/home/user/Deckel.vnt"
    chown -R 1000:1000 "$root/home/user"
    chroot --userspec=1000:1000 "$root" env -i HOME=/home/user PATH=/usr/bin:/bin LC_ALL=C.UTF-8 DISPLAY="$display" \
        timeout 90 ventaro /home/user/Deckel.vnt >"$root/tmp/output" 2>&1 &
    program=$!
    if wait_for window_is_there && sleep 2 && kill -0 "$program" &&
        DISPLAY=$display import -window root "$pictures/installed.png" && grep 'file version=7' "$root/tmp/output" &&
        ! grep 'no texts for' "$root/tmp/output"; then
        kill "$program"
        wait "$program" || true
        return 0
    fi
    cat "$root/tmp/output"
    return 1
}

leaves_nothing() {
    inside dpkg --purge ventaro && files | diff "$root/tmp/before" -
}

Xvfb "$display" -screen 0 1366x768x24 -dpi 96 -ac -nolisten tcp >/dev/null 2>&1 &
step "lintian" lintian --fail-on error "$package"
step "bare system" bare_system
step "dependencies" install_dependencies
step "installation" inside dpkg --install /tmp/ventaro.deb
step "file type" desktop_knows_it
step "program on a display" works_on_a_display
step "removal" leaves_nothing
echo "PASSED: $(basename "$package")"
