#!/bin/bash
# Every check of the project, from a fresh machine; the last line counts: "N passed, N failed, N skipped".
#
#   ./test.sh                     everything
#   ./test.sh --rapide            without analyses, fuzzing, resolutions, the drawn screen and the package
#   ./test.sh --fenetres FILTER   the window tests of a GoogleTest filter alone
#
# Reports and logs are left in build/resultats/, what was on the screen when a window test failed in build/echecs/.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")" || exit 1
racine=$PWD
source outils/wine.sh
source outils/ecran.sh
resultats=build/resultats
programmes=$racine/build/windows-x64
passes=0 echoues=0 laisses=0

variante=tout filtre='*'
case ${1:-} in
    "") ;;
    --rapide) variante=rapide ;;
    --fenetres) variante=fenetres filtre=${2:?un filtre} ;;
    *)
        sed -n '2,8s/^# \{0,1\}//p' "$0" >&2
        exit 2
        ;;
esac

nettoyer() {
    local prefixe
    for prefixe in build/prefixes/*/; do
        [ -d "$prefixe" ] && WINEPREFIX=$racine/${prefixe%/} fermer_wine
    done
    eteindre_ecran
}
trap nettoyer EXIT
trap 'exit 130' INT TERM

dire() {
    printf '%s  %s\n' "$(date +%H:%M:%S)" "$*"
}

# compter PASSED FAILED SKIPPED NAME
compter() {
    passes=$((passes + $1)) echoues=$((echoues + $2)) laisses=$((laisses + $3))
    dire "$4 : $1 passed, $2 failed, $3 skipped"
}

# A step that cannot run is a failure.
rate() {
    compter 0 1 0 "$1"
    [ -f "${2:-}" ] && tail -25 "$2"
    return 0
}

attribut() {
    sed -n "s/.*<testsuites[^>]* $2=\"\([0-9]*\)\".*/\1/p" "$1" | head -1
}

