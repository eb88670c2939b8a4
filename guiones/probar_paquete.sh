#!/usr/bin/env bash
# Makes the Debian package, has lintian look at it, and tries it in a Debian of its own, with nothing else in it: it installs,
# the example's numbers come, a report becomes a PDF, the tutorial is there, and the desktop program opens its window and
# stays. Wants to be root, for that system.
#   guiones/probar_paquete.sh [SUITE]      default: bookworm
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source guiones/preparar.sh
[ "$(id -u)" -eq 0 ] || rendirse "hay que ejecutarlo como administrador"
preparar_compilacion
instalar debootstrap lintian pandoc
compilar entrega
raiz=$(mktemp -d)
chmod 755 "$raiz"
trap 'umount "$raiz/proc" 2>/dev/null || true; rm -rf "$raiz"' EXIT
decir "Haciendo el paquete"
cpack --config build/entrega/CPackConfig.cmake -B "$raiz.deb" >/dev/null 2>&1 || rendirse "cpack no pudo hacerlo"
lintian --allow-root --fail-on error,warning "$raiz.deb"/tabira_*.deb || rendirse "lintian tiene reparos"
decir "Preparando un Debian limpio (${1:-bookworm})"
debootstrap --variant=minbase "${1:-bookworm}" "$raiz" >/dev/null 2>&1 || rendirse "debootstrap no pudo prepararlo"
mount -t proc proc "$raiz/proc"
cp /etc/resolv.conf "$raiz/etc/"
mv "$raiz.deb"/tabira_*.deb "$raiz/tmp/tabira.deb"
rm -rf "$raiz.deb"
decir "Instalando el paquete y probándolo"
chroot "$raiz" bash -euo pipefail -c '
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
apt-get update -qq
apt-get install -y -qq --no-install-recommends /tmp/tabira.deb >/dev/null 2>&1
cd /usr/share/tabira/ejemplos
tabira-lote --tipo anual:1920:1941 --importar klein.csv --imprimir /tmp/klein.pdf --imprimir-salidas --procesar klein.txt |
    grep -q "16.236600"
head -c 5 /tmp/klein.pdf | grep -q "%PDF"
cd ../tutorial
grep -q "Los datos" tutorial.html
grep -oh "[.][.]/capturas/[a-z_]*.png" [0-9]*.md | xargs ls >/dev/null
apt-get install -y -qq --no-install-recommends xvfb xdotool >/dev/null 2>&1
Xvfb :95 -screen 0 1024x768x24 >/dev/null 2>&1 &
sleep 1
export DISPLAY=:95 XDG_RUNTIME_DIR=/tmp
tabira 2>/dev/null &
timeout 20 xdotool search --sync --onlyvisible --name "^Tabira$" >/dev/null
sleep 2
kill -0 %2
kill %2 %1
' || rendirse "el paquete no se instala o no funciona"
decir "El paquete se instala y funciona"
