// Where a tool puts a series that it makes.
#include "analysis/serie_destino.h"

#include "platform/campos_texto.h"
#include "store/archivo.h"

std::string CodigoDestino(std::string_view texto, std::size_t caracteres, const char *porDefecto) {
    std::string codigo(Recortado(texto.substr(0, caracteres)));
    PonerEnMayusculas(codigo);
    return codigo.empty() ? porDefecto : codigo;
}

int SerieDestino(std::string_view codigo, std::string &motivo) {
    const int propia = BuscarSerie(codigo);
    if (propia >= 0) return propia;
    // The tables of series, matrices and scalars exclude each other.
    if (BuscarMatriz(codigo) >= 0)
        motivo = std::string("Código de serie no válido, igual a matriz:"_w) + std::string(codigo);
    else if (BuscarEscalar(codigo) >= 0)
        motivo = std::string("Código de serie no válido, igual a escalar:"_w) + std::string(codigo);
    else if (ArchivoTrabajo.NumSeries >= MaxSeries)
        motivo = "Borre algunas series";
    if (!motivo.empty()) return -1;
    const int nueva = ArchivoTrabajo.NumSeries++;
    PonerCodigoSerie(nueva, codigo);
    VaciarSerieDestino(nueva, 0, 0);
    return nueva;
}

void VaciarSerieDestino(int serie, int primera, int ultima) {
    LimpiarColumna(serie);
    ArchivoTrabajo.PrimeraObs[serie] = static_cast<std::int16_t>(primera);
    ArchivoTrabajo.UltimaObs[serie] = static_cast<std::int16_t>(ultima);
}
