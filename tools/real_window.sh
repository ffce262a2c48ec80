#!/bin/bash
# Drives the program in a real window with keys and pointer, under Xvfb with a window manager. Shows what off-screen tests
# cannot: fonts of the style sheet, the pixel ratio of the screen, what a window manager does.
#
#   real_window.sh [--scale 1.5] [--size 1280x800] [--language de|en] [--programs DIR] [--output DIR] SCRIPT [ARGUMENT...]
#
# The size of the screen is in logical pixels: at scale 1.5 it has 1.5 times as many dots in each direction. The
# programs are taken from build/release/bin unless another folder is named. The output folder (demo-output/window)
# receives the pictures and the program's messages (ventaro.txt). Ends with 77 if a tool is not installed.
#
# SCRIPT is read by bash and uses these functions; any of them that fails ends the run with 1:
#   start [FILE]               starts the program, maximised, with the box simulator's address; waits for its window
#   key KEY...                 presses and releases keys, such as F5 or ctrl+shift+s
#   type TEXT                  types a text
#   click X Y [BUTTON]         clicks at logical coordinates of the active window
#   wait_main PATTERN          waits until the main window is active and its title matches an extended regular expression
#   wait_dialog PATTERN        waits until another window of the program is active and its title matches
#   wait_log TEXT              waits for a text in the program's messages since the last wait_log or start
#   wait_for COMMAND...        waits until a command succeeds
#   picture NAME               saves the active window's content as NAME.png, once it no longer changes
#   wait_end                   waits until the program has ended; fails if it did not end with 0
# Variables: output (the folder of pictures), scale, address (of the simulator), log (the file of messages), log_lines
# (how many of its lines wait_log has passed), and "$@", the arguments.
set -euo pipefail

usage() {
    sed -n 's/^#   \(real_window\.sh .*\)/usage: \1/p' "${BASH_SOURCE[0]}" >&2
    exit 2
}

scale=1 size=1280x800 language=de programs='' output=demo-output/window
while [[ ${1:-} == --* ]]; do
    [ $# -ge 2 ] || usage
    case $1 in
    --scale) scale=$2 ;;
    --size) size=$2 ;;
    --language) language=$2 ;;
    --programs) programs=$2 ;;
    --output) output=$2 ;;
    *) usage ;;
    esac
    shift 2
