// The texts of the rows by data type, and the fixed columns of TextoIntervalo.
#include "apoyo/plataforma_prueba.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/intervalo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string IntervaloActual() {
    return std::string(Recortado(ArchivoTrabajo.TextoIntervalo, RecorteDerecha));
}

struct CasoPeriodos {
    int tipo;
    const char *intervalo; // as a dialog leaves it
    int filas;
    const char *primera, *ultima; // texts with their own blanks, the padding removed
    const char *reescrito;
};

constexpr CasoPeriodos Periodos[] = {
    {TipoSinPeriodicidad, "", 4000, "   1", "4000", " 1 # 4000"},
    {TipoAnual, "1990#2005", 16, "1990", "2005", "1990#2005"},
    {TipoAnual, "    #    ", 4000, "2001", "6000", "2001#6000"},
    {TipoAnual, "", 4000, "2001", "6000", "2001#6000"},
    {TipoAnual, "1990#1990", 2, "1990", "1991", "1990#1991"},
    {TipoAnual, "1990#1980", 2, "1990", "1991", "1990#1991"},
    {TipoAnual, "1990#    ", 4000, "1990", "5989", "1990#5989"},
    {TipoAnual, "    #2005", 5, "2001", "2005", "2001#2005"},
    {TipoAnual, "9000#    ", 4000, "9000", "12999", "9000#12999"},
    {TipoTrimestral, "1995#1#2002#4", 32, "1995.1", "2002.4", "1995.1#2002.4"},
    {TipoTrimestral, "1995.2#2002.3", 30, "1995.2", "2002.3", "1995.2#2002.3"}, // a second reset
    {TipoTrimestral, "    #1#    #4", 4000, "2001.1", "3000.4", "2001.1#3000.4"},
    {TipoTrimestral, "", 4000, "2001.1", "3000.4", "2001.1#3000.4"},
    {TipoTrimestral, "    #3#    #4", 4000, "2001.3", "3001.2", "2001.3#3001.2"},
    {TipoTrimestral, "1995#0#2002#0", 32, "1995.1", "2002.4", "1995.1#2002.4"},
    {TipoTrimestral, "1995#2#1995#2", 5, "1995.2", "1996.2", "1995.2#1996.2"},
    {TipoTrimestral, "1995#2#1995#1", 4, "1995.2", "1996.1", "1995.2#1996.1"},
    {TipoTrimestral, "1995#2#1995#3", 2, "1995.2", "1995.3", "1995.2#1995.3"},
    {TipoTrimestral, "1995#2#1990#3", 6, "1995.2", "1996.3", "1995.2#1996.3"},
    {TipoMensual, "1990#01#2005#12", 192, "1990.01", "2005.12", "1990. 1#2005.12"},
    {TipoMensual, "1990. 1#2005.12", 192, "1990.01", "2005.12", "1990. 1#2005.12"},
    {TipoMensual, "    #  #    #  ", 4000, "2001.01", "2334.04", "2001. 1#2334. 4"},
    {TipoMensual, "1990#11#1990#02", 4, "1990.11", "1991.02", "1990.11#1991. 2"},
    {TipoMensual, "1990#00#1990#00", 12, "1990.01", "1990.12", "1990. 1#1990.12"},
    // Damaged files: no count passes the tables.
    {TipoAnual, "-999#9999", 4000, "-999", "3000", "-999#3000"},
    {TipoTrimestral, "1000#1#9999#4", 4000, "1000.1", "1999.4", "1000.1#1999.4"},
    {TipoTrimestral, "1000#9#1001#9", 5, "1000.4", "1001.4", "1000.4#1001.4"},
    {TipoMensual, "abcdefghijklmnop", 4000, "2001.01", "2334.04", "2001. 1#2334. 4"},
    {SinTipoDatos, "1990#2005", 0, "", "", "1990#2005"},
    {5, "1990#2005", 0, "", "", "1990#2005"},
};

