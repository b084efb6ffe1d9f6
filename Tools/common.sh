# Shared by ./run, ./test and .ci/run; sourced from the repository's root.

# Installs the packages of the lists that the machine lacks.
install_packages() {
    local wanted missing
    mapfile -t wanted < <(grep -hv -e '^#' -e '^$' "$@")
    mapfile -t missing < <(printf '%s\n' "${wanted[@]}" |
        grep -vxF -f <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${wanted[@]}" 2> /dev/null | sed -n 's/ installed$//p'))
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

# is_configured PRESET [NAME=VALUE...]: whether the preset's folder is, since the presets last changed and with these options.
is_configured() {
    local folder=build/$1 option
    shift
    [[ -f $folder/CMakeCache.txt && $folder/build.ninja -nt CMakePresets.json ]] || return 1
    for option in "$@"; do
        grep -qE "^${option%%=*}:[A-Z]+=${option#*=}$" "$folder/CMakeCache.txt" || return 1
    done
}

# configure_preset PRESET [NAME=VALUE...]: where that is due. Prints nothing but errors. A changed CMake file is the build's own affair.
configure_preset() {
    local preset=$1 log status=0
    is_configured "$@" && return 0
    shift
    log=$(mktemp)
    cmake --preset "$preset" "${@/#/-D}" > "$log" 2>&1 || status=$?
    ((status == 0)) || cat "$log" >&2
    rm -f "$log"
    return "$status"
}

# build_preset PRESET [TARGET...]: everything where no target is named. What it has to say goes to standard error.
build_preset() {
    local preset=$1
    shift
    cmake --build --preset "$preset" ${1:+--target "$@"} -- --quiet >&2
}

# keep_busy: keeps every processor busy twice over until the shell that called it ends, so that a test that waits for luck shows it.
keep_busy() {
    local program=$$
    for ((i = 0; i < 2 * $(nproc); ++i)); do
        (while kill -0 "$program" 2> /dev/null; do for ((n = 0; n < 100000; ++n)); do :; done; done) > /dev/null 2>&1 &
    done
}
