# The tests: their dialogs and their windows.

capturas_contrastes() {
    seccion 'Los contrastes'
    empezar KLEIN
    procesar 'VSR NO' 'MUEST 1920 1941'
    estimar 'CONSUMO 1 BENEF SALARIOS'
    significatividad
    heteroscedasticidad
    teclas alt+c n; captura normalidad 'Contraste de normalidad' 'Contraste de normalidad'
    teclas Down Return; captura normalidad_resultado 'Normalidad: el resultado' 'Contraste de normalidad  Bera y Jarque'
    volver
    de_retardos
    funciones
}
significatividad() {
    abrir 'Contrastes de significatividad: Hipótesis nula' alt+c s e
    escribir 2; teclas alt+s; escribir 'BETA(2) + BETA(3) = 1'; teclas Tab Tab; escribir 'BETA(1) = 16'
    captura hipotesis_nula 'Hipótesis nula'
    teclas Return; captura hipotesis_nula_resultado 'Hipótesis nula: el resultado'; volver
    abrir 'Contrastes de significatividad: Modelo restringido' alt+c s m
    escribir 'CONSUMO 1 SALARIOS'; captura modelo_restringido 'Modelo restringido'
    teclas Return; captura modelo_restringido_resultado 'Modelo restringido: el resultado'; volver
}
heteroscedasticidad() {
    local titulo='Contrastes de heteroscedasticidad'
    abrir "$titulo: Goldfeld y Quandt" alt+c h g
    escribir SALARIOS; teclas alt+p; escribir 1; teclas Tab; escribir 8; teclas Tab; escribir 15; teclas Tab; escribir 22
    captura goldfeld 'Goldfeld y Quandt'
    teclas Return; captura goldfeld_resultado 'Goldfeld y Quandt: el resultado'; volver
    teclas alt+c h w; captura white White "$titulo: White"
    teclas alt+p alt+a Return; captura white_resultado 'White: el resultado'; volver
    abrir "$titulo: Rangos" alt+c h r
    escribir SALARIOS; captura rangos Rangos
    teclas Return; captura rangos_resultado 'Rangos: el resultado'; volver
}
de_retardos() { # the tests without a dialog
    empezar TRIM
    procesar 'VSR NO' 'MUEST 1990.2 2005.4' 'MC Y 1 X Y(-1)' CDU; captura durbin 'h de Durbin'; volver
    procesar 'MC Y 1 X' CWA; captura wallis 'Contraste de Wallis'; volver
}
funciones() { # of autocorrelation, with its chart
    local letra nombre titulo parcial=
    for letra in f 'Up Return'; do
        nombre=autocorrelacion${parcial:+_parcial} titulo="Función de autocorrelación${parcial:+ parcial}"
        abrir "$titulo estimada" alt+c a $letra
        teclas Down Tab Tab Tab; escribir 12
        captura "$nombre" "$titulo"
        teclas Return; captura "${nombre}_listado" "$titulo: el listado"
        teclas alt+g; captura "${nombre}_grafico" "$titulo: el gráfico"; volver
        parcial=si
    done
}
