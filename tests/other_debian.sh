#!/bin/sh
# SPDX-License-Identifier: MIT
# Does on another Debian what the README tells a newcomer to do: makes a root of the suite by debootstrap, puts the
# sources there and runs ./run.sh and ./test.sh. By hand, as root; it takes 5 GB and an hour.
#   tests/other_debian.sh SUITE [FOLDER]      trixie, say; the root stays in FOLDER (build/other-debian/SUITE) and is
#                                             used again the next time
set -eu
cd "$(dirname "$0")/.."
suite=${1:?which suite: bookworm, trixie ...}
root=${2:-build/other-debian/$suite}
if [ "$(id -u)" != 0 ]; then
    echo "Only root can make another root." >&2
    exit 1
fi
. .ci/packages.sh
install_missing debootstrap

# From where this machine takes its own packages; without a word of it debootstrap knows where.
mirror=$(apt-get indextargets --format '$(REPO_URI) $(LABEL)' 'Created-By: Packages' 'Label: Debian' 2>/dev/null |
    cut -d' ' -f1 | head -n 1)
mkdir -p "$root"
root=$(cd "$root" && pwd)
if [ ! -f "$root/.made" ]; then
    # shellcheck disable=SC2086 # no word when there is no mirror
    debootstrap --variant=minbase "$suite" "$root" $mirror
    touch "$root/.made"
fi

mounted=""
leave() {
    for place in $mounted; do umount "$root$place"; done
}
trap leave EXIT
trap 'exit 1' INT TERM
for place in /proc /sys /dev /dev/pts /dev/shm; do
    mount --bind "$place" "$root$place"
    mounted="$place $mounted"
done
cp /etc/resolv.conf "$root/etc/resolv.conf"

rm -rf "$root/tarnwick"
mkdir "$root/tarnwick"
git ls-files -z --cached --others --exclude-standard | tar --null -T - -cf - | tar -xf - -C "$root/tarnwick"

# As on a machine of its own: nothing of this one's surroundings.
env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin chroot "$root" /bin/sh -c 'cd /tarnwick && ./run.sh && ./test.sh'
echo "$suite: run.sh and test.sh end well ($(cat "$root/etc/debian_version"))"
