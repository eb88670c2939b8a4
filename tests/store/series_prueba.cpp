// The table of series: lookups, limits, deletion and compaction.
#include "apoyo/plataforma_prueba.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

namespace {

// n series S1, S2, ... whose value in row 0 is their number.
void CrearSeries(int n) {
    for (int k = 1; k <= n; ++k) PonerSerie(Formatear("S%d", k), {static_cast<double>(k)});
}

TEST(Series, LaSerie99CabeYLa100No) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    CrearSeries(98);
    EXPECT_TRUE(CabeOtraSerie());
    EXPECT_EQ(TomarSerie("S99"), 98);
    PonerCodigoSerie(98, "S99");
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 99);
    EXPECT_FALSE(CabeOtraSerie());
    EXPECT_EQ(TomarSerie("S100"), -1);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 99);
    EXPECT_EQ(TomarSerie("S50"), 49); // an existing name still has its slot
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(Series, BusquedaEnTablaLlena) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    for (int s = 0; s < MaxSeries; ++s) PonerCodigoSerie(s, Formatear("S%d", s));
    ArchivoTrabajo.NumSeries = MaxSeries;
    for (int s = 0; s < MaxSeries; ++s) {
        EXPECT_EQ(BuscarSerie(Formatear("S%d", s)), s);
        EXPECT_EQ(BuscarSerieEnTabla(Formatear("S%d", s)), s);
    }
    EXPECT_EQ(BuscarSerie("S100"), -1);
    EXPECT_EQ(BuscarSerieEnTabla("S100"), -1);
    EXPECT_EQ(TomarSerie("S100"), -1);
    EXPECT_EQ(TomarSerie("S99"), 99);
}

struct CasoBusqueda {
    const char *texto;
    int slot;
};

constexpr CasoBusqueda Busquedas[] = {
    {"A", 0},   {"A           ", 0}, {"A            ", 0}, {"B", 1},
    {"a", -1},  {" A", -1},          {"AB", -1},           {"", -1},
    {"  ", -1}, {"C", -1},
};

TEST(Series, SeComparaElTextoRelleno) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {1});
    PonerSerie("B", {2});
    PonerCodigoSerie(2, "C"); // beyond the series in use
    for (const CasoBusqueda &c : Busquedas) EXPECT_EQ(BuscarSerie(c.texto), c.slot) << c.texto;
    EXPECT_EQ(BuscarSerieEnTabla("C"), 2);
}

TEST(Series, GanaLaPrimera) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    for (int s = 0; s < 3; ++s) PonerCodigoSerie(s, "X");
    ArchivoTrabajo.NumSeries = 3;
    EXPECT_EQ(BuscarSerie("X"), 0);
}

TEST(Series, BorrarDejaLosValoresHastaCompactar) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    CrearSeries(4);
    BorrarSerie(1);
    EXPECT_STREQ(ArchivoTrabajo.Codigos[1], "            ");
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 4);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][1], 2.0);
    EXPECT_EQ(BuscarSerie("S2"), -1);
    CompactarSeries();
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 3);
    EXPECT_EQ(BuscarSerie("S3"), 1);
    EXPECT_EQ(BuscarSerie("S4"), 2);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][1], 3.0);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][2], 4.0);
    EXPECT_STREQ(ArchivoTrabajo.Codigos[3], "            ");
}

TEST(Series, CompactarMueveLas4000Filas) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {1});
    PonerSerie("B", {2});
    PonerSerie("C", {3});
    for (const int fila : {0, 1999, MaxObservaciones - 1}) PonerObservacion(fila, 2, fila + 0.5, 1);
    BorrarSerie(0);
    BorrarSerie(1);
    CompactarSeries();
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 1);
    for (const int fila : {0, 1999, MaxObservaciones - 1}) {
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[fila][0], fila + 0.5);
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[fila][0], 1);
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[fila][2], 0.0);
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[fila][2], 0);
    }
    EXPECT_EQ(ArchivoTrabajo.PresenciaObs[500][0], 0);
}

// A column that goes over a longer one which was blanked leaves nothing of it behind.
TEST(Series, CompactarSobreUnaColumnaMasLarga) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {1, 2, 3});
    PonerSerie("B", {9});
    BorrarSerie(0);
    CompactarSeries();
    EXPECT_EQ(BuscarSerie("B"), 0);
    EXPECT_EQ(ArchivoTrabajo.FilasEscritas[0], 1);
    EXPECT_EQ(ArchivoTrabajo.FilasEscritas[1], 0);
    for (int fila = 1; fila < 3; ++fila) {
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[fila][0], 0.0);
        EXPECT_EQ(ArchivoTrabajo.PresenciaObs[fila][0], 0);
    }
}

TEST(Series, LaMarcaSubeConLaUltimaFilaYBajaAlLimpiar) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {1});
    PonerObservacion(7, 0, 5.0, 1);
    PonerObservacion(3, 0, 5.0, 1);
    EXPECT_EQ(ArchivoTrabajo.FilasEscritas[0], 8);
    PonerObservacion(MaxObservaciones - 1, 0, 5.0, 1);
    EXPECT_EQ(ArchivoTrabajo.FilasEscritas[0], MaxObservaciones);
    LimpiarColumna(0);
    EXPECT_EQ(ArchivoTrabajo.FilasEscritas[0], 0);
    EXPECT_EQ(ArchivoTrabajo.PresenciaObs[MaxObservaciones - 1][0], 0);
    PonerObservacion(2, 0, 5.0, 1);
    VaciarArchivoTrabajo();
    EXPECT_EQ(ArchivoTrabajo.FilasEscritas[0], 0);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[2][0], 0.0);
}

TEST(Series, CompactarLlevaLosLimitesDeLaSerie) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    CrearSeries(3);
    ArchivoTrabajo.PrimeraObs[2] = 5;
    ArchivoTrabajo.UltimaObs[2] = 9;
    BorrarSerie(0);
    CompactarSeries();
    EXPECT_EQ(ArchivoTrabajo.PrimeraObs[BuscarSerie("S3")], 5);
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[BuscarSerie("S3")], 9);
}

TEST(Series, UnCodigoVacioTambienEsHueco) {
    EmpezarPrueba(); // codes are empty until the first reset
    EXPECT_STREQ(ArchivoTrabajo.Codigos[0], "");
    PonerCodigoSerie(5, "A");
    CompactarSeries();
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 1);
    EXPECT_EQ(BuscarSerie("A"), 0);
}

TEST(Series, LimpiarColumnaBorraTodasLasFilas) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", std::vector<double>(MaxObservaciones, 7.0));
    LimpiarColumna(0);
    for (int i = 0; i < MaxObservaciones; ++i) {
        ASSERT_EQ(ArchivoTrabajo.ValoresObs[i][0], 0.0);
        ASSERT_EQ(ArchivoTrabajo.PresenciaObs[i][0], 0);
    }
}

TEST(Series, EliminarCompactaYRefresca) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    CrearSeries(3);
    EliminarSerie(0);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 2);
    EXPECT_EQ(BuscarSerie("S1"), -1);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][BuscarSerie("S2")], 2.0);
    EXPECT_EQ(ArchivoTrabajo.PresenciaObs[0][2], 0);
    EXPECT_EQ(Prueba.refrescos, 1);
}

} // namespace
