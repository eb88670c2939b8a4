#!/usr/bin/env bash
# Takes the pictures of docs/capturas/: the program as a user sees it, in a display of its own, at 100 % and 200 %. It takes
# the program of ./ejecutar.sh and the tests of ./probar.sh, which picture the dialogs that no command opens yet.
#   guiones/capturas.sh [PROGRAM]      default: build/entrega/src/shell/tabira
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source guiones/preparar.sh
source guiones/pantalla.sh
destino=$PWD/docs/capturas
mkdir -p "$destino"
preparar_pantalla "${1:-}"
pruebas=build/desarrollo/tests/escritorio/pruebas_escritorio
[ -x "$pruebas" ] || rendirse "falta $pruebas: ejecute antes ./probar.sh"
hechas=0
captura() {
    sleep 0.5
    import -window root "$destino/$1$sufijo.png"
    hechas=$((hechas + 1))
}

tipos_de_datos() { # every kind and its dialogs
    teclas alt+d t alt+s Return; captura observaciones; teclas Escape
    teclas alt+t Return; escribir 1990.1; teclas Tab; escribir 2005.4; captura periodos_trimestrales; teclas Escape
    teclas alt+m Return; escribir 1990.01; teclas alt+f; escribir 2005.12; captura periodos_mensuales; teclas Escape
    teclas alt+p Return; captura panel
    teclas alt+d; escribir 3; teclas alt+i; escribir 1990; teclas alt+f; escribir 1999; captura panel_constante; teclas Escape
    teclas alt+v alt+d; escribir 1990; teclas alt+i; escribir 3; teclas alt+a; escribir 1991; teclas Tab; escribir 2
    teclas alt+a; captura panel_periodos; teclas Escape
    teclas alt+i alt+d; escribir 1; teclas alt+a; escribir 1990; teclas alt+r; escribir 1991; teclas alt+r
    captura panel_individuos; teclas Escape
    teclas alt+t; escribir 1; teclas Tab; escribir Peñón; teclas alt+a; escribir 2; teclas Tab; escribir Vega; teclas alt+a
    captura panel_etiquetas; teclas Escape Escape Escape
}
trabajo() { # a data type, statements, a report
    teclas alt+d t; captura tipos_datos
    teclas alt+a Return; sleep 0.4; escribir 1990; teclas Tab; escribir 2005; captura periodos
    teclas Return; sleep 0.4
    escribir '; Una tendencia con un choque en 1999' 'SER T = TEND' 'SER X = T + POT(T ,2) / 10' \
        'SER Y = 3 + 2 * X' 'OBS Y[1999] = 60' 'MAT M = {1 X T}' 'MC Y 1 X T'
    captura ventana_principal
    teclas ctrl+a alt+p p; sleep 0.5; captura pregunta
    teclas Return; sleep 0.5; captura informe
    teclas shift+F10; captura informe_menu; teclas Escape Escape; sleep 0.3
    teclas alt+d r; captura relacion_series; teclas Escape
    teclas alt+d d; captura relacion_matrices; teclas Escape
    teclas alt+d l; captura relacion_escalares; teclas Escape
    teclas alt+d m m Return; captura muestra_actual; teclas Escape
    teclas alt+p m; captura muestra; teclas Escape
    teclas alt+t Up Return; captura ultima_regresion; teclas Escape
    teclas alt+d t Tab space Return; captura aviso_de_perdida; teclas Return Escape Escape
}
ayuda() {
    teclas alt+y r; captura ayuda_reglas; teclas Return; captura ayuda_reglas_2; teclas Escape
    teclas alt+y t; captura ayuda_series; teclas Escape
    teclas alt+y n; captura ayuda_control; teclas Escape
    teclas alt+y a; captura acerca_de; teclas Escape
    teclas alt+c o; captura no_ensamblada; teclas Escape
}

for escala in 1 2; do
    sufijo=$([ "$escala" = 1 ] || echo _200)
    decir "Capturas al $((escala * 100)) %"
    abrir_pantalla $((1024 * escala)) $((768 * escala))
    QT_SCALE_FACTOR=$escala "$programa" 2>/dev/null &
    activar
    sleep 2
    activar
    teclas alt+p p; captura sin_tipo; teclas Return
    tipos_de_datos
    trabajo
    ayuda
    teclas alt+F4; captura cierre
    cerrar_pantalla
    TABIRA_CAPTURAS=$temporal QT_SCALE_FACTOR=$escala "$pruebas" --gtest_filter=Ajuste.ConLasLetrasDelUsuario >/dev/null
    mv "$temporal/FormatoDecimal.png" "$destino/decimales$sufijo.png"
    mv "$temporal/Seleccion.png" "$destino/seleccion$sufijo.png"
    hechas=$((hechas + 2))
done
decir "Hechas: $hechas en docs/capturas/"
