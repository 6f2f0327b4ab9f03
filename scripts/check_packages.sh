#!/usr/bin/env bash
# Is packages.txt complete? Every foreign header that the sources include, every shared library
# and plug-in that the program loads and every tool that the scripts call has to belong to a
# package of that list, to one that such a package depends on, or to one that every Debian has. What
# the program alone needs has to belong to packages that are not marked for ./test.
#
# usage: check_packages.sh [--packages FILE] [--build DIR]... [--program FILE] [--tools-only]
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
# shellcheck source=scripts/lib.sh
. "$root/scripts/lib.sh"
packages=$root/packages.txt
program=$root/build/release/bin/quorvel
builds=()
toolsOnly=no
while (($# > 0)); do
    case $1 in
        --packages) packages=$2 && shift 2 ;;
        --build) builds+=("$2") && shift 2 ;;
        --program) program=$2 && shift 2 ;;
        --tools-only) toolsOnly=yes && shift ;;
        *)
            sed -n '2,7s/^# //p' "${BASH_SOURCE[0]}" >&2
            exit 2
            ;;
    esac
done
if ((${#builds[@]} == 0)); then
    builds=("$root/build/release" "$root/build/asan")
fi

if ! command -v dpkg-query >/dev/null; then
    echo "    There is no dpkg here, so the package list cannot be checked."
    exit 1
fi

# The plug-ins that Qt loads by itself, which no linker knows of.
plugins=(platforms/libqxcb platforms/libqoffscreen imageformats/libqgif imageformats/libqjpeg
    imageformats/libqico imageformats/libqsvg iconengines/libqsvgicon)

# Tools that are not called by name in a script: by CMake, its presets, or the compiler.
otherTools=(c++ ccache clang-tidy ninja)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# listPackages [kind...]: all packages that may be counted on, as packageNames tells them.
listPackages() {
    local names
    mapfile -t names < <(packageNames "$@")
    apt-cache depends --recurse --installed --no-recommends --no-suggests --no-conflicts \
        --no-breaks --no-replaces --no-enhances "${names[@]}" | sed -n 's/^\([a-z0-9][^ :]*\).*/\1/p'
    # What is in every installation of Debian.
    dpkg-query -W -f '${Package} ${Essential} ${Priority}\n' |
        awk '$2 == "yes" || $3 == "required" || $3 == "important" { print $1 }'
}

# The paths under which a file may be known to dpkg: as it is, behind its links, with or without
# the /usr that a merged system puts before it. Reads "file<TAB>needed by", writes "path<TAB>file".
spellings() {
    local file path
    cut -f 1 | sort -u | while read -r file; do
        for path in "$file" "$(realpath -m "$file")"; do
            printf '%s\t%s\n' "$path" "$file" "/usr$path" "$file" "${path#/usr}" "$file"
        done
    done | sort -u
}

# Reads "file<TAB>needed by" and writes "package<TAB>file<TAB>needed by", "-" for no package.
findPackages() {
    tee "$work/asked" | spellings >"$work/spellings"
    # dpkg complains about each spelling that it does not know.
    cut -f 1 "$work/spellings" | xargs -d '\n' dpkg -S 2>/dev/null | grep -v '^diversion ' |
        sed -n 's/^\([^:, ]*\)[^/]*: \(\/.*\)$/\1\t\2/p' >"$work/owners" || true
    awk -F '\t' -v OFS='\t' '
        FILENAME ~ /owners$/ { owner[$2] = $1; next }
        FILENAME ~ /spellings$/ { if ($1 in owner) package[$2] = owner[$1]; next }
        { print (($1 in package) ? package[$1] : "-"), $1, $2 }' \
        "$work/owners" "$work/spellings" "$work/asked"
}

# headers <needed by> <pattern>: the foreign headers of all objects but those that match.
headers() {
    local build
    for build in "${builds[@]}"; do
        [[ -e $build/build.ninja ]] || continue
        ninja -C "$build" -t deps 2>/dev/null | awk -v without="$2" '
            /^[^ ]/ { wanted = $1 !~ without }
            wanted && /^    \/usr\// { print substr($0, 5) }'
    done | sort -u | xargs -r -d '\n' realpath -s | sort -u | sed "s|\$|\t$1|"
}

# The libraries that a program or plug-in is linked to; a missing one is told by its bare name.
libraries() {
    ldd "$1" | awk -v by="$(basename "$1")" '
        $2 == "=>" && $3 == "not" { print $1 "\t" by }
        $2 == "=>" && $3 ~ /^\// { print $3 "\t" by }'
}

pluginFiles() {
    local folder plugin
    folder=$(qtpaths6 --plugin-dir)
    for plugin in "${plugins[@]}"; do
        printf '%s\tQt\n' "$folder/$plugin.so"
        if [[ -e $folder/$plugin.so ]]; then
            libraries "$folder/$plugin.so"
        fi
    done
}

# Words that stand where a command stands, as far as /usr/bin or /usr/sbin knows them.
tools() {
    local tool folder
    {
        printf '%s\n' "${otherTools[@]}" python3
        # Shell: at the start of a line or after what a command can follow.
        sed -e 's/^[[:space:]]*#.*//' "$root/run" "$root/test" "$root/.ci/run" "$root"/scripts/*.sh |
            grep -oE '(^|[|&;(!]|\$\(|(^|[[:space:]])(if|then|else|do|while|nice|exec|env|xargs( -[^[:space:]]+)*|sudo))[[:space:]]*([A-Z_]+=[^[:space:]]*[[:space:]]+)*[a-z][a-z0-9+._-]*' |
            grep -oE '[a-z][a-z0-9+._-]*$' || true
        # Python: the first word of a list of arguments.
        grep -ohE '\["[a-zA-Z][a-zA-Z0-9+._-]*"' "$root"/scripts/*.py | tr -d '["' || true
    } | sort -u | while read -r tool; do
        case $(type -t "$tool" || true) in
            keyword | builtin) continue ;;
        esac
        for folder in /usr/bin /usr/sbin; do
            if [[ -x $folder/$tool ]]; then
                printf '%s\tthe scripts\n' "$folder/$tool"
                break
            fi
        done
    done
}

listPackages screen test | sort -u >"$work/allowed"
listPackages | sort -u >"$work/allowedForProgram"

tools >"$work/tools"
if ! grep -q . "$work/tools"; then
    echo "    No tool was found in the scripts; this check is broken."
    exit 1
fi
cp "$work/tools" "$work/needed"
if [[ $toolsOnly == no ]]; then
    headers "the sources" '^$' >"$work/headers"
    if ! grep -q . "$work/headers"; then
        echo "    No header was found: there is no build in ${builds[*]}."
        exit 1
    fi
    cat "$work/headers" >>"$work/needed"
    if [[ ! -x $program ]]; then
        echo "    There is no $program."
        exit 1
    fi
    {
        headers "the program" '^(bench|tests)/'
        pluginFiles
        libraries "$program"
        player=$(dirname "$program")/QuorvelDefaults/Game.exe
        if [[ -e $player ]]; then
            libraries "$player"
        fi
    } >"$work/neededByProgram"
    cat "$work/neededByProgram" >>"$work/needed"
fi
touch "$work/neededByProgram"

# compare <what is found> <packages> <the rest of the complaint>
compare() {
    awk -v complaint="$3" -F '\t' 'NR == FNR { allowed[$1]; next }
        $1 == "-" { print "    " $2 " (" $3 ") belongs to no package"; bad = 1; next }
        !($1 in allowed) && !(($1, $3) in told) {
            told[$1, $3]
            print "    " $2 " (" $3 ") belongs to " $1 ", which packages.txt " complaint; bad = 1
        }
        END { exit bad }' "$2" "$1"
}

sort -u "$work/needed" | findPackages >"$work/found"
compare "$work/found" "$work/allowed" "does not bring" || exit 1
awk -F '\t' 'NR == FNR { of[$0]; next } ($2 "\t" $3) in of' \
    "$work/neededByProgram" "$work/found" >"$work/foundForProgram"
compare "$work/foundForProgram" "$work/allowedForProgram" "marks as not needed by it" || exit 1
echo "    $(wc -l <"$work/found") files of $(cut -f 1 "$work/found" | sort -u | wc -l) packages:" \
    "packages.txt brings them all."
