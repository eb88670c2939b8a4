#!/usr/bin/env bash
# Makes of docs/tutorial/ one page and one document to print: build/tutorial/tutorial.html and tutorial.pdf.
#   guiones/tutorial.sh [FOLDER]       default: build/tutorial
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source guiones/preparar.sh
destino=$(realpath -m "${1:-build/tutorial}")
registro=$(mktemp)
trap 'rm -f "$registro"' EXIT

# hacer COMMAND...: quietly unless it fails.
hacer() {
    if ! "$@" >"$registro" 2>&1; then
        tail -n 5 "$registro" >&2
        rendirse "no se pudo hacer el tutorial: $1"
    fi
}

instalar pandoc weasyprint fonts-dejavu-core
al_menos pandoc "$(pandoc --version | sed -n '1s/[^0-9]*//p')" 2.17
mkdir -p "$destino"
decir "Página: $destino/tutorial.html"
(cd docs/tutorial && hacer pandoc --defaults pandoc.yaml --output "$destino/tutorial.html" [0-9][0-9]_*.md)
decir "Documento: $destino/tutorial.pdf"
hacer weasyprint "$destino/tutorial.html" "$destino/tutorial.pdf"
