# Estima con tabira-lote y lee la regresión de sus sucesos.
#
#     Rscript sucesos.R [RUTA DE tabira-lote]
#
# En la carpeta de klein.csv y klein.txt. Necesita el paquete jsonlite.
argumentos <- commandArgs(trailingOnly = TRUE)
programa <- if (length(argumentos) > 0) argumentos[1] else "tabira-lote"
lineas <- system2(programa, c("--json", "--tipo", "anual:1920:1941", "--importar", "klein.csv", "--procesar", "klein.txt"),
                  stdout = TRUE)
for (linea in lineas) {
  suceso <- jsonlite::fromJSON(linea)
  if (suceso$suceso != "regresion") next
  cat(suceso$dependiente, ", ", suceso$observaciones, " observaciones\n", sep = "")
  r <- suceso$regresores
  cat(sprintf("%12s%12.4f%12.4f\n", r$codigo, r$coeficiente, r$desviacion), sep = "")
  cat(sprintf("%12s%12.4f\n", "R2", suceso$estadisticos[["R Cuadrado"]]))
}