TEST(Periodos, CadaTipo) {
    for (const CasoPeriodos &c : Periodos) {
        SCOPED_TRACE(Formatear("tipo %d \"%s\"", c.tipo, c.intervalo));
        EmpezarConDatos(c.tipo, c.intervalo);
        ASSERT_EQ(ArchivoTrabajo.NumObs, c.filas);
        EXPECT_EQ(IntervaloActual(), c.reescrito);
        if (c.filas == 0) continue;
        EXPECT_EQ(Recortado(ArchivoTrabajo.TextosPeriodo[0], RecorteDerecha), c.primera);
        EXPECT_EQ(Recortado(ArchivoTrabajo.TextosPeriodo[c.filas - 1], RecorteDerecha), c.ultima);
        if (c.filas < MaxObservaciones) {
            EXPECT_EQ(TextoPeriodo(c.filas), "");
        }
        EXPECT_EQ(std::string(ArchivoTrabajo.TextosPeriodo[0]).size(), 29u);
    }
}

TEST(Periodos, LosMesesLlevanCero) {
    EmpezarConDatos(TipoMensual, "1990#09#1991#01");
    for (int i = 0; i < 5; ++i) {
        static constexpr const char *Textos[] = {"1990.09", "1990.10", "1990.11", "1990.12", "1991.01"};
        EXPECT_EQ(TextoPeriodo(i), Textos[i]);
    }
}

TEST(Periodos, SinPeriodicidadConservaElNumeroDeObservaciones) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    ArchivoTrabajo.NumObs = 12;
    VaciarArchivoTrabajo();
    EXPECT_EQ(ArchivoTrabajo.NumObs, 12);
    EXPECT_EQ(TextoPeriodo(12), "");
    EXPECT_EQ(IntervaloActual(), " 1 # 12");
    ArchivoTrabajo.NumObs = 100000; // from a damaged file
    VaciarArchivoTrabajo();
    EXPECT_EQ(ArchivoTrabajo.NumObs, 4000);
}

// ---------------------------------------------------------------------------------------------------------------
// Panel

struct CasoPanelConstante {
    int primero, periodicidad, individuos;
    const char *intervalo;
    int filas;
    std::vector<std::string> textos; // of the first rows
    const char *ultima, *reescrito;
};

