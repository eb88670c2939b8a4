#!/usr/bin/env bash
# Installs what is missing, builds Tabira and runs it. With a display the desktop program opens; without one its example
# runs in the terminal: Klein's consumption function, from the data to the report.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
source guiones/preparar.sh

preparar_compilacion
compilar entrega
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    decir "Abriendo Tabira"
    exec build/entrega/src/shell/tabira
fi
decir "Sin pantalla: se ejecuta el ejemplo en el terminal"
decir "Función de consumo de Klein (Estados Unidos, 1921 a 1941): ejemplos/klein.csv, ejemplos/klein.txt"
exec build/entrega/src/lote/tabira-lote --tipo anual:1920:1941 --importar ejemplos/klein.csv --procesar ejemplos/klein.txt
