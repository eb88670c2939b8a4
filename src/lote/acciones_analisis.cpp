// The actions that compute with series.
#include "lote/acciones_analisis.h"

#include "analysis/descriptivos.h"
#include "analysis/prediccion.h"
#include "analysis/transformaciones.h"
#include "hypothesis/autocorrelacion.h"
#include "hypothesis/normalidad.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

using Campos = std::vector<std::string>;

// The parts of a value between the separators, in the characters of the core. An empty value has one part.
Campos Partir(std::string_view texto, char separador) {
    Campos campos;
    for (;;) {
        const std::size_t fin = std::min(texto.find(separador), texto.size());
        campos.emplace_back(texto.substr(0, fin));
        if (fin == texto.size()) return campos;
        texto.remove_prefix(fin + 1);
    }
}

Campos PartirValor(const std::string &valor, char separador) {
    return Partir(Texto1252DeUtf8(valor), separador);
}

// Place of a word in a table; false when it isn't there.
template <std::size_t N>
bool Elegir(const std::string_view (&nombres)[N], std::string_view palabra, int &cual) {
    const auto *p = std::find(std::begin(nombres), std::end(nombres), palabra);
    cual = static_cast<int>(p - std::begin(nombres));
    return p != std::end(nombres);
}

bool EsEntero(std::string_view texto) {
    if (!texto.empty() && texto.front() == '-') texto.remove_prefix(1);
    return !texto.empty() && texto.find_first_not_of("0123456789") == std::string_view::npos;
}

constexpr std::string_view NombresBanda[] = {"uniforme", "arma", "sin"};           // as TiposDeBanda
constexpr std::string_view NombresModo[] = {"originales", "tasas", "incrementos"}; // as ModosEvaluacion
constexpr std::string_view NombresTransformacion[] = {"boxcox", "estacional", "regular"};

bool LeerAutocorrelacion(const std::string &valor, bool parcial, ValoresAutocorrelacion &v) {
    const Campos campos = PartirValor(valor, ':');
    if (campos.size() < 2 || campos.size() > 3 || !EsEntero(campos[1])) return false;
    v.serie = campos[0];
    v.retardos = campos[1];
    if (campos.size() == 2) return true;
    int banda = 0;
    if (!Elegir(NombresBanda, campos[2], banda)) return false;
    v.banda = static_cast<TiposDeBanda>(banda);
    return !parcial || v.banda != BandaArma; // the dialog of the partial function doesn't offer it
}

bool LeerPrediccion(const std::string &valor, ValoresPrediccion &v) {
    const Campos campos = PartirValor(valor, ':');
    if (campos.size() != 2 && campos.size() != 3 && campos.size() != 6) return false;
    v.inicio = campos[0];
    v.fin = campos[1];
    int modo = EvaluarOriginales;
    if (campos.size() > 2 && !Elegir(NombresModo, campos[2], modo)) return false;
    v.modo = static_cast<ModosEvaluacion>(modo);
    if (campos.size() < 6) return true;
    v.codigoPred = campos[3];
    v.codigoDtm = campos[4];
    v.codigoDti = campos[5];
    return true;
}

// An operation checks its box and fills its field.
bool LeerOperacion(const std::string &operacion, ValoresTransformacion &v) {
    const std::size_t igual = operacion.find('=');
    if (igual == std::string::npos) return false;
    const std::string numero = operacion.substr(igual + 1);
    int cual = 0;
    if (!EsEntero(numero) ||
        !Elegir(NombresTransformacion, std::string_view(operacion).substr(0, igual), cual))
        return false;
    const struct {
        bool &marca;
        std::string &campo;
    } controles[] = {
        {v.boxCox, v.lambda}, {v.estacionales, v.ordenEstacional}, {v.noEstacionales, v.ordenNoEstacional}};
    controles[cual].marca = true;
    controles[cual].campo = numero;
    return true;
}

bool LeerTransformacion(const std::string &valor, ValoresTransformacion &v) {
    const Campos campos = PartirValor(valor, ':');
    if (campos.size() < 2 || campos.size() > 3) return false;
    v.serie = campos[0];
    v.codigo = campos[1];
    if (campos.size() == 2) return true;
    const Campos operaciones = Partir(campos[2], ',');
    return std::all_of(operaciones.begin(), operaciones.end(),
                       [&](const std::string &operacion) { return LeerOperacion(operacion, v); });
}

bool EjecutarFuncion(const std::string &valor, int funcion) {
    ValoresAutocorrelacion v;
    return LeerAutocorrelacion(valor, funcion == FuncionParcial, v) &&
           AceptarAutocorrelacion(nullptr, funcion, v) == 1;
}

} // namespace

bool SeLeeAutocorrelacion(const std::string &valor, bool parcial) {
    ValoresAutocorrelacion v;
    return LeerAutocorrelacion(valor, parcial, v);
}

bool SeLeePrediccion(const std::string &valor) {
    ValoresPrediccion v;
    return LeerPrediccion(valor, v);
}

bool SeLeeTransformacion(const std::string &valor) {
    ValoresTransformacion v;
    return LeerTransformacion(valor, v);
}

bool EjecutarFac(const std::string &valor) {
    return EjecutarFuncion(valor, FuncionEstimada);
}

bool EjecutarFacp(const std::string &valor) {
    return EjecutarFuncion(valor, FuncionParcial);
}

bool EjecutarNormalidad(const std::string &valor) {
    return AceptarNormalidad(nullptr, Texto1252DeUtf8(valor)) == 1;
}

bool EjecutarPrediccion(const std::string &valor) {
    ValoresPrediccion v;
    return LeerPrediccion(valor, v) && EmpezarPrediccion(nullptr) == 1 && AceptarPrediccion(nullptr, v) == 1;
}

bool EjecutarDescriptivos(const std::string &valor) {
    Campos codigos;
    if (!valor.empty()) codigos = PartirValor(valor, ',');
    for (std::string &codigo : codigos) codigo = Recortado(codigo);
    return AceptarDescriptivos(nullptr, codigos) == 1;
}

bool EjecutarTransformacion(const std::string &valor) {
    ValoresTransformacion v;
    return LeerTransformacion(valor, v) && AceptarTransformacion(nullptr, v) == 1;
}
