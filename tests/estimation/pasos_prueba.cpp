// Every step of a regression fails once, in its formula and in its store, and shows its own box.
#include "estimation/tabla_pasos.h"

#include "apoyo/datos_regresion.h"
#include "estimation/ecuacion.h"
#include "estimation/pasos.h"

#include <gtest/gtest.h>

namespace {

using Textos = std::vector<std::string>;

struct FalloDePaso {
    const char *destino;         // for CR
    Textos alEvaluar, alGuardar; // the boxes
};

struct ListaDePasos {
    const char *nombre;
    std::span<const PasoCadena> pasos;
    std::vector<FalloDePaso> fallos; // one a step
    const MensajesCadena *mensajes = &MensajesSecuencia;
};

void PrintTo(const ListaDePasos &l, std::ostream *salida) {
    *salida << l.nombre;
}

// A CR with all that its steps left, as if the consistent covariance had run and the ordered sample been cut.
void Estimar(LineasSentencia &lineas) {
    EmpezarRegresion();
    ASSERT_TRUE(Procesar("MC Y 1 X Z"));
    AbrirPilaColumnas();
    Estimacion e;
    LimpiarEvaluador();
    Evaluador.ventana = nullptr;
    lineas[0] = "Y 1 X";
    e.lineas = &lineas;
    e.codigo = OrdenCR;
    ASSERT_TRUE(LeerEcuacion(e, 0) == 1 && EjecutarPasos(e) == 1 && CompletarRegresion(e) == 1);
    SoltarTodasMatrices();
    for (const char *m : {"_S0", "_S2", "_S3", "_S5", "_S7", "_S8", "_S9", "_TMS2", "_TMS3"})
        PonerMatriz(m, {2.5}, 1, 1);
    ASSERT_EQ(TextosDeCajas(), Textos{});
}

Cadena CadenaDePrueba(LineasSentencia &lineas, std::span<const DatoCadena> datos) {
    return {&lineas, nullptr, 0, 19, &MensajesSecuencia, OrdenCR, datos};
}

void BorrarNombre(const std::string &nombre) {
    if (const int s = BuscarSerie(nombre); s >= 0) EliminarSerie(s);
    if (const int e = BuscarEscalar(nombre); e >= 0) BorrarEscalar(e);
    if (const int m = BuscarMatriz(nombre); m >= 0) BorrarMatriz(nullptr, m);
}

} // namespace

class FallosDePasos : public testing::TestWithParam<ListaDePasos> {};

TEST_P(FallosDePasos, Cajas) {
    const ListaDePasos &lista = GetParam();
    ASSERT_EQ(lista.pasos.size(), lista.fallos.size());
    std::vector<DatoCadena> datos;
    for (const char *nombre :
         {"n",      "k",         "gl",          "menosUna",      "mitad",        "constante", "total",
          "media",  "variacion", "series",      "saltos",        "fuera",        "glLargo",   "chi",
          "grados", "cociente",  "glNumerador", "glDenominador", "estadisticoF", "corregido", "peso",
          "d"})
        datos.push_back({nombre, 2.0, "2.0"});
    LineasSentencia lineas;
    for (std::size_t i = 0; i < lista.pasos.size(); ++i) {
        const PasoCadena &paso = lista.pasos[i];
        const FalloDePaso &fallo = lista.fallos[i];
        SCOPED_TRACE(fallo.destino);
        Estimar(lineas);
        Cadena c = CadenaDePrueba(lineas, datos);
        c.mensajes = lista.mensajes;
        ASSERT_EQ(TextoDePaso(c, paso.destino), fallo.destino);
        EXPECT_EQ(EjecutarCadena(c, {&paso, 1}), 1);
        EXPECT_EQ(TextosDeCajas(), Textos{});

        // No formula finds a line behind the last one; a series from a matrix misses the matrix.
        if (paso.clase == PasoSerieDeMatriz) BorrarNombre(TextoDePaso(c, paso.formula));
        Evaluador.NivelLinea = MaxNiveles - 1;
        EXPECT_EQ(EjecutarCadena(c, {&paso, 1}), 0);
        Evaluador.NivelLinea = 0;
        EXPECT_EQ(TextosDeCajas(), fallo.alEvaluar);

        // A scalar of this name refuses a series or a matrix, a series a scalar.
        Estimar(lineas);
        BorrarNombre(fallo.destino);
        if (paso.clase == PasoEscalar)
            PonerSerie(fallo.destino, {1.0});
        else
            PonerEscalar(nullptr, fallo.destino, 1.0);
        EXPECT_EQ(EjecutarCadena(c, {&paso, 1}), 0);
        EXPECT_EQ(TextosDeCajas(), fallo.alGuardar);
        for (const CajaVista &caja : Prueba.cajas) EXPECT_EQ(caja.titulo, "Proceso cancelado");
        CerrarPilaColumnas();
    }
}

