#!/bin/bash
# Runs clang-tidy and clazy over all sources. Slow (minutes), therefore not part of test.sh.
#
#   lint.sh [tidy|clazy]    only one of the two
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/steps.sh"
tools/install_packages.sh lint

tidy() { # after a build, which generates headers and resources
    build dev &&
        find app controller device kit model plots simulator tools view -name '*.cpp' -print0 |
        xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/dev --quiet --warnings-as-errors='*'
}

# The preset leaves out checks that find nothing here: a widget that announces its first state, properties for style
# sheets, which nobody watches, and values written through one QSettings of several that share their store.
clazy_all() {
    build clazy && ! grep -E 'warning: .*\[-Wclazy' build/log/clazy.txt
}

[ "${1:-tidy}" != tidy ] || step "tidy" tidy
[ "${1:-clazy}" != clazy ] || step "clazy" clazy_all
