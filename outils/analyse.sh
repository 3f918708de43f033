#!/usr/bin/env bash
# Checks how the sources are written: format, layers, then static analysis of each source of src/ and bench/.
# Unchanged sources are not analysed again: a stamp under build/analyse holds what was seen clean.
# Exit status other than 0 on any finding. The last line counts: "analyse: N checked, N failed".
#
#   outils/analyse.sh [--format]     --format stops after the format and the layers
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1

readonly cache=build/analyse
mkdir -p "$cache"

for outil in clang-format clang-tidy clang++; do
    if ! command -v "$outil" >/dev/null; then
        echo "analyse: $outil is missing (packages clang, clang-format, clang-tidy)" >&2
        exit 2
    fi
done

# The flags under which clang reads a source as the Windows compiler does.
drapeaux() {
    local racine
    racine=$(x86_64-w64-mingw32-g++-posix -print-file-name=include 2>/dev/null) || return 1
    racine=$(dirname "$racine")/include/c++
    printf '%s\n' --target=x86_64-w64-mingw32 -std=c++20 -Isrc -Itests -DWINVER=0x0601 -D_WIN32_WINNT=0x0601 \
        -isystem "$racine" -isystem "$racine/x86_64-w64-mingw32" -isystem "$racine/backward" \
        -isystem /usr/x86_64-w64-mingw32/include
}

# One source: skipped when it, what it includes and the settings are those of a clean analysis.
analyser() {
    local source=$1 temoin=$cache/${1//\//_} empreinte sortie
    local -a options
    mapfile -t options <<<"$KORVANE_DRAPEAUX"
    empreinte=$({
        cat .clang-tidy
        printf '%s\n' "${options[@]}"
        clang++ "${options[@]}" -MM -MT x "$source" 2>/dev/null | tr -d '\\' | sed 's/^x://' | xargs -r cat
    } | sha256sum)
    [[ -f $temoin && $(<"$temoin") == "$empreinte" ]] && return 0
    if sortie=$(clang-tidy --quiet "$source" -- "${options[@]}" 2>&1); then
        printf '%s' "$empreinte" >"$temoin"
        return 0
    fi
    rm -f "$temoin"
    printf '%s\n' "$sortie" | grep -v -E '^[0-9]+ warnings? (generated|treated)|^Suppressed|^Use -header-filter'
    echo "$source" >>"$cache/echecs"
    return 0
}

# Sources of a folder that include what their layer may not know. The logic library stands under every layer.
couche() {
    local interdits=$1 logique trouves
    shift
    logique=$(grep -o -E '[a-z]+/[a-z_]+\.cpp' cmake/logique.cmake | sed 's/\.cpp$/.h/' | paste -s -d '|')
    trouves=$(grep -n -H -E "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"]($interdits)" "$@" 2>/dev/null |
        grep -v -E "\"($logique)\"") || return 0
    printf '%s\n' "$trouves" | sed 's/$/   <- not for this layer/'
    return 1
}

verifier_couches() {
    local -a systeme toolkit platform forms visionneuse autres logique commandes
    local resultat=0 dossier interdits
    mapfile -t toolkit < <(find src/toolkit -name '*.cpp' -o -path 'src/toolkit/*.h')
    mapfile -t platform < <(find src/platform -name '*.cpp' -o -path 'src/platform/*.h')
    mapfile -t forms < <(find src/forms -name '*.cpp' -o -path 'src/forms/*.h')
    mapfile -t visionneuse < <(find src/visionneuse src/pelmira.cpp -name '*.cpp' -o -path 'src/visionneuse/*.h')
    mapfile -t autres < <(find src -name '*.cpp' -o -name '*.h' | grep -v -E '^src/(toolkit|platform)/')
    mapfile -t logique < <(grep -o -E 'src/[a-z_/]+\.cpp' cmake/logique.cmake)
    systeme=("${toolkit[@]}" "${platform[@]}")
    local dossiers='(app|browser|fileops|recycle|search|config|forms|visionneuse)/'
    couche "windows\.h>" "${autres[@]}" || resultat=1
    couche "windows\.h>" $(printf '%s\n' "${systeme[@]}" | grep -v '^src/platform/windows.h$') || resultat=1
    couche "$dossiers" "${toolkit[@]}" || resultat=1
    couche "toolkit/|$dossiers" "${platform[@]}" || resultat=1
    couche "platform/windows|toolkit/" "${logique[@]}" || resultat=1
    couche "(app|browser|fileops|recycle|search|config|visionneuse)/" "${forms[@]}" || resultat=1
    couche "(app|browser|fileops|recycle|search|config|forms)/" "${visionneuse[@]}" || resultat=1
    # Each of the folders that hold the commands, and those that it may not know.
    for dossier in app:fileops,search,config browser:fileops,recycle,config search:browser,fileops,recycle,config \
        recycle:browser,fileops,search,config config:browser,fileops,recycle,search fileops:search,config; do
        interdits=${dossier#*:},visionneuse
        mapfile -t commandes < <(find "src/${dossier%%:*}" -name '*.cpp' -o -name '*.h')
        couche "(${interdits//,/|})/" "${commandes[@]}" || resultat=1
    done
    return $resultat
}

echecs=0
controles=0

mapfile -t sources < <(find src tests bench -name '*.cpp' -o -name '*.h' | sort)
controles=$((controles + 1))
clang-format --dry-run -Werror "${sources[@]}" || echecs=$((echecs + 1))

controles=$((controles + 1))
verifier_couches || echecs=$((echecs + 1))

if [[ ${1:-} != --format ]]; then
    if ! KORVANE_DRAPEAUX=$(drapeaux); then
        echo "analyse: the Windows compiler is missing (package g++-mingw-w64-x86-64)" >&2
        exit 2
    fi
    export KORVANE_DRAPEAUX cache
    export -f analyser
    rm -f "$cache/echecs"
    mapfile -t analysees < <(find src bench -name '*.cpp' | sort)
    controles=$((controles + ${#analysees[@]}))
    printf '%s\0' "${analysees[@]}" | xargs -0 -n 1 -P 2 bash -c 'analyser "$0"'
    [[ -f $cache/echecs ]] && echecs=$((echecs + $(wc -l <"$cache/echecs")))
fi

echo "analyse: $controles checked, $echecs failed"
((echecs == 0))
