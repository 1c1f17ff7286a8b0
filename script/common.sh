# shellcheck shell=bash
# What the scripts share. Sourced, from the project's root folder.

# help_where_asked SCRIPT ARGUMENT...: where the only argument is -h or --help, prints the comment that the script
# begins with, and ends the script.
help_where_asked() {
    local script=$1
    shift
    case "$*" in
    -h | --help)
        sed -n '1d; /^#/!q; s/^# \{0,1\}//p' "$script"
        exit
        ;;
    esac
}

# The packages of script/packages.txt that are for one of the given users and are not installed.
missing_packages() {
    local user name
    while read -r user name; do
        case " $* " in
        *" $user "*) [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || echo "$name" ;;
        esac
    done < <(grep -v '^#' script/packages.txt)
}

# Installs the packages that the given users still miss, and says which.
install_packages() {
    local missing as_root=()
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Not installed: ${missing[*]}" >&2
            echo "This needs root or sudo. Have somebody run: apt-get install ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}" >&2
    "${as_root[@]}" apt-get update -q >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}" >&2
}

# is_configured FOLDER FILE...: whether a build folder was configured after the files changed that say how.
is_configured() {
    local folder=$1 file
    shift
    for file in "$@"; do
        [ "$folder/build.ninja" -nt "$file" ] || return 1
    done
}

# build PRESET TARGET...: configures where that is due and builds, with progress on standard error; silent where nothing
# is to do.
build() {
    local preset=$1
    shift
    is_configured "build/$preset" CMakePresets.json || cmake --fresh --preset "$preset" >&2
    case $(ninja -C "build/$preset" -n "$@") in
    *"no work to do"*) ;;
    *) ninja -C "build/$preset" "$@" >&2 ;;
    esac
}

# prove_tests PRESET: builds all and runs all tests. On standard output, ctest's summary on one line, which is the
# stage's figure.
prove_tests() {
    build "$1" all
    ctest --preset "$1" --no-tests=error --progress --output-log "build/$1/ctest.log" >&2
    sed -n 's/^\(.*% tests passed, .*\)$/\1/p' "build/$1/ctest.log"
}

# expect_caught FOLDER SOURCE [COMMAND...]: builds a program with a mistake as the build folder's are built, runs it
# behind the command, and expects it to end badly and to say what the source's first line has behind "Told: ".
expect_caught() {
    local folder=$1 source=$2 build_flags told
    shift 2
    read -ra build_flags < <(sed -n 's/^CMAKE_CXX_FLAGS:[A-Z]*=//p' "$folder/CMakeCache.txt")
    told=$(sed -n '1s|^// Told: ||p' "$source")
    c++ -std=c++20 -g -Itests "${build_flags[@]}" "$source" -o "$folder/planted"
    if "$@" "$folder/planted" 2>"$folder/planted.log"; then
        echo "$source: found that nothing happened, expected it to be caught" >&2
        return 1
    fi
    if [ -z "$told" ] || ! grep -F "$told" "$folder/planted.log" >&2; then
        echo "$source: found what $folder/planted.log says, expected among it: $told" >&2
        return 1
    fi
}
