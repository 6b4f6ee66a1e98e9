# shellcheck shell=bash
# A minimal Debian system in a temporary folder, for scripts that test the program on a bare system. Source
# it after scripts/lib.sh, as root. The system is removed when the script ends.

((EUID == 0)) || die "must be run as root, to make a separate system"
bare=$(mktemp -d /var/tmp/quend-loan-bare.XXXXXX)
# Nothing of the host is mounted there, so that the removal cannot delete anything else.
trap 'rm -rf --one-file-system "$bare"' EXIT

# inside COMMAND…: runs it there, in separate process and mount namespaces that always end with it.
inside() {
    unshare --mount --pid --fork --kill-child --mount-proc="$bare/proc" \
        env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
        chroot "$bare" "$@"
}

apt() {
    # shellcheck disable=SC2154 # from scripts/lib.sh
    quietly "$log_dir/bare-apt.log" inside apt-get -q -y --no-install-recommends "$@"
}

# make_system RELEASE: from the same mirror as this system.
make_system() {
    local mirror here
    here=$(. /etc/os-release && printf '%s' "$VERSION_CODENAME")
    chmod 755 "$bare" # it is also the root folder of ordinary users
    # shellcheck disable=SC2016 # apt-get expands the names
    mirror=$(apt-get indextargets --format '$(SITE) $(RELEASE)' 'Created-By: Packages' |
        awk -v here="$here" '$2 == here && !found++ { print $1 }')
    quietly "$log_dir/bare-system.log" debootstrap --variant=minbase "$1" "$bare" "$mirror"
    apt-config dump | grep -E '^Acquire::.*Proxy' >"$bare/etc/apt/apt.conf.d/90outer" || true
    cp /etc/hosts /etc/resolv.conf "$bare/etc/"
    printf '#!/bin/sh\nexit 101\n' >"$bare/usr/sbin/policy-rc.d" # prevents services from starting
    chmod +x "$bare/usr/sbin/policy-rc.d"
    apt update
}
