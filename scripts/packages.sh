# The Debian packages that Quadrel needs, and the installing of those that are missing.
# To be sourced.

build_packages=(cmake ninja-build g++ qt6-base-dev libcurl4-openssl-dev zlib1g-dev)
# Up to Debian 12 the toolkit's plugin for SVG lies in its library's package.
svg_plugin=qt6-svg-plugins
if grep -qsxF VERSION_CODENAME=bookworm /etc/os-release; then
    svg_plugin=libqt6svg6
fi
run_packages=("$svg_plugin" fonts-liberation fonts-dejavu-core qt6-wayland ca-certificates)
test_packages=(libgtest-dev xvfb xdotool openbox imagemagick)
package_packages=(debhelper dpkg-dev fakeroot lintian)

missing_packages() {
    local installed package
    # It fails, too, when it does not know one of them.
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null) || true
    for package in "$@"; do
        grep -qxF "installed $package" <<<"$installed" || echo "$package"
    done
}

install_packages() {
    local as_root=(env DEBIAN_FRONTEND=noninteractive)
    if ((EUID != 0)); then
        command -v sudo >/dev/null || return 1
        as_root=(sudo "${as_root[@]}")
    fi
    "${as_root[@]}" apt-get -qq update &&
        "${as_root[@]}" apt-get -qq install -y --no-install-recommends "$@" >/dev/null
}

# Ends the script when a package is missing and cannot be installed.
install_missing() {
    if ! command -v dpkg-query >/dev/null; then
        echo "This is no Debian machine. Quadrel expects what Debian calls: $*"
        return
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    if ((${#missing[@]} == 0)); then
        return
    fi
    echo "Missing packages: ${missing[*]}"
    echo "Installing them; this can take some minutes"
    if ! install_packages "${missing[@]}"; then
        echo "They could not be installed. Who has the right to can do it: apt-get install ${missing[*]}" >&2
        exit 1
    fi
}
