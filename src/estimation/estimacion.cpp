// The working set of a regression.
#include "estimation/estimacion.h"

#include "store/archivo.h"
#include "store/periodos.h"

namespace {

constexpr int AnchoTexto = 25; // characters of a regressor as it is shown

} // namespace

void AnadirRegresor(Estimacion &e, std::string_view columna, std::string_view texto) {
    e.columnas.emplace_back(columna);
    e.textos.emplace_back(texto.substr(0, AnchoTexto));
}

Cadena CadenaDe(const Estimacion &e, std::span<const DatoCadena> datos) {
    return {e.lineas, e.ventana, Muestra.InicioRegresion, Muestra.FinRegresion, &MensajesSecuencia,
            e.codigo, datos};
}

FilasTraza FilasDeRegresion() {
    return {Muestra.InicioRegresion, Muestra.FinRegresion};
}

double *ElementosDe(std::string_view matriz) {
    const int m = BuscarMatriz(matriz);
    if (m < 0 || !FijarMatriz(m)) return nullptr;
    return TablaMatrices.registro[m].Datos;
}