# What each failed test said, and the test during which the program died.
montrer_echecs() {
    tr -d '\r' <"$1" | awk '/^wine: / { next }
        /^\[ RUN/ { bloc = "" }
        { bloc = bloc $0 "\n" }
        /^\[  FAILED  \].*ms\)$/ { printf "%s", bloc }
        /^\[       OK / { bloc = "" }
        /^\[==========\].* ran\./ { fini = 1 }
        END { if (!fini) printf "%s", bloc }'
}

# The counts of one GoogleTest run from its report, or from its log when it died before writing one. Tests left out for want
# of a drive name themselves in the log.
compter_essais() {
    local nom=$1 statut=$2 rapport=$resultats/$1.xml journal=$resultats/$1.txt tests echecs
    sed -n 's/^\[ laisse   \] //p' "$journal" 2>/dev/null | tr -d '\r' >>"$resultats/laisses.txt"
    if [ -s "$rapport" ]; then
        tests=$(attribut "$rapport" tests) echecs=$(attribut "$rapport" failures)
        [ "$statut" != 0 ] && [ "$echecs" = 0 ] && echecs=1 tests=$((tests + 1))
        # A filter that names nothing is a step that checks nothing; the window tests are looked at together.
        [ "$tests" = 0 ] && [[ $nom != fenetres-* ]] && echecs=1 tests=1
        compter $((tests - echecs)) "$echecs" 0 "$nom"
    else
        tests=$(grep -c '^\[       OK \]' "$journal" 2>/dev/null)
        echecs=$(grep -c '^\[  FAILED  \].*ms)' "$journal" 2>/dev/null)
        compter "${tests:-0}" $((${echecs:-0} + 1)) 0 "$nom (interrompu, statut $statut)"
    fi
    dire_coupures "$journal"
    [ "$statut" = 0 ] || montrer_echecs "$journal" | head -120
}

# How often the program was killed, cut or refused a call, and how many files that cost.
dire_coupures() {
    local ligne
    tr -d '\r' <"$1" 2>/dev/null | grep '^coupures : ' | while IFS= read -r ligne; do dire "$ligne"; done
    return 0
}

construire() {
    local preset=$1 journal=$resultats/construction-$1.txt
    shift
    dire "construction $preset"
    if timeout 300 cmake --preset "$preset" </dev/null >"$journal" 2>&1 &&
        timeout -k 10 1800 cmake --build --preset "$preset" "$@" </dev/null >>"$journal" 2>&1; then
        return 0
    fi
    rate "construction $preset" "$journal"
    return 1
}

analyses() {
    local journal=$resultats/analyse.txt statut=0 compte
    dire "format et analyses statiques"
    timeout -k 10 1500 outils/analyse.sh </dev/null >"$journal" 2>&1 || statut=$?
    compte=$(sed -n 's/^analyse: \([0-9]*\) checked, \([0-9]*\) failed.*/\1 \2/p' "$journal" | tail -1)
    if [ -z "$compte" ] || { [ "$statut" != 0 ] && [ "${compte#* }" = 0 ]; }; then
        rate analyses "$journal"
    else
        compter $((${compte% *} - ${compte#* })) "${compte#* }" 0 analyses
        [ "$statut" = 0 ] || tail -40 "$journal"
    fi
}

logique_native() {
    local statut=0
    construire natif || return 0
    ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
        timeout -k 10 300 build/natif/tests_logique "--gtest_output=xml:$resultats/logique-native.xml" \
        </dev/null >"$resultats/logique-native.txt" 2>&1 || statut=$?
    compter_essais logique-native "$statut"
}

un_fuzz() {
    local cible=$1 nom
    nom=$(basename "$cible")
    mkdir -p "build/corpus/$nom"
    timeout -k 10 60 "$cible" -max_total_time=10 -timeout=10 -rss_limit_mb=1024 -print_final_stats=1 \
        -artifact_prefix="build/echecs/$nom-" "build/corpus/$nom" </dev/null >"$resultats/$nom.txt" 2>&1
    echo $? >"$resultats/$nom.statut"
}

fuzz() {
    construire fuzz || return 0
    dire "fuzz, 10 s par cible"
    mkdir -p build/echecs
    local cible nom
    local -a cibles=()
    for cible in build/fuzz/fuzz_*; do
        [ -f "$cible" ] && [ -x "$cible" ] && cibles+=("$cible")
    done
    [ ${#cibles[@]} -gt 0 ] || rate "fuzz : aucune cible"
    for cible in "${cibles[@]}"; do
        un_fuzz "$cible" &
        [ "$(jobs -rp | wc -l)" -ge 2 ] && wait -n
    done
    wait
    for cible in "${cibles[@]}"; do
        nom=$(basename "$cible")
        if [ "$(cat "$resultats/$nom.statut")" = 0 ]; then compter 1 0 0 "$nom"; else rate "$nom" "$resultats/$nom.txt"; fi
    done
}

# lancer_essais NAME SCREEN DPI SECONDS PROGRAM ARGUMENTS... : one test program in a fresh prefix, with the test drives; its
# status goes to a file, so that two of them can run at once.
lancer_essais() {
    local nom=$1 ecran=$2 ppp=$3 delai=$4 programme=$5 statut=0
    shift 5
    export WINEPREFIX=$racine/build/prefixes/$nom KORVANE_ECHECS="Z:${racine//\//\\}\\build\\echecs"
    export KORVANE_EXE="Z:${programmes//\//\\}\\KORVANE.EXE"
    [ "$ecran" = null ] && unset DISPLAY
    rm -f "$resultats/$nom.xml"
    {
        outils/prefixe.sh nouveau build/prefixe-modele "$WINEPREFIX" "$ecran" "$ppp" &&
            timeout -k 20 $((delai + 60)) outils/unites.sh bash -c '
                source outils/wine.sh
                outils/prefixe.sh chauffer "$WINEPREFIX" "$1" || exit 3
                lancer_wine "$2" "$3" "${@:4}"' essais \
                "$programmes/gardien.exe" "$delai" "$resultats/$nom.txt" "$programme" \
                "--gtest_output=xml:Z:$racine/$resultats/$nom.xml" "$@"
    } </dev/null >"$resultats/$nom-prefixe.txt" 2>&1 || statut=$?
    fermer_wine
    echo "$statut" >"$resultats/$nom.statut"
}

# au_plus NUMBER COMMAND ARGUMENTS... : runs it beside those that already run, once fewer than that many do.
au_plus() {
    local nombre=$1
    shift
    while [ "$(jobs -rp | wc -l)" -ge "$nombre" ]; do wait -n; done
    ("$@") &
}

tranche_fenetres() {
    # A filter has one list of what it leaves out.
    local sauf=-
    [[ $filtre == *-* ]] && sauf=:
    GTEST_TOTAL_SHARDS=$tranches GTEST_SHARD_INDEX=$(($1 - 1)) lancer_essais "fenetres-$1" null 96 900 \
        "$programmes/tests_fenetres.exe" "--gtest_filter=$filtre${sauf}Ecran*"
}

# Each run has its own prefix, its own desktop and its own drives. They mostly wait: one more than there are processors, the
# longest first and the short ones in what is left.
essais_windows() {
    local -r cote=$(($(nproc) + 1)) tranches=4
    local -a noms=()
    local nom
    dire "logique, services et fenêtres sans écran"
    if [ "$variante" != fenetres ]; then
        noms=(coupures services logique-windows)
        au_plus "$cote" lancer_essais coupures null 96 900 "$programmes/tests_services.exe" \
            '--gtest_filter=Actes/Coupures*'
    fi
    for nom in $(seq "$tranches"); do
        au_plus "$cote" tranche_fenetres "$nom"
        noms+=("fenetres-$nom")
    done
    if [ "$variante" != fenetres ]; then
        au_plus "$cote" lancer_essais services null 96 300 "$programmes/tests_services.exe" \
            '--gtest_filter=-Actes/Coupures*'
        au_plus "$cote" lancer_essais logique-windows null 96 120 "$programmes/tests_logique.exe"
    fi
    wait
    for nom in "${noms[@]}"; do compter_essais "$nom" "$(cat "$resultats/$nom.statut")"; done
    # One part of a small filter may have no test; all of them have some.
    grep -q 'tests="[1-9]' "$resultats"/fenetres-*.xml || rate "fenêtres : aucun essai"
}

# The layout must be right at every usual resolution; the screen is large enough for the window at 192.
resolutions() {
    local ppp
    dire "disposition à 120, 144 et 192 points par pouce"
    allumer_ecran 2048x1536 || {
        rate "Xvfb"
        return 0
    }
    for ppp in 120 144 192; do
        (lancer_essais "disposition-$ppp" nu $ppp 120 "$programmes/tests_fenetres.exe" '--gtest_filter=Disposition*')
        compter_essais "disposition-$ppp" "$(cat "$resultats/disposition-$ppp.statut")"
    done
    eteindre_ecran
}

ecran_dessine() {
    dire "fenêtres, écran dessiné"
    allumer_ecran 800x600 || {
        rate "Xvfb"
        return 0
    }
    (lancer_essais ecran nu 96 600 "$programmes/tests_fenetres.exe" '--gtest_filter=Ecran*:Premiers_pas*')
    compter_essais ecran "$(cat "$resultats/ecran.statut")"
    eteindre_ecran
}

# What users get: made, then tried where they would put it.
paquet() {
    local journal=$resultats/paquet.txt compte
    dire "paquet et installateur"
    { timeout -k 10 600 ./package.sh && timeout -k 20 400 outils/essai_paquet.sh; } </dev/null >"$journal" 2>&1
    sed -n 's/^laissé : //p' "$journal" >>"$resultats/laisses.txt"
    compte=$(sed -n 's/^\([0-9]*\) passed, \([0-9]*\) failed$/\1 \2/p' "$journal" | tail -1)
    if [ -z "$compte" ]; then
        rate paquet "$journal"
    else
        compter "${compte% *}" "${compte#* }" 0 paquet
        [ "${compte#* }" = 0 ] || sed -n '/^échec/,$p' "$journal" | head -40
    fi
}

finir() {
    local nombre
    en_png build/echecs
    sort -u "$resultats/laisses.txt" -o "$resultats/laisses.txt"
    nombre=$(wc -l <"$resultats/laisses.txt")
    if [ "$nombre" != 0 ]; then
        sed 's/^/skipped: /' "$resultats/laisses.txt"
        laisses=$((laisses + nombre))
    fi
    echo "$passes passed, $echoues failed, $laisses skipped"
    [ "$echoues" = 0 ] && [ "$passes" != 0 ]
}

rm -rf "$resultats" build/echecs build/prefixes
mkdir -p "$resultats"
: >"$resultats/laisses.txt"
dire "paquets"
outils/installer.sh construire paquet executer essais || rate "installation des paquets"
[ "$variante" = tout ] && analyses
[ "$variante" != fenetres ] && logique_native
if construire windows-x64; then
    if outils/prefixe.sh modele build/prefixe-modele; then
        essais_windows
        if [ "$variante" = tout ]; then
            resolutions
            ecran_dessine
            paquet
        fi
    else
        rate "préfixe Wine"
    fi
fi
[ "$variante" = tout ] && fuzz
finir
