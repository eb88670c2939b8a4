// The sample: automatic, from MUEST and from the dialog.
#include "apoyo/plataforma_prueba.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

constexpr double Nada = std::numeric_limits<double>::quiet_NaN();

std::vector<double> Unos(int n) {
    return std::vector<double>(static_cast<std::size_t>(n), 1.0);
}

// ---------------------------------------------------------------------------------------------------------------
// Automatic sample

struct Tramo {
    int primera, ultima; // rows with values; none when ultima is below primera
};

struct CasoAutomatica {
    std::vector<Tramo> series;
    int inicio, fin;
};

const CasoAutomatica Automaticas[] = {
    {{}, 0, 39},                 // no series
    {{{5, 10}, {8, 20}}, 8, 10}, // where all have data
    {{{5, 10}}, 5, 10},
    {{{5, 10}, {8, 20}, {1, 0}}, 8, 10}, // a series without data doesn't count
    {{{0, 0}, {5, 10}}, 5, 10},          // nor one whose only value stands in row 0
    {{{1, 0}, {1, 0}}, 0, 100000},       // none has data
    {{{0, 0}}, 0, 100000},
    {{{1, 1}}, 1, 1},
    {{{0, 1}}, 0, 1},
    {{{0, 5}, {20, 30}}, 20, 20}, // no common stretch: the end is brought to the start
    {{{0, 39}}, 0, 39},
};

TEST(MuestraAutomatica, SigueALosDatos) {
    for (const CasoAutomatica &c : Automaticas) {
        EmpezarConDatos(TipoAnual, "1961#2000");
        std::string nombre;
        for (const Tramo &t : c.series) {
            PonerSerie(Formatear("S%d", ArchivoTrabajo.NumSeries),
                       Unos(std::max(t.ultima - t.primera + 1, 0)), t.primera);
            nombre += Formatear("[%d,%d]", t.primera, t.ultima);
        }
        SCOPED_TRACE(nombre);
        ActualizarMuestra();
        EXPECT_EQ(Muestra.InicioMuestra, c.inicio);
        EXPECT_EQ(Muestra.FinMuestra, c.fin);
        ActualizarMuestra(); // idempotent
        EXPECT_EQ(Muestra.InicioMuestra, c.inicio);
        EXPECT_EQ(Muestra.FinMuestra, c.fin);
    }
}

TEST(MuestraAutomatica, LosHuecosInterioresNoCuentan) {
    EmpezarConDatos(TipoAnual, "1961#2000");
    PonerSerie("A", {1, Nada, Nada, 2}, 3);
    ActualizarMuestra();
    EXPECT_EQ(Muestra.InicioMuestra, 3);
    EXPECT_EQ(Muestra.FinMuestra, 6);
    PonerSerie("B", {1, 1}, 4); // a new shorter series shrinks it
    ActualizarMuestra();
    EXPECT_EQ(Muestra.InicioMuestra, 4);
    EXPECT_EQ(Muestra.FinMuestra, 5);
}

TEST(MuestraAutomatica, CienSeriesYCuatroMilFilas) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    for (int s = 0; s < 99; ++s) PonerSerie(Formatear("S%d", s), Unos(MaxObservaciones - 2 * s - 1), s);
    ActualizarMuestra();
    EXPECT_EQ(Muestra.InicioMuestra, 98);
    EXPECT_EQ(Muestra.FinMuestra, MaxObservaciones - 98 - 2);
}

TEST(MuestraAutomatica, NumerosDanadosNoSalenDeLasTablas) {
    for (const int n : {-2147483647, -1, 0, 4001, 2147483647})
        for (const int series : {0, 1, 100, 65535})
            for (const char *linea : {"MUEST 0 0", "MUEST 1990 1995", "MUEST 1990 0"}) {
                EmpezarConDatos(TipoAnual, "1990#1999");
                PonerSerie("A", Unos(5), 2);
                ArchivoTrabajo.NumObs = n;
                ArchivoTrabajo.NumSeries = static_cast<std::uint16_t>(series);
                MuestraDeSentencia(linea);
                EXPECT_GE(Muestra.InicioMuestra, 0);
                EXPECT_LE(Muestra.InicioMuestra, MaxObservaciones);
            }
}

// ---------------------------------------------------------------------------------------------------------------
// MUEST

struct CasoMuest {
    int tipo;
    const char *intervalo;
    const char *linea;
    int inicio, fin;
};

