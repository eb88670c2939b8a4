// SER serie = serie(-n) resto: each row from the one n above it, stored before the next is computed.
#include "language/asignaciones.h"
#include "language/evaluador_interno.h"
#include "language/traza.h"
#include "matrix/formula_matriz.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <iterator>
#include <vector>

namespace {

// Recognises the form; `retardo` receives n and `resto` the index behind the ")".
bool LeerRecursiva(const std::string &linea, int posicion, int &retardo, std::size_t &resto) {
    const std::size_t desde = static_cast<std::size_t>(posicion);
    const std::size_t abre = linea.find_first_of(" =(", desde);
    if (abre == std::string::npos || linea[abre] != '(') return false;
    if (std::string_view(linea).substr(desde, abre - desde) != Recortado(Evaluador.CodigoSerieDestino))
        return false;
    const std::size_t cierra = linea.find(')', abre);
    if (cierra == std::string::npos) return false;
    // Only these digits count: signs don't, and "10" is a lag of 1.
    std::string cifras;
    std::copy_if(linea.begin() + static_cast<std::ptrdiff_t>(abre),
                 linea.begin() + static_cast<std::ptrdiff_t>(cierra), std::back_inserter(cifras),
                 [](char c) { return c >= '1' && c <= '9'; });
    retardo = LeerEntero(cifras);
    resto = cierra + 1;
    return true;
}

// Builds the statement of row i in buffer 0 and evaluates it from behind its "=".
int EvaluarFila(LineasSentencia &lineas, int i, int retardo, std::string_view resto, int primera,
                int ultima) {
    const std::string_view serie = Recortado(Evaluador.CodigoSerieDestino);
    LimpiarEvaluador();
    std::string &linea = lineas[0];
    linea.assign("OBS ").append(serie).append("[").append(TextoPeriodo(i)).append("] = ");
    int posicion = static_cast<int>(linea.size());
    linea.append(serie).append("[").append(TextoPeriodo(i - retardo)).append("] ").append(resto);
    return EvaluarPrimeraFila(lineas, posicion, primera, ultima);
}

// True when what stands behind the first operand has the same value whatever row is computed: it doesn't name the series,
// whose rows change meanwhile, and has no function that goes on from row to row or asks for the work file. The words are
// taken as loosely as can be: a name that only looks like one of these costs time and nothing else.
bool RestoFijo(std::string_view resto, std::string_view serie) {
    return resto.find(serie) == std::string_view::npos && !AlgunaPalabra(resto, [](std::string_view palabra) {
               const FuncionSerie *f = BuscarFuncionSerie(palabra);
               return (f != nullptr && MezclaFilas(*f)) || EsFuncionMatriz(palabra);
           });
}

// The value of a row computed by the steps that the text of another row made, from its own first operand in
// `serie`[periodo]. False when there is no such row in the sample.
bool CalcularConPasos(const std::vector<PasoNivel> &pasos, int serie, std::string_view periodo,
                      double &valor) {
    static std::string texto;
    texto.assign(periodo).append("]");
    int posicion = 0;
    const int fila = LeerPeriodo(texto, posicion);
    if (fila < 0 || CaracterEn(texto, posicion) != ']') return false;
    valor = ArchivoTrabajo.ValoresObs[fila][serie];
    return std::all_of(pasos.begin(), pasos.end(),
                       [&](const PasoNivel &p) { return OperarValor(p.operador, valor, p.derecho); });
}

bool MismosBits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

} // namespace

// Only the first operand changes from row to row as a rule, so the text is read for the first row, and the steps that it
// made are made again for the others: they hold if they give that row's value to the last bit. Where a row can't be had by
// them its text is read, and says why.
int SerieRecursiva(int posicion, Ventana *ventana, LineasSentencia &lineas, int primera, int ultima) {
    int retardo = 0;
    std::size_t detras = 0;
    if (!LeerRecursiva(lineas[0], posicion, retardo, detras)) return 0;
    const std::string resto = lineas[0].substr(detras);
    const int serie = BuscarSerie(Evaluador.CodigoSerieDestino);
    bool leido = !RestoFijo(resto, Recortado(Evaluador.CodigoSerieDestino)), conPasos = false;
    std::vector<PasoNivel> pasos;
    // With a sample that starts beyond row 0 the end falls short of the sample's by `primera` rows.
    const std::int64_t fin = std::min<std::int64_t>(std::int64_t{ultima} - primera + 1, MaxObservaciones);
    for (std::int64_t i = std::int64_t{std::max(primera, 0)} + retardo; i < fin; ++i) {
        const int fila = static_cast<int>(i);
        double valor = 0.0;
        if (conPasos && CalcularConPasos(pasos, serie, TextoPeriodo(fila - retardo), valor)) {
            PonerValorUnico(valor);
        } else if (serie >= 0) {
            Evaluador.pasos = leido ? nullptr : &pasos;
            const int r = EvaluarFila(lineas, fila, retardo, resto, primera, ultima);
            Evaluador.pasos = nullptr;
            DejarDeReducir(); // the first row shows how the others are worked out
            if (r != 1) {
                MostrarMensaje(ventana, "Error en el cálculo"_w);
                return 1;
            }
            conPasos = !leido && Evaluador.profundidad > 0 &&
                       CalcularConPasos(pasos, serie, TextoPeriodo(fila - retardo), valor) &&
                       MismosBits(valor, ValorSuperior());
            leido = true;
        }
        // This form doesn't create its series.
        if (serie < 0 || GuardarObservacionMuestra(TextoPeriodo(fila), ventana) != 1) {
            MostrarMensaje(ventana, "Error en las asignaciones");
            return 1;
        }
    }
    return 1;
}
