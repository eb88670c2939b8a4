# Prediction, descriptive statistics, transformations.

capturas_analisis() {
    seccion 'El análisis'
    empezar KLEIN
    procesar 'VSR NO' 'MUEST 1920 1938' 'MC CONSUMO 1 BENEF SALARIOS' 'MUEST 1920 1941'
    abrir 'Predicción y evaluación de la capacidad predictiva' alt+s p
    escribir 1939; teclas Tab; escribir 1941; teclas alt+t; captura prediccion Predicción
    teclas Return; captura prediccion_resultado 'Predicción: el resultado'
    teclas alt+g; captura prediccion_diagrama 'El diagrama' 'Diagrama predicción-observación'; volver
    abrir 'Selección de series' alt+s e
    teclas Down alt+r alt+r; captura descriptivos 'Series de los estadísticos descriptivos'
    teclas Return; captura descriptivos_resultado 'Los estadísticos' 'Medidas descriptivas'; volver
    teclas alt+s Up Up Return; captura transformacion 'Transformación de series' 'Transformación de series'; volver
}