constexpr CasoMuest Sentencias[] = {
    // Annual, 1990 to 1999: rows 0 to 9.
    {TipoAnual, "1990#1999", "MUEST 1992 1995", 2, 5},
    {TipoAnual, "1990#1999", "MUEST 1990 1998", 0, 8},
    {TipoAnual, "1990#1999", "MUEST 1990 1999", 0, 9}, // no row is above the last limit
    {TipoAnual, "1990#1999", "MUEST 1999 1999", 0, 9}, // nor above the first: the start falls to 0
    {TipoAnual, "1990#1999", "MUEST 1998 1998", 8, 8},
    {TipoAnual, "1990#1999", "MUEST 1995 1992", 5, 6}, // end below start: start plus 1
    {TipoAnual, "1990#1999", "MUEST 1980 1985", 0, 9}, // no row matches: 0 and the last row
    {TipoAnual, "1990#1999", "MUEST 2010 2020", 0, 9},
    {TipoAnual, "1990#1999", "MUEST 1992", 2, 9},
    {TipoAnual, "1990#1999", "MUEST", 0, 9},
    {TipoAnual, "1990#1999", "MUEST 0 0", 0, 9},
    {TipoAnual, "1990#1999", "MUEST 0 1995", 0, 5},
    {TipoAnual, "1990#1999", "MUEST 1992,1995", 2, 5},
    {TipoAnual, "1990#1999", "MUEST(1992:1995)", 2, 5},
    {TipoAnual, "1990#1999", "MUEST 1992.3 1995.2", 2, 5},
    {TipoAnual, "1990#1999", "MUEST 1992-1995", 2, 9}, // one word
    {TipoAnual, "1990#1999", "MUEST 1992/7 1995", 2, 5},
    {TipoAnual, "1990#1999", "MUEST -5 1995", 0, 5}, // nothing before the "-": no first limit
    {TipoAnual, "1990#1999", "MUEST 99999999999999999999 99999999999999999999", 0, 9},
    {TipoAnual, "1990#1999", "MUEST A B", 0, 9},
    // No periodicity: the number of the observation.
    {TipoSinPeriodicidad, "", "MUEST 3 7", 2, 6},
    {TipoSinPeriodicidad, "", "MUEST 1 4000", 0, 3999},
    {TipoSinPeriodicidad, "", "MUEST 4000 4000", 0, 3999},
    {TipoSinPeriodicidad, "", "MUEST 3999 3999", 3998, 3998},
    {TipoSinPeriodicidad, "", "MUEST 2.9 3", 1, 2},
    // Quarterly, 1990.1 to 1999.4: rows 0 to 39.
    {TipoTrimestral, "1990#1#1999#4", "MUEST 1995.1 1996.4", 20, 27},
    {TipoTrimestral, "1990#1#1999#4", "MUEST 1995 1996", 20, 27},
    {TipoTrimestral, "1990#1#1999#4", "MUEST 1995.0 1996.0", 20, 27},
    {TipoTrimestral, "1990#1#1999#4", "MUEST 1995.2 1995.3", 21, 22},
    {TipoTrimestral, "1990#1#1999#4", "MUEST 1999.4 1999.4", 0, 39},
    {TipoTrimestral, "1990#1#1999#4", "MUEST 1999.3 1999.3", 38, 38},
    {TipoTrimestral, "1990#1#1999#4", "MUEST 1995.12 0", 25, 39}, // 12 over 10: 1996.2
    // Monthly, 1990.01 to 1999.12: rows 0 to 119.
    {TipoMensual, "1990#01#1999#12", "MUEST 1995.1 1995.2", 60, 61},
    {TipoMensual, "1990#01#1999#12", "MUEST 1995.01 1995.02", 60, 61},
    {TipoMensual, "1990#01#1999#12", "MUEST 1995 1995", 60, 71},
    {TipoMensual, "1990#01#1999#12", "MUEST 1995.10 1995.12", 69, 71},
};

TEST(Muest, CadaLinea) {
    for (const CasoMuest &c : Sentencias) {
        SCOPED_TRACE(Formatear("tipo %d: %s", c.tipo, c.linea));
        EmpezarConDatos(c.tipo, c.intervalo);
        MuestraDeSentencia(c.linea);
        EXPECT_EQ(Muestra.InicioMuestra, c.inicio);
        EXPECT_EQ(Muestra.FinMuestra, c.fin);
        EXPECT_TRUE(Prueba.cajas.empty());
    }
}

