# A display of its own in which a script runs the desktop program by its keyboard. Read with `source` behind preparar.sh.

# The program to run: $1, or the one that ejecutar.sh builds. Its home is an empty folder, $temporal, gone at the end.
preparar_pantalla() { # PROGRAM
    instalar xvfb openbox xdotool imagemagick x11-utils fonts-dejavu-core
    programa=$(readlink -f "${1:-build/entrega/src/shell/tabira}")
    [ -x "$programa" ] || rendirse "falta $programa: ejecute antes ./ejecutar.sh"
    temporal=$(mktemp -d)
    export HOME=$temporal XDG_RUNTIME_DIR=$temporal LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb DISPLAY=:93
    trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$temporal"' EXIT
}
abrir_pantalla() { # WIDTH HEIGHT
    Xvfb "$DISPLAY" -screen 0 "$1x$2x24" -dpi 96 >/dev/null 2>&1 &
    servidor=$!
    sleep 1
    openbox >/dev/null 2>&1 &
    sleep 1.5 # a window that is mapped before the window manager stands may stay hidden
}
cerrar_pantalla() { kill "$servidor"; wait 2>/dev/null || true; }
# Gives the program's window the keyboard.
activar() {
    ventana=$(timeout 30 xdotool search --sync --onlyvisible --class tabira | head -n 1)
    timeout 5 xdotool windowactivate --sync "$ventana" || true
}
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
