# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
#
# What ./run, ./check and ./benchmark share: progress in one line, and configuring a build only when it is due.
# Sourced, never run, under `set -o pipefail`. Sets `root`, the folder of the checkout. The operator of ./run reads
# these texts, so they are Spanish.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

trap 'exit 130' INT

die() {
    printf '%s\n' "$@" >&2
    exit 1
}

# progress TEXT DONE TOTAL: one line that is written over on a terminal; a line for each tenth elsewhere.
progress_shown=
progress() {
    local text=$1 done=$2 total=$3
    if [[ -t 1 ]]; then
        printf '\r%s %d de %d\e[K' "$text" "$done" "$total"
        progress_shown=line
    elif ((total > 0)) && [[ $progress_shown != "$((done * 10 / total))" ]]; then
        progress_shown=$((done * 10 / total))
        printf '%s %d de %d\n' "$text" "$done" "$total"
    fi
}
progress_end() {
    if [[ $progress_shown == line ]]; then printf '\n'; fi
    progress_shown=
}

# configure PRESET: a preset that is configured already is left alone, since ninja itself notices changed CMake files;
# it does not notice changed presets, nor that the checkout was moved or copied.
configure() {
    local preset=$1 folder=$root/build/$1
    local mark
    for mark in "$folder" "$folder/.ninja_log"; do # the second is left by another user who built here
        if [[ -e $mark && ! -w $mark ]]; then
            die 'La compilación anterior es de otro usuario. Bórrela y vuelva a intentarlo:' \
                "  sudo rm -rf $(printf %q "$folder")"
        fi
    done
    if [[ -f $folder/CMakeCache.txt ]] &&
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        rm -rf "$folder"
    fi
    if [[ $folder/build.ninja -nt $root/CMakePresets.json ]]; then return 0; fi
    mkdir -p "$folder"
    (cd "$root" && cmake --preset "$preset" >"$folder/configure.log" 2>&1) || {
        cat "$folder/configure.log" >&2
        return 1
    }
}

# build_quietly FOLDER TARGET...: builds with one line of progress; what the compiler says shows when it fails.
ninja_step='^([0-9]+) ([0-9]+) [A-Z]'
build_quietly() {
    local folder=$1 log=$1/build.log line
    shift
    if NINJA_STATUS='%f %t ' ninja -C "$folder" "$@" 2>&1 | tee "$log" | {
        while IFS= read -r line; do
            if [[ $line =~ $ninja_step && $line != *Re-checking* ]]; then
                progress 'Compilando:' "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
            fi
        done
        progress_end
    }; then return 0; fi
    grep -vE "$ninja_step" "$log" >&2
    return 1
}
