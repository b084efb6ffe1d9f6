# Sourced by scripts of this folder that try something as somebody who has nothing but Debian 12; from the repository's root. Wants root
# and Debian's packages.

# enter_bare_debian ROOT ARGUMENT...: starts the script again with these arguments and mounts of its own, and goes on there, with `root`
# set. Where ROOT is empty, debootstrap makes one that is removed in the end. Nothing is mounted outside of the mounts of that process,
# which go when it ends, so that what is removed is the root alone.
enter_bare_debian() {
    root=${PROUPSELLS_INSIDE_ROOT:-$1}
    shift
    if [[ -z ${PROUPSELLS_INSIDE_ROOT:-} ]]; then
        if [[ -z $root ]]; then
            root=$(mktemp -d)
            trap 'rm -rf --one-file-system "$root"' EXIT
            chmod 755 "$root"
            debootstrap --variant=minbase bookworm "$root" > "$root.log" || { tail -20 "$root.log" >&2; exit 1; }
            rm "$root.log"
        fi
        local status=0
        PROUPSELLS_INSIDE_ROOT=$(realpath "$root") unshare --mount "Tools/$(basename "$0")" "$@" || status=$?
        exit "$status"
    fi
    mount -t tmpfs none "$root/mnt"
    mount --rbind /proc "$root/proc"
    mount --rbind /dev "$root/dev"
    inside apt-get update -qq
}

# inside COMMAND...: there, with an environment of nothing.
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/nonexistent DEBIAN_FRONTEND=noninteractive "$@"; }

# install_inside NAME...: with what they depend on, and nothing that they only recommend.
install_inside() {
    inside apt-get install -y -qq --no-install-recommends "$@" > "$root/mnt/log" 2>&1 || { tail -20 "$root/mnt/log" >&2; return 1; }
}
