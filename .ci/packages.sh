# SPDX-License-Identifier: MIT
# Sourced by run.sh, test.sh and .ci/run: sees to the Debian packages that they need.

build_packages="g++ cmake ninja-build pkg-config libsqlcipher-dev libgumbo-dev libcli11-dev nlohmann-json3-dev
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-webengine-dev"
test_packages="libgtest-dev libbenchmark-dev python3"
check_packages="clang clang-format cppcheck"

# install_missing PACKAGE...: installs what is not there, as root or through sudo.
install_missing() {
    command -v dpkg-query >/dev/null || return 0 # another system: its owner knows what to do
    missing=""
    for package in "$@"; do
        case "$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null)" in
        *"ok installed") ;;
        *) missing="$missing $package" ;;
        esac
    done
    [ -n "$missing" ] || return 0
    if [ "$(id -u)" = 0 ]; then
        as_root=""
    elif command -v sudo >/dev/null; then
        as_root="sudo"
    else
        echo "These packages are missing and only root can install them:$missing" >&2
        exit 1
    fi
    echo "Installing$missing"
    export DEBIAN_FRONTEND=noninteractive
    $as_root apt-get update -q
    # shellcheck disable=SC2086 # a list of words
    $as_root apt-get install -y -q --no-install-recommends $missing
}