done
[ $# -ge 1 ] && [[ $size =~ ^[0-9]+x[0-9]+$ ]] && [[ $scale =~ ^[0-9.]+$ ]] || usage
script=$(realpath "$1")
shift
programs=$(realpath "${programs:-$(dirname "${BASH_SOURCE[0]}")/../build/release/bin}")
mkdir -p "$output"
output=$(realpath "$output")
[ -x "$programs/ventaro" ] || {
    echo "No program in $programs" >&2
    exit 1
}
for tool in Xvfb openbox xdotool xprop convert import; do
    command -v $tool >/dev/null || {
        echo "$tool is not installed (tools/install_packages.sh test)"
        exit 77
    }
done

patience=30 # seconds until something that has to happen counts as failed
work=$(mktemp -d)
log=$output/ventaro.txt
processes=()
program='' # its process while it runs
unset DISPLAY # until the screen is there; never the user's own

fail() {
    echo "FAILED: $*" >&2
    [ -z "${DISPLAY:-}" ] || import -silent -window root "$output/failed.png" 2>/dev/null || true
    exit 1
}

# Runs a command in the background that ends with this script, however that ends.
background() {
    local messages=$1
    shift
    setpriv --pdeathsig KILL "$@" >>"$messages" 2>&1 &
    processes+=($!)
}

end_all() {
    local i running
    running=" $(jobs -pr | tr '\n' ' ') " # the number of a process that has ended may be somebody else's
    for ((i = ${#processes[@]} - 1; i >= 0; --i)); do
        [[ $running == *" ${processes[i]} "* ]] || continue
        kill "${processes[i]}" 2>/dev/null || true
        wait "${processes[i]}" 2>/dev/null || true
    done
    rm -rf "$work"
}
trap end_all EXIT
trap 'exit 1' HUP INT TERM

wait_for() {
    local until=$((SECONDS + patience))
    while ! "$@" >/dev/null 2>&1; do
        [ -z "$program" ] || [ "$1" = program_ended ] || kill -0 "$program" 2>/dev/null || {
            fail "the program ended while waiting for: $*"
        }
        [ $SECONDS -lt $until ] || fail "waited $patience s for: $*"
        sleep 0.05
    done
}

# --- What the program finds around itself ---

dots() { # logical pixels of the screen to dots
    awk -v pixels="$1" -v scale="$scale" 'BEGIN { printf "%d", pixels * scale + 0.5 }'
}

start_screen() {
    # A reset, at the end of what happens to be the only client, would break connections that are being made.
    background "$work/xvfb.txt" Xvfb -noreset -displayfd 1 -screen 0 "$(dots "${size%x*}")x$(dots "${size#*x}")x24" \
        -dpi 96 -nolisten tcp
    wait_for display_number
    DISPLAY=:$(display_number)
    export DISPLAY
    background "$work/openbox.txt" openbox --config-file /etc/xdg/openbox/rc.xml
    xdotool mousemove 0 0 # or widgets in the middle look hovered over
    wait_for manages_windows
}

# Xvfb writes about each number that is taken before it writes its own, which is complete with the line's end.
display_number() {
    local line
    while read -r line; do
        [[ ! $line =~ ^[0-9]+$ ]] || {
            echo "$line"
            return 0
        }
    done <"$work/xvfb.txt"
    return 1
}

manages_windows() {
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}

# The program knows one port only, so runs at the same time need different addresses.
start_simulator() {
    for address in 127.26.4.{1..50}; do
        : >"$work/simulator.txt"
        background "$work/simulator.txt" "$programs/ventaro-box-simulator" --address "$address" --port 2222 --seed 1
        wait_for grep -q 'listen' "$work/simulator.txt"
        ! grep -q 'cannot listen' "$work/simulator.txt" || continue
        return 0
    done
    fail "the box simulator finds no free address: $(cat "$work/simulator.txt")"
}

prepare_home() {
    mkdir -p "$work/home" "$work/runtime" "$work/config/Tarnwald"
    chmod 700 "$work/runtime"
    printf '[General]\nmainwindow_pos=@Point(0 0)\nmainwindow_maximized=true\nlanguage=%s\n' "$language" \
        >"$work/config/Tarnwald/Ventaro.conf"
}

# --- For the script ---

start() {
    local lines
    lines=$(wc -l <"$log")
    background "$log" env -u WAYLAND_DISPLAY -u XDG_CURRENT_DESKTOP -u DESKTOP_SESSION -u QT_STYLE_OVERRIDE \
        -u QT_QPA_PLATFORMTHEME HOME="$work/home" XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/home/data" \
        XDG_CACHE_HOME="$work/home/cache" XDG_RUNTIME_DIR="$work/runtime" QT_QPA_PLATFORM=xcb \
        QT_SCALE_FACTOR="$scale" QT_LOGGING_RULES='ventaro.*.debug=true' VENTARO_DEVICE_ADDRESS="$address" \
        "$programs/ventaro" "$@"
    program=${processes[-1]}
    log_lines=$lines
    main_window=''
    wait_for find_main_window
    wait_main ''
}

find_main_window() { # not the splash screen's
    local window
    for window in $(xprop -root -notype _NET_CLIENT_LIST | grep -o '0x[0-9a-f]*'); do
        ! xprop -id "$window" _NET_WM_WINDOW_TYPE | grep -q SPLASH || continue
        main_window=$((window)) # decimal, as xdotool writes it
        return 0
    done
    return 1
}

key() {
    xdotool key --clearmodifiers "$@"
}

type() {
    xdotool type --clearmodifiers --delay 5 "$1"
}

click() {
    xdotool mousemove --window "$(xdotool getactivewindow)" "$(dots "$1")" "$(dots "$2")" click "${3:-1}"
}

main_is_active() {
    [ "$(xdotool getactivewindow)" = "$main_window" ] && [[ $(xdotool getwindowname "$main_window") =~ $1 ]]
}

wait_main() {
    wait_for main_is_active "$1"
}

dialog_is_active() {
    local window
    window=$(xdotool getactivewindow) && [ "$window" != "$main_window" ] \
        && [[ $(xdotool getwindowname "$window") =~ $1 ]]
}

wait_dialog() {
    wait_for dialog_is_active "$1"
}

log_has() {
    tail -n "+$((log_lines + 1))" "$log" | grep -qF -- "$1"
}

wait_log() {
    wait_for log_has "$1"
    log_lines=$(wc -l <"$log")
}

picture() {
    local file=$output/$1.png before='' now until=$((SECONDS + patience))
    while true; do
        import -silent -window "$(xdotool getactivewindow)" "$file"
        now=$(convert "$file" rgb:- | md5sum)
        [ "$now" != "$before" ] || return 0
        [ $SECONDS -lt $until ] || fail "the picture $1 never stops changing"
        before=$now
        sleep 0.1
    done
}

wait_end() {
    local status=0
    wait_for program_ended
    wait "$program" || status=$?
    program=''
    [ $status = 0 ] || fail "the program ended with $status: $(tail -n 3 "$log")"
}

program_ended() {
    ! kill -0 "$program"
}

start_screen
start_simulator
prepare_home
: >"$log"
trap 'fail "$BASH_COMMAND (line $LINENO of $script)"' ERR
source "$script"
