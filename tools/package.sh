#!/bin/bash
# Builds the Debian package of Ventaro and prints where it is. Installs what it needs on Debian 12.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/steps.sh"

folder=$PWD/build/package/packages

tools/install_packages.sh package
rm -rf "$folder"
step "package build" build package
step "package" cpack --config build/package/CPackConfig.cmake -B "$folder"
rm -rf "$folder/_CPack_Packages"
ls "$folder"/*.deb
