# A display of its own in which a script runs the desktop program by its keyboard. Read with `source` behind preparar.sh.

# The program to run: $1, or the one that ejecutar.sh builds. Its home is an empty folder, $temporal, gone at the end.
preparar_pantalla() { # PROGRAM
    instalar xvfb openbox xdotool imagemagick x11-utils fonts-dejavu-core
    programa=$(readlink -f "${1:-build/entrega/src/shell/tabira}")
    [ -x "$programa" ] || rendirse "falta $programa: ejecute antes ./ejecutar.sh"
    temporal=$(mktemp -d)
    export HOME=$temporal XDG_RUNTIME_DIR=$temporal LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
    trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$temporal"' EXIT
}
# The first display that is free: another of these scripts may be at work.
abrir_pantalla() { # WIDTH HEIGHT
    mkfifo "$temporal/numero"
    Xvfb -displayfd 9 -screen 0 "$1x$2x24" -dpi 96 9>"$temporal/numero" >/dev/null 2>&1 &
    servidor=$!
    DISPLAY=:$(timeout 30 head -n 1 "$temporal/numero")
    export DISPLAY
    rm "$temporal/numero"
    openbox >/dev/null 2>&1 &
    sleep 1.5 # a window that is mapped before the window manager stands may stay hidden
}
cerrar_pantalla() { kill "$servidor"; wait 2>/dev/null || true; }
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
teclas() { for t in "$@"; do xdotool key --clearmodifiers "$t"; sleep 0.2; done; }
escribir() { # LINE...: each but the last is closed by Enter
    local primera=si linea
    for linea in "$@"; do
        [ "$primera" = si ] || xdotool key Return
        primera=no
        xdotool type --delay 8 -- "$linea"
    done
    sleep 0.3
}
