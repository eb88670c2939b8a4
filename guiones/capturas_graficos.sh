# Charts, their options, their menu, and what prints them.

capturas_graficos() {
    seccion 'Los gráficos'
    empezar KLEIN
    temporal
    dispersion
    abrir HISTOGRAMA alt+s h
    teclas Down; captura histograma 'El histograma'
    teclas Return; captura histograma_tabla 'El histograma: la tabla'
    teclas alt+g; captura histograma_grafico 'El histograma: el gráfico' 'Representación gráfica'; volver
}
temporal() {
    abrir 'Gráficos temporales' alt+s g g
    teclas Down alt+r; teclas End; teclas alt+r; captura graficos_temporales 'Series de un gráfico temporal'
    teclas alt+i; captura intervalos 'Intervalos y títulos' 'Gráficos temporales: Intervalos y títulos'
    escribir 'Consumo y salarios'; teclas Tab; escribir Miles; abrir 'Gráficos temporales' Return
    teclas alt+f; captura formas 'Formas y colores' 'Gráficos temporales: Formas y colores'
    abrir 'Gráficos temporales' Escape
    teclas alt+d; captura decimales Decimales 'Formato decimal'
    abrir 'Gráficos temporales' Escape
    teclas Return; captura grafico_temporal 'Un gráfico temporal' 'Representación gráfica de series'
    pulsar 660 240; captura grafico_leyenda 'La leyenda, señalada con el ratón'
    teclas shift+F10; captura grafico_menu 'Copiar y guardar el gráfico'
    teclas g; captura grafico_guardar 'Guardar el gráfico' 'Guardar como'
    abrir 'Representación gráfica de series' Escape
    teclas alt+m; captura grafico_impreso 'El gráfico, sin impresora'; volver
}
dispersion() {
    abrir 'Gráficos de dispersión' alt+s g d
    teclas Down alt+r alt+x; escribir SALARIOS; captura graficos_dispersion 'Series de un gráfico de dispersión'
    teclas Return; captura grafico_dispersion 'Un gráfico de dispersión' 'Representación gráfica de series'; volver
}