namespace {

std::string Punto(int punto) {
    return Formatear("Secuencia no válida. Pto %d", punto);
}

FalloDePaso Matriz(const char *destino, int punto) {
    return {destino, {Punto(punto)}, {"Nombre matriz no válido. Pto 29", Punto(punto)}};
}

// What the evaluator shows is all.
FalloDePaso MatrizSinPunto(const char *destino) {
    return {destino, {}, {"Nombre matriz no válido. Pto 29"}};
}

FalloDePaso Escalar(const char *destino, int formula, int guardar) {
    return {destino, {Punto(formula)}, {Punto(guardar)}};
}

FalloDePaso Serie(const char *destino, int formula, int guardar) {
    return {destino, {Punto(formula)}, {Formatear("Borre algunas series. Pto %d", guardar)}};
}

FalloDePaso SerieDeMatriz(const char *destino) {
    return {destino, {"Nombre Matriz no Válido. Pto 30"}, {"Nombre Serie no Válido. Pto 5"}};
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Regresion, FallosDePasos,
    testing::Values(
        ListaDePasos{
            "previos", PasosPrevios, {Matriz("_TMF2", 6524), Matriz("_TMF3", 6524), Matriz("_TMF4", 6524)}},
        ListaDePasos{"ajuste",
                     PasosAjuste,
                     {Matriz("_BETAR", 6535), Matriz("_YAJU1", 653), SerieDeMatriz("_YAJUS"),
                      Matriz("_RESM", 653), SerieDeMatriz("_RESR")}},
        ListaDePasos{"suma residual", PasosSumaResidual, {Escalar("_SCRR", 655, 656)}},
        ListaDePasos{"error", PasosErrorTipico, {Escalar("_DTRR", 955, 956)}},
        ListaDePasos{"error nulo", PasosErrorNulo, {Escalar("_DTRR", 955, 956)}},
        ListaDePasos{"varianza", PasosVarianza, {Escalar("_MTRR", 655, 656)}},
        ListaDePasos{"covarianza", PasosCovarianza, {Matriz("_COVR", 657)}},
        ListaDePasos{"medidas",
                     PasosMedidas,
                     {Matriz("_DTER", 658), Escalar("_MVDR", 659, 6661), Escalar("_STVDR", 6662, 6636),
                      Escalar("_LVR", 6664, 6665), Escalar("_AICR", 6667, 6668), Escalar("_SCVDR", 6669, 70),
                      Escalar("_DTVDR", 71, 72), Escalar("_DCRR", 73, 74), Escalar("_RCR", 75, 76)}},
        ListaDePasos{"finales",
                     PasosFinales,
                     {Escalar("_FORLAR", 77, 78), Escalar("_NORER", 77, 78), Escalar("_ANREGR", 77, 78),
                      Escalar("_NREGR", 77, 78), Escalar("_DWR", 79, 80), Escalar("_RCCR", 81, 82),
                      Escalar("_ESTFR", 831, 881), // 880 and what the store answered
                      FalloDePaso{"_EA1R", {Punto(85)}, {"Secuencia no válida. 861. Pto 1"}},
                      Matriz("_DTER1", 658), SerieDeMatriz("_DTER2"), SerieDeMatriz("_BETA2"),
                      Serie("_DIVR", 831, 8622), Serie("_PROBTR", 852, 863)}},
        ListaDePasos{"restringido",
                     PasosRestringido,
                     {Escalar("_EST5", 655, 656), Escalar("_FORLAR", 655, 656), Escalar("_ESTFR", 832, 781)}},
        ListaDePasos{"wald", PasosWald, {Escalar("_FORLAR", 832, 832)}},
        ListaDePasos{"white",
                     PasosWhite,
                     {Escalar("_TM11", 7551, 756), Escalar("_TM12", 7552, 756), Escalar("_TM13", 7553, 756)}},
        ListaDePasos{"goldfeld", PasosGoldfeld, {Escalar("_ESTFG", 755, 756)}},
        ListaDePasos{"ponderar", PasosPonderar, {Matriz("_S2", 6527)}},
        ListaDePasos{"ponderada", PasosPonderada, {Matriz("_XIND", 6529)}}));

INSTANTIATE_TEST_SUITE_P(
    Consistente, FallosDePasos,
    testing::Values(
        ListaDePasos{"previos",
                     PasosConsistente,
                     {MatrizSinPunto("_S2"), MatrizSinPunto("_S3"), MatrizSinPunto("_TMS2"),
                      MatrizSinPunto("_TMS3"), MatrizSinPunto("_S5"), MatrizSinPunto("_S0"),
                      MatrizSinPunto("_S9"), MatrizSinPunto("_S8"), MatrizSinPunto("_S7")},
                     &MensajesDelEvaluador},
        ListaDePasos{"termino", PasosTermino, {MatrizSinPunto("_S5")}, &MensajesDelEvaluador},
        ListaDePasos{"retardado", PasosTerminoRetardado, {MatrizSinPunto("_S5")}, &MensajesDelEvaluador},
        ListaDePasos{"suma vacia", PasosSumaVacia, {MatrizSinPunto("_S7")}, &MensajesDelEvaluador},
        ListaDePasos{
            "heterocedasticidad", PasosHeterocedasticidad, {MatrizSinPunto("_COVR")}, &MensajesDelEvaluador},
        ListaDePasos{"sin retardos", PasosSinRetardos, {MatrizSinPunto("_COVR")}, &MensajesDelEvaluador},
        ListaDePasos{
            "autocorrelacion", PasosAutocorrelacion, {MatrizSinPunto("_COVR")}, &MensajesDelEvaluador},
        ListaDePasos{
            "copias", PasosCopiasWald, {MatrizSinPunto("_S0"), MatrizSinPunto("_S8")}, &MensajesDelEvaluador},
        ListaDePasos{"fila", PasosFilaWald, {MatrizSinPunto("_S2")}, &MensajesDelEvaluador},
        ListaDePasos{"forma", PasosFormaWald, {MatrizSinPunto("_S3")}, &MensajesDelEvaluador}));

// ----- What is gone when the steps begin

TEST(PasosDeRegresion, LoQueFalta) {
    static const struct {
        const char *falta, *caja;
    } Casos[] = {
        {"_YDEP", "Secuencia no válida. Pto 6525"},
        {"_XIND", "Secuencia no válida. Pto 6525"},
        {"Y", "Secuencia no válida. Pto 6529"},
    };
    for (const auto &caso : Casos) {
        SCOPED_TRACE(caso.falta);
        EmpezarRegresion();
        AbrirPilaColumnas();
        Muestra.InicioRegresion = 0;
        Muestra.FinRegresion = 19;
        LimpiarEvaluador();
        LineasSentencia lineas;
        lineas[0] = "Y 1 X";
        Estimacion e;
        e.lineas = &lineas;
        e.codigo = OrdenMC;
        ASSERT_EQ(LeerEcuacion(e, 0), 1);
        SoltarTodasMatrices();
        BorrarNombre(caso.falta);
        EXPECT_EQ(EjecutarPasos(e), 0);
        EXPECT_EQ(TextosDeCajas(), Textos{caso.caja});
        CerrarPilaColumnas();
    }
}
