# Shared by run.sh and test.sh: run one step after the other with its output kept in build/log/.

cd "$(dirname "${BASH_SOURCE[0]}")/.."
mkdir -p build/log

# File names and texts are UTF-8 also where a bare machine has no locale.
[ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8

# step NAME COMMAND...: shows the end of the output and ends the script if the command fails.
step() {
    local name=$1 log started=$SECONDS
    shift
    log=build/log/${name// /-}.txt
    printf '%s … ' "$name"
    if ! "$@" >"$log" 2>&1; then
        echo "failed"
        tail -n 60 "$log" >&2
        echo "FAILED: $name (all of it in $log)" >&2
        exit 1
    fi
    echo "$((SECONDS - started)) s"
}

# build PRESET: configures and builds with all cores.
build() {
    cmake --preset "$1" && cmake --build --preset "$1" --parallel "$(nproc)"
}
