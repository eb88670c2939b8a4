#!/usr/bin/env bash
# Runs the desktop program on a display and a bus of its own and reads it as a screen reader does (lector_pantalla.py).
# Leaves by 77, with one line that says why, where what it takes isn't installed.
#   lector_pantalla.sh TABIRA TABIRA-LOTE EXAMPLES
set -euo pipefail
aqui=$(dirname "$(readlink -f "$0")")

saltar() {
    echo "no screen reader here: $1"
    exit 77
}
command -v Xvfb >/dev/null || saltar "xvfb is missing"
command -v dbus-run-session >/dev/null || saltar "dbus-daemon is missing"
[ -e /usr/share/dbus-1/services/org.a11y.Bus.service ] || saltar "at-spi2-core is missing"
# The system's interpreter has the bindings; another one that comes first in the path may not.
for python in python3 /usr/bin/python3 ''; do
    [ -n "$python" ] || saltar "python3-gi or gir1.2-atspi-2.0 is missing"
    "$python" -c 'import gi; gi.require_version("Atspi", "2.0")' 2>/dev/null && break
done

temporal=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; wait; rm -rf "$temporal"' EXIT
mkdir -m 700 "$temporal/casa"
export HOME=$temporal/casa XDG_RUNTIME_DIR=$temporal/casa LC_ALL=C.UTF-8 CUPS_SERVER=127.0.0.1:1
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS
(cd "$3" && "$2" --tipo anual:1920:1941 --importar klein.csv --guardar "$temporal/klein.TR2" >/dev/null)
# The first display that is free. It must not begin anew when a client that came first has gone.
mkfifo "$temporal/numero"
Xvfb -displayfd 9 -screen 0 1024x768x24 -nolisten tcp -noreset 9>"$temporal/numero" >/dev/null 2>&1 &
DISPLAY=:$(timeout 60 head -n 1 "$temporal/numero")
export DISPLAY QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_SCALE_FACTOR=1
# Readers and their bus end with the session.
dbus-run-session -- "$python" -W ignore "$aqui/lector_pantalla.py" "$1" "$temporal/klein.TR2" 2>"$temporal/avisos" &
lector=$!
wait "$lector" || { cat "$temporal/avisos"; exit 1; }
