#!/bin/bash
# Everything that has to be right before a change goes in: checks, a build with warnings as errors and sanitizers, a
# release build, all tests. Installs what it needs on Debian 12. Ends with CTest's summary.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/tools/steps.sh"

tools/install_packages.sh test
step "layers" python3 tools/check_layers.py
step "classes" python3 tools/check_classes.py
step "format" tools/check_format.sh
step "translations" python3 tools/check_translations.py
step "release build" build release
step "build with sanitizers" build dev

# Where there is a clang with a fuzzer; elsewhere the tests replay what was found before.
short_fuzzing() { tools/fuzz.sh 10s || [ $? -eq 3 ]; }
step "fuzzing" short_fuzzing

export QT_QPA_PLATFORM=offscreen
export UBSAN_OPTIONS=print_stacktrace=1
export VENTARO_PROGRAMS=$PWD/build/release/bin # driven in a real window
exec ctest --preset dev --parallel "$(nproc)" --no-tests=error