TEST(Muest, UnLimiteQueFaltaLoDanLasSeries) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("A", Unos(6), 2); // rows 2 to 7
    MuestraDeSentencia("MUEST 1993 0");
    EXPECT_EQ(Muestra.InicioMuestra, 3);
    EXPECT_EQ(Muestra.FinMuestra, 7);
    MuestraDeSentencia("MUEST 0 1995");
    EXPECT_EQ(Muestra.InicioMuestra, 2);
    EXPECT_EQ(Muestra.FinMuestra, 5);
    MuestraDeSentencia("MUEST 1990 1999"); // written limits go beyond the data
    EXPECT_EQ(Muestra.InicioMuestra, 0);
    EXPECT_EQ(Muestra.FinMuestra, 9);
    MuestraDeSentencia("MUEST 0 0"); // back to the automatic sample
    EXPECT_EQ(Muestra.InicioMuestra, 2);
    EXPECT_EQ(Muestra.FinMuestra, 7);
}

TEST(Muest, ElFinDe100000SeQueda) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {});
    MuestraDeSentencia("MUEST 1993 0");
    EXPECT_EQ(Muestra.InicioMuestra, 3);
    EXPECT_EQ(Muestra.FinMuestra, 100000);
}

// Every quarter and every month of two centuries finds its own row, as a first and as a last limit.
TEST(Muest, TodosLosPeriodosEncuentranSuFila) {
    struct Forma {
        int tipo, porAno;
        const char *intervalo, *texto;
    };
    constexpr Forma Formas[] = {{TipoTrimestral, 4, "1900#1#2100#4", "%d.%d"},
                                {TipoMensual, 12, "1900#01#2100#12", "%d.%d"},
                                {TipoMensual, 12, "1900#01#2100#12", "%d.%02d"}};
    for (const Forma &f : Formas) {
        EmpezarConDatos(f.tipo, f.intervalo);
        const int filas = 201 * f.porAno;
        ASSERT_EQ(ArchivoTrabajo.NumObs, filas);
        for (int fila = 0; fila < filas; ++fila) {
            const std::string periodo = Formatear(f.texto, 1900 + fila / f.porAno, fila % f.porAno + 1);
            MuestraDeSentencia("MUEST " + periodo + " " + periodo);
            const bool esUltima = fila == filas - 1;
            ASSERT_EQ(Muestra.InicioMuestra, esUltima ? 0 : fila) << periodo;
            ASSERT_EQ(Muestra.FinMuestra, fila) << periodo;
        }
    }
}

// ---------------------------------------------------------------------------------------------------------------
// Panel

void EmpezarPanel(int primero, int periodicidad, const char *intervalo) {
    EmpezarPrueba();
    DescripcionPanel.PrimerConcepto = primero;
    DescripcionPanel.TipoPeriodoPanel = periodicidad;
    DescripcionPanel.NumEntradas = 3;
    ArchivoTrabajo.TipoDatos = TipoPanel;
    PonerCampo(ArchivoTrabajo.TextoIntervalo, intervalo, AnchoIntervalo);
    VaciarArchivoTrabajo();
}

struct CasoPanel {
    int primero, periodicidad;
    const char *intervalo, *linea;
    int inicio, fin;
    int anoInicial, subInicial, individuoInicial;
};

constexpr CasoPanel Paneles[] = {
    // 1990-1, 1990-2, 1990-3, 1991-1, 1991-2, 1991-3
    {PeriodoPrimero, TipoAnual, "1990#1991", "MUEST 1990-2 1991-1", 1, 3, 1990, 0, 2},
    {PeriodoPrimero, TipoAnual, "1990#1991", "MUEST 1990-2 0", 1, 5, 1990, 0, 2},
    {PeriodoPrimero, TipoAnual, "1990#1991", "MUEST 1990 1991", 0, 5, 1990, 0, 0}, // no row is called so
    {PeriodoPrimero, TipoAnual, "1990#1991", "MUEST 1991-2 1990-1", 4, 5, 1991, 0, 2},
    // 1-1990, 1-1991, 2-1990, 2-1991, 3-1990, 3-1991
    {IndividuoPrimero, TipoAnual, "1990#1991", "MUEST 2-1990 3-1990", 2, 4, 1990, 0, 2},
    {IndividuoPrimero, TipoAnual, "1990#1991", "MUEST 2 3", 0, 5, 0, 0, 2}, // no year: no limit
    // 1990.3-1 ... 1990.4-3
    {PeriodoPrimero, TipoTrimestral, "1990#3#1990#4", "MUEST 1990.3-2 1990.4-1", 1, 3, 1990, 3, 2},
    {IndividuoPrimero, TipoMensual, "1990#09#1990#10", "MUEST 2-1990.09 3-1990.09", 2, 4, 1990, 9, 2},
    {IndividuoPrimero, TipoMensual, "1990#09#1990#10", "MUEST 2-1990.9 3-1990.09", 0, 4, 1990, 9, 2},
};

