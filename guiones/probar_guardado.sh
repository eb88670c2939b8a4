#!/usr/bin/env bash
# Interrupts saves of a work file, TIMES by kill -9 at random moments and TIMES by a disk that takes only so many bytes, and
# looks each time whether the file is the old or the new one, whole, and opens.
#   guiones/probar_guardado.sh [PROGRAM [TIMES]]      default: build/entrega/src/lote/tabira-lote 200
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source guiones/preparar.sh
programa=$(readlink -f "${1:-build/entrega/src/lote/tabira-lote}")
veces=${2:-200}
[ -x "$programa" ] || rendirse "falta $programa: ejecute antes ./ejecutar.sh"
[[ $veces =~ ^[1-9][0-9]*$ ]] || rendirse "las veces son un número, no '$veces'"
temporal=$(mktemp -d)
trap 'rm -rf "$temporal"' EXIT
cd "$temporal"

# Two states of a large work file. What is saved has the same bytes whenever it is saved under the same name.
preparar() { # STATE OPERATOR
    mkdir "$1"
    {
        echo "SER T = TEND / 7"
        for ((s = 1; s <= 90; ++s)); do echo "SER S$s = T $2 $s.1"; done
        echo "MAT M = {S1 S2 S3}"
    } | "$programa" --tipo sin --procesar - --guardar "$1/trabajo.TR2" >/dev/null ||
        rendirse "no se pudo preparar el archivo $1"
}
preparar viejo +
preparar nuevo '*'
mkdir salida
cmp -s viejo/trabajo.TR2 nuevo/trabajo.TR2 && rendirse "los dos archivos son iguales"
fichero=salida/trabajo.TR2

# The saves of one run, each of the state that the file doesn't have.
guardados=()
for ((i = 0; i < 5; ++i)); do
    guardados+=(--abrir nuevo/trabajo.TR2 --guardar "$fichero" --abrir viejo/trabajo.TR2 --guardar "$fichero")
done
ahora() { echo "${EPOCHREALTIME/[.,]/}"; } # microseconds
mirar() { # WHAT HAPPENED
    if cmp -s "$fichero" viejo/trabajo.TR2; then
        viejos=$((viejos + 1))
    elif cmp -s "$fichero" nuevo/trabajo.TR2; then
        nuevos=$((nuevos + 1))
    else
        rendirse "$1: el archivo no es el viejo ni el nuevo"
    fi
    "$programa" --abrir "$fichero" >/dev/null || rendirse "$1: el archivo no se abre"
}

cp viejo/trabajo.TR2 "$fichero"
empieza=$(ahora)
"$programa" "${guardados[@]}" >/dev/null || rendirse "no se pudo guardar"
tarda=$(($(ahora) - empieza))
viejos=0 nuevos=0 a_medias=0
for ((vez = 1; vez <= veces; ++vez)); do
    "$programa" "${guardados[@]}" >/dev/null 2>&1 &
    proceso=$!
    espera=$(((RANDOM * 32768 + RANDOM) % tarda))
    sleep "$(printf '%d.%06d' $((espera / 1000000)) $((espera % 1000000)))"
    kill -9 "$proceso" 2>/dev/null || true
    wait "$proceso" 2>/dev/null || true
    # What was being written lies beside the file, under a name that nobody takes for it.
    a_medias=$((a_medias + $(find salida -name '.tabira*' | wc -l)))
    rm -f salida/.tabira*
    mirar "muerto a los $espera microsegundos"
done
decir "$veces veces muerto: $viejos veces el viejo, $nuevos el nuevo; $a_medias veces a medio escribir otro"
[ "$viejos" -gt 0 ] && [ "$nuevos" -gt 0 ] || rendirse "los momentos no repartieron los dos estados"

# As on a full disk: the system refuses what goes beyond the limit, and the program hears it as a failed write.
cp viejo/trabajo.TR2 "$fichero"
bloques=$(($(stat -c %s nuevo/trabajo.TR2) / 1024))
viejos=0 nuevos=0
for ((vez = 1; vez <= veces; ++vez)); do
    caben=$((RANDOM % bloques))
    if (trap '' XFSZ; ulimit -f "$caben"; "$programa" --abrir nuevo/trabajo.TR2 --guardar "$fichero" >/dev/null 2>&1); then
        rendirse "con $caben kB de sitio dice que ha guardado"
    fi
    [ "$(ls -A salida)" = trabajo.TR2 ] || rendirse "con $caben kB de sitio queda algo a medio escribir"
    mirar "con $caben kB de sitio"
done
[ "$viejos" -eq "$veces" ] || rendirse "un guardado que falló cambió el archivo"
decir "$veces veces sin sitio: el viejo, entero"
