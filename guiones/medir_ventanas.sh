#!/usr/bin/env bash
# Measures what a person waits for in the windows: start to usable window (300 ms, and 100 for the wait of its first picture),
# opening of a report, memory. Fails above the limits.
#   guiones/medir_ventanas.sh [PROGRAM [TIMES]]      default: build/entrega/src/shell/tabira 5
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source guiones/preparar.sh
source guiones/pantalla.sh
preparar_pantalla "${1:-}"
abrir_pantalla 1280 800

ahora() { echo "${EPOCHREALTIME/[.,]/}"; } # microseconds
# Milliseconds from moment $1 until the process does nothing more: its last work before a quarter of a second without any.
hasta_quieto() {
    local usado=0 antes=0 ultimo=$1 t
    while t=$(ahora) && [ $((t - ultimo)) -lt 250000 ]; do
        read -r usado _ <"/proc/$proceso/schedstat"
        [ "$usado" = "$antes" ] || ultimo=$t
        antes=$usado
    done
    echo $(((ultimo - $1) / 1000))
}
mediana() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

for ((i = 0; i < ${2:-5}; ++i)); do
    t=$(ahora)
    "$programa" 2>/dev/null &
    proceso=$!
    hasta_quieto "$t" >>"$temporal/inicio"
    sleep 1
    activar
    teclas alt+d t alt+a Return; escribir 1990; teclas Tab; escribir 2005; teclas Return
    escribir 'SER T = TEND' 'SER Y = T + RND' 'MC Y 1 T'
    teclas ctrl+a alt+p p; sleep 0.3
    t=$(ahora)
    xdotool key Return
    hasta_quieto "$t" >>"$temporal/informe"
    xdotool search --onlyvisible --name 'cuadrados ordinarios' >/dev/null || rendirse "no se abrió el informe"
    awk '/VmRSS/ { print int($2 / 1024) }' "/proc/$proceso/status" >>"$temporal/memoria"
    kill "$proceso"; wait "$proceso" 2>/dev/null || true
done
# MEASURE WORDS UNIT LIMIT: tells the median; above the limit the script fails.
estado=0
contar() {
    local v
    v=$(mediana <"$temporal/$1")
    decir "$2: $v $3 (como mucho $4)"
    [ "$v" -le "$4" ] || estado=1
}
contar inicio "Inicio hasta la ventana utilizable, con su espera" ms 400
contar informe "Informe, de la respuesta a la ventana en reposo" ms 50
contar memoria "Memoria con el informe abierto" MB 150
exit "$estado"
