# The Debian packages that the program needs, and what installs the missing ones. Sourced by run
# and check.

BUILD_PACKAGES=(cmake ninja-build g++ qt6-base-dev qt6-svg-dev fonts-dejavu-core)
CHECK_PACKAGES=(libgtest-dev libgmock-dev)

# Later Debian releases have other versions of these; there the default ones only report.
PINNED_LINTERS=(clang-format-14 clang-tidy-14)
OTHER_LINTERS=(clang-format clang-tidy)

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# as_root command...
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "To install packages, run this as root once: $*" >&2
        return 1
    fi
}

# install_missing package...
install_missing() {
    command -v dpkg-query >/dev/null || return 0
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} = 0 ] && return 0
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update -q &&
        as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -q --no-install-recommends "${missing[@]}"
}

install_linters() {
    is_installed "${PINNED_LINTERS[0]}" && is_installed "${PINNED_LINTERS[1]}" && return 0
    install_missing "${PINNED_LINTERS[@]}" || install_missing "${OTHER_LINTERS[@]}"
}
