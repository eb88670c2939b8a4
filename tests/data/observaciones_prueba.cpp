// Deletion and sorting of observations.
#include "data/observaciones.h"

#include "apoyo/plataforma_prueba.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <bit>
#include <cmath>
#include <limits>
#include <memory>
#include <random>

namespace {

constexpr double Falta = std::numeric_limits<double>::quiet_NaN();
using Valores = std::vector<double>;

const CajaVista Pregunta = {"Aviso", "¿Está seguro de desear eliminar la presente observación?", IconoAlto,
                            BotonesAceptarCancelar};

std::vector<CajaVista> Aviso(const char *texto) {
    return {{"Aviso", texto, IconoInformacion, BotonesAceptar}};
}

// Values as they are stored, whatever the flags say.
Valores Guardados(int serie, int n) {
    Valores r;
    for (int i = 0; i < n; ++i) r.push_back(ArchivoTrabajo.ValoresObs[i][serie]);
    return r;
}

std::vector<int> Banderas(int serie, int n) {
    std::vector<int> r;
    for (int i = 0; i < n; ++i) r.push_back(ArchivoTrabajo.PresenciaObs[i][serie]);
    return r;
}

std::string EtiquetasJuntas(int n) {
    std::string r;
    for (int i = 0; i < n; ++i) r.append(Recortado(ArchivoTrabajo.EtiquetasObs[i])).append("|");
    return r;
}

void PonerEtiquetas(const char *letras) {
    for (int i = 0; letras[i] != '\0'; ++i)
        PonerCampo(ArchivoTrabajo.EtiquetasObs[i], std::string_view(letras + i, 1), AnchoEtiqueta);
}

// ----- The beginning that both share

TEST(Observaciones, SoloConDatosSinPeriodicidad) {
    for (int tipo = 0; tipo <= SinTipoDatos; ++tipo) {
        EmpezarPrueba();
        ArchivoTrabajo.TipoDatos = static_cast<std::int16_t>(tipo);
        EXPECT_EQ(ConObservacionesLibres(), tipo == 0) << tipo;
    }
}

TEST(Observaciones, PrimeroSeValidanLosCodigos) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {1, 2});
    PonerSerie("B", {3, 4});
    PonerSerie("C", {5, 6});
    BorrarSerie(1);
    EXPECT_TRUE(EmpezarObservaciones(nullptr));
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 2); // compacted
    EXPECT_EQ(ValoresDe("C", 2), (Valores{5, 6}));
    PonerCodigoSerie(1, "A");
    EXPECT_FALSE(EmpezarObservaciones(nullptr));
    EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{{"Proceso cancelado", "Códigos repetidos : A           ",
                                                     IconoInformacion, BotonesAceptar}}));
}

// ----- Deletion

TEST(Observaciones, EliminarSubeLasDeDebajo) {
    struct {
        int observacion;
        Valores a, b;
        const char *etiquetas;
    } const casos[] = {
        {0, {2, 3, 4}, {Falta, 7, 8}, "b|c|d||"},
        {1, {1, 3, 4}, {5, 7, 8}, "a|c|d||"},
        {3, {1, 2, 3}, {5, Falta, 7}, "a|b|c||"},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.observacion);
        EmpezarConDatos(TipoSinPeriodicidad, "");
        PonerSerie("A", {1, 2, 3, 4});
        PonerSerie("B", {5, Falta, 7, 8});
        PonerEtiquetas("abcd");
        EXPECT_TRUE(EliminarObservacion(nullptr, c.observacion));
        EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{Pregunta});
        EXPECT_EQ(ValoresDe("A", 3), c.a);
        EXPECT_EQ(Banderas(1, 4),
                  (std::vector<int>{std::isnan(c.b[0]) ? 0 : 1, std::isnan(c.b[1]) ? 0 : 1, 1, 0}));
        EXPECT_EQ(Guardados(0, 4)[3], 0);
        EXPECT_EQ(EtiquetasJuntas(4), c.etiquetas);
        EXPECT_EQ(ArchivoTrabajo.NumObs, MaxObservaciones); // the work file keeps its length
        EXPECT_EQ(TextoPeriodo(3), "4");
    }
}

