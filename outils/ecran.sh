# shellcheck shell=bash
# Sourced by the scripts that draw windows: an X screen of their own.

# allumer_ecran WIDTHxHEIGHT : on the first free number; sets $ecran, its process, and $DISPLAY. Fails when none starts.
allumer_ecran() {
    local numero
    numero=$(mktemp)
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$numero" </dev/null >/dev/null 2>&1 &
    ecran=$!
    for _ in $(seq 100); do
        [ -s "$numero" ] && break
        sleep 0.1
    done
    DISPLAY=:$(cat "$numero")
    rm -f "$numero"
    if [ "$DISPLAY" = : ]; then
        eteindre_ecran
        echo "Xvfb n'a pas démarré" >&2
        return 1
    fi
    export DISPLAY
}

eteindre_ecran() {
    unset DISPLAY
    [ -n "${ecran:-}" ] || return 0
    kill "$ecran" 2>/dev/null || true
    wait "$ecran" 2>/dev/null || true
    ecran=
    return 0
}

# en_png DIRECTORY : the pictures that the programs left there.
en_png() {
    local image
    for image in "$1"/*.bmp; do
        [ -f "$image" ] || continue
        convert "$image" "${image%.bmp}.png" && rm -f "$image"
    done
    return 0
}
