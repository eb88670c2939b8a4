# The editors, the ASCII exchange, printed series.

capturas_datos() {
    seccion 'Los datos'
    empezar KLEIN
    editores
    intercambio
    observaciones_libres
}
editores() {
    teclas alt+d e; captura editor 'El editor de series' 'Editor de series'
    teclas Down; escribir 40.1; captura editor_campo 'El editor: un dato a medio escribir'; teclas Return
    teclas shift+F10; captura editor_menu 'Copiar y pegar series'; teclas Escape
    teclas alt+i; captura seleccion 'Series que se imprimen' 'Selección de series'
    abrir 'Editor de series' Escape
    teclas alt+a; captura editor_tamano 'El tamaño del editor, antes de su ayuda' 'final peropero'
    teclas Return; captura editor_ayuda 'La ayuda del editor' 'Ventana de Edición'; abrir 'Editor de series' Return
    abrir 'Tabira: KLEIN' alt+s
    abrir 'Editor de matrices' alt+d m Return
    escribir M; teclas Return alt+o; captura editor_matrices 'El editor de matrices'
    teclas alt+i; captura seleccion_matrices 'Matrices que se imprimen' 'Selección de matrices'
    abrir 'Editor de matrices' Escape
    abrir 'Tabira: KLEIN' alt+l
}
intercambio() {
    teclas alt+u e; captura exportar Exportar 'Exportación de Series'
    teclas alt+v; captura exportar_variable 'Exportar: formato variable' 'Exportación de Series: Formato variable'
    abrir 'Exportación de Series' Return
    teclas alt+f; captura exportar_fijo 'Exportar: formato fijo' 'Exportación de Series: Formato fijo'
    teclas alt+u; captura ayuda_panel 'Ayuda para datos de panel' 'Datos Panel'; teclas Return; sleep 0.4
    abrir 'Exportación de Series' Escape
    teclas alt+s; captura exportar_archivo 'Exportar: el archivo' 'Seleccionar archivo'; volver
    teclas alt+u m; captura importar_aviso 'Antes de importar' Aviso
    teclas Return; captura importar Importar 'Importación de Series'
    teclas alt+f; captura importar_fijo 'Importar: formato fijo' 'Importación de Series: Formato fijo'; volver
}
observaciones_libres() { # what only data without periods and labels can do
    empezar NORRIS
    abrir 'Editor de series' alt+d e
    teclas alt+o; captura ordenar 'Ordenar las series' 'Ordenación de series'
    abrir 'Editor de series' Escape
}
