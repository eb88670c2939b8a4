// The named equations of the work file.
#include "estimation/ecuaciones.h"

#include "platform/campos_texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <cstring>

namespace {

// As the table holds it: 12 characters at most, blanks behind.
std::string CodigoDeTabla(std::string_view codigo) {
    Codigo campo;
    PonerCampo(campo, Recortado(codigo), AnchoCodigo);
    return campo;
}

} // namespace

int BuscarEcuacion(std::string_view codigo) {
    const std::string buscado = CodigoDeTabla(codigo);
    for (int e = 0; e < TablaEcuaciones.numero; ++e)
        if (CodigoDeTabla(TablaEcuaciones.Codigos[e]) == buscado) return e;
    return -1;
}

bool AltaEcuacion(std::string_view codigo, std::string_view texto) {
    const std::string_view ecuacion = Recortado(texto);
    const int nueva = TablaEcuaciones.numero;
    if (Recortado(codigo).empty() || ecuacion.empty() || nueva > TopeEcuaciones ||
        BuscarEcuacion(codigo) >= 0)
        return false;
    PonerCampo(TablaEcuaciones.Codigos[nueva], Recortado(codigo), AnchoCodigo);
    char *lugar = TablaEcuaciones.TextosEcuacion[nueva];
    std::memset(lugar, 0, AnchoEcuacion);
    ecuacion.copy(lugar, AnchoEcuacion - 1);
    ++TablaEcuaciones.numero;
    return true;
}

bool BajaEcuacion(std::string_view codigo) {
    const int vieja = BuscarEcuacion(codigo);
    if (vieja < 0) return false;
    const int ultima = --TablaEcuaciones.numero;
    for (int e = vieja; e < ultima; ++e) {
        std::memcpy(TablaEcuaciones.Codigos[e], TablaEcuaciones.Codigos[e + 1], AnchoCodigo);
        std::memcpy(TablaEcuaciones.TextosEcuacion[e], TablaEcuaciones.TextosEcuacion[e + 1], AnchoEcuacion);
    }
    std::memset(TablaEcuaciones.Codigos[ultima], 0, AnchoCodigo);
    std::memset(TablaEcuaciones.TextosEcuacion[ultima], 0, AnchoEcuacion);
    return true;
}

std::string CodigoDeEcuacion(int ecuacion) {
    return std::string(Recortado(TablaEcuaciones.Codigos[ecuacion]));
}

std::string TextoDeEcuacion(int ecuacion) {
    return std::string(Recortado(TablaEcuaciones.TextosEcuacion[ecuacion]));
}
