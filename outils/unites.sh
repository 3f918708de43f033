#!/bin/bash
# unites.sh COMMAND ARGUMENTS... : runs a command with test drives in $WINEPREFIX, which go away with it.
#
#   A:  a diskette of 1.44 MB that really fills (two diskettes, one in the drive at a time)
#   D:  a second disk of 64 MB
#   E:  a read-only medium
#   F:  a drive without medium
#
# The mounts stand in a mount namespace of their own. As an ordinary user, D: and F: are imitated without loop devices; where
# nothing may be mounted at all the command runs without the drives. KORVANE_A, _D, _E and _F are 1 for the drives that exist, _R where D: can be torn out.
# A test changes them by requests written to $KORVANE_UNITES/commande; see `obeir`.
set -uo pipefail
ici=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$ici/wine.sh"
: "${WINEPREFIX:?}"
# Nothing that is tested may come out of a printer of this machine.
export CUPS_SERVER=/nonexistent

# The command runs as the user who asked for it. Root reads and writes whatever the permissions say, unless it gives that up.
sans_privilege() {
    if [ "${KORVANE_ESPACE:-}" = utilisateur ]; then
        unshare -U --map-user="$KORVANE_UID" --map-group="$KORVANE_GID" "$@"
    elif [ "$(id -u)" = 0 ] && setpriv --bounding-set=-dac_override,-dac_read_search true 2>/dev/null; then
        setpriv --bounding-set=-dac_override,-dac_read_search "$@"
    else
        "$@"
    fi
}

if [ -z "${KORVANE_ESPACE:-}" ]; then
    fermer_wine # drives are looked at when the server starts
    if [ "$(id -u)" = 0 ] && unshare -m --propagation private true 2>/dev/null; then
        KORVANE_ESPACE=racine exec unshare -m --propagation private bash "$0" "$@"
    elif unshare -Urm true 2>/dev/null; then
        export KORVANE_UID KORVANE_GID
        KORVANE_UID=$(id -u) KORVANE_GID=$(id -g)
        KORVANE_ESPACE=utilisateur exec unshare -Urm bash "$0" "$@"
    fi
    echo "unites.sh : montages refusés, pas d'unités d'essai" >&2
    sans_privilege "$@"
    exit
fi

unites=$(mktemp -d "${TMPDIR:-/tmp}/unites.XXXXXX")
lecteurs=$WINEPREFIX/dosdevices
boucles=()

demonter_tout() {
    sans_privilege bash -c 'source "$1" && fermer_wine' fermer "$ici/wine.sh"
    [ -n "${gardien:-}" ] && kill "$gardien" 2>/dev/null
    rm -f "$lecteurs"/[adef]: "$lecteurs"/[adef]::
    cd /
    umount -l "$unites"/{disquette1,disquette2,d,e,f} 2>/dev/null
    local boucle
    for boucle in "${boucles[@]}"; do losetup -d "$boucle" 2>/dev/null; done
    rm -rf --one-file-system "$unites"
}
trap demonter_tout EXIT

# etiquette LETTER LABEL SERIAL : the label that the drive shows.
etiquette() {
    local image=$unites/$1.etiquette boucle
    truncate -s 1440k "$image"
    mkfs.vfat -n "$2" -i "$3" "$image" >/dev/null 2>&1 || return 0
    boucle=$(losetup -f --show "$image" 2>/dev/null) || return 0
    boucles+=("$boucle")
    ln -sfn "$boucle" "$lecteurs/$1::"
}

inserer() {
    ln -sfn "$unites/disquette$1" "$unites/a.neuf" && mv -T "$unites/a.neuf" "$unites/a"
}

monter_disquettes() {
    local i
    for i in 1 2; do
        mkdir -p "$unites/disquette$i"
        mount -t tmpfs -o size=1440k,mode=0777 tmpfs "$unites/disquette$i" || return 1
    done
    inserer 1
}

monter_disque() {
    mkdir -p "$unites/d"
    if [ "$KORVANE_ESPACE" = racine ] && truncate -s 64M "$unites/d.img" && mkfs.ext4 -q -F -m 0 "$unites/d.img" 2>/dev/null &&
        mount -o loop "$unites/d.img" "$unites/d" 2>/dev/null; then
        rmdir "$unites/d/lost+found"
        chmod 0777 "$unites/d"
        etiquette d DONNEES D1D1D1D1
        export KORVANE_R=1
        return 0
    fi
    mount -t tmpfs -o size=64m,mode=0777 tmpfs "$unites/d" && echo DONNEES >"$unites/d/.windows-label"
}

