# Data types, statements, the sample, the lists, the files.

capturas_trabajo() {
    seccion 'El trabajo'
    empezar
    teclas alt+p p; captura sin_tipo 'Sin tipo de datos' 'Proceso cancelado'; teclas Return
    tipos_de_datos
    sentencias
    listas
    ficheros
}
tipos_de_datos() { # every kind and its dialogs
    teclas alt+d t; captura tipos_datos 'El tipo de datos' 'Tipos de datos'
    teclas alt+s Return; captura observaciones 'Datos sin periodicidad' 'Datos sin periodicidad'
    de_periodos 'Datos anuales' periodos a 1990 2005
    de_periodos 'Datos trimestrales' periodos_trimestrales t 1990.1 2005.4
    de_periodos 'Datos mensuales' periodos_mensuales m 1990.01 2005.12
    abrir 'Tipos de datos' Escape
    teclas alt+p Return; captura panel 'Datos de panel' 'Datos Panel'
    abrir 'Períodos/Individúos constante y secuencial' alt+d
    escribir 3; teclas alt+i; escribir 1990; teclas alt+f; escribir 1999; captura panel_constante 'Panel constante'
    abrir 'Datos Panel' Escape
    abrir 'Períodos e Individúos' alt+v alt+d
    escribir 1990; teclas alt+i; escribir 3; teclas alt+a; escribir 1991; teclas Tab; escribir 2; teclas alt+a
    captura panel_periodos 'Períodos y sus individuos'
    abrir 'Datos Panel' Escape
    abrir 'Individúos y Períodos' alt+i alt+d
    escribir 1; teclas alt+a; escribir 1990; teclas alt+r; escribir 1991; teclas alt+r
    captura panel_individuos 'Individuos y sus períodos'
    abrir 'Datos Panel' Escape
    abrir 'Introducción de Etiquetas' alt+t
    escribir 1; teclas Tab; escribir Peñón; teclas alt+a; escribir 2; teclas Tab; escribir Vega; teclas alt+a
    captura panel_etiquetas Etiquetas
    abrir 'Datos Panel' Escape
    abrir 'Tipos de datos' Escape
    abrir 'Tabira: Proyec01' Escape
}
de_periodos() { # TITLE NAME LETTER FIRST LAST
    abrir 'Tipos de datos' Escape
    abrir "$1" "alt+$3" Return
    escribir "$4"; teclas Tab; escribir "$5"
    captura "$2" "$1"
}
sentencias() { # a data type, statements, a report
    abrir 'Tipos de datos' alt+d t
    abrir 'Datos anuales' alt+a Return
    escribir 1990; teclas Tab; escribir 2005
    abrir 'Tabira: PROYEC01' Return
    escribir '; Una tendencia con un choque en 1999' 'SER T = TEND' 'SER X = T + POT(T ,2) / 10' \
        'SER Y = 3 + 2 * X' 'OBS Y[1999] = 60' 'MAT M = {1 X T}' 'MC Y 1 X T'
    captura ventana_principal 'Las sentencias'
    teclas alt+p; captura menu 'Un menú'; teclas Escape Escape
    teclas ctrl+a alt+p p; captura pregunta 'La pregunta' 'Aviso'
    teclas Return; captura informe 'El informe' 'Mínimos cuadrados ordinarios'
    teclas shift+F10; captura informe_menu 'Copiar y guardar el informe'
    teclas g; captura informe_guardar 'Guardar el informe' 'Guardar como'; teclas Escape Escape
    teclas ctrl+a Delete; escribir 'SER Z = LN(' ; teclas ctrl+a alt+p p; captura error 'Un error en una sentencia' 'Proceso cancelado'
    teclas Return
}
listas() {
    teclas alt+d r; captura relacion_series 'Relación de series' 'Relación de series'; teclas Escape
    teclas alt+d d; captura relacion_matrices 'Relación de matrices' 'Relación de matrices'; teclas Escape
    teclas alt+d l; captura relacion_escalares 'Relación de escalares' 'Relación de escalares'; teclas Escape
    teclas alt+d m m Return; captura muestra_actual 'La muestra actual' 'Muestra actual'; teclas Escape
    teclas alt+p m; captura muestra 'La muestra' 'Acotación de la muestra a utilizar'; teclas Escape
    teclas alt+t Up Return; captura ultima_regresion 'La última regresión' 'Última regresión'; teclas Escape
    abrir 'Tipos de datos' alt+d t; teclas Tab space Return; captura aviso_de_perdida 'Antes de otro tipo de datos' 'Aviso'; teclas Return Escape Escape
    teclas alt+c o; captura no_ensamblada 'Una opción sin ensamblar' 'Opción del menú'; teclas Escape
}
ficheros() {
    rm -f "$trabajos/PROYEC01.TR2"
    teclas alt+a t; captura guardar_trabajo 'Guardar el trabajo' 'Guardar archivo de trabajo'; abrir 'Tabira: PROYEC01' Return
    abrir 'Guardar archivo de trabajo' alt+a t; teclas Return
    captura guardar_encima 'Antes de reemplazar un archivo' 'Guardar archivo de trabajo'; teclas Escape Escape
    teclas alt+a a; captura abrir_trabajo 'Abrir un trabajo' 'Abrir archivo de trabajo'; teclas Escape
    teclas alt+u g; captura guardar_sentencias 'Guardar las sentencias' '*.TXT'; teclas Escape
    teclas alt+u a; captura abrir_sentencias 'Abrir sentencias' '*.TXT'; teclas Escape
    teclas alt+F4; captura cierre 'Al cerrar' 'Aviso'; teclas Escape
}
