// The lists of series, matrices and scalars.
#include "shell/listas.h"

#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

const char *TituloLista(ListasDeElementos lista) {
    static constexpr const char *Titulos[] = {"Relación de series"_w, "Relación de matrices"_w,
                                              "Relación de escalares"_w};
    return Titulos[lista];
}

std::vector<std::string> LineasLista(ListasDeElementos lista) {
    std::vector<std::string> lineas;
    switch (lista) {
    case ListaSeries:
        for (int s = 0; s < ArchivoTrabajo.NumSeries; ++s) lineas.emplace_back(ArchivoTrabajo.Codigos[s]);
        break;
    case ListaMatrices:
        for (int m = 0; m < TablaMatrices.numero; ++m) {
            const RegistroMatriz &r = TablaMatrices.registro[m];
            lineas.push_back(Formatear("%8s   (%2d,%2d)", r.Codigo, r.Filas, r.Columnas));
        }
        break;
    case ListaEscalares:
        lineas.push_back(Formatear("%8s= %3d", "NOBS    ", Muestra.FinMuestra - Muestra.InicioMuestra + 1));
        for (int e = 0; e < TablaEscalares.numero; ++e)
            lineas.push_back(
                Formatear("%8s= %8.4f", TablaEscalares.registro[e].Codigo, TablaEscalares.registro[e].Valor));
        break;
    }
    return lineas;
}

bool BorrarElemento(Ventana *ventana, ListasDeElementos lista, std::string_view linea) {
    const std::string_view codigo = linea.substr(0, AnchoCodigo - 1);
    int hueco = -1;
    switch (lista) {
    case ListaSeries:
        hueco = BuscarSerie(codigo);
        if (hueco >= 0) EliminarSerie(hueco);
        return hueco >= 0;
    case ListaMatrices: hueco = BuscarMatriz(codigo); return hueco >= 0 && BorrarMatriz(ventana, hueco) == 1;
    case ListaEscalares:
        hueco = BuscarEscalar(codigo);
        if (hueco >= 0) BorrarEscalar(hueco);
        return hueco >= 0;
    }
    return false;
}
