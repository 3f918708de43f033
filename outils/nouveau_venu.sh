#!/bin/bash
# nouveau_venu.sh : plays a newcomer's session with the archive of build/paquet/, on a screen of its own: from the unpacked files to
# a button, a selection and an association that serve. Pictures and an account are left in build/nouveau-venu/.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
racine=$PWD
source outils/wine.sh
source outils/ecran.sh
export WINEPREFIX=$racine/build/prefixes/nouveau-venu
images=$racine/build/nouveau-venu
programmes=$racine/build/windows-x64
archive=$(echo build/paquet/KORVANE-*.zip)

nettoyer() {
    fermer_wine
    rm -rf "$WINEPREFIX"
    eteindre_ecran
}
trap nettoyer EXIT
trap 'exit 130' INT TERM

windows() {
    echo "Z:${1//\//\\}"
}

preparer() {
    rm -rf "$images"
    mkdir -p "$images" && allumer_ecran 1024x768 && outils/prefixe.sh modele build/prefixe-modele &&
        outils/prefixe.sh nouveau build/prefixe-modele "$WINEPREFIX" nu && unzip -q "$archive" -d "$WINEPREFIX/paquet" &&
        outils/prefixe.sh chauffer "$WINEPREFIX" "$programmes/gardien.exe"
}

jouer() {
    KORVANE_PAQUET=$(windows "$WINEPREFIX/paquet") KORVANE_DEMONSTRATION=$(windows "$images") \
        KORVANE_ECHECS=$(windows "$racine/build/echecs") KORVANE_EXE=$(windows "$WINEPREFIX/paquet/KORVANE.EXE") \
        lancer_wine 120 "$images/journal.txt" "$programmes/nouveau_venu.exe"
}

if ! preparer; then
    echo "La séance n'a pas pu commencer." >&2
    exit 1
fi
resultat=0
jouer || resultat=$?
en_png "$images"
cat "$images/compte-rendu.txt" 2>/dev/null
if [ "$resultat" != 0 ]; then
    grep -v '^wine: ' "$images/journal.txt" >&2
    echo "La séance a échoué." >&2
fi
exit "$resultat"
