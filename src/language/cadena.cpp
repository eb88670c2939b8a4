// The runner of chains of formulas.
#include "language/cadena.h"

#include "language/asignaciones.h"
#include "language/traza.h"
#include "matrix/formula_matriz.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/temporales.h"

#include <algorithm>

// ----- One formula

namespace {

// Writes the text into the next level and raises it. The evaluator starts as it does with a statement: what an earlier
// formula left on the stack would fill it, and its lag would clear rows of the next series stored. False at the last
// level. `nivel` receives the level to go back to.
bool SubirNivel(const Cadena &c, const std::string &texto, int &nivel) {
    nivel = Evaluador.NivelLinea;
    if (UltimoNivel()) return false;
    LineaDelNivel(*c.lineas, 1) = texto;
    LimpiarEvaluador();
    Evaluador.NivelLinea = nivel + 1;
    return true;
}

bool Evaluar(const Cadena &c, const std::string &texto) {
    int nivel = 0;
    if (!SubirNivel(c, texto, nivel)) return false;
    int posicion = 0;
    const int bien = EvaluarFormula(*c.lineas, posicion, c.primera, c.ultima);
    Evaluador.NivelLinea = nivel;
    return bien == 1;
}

} // namespace

FinesDeFormula MatrizDeFormula(const Cadena &c, std::string_view destino, const std::string &texto,
                               std::string_view explicacion) {
    const int trazado = AbrirPaso(TrazaMatriz, destino, texto, explicacion, {c.primera, c.ultima}, c.modelo);
    int nivel = 0, bien = 0;
    if (SubirNivel(c, texto, nivel)) {
        PonerCampo(Evaluador.CodigoMatrizDestino, destino, AnchoCodigo);
        int posicion = 0;
        bien = EvaluarFormulaMatriz(*c.lineas, posicion, c.ventana, c.primera, c.ultima);
        Evaluador.NivelLinea = nivel; // the brace form leaves it raised
    }
    CerrarPaso(trazado, bien == 1);
    return bien == 1 ? FormulaGuardada : FormulaErronea;
}

FinesDeFormula EscalarDeFormula(const Cadena &c, std::string_view destino, const std::string &texto,
                                std::string_view explicacion, int &causa) {
    const int trazado = AbrirPaso(TrazaEscalar, destino, texto, explicacion, {c.primera, c.ultima}, c.modelo);
    PonerCampo(Evaluador.CodigoEscalarDestino, destino, AnchoCodigo);
    causa = 0;
    FinesDeFormula fin = FormulaErronea;
    if (Evaluar(c, texto)) {
        causa = GuardarEscalar();
        fin = causa == 0 ? FormulaGuardada : FormulaSinGuardar;
    }
    CerrarPaso(trazado, fin == FormulaGuardada);
    return fin;
}

FinesDeFormula SerieDeFormula(const Cadena &c, std::string_view destino, const std::string &texto,
                              std::string_view explicacion) {
    const int trazado = AbrirPaso(TrazaSerie, destino, texto, explicacion, {c.primera, c.ultima}, c.modelo);
    PonerCampo(Evaluador.CodigoSerieDestino, destino, AnchoCodigo);
    FinesDeFormula fin = FormulaErronea;
    if (Evaluar(c, texto)) fin = GuardarSerie() == 1 ? FormulaGuardada : FormulaSinGuardar;
    CerrarPaso(trazado, fin == FormulaGuardada);
    return fin;
}

FinesDeFormula SerieDeFormulaEscrita(const Cadena &c, std::string_view destino, const std::string &texto,
                                     std::string_view explicacion) {
    ReducirDesde(Evaluador.NivelLinea + 1);
    const FinesDeFormula fin = SerieDeFormula(c, destino, texto, explicacion);
    DejarDeReducir();
    return fin;
}

// ----- Placeholders

