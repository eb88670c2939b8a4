# The dialogs of the estimators, the report and what goes with it: listings, charts of the regression.

capturas_estimacion() {
    local dialogo='Mínimos cuadrados ordinarios'
    seccion 'La estimación'
    empezar KLEIN
    teclas alt+t c; captura mcp 'Mínimos cuadrados ponderados' 'Método: Mínimos cuadrados ponderados'; volver
    abrir "$dialogo" alt+t m
    escribir 'CONSUMO 1 BENEF BENEF(-1) SALARIOS'
    teclas alt+u Tab Tab; escribir KLEIN1; teclas alt+l alt+e End
    captura mc 'Mínimos cuadrados'
    abrir Aviso Return
    teclas Return; sleep 0.5
    captura regresion 'Una regresión'
    teclas Escape; sleep 0.5; teclas alt+n
    listado m covarianzas 'Matriz de covarianza' 'Matriz de covarianza'
    listado v valores 'Valores observados, estimados y residuos' 'Valores observados'
    listado o grafico_valores 'Valores observados y estimados' 'Gráfico de valores observados y estimados'
    teclas alt+c Return; captura residuos_estandarizados 'Antes del gráfico de los residuos' 'Gráfico de los residuos'
    teclas alt+n; captura grafico_residuos 'Los residuos'
    teclas alt+o; captura otras_opciones 'Los residuos: otras opciones' 'Gráfico de los residuos: Otras opciones'
    abrir 'Gráfico de los residuos' Escape
    abrir "$dialogo" Escape
    teclas alt+c
    listado i analisis_varianza 'Análisis de la varianza' 'Análisis de la varianza'
    volver
}
listado() { # LETTER NAME CAPTION TITLE: of the six options that one alone
    teclas "alt+$1" Return
    captura "$2" "$3" "$4"
    abrir "$dialogo" Escape
    teclas "alt+$1"
}
