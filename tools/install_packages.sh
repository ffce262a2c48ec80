#!/bin/bash
# Installs the Debian packages that are missing; quick and silent when all are there. Needs root or sudo only then.
#
#   install_packages.sh run     to build and run the program
#   install_packages.sh test    the same and the checks of test.sh
#   install_packages.sh package         to build a Debian package
#   install_packages.sh package-test    the same and what tries it in a bare system
#   install_packages.sh lint    the same and the linters of tools/lint.sh
set -euo pipefail

packages=(cmake ninja-build g++ python3 qtbase5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n
    openssh-client sshpass)
packages+=(qt5-image-formats-plugins) # to save pictures as TIFF
case ${1:-test} in
run) [ -z "${WAYLAND_DISPLAY:-}" ] || [ -n "${DISPLAY:-}" ] || packages+=(qtwayland5) ;;
test)
    packages+=(clang-format universal-ctags)
    packages+=(xvfb openbox xdotool x11-utils imagemagick)
    packages+=(libnss-wrapper openssh-server appstream desktop-file-utils libxml2-utils shared-mime-info)
    ;;
package) packages+=(dpkg-dev file) ;;
package-test) packages+=(dpkg-dev file lintian mmdebstrap x11-apps x11-utils xvfb imagemagick) ;;
lint) packages+=(clang-format clang-tidy clazy) ;;
*) echo "usage: $0 [run|test|package|package-test|lint]" >&2 && exit 2 ;;
esac

missing=()
for package in "${packages[@]}"; do
    state=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$state" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
        echo "Please install as root: ${missing[*]}" >&2
        exit 1
    }
    as_root=(sudo)
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
quiet_apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0 "$@" >>"$log" 2>&1
}
echo "Installing ${missing[*]}"
# The list of packages may be out of date or absent; a failed update alone need not stop the installation.
quiet_apt update || echo "apt-get update failed" >>"$log"
# The tests start their own SSH server; installing it for them must not start a service.
case " ${missing[*]} " in *" openssh-server "*)
    "${as_root[@]}" mkdir -p /etc/ssh && "${as_root[@]}" touch /etc/ssh/sshd_not_to_be_run
    ;;
esac
quiet_apt install --yes --no-install-recommends "${missing[@]}" || {
    tail -n 40 "$log" >&2
    echo "FAILED: installing ${missing[*]}" >&2
    exit 1
}
