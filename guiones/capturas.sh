#!/usr/bin/env bash
# Takes the pictures of docs/capturas/: the program as a user sees it, in a display of its own, at 100 % and 200 %.
#   guiones/capturas.sh [PROGRAM]      default: build/entrega/src/shell/tabira
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source guiones/preparar.sh
instalar xvfb openbox xdotool imagemagick x11-utils fonts-dejavu-core

programa=$(readlink -f "${1:-build/entrega/src/shell/tabira}")
[ -x "$programa" ] || rendirse "falta $programa: ejecute antes ./ejecutar.sh"
destino=$PWD/docs/capturas
mkdir -p "$destino"
temporal=$(mktemp -d)
export HOME=$temporal XDG_RUNTIME_DIR=$temporal LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb DISPLAY=:93
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$temporal"' EXIT

abrir() { # SCALE WIDTH HEIGHT
    Xvfb "$DISPLAY" -screen 0 "$2x$3x24" -dpi 96 >/dev/null 2>&1 &
    servidor=$!
    sleep 1
    openbox >/dev/null 2>&1 &
    sleep 1.5 # a window that is mapped before the window manager stands may stay hidden
    QT_SCALE_FACTOR=$1 "$programa" 2>/dev/null &
    ventana=$(timeout 30 xdotool search --sync --onlyvisible --class tabira | head -n 1)
    sleep 2
    timeout 5 xdotool windowactivate --sync "$ventana" || true
}
cerrar() { kill "$servidor"; wait 2>/dev/null || true; }
teclas() { for t in "$@"; do xdotool key --clearmodifiers "$t"; sleep 0.25; done; }
escribir() { # LINE...: each but the last is closed by Enter
    local primera=si linea
    for linea in "$@"; do
        [ "$primera" = si ] || xdotool key Return
        primera=no
        xdotool type --delay 8 -- "$linea"
    done
    sleep 0.3
}
captura() { sleep 0.5; import -window root "$destino/$1$sufijo.png"; }

recorrido() { # the walk that shows every window
    # Choose annual data, 1990 to 2005.
    teclas alt+d t; captura tipos_datos
    teclas alt+a Return; sleep 0.4; escribir 1990; teclas Tab; escribir 2005; captura periodos
    teclas Return; sleep 0.4
    escribir '; Una tendencia con un choque en 1999' 'SER T = TEND' 'SER X = T + POT(T ,2) / 10' \
        'SER Y = 3 + 2 * X' 'OBS Y[1999] = 60' 'MC Y 1 X T'
    captura ventana_principal
    teclas ctrl+a alt+p p; sleep 0.5; captura pregunta
    teclas Return; sleep 0.5; captura informe
    teclas Escape; sleep 0.3
    teclas alt+d r; captura relacion_series; teclas Escape
    teclas alt+d l; captura relacion_escalares; teclas Escape
    teclas alt+d m m Return; captura muestra_actual; teclas Escape
    teclas alt+p m; captura muestra; teclas Escape
    teclas alt+t Up Return; captura ultima_regresion; teclas Escape
    teclas alt+y r; captura ayuda_reglas; teclas Return; captura ayuda_reglas_2; teclas Escape Escape
    teclas alt+y t; captura ayuda_series; teclas Escape
    teclas alt+y n; captura ayuda_control; teclas Escape
    teclas alt+y a; captura acerca_de; teclas Escape
    teclas alt+c o; captura no_ensamblada; teclas Escape
    teclas alt+d t alt+p Return Return; captura panel; teclas Escape Escape
}

for escala in 1 2; do
    sufijo=$([ "$escala" = 1 ] || echo _200)
    decir "Capturas al $((escala * 100)) %"
    abrir "$escala" $((1024 * escala)) $((768 * escala))
    recorrido
    cerrar
done
decir "Hechas: $(ls "$destino" | wc -l) en docs/capturas/"
