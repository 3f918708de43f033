#!/bin/bash
# Makes the two packages in build/paquet/: an archive that runs from any directory, a USB stick included, and an installer that
# installs and uninstalls silently as well (/S). Installs what it needs (Debian, apt-get). outils/essai_paquet.sh tries them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
paquet=build/paquet
fichiers=(KORVANE.EXE PELMIRA.EXE KORVANE.HLP KORVANE.CHM LISEZMOI.TXT)

construire() {
    local journal=$paquet/construction.txt
    { timeout 300 cmake --preset windows-x64 &&
        timeout 1800 cmake --build --preset windows-x64 --target KORVANE PELMIRA aide; } </dev/null >"$journal" 2>&1 || {
        tail -40 "$journal" >&2
        echo "La construction a échoué : $journal" >&2
        exit 1
    }
}

# Windows' own editor of every age reads it: marked as UTF-8, lines ended by carriage return and line feed.
lisezmoi() {
    printf '\xef\xbb\xbf'
    sed -e "s/@VERSION@/$version/g" -e 's/$/\r/' paquet/LISEZMOI.txt
}

rassembler() {
    local fichier
    mkdir "$paquet/fichiers"
    for fichier in "${fichiers[@]}"; do
        [ "$fichier" = LISEZMOI.TXT ] || cp "build/windows-x64/$fichier" "$paquet/fichiers/"
    done
    lisezmoi >"$paquet/fichiers/LISEZMOI.TXT"
    chmod 644 "$paquet"/fichiers/*
}

archiver() {
    (cd "$paquet/fichiers" && zip -q -X -9 "../KORVANE-$version.zip" "${fichiers[@]}")
}

# Version and kilobytes are shown in the system's list of programs.
faire_installateur() {
    local taille
    taille=$(du -ck "$paquet"/fichiers/* | tail -1 | cut -f1)
    makensis -V2 -INPUTCHARSET UTF8 -NOCD -WX "-DVERSION=$version" "-DTAILLE=$taille" "-DFICHIERS=$paquet/fichiers" \
        -DICONE=build/windows-x64/ressources/korvane.ico "-DSORTIE=$paquet/KORVANE-$version-installation.exe" \
        paquet/installation.nsi </dev/null >"$paquet/installateur.txt" 2>&1 || {
        cat "$paquet/installateur.txt" >&2
        exit 1
    }
}

outils/installer.sh construire paquet
rm -rf "$paquet"
mkdir -p "$paquet"
construire
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows-x64/CMakeCache.txt)
rassembler
archiver
faire_installateur
ls -l "$paquet"/KORVANE-*
