// CHN, line by line, and its chain of formulas.
#include "hypothesis/hipotesis_nula.h"

#include "hypothesis/informe_contrastes.h"
#include "hypothesis/restriccion.h"
#include "language/cadena.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>

EstadoHipotesisNula HipotesisNula;

void IniciarHipotesisNula() {
    HipotesisNula = {};
}

// ----- The test

namespace {

enum PuntosDeMatriz { SinSitioR = 10, SinSitior = 11, SinMemoriaR = 100, SinMemoriar = 101 };

// (Rb - r)' (R V R')^-1 (Rb - r) / q; V is the covariance matrix as the last regression left it, plain, consistent or
// weighted.
constexpr PasoCadena PasosHipotesis[] = {
    {PasoMatriz, PrimeraFila, "_TMP3", "((_TMP1 * _BETA) - _TMP2)'",
     "Diferencias de las restricciones, en fila: (R b - r)'", 12},
    {PasoMatriz, PrimeraFila, "_TMP4", "((_TMP1 * _COV)* _TMP1')$",
     "Inversa de la matriz de covarianzas de R b: (R V R')^-1", 13},
    {PasoMatriz, PrimeraFila, "_TMP5", "((_TMP1 * _BETA)- _TMP2)",
     "Diferencias de las restricciones, en columna: R b - r", 14},
    {PasoMatriz, PrimeraFila, "_TMP6", "((_TMP3 * _TMP4 * _TMP5)/%(q)d)",
     "Estadístico de Wald de las restricciones, entre su número"_w, 15},
    {PasoEscalar, PrimeraFila, "_FORLARH", "ESCAL(_TMP6)", "Estadístico F de las restricciones"_w, 16, 17},
    {PasoEscalar, PrimeraFila, "_ESTFH", "PROBF(_FORLARH,%(q)d,_NORE)",
     "Probabilidad del estadístico F de las restricciones"_w, 18, 19},
};

int FallarCalculos(Ventana *ventana, int punto) {
    return MensajeCancelado(ventana, Formatear(MensajesCalculos.alEvaluar, punto));
}

// Fills R, in BufferMatriz, and r.
int LeerRestricciones(Ventana *ventana, Restricciones &textos, double *r) {
    EstadoHipotesisNula &h = HipotesisNula;
    LimpiarBufferMatriz();
    BufferMatriz.Filas = static_cast<std::int16_t>(h.q);
    BufferMatriz.Columnas = 0;
    int maximo = 0;
    for (int i = 0; i < h.q; ++i) {
        std::string &texto = textos[static_cast<std::size_t>(i)];
        if (Recortado(texto).empty()) return MensajeCancelado(ventana, "Introduzca datos");
        if (AnalizarRestriccion(texto, i, ventana, h.K, maximo, r) != 0) return FallarCalculos(ventana, 1);
        h.textosGuardados[static_cast<std::size_t>(i)] = texto;
    }
    return 1;
}

int GuardarTemporal(Ventana *ventana, const char *codigo, const double *datos, int columnas, int sinSitio,
                    int sinMemoria) {
    switch (GuardarMatriz(codigo, datos, HipotesisNula.q, columnas)) {
    case MatrizGuardada: return 1;
    case MatrizSinSitio: return FallarCalculos(ventana, sinSitio);
    case MatrizSinMemoria: break;
    }
    MostrarMensaje(ventana, Formatear("No hay suficiente memoria.P%d", sinMemoria - SinMemoriaR + 2));
    return FallarCalculos(ventana, sinMemoria);
}

// The restrictions in a line, for the trace.
std::string UnirRestricciones(const Restricciones &textos) {
    std::string texto;
    for (int i = 0; i < HipotesisNula.q; ++i)
        texto.append(i > 0 ? "; " : "").append(textos[static_cast<std::size_t>(i)]);
    return texto;
}

int Calcular(Ventana *ventana, Restricciones &textos, LineasSentencia &lineas) {
    double r[MaxRestricciones] = {};
    if (PrepararRestricciones(ventana) == 0 || LeerRestricciones(ventana, textos, r) == 0) return 0;
    if (GuardarTemporal(ventana, "_TMP1", BufferMatriz.datos, HipotesisNula.K, SinSitioR, SinMemoriaR) == 0 ||
        GuardarTemporal(ventana, "_TMP2", r, 1, SinSitior, SinMemoriar) == 0)
        return 0;
    if (Trazando()) {
        TrazarMatriz("_TMP1", UnirRestricciones(textos),
                     "R: los coeficientes de las restricciones, una por fila");
        TrazarMatriz("_TMP2", UnirRestricciones(textos), "r: los lados derechos de las restricciones");
    }
    const DatoCadena datos[] = {DatoNumero("q", HipotesisNula.q)};
    Cadena c{&lineas, ventana, Muestra.InicioRegresion, Muestra.FinRegresion, &MensajesCalculos};
    c.datos = datos;
    if (EjecutarCadena(c, PasosHipotesis) == 0) return 0;
    VentanaHipotesisNula(ventana);
    return 1;
}

void BorrarTemporalesHipotesis(Ventana *ventana) {
    for (int i = 1; i <= 6; ++i)
        if (const int m = BuscarMatriz(Formatear("_TMP%d", i)); m >= 0) BorrarMatriz(ventana, m);
    for (const char *escalar : {"_FORLARH", "_ESTFH"})
        if (const int e = BuscarEscalar(escalar); e >= 0) BorrarEscalar(e);
}

} // namespace

