#!/usr/bin/env bash
# Installs what is missing, builds Tabira and passes its tests, plain and under the sanitizers.
#   ./probar.sh            the tests
#   ./probar.sh --fuzz [SECONDS]   the fuzzers, each for so long (30)
#   ./probar.sh --estilo   clang-format and clang-tidy over the sources
#   ./probar.sh --bench    the benchmarks
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
source guiones/preparar.sh

pruebas() {
    preparar_compilacion libgtest-dev nlohmann-json3-dev locales poppler-utils
    # What a screen reader takes, with a display and a bus for it. Without them that one test is left out.
    (instalar xvfb dbus-daemon at-spi2-core python3-gi gir1.2-atspi-2.0) || decir "Sin lector de pantalla: su prueba se omite"
    # A Spanish locale for the tests that need one, beside the build and not in the system.
    mkdir -p build/locale
    [ -d build/locale/es_ES.UTF-8 ] || localedef -i es_ES -f UTF-8 build/locale/es_ES.UTF-8 ||
        rendirse "no se pudo generar la configuración regional es_ES.UTF-8"
    local preset salida pasadas=0 fallidas=0 estado=0
    salida=$(mktemp)
    for preset in desarrollo saneadores; do
        compilar "$preset"
        decir "Pasando las pruebas ($preset)"
        # What passed needs no line of its own; what failed is shown whole, and the counts.
        ctest --preset "$preset" -j 2 >"$salida" 2>&1 || true
        grep -vE ' Passed +[0-9.]+ sec *$|^ +Start +[0-9]+:|^ *$' "$salida" || true
        # "100% tests passed, 0 tests failed out of 321"
        local cuenta
        cuenta=$(sed -nE 's/.*tests passed, ([0-9]+) tests failed out of ([0-9]+).*/\1 \2/p' "$salida" | tail -n 1)
        [ -n "$cuenta" ] || rendirse "las pruebas ($preset) no llegaron a su fin"
        fallidas=$((fallidas + ${cuenta% *}))
        pasadas=$((pasadas + ${cuenta#* } - ${cuenta% *}))
    done
    rm -f "$salida"
    [ "$fallidas" -eq 0 ] || estado=1
    printf '%d passed, %d failed\n' "$pasadas" "$fallidas"
    exit "$estado"
}

fuzz() {
    preparar_compilacion
    instalar clang libclang-rt-dev
    compilar fuzz
    local objetivo segundos=${1:-30} aqui=$PWD opciones
    [[ $segundos =~ ^[1-9][0-9]*$ ]] || rendirse "--fuzz quiere un número de segundos, no '$segundos'"
    for objetivo in $(sed -nE 's/^foreach\(objetivo (.*)\)$/\1/p' tests/fuzz/CMakeLists.txt); do
        decir "$segundos segundos de entradas al azar: $objetivo"
        mkdir -p "build/fuzz/corpus_$objetivo"
        # Whole paths: one of them works in a folder of its own. Without -len_control the inputs would stay short for hours; weighing
        # each input by how rare its features are, and a long quarantine of freed memory, cost more than they find.
        opciones=(-max_total_time="$segundos" -timeout=10 -rss_limit_mb=2048 -verbosity=0 -print_final_stats=1
            -len_control=0 -entropic=0 -max_len=4096 -close_fd_mask=3 -artifact_prefix="$aqui/build/fuzz/")
        [ ! -f "tests/fuzz/diccionario_$objetivo.txt" ] || opciones+=(-dict="$aqui/tests/fuzz/diccionario_$objetivo.txt")
        ASAN_OPTIONS=quarantine_size_mb=4 UBSAN_OPTIONS=print_stacktrace=1 \
            "build/fuzz/tests/fuzz/fuzz_$objetivo" "${opciones[@]}" \
            "$aqui/build/fuzz/corpus_$objetivo" "$aqui/tests/fuzz/semillas_$objetivo" ||
            rendirse "fuzz_$objetivo encontró un fallo: la entrada está en build/fuzz/"
    done
}

estilo() {
    preparar_compilacion clang-format clang-tidy libgtest-dev nlohmann-json3-dev
    decir "clang-format"
    git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror || rendirse "hay archivos sin dar formato"
    # A tree of its own: clang-tidy can't read the other compiler's precompiled headers, and needs the forms of the dialogs.
    decir "clang-tidy"
    local registro
    registro=$(mktemp)
    {
        cmake --preset desarrollo -B build/estilo -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON &&
            cmake --build build/estilo --target tabira_escritorio_autogen
    } >"$registro" 2>&1 || { tail -n 20 "$registro" >&2; rendirse "no se pudo preparar build/estilo"; }
    git ls-files 'src/*.cpp' |
        xargs -P 2 -n 4 clang-tidy -p build/estilo --quiet --extra-arg=-Wno-unknown-warning-option 2>"$registro" ||
        { grep -E 'error' "$registro" | tail -n 20 >&2 || true; rendirse "clang-tidy tiene reparos"; }
    rm -f "$registro"
    decir "Sin reparos"
}

bench() {
    preparar_compilacion libbenchmark-dev libgtest-dev
    compilar bench
    build/bench/bench/bench_graficos --benchmark_min_time=0.5
    build/bench/bench/bench_tabira --benchmark_min_time=0.5
}

case "${1:-}" in
"") pruebas ;;
--fuzz) fuzz "${2:-}" ;;
--estilo | --bench) "${1#--}" ;;
*) rendirse "opción desconocida: $1 (--fuzz, --estilo, --bench, o ninguna)" ;;
esac
