# How results are computed: the window of the steps, from the statements and from a number of the report.

capturas_traza() {
    seccion 'Cómo se calcula'
    empezar KLEIN
    procesar 'VSR NO' 'MUEST 1920 1941' 'MC CONSUMO 1 BENEF SALARIOS'
    buscar_paso '_TMF5$'; captura traza_mc 'Los pasos de una regresión'; cerrar_traza
    procesar 'SER Z = BENEF + (SALPRIV - 2) * SALPUB / 3'
    buscar_paso 'PRIV - 2'; captura traza_formula 'Una fórmula, de izquierda a derecha'; cerrar_traza
    procesar 'CHN IR 2' 'CHN MR 1 BETA(2)+BETA(3)=1' 'CHN MR 2 BETA(1)=16' 'CHN FR 2'
    esperar 'Contraste de significatividad: Hipótesis nula'
    buscar_paso '_FORLARH'; captura traza_contraste 'Los pasos de un contraste'; cerrar_traza
    volver
    procesar 'VSR SI' 'MC CONSUMO 1 BENEF SALARIOS'
    abrir 'Mínimos cuadrados ordinarios' Return
    pulsar 385 272; captura traza_informe 'Desde un número del informe' 'Cómo se calcula'
}
buscar_paso() { # TEXT: the window, at the step whose formula has it
    abrir 'Cómo se calcula' F9
    teclas ctrl+f; escribir "$1"; teclas Return
}
cerrar_traza() { teclas ctrl+f Delete Escape; sleep 0.4; }
