#!/bin/bash
# Wine prefixes for running and testing.
#
#   prefixe.sh modele MODELE                      makes the template once; does nothing when it is up to date
#   prefixe.sh nouveau MODELE PREFIXE [null|nu|bureau] [DPI]   a fresh prefix from the template, in a fraction of a second;
#                                                 drawn nowhere, on a bare X server, or beside a window manager
#   prefixe.sh chauffer PREFIXE [GARDIEN.EXE]     starts the server and keeps its desktop alive between programs
#   prefixe.sh fermer PREFIXE                     ends everything that runs in it
set -euo pipefail
ici=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$ici/wine.sh"

empreinte() {
    { wine --version 2>/dev/null; cat "$ici/prefixe.sh"; } | cksum
}

registre() {
    cat <<'FIN'
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\Software\Wine\Drivers]
"Graphics"="null"
"Audio"=""

[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="N"

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\Control Panel\Desktop]
"LogPixels"=dword:00000060

[HKEY_CURRENT_USER\Control Panel\International]
FIN
    printf '"sThousand"="\u00a0"\n"sDecimal"=","\n"sGrouping"="3;0"\n"sDate"="/"\n"sTime"=":"\n"iTime"="1"\n'
    printf '"sShortDate"="dd/MM/yyyy"\n"sTimeFormat"="HH:mm:ss"\n"sShortTime"="HH:mm"\n'
}

creer_modele() {
    local modele
    modele=$(realpath -m "$1")
    if [ -f "$modele/pret" ] && [ "$(cat "$modele/pret")" = "$(empreinte)" ]; then return 0; fi
    echo "Préfixe Wine modèle : $modele"
    export WINEPREFIX=$modele
    unset DISPLAY
    fermer_wine
    rm -rf "$modele"
    mkdir -p "$(dirname "$modele")"
    timeout -k 5 180 wineboot -i </dev/null >/dev/null 2>&1 || { echo "wineboot a échoué" >&2; return 1; }
    # The registry tool reads other alphabets only from UTF-16.
    { printf '\xff\xfe'; registre | iconv -f UTF-8 -t UTF-16LE; } >"$modele/reglages.reg"
    lancer_wine 60 /dev/null regedit /S "$modele/reglages.reg" || { echo "regedit a échoué" >&2; return 1; }
    cp /usr/share/wine/fonts/*.ttf "$modele/drive_c/windows/Fonts/" 2>/dev/null || true
    # The user's folders are links to the real home: what a test does there stays in the prefix.
    find "$modele/drive_c/users" -type l | while IFS= read -r lien; do
        rm "$lien"
        mkdir "$lien"
    done
    fermer_wine
    empreinte >"$modele/pret"
}

# Directories are made, files are links into the template, but for those that programs write.
nouveau() {
    local modele prefixe ecran=${3:-null} ppp=${4:-96} graphique=x11 gere=N
    modele=$(realpath "$1") prefixe=$(realpath -m "$2")
    [ "$ecran" = null ] && graphique=null
    [ "$ecran" = bureau ] && gere=Y
    WINEPREFIX=$prefixe fermer_wine
    rm -rf "$prefixe"
    mkdir -p "$prefixe/dosdevices"
    cp -as "$modele/drive_c" "$prefixe/drive_c"
    local fichier
    for fichier in win.ini system.ini; do
        rm -f "$prefixe/drive_c/windows/$fichier"
        cp "$modele/drive_c/windows/$fichier" "$prefixe/drive_c/windows/$fichier"
    done
    cp -p "$modele"/{system,user,userdef}.reg "$modele/.update-timestamp" "$prefixe/"
    ln -s ../drive_c "$prefixe/dosdevices/c:"
    ln -s / "$prefixe/dosdevices/z:"
    sed -i -e "s/^\"Graphics\"=.*/\"Graphics\"=\"$graphique\"/" -e "s/^\"Managed\"=.*/\"Managed\"=\"$gere\"/" \
        -e "s/^\"LogPixels\"=.*/\"LogPixels\"=dword:$(printf %08x "$ppp")/" "$prefixe/user.reg"
}

# The server is started apart from any program, so that what it starts inherits nothing of ours.
chauffer() {
    WINEPREFIX=$(realpath "$1")
    export WINEPREFIX
    local gardien=${2:-}
    timeout 30 wineserver -p120 </dev/null >/dev/null 2>&1 || true
    timeout -k 5 120 wine wineboot </dev/null >/dev/null 2>&1 || return 1
    [ -n "$gardien" ] || return 0
    rm -f "$WINEPREFIX/drive_c/gardien.pret"
    setsid wine "$gardien" 3600 </dev/null >/dev/null 2>&1 &
    for _ in $(seq 200); do
        [ -f "$WINEPREFIX/drive_c/gardien.pret" ] && return 0
        sleep 0.05
    done
    echo "le gardien n'a pas démarré" >&2
    return 1
}

action=${1:-}
shift || true
case $action in
    modele) creer_modele "$@" ;;
    nouveau) nouveau "$@" ;;
    chauffer) chauffer "$@" ;;
    fermer) WINEPREFIX=$(realpath -m "$1") fermer_wine ;;
    *)
        sed -n '2,9s/^# \{0,1\}//p' "$0" >&2
        exit 2
        ;;
esac
