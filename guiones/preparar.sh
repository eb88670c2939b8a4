# Common to the commands of this project: says what is done, installs what is missing, checks the versions.
# Read with `source`; the caller stands in the folder of the project.

decir() { printf '== %s\n' "$*"; }

# Ends with one clear line.
rendirse() {
    printf 'ERROR: %s\n' "$*" >&2
    exit 1
}

# instalar PACKAGE...: installs those of the packages that are missing. Debian's and Ubuntu's names.
instalar() {
    local faltan=() paquete registro
    command -v dpkg-query >/dev/null || rendirse "hace falta un sistema Debian o Ubuntu; instale a mano: $*"
    for paquete in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$paquete" 2>/dev/null)" = installed ] || faltan+=("$paquete")
    done
    [ ${#faltan[@]} -eq 0 ] && return 0
    decir "Instalando: ${faltan[*]}"
    local como=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || rendirse "hay que instalar '${faltan[*]}' como administrador"
        como=(sudo)
    fi
    registro=$(mktemp)
    if ! { "${como[@]}" apt-get update -qq &&
        "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${faltan[@]}"; } \
        >"$registro" 2>&1; then
        tail -n 3 "$registro" >&2
        rendirse "no se pudo instalar: ${faltan[*]}"
    fi
    rm -f "$registro"
}

# al_menos NAME HAVE WANT: ends unless version HAVE is WANT or later.
al_menos() {
    [ "$(printf '%s\n%s\n' "$3" "$2" | sort -V | head -n 1)" = "$3" ] || rendirse "hace falta $1 $3 o posterior; hay $2"
}

# What building takes.
preparar_compilacion() {
    instalar g++ cmake ninja-build libeigen3-dev libboost-dev libsqlite3-dev qt6-base-dev qt6-translations-l10n fonts-dejavu-core "$@"
    al_menos CMake "$(cmake --version | sed -n '1s/[^0-9]*//p')" 3.25
    al_menos g++ "$(g++ -dumpfullversion)" 12
}

# compilar PRESET: configures and builds, quietly unless it fails.
compilar() {
    local registro
    registro=$(mktemp)
    decir "Compilando ($1)"
    if ! { cmake --preset "$1" && cmake --build --preset "$1"; } >"$registro" 2>&1; then
        tail -n 40 "$registro" >&2
        rendirse "no se pudo compilar ($1)"
    fi
    rm -f "$registro"
}
