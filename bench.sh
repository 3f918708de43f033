#!/bin/bash
# Measures the program's engine and services against what the system offers, in one run, as ratios.
# The table is printed and kept in build/banc/resultats.txt.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source outils/wine.sh

./outils/installer.sh construire executer essais
cmake --preset windows-x64 >build/banc-configuration.txt 2>&1 || { cat build/banc-configuration.txt; exit 1; }
cmake --build --preset windows-x64 --target KORVANE banc banc_corbeille banc_fenetre_corbeille banc_recherche gardien

travail=$PWD/build/banc
rm -rf "$travail"
mkdir -p "$travail/cent_mille" "$travail/travail" "$travail/programme"
# Made from here: the time to make many files through Wine grows with their square.
python3 - "$travail/cent_mille" <<'FIN' 2>/dev/null || (cd "$travail/cent_mille" && seq -f 'fichier %06.0f.txt' 100000 | xargs -d '\n' touch)
import sys, random
random.seed(1)
for i in range(100000):
    with open(f"{sys.argv[1]}/fichier {i * 7919 % 100000:06d}.txt", "wb") as f:
        f.write(b"x" * (i % 50))
FIN
# A directory has a thousand coded names a day.
for repertoire in "$travail/corbeille/corbeille"{0..9}; do
    mkdir -p "$repertoire"
    (cd "$repertoire" && for rang in {0..499}; do printf 'seize caracteres' >"fichier $rang.txt"; done)
done
# 20,000 directories on several levels, ten files in each, one file in four of the kind that is searched for.
arbre() {
    awk -v quoi="$1" 'BEGIN {
        chemin[0] = "."
        for (d = 0; d < 20000; d++) {
            chemin[d + 1] = chemin[int(d / 8)] sprintf("/Répertoire %05d", d)
            if (quoi == "repertoires") print chemin[d + 1]
            else for (i = 0; i < 10; i++) {
                n = d * 10 + i
                printf "%s/Fichier %06d.%s\n", chemin[d + 1], n, n % 4 ? "txt" : "dat"
            }
        }
    }'
}
mkdir -p "$travail/arbre"
(cd "$travail/arbre" && arbre repertoires | xargs -d '\n' mkdir -p && arbre fichiers | xargs -d '\n' touch)
cp build/windows-x64/KORVANE.EXE "$travail/programme/"
printf '[Options]\r\nIconis\xe9=Oui\r\n' >"$travail/programme/KORVANE.INI"

export WINEPREFIX=$travail/prefixe
unset DISPLAY
trap 'outils/prefixe.sh fermer "$WINEPREFIX"' EXIT
outils/prefixe.sh modele build/prefixe-modele
outils/prefixe.sh nouveau build/prefixe-modele "$WINEPREFIX" null
ln -sfn "$travail/arbre" "$WINEPREFIX/dosdevices/t:"
# On one core: between two, each request to Wine's server waits for the other core to wake up, which no Windows does, and the
# start of a program with many windows would measure little else.
taskset -cp 0 $$ >/dev/null
outils/prefixe.sh chauffer "$WINEPREFIX" build/windows-x64/gardien.exe
en_wine() { echo "z:${1//\//\\}"; }
lancer_wine 900 "$travail/resultats.txt" build/windows-x64/banc.exe "$(en_wine "$travail/cent_mille")" \
    "$(en_wine "$travail/travail")" "$(en_wine "$travail/programme/KORVANE.EXE")" || echo "mesures incomplètes" >>"$travail/resultats.txt"
lancer_wine 300 "$travail/corbeille.txt" build/windows-x64/banc_corbeille.exe "$(en_wine "$travail/corbeille")" ||
    echo "mesures incomplètes" >>"$travail/corbeille.txt"
cat "$travail/corbeille.txt" >>"$travail/resultats.txt"
lancer_wine 200 "$travail/fenetre_corbeille.txt" build/windows-x64/banc_fenetre_corbeille.exe "$(en_wine "$travail/travail")" \
    "$(en_wine "$travail/programme/KORVANE.EXE")" || echo "mesures incomplètes" >>"$travail/fenetre_corbeille.txt"
cat "$travail/fenetre_corbeille.txt" >>"$travail/resultats.txt"

lancer_wine 500 "$travail/recherche.txt" build/windows-x64/banc_recherche.exe t: '*.dat' ||
    echo "mesures incomplètes" >>"$travail/recherche.txt"
cat "$travail/recherche.txt" >>"$travail/resultats.txt"

# memoire_privee PROGRAM TITLE LIMIT : of the program of that name in this prefix. The system's own counters know no private bytes
# here: the kernel's do.
memoire_privee() {
    local processus
    for processus in $(pgrep -f "^(.*[\\/])?$1"); do
        [ "$(readlink "/proc/$processus/exe" 2>/dev/null | xargs -r basename)" != timeout ] || continue
        grep -q "$WINEPREFIX" "/proc/$processus/environ" 2>/dev/null || continue
        awk -v titre="$2" -v borne="$3" '/^Private_/ { ko += $2 } END { mo = ko / 1024; printf "%-44s %10.3f %10s %8s  <= %.2f  %s\n", titre, mo, "", "", borne, mo <= borne ? "atteint" : "NON ATTEINT" }' \
            "/proc/$processus/smaps_rollup" >>"$travail/resultats.txt"
    done
}
(lancer_wine 120 "$travail/memoire.txt" build/windows-x64/banc_recherche.exe t: '*.dat' "$(en_wine "$travail/pret")") &
for _ in $(seq 600); do
    [ ! -e "$travail/pret" ] || break
    sleep 0.1
done
grep '(' "$travail/memoire.txt" >>"$travail/resultats.txt" || echo "mesures incomplètes" >>"$travail/resultats.txt"
memoire_privee 'banc_recherche\.exe' "mémoire de cette recherche (Mo)" 60
rm -f "$travail/pret"
wait
(cd "$travail/programme" && lancer_wine 30 /dev/null ./KORVANE.EXE) &
sleep 5
memoire_privee 'KORVANE\.EXE' "mémoire privée (Mo)" 12
grep -v '^wine: ' "$travail/resultats.txt"
! grep -q "incomplètes" "$travail/resultats.txt"
