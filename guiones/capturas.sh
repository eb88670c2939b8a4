#!/usr/bin/env bash
# Takes the pictures of docs/capturas/: the program as a user sees it, in a display of its own, at 100 % and 200 %, driven by
# its keyboard alone but for what only the mouse does. It takes the programs of ./ejecutar.sh. Each subject is a file
# guiones/capturas_SUBJECT.sh; some are taken in a dark theme, too. With all of them it also writes the table of
# docs/capturas/README.md.
#   [ESCALAS=1] guiones/capturas.sh [PROGRAM [SUBJECT...]]      default: build/entrega/src/shell/tabira, all subjects
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source guiones/preparar.sh
source guiones/pantalla.sh
TEMAS=(trabajo comodidades datos estimacion contrastes traza analisis graficos ayuda)
OSCUROS=' comodidades traza ' # those with a dark theme
temas=("${@:2}")
[ ${#temas[@]} -gt 0 ] || temas=("${TEMAS[@]}")
for tema in "${temas[@]}"; do source "guiones/capturas_$tema.sh"; done
destino=$PWD/docs/capturas
mkdir -p "$destino"
preparar_pantalla "${1:-}"
instalar qt6ct
mkdir -p "$temporal/.config/qt6ct"
printf '[Appearance]\ncolor_scheme_path=/usr/share/qt6ct/colors/darker.conf\ncustom_palette=true\nstyle=Fusion\n
[Fonts]\nfixed="monospace,9"\ngeneral="Sans Serif,9"\n' \
    >"$temporal/.config/qt6ct/qt6ct.conf"
sin_ventanas=$(dirname "$programa")/../lote/tabira-lote
[ -x "$sin_ventanas" ] || rendirse "falta $sin_ventanas: ejecute antes ./ejecutar.sh"

# Work files, for the programs that begin with data, where the choosers of files look.
trabajos=$temporal/Documents
mkdir "$trabajos" "$temporal/tomas"
"$sin_ventanas" --tipo anual:1920:1941 --importar ejemplos/klein.csv --sentencia 'SER SALARIOS = SALPRIV + SALPUB' \
    --sentencia 'MAT M = {CONSUMO BENEF}' --sentencia 'ESC MEDIO = MEDSER(CONSUMO)' --guardar "$trabajos/KLEIN.TR2" >/dev/null
"$sin_ventanas" --tipo trimestral:1990.1:2005.4 --sentencia 'SER X = TEND * TEND / 20' \
    --sentencia 'SER Y = X + (10 * LN(TEND))' --guardar "$trabajos/TRIM.TR2" >/dev/null

"$sin_ventanas" --tipo sin --importar ejemplos/norris.csv --guardar "$trabajos/NORRIS.TR2" >/dev/null

# Starts the program anew, until its window stands.
abrir_programa() {
    terminar
    QT_SCALE_FACTOR=$escala QT_QPA_PLATFORMTHEME=${luz:+qt6ct} "$programa" 2>/dev/null &
    proceso=$!
    activar
    reposo
}
# The same; with a name, with that work.
empezar() { # [NAME]
    abrir_programa
    esperar Tabira
    [ $# -eq 0 ] || { abrir "Abrir archivo de trabajo" alt+a a; escribir "$trabajos/$1.TR2"; abrir "Tabira: $1" Return; }
}
# Closes what is open before the main window.
volver() {
    local i
    for ((i = 0; i < 10; ++i)); do
        [[ $(xdotool getactivewindow getwindowname 2>/dev/null) != Tabira* ]] || return 0
        teclas Escape
    done
    rendirse 'no se vuelve a la ventana principal'
}
terminar() {
    [ -n "$proceso" ] || return 0
    kill "$proceso"
    wait "$proceso" 2>/dev/null || true
    proceso=
    rm -rf "$temporal/.local" # what is offered to the next start after an end of this kind
}
procesar() { # LINE...: the statements, alone in the edit screen
    teclas ctrl+a Delete
    escribir "$@"
    teclas ctrl+a alt+p p
}
estimar() { # EQUATION: by the dialog, which the restricted model and the listings ask for
    abrir 'Mínimos cuadrados ordinarios' alt+t m
    escribir "$1"
    teclas Return
    volver
}
pulsar() { # X Y: the left button of the mouse, at the place of 100 %
    xdotool mousemove $(($1 * escala)) $(($2 * escala)) click 1
    xdotool mousemove 0 0
}
seccion() { # TITLE: heads the pictures that follow in the table
    [ -z "$sufijo" ] || return 0
    local columnas='| 100 % | 200 % |' raya='|---|---|---|'
    [ ${#luces[@]} -eq 1 ] || columnas+=' Oscuro | Oscuro, 200 % |' raya+='---|---|'
    printf '\n## %s\n\n| %s\n%s\n' "$1" "$columnas" "$raya" >>"$temporal/tabla"
}
# What stands on the screen; with a title, once the window with the keyboard bears it.
captura() { # NAME CAPTION [TITLE]
    [ $# -lt 3 ] || esperar "$3"
    sleep 0.2
    reposo
    import -window root -quality 10 "$temporal/tomas/$1$sufijo.png"
    [ -z "$sufijo" ] || return 0
    local fila="| $2 |" luz
    for luz in "${luces[@]}"; do
        fila+=" ![$2${luz:+, oscuro}]($1$luz.png) | ![$2${luz:+, oscuro}, al 200 %]($1${luz}_200.png) |"
    done
    echo "$fila" >>"$temporal/tabla"
}
# A palette is plenty for windows, and a third of the size.
guardar_capturas() {
    local f
    for f in "$temporal"/tomas/*.png; do
        [ -f "$f" ] || continue
        convert "$f" +dither -colors 64 -strip -define png:compression-level=9 "PNG8:$destino/$(basename "$f")"
        rm "$f"
    done
}

for escala in ${ESCALAS:-1 2}; do
    abrir_pantalla $((1024 * escala)) $((768 * escala))
    for tema in "${temas[@]}"; do
        luces=('')
        [[ $OSCUROS != *" $tema "* ]] || luces+=(_oscuro)
        for luz in "${luces[@]}"; do
            sufijo=$luz$([ "$escala" = 1 ] || echo _200)
            decir "Capturas al $((escala * 100)) %: $tema${luz:+, oscuro}"
            "capturas_$tema"
            terminar
            guardar_capturas
        done
    done
    cerrar_pantalla
done
[ "${temas[*]} en ${ESCALAS:-todas}" != "${TEMAS[*]} en todas" ] || {
    printf '# Las ventanas de Tabira\n\nHechas por `guiones/capturas.sh`, al 100 %% y al 200 %%; algunas, también con un tema oscuro.\n'
    cat "$temporal/tabla"
} >"$destino/README.md"
