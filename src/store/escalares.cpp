// The table of scalars.
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/codigo_buscado.h"

TablaDeEscalares TablaEscalares;

namespace {

int BuscarEntre(std::string_view codigo, int cuantos) {
    const CodigoBuscado buscado = PrepararCodigo(codigo);
    for (int e = 0; e < cuantos; ++e)
        if (EsCodigo(TablaEscalares.registro[e].Codigo, buscado)) return e;
    return -1;
}

} // namespace

int BuscarEscalar(std::string_view codigo) {
    return BuscarEntre(codigo, TablaEscalares.numero);
}

int BuscarEscalarEnTabla(std::string_view codigo) {
    return BuscarEntre(codigo, MaxEscalares);
}

int PonerEscalar(Ventana *ventana, std::string_view codigo, double valor) {
    if (BuscarSerie(codigo) >= 0) return 1;
    if (BuscarMatriz(codigo) >= 0) return 2;
    int e = BuscarEscalar(codigo);
    if (e < 0) {
        if (TablaEscalares.numero > TopeEscalares) {
            MostrarMensaje(ventana, "Borre algunos escalares");
            return 3;
        }
        e = TablaEscalares.numero++;
        PonerCampo(TablaEscalares.registro[e].Codigo, codigo, AnchoCodigo);
    }
    TablaEscalares.registro[e].Valor = valor;
    return 0;
}

void BorrarEscalar(int escalar) {
    const int ultimo = TablaEscalares.numero - 1;
    for (int e = escalar; e < ultimo; ++e) TablaEscalares.registro[e] = TablaEscalares.registro[e + 1];
    // The freed record is emptied: the search over all 60 slots would still find the name in it.
    TablaEscalares.registro[ultimo] = {};
    TablaEscalares.numero = ultimo;
}
