#!/bin/bash
# Renders the pictures of resources/icons/ and resources/flags/ from the drawings in resources/svg/, each in two sizes (name.png and
# name@2x.png). The result is committed, so this runs only when a drawing changes. Needs rsvg-convert and Roboto.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

drawings=resources/svg
pictures=resources/icons

# render DRAWING NAME WIDTH [COLOUR]
render() {
    local colour_sheet
    colour_sheet=$(mktemp)
    echo "${4:+path { fill: $4 \}}" >"$colour_sheet"
    rsvg-convert --width "$3" --keep-aspect-ratio --stylesheet "$colour_sheet" "$1" -o "$pictures/$2.png"
    rsvg-convert --width "$(($3 * 2))" --keep-aspect-ratio --stylesheet "$colour_sheet" "$1" -o "$pictures/$2@2x.png"
    rm -f "$colour_sheet"
}

# Icons are black on transparent; whoever shows one tints it.
for drawing in "$drawings"/icons/*.svg; do
    render "$drawing" "$(basename "$drawing" .svg)" 48 "#000000"
done

# The arrows of spin boxes and scroll bars are shown by the style sheet, which cannot tint.
for direction in up down; do
    render "$drawings/arrows/$direction.svg" "$direction" 30 "#555555"
    render "$drawings/arrows/$direction.svg" "$direction-disabled" 30 "#CCCCCC"
done
for direction in left right; do
    render "$drawings/arrows/$direction.svg" "$direction" 30 "#555555"
done

render "$drawings/ventaro.svg" ventaro 128
render "$drawings/logo-mini.svg" Ventaro-logo-mini 232
render "$drawings/splash.svg" Splashscreen-2 1200

# The flags of the languages, shipped beside their translations.
pictures=resources/flags
for flag in "$drawings"/flags/*.svg; do
    render "$flag" "$(basename "$flag" .svg)" 36
done

# What a desktop shows for the program and its files. Small sizes have separate drawings with fewer, wider lines.
desktop=packaging/icons/hicolor
# for_desktop DRAWING KIND NAME
for_desktop() {
    local size drawing
    for size in 16 22 24 32 48 64 128 256 512; do
        drawing=$drawings/$1.svg
        [ "$size" -gt 24 ] || drawing=$drawings/$1-small.svg
        mkdir -p "$desktop/${size}x$size/$2"
        rsvg-convert --width "$size" --height "$size" "$drawing" -o "$desktop/${size}x$size/$2/$3.png"
    done
    mkdir -p "$desktop/scalable/$2"
    cp "$drawings/$1.svg" "$desktop/scalable/$2/$3.svg"
}
for_desktop ventaro apps ventaro
for_desktop project-file mimetypes application-x-ventaro-project

# The same in the one file that Windows wants. Needs ImageMagick's convert.
# for_windows KIND DRAWN NAME
for_windows() {
    local pictures=() size
    for size in 16 24 32 48 64 256; do
        pictures+=("$desktop/${size}x$size/$1/$2.png")
    done
    convert "${pictures[@]}" "packaging/windows/$3.ico"
}
for_windows apps ventaro ventaro
for_windows mimetypes application-x-ventaro-project project
