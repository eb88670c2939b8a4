# Completion of bash for tabira-lote.
_tabira_lote() {
    local palabra=${COMP_WORDS[COMP_CWORD]} anterior=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case "$anterior" in
    --importar | --exportar | --abrir | --guardar | --procesar | --imprimir)
        mapfile -t COMPREPLY < <(compgen -f -- "$palabra")
        return
        ;;
    --graficos) mapfile -t COMPREPLY < <(compgen -d -- "$palabra") ;;
    --respuesta) mapfile -t COMPREPLY < <(compgen -W "si no cancelar" -- "$palabra") ;;
    --relacion) mapfile -t COMPREPLY < <(compgen -W "series matrices escalares" -- "$palabra") ;;
    --tipo) mapfile -t COMPREPLY < <(compgen -W "sin anual trimestral mensual panel" -- "$palabra") ;;
    --formato) mapfile -t COMPREPLY < <(compgen -W "variable fijo" -- "$palabra") ;;
    --grafico) mapfile -t COMPREPLY < <(compgen -W "residuos valores prediccion" -- "$palabra") ;;
    --listado) mapfile -t COMPREPLY < <(compgen -W "covarianza valores varianza series matrices" -- "$palabra") ;;
    --decimales) mapfile -t COMPREPLY < <(compgen -W "0 1 2 3 4 5 6" -- "$palabra") ;;
    *)
        # Behind a value, and at the start, an action.
        local acciones="--ayuda -h --version --json --seguir --respuesta --tipo --formato --importar --exportar
                        --abrir --guardar --ordenar --eliminar-observacion --procesar --sentencia --decimales
                        --ecuacion --relacion --borrar --muestra-actual --ultima-regresion --imprimir
                        --imprimir-salidas --listado --histograma --grafico --graficos --estadisticos --normalidad
                        --fac --facp --prediccion --transformar --semilla --traza --volcado"
        [ "$anterior" = --ayuda ] && acciones="tipo formato sucesos $acciones"
        mapfile -t COMPREPLY < <(compgen -W "$acciones" -- "$palabra")
        ;;
    esac
}
complete -o filenames -F _tabira_lote tabira-lote