monter_cederom() {
    mkdir -p "$unites/cd/sous" "$unites/e"
    echo "lecture seule" >"$unites/cd/lisez.txt"
    head -c 70000 /dev/urandom >"$unites/cd/gros.dat"
    mount --bind "$unites/cd" "$unites/e" && mount -o remount,ro,bind "$unites/e"
}

# A file system that was shut down answers every access as a drive without medium does.
monter_vide() {
    if [ "$KORVANE_ESPACE" = racine ] && mkdir -p "$unites/f" && truncate -s 320M "$unites/f.img" &&
        mkfs.xfs -q "$unites/f.img" 2>/dev/null && mount -o loop "$unites/f.img" "$unites/f" 2>/dev/null &&
        xfs_io -x -c shutdown "$unites/f" 2>/dev/null; then
        ln -sfn /dev/null "$lecteurs/f::"
        return 0
    fi
    umount "$unites/f" 2>/dev/null
    rm -rf --one-file-system "$unites/f"
    ln -sfn "$unites/absent" "$unites/f"
}

# brancher LETTER TYPE : the drive letter, and what kind of drive the system takes it for.
brancher() {
    ln -sfn "$unites/$1" "$lecteurs/$1:"
    printf '"%s:"="%s"\n' "$1" "$2" >>"$unites/types"
    export "KORVANE_${1^}=1"
}

vider() {
    find "$(readlink -f "$unites/$1")" -mindepth 1 -delete
}

# Files of any size are reserved without being written, where the file system can.
remplir() {
    local racine libres octets
    racine=$(readlink -f "$unites/$1")
    libres=$(($(stat -f -c '%a * %S' "$racine")))
    octets=$((libres - $2))
    [ "$octets" -le 0 ] && return 0
    fallocate -l "$octets" "$racine/.occupe" 2>/dev/null || head -c "$octets" /dev/zero >"$racine/.occupe"
}

# The requests of a test: one line, answered by "fait" or by what went wrong.
obeir() {
    local verbe=$1 unite=${2:-} nombre=${3:-}
    case $verbe in
        disquette) if [ "$unite" = 0 ]; then rm -f "$unites/a"; else inserer "$unite"; fi ;;
        vider) vider "$unite" ;;
        remplir) remplir "$unite" "$nombre" ;;
        proteger) mount -o remount,ro,bind "$(readlink -f "$unites/$unite")" ;;
        deproteger) mount -o remount,rw,bind "$(readlink -f "$unites/$unite")" ;;
        arracher) sync -f "$unites/$unite" && xfs_io -x -c shutdown "$unites/$unite" ;;
        remettre) umount -l "$unites/$unite" && mount -o loop "$unites/$unite.img" "$unites/$unite" ;;
        *) return 1 ;;
    esac
}

veiller() {
    local demande erreur
    while [ -d "$unites" ]; do
        if [ -f "$unites/commande" ]; then
            read -r -a demande <"$unites/commande"
            if erreur=$(obeir "${demande[@]}" 2>&1); then
                echo fait >"$unites/reponse"
            else
                echo "refusé : $erreur" >"$unites/reponse"
            fi
            rm -f "$unites/commande"
        fi
        sleep 0.05
    done
}

: >"$unites/types"
monter_disquettes 2>/dev/null && brancher a floppy
[ -n "${KORVANE_A:-}" ] && [ "$KORVANE_ESPACE" = racine ] && etiquette a DISQUETTE A1A1A1A1
monter_disque && brancher d hd
monter_cederom 2>/dev/null && brancher e cdrom && [ "$KORVANE_ESPACE" = racine ] && etiquette e CDROM E1E1E1E1
monter_vide && brancher f floppy
sed -i '/^\[Software\\\\Wine\\\\Drives\]/,/^$/d' "$WINEPREFIX/system.reg"
{ printf '\n[Software\\\\Wine\\\\Drives] 1\n'; cat "$unites/types"; } >>"$WINEPREFIX/system.reg"
veiller </dev/null >/dev/null 2>&1 &
gardien=$!
export KORVANE_UNITES="Z:${unites//\//\\}"
sans_privilege "$@"