// All 100 slots move, to the last row of the tables.
TEST(Observaciones, EliminarLlegaAlFinalDeLasTablas) {
    for (const int observacion : {0, 3998, 3999}) {
        SCOPED_TRACE(observacion);
        EmpezarConDatos(TipoSinPeriodicidad, "");
        for (const int fila : {3997, 3998, 3999}) {
            PonerObservacion(fila, 99, fila, 1);
            PonerCampo(ArchivoTrabajo.EtiquetasObs[fila], std::to_string(fila), AnchoEtiqueta);
        }
        ASSERT_TRUE(EliminarObservacion(nullptr, observacion));
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[3998][99], observacion == 3999 ? 3998 : 3999);
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[3997][99], observacion == 0 ? 3998 : 3997);
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[3998][99], 1);
        EXPECT_EQ(Recortado(ArchivoTrabajo.EtiquetasObs[3998]), observacion == 3999 ? "3998" : "3999");
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[3999][99], 0);
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[3999][99], 0);
        EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[3999], "            ");
    }
}

TEST(Observaciones, EliminarSePreguntaYNoSaleDeLasTablas) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {1, 2, 3});
    Prueba.respuestas = {RespuestaCancelar};
    EXPECT_FALSE(EliminarObservacion(nullptr, 1));
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{Pregunta});
    for (const int fuera : {-1, -17, MaxObservaciones}) EXPECT_FALSE(EliminarObservacion(nullptr, fuera));
    EXPECT_EQ(Prueba.cajas.size(), 1u); // on the head row nothing is asked
    ArchivoTrabajo.NumObs = MaxObservaciones + 1;
    EXPECT_FALSE(EliminarObservacion(nullptr, 1));
    EXPECT_EQ(Prueba.cajas.size(), 2u); // the question comes before the test
    EXPECT_EQ(ValoresDe("A", 3), (Valores{1, 2, 3}));
    ArchivoTrabajo.NumObs = MaxObservaciones;
    EXPECT_TRUE(EliminarObservacion(nullptr, 1));
    EXPECT_EQ(ValoresDe("A", 2), (Valores{1, 3}));
}

// ----- Sorting

// The plain double loop, over whole rows.
void OrdenarALaLetra(int serie, int primera, int ultima, bool descendente) {
    CabeceraArchivo &a = ArchivoTrabajo;
    for (int i = primera; i < ultima; ++i) {
        for (int j = i + 1; j <= ultima; ++j) {
            const double vi = a.ValoresObs[i][serie], vj = a.ValoresObs[j][serie];
            if (descendente ? vj > vi : vj < vi) {
                std::swap_ranges(a.ValoresObs[i], a.ValoresObs[i] + a.NumSeries, a.ValoresObs[j]);
                if (a.ConEtiquetas != 0) std::swap(a.EtiquetasObs[i], a.EtiquetasObs[j]);
            }
        }
    }
}

TEST(Observaciones, OrdenarPorUnaSerie) {
    struct {
        bool descendente;
        Valores a, b;
        const char *etiquetas;
    } const casos[] = {
        {false, {1, 2, 3, 4}, {30, 10, 40, 20}, "c|a|d|b|"},
        {true, {4, 3, 2, 1}, {20, 40, 10, 30}, "b|d|a|c|"},
    };
    for (const auto &c : casos) {
        EmpezarConDatos(TipoSinPeriodicidad, "");
        ArchivoTrabajo.ConEtiquetas = 1;
        PonerSerie("B", {10, 20, 30, 40});
        PonerSerie("A", {2, 4, 1, 3});
        PonerEtiquetas("abcd");
        EXPECT_EQ(SeriesParaOrdenar(), (std::vector<std::string>{"B           ", "A           "}));
        EXPECT_EQ(AceptarOrdenacion(nullptr, SeriesParaOrdenar()[1], c.descendente), OrdenacionHecha);
        EXPECT_TRUE(Prueba.cajas.empty());
        EXPECT_EQ(ValoresDe("A", 4), c.a);
        EXPECT_EQ(ValoresDe("B", 4), c.b);
        EXPECT_EQ(EtiquetasJuntas(4), c.etiquetas);
        EXPECT_EQ(Prueba.cursor, CursorFlecha);
    }
}

