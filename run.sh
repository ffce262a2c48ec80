#!/bin/bash
# Builds Ventaro, starts a simulated measuring box and the program connected to it. Installs what it needs on Debian 12.
# Without a display the program is driven off-screen through a recording that is left in demo-output/.
#
#   run.sh [PROJECT.vnt]
set -euo pipefail
caller=$PWD
source "$(dirname "${BASH_SOURCE[0]}")/tools/steps.sh"

address=127.0.0.1
port=2222
programs=build/release/bin

# Looks at the kernel's table, as a connection would show up in the simulator.
port_is_open() {
    cat /proc/net/tcp /proc/net/tcp6 2>/dev/null | grep -q ": [0-9A-F]*:$(printf %04X "$port") [0-9A-F]*:0000 0A "
}

start_simulator() {
    if port_is_open; then
        echo "Port $port is taken by another program (see: ss -ltnp). Please end that one first." >&2
        exit 1
    fi
    "$programs/ventaro-box-simulator" --address "$address" --port "$port" >build/log/simulator.txt 2>&1 &
    simulator=$!
    trap 'kill "$simulator" 2>/dev/null || true; wait "$simulator" 2>/dev/null || true' EXIT
    for _ in {1..50}; do
        ! port_is_open || return 0
        sleep 0.1
    done
    cat build/log/simulator.txt >&2
    echo "FAILED: the box simulator does not listen on $address:$port" >&2
    exit 1
}

tools/install_packages.sh run
step "release build" build release

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "No display: recording off-screen into demo-output/"
    QT_QPA_PLATFORM=offscreen timeout 180 "$programs/ventaro-demo" demo-output
    exit
fi

start_simulator
echo "Box simulator on $address:$port; Ventaro's messages go to build/log/ventaro.txt"
export VENTARO_DEVICE_ADDRESS=$address VENTARO_AUTOCONNECT=1
# Several debug lines per sample would fill the disk within a day.
export QT_LOGGING_RULES=${QT_LOGGING_RULES-ventaro.*.debug=false}
program=$PWD/$programs/ventaro log=$PWD/build/log/ventaro.txt
cd "$caller" # where a project named on the command line is looked for
"$program" "$@" 2>"$log"
