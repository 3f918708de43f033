#!/bin/bash
# essai_paquet.sh : tries the packages of build/paquet/ from end to end under Wine, in a prefix of its own: the archive in a
# directory with blanks and accents, in one that cannot be written, on a protected disk, and used by a newcomer; the installer and
# the uninstaller, silently, over an older version, and while the program runs.
# What failed is said; the last line counts: "N passed, N failed". Logs are left in build/resultats/paquet/.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
racine=$PWD
source outils/wine.sh
journaux=$racine/build/resultats/paquet
fichiers=(KORVANE.CHM KORVANE.EXE KORVANE.HLP LISEZMOI.TXT PELMIRA.EXE)
passes=0 echoues=0

# What tries the package, on a machine where nothing was tested yet.
construire() {
    outils/installer.sh construire paquet executer demonstration && timeout 300 cmake --preset windows-x64 &&
        timeout 1800 cmake --build --preset windows-x64 --target gardien enregistreur paquet nouveau_venu
}

# Everything runs with the test drives, and without the privilege of writing anywhere.
if [ -z "${KORVANE_ESSAI_PAQUET:-}" ]; then
    export KORVANE_ESSAI_PAQUET=1 WINEPREFIX=$racine/build/prefixes/paquet
    unset DISPLAY
    mkdir -p "$journaux"
    if ! construire </dev/null >"$journaux/construction.txt" 2>&1; then
        tail -25 "$journaux/construction.txt"
        echo "0 passed, 1 failed"
        exit 1
    fi
    if ! outils/prefixe.sh modele build/prefixe-modele || ! outils/prefixe.sh nouveau build/prefixe-modele "$WINEPREFIX" null; then
        echo "échec : préfixe Wine"
        echo "0 passed, 1 failed"
        exit 1
    fi
    statut=0
    outils/unites.sh outils/essai_paquet.sh || statut=$?
    rm -rf "$WINEPREFIX"
    exit $statut
fi

archive=$(echo build/paquet/KORVANE-*.zip)
installateur=$racine/$(echo build/paquet/KORVANE-*-installation.exe)
utilisateur=$WINEPREFIX/drive_c/users/$(id -un)
installe=$utilisateur/AppData/Local/Programs/KORVANE
raccourci="$utilisateur/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/KORVANE.lnk"
cle='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\KORVANE'