// Worked out by hand: 3a 3b 1c 3d 2e. i = 0: c goes before a, so 1c 3b 3a 3d 2e. i = 1: e goes before b, so
// 1c 2e 3a 3d 3b. The equal ones end as a, d, b.
TEST(Observaciones, LosIgualesQuedanComoLosDejanLosIntercambios) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    ArchivoTrabajo.ConEtiquetas = 1;
    PonerSerie("A", {3, 3, 1, 3, 2});
    PonerEtiquetas("abcde");
    ASSERT_EQ(AceptarOrdenacion(nullptr, "A", false), OrdenacionHecha);
    EXPECT_EQ(EtiquetasJuntas(5), "c|e|a|d|b|");
}

TEST(Observaciones, SinEtiquetasNoSeMuevenYLasBanderasTampoco) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {5, Falta, -1, 4});
    PonerSerie("B", {1, 2, Falta, 4});
    PonerEtiquetas("abcd");
    ASSERT_EQ(AceptarOrdenacion(nullptr, "A", false), OrdenacionHecha);
    EXPECT_EQ(Guardados(0, 4), (Valores{-1, 0, 4, 5})); // what is missing counts as 0
    EXPECT_EQ(Guardados(1, 4), (Valores{0, 2, 4, 1}));
    EXPECT_EQ(Banderas(0, 4), (std::vector<int>{1, 0, 1, 1}));
    EXPECT_EQ(Banderas(1, 4), (std::vector<int>{1, 1, 0, 1}));
    EXPECT_EQ(EtiquetasJuntas(4), "a|b|c|d|");
}

TEST(Observaciones, SoloLaMuestraYSoloLasSeriesContadas) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {9, 8, 7, 6, 5, 4});
    PonerObservacion(2, 1, 77, 0); // a slot that isn't counted
    ASSERT_TRUE(Sentencia("MUEST 2 4"));
    ASSERT_EQ(AceptarOrdenacion(nullptr, "A", false), OrdenacionHecha);
    const int primera = Muestra.InicioMuestra, ultima = Muestra.FinMuestra;
    ASSERT_EQ(primera, 1);
    ASSERT_EQ(ultima, 3);
    EXPECT_EQ(ValoresDe("A", 6), (Valores{9, 6, 7, 8, 5, 4}));
    EXPECT_EQ(Guardados(1, 4), (Valores{0, 0, 77, 0}));
}

// The bounds of the series and the sample are those of the data at this moment, whatever they were.
TEST(Observaciones, AntesSeRefrescanLimitesYMuestra) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {3, 2, 1}, 5);
    ArchivoTrabajo.PrimeraObs[0] = ArchivoTrabajo.UltimaObs[0] = 99;
    Muestra.InicioMuestra = 0;
    Muestra.FinMuestra = 1;
    ASSERT_EQ(AceptarOrdenacion(nullptr, "A", false), OrdenacionHecha);
    EXPECT_EQ(ArchivoTrabajo.PrimeraObs[0], 5);
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[0], 7);
    EXPECT_EQ(Guardados(0, 9), (Valores{0, 0, 0, 0, 0, 1, 2, 3, 0}));
}

TEST(Observaciones, SeriesQueNoSeEncuentran) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {2, 1});
    PonerCodigoSerie(1, "B"); // in the table, but not counted
    for (const char *linea : {"", "   ", "NADA", "B", "A B", "a"}) {
        SCOPED_TRACE(linea);
        Prueba.cajas.clear();
        EXPECT_EQ(AceptarOrdenacion(nullptr, linea, false), OrdenacionSigue);
        EXPECT_EQ(Prueba.cajas, Aviso("Serie desconocida"));
        EXPECT_EQ(ValoresDe("A", 2), (Valores{2, 1}));
    }
    EXPECT_EQ(AceptarOrdenacion(nullptr, "  A  ", false), OrdenacionHecha);
}

