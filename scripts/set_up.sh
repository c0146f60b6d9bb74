# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What ./run and ./test share: telling what is being done, installing packages, building.
# To be sourced, with the repository's root as the working folder and `set -euo pipefail` in force.

logs=build/logs

# How much of a log is shown when its step fails; the file has the rest.
shown_on_failure=60

say() { printf '%s\n' "$*"; }

# step LOG TEXT COMMAND...: one line for the step, its output in build/logs/LOG.log.
step() {
    local log=$logs/$1.log text=$2 began=$SECONDS
    shift 2
    mkdir -p "$logs"
    printf '%s ... ' "$text"
    if "$@" >"$log" 2>&1 </dev/null; then
        say "done ($((SECONDS - began)) s)"
        return 0
    fi
    say "FAILED ($((SECONDS - began)) s)"
    say "The last lines of $log:"
    tail -n "$shown_on_failure" "$log" | sed 's/^/    /'
    return 1
}

# packages_of SECTION...: the names in these sections of packages.txt.
packages_of() {
    awk -v wanted=" $* " '
        /^# (build|run|test|desktops|bench):/ { section = substr($2, 1, length($2) - 1) }
        /^[^#[:space:]]/ { if (index(wanted, " " section " ")) print $1 }' packages.txt
}

# missing_packages SECTION...: those of them that are not installed.
missing_packages() {
    local installed
    installed=$(dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' | awk '$1 == "ii" { print $2 }')
    packages_of "$@" | grep -vxF -f <(printf '%s\n' "$installed") || true
}

# install_packages SECTION...: installs what is missing, and calls no package manager otherwise.
install_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        say "This is not a Debian system: what packages.txt names must be installed already."
        return 0
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    local as_root=()
    if ((EUID != 0)); then
        # With a terminal sudo may ask for the password, without one it must not need any.
        if command -v sudo >/dev/null && { [[ -t 0 ]] || sudo -n true 2>/dev/null; }; then
            as_root=(sudo)
            sudo -v || true # Asks now: later its question would end up in a log.
        else
            say "${#missing[@]} packages are missing, and installing them needs root. Run as root:"
            say
            say "  apt-get update && apt-get install -y --no-install-recommends ${missing[*]}"
            say
            say "and then this command again."
            return 1
        fi
    fi
    as_root+=(env DEBIAN_FRONTEND=noninteractive)
    local patience=(-o DPkg::Lock::Timeout=300)
    step apt-update "Reading the package lists" \
        "${as_root[@]}" apt-get "${patience[@]}" update || say "Going on with the lists at hand."
    step apt-install "Installing ${#missing[@]} packages" \
        "${as_root[@]}" apt-get "${patience[@]}" install -y --no-install-recommends "${missing[@]}"
}

# tenths: of what the build tool says of its steps ("[12/123] ..."), a line for every tenth of them.
tenths() {
    awk -F '[][/]' '/^\[[0-9]+\/[0-9]+\]/ {
        tenth = int($2 * 10 / $3)
        if (tenth > told) { printf "  %d of %d steps\n", $2, $3; fflush(); told = tenth }
    }'
}

# compile LOG COMMAND...: runs the build tool. On a terminal it shows itself how far it is, on one
# line; elsewhere its output goes to the log, and a line for every tenth of it is shown.
compile() {
    local log=$logs/$1.log
    shift
    mkdir -p "$logs"
    if [[ -t 1 ]]; then
        "$@" </dev/null
        return
    fi
    if ! "$@" </dev/null 2>&1 | tee "$log" | tenths; then
        say "The last lines of $log:"
        tail -n "$shown_on_failure" "$log" | sed 's/^/    /'
        return 1
    fi
}

# build PRESET [TARGET...]: configures once, then builds what changed of these, or of everything.
build() {
    local preset=$1 began=$SECONDS outcome="done"
    shift
    if [[ ! -e build/$preset/build.ninja ]]; then
        step "configure-$preset" "Configuring ($preset)" cmake --preset "$preset"
    fi
    say "Building ($preset)"
    compile "build-$preset" cmake --build --preset "$preset" ${1:+--target "$@"} || outcome=FAILED
    say "Building ($preset) ... $outcome ($((SECONDS - began)) s)"
    [[ $outcome == "done" ]]
}