namespace {

// Appends the value of a placeholder; `formato` ends with its conversion. False when there is no such name.
bool AnadirDato(const Cadena &c, std::string_view nombre, const std::string &formato, std::string &texto) {
    const auto dato =
        std::find_if(c.datos.begin(), c.datos.end(), [&](const auto &d) { return d.nombre == nombre; });
    const Familias familia = dato == c.datos.end() ? FamiliaDeNombre(nombre) : NumFamilias;
    if (dato == c.datos.end() && familia == NumFamilias) return false;
    if (familia != NumFamilias)
        texto += Formatear(formato.c_str(), NombreFamilia(familia, c.codigo));
    else if (formato.back() == 's')
        texto += Formatear(formato.c_str(), dato->texto.c_str());
    else if (formato.back() == 'd')
        texto += Formatear(formato.c_str(), static_cast<int>(dato->numero));
    else
        texto += Formatear(formato.c_str(), dato->numero);
    return true;
}

} // namespace

std::string TextoDePaso(const Cadena &c, const char *modelo) {
    std::string_view resto = modelo;
    std::string texto;
    for (std::size_t marca = resto.find("%("); marca != resto.npos; marca = resto.find("%(")) {
        texto += resto.substr(0, marca);
        const std::size_t cierre = resto.find(')', marca);
        const std::size_t conversion = resto.find_first_of("sdf", std::min(cierre, resto.size()));
        if (conversion == resto.npos) break;
        const std::string formato = "%" + std::string(resto.substr(cierre + 1, conversion - cierre));
        if (!AnadirDato(c, resto.substr(marca + 2, cierre - marca - 2), formato, texto))
            texto += resto.substr(marca, conversion + 1 - marca);
        resto.remove_prefix(conversion + 1);
    }
    return texto.append(resto);
}

// ----- Steps

namespace {

// Always 0, the result of the step.
int Fallar(const Cadena &c, const char *mensaje, int punto) {
    if (mensaje != nullptr) MostrarMensaje(c.ventana, Formatear(mensaje, punto), c.mensajes->titulo);
    return 0;
}

int FallarAlGuardar(const Cadena &c, const PasoCadena &p, int causa) {
    switch (p.fallo) {
    case GuardarCausa: return Fallar(c, c.mensajes->alGuardar, p.puntoGuardar + causa);
    case GuardarSinPunto:
        return MensajePunto(c.ventana, Formatear("%s. %d", SecuenciaNoValida, p.puntoGuardar), causa);
    case GuardarSeries: return MensajePunto(c.ventana, FaltanSeries, p.puntoGuardar);
    default: return Fallar(c, c.mensajes->alGuardar, p.puntoGuardar);
    }
}

int SerieDeMatriz(const Cadena &c, const std::string &destino, const std::string &llaves,
                  std::string_view explicacion) {
    const int trazado = AbrirPaso(TrazaSerie, destino, llaves, explicacion, {c.primera, c.ultima}, c.modelo);
    const int bien = SerieDesdeMatriz(destino, llaves, 1, c.ventana);
    CerrarPaso(trazado, bien == 1);
    return bien;
}

int EjecutarPaso(Cadena c, const PasoCadena &p) {
    if (p.filas == PrimeraFila) c.ultima = c.primera;
    const std::string destino = TextoDePaso(c, p.destino);
    const std::string formula = TextoDePaso(c, p.formula);
    c.modelo = p.formula;
    int causa = 0;
    FinesDeFormula fin = FormulaErronea;
    switch (p.clase) {
    case PasoMatriz: fin = MatrizDeFormula(c, destino, formula, p.explicacion); break;
    case PasoEscalar: fin = EscalarDeFormula(c, destino, formula, p.explicacion, causa); break;
    case PasoSerie: fin = SerieDeFormula(c, destino, formula, p.explicacion); break;
    case PasoSerieDeMatriz: return SerieDeMatriz(c, destino, "{" + formula + "}", p.explicacion);
    }
    if (fin == FormulaErronea) return Fallar(c, c.mensajes->alEvaluar, p.puntoFormula);
    return fin == FormulaGuardada ? 1 : FallarAlGuardar(c, p, causa);
}

} // namespace

int EjecutarCadena(const Cadena &c, std::span<const PasoCadena> pasos) {
    for (const PasoCadena &p : pasos)
        if (EjecutarPaso(c, p) == 0) return 0;
    return 1;
}
