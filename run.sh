#!/bin/bash
# Builds KORVANE and opens it in a Wine prefix of its own, with the home directory as drive H:.
# Without a display it plays a demonstration on a screen of its own and leaves pictures in build/demonstration/.
#
#   ./run.sh [--demonstration]     --demonstration plays it even where there is a display
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
racine=$PWD
source outils/wine.sh
source outils/ecran.sh

demonstration=non
[ -n "${DISPLAY:-}" ] || demonstration=oui
case ${1:-} in
    "") ;;
    --demonstration) demonstration=oui ;;
    *)
        sed -n '2,5s/^# \{0,1\}//p' "$0" >&2
        exit 2
        ;;
esac

construire() {
    local journal=build/construction.txt
    mkdir -p build
    { timeout 300 cmake --preset windows-x64 && timeout 1800 cmake --build --preset windows-x64 --target "$@"; } \
        </dev/null >"$journal" 2>&1 || {
        tail -40 "$journal" >&2
        echo "La construction a échoué : $journal" >&2
        exit 1
    }
}

ouvrir() {
    export WINEPREFIX=$racine/build/prefixe-courant
    if [ ! -f "$WINEPREFIX/pret" ]; then
        outils/prefixe.sh nouveau build/prefixe-modele "$WINEPREFIX" bureau
        touch "$WINEPREFIX/pret"
    fi
    ln -sfn "$HOME" "$WINEPREFIX/dosdevices/h:"
    echo "KORVANE s'ouvre ; fermez sa fenêtre pour finir."
    cd "$HOME"
    wine "$racine/build/windows-x64/KORVANE.EXE" </dev/null >"$racine/build/korvane.txt" 2>&1
}

nettoyer() {
    fermer_wine
    eteindre_ecran
}

demontrer() {
    local resultat=0
    rm -rf build/demonstration
    mkdir -p build/demonstration
    export WINEPREFIX=$racine/build/prefixe-demonstration
    outils/prefixe.sh nouveau build/prefixe-modele "$WINEPREFIX" nu
    ln -sfn "$HOME" "$WINEPREFIX/dosdevices/h:"
    trap nettoyer EXIT
    allumer_ecran 800x600
    outils/prefixe.sh chauffer "$WINEPREFIX" "$racine/build/windows-x64/gardien.exe"
    export KORVANE_DEMONSTRATION="Z:${racine//\//\\}\\build\\demonstration" KORVANE_ECHECS="Z:${racine//\//\\}\\build\\echecs"
    lancer_wine 120 build/demonstration/journal.txt "$racine/build/windows-x64/demonstration.exe" || resultat=$?
    en_png build/demonstration
    cat build/demonstration/compte-rendu.txt 2>/dev/null || true
    if [ "$resultat" != 0 ]; then
        grep -v '^wine: ' build/demonstration/journal.txt >&2 || true
        echo "La démonstration a échoué." >&2
        return 1
    fi
    echo "Images et compte rendu : build/demonstration/"
}

if [ "$demonstration" = oui ]; then
    outils/installer.sh construire executer demonstration
    construire KORVANE PELMIRA aide gardien demonstration
    outils/prefixe.sh modele build/prefixe-modele
    demontrer
else
    outils/installer.sh construire executer
    construire KORVANE PELMIRA aide
    outils/prefixe.sh modele build/prefixe-modele
    ouvrir
fi