const CasoPanelConstante Paneles[] = {
    {PeriodoPrimero,
     TipoAnual,
     3,
     "1990#1991",
     6,
     {"1990-1", "1990-2", "1990-3", "1991-1", "1991-2", "1991-3"},
     "1991-3",
     "1990#1991"},
    {IndividuoPrimero,
     TipoAnual,
     3,
     "1990#1991",
     6,
     {"1-1990", "1-1991", "2-1990", "2-1991", "3-1990", "3-1991"},
     "3-1991",
     "1990#1991"},
    {PeriodoPrimero,
     TipoTrimestral,
     2,
     "1990#4#1991#1",
     4,
     {"1990.4-1", "1990.4-2", "1991.1-1"},
     "1991.1-2",
     "1990.4#1991.1"},
    {IndividuoPrimero,
     TipoTrimestral,
     2,
     "1990#4#1991#1",
     4,
     {"1-1990.4", "1-1991.1", "2-1990.4"},
     "2-1991.1",
     "1990.4#1991.1"},
    {PeriodoPrimero,
     TipoMensual,
     1,
     "1990#09#1990#10",
     2,
     {"1990.09-1", "1990.10-1"},
     "1990.10-1",
     "1990. 9#1990.10"},
    {IndividuoPrimero,
     TipoMensual,
     2,
     "1990#09#1990#10",
     4,
     {"1-1990.09", "1-1990.10", "2-1990.09"},
     "2-1990.10",
     "1990. 9#1990.10"},
    // One period of several individuals.
    {PeriodoPrimero, TipoAnual, 2, "1990#1990", 2, {"1990-1", "1990-2"}, "1990-2", "1990#1990"},
    // A last year below the first becomes first plus 1.
    {PeriodoPrimero, TipoAnual, 1, "1990#1980", 2, {"1990-1", "1991-1"}, "1991-1", "1990#1991"},
    {PeriodoPrimero,
     TipoTrimestral,
     1,
     "1990#3#1990#1",
     3,
     {"1990.3-1", "1990.4-1"},
     "1991.1-1",
     "1990.3#1991.1"},
    // Blank years: 2001 - 1 + 3999/7 = 2571; 2001 - 1 + 4000/(4*10) = 2100; 2001 - 1 + 4000/(12*3) = 2111.
    {PeriodoPrimero, TipoAnual, 7, "    #    ", 571 * 7, {"2001-1"}, "2571-7", "2001#2571"},
    {PeriodoPrimero, TipoTrimestral, 10, "    #1#    #4", 4000, {"2001.1-1"}, "2100.4-10", "2001.1#2100.4"},
    {PeriodoPrimero, TipoMensual, 3, "    #01#    #12", 3996, {"2001.01-1"}, "2111.12-3", "2001. 1#2111.12"},
    {PeriodoPrimero, TipoAnual, 1, "    #    ", 3999, {"2001-1"}, "5999-1", "2001#5999"},
    // Rows stop at 4,000, and nothing overflows.
    {PeriodoPrimero,
     TipoAnual,
     2000000000,
     "    #    ",
     4000,
     {"2001-1", "2001-2"},
     "2001-4000",
     "2001#2002"},
    {IndividuoPrimero,
     TipoMensual,
     2147483647,
     "1990#01#1990#12",
     4000,
     {"1-1990.01"},
     "334-1990.04",
     "1990. 1#1990.12"},
    {PeriodoPrimero, TipoAnual, 0, "1990#1991", 0, {}, "", "1990#1991"},
};

TEST(PeriodosPanel, Constante) {
    for (const CasoPanelConstante &c : Paneles) {
        SCOPED_TRACE(Formatear("%d %d %d \"%s\"", c.primero, c.periodicidad, c.individuos, c.intervalo));
        EmpezarPrueba();
        DescripcionPanel.PrimerConcepto = c.primero;
        DescripcionPanel.TipoPeriodoPanel = c.periodicidad;
        DescripcionPanel.NumEntradas = c.individuos;
        ArchivoTrabajo.TipoDatos = TipoPanel;
        PonerCampo(ArchivoTrabajo.TextoIntervalo, c.intervalo, AnchoIntervalo);
        VaciarArchivoTrabajo();
        ASSERT_EQ(ArchivoTrabajo.NumObs, c.filas);
        for (std::size_t i = 0; i < c.textos.size(); ++i)
            EXPECT_EQ(TextoPeriodo(static_cast<int>(i)), c.textos[i]);
        EXPECT_EQ(TextoPeriodo(c.filas - 1), c.ultima);
        EXPECT_EQ(IntervaloActual(), c.reescrito);
    }
}

TEST(PeriodosPanel, VariablePorPeriodos) {
    EmpezarPrueba();
    DescripcionPanel.FormaPanel = PanelVariable;
    DescripcionPanel.NumEntradas = 2;
    DescripcionPanel.periodos[0] = {2, "1990"};
    DescripcionPanel.periodos[1] = {1, "1993.2"};
    ArchivoTrabajo.TipoDatos = TipoPanel;
    VaciarArchivoTrabajo();
    ASSERT_EQ(ArchivoTrabajo.NumObs, 3);
    EXPECT_EQ(TextoPeriodo(0), "1990-1");
    EXPECT_EQ(TextoPeriodo(1), "1990-2");
    EXPECT_EQ(TextoPeriodo(2), "1993.2-1");
    EXPECT_EQ(IntervaloActual(), "1990#1993.2");
    DescripcionPanel.periodos[1].individuos = 2147483647;
    VaciarArchivoTrabajo();
    EXPECT_EQ(ArchivoTrabajo.NumObs, 4000);
    DescripcionPanel.NumEntradas = 2147483647; // damaged
    VaciarArchivoTrabajo();
    EXPECT_EQ(ArchivoTrabajo.NumObs, 4000);
}

