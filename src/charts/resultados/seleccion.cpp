// The chooser of what to list.
#include "charts/resultados/seleccion.h"

#include "charts/resultados/listados.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"

namespace {

struct FilaDeModo {
    TextosSeleccion textos;
    const char *trabajo; // name of the print job
    int clase;
};

constexpr FilaDeModo Modos[] = {
    {{"Selección de series"_w, "Series en el archivo de trabajo", "Series seleccionadas"},
     "Listado de Series",
     ImprimirSeries},
    {{"Selección de matrices"_w, "Matrices en el archivo de trabajo", "Matrices seleccionadas"},
     "Listado de Matrices",
     ImprimirMatrices},
};

bool Mover(std::vector<std::string> &de, std::vector<std::string> &a, int indice, Ventana *ventana) {
    if (indice < 0 || indice >= static_cast<int>(de.size())) {
        MostrarMensaje(ventana, "Error al crear la lista", TituloAviso);
        return false;
    }
    a.push_back(std::move(de[static_cast<std::size_t>(indice)]));
    de.erase(de.begin() + indice);
    return true;
}

} // namespace

const TextosSeleccion &TextosDe(ModosSeleccion modo) {
    return Modos[modo].textos;
}

EstadoSeleccion IniciarSeleccion(ModosSeleccion modo) {
    EstadoSeleccion estado{modo, {}, {}};
    const int n = modo == SeleccionDeSeries ? ArchivoTrabajo.NumSeries : TablaMatrices.numero;
    for (int i = 0; i < n; ++i)
        estado.disponibles.emplace_back(Recortado(
            modo == SeleccionDeSeries ? ArchivoTrabajo.Codigos[i] : TablaMatrices.registro[i].Codigo));
    return estado;
}

bool AnadirASeleccion(EstadoSeleccion &estado, int indice, Ventana *ventana) {
    return Mover(estado.disponibles, estado.elegidas, indice, ventana);
}

bool EliminarDeSeleccion(EstadoSeleccion &estado, int indice, Ventana *ventana) {
    return Mover(estado.elegidas, estado.disponibles, indice, ventana);
}

int ImprimirElegidas(const EstadoSeleccion &estado, int decimales, Ventana *ventana) {
    const ListaDeCodigos lista = {estado.elegidas, decimales};
    return ImprimirSalida(ventana, Modos[estado.modo].trabajo, Modos[estado.modo].clase, &lista);
}
