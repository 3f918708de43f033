# shellcheck shell=bash
# Sourced by the scripts that run Wine: its environment, and the two precautions that every start needs.
#
# A program started by Wine leaves services behind that inherit its outputs: a pipe would stay open long after it.
# So every start here reads nothing, writes to a file, and is limited in time.

export LC_ALL=C.UTF-8 WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-"mscoree,mshtml=;winemenubuilder.exe=d"}

# lancer_wine SECONDS OUTPUT PROGRAM ARGUMENTS... : the program's exit status, 124 when it took too long.
lancer_wine() {
    local delai=$1 sortie=$2
    shift 2
    timeout -k 5 "$delai" wine "$@" </dev/null >"$sortie" 2>&1
}

# Ends everything that runs in $WINEPREFIX.
fermer_wine() {
    [ -d "${WINEPREFIX:-}" ] || return 0
    timeout 20 wineserver -k </dev/null >/dev/null 2>&1 || true
    timeout 20 wineserver -w </dev/null >/dev/null 2>&1 || true
    return 0
}
