# Shared by ./run, ./test and .ci/run; sourced from the repository's root.

# Installs the packages of a list that the machine lacks.
install_packages() {
    local list=$1 missing=() package
    while read -r package; do
        [[ -z $package || $package == \#* ]] && continue
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done < "$list"
    ((${#missing[@]})) || return 0

    local as_root=()
    if ((EUID != 0)); then
        command -v sudo > /dev/null || { echo "These packages are missing, and neither root nor sudo is at hand: ${missing[*]}" >&2; return 1; }
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}" >&2
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" > /dev/null
}

# Configures and builds a preset. Prints nothing but errors when there is nothing to do.
build_preset() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if [[ ! -f build/$preset/build.ninja ]]; then
        cmake --preset "$preset" "$@" > "$log" || { cat "$log" >&2; rm -f "$log"; return 1; }
    fi
    rm -f "$log"
    cmake --build --preset "$preset" -- --quiet
}