TEST(Observaciones, DeSeriesIgualesLaUltima) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {2, 1});
    PonerSerie("B", {1, 2});
    PonerCodigoSerie(1, "A");
    ASSERT_EQ(AceptarOrdenacion(nullptr, "A", false), OrdenacionHecha);
    EXPECT_EQ(Guardados(0, 2), (Valores{2, 1}));
    EXPECT_EQ(Guardados(1, 2), (Valores{1, 2}));
}

TEST(Observaciones, MuestraDemasiadoGrande) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {2, 1});
    ArchivoTrabajo.NumObs = MaxObservaciones + 1;
    EXPECT_EQ(AceptarOrdenacion(nullptr, "A", false), OrdenacionHecha); // the sample ends with the series
    EXPECT_EQ(ValoresDe("A", 2), (Valores{1, 2}));
    // Without a value beyond row 0 the sample ends far behind the tables: all 4,000 rows are sorted.
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {2});
    EXPECT_EQ(AceptarOrdenacion(nullptr, "A", false), OrdenacionHecha);
    EXPECT_EQ(Guardados(0, 2), (Valores{0, 0}));
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[MaxObservaciones - 1][0], 2);
    ArchivoTrabajo.NumObs = MaxObservaciones + 1;
    EXPECT_EQ(AceptarOrdenacion(nullptr, "A", true), OrdenacionRechazada);
    EXPECT_EQ(Prueba.cajas, Aviso("Elija una muestra más pequeña"));
    EXPECT_EQ(Prueba.cursor, CursorFlecha);
}

// Whatever the values, as the plain loop leaves them: many ties, no numbers, both zeros, infinities.
TEST(Observaciones, ComoElDobleBucleALaLetra) {
    std::mt19937 azar(11);
    const double raros[] = {Falta, -0.0, 0.0, std::numeric_limits<double>::infinity(),
                            -std::numeric_limits<double>::infinity()};
    for (int caso = 0; caso < 40; ++caso) {
        SCOPED_TRACE(caso);
        const bool descendente = caso % 2 != 0;
        const int filas = 2 + static_cast<int>(azar() % 120), series = 1 + static_cast<int>(azar() % 5);
        EmpezarConDatos(TipoSinPeriodicidad, "");
        ArchivoTrabajo.ConEtiquetas = caso / 2 % 2;
        for (int s = 0; s < series; ++s)
            PonerSerie("S" + std::to_string(s), Valores(static_cast<std::size_t>(filas), 1));
        for (int i = 0; i < filas; ++i) {
            PonerCampo(ArchivoTrabajo.EtiquetasObs[i], std::to_string(i), AnchoEtiqueta);
            for (int s = 0; s < series; ++s)
                ArchivoTrabajo.ValoresObs[i][s] =
                    azar() % 9 == 0 ? raros[azar() % 5] : static_cast<double>(azar() % 8);
        }
        const auto esperado = std::make_unique<CabeceraArchivo>(ArchivoTrabajo);
        ASSERT_EQ(AceptarOrdenacion(nullptr, "S0", descendente), OrdenacionHecha);
        const auto hecho = std::make_unique<CabeceraArchivo>(ArchivoTrabajo);
        ArchivoTrabajo = *esperado;
        OrdenarALaLetra(0, 0, filas - 1, descendente);
        EXPECT_EQ(std::memcmp(hecho->ValoresObs, ArchivoTrabajo.ValoresObs, sizeof hecho->ValoresObs), 0);
        EXPECT_EQ(std::memcmp(hecho->EtiquetasObs, ArchivoTrabajo.EtiquetasObs, sizeof hecho->EtiquetasObs),
                  0);
        EXPECT_EQ(std::memcmp(hecho->PresenciaObs, ArchivoTrabajo.PresenciaObs, sizeof hecho->PresenciaObs),
                  0);
    }
}

} // namespace
