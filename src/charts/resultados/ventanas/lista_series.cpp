// The list of the series of the work file.
#include "charts/resultados/ventanas/lista_series.h"

#include "charts/resultados/seleccion.h"
#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"

void LlenarSeries(QListWidget &lista) {
    lista.clear();
    for (const std::string &codigo : IniciarSeleccion(SeleccionDeSeries).disponibles)
        lista.addItem(QDe1252(codigo));
    lista.setCurrentIndex({});
}

std::string SerieElegida(const QListWidget &lista) {
    const int fila = FilaElegida(lista);
    return fila >= 0 ? De1252Q(lista.item(fila)->text()) : std::string();
}
