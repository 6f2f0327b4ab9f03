# What ./run and ./test share. Sourced with `root` set to the top folder of the repository.
# shellcheck shell=bash
: "${root:?}"

# A headline that can be found again in a long log.
say() { printf '\n==> %s\n' "$*"; }
note() { printf '    %s\n' "$*"; }
die() {
    printf '\nerror: %s\n' "$*" >&2
    exit 1
}

# Seconds as "1 min 05 s".
minutes() { printf '%d min %02d s' $(($1 / 60)) $(($1 % 60)); }

# packageNames [kind...]: the names in packages.txt, one a line: of the packages that the program
# needs, and of those that are marked as one of the kinds. `packages` may name another list.
packageNames() {
    local marks="none $*"
    awk -v marks="$marks" '
        BEGIN { split(marks, kinds, " "); for (i in kinds) wanted["#" kinds[i] ":"] }
        { mark = $0; sub(/^[^#]*/, "", mark); sub(/^#[ \t]*/, "#", mark)
          sub(/[ \t].*/, "", mark); sub(/#.*/, "") }
        mark ~ /^#(test|screen):$/ && !(mark in wanted) { next }
        NF { print $1 }' "${packages:-$root/packages.txt}"
}

missingPackages() {
    local name
    packageNames "$@" | while read -r name; do
        if [[ $(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null) != installed ]]; then
            printf '%s\n' "$name"
        fi
    done
}

# installPackages [kind...]: what packageNames tells and the system lacks.
installPackages() {
    if ! command -v dpkg-query >/dev/null; then
        note "This system has no dpkg, so nothing is installed; docs/dependencies.md names what"
        note "has to be there."
        return
    fi
    local missing
    mapfile -t missing < <(missingPackages "$@")
    if ((${#missing[@]} == 0)); then
        note "All packages that are needed are installed."
        return
    fi
    note "To be installed: ${missing[*]}"
    local asRoot=()
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            die "this needs root: there is no sudo. As root, run
  apt-get update && apt-get install --no-install-recommends ${missing[*]}"
        fi
        asRoot=(sudo)
        # Nobody can type a password where there is no terminal.
        if [[ ! -t 0 ]]; then
            asRoot+=(-n)
        fi
        if ! "${asRoot[@]}" true; then
            die "this needs root, and sudo refused. As root, run
  apt-get update && apt-get install --no-install-recommends ${missing[*]}"
        fi
    fi
    local apt=("${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q
        -o DPkg::Lock::Timeout=300)
    "${apt[@]}" update || die "apt-get update failed; is the network there?"
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" ||
        die "apt-get could not install: ${missing[*]}"
}

# buildPreset <preset> [targets or other arguments of ninja]: configures and builds. What the
# configuration says is only of interest when it fails.
buildPreset() {
    local preset=$1 log=$root/build/$1-configure.log
    shift
    mkdir -p "$root/build"
    if ! (cd "$root" && cmake --preset "$preset" >"$log" 2>&1); then
        cat "$log" >&2
        printf '\nerror: preset %s could not be configured (see above)\n' "$preset" >&2
        return 1
    fi
    (cd "$root" && NINJA_STATUS='[%f/%t %es] ' nice cmake --build --preset "$preset" \
        --parallel "$(nproc)" -- "$@") || return 1
}

# The project file of the sample game that a preset has built; nothing when there is none.
builtSampleGame() {
    find "$root/build/$1/examples" -mindepth 2 -maxdepth 2 -type f -iname '*.qvl' \
        -not -path '*/CMakeFiles/*' 2>/dev/null | sort | head -n 1
}

# The project file in a folder; nothing when there is none.
projectFileIn() {
    find "$1" -mindepth 1 -maxdepth 1 -type f -iname '*.qvl' 2>/dev/null | sort | head -n 1
}

# copyGame <project file> <new folder>: a writable copy of the project's folder. It appears under
# its name only when it is complete.
copyGame() {
    local from to=$2
    from=$(dirname "$1")
    rm -rf "$to.part"
    mkdir -p "$(dirname "$to")"
    cp -R "$from" "$to.part"
    chmod -R u+w "$to.part"
    mv "$to.part" "$to"
}
