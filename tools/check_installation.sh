#!/bin/bash
# Installs a build into a temporary folder and fails unless everything that a desktop needs is there, valid and fits
# together, and the installed program finds what lies beside it.
#
#   check_installation.sh BUILD_FOLDER
set -euo pipefail
build=$(cd "$1" && pwd)
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
share=$root/usr/share

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

key() { # of the desktop file
    sed -n "s/^$1=//p" "$share/applications/de.tarnwald.ventaro.desktop"
}

files_are_valid() {
    desktop-file-validate "$share"/applications/*.desktop
    appstreamcli validate --no-net "$share"/metainfo/*.xml
    xmllint --noout "$share"/mime/packages/ventaro.xml "$share"/icons/hicolor/scalable/*/*.svg
    gzip --test "$share"/man/man1/*.gz "$share"/doc/ventaro/changelog.gz
}

# The double click on a file: name -> type -> desktop file -> program, with an icon for each.
names_fit_together() {
    XDG_DATA_DIRS=$share update-mime-database "$share/mime"
    local type command
    type=$(key MimeType)
    grep -q "^[0-9]*:${type%;}:\*\.vnt$" "$share/mime/globs2" || fail "*.vnt is not of the type ${type%;}"
    command=$(key TryExec)
    [ -x "$root/usr/bin/$command" ] || fail "$command is not installed"
    [[ $(key Exec) == *" $command %f" ]] || fail "the menu does not start $command with a file"
    icons_exist apps "$(key Icon)"
    icons_exist mimetypes "$(tr / - <<<"${type%;}")"
}

icons_exist() {
    local size picture
    for size in 16 22 24 32 48 64 128 256 512; do
        picture=$share/icons/hicolor/${size}x$size/$1/$2.png
        [ "$(od -An -tu4 --endian=big -j16 -N8 "$picture" | xargs)" = "$size $size" ] || fail "$picture is no icon"
    done
    [ -s "$share/icons/hicolor/scalable/$1/$2.svg" ] || fail "no scalable icon $2"
}

# The program is started through its link and has to see the folder that it really lies in.
finds_its_translations() {
    mkdir -p "$root/config/Tarnwald"
    printf '[General]\nlanguage=en\n' >"$root/config/Tarnwald/Ventaro.conf"
    XDG_CONFIG_HOME=$root/config QT_QPA_PLATFORM=offscreen timeout 60 "$root/usr/bin/ventaro" 2>"$root/log" &
    local program=$! tries
    for tries in {1..300}; do
        ! grep -q "OK: translator installed" "$root/log" || break
        sleep 0.2
    done
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
    [ "$tries" -lt 300 ] || fail "the installed program does not find its translations: $(tail -n 5 "$root/log")"
    [ -x "$root/usr/lib/ventaro/winscp/winscp.com" ] || fail "the SCP tool is not beside the program"
}

DESTDIR=$root cmake --install "$build" --prefix /usr >/dev/null
files_are_valid
names_fit_together
finds_its_translations
"$root/usr/bin/ventaro-box-simulator" --help >/dev/null
