# What stands around the statements and their results: the status line, colours, search, the log, notes, the reader, copies.

capturas_comodidades() {
    seccion 'Las comodidades'
    empezar KLEIN
    muestra_y_parada
    edicion
    registro_y_nota
    resultados
    lector
    archivos
    recuperacion
}
procesar_todo() { # LINE...: the statements, alone in the edit screen, without a selection
    teclas ctrl+a Delete
    escribir "$@"
    teclas F5
}
senalar() { # X Y: the mouse stands at the place of 100 %, until its tip is there
    xdotool mousemove $(($1 * escala)) $(($2 * escala))
    sleep 1.2
}
muestra_y_parada() { # a regression's series shorten the sample; a batch stops
    procesar_todo 'VSR NO' 'MC CONSUMO 1 BENEF BENEF(-1) SALARIOS'
    senalar 700 757; captura estado_muestra 'La línea de estado: por qué es más corta la muestra'
    xdotool mousemove 0 0
    procesar_todo '; El consumo, en logaritmos' 'MUEST 1920 1941' 'SER LC = LN(CONSUMO)' 'SER LS = LN(SALARIOS)' \
        'SER LB = LN(BENEFF)' 'MC LC 1 LS LB'
    volver; captura parada 'Dónde se ha detenido un lote'
}
edicion() { # colours, brackets, search, letters of another size
    teclas ctrl+a Delete
    escribir '; Consumo y salarios, con muestras cada vez mayores' 'MUEST 1920 1941' 'SER LC = LN(CONSUMO)' \
        'REPITE J DESDE 1930 HASTA 1941' '   MUEST 1920 J' '   MC CONSUMO 1 BENEF SALARIOS' FINREPITE \
        'MC LC 1 TEND VENTAS  ; VENTAS no existe' 'CALCULA MEDSER(LC)' 'ESC MEDIA = LN((MEDIO + 3.5) / 2)'
    captura colores 'Colores, números de línea y paréntesis'
    teclas Menu b; escribir SALARIOS; teclas Return Return Tab; escribir SALPRIV; captura buscar 'Buscar y reemplazar'
    teclas Escape ctrl+End
    xdotool mousemove $((400 * escala)) $((300 * escala)) keydown ctrl click --repeat 8 4
    reposo; captura zoom 'Letras mayores, con Ctrl y la rueda'
    xdotool click --repeat 8 5 keyup ctrl mousemove 0 0
}
registro_y_nota() { # what the session did, with a search; the language accepted what was hardly meant
    procesar_todo 'MUEST 1920 1941' 'SER DOBLE = CONSUMO * 2,5' 'CAL MEDSER(DOBLE)'
    abrir 'Tabira: KLEIN' Return
    senalar 100 757; captura nota 'Una nota que no detiene'
    xdotool mousemove 0 0
    procesar_todo 'VSR SI' 'MC CONSUMO 1 BENEF SALARIOS'
    abrir 'Mínimos cuadrados ordinarios' Return
    volver
    pulsar 989 757; pulsar 760 68; escribir 'R Cuadrado'; teclas Return
    captura registro 'El registro de la sesión'
    pulsar 989 757
    teclas ctrl+End
}
resultados() { # a report's copies and its printed document; a listing that goes on below
    empezar KLEIN
    procesar_todo 'MUEST 1920 1941' 'MC CONSUMO 1 BENEF SALARIOS'
    abrir 'Mínimos cuadrados ordinarios' Return
    teclas shift+F10; captura informe_copias 'Copiar el informe para un documento'; teclas Escape
    teclas alt+i; captura informe_impreso 'El informe impreso, sin impresora, y su carpeta'
    volver
    empezar TRIM
    procesar 'VSR NO' 'MUEST 1990.1 2005.4' 'MC Y 1 X'
    abrir 'Mínimos cuadrados ordinarios' alt+t m
    escribir 'Y 1 X'; teclas alt+n alt+v Return
    captura siguen 'Un listado que sigue por debajo' 'Valores observados'
    volver
}
lector() { # F1 on a word, with search and with the tutorial; the examples
    empezar
    escribir 'MC CONSUMO 1 BENEF'; teclas Home
    abrir Ayuda F1; captura lector 'F1 sobre una palabra'
    teclas shift+Tab; escribir 'Durbin'; captura lector_buscar 'Buscar en todas las páginas'
    teclas Escape F1 alt+t; captura tutorial 'El tutorial'
    abrir Tabira Escape
    teclas Menu e; captura ejemplos 'Los ejemplos'; teclas Escape Escape Escape
}
archivos() { # the files of late
    mkdir -p "$temporal/Curso"
    cp "$trabajos/KLEIN.TR2" "$temporal/Curso/PRACTICA.TR2"
    abrir 'Abrir archivo de trabajo' alt+a a
    escribir "$temporal/Curso/PRACTICA.TR2"; abrir 'Tabira: PRACTICA' Return
    abrir 'Abrir archivo de trabajo' alt+a a
    teclas alt+r alt+Down; captura recientes 'Los archivos recientes'; teclas Escape
    volver
}
# The program ends as with the machine: the copy that Procesar left is offered at the next start.
recuperacion() {
    procesar 'SER Z = 1'
    procesar 'SER W = 2'
    kill -9 "$proceso"; wait "$proceso" 2>/dev/null || true
    proceso=
    abrir_programa
    captura recuperar 'Trabajo sin guardar' Aviso; teclas Escape
}
