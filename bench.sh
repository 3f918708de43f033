#!/bin/bash
# Measures the program's engine and services against what the system offers, in one run, as ratios.
# The table is printed and kept in build/banc/resultats.txt.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source outils/wine.sh

./outils/installer.sh construire executer essais
cmake --preset windows-x64 >build/banc-configuration.txt 2>&1 || { cat build/banc-configuration.txt; exit 1; }
cmake --build --preset windows-x64 --target KORVANE banc banc_corbeille gardien

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
cp build/windows-x64/KORVANE.EXE "$travail/programme/"
printf '[Options]\r\nIconis\xe9=Oui\r\n' >"$travail/programme/KORVANE.INI"

export WINEPREFIX=$travail/prefixe
unset DISPLAY
trap 'outils/prefixe.sh fermer "$WINEPREFIX"' EXIT
outils/prefixe.sh modele build/prefixe-modele
outils/prefixe.sh nouveau build/prefixe-modele "$WINEPREFIX" null
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

# The system's own counters know no private bytes here: the kernel's do.
(cd "$travail/programme" && lancer_wine 30 /dev/null ./KORVANE.EXE) &
sleep 5
for processus in $(pgrep -f '^(.*[\\/])?KORVANE\.EXE'); do
    [ "$(readlink "/proc/$processus/exe" 2>/dev/null | xargs -r basename)" != timeout ] || continue
    grep -q "$WINEPREFIX" "/proc/$processus/environ" 2>/dev/null || continue
    awk '/^Private_/ { ko += $2 } END { mo = ko / 1024; printf "%-44s %10.3f %10s %8s  <= 12.00  %s\n", "mémoire privée (Mo)", mo, "", "", mo <= 12 ? "atteint" : "NON ATTEINT" }' \
        "/proc/$processus/smaps_rollup" >>"$travail/resultats.txt"
done
grep -v '^wine: ' "$travail/resultats.txt"
! grep -q "incomplètes" "$travail/resultats.txt"
