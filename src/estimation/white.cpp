// The equation of White's test: squared residuals on regressors, their squares and products.
#include "estimation/white.h"

#include "estimation/lector.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

namespace {

constexpr double ToleranciaIguales = 5e-05; // columns that differ by no more are the same regressor

// PC or RA first; behind PC only RA.
int LeerOpciones(Estimacion &e, const std::string &linea, int posicion) {
    UltimoContraste.productosCruzados = UltimoContraste.verRegresion = 0;
    Lector lector{&linea, posicion, e.ventana};
    std::string token;
    if (!ExtraerToken(lector, token)) return 0;
    if (token.empty()) return 1;
    if (token != "PC" && token != "RA")
        return MensajePunto(e.ventana, Formatear("%s: [%s]", SecuenciaNoValida, token.c_str()), 1635);
    UltimoContraste.productosCruzados = token == "PC" ? 1 : 0;
    UltimoContraste.verRegresion = token == "RA" ? 1 : 0;
    if (!ExtraerToken(lector, token)) return 0;
    if (token.empty()) return 1;
    if (token != "RA" || UltimoContraste.verRegresion != 0)
        return MensajePunto(e.ventana, Formatear("%s: [%s]", SecuenciaNoValida, token.c_str()), 1634);
    UltimoContraste.verRegresion = 1;
    return 1;
}

// All rows are squared and present, inside the sample or not.
int GenerarCuadrados(Estimacion &e) {
    const int residuos = BuscarSerie(UltimaRegresion.MetodoRegresion == OrdenMCP ? "_RESN" : "_RES");
    if (residuos < 0) return MensajePunto(e.ventana, "No existen los residuos", 1634);
    const bool ocupado = BuscarMatriz("_RESCUAD") >= 0 || BuscarEscalar("_RESCUAD") >= 0;
    const int s = ocupado ? -1 : TomarSerie("_RESCUAD");
    if (s < 0) return MensajePunto(e.ventana, FaltanSeries, 1634);
    PonerCodigoSerie(s, "_RESCUAD");
    for (int i = 0; i < MaxObservaciones; ++i) {
        const double residuo = ArchivoTrabajo.ValoresObs[i][residuos];
        PonerObservacion(i, s, residuo * residuo, 1);
    }
    ArchivoTrabajo.PrimeraObs[s] = 0;
    ArchivoTrabajo.UltimaObs[s] = MaxObservaciones - 1;
    if (Trazando())
        TrazarSerie("_RESCUAD",
                    std::string(Recortado(ArchivoTrabajo.Codigos[residuos])) + "^2, en todas las filas",
                    "Cuadrados de los residuos: variable dependiente de la regresión auxiliar"_w);
    return 1;
}

// A product of two columns of the list as the next series _TMPn, added to the list.
int AnadirProducto(Estimacion &e, std::size_t i, std::size_t j, int &numero) {
    const std::string nombre = Formatear("_TMP%d", numero++);
    const char *explicacion = i == j ? "Cuadrado de un regresor" : "Producto de dos regresores";
    switch (SerieDeFormula(CadenaDe(e), nombre, e.columnas[i] + "*" + e.columnas[j], explicacion)) {
    case FormulaErronea: return MensajePunto(e.ventana, SecuenciaNoValida, 851);
    case FormulaSinGuardar: return MensajePunto(e.ventana, FaltanSeries, 862);
    default: break;
    }
    AnadirRegresor(e, nombre, e.textos[i] + "*" + e.textos[j]);
    return 1;
}

bool SonIguales(int a, int b) {
    const int hasta = std::min(Muestra.FinRegresion, MaxObservaciones - 1);
    for (int i = std::max(Muestra.InicioRegresion, 0); i <= hasta; ++i) {
        const double va = ArchivoTrabajo.ValoresObs[i][a], vb = ArchivoTrabajo.ValoresObs[i][b];
        if (va < vb - ToleranciaIguales || vb + ToleranciaIguales < va) return false;
    }
    return true;
}

// Column j, whose series stands in the slot `serie`. A name that begins with "_" was generated, and its series goes too.
// Later ones may change their slots.
void QuitarColumna(Estimacion &e, std::size_t j, int serie) {
    if (e.columnas[j].starts_with('_')) {
        BorrarSerie(serie);
        CompactarSeries();
        RefrescarEditor();
    }
    e.columnas.erase(e.columnas.begin() + static_cast<std::ptrdiff_t>(j));
    e.textos.erase(e.textos.begin() + static_cast<std::ptrdiff_t>(j));
}

void QuitarRepetidas(Estimacion &e) {
    for (std::size_t i = 0; i < e.columnas.size(); ++i) {
        for (std::size_t j = i + 1; j < e.columnas.size();) {
            const int a = BuscarSerie(e.columnas[i]), b = BuscarSerie(e.columnas[j]);
            if (a < 0) break;
            if (b >= 0 && SonIguales(a, b))
                QuitarColumna(e, j, b);
            else
                ++j;
        }
    }
}

} // namespace

int PrepararWhite(Estimacion &e, std::string &linea, int &posicion) {
    if (LeerOpciones(e, linea, posicion) == 0 || GenerarCuadrados(e) == 0) return 0;
    linea = "_RESCUAD";
    for (const std::string &regresor : UltimaRegresion.CodigosRegresores) linea += " " + regresor;
    posicion = 0;
    return 1;
}

int AmpliarRegresores(Estimacion &e) {
    int &series = UltimaRegresion.SeriesRegresion[OrdenCWH];
    if (series == static_cast<int>(e.columnas.size())) AnadirRegresor(e, "1", "1");
    const std::size_t originales = e.columnas.size();
    // A number below one in size counts as none, and is squared like a series.
    const auto esNumero = [&](std::size_t i) { return LeerEntero(e.textos[i]) != 0; };
    int numero = 1;
    for (std::size_t i = 0; i < originales; ++i)
        if (!esNumero(i) && AnadirProducto(e, i, i, numero) == 0) return 0;
    for (std::size_t i = 0; UltimoContraste.productosCruzados != 0 && i < originales; ++i)
        for (std::size_t j = i + 1; !esNumero(i) && j < originales; ++j)
            if (!esNumero(j) && AnadirProducto(e, i, j, numero) == 0) return 0;
    QuitarRepetidas(e);
    series = static_cast<int>(e.columnas.size()) - 1;
    return 1;
}
