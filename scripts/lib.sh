# shellcheck shell=bash
# Common functions of the scripts. Source it right after "set -euo pipefail".

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly root
cd "$root" || exit

# Debian's interpreter, because python3-gi is installed for it.
# shellcheck disable=SC2034 # read by the scripts that source this file
readonly python=/usr/bin/python3

die() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# packages_of GROUP…: the packages of those groups, one per line.
packages_of() {
    awk -v groups=" $* " '!/^#/ && index(groups, " " $1 " ") { print $2 }' scripts/packages
}

# missing_of GROUP…: those of them that are not installed.
missing_of() {
    local wanted
    mapfile -t wanted < <(packages_of "$@")
    comm -23 <(printf '%s\n' "${wanted[@]}" | sort -u) \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null |
            sed -n 's/^installed //p' | sort -u)
}

# install GROUP…: installs the missing packages of those groups; quick if there are none.
install() {
    local missing as_root=()
    command -v dpkg-query >/dev/null || die "needs a Debian system, or install by hand: $(packages_of "$@" | tr '\n' ' ')"
    mapfile -t missing < <(missing_of "$@")
    ((${#missing[@]})) || return 0
    if ((EUID != 0)); then
        command -v sudo >/dev/null || die "cannot install as this user; please install: ${missing[*]}"
        as_root=(sudo)
    fi
    printf 'Installing %s\n' "${missing[*]}" >&2
    quietly "$log_dir/install.log" "${as_root[@]}" apt-get -q update
    quietly "$log_dir/install.log" "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q install -y --no-install-recommends "${missing[@]}"
}

# quietly LOG COMMAND…: runs the command with output to the log, and shows the log only on failure.
log_dir=$root/build/logs
quietly() {
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    if ! "$@" >"$log" 2>&1; then
        cat "$log" >&2
        die "failed: $*"
    fi
}

# Tests mostly wait for windows, so more run at once than there are processors.
export CTEST_PARALLEL_LEVEL=${CTEST_PARALLEL_LEVEL:-$((3 * $(nproc)))}

# build_program: the programs as users run them, in build/release/bin.
build_program() {
    quietly "$log_dir/configure-release.log" cmake --preset release
    quietly "$log_dir/build-release.log" cmake --build --preset release --target Loan quend-compare
}
