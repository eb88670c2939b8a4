# A display of its own in which a script runs the desktop program by its keyboard. Read with `source` behind preparar.sh.

# The program to run: $1, or the one that ejecutar.sh builds. Its home is an empty folder, $temporal, gone at the end.
preparar_pantalla() { # PROGRAM
    instalar xvfb openbox xdotool imagemagick x11-utils fonts-dejavu-core
    programa=$(readlink -f "${1:-build/entrega/src/shell/tabira}")
    [ -x "$programa" ] || rendirse "falta $programa: ejecute antes ./ejecutar.sh"
    temporal=$(mktemp -d)
    export HOME=$temporal XDG_RUNTIME_DIR=$temporal LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
    trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$temporal"' EXIT
}
# The first display that is free: another of these scripts may be at work.
abrir_pantalla() { # WIDTH HEIGHT
    mkfifo "$temporal/numero"
    # Without repeating a key, whose release may be late on a busy machine, nor beginning anew when the first client goes.
    Xvfb -displayfd 9 -screen 0 "$1x$2x24" -dpi 96 -r -noreset 9>"$temporal/numero" >/dev/null 2>&1 &
    servidor=$!
    DISPLAY=:$(timeout 30 head -n 1 "$temporal/numero")
    export DISPLAY
    rm "$temporal/numero"
    openbox >/dev/null 2>&1 &
    gestor=$!
    # A window that is mapped before the window manager stands may stay hidden.
    timeout 30 bash -c 'until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q "#"; do sleep 0.1; done'
    reposo
}
cerrar_pantalla() { kill "$servidor"; wait 2>/dev/null || true; }
# Waits until nobody has anything more to do: the program, its display and the window manager sleep, look after look.
proceso=
reposo() {
    local i p estado dormidos=0
    for ((i = 0; i < 1000 && dormidos < 4; ++i)); do
        sleep 0.04
        dormidos=$((dormidos + 1))
        for p in "$servidor" "$gestor" $proceso; do
            estado=S
            read -r _ _ estado _ 2>/dev/null <"/proc/$p/stat" || true
            [ "$estado" = S ] || dormidos=0
        done
    done
}
# Gives the program's window the keyboard.
activar() {
    ventana=$(timeout 30 xdotool search --sync --onlyvisible --class tabira | head -n 1)
    timeout 5 xdotool windowactivate --sync "$ventana" || true
}
# Waits until the window with the keyboard bears the title; ends when none does, with a picture of what stands there.
esperar() { # TITLE
    local i titulo=
    for ((i = 0; i < 100; ++i)); do
        titulo=$(xdotool getactivewindow getwindowname 2>/dev/null || true)
        [ "$titulo" != "$1" ] || return 0
        sleep 0.1
    done
    import -window root build/pantalla.png
    rendirse "se esperaba la ventana «$1» y está «$titulo» (build/pantalla.png)"
}
abrir() { # TITLE KEY...: the keys that open a window, until it has the keyboard
    teclas "${@:2}"
    esperar "$1"
}
teclas() { for t in "$@"; do xdotool key --clearmodifiers "$t"; reposo; done; }
escribir() { # LINE...: each but the last is closed by Enter
    local primera=si linea
    for linea in "$@"; do
        [ "$primera" = si ] || xdotool key Return
        primera=no
        # xdotool puts a letter with an accent on a spare key for a moment, of which a busy program would hear too late.
        while [[ $linea =~ ^([^áéíóúñ]*)([áéíóúñ])(.*)$ ]]; do
            linea=${BASH_REMATCH[3]}
            xdotool type --delay 8 -- "${BASH_REMATCH[1]}"
            xdotool type --delay 300 -- "${BASH_REMATCH[2]}"
        done
        xdotool type --delay 8 -- "$linea"
    done
    reposo
}
