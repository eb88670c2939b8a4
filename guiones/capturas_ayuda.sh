# The pages of the manual.

capturas_ayuda() {
    seccion 'La ayuda'
    empezar
    teclas alt+y r; captura ayuda_reglas 'Ayuda: reglas' 'Reglas generales'
    teclas Return; captura ayuda_reglas_2 'Ayuda: la página siguiente'
    teclas Escape; esperar Tabira
    teclas alt+y t; captura ayuda_series 'Ayuda: series' 'Generación de series'; abrir Tabira Escape
    teclas alt+y m; captura ayuda_matrices 'Ayuda: matrices' 'Generación de matrices'; abrir Tabira Escape
    teclas alt+y o; captura ayuda_metodos 'Ayuda: métodos y contrastes' 'Métodos y contrastes'; abrir Tabira Escape
    teclas alt+y n; captura ayuda_control 'Ayuda: control de flujo' 'Control de flujo y otros'; abrir Tabira Escape
    teclas alt+y a; captura acerca_de 'Acerca de' 'Acerca de..'; abrir Tabira Escape
}