int PrepararRestricciones(Ventana *ventana) {
    EstadoHipotesisNula &h = HipotesisNula;
    // A twelfth restriction costs the eleventh too, on purpose.
    if (h.q > MaxRestricciones) h.q = MaxRestricciones - 1;
    if (h.q < 1) h.q = 1;
    const int beta = BuscarMatriz("_BETA");
    if (beta < 0) return MensajeCancelado(ventana, "No existe la matriz _BETA");
    const int filas = TablaMatrices.registro[beta].Filas;
    // A matrix of this name that the user made can have more rows than R has room for columns.
    if (h.q > filas || h.q * filas > ElementosBloque)
        return MensajeCancelado(ventana, "Número de restricciones no válidas"_w);
    h.K = filas;
    return BuscarMatriz("_COV") >= 0 ? 1 : MensajeCancelado(ventana, "No existe la matriz _COV");
}

int CalcularHipotesisNula(Ventana *ventana, Restricciones &textos, LineasSentencia &lineas) {
    const int bien = Calcular(ventana, textos, lineas);
    SoltarTodasMatrices();
    BorrarTemporalesHipotesis(ventana);
    return bien;
}

// ----- The lines

namespace {

// A word, which may be empty: up to a blank or a sign, the blanks before it skipped.
std::string LeerPalabra(const std::string &linea, int &posicion) {
    SaltarBlancos(linea, posicion);
    const std::size_t desde = static_cast<std::size_t>(posicion);
    const std::size_t hasta = std::min(linea.find_first_of(" ()+-*=", desde), linea.size());
    posicion = static_cast<int>(hasta);
    return linea.substr(desde, hasta - desde);
}

// A line that is refused ends the sequence: the next one begins anew.
int Rechazar(Ventana *ventana, const std::string &texto, int punto) {
    HipotesisNula.iniciada = 0;
    return MensajePunto(ventana, texto, punto);
}

// All that the lines bring, not what is kept for dialog and report.
void EmpezarSecuencia() {
    EstadoHipotesisNula &h = HipotesisNula;
    h.iniciada = 1;
    h.cuentaIR = h.cuentaFR = h.cuentaMR = 0;
    for (std::string &texto : h.textos) texto.clear();
}

// Restrictions beyond the room for them are counted, and their texts dropped.
int AnotarMR(Ventana *ventana, int numero, std::string texto) {
    EstadoHipotesisNula &h = HipotesisNula;
    if (h.cuentaMR < MaxRestricciones) {
        if (texto.size() > AnchoRestriccion) texto.resize(AnchoRestriccion);
        h.textos[static_cast<std::size_t>(h.cuentaMR)] = std::move(texto);
    }
    ++h.cuentaMR;
    if (numero == h.cuentaMR) return 1;
    return Rechazar(ventana,
                    Formatear("Secuencia de restricciones no válidas: [%d][%d]"_w, h.cuentaMR, numero), 2665);
}

int AnotarFR(Ventana *ventana, int numero, LineasSentencia &lineas) {
    EstadoHipotesisNula &h = HipotesisNula;
    h.cuentaFR = h.q = numero;
    if (h.cuentaMR != h.cuentaFR || h.cuentaFR != h.cuentaIR)
        return Rechazar(ventana,
                        Formatear("Secuencia de restricciones no válidas: [%d][%d][%d]"_w, h.cuentaMR,
                                  h.cuentaFR, h.cuentaIR),
                        2666);
    return CalcularHipotesisNula(ventana, h.textos, lineas);
}

} // namespace

int ContrasteHipotesisNula(LineasSentencia &lineas, int posicion, Ventana *ventana) {
    EstadoHipotesisNula &h = HipotesisNula;
    const std::string &linea = LineaDelNivel(lineas);
    if (h.iniciada == 0) EmpezarSecuencia();
    const std::string palabra = LeerPalabra(linea, posicion);
    if (palabra == "IR") EmpezarSecuencia();
    if (palabra != "IR" && palabra != "MR" && palabra != "FR")
        return Rechazar(ventana, "Introduzca factor restricciones: [" + palabra + "]", 2663);
    const std::string segunda = LeerPalabra(linea, posicion);
    if (!EsNumero(segunda))
        return Rechazar(ventana, "Introduzca número restricciones: ["_w + segunda + "]", 2664);
    const int numero = LeerEntero(segunda);
    if (numero < 1) return Rechazar(ventana, "Número restricciones no válido: ["_w + segunda + "]", 2668);
    if (palabra == "MR") {
        SaltarBlancos(linea, posicion); // they would take the room of the text's end
        return AnotarMR(ventana, numero, linea.substr(static_cast<std::size_t>(posicion)));
    }
    if (palabra == "FR") return AnotarFR(ventana, numero, lineas);
    h.cuentaIR = numero;
    return 1;
}