TEST(Muest, EnPanelValeElTextoDeLaFila) {
    for (const CasoPanel &c : Paneles) {
        SCOPED_TRACE(c.linea);
        EmpezarPanel(c.primero, c.periodicidad, c.intervalo);
        MuestraDeSentencia(c.linea);
        EXPECT_EQ(Muestra.InicioMuestra, c.inicio);
        EXPECT_EQ(Muestra.FinMuestra, c.fin);
        EXPECT_EQ(Muestra.AnoInicial, c.anoInicial);
        EXPECT_EQ(Muestra.SubInicial, c.subInicial);
        EXPECT_EQ(Muestra.IndividuoInicial, c.individuoInicial);
    }
}

TEST(Muest, ElPrimerConceptoSoloCuentaEnPanel) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    DescripcionPanel.PrimerConcepto = IndividuoPrimero; // left by an earlier panel
    MuestraDeSentencia("MUEST 1992 1995");
    EXPECT_EQ(Muestra.InicioMuestra, 2);
    EXPECT_EQ(Muestra.FinMuestra, 5);
}

// ---------------------------------------------------------------------------------------------------------------
// The dialogs

struct CasoDialogo {
    int tipo;
    const char *intervalo, *inicial, *final;
    int inicio, fin;
    const char *textoInicial, *textoFinal; // as the dialog shows them when it opens again
};

constexpr CasoDialogo Dialogos[] = {
    {TipoAnual, "1990#1999", "1992", "1995", 2, 5, "1992", "1995"},
    {TipoAnual, "1990#1999", " 1992 ", " 19 95", 2, 5, "1992", "1995"},
    {TipoAnual, "1990#1999", "", "", 0, 9, "0", "0"},
    {TipoAnual, "1990#1999", "x", "1995", 0, 5, "0", "1995"},
    {TipoTrimestral, "1990#1#1999#4", "1995.2", "1996", 21, 27, "1995.2", "1996"},
    {TipoMensual, "1990#01#1999#12", "1995.2", "1995.11", 61, 70, "1995.02", "1995.11"},
    {TipoAnual, "1990#1999", "1992              9", "1995", 2, 5, "1992", "1995"}, // cut at 18 characters
};

TEST(DialogoMuestra, LosCamposSePartenComoEnMuest) {
    for (const CasoDialogo &c : Dialogos) {
        SCOPED_TRACE(c.inicial);
        EmpezarConDatos(c.tipo, c.intervalo);
        AceptarDialogoMuestra(c.inicial, c.final);
        EXPECT_EQ(Muestra.InicioMuestra, c.inicio);
        EXPECT_EQ(Muestra.FinMuestra, c.fin);
        PrepararDialogoMuestra();
        EXPECT_EQ(Muestra.TextoInicial, c.textoInicial);
        EXPECT_EQ(Muestra.TextoFinal, c.textoFinal);
    }
}

TEST(DialogoMuestra, EnPanelMuestraLoEscrito) {
    EmpezarPanel(PeriodoPrimero, TipoAnual, "1990#1991");
    AceptarDialogoMuestra("1990 - 2", "1991-1");
    PrepararDialogoMuestra();
    EXPECT_EQ(Muestra.TextoInicial, "1990-2");
    EXPECT_EQ(Muestra.TextoFinal, "1991-1");
    EXPECT_EQ(Muestra.InicioMuestra, 1);
    EXPECT_EQ(Muestra.FinMuestra, 3);
}

std::vector<std::string> LineasActuales() {
    std::vector<std::string> r = LineasMuestraActual();
    for (std::string &linea : r) linea = Utf8De1252(linea);
    return r;
}

TEST(DialogoMuestraActual, SusCuatroLineas) {
    EmpezarConDatos(TipoMensual, "1990#01#1999#12");
    MuestraDeSentencia("MUEST 1991.3 1995.10");
    EXPECT_EQ(LineasActuales(),
              (std::vector<std::string>{"Período inicial: 1991.03", "Período final: 1995.10",
                                        "Muestra máxima: 1990. 1#1999.12", "Número máximo datos: 120"}));
    EmpezarConDatos(TipoSinPeriodicidad, "");
    EXPECT_EQ(LineasActuales(),
              (std::vector<std::string>{"Período inicial: 1", "Período final: 4000",
                                        "Muestra máxima:  1 # 4000", "Número máximo datos: 4000"}));
}

TEST(DialogoMuestraActual, SinFilasSinTexto) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {});
    ActualizarMuestra();
    EXPECT_EQ(LineasActuales()[1], "Período final: "); // the end of 100,000
    ArchivoTrabajo.NumObs = 4001;
    EXPECT_EQ(LineasActuales()[0], "Período inicial: ");
    EXPECT_EQ(LineasActuales()[3], "Número máximo datos: 4001");
}

} // namespace