TEST(PeriodosPanel, VariablePorIndividuosConEtiquetas) {
    EmpezarPrueba();
    DescripcionPanel.FormaPanel = PanelVariable;
    DescripcionPanel.PrimerConcepto = IndividuoPrimero;
    DescripcionPanel.NumEntradas = 3;
    DescripcionPanel.individuos[0] = {1, 2, {"1990", "1991"}};
    DescripcionPanel.individuos[1] = {50, 1, {"1990"}};
    DescripcionPanel.individuos[2] = {51, 1, {"1990"}};
    PonerCampo(DescripcionPanel.EtiquetasIndividuo[0], "Pe\xF1\xF3n", AnchoEtiqueta);
    PonerCampo(DescripcionPanel.EtiquetasIndividuo[49], "Ultimo", AnchoEtiqueta);
    ArchivoTrabajo.TipoDatos = TipoPanel;
    ArchivoTrabajo.ConEtiquetas = 1;
    VaciarArchivoTrabajo();
    ASSERT_EQ(ArchivoTrabajo.NumObs, 4);
    static constexpr const char *Textos[] = {"1-1990", "1-1991", "50-1990", "51-1990"};
    static constexpr const char *Etiquetas[] = {"Pe\xF1\xF3n       ", "Pe\xF1\xF3n       ", "Ultimo      ",
                                                "            "};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(TextoPeriodo(i), Textos[i]);
        EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[i], Etiquetas[i]);
    }
    EXPECT_EQ(IntervaloActual(), "1#51");
    ArchivoTrabajo.ConEtiquetas = 0;
    VaciarArchivoTrabajo();
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[0], "            ");
}

// ---------------------------------------------------------------------------------------------------------------
// The interval and its columns

struct CasoColumnas {
    int porAno;
    Intervalo intervalo;
    const char *compuesto, *reescrito;
};

constexpr CasoColumnas Columnas[] = {
    {1, {1990, 0, 2005, 0}, "1990#2005", "1990#2005"},
    {4, {1995, 1, 2002, 4}, "1995#1#2002#4", "1995.1#2002.4"},
    {12, {1995, 1, 2002, 12}, "1995#01#2002#12", "1995. 1#2002.12"},
};

TEST(Intervalo, SeLeeComoSeCompone) {
    for (const CasoColumnas &c : Columnas) {
        SCOPED_TRACE(c.compuesto);
        EXPECT_EQ(ComponerIntervalo(c.intervalo, c.porAno), c.compuesto);
        EXPECT_EQ(TextoDeIntervalo(c.intervalo, c.porAno), c.reescrito);
        for (const char *texto : {c.compuesto, c.reescrito}) {
            const Intervalo v = LeerIntervalo(texto, c.porAno);
            EXPECT_EQ(v.primerAno, c.intervalo.primerAno);
            EXPECT_EQ(v.primerSub, c.intervalo.primerSub);
            EXPECT_EQ(v.ultimoAno, c.intervalo.ultimoAno);
            EXPECT_EQ(v.ultimoSub, c.intervalo.ultimoSub);
        }
    }
}

TEST(Intervalo, ElIndiceDeUnPeriodoVaYVuelve) {
    for (const int porAno : {1, 4, 12})
        for (int indice = -30; indice < 30; ++indice) {
            int ano = 0;
            int sub = 0;
            PeriodoDeIndice(indice, porAno, ano, sub);
            EXPECT_EQ(IndicePeriodo(ano, sub, porAno), indice);
            EXPECT_GE(sub, 1);
            EXPECT_LE(sub, porAno);
        }
}

} // namespace
