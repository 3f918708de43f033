#!/bin/bash
# installer.sh ROLE... : installs the Debian packages that a role needs and that are missing; fast when nothing is.
#
#   construire     the Windows compiler and the build tools
#   paquet         what makes and opens the package
#   executer       Wine and fonts
#   demonstration  a screen of its own and what drives the program there
#   essais         analyses, sanitizers, fuzzing, drives with faults, reading what was printed
set -euo pipefail

paquets=()
for role in "$@"; do
    case $role in
        construire) paquets+=(g++-mingw-w64-x86-64 cmake ninja-build ccache librsvg2-bin icoutils halibut) ;;
        paquet) paquets+=(nsis zip unzip) ;;
        executer) paquets+=(wine wine64 fonts-wine fonts-liberation) ;;
        demonstration) paquets+=(xvfb imagemagick googletest) ;;
        essais)
            paquets+=(g++ clang clang-format clang-tidy libclang-rt-dev googletest xvfb imagemagick)
            paquets+=(util-linux xfsprogs dosfstools e2fsprogs ghostscript poppler-utils procps)
            ;;
        *)
            echo "rôle inconnu : $role" >&2
            exit 2
            ;;
    esac
done

if ! command -v dpkg-query >/dev/null; then
    echo "Ce système n'a pas de paquets Debian : à installer à la main : ${paquets[*]}" >&2
    exit 0
fi

# dpkg-query fails when it knows nothing of one of them, which is no fault here.
installes=$({ dpkg-query -W -f='${db:Status-Abbrev}${Package}\n' "${paquets[@]}" 2>/dev/null || true; } | sed -n 's/^ii *//p')
manquants=()
for paquet in "${paquets[@]}"; do
    grep -qxF -- "$paquet" <<<"$installes" || manquants+=("$paquet")
done
[ ${#manquants[@]} -eq 0 ] && exit 0

administrer=()
if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || {
        echo "Paquets manquants, et ni root ni sudo : ${manquants[*]}" >&2
        exit 1
    }
    administrer=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
apt() {
    "${administrer[@]}" env DEBIAN_FRONTEND=noninteractive timeout 1800 apt-get -qq -o DPkg::Lock::Timeout=300 "$@" </dev/null
}
echo "Mise à jour de la liste des paquets"
apt update
for paquet in $(printf '%s\n' "${manquants[@]}" | sort -u); do echo "Installation : $paquet"; done
apt install -y --no-install-recommends "${manquants[@]}" >/dev/null