# essayer NAME COMMAND ARGUMENTS... : one check.
essayer() {
    local nom=$1 journal
    shift
    journal=$journaux/${nom//[^a-zA-Z0-9]/-}.txt
    if "$@" >"$journal" 2>&1 </dev/null; then
        passes=$((passes + 1))
        return 0
    fi
    echoues=$((echoues + 1))
    echo "échec : $nom"
    tr -d '\r' <"$journal" | grep -v '^wine: ' | tail -15 | sed 's/^/    /'
    return 0
}

# Wine opens its output anew: what the check said before would be lost.
executer() {
    local statut=0
    lancer_wine 60 "$journaux/sortie" "$@" || statut=$?
    cat "$journaux/sortie"
    return $statut
}

# The captions that the manual quotes, \s{...}, are on the screen.
legendes_du_manuel() {
    local inconnues
    inconnues=$(grep -o '\\s{[^}]*}' aide/manuel.but | sed 's/^...//; s/}$//' | sort -u | grep -v -x -F -f <(
        printf '%s\n' Oui Non
        grep -r -h -o --include='*.h' --include='*.cpp' 'L"[^"]*"' src | sed 's/^L"//; s/"$//; s/&//g; s/^ *//' | sort -u
    ))
    echo "$inconnues"
    [ -z "$inconnues" ]
}

# The messages that it quotes, \q{...}, are those of the program; "..." and the manual's name stand for any name.
messages_du_manuel() {
    local dits inconnus=0 message
    dits=$(find src -name '*.h' -o -name '*.cpp' | sort | xargs sed -z 's/"[[:space:]]*L"//g' | tr '\0' '\n' |
        sed -E 's/\\r/ /g; s/  +/ /g')
    while IFS= read -r message; do
        grep -q -F -- "$message" <<<"$dits" && continue
        echo "$message"
        inconnus=1
    done < <(sed -n '/^\\A{messages}/,$p' aide/manuel.but | tr '\n' ' ' | grep -o '\\q{[^}]*}' |
        sed -E "s/^...//; s/\}$//; s/ *('?\.\.\.'?|KORVANE\.HLP) */\n/g" | sed 's/^ *//; s/ *$//' | grep -v -x '[.:]*')
    return $inconnus
}

# windows PATH : a path of the prefix as the programs see it.
windows() {
    local chemin=${1#"$WINEPREFIX/drive_c"}
    [ "$chemin" != "$1" ] && chemin="C:$chemin" || chemin="Z:$1"
    echo "${chemin//\//\\}"
}

# controler CHECK DIRECTORY : a check of tests/outils_windows/paquet.cpp on the program in that directory.
controler() {
    KORVANE_PAQUET=$(windows "$2") executer build/windows-x64/paquet.exe "--gtest_filter=Paquet.$1"
}

decompresser() {
    rm -rf "$1"
    mkdir -p "$1" && unzip -q "$archive" -d "$1"
}

# What a package must hold, and no other file.
contient_tout() {
    [ "$(cd "$1" && printf '%s\n' *)" = "$(printf '%s\n' "${fichiers[@]}" "${@:2}" | sort)" ] || {
        ls -la "$1"
        return 1
    }
}

# What the system shows of the programs is the version of the package.
meme_version() {
    local version=${archive##*KORVANE-} nom
    for nom in KORVANE PELMIRA; do
        x86_64-w64-mingw32-strings -el "$1/$nom.EXE" | grep -A1 -x FileVersion | grep -x "${version%.zip}.0" || return 1
    done
}

aides_saines() {
    [ "$(head -c4 "$1/KORVANE.HLP" | od -An -tx1 | tr -d ' ')" = 3f5f0300 ] && [ "$(head -c4 "$1/KORVANE.CHM")" = ITSF ]
}

lisezmoi_lisible() {
    local texte=$1/LISEZMOI.TXT
    [ "$(head -c3 "$texte")" = $'\xef\xbb\xbf' ] && ! grep -q '@' "$texte" && ! grep -q -v $'\r$' "$texte" && iconv -f UTF-8 "$texte"
}

# Nothing but the system's own libraries.
se_suffit() {
    local nom noms
    noms=$(x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/.*DLL Name: //p')
    for nom in $noms; do
        echo "$nom"
        [ -f "$WINEPREFIX/drive_c/windows/system32/${nom,,}" ] || return 1
    done
    [ -n "$noms" ]
}

protege() {
    chmod -R a-w "$1"
    ! touch "$1/essai" 2>/dev/null && "${@:2}"
    local statut=$?
    chmod -R u+w "$1"
    return $statut
}

# The disk D: of the test drives, made read-only for the time of a command.
demander() {
    local unites=${KORVANE_UNITES#Z:}
    unites=${unites//\\//}
    echo "$*" >"$unites/commande"
    for _ in $(seq 100); do
        [ -f "$unites/reponse" ] && break
        sleep 0.05
    done
    [ "$(cat "$unites/reponse")" = fait ]
    local statut=$?
    rm -f "$unites/reponse"
    return $statut
}

sur_disque_protege() {
    local statut=0
    mkdir -p "$WINEPREFIX/dosdevices/d:/KORVANE"
    unzip -q "$archive" -d "$WINEPREFIX/dosdevices/d:/KORVANE" && demander proteger d || return 1
    KORVANE_PAQUET='D:\KORVANE' executer build/windows-x64/paquet.exe \
        --gtest_filter=Paquet.travaille_sans_pouvoir_ecrire_ses_reglages_et_le_dit || statut=$?
    demander deproteger d
    return $statut
}

# The uninstaller goes on in a copy of itself after its first process has ended.
desinstaller() {
    executer "$1/desinstaller-KORVANE.exe" /S || return 1
    for _ in $(seq 200); do
        [ -f "$1/desinstaller-KORVANE.exe" ] || break
        sleep 0.05
    done
    for _ in $(seq 100); do
        executer reg query "$cle" >/dev/null || return 0
        sleep 0.05
    done
    return 1
}

inscrit() {
    executer reg query "$cle" /v QuietUninstallString | grep -F "$(windows "$1")\\desinstaller-KORVANE.exe" &&
        executer reg query "$cle" /v DisplayVersion | grep -q -E "[0-9]+\.[0-9]+\.[0-9]+" && [ -f "$raccourci" ]
}

rien_ne_reste() {
    ! executer reg query "$cle" && ! executer reg query 'HKCU\Software\KORVANE' && [ ! -e "$raccourci" ] && [ ! -e "$1" ]
}

ne_laisse_que_les_fichiers_de_l_utilisateur() {
    ls -la "$installe"
    [ "$(cd "$installe" && echo *)" = "KORVANE.INI notes.txt" ] && ! executer reg query "$cle" && [ ! -e "$raccourci" ]
}

# An older version with settings: the new one replaces all its files and leaves the settings alone.
remplace_en_gardant_les_reglages() {
    echo ancienne | tee "$installe"/KORVANE.CHM "$installe"/PELMIRA.EXE >"$installe"/LISEZMOI.TXT
    printf '[Options]\r\nCouleur=4\r\n' >"$installe/KORVANE.INI"
    executer "$installateur" /S && contient_tout "$installe" KORVANE.INI desinstaller-KORVANE.exe &&
        grep -q Couleur=4 "$installe/KORVANE.INI" || return 1
    local fichier
    for fichier in "${fichiers[@]}"; do cmp "$installe/$fichier" "build/paquet/fichiers/$fichier" || return 1; done
}

refuse_pendant() {
    KORVANE_ACTE=$(windows "$1") KORVANE_ARGUMENTS=$2 controler ouvert_ne_se_laisse_ni_remplacer_ni_retirer "$installe" &&
        inscrit "$installe"
}

# One that nothing may be added to or removed from.
refuse_dans_un_repertoire_reserve() {
    mkdir -p "$1"
    chmod a-w "$1"
    ! executer "$installateur" /S "/D=$(windows "$1/KORVANE")"
    local statut=$?
    chmod u+w "$1"
    [ "$statut" = 0 ] && [ ! -e "$1/KORVANE" ] && ! executer reg query "$cle" && [ ! -e "$raccourci" ]
}

# A directory of the user's, with a file that has the name of one of the package's.
respecte_les_fichiers_d_autrui() {
    mkdir -p "$1"
    echo "à moi" >"$1/LISEZMOI.TXT"
    ! executer "$installateur" /S "/D=$(windows "$1")" && [ "$(cd "$1" && echo *)" = LISEZMOI.TXT ] &&
        [ "$(cat "$1/LISEZMOI.TXT")" = "à moi" ] && ! executer reg query "$cle"
}

# The first one goes without taking along what tells of the second.
se_retire_sans_oublier_l_autre() {
    executer "$installateur" /S "/D=$(windows "$1")" && inscrit "$1" || return 1
    executer "$installe/desinstaller-KORVANE.exe" /S "_?=$(windows "$installe")" && contient_tout "$1" desinstaller-KORVANE.exe &&
        inscrit "$1" && [ ! -e "$installe/KORVANE.EXE" ] && desinstaller "$1" && rien_ne_reste "$1" &&
        executer "$installateur" /S "/D=$(windows "$installe")"
}

# Neither said nor done by halves: the menu cannot be written, then can.
dit_que_le_menu_resiste() {
    local menu=${raccourci%/*} installation retrait
    rm -f "$raccourci"
    chmod a-w "$menu"
    executer "$installateur" /S
    installation=$?
    chmod u+w "$menu"
    contient_tout "$installe" KORVANE.INI desinstaller-KORVANE.exe && executer "$installateur" /S && inscrit "$installe" || return 1
    chmod a-w "$menu"
    executer "$installe/desinstaller-KORVANE.exe" /S "_?=$(windows "$installe")"
    retrait=$?
    chmod u+w "$menu"
    [ "$installation" = 1 ] && [ "$retrait" = 1 ] && inscrit "$installe" && [ -f "$installe/desinstaller-KORVANE.exe" ] &&
        executer "$installateur" /S
}

# What could not be removed can be uninstalled again.
reste_inscrit_quand_un_fichier_resiste() {
    chmod a-w "$installe"
    executer "$installe/desinstaller-KORVANE.exe" /S "_?=$(windows "$installe")"
    local statut=$?
    chmod u+w "$installe"
    [ "$statut" = 1 ] && inscrit "$installe" && [ -f "$installe/desinstaller-KORVANE.exe" ]
}

# As a fresh system: no engine for the .HLP, the .CHM belongs to a program, here the recorder.
sans_moteur() {
    local trace=$WINEPREFIX/drive_c/trace.txt
    rm -f "$WINEPREFIX"/drive_c/windows/{winhlp32.exe,system32/winhlp32.exe,hh.exe}
    cp build/windows-x64/enregistreur.exe "$WINEPREFIX/drive_c/windows/hh.exe"
    KORVANE_ENREGISTREMENT=$(windows "$trace") controler ouvre_l_autre_manuel_sans_moteur_pour_le_premier "$1"
}

essais_archive() {
    local cle_usb="$WINEPREFIX/drive_c/Clé USB été/mes outils"
    essayer "le manuel ne nomme que ce qui est à l'écran" legendes_du_manuel
    essayer "il cite les messages à la lettre" messages_du_manuel
    essayer "l'archive est saine" unzip -tq "$archive"
    essayer "elle se décompresse" decompresser "$cle_usb"
    essayer "elle contient les cinq fichiers" contient_tout "$cle_usb"
    essayer "LISEZMOI.TXT se lit partout" lisezmoi_lisible "$cle_usb"
    essayer "les programmes sont de sa version" meme_version "$cle_usb"
    essayer "les deux manuels en sont" aides_saines "$cle_usb"
    essayer "KORVANE.EXE se suffit" se_suffit "$cle_usb/KORVANE.EXE"
    essayer "PELMIRA.EXE se suffit" se_suffit "$cle_usb/PELMIRA.EXE"
    essayer "parcourt les disques et n'écrit rien" controler parcourt_son_propre_repertoire_puis_quitte "$cle_usb"
    essayer "répertoire sans écriture : parcourt" protege "$cle_usb" controler parcourt_son_propre_repertoire_puis_quitte "$cle_usb"
    essayer "répertoire sans écriture : le dit" protege "$cle_usb" \
        controler travaille_sans_pouvoir_ecrire_ses_reglages_et_le_dit "$cle_usb"
    if [ -n "${KORVANE_D:-}" ]; then essayer "disque protégé : le dit" sur_disque_protege; else echo "laissé : paquet sur disque protégé"; fi
    essayer "le visualiseur montre un fichier" controler son_visualiseur_montre_un_fichier "$cle_usb"
    printf '[Options]\r\nAide en ligne=Oui\r\nIconis\xe9=Oui\r\n' >"$cle_usb/KORVANE.INI"
    essayer "ouvre son manuel" controler ouvre_son_manuel "$cle_usb"
    essayer "sans moteur d'aide, ouvre l'autre manuel" sans_moteur "$cle_usb"
    essayer "un nouveau venu s'en sert" outils/nouveau_venu.sh
}

essais_installateur() {
    local ailleurs="$WINEPREFIX/drive_c/Programmes à moi/KORVANE"
    essayer "ne s'installe pas dans un répertoire réservé" refuse_dans_un_repertoire_reserve "$WINEPREFIX/drive_c/Reserve"
    essayer "laisse les fichiers d'autrui" respecte_les_fichiers_d_autrui "$WINEPREFIX/drive_c/Autrui"
    essayer "s'installe en silence" executer "$installateur" /S
    essayer "installe tous les fichiers" contient_tout "$installe" desinstaller-KORVANE.exe
    essayer "s'inscrit dans la liste des programmes et le menu" inscrit "$installe"
    essayer "le programme installé parcourt les disques" controler parcourt_son_propre_repertoire_puis_quitte "$installe"
    essayer "remplace une version plus ancienne" remplace_en_gardant_les_reglages
    essayer "ne se laisse pas remplacer pendant qu'il sert" refuse_pendant "$installateur" /S
    essayer "ne se laisse pas retirer pendant qu'il sert" refuse_pendant "$installe/desinstaller-KORVANE.exe" \
        "/S _?=$(windows "$installe")"
    essayer "dit que le menu résiste" dit_que_le_menu_resiste
    essayer "installé deux fois, se retire une fois" se_retire_sans_oublier_l_autre "$WINEPREFIX/drive_c/Seconde"
    essayer "un fichier qui résiste le laisse dans la liste" reste_inscrit_quand_un_fichier_resiste
    echo "à moi" >"$installe/notes.txt"
    essayer "se désinstalle en silence" desinstaller "$installe"
    essayer "laisse ce qui est à l'utilisateur, et cela seul" ne_laisse_que_les_fichiers_de_l_utilisateur
    rm -rf "$installe"
    local -a mots
    # The path comes last and without quotes, as the installer wants it.
    read -r -a mots <<<"$(windows "$ailleurs")"
    essayer "s'installe dans le répertoire demandé" executer "$installateur" /S "/D=${mots[0]}" "${mots[@]:1}"
    essayer "y installe tous les fichiers" contient_tout "$ailleurs" desinstaller-KORVANE.exe
    essayer "s'en désinstalle" desinstaller "$ailleurs"
    essayer "ne laisse rien" rien_ne_reste "$ailleurs"
}

outils/prefixe.sh chauffer "$WINEPREFIX" build/windows-x64/gardien.exe
if [ ! -f "$archive" ] || [ ! -f "$installateur" ]; then
    echo "échec : pas de paquet, ./package.sh le fait"
    echoues=1
else
    essais_archive
    essais_installateur
fi
fermer_wine
echo "$passes passed, $echoues failed"
[ "$echoues" = 0 ] && [ "$passes" != 0 ]
