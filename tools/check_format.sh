#!/bin/bash
# Fails if a source file is not as clang-format would write it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

find app benchmarks controller device kit model plots simulator tests tools view \
    \( -name '*.h' -o -name '*.cpp' \) -print0 | xargs -0 -r -n 16 -P "$(nproc)" clang-format --dry-run -Werror
