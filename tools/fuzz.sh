#!/bin/bash
# Feeds the readers of foreign bytes with inputs that a fuzzer makes up. Needs clang and its runtime libraries.
#
#   fuzz.sh MINUTES [DRIVER...]     each driver that long, as many at a time as there are cores; "10s" means seconds
#
# What a driver learns is kept in build/fuzz/corpus/; an input that it fails on is left in build/fuzz/found/, and
# belongs into tests/fuzz/corpus/ once the fault is mended. Ends with 3 if there is no fuzzer to build with.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/steps.sh"

[[ ${1:-} =~ ^[1-9][0-9]*s?$ ]] || {
    echo "usage: $0 MINUTES|SECONDSs [DRIVER...]" >&2
    exit 2
}
case $1 in *s) seconds=${1%s} ;; *) seconds=$(($1 * 60)) ;; esac
shift

echo 'extern "C" int LLVMFuzzerTestOneInput(const unsigned char *, unsigned long) { return 0; }' |
    clang++ -x c++ -fsanitize=fuzzer,address,undefined -o /dev/null - 2>/dev/null || {
    echo "no clang++ with a fuzzer"
    exit 3
}
build fuzz >build/log/fuzzers.txt 2>&1 || {
    tail -n 60 build/log/fuzzers.txt
    exit 1
}

out=$PWD/build/fuzz
mkdir -p "$out/found"
# fuzz_one DRIVER: quiet unless it fails.
fuzz_one() {
    local driver=$1 log=$out/$1.log dictionary=()
    mkdir -p "$out/corpus/$driver"
    [ ! -f "tests/fuzz/$driver.dict" ] || dictionary=("-dict=tests/fuzz/$driver.dict")
    QT_QPA_PLATFORM=offscreen UBSAN_OPTIONS=print_stacktrace=1 \
        LSAN_OPTIONS="suppressions=$PWD/tests/fuzz/lsan.supp:print_suppressions=0" \
        "$out/fuzz/fuzz_$driver" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="$out/found/$driver-" "${dictionary[@]}" \
        "$out/corpus/$driver" "tests/fuzz/corpus/$driver" >"$log" 2>&1 || {
        tail -n 40 "$log"
        echo "FAILED: $driver (all of it in $log)"
        return 1
    }
    echo "$driver: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs"
}
export -f fuzz_one
export out seconds

[ $# -gt 0 ] || set -- $(cd "$out/fuzz" && ls | sed -n 's/^fuzz_//p')
printf '%s\n' "$@" | xargs -P "$(nproc)" -I{} bash -c 'fuzz_one {}'
