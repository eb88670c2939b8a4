// The reports of CR, CGQ and CWH, line by line, from results placed in the store.
#include "estimation/informes_contraste.h"

#include "apoyo/datos_regresion.h"
#include "platform/campos_texto.h"
#include "store/temporales.h"

#include <gtest/gtest.h>

namespace {

using Lineas = std::vector<std::pair<int, std::string>>;

const std::string Setenta(70, ' ');

Lineas Leer(const TextoSalida &texto) {
    Lineas r;
    for (const LineaSalida &l : texto) r.emplace_back(l.Grupo, Utf8De1252(l.texto));
    return r;
}

// The last regression: Y on 1, X and Z over 2000 to 2010, rows 10 to 20 of annual data from 1990 on.
void DejarRegresion() {
    EmpezarConDatos(TipoAnual, "1990#2015");
    UltimaRegresion.MetodoRegresion = OrdenMC;
    PonerCampo(UltimaRegresion.CodigoDependiente, "Y", AnchoCodigo);
    UltimaRegresion.CodigosRegresores = {"1", "X", "Z"};
    UltimaRegresion.TextosRegresores = {"1", "X"};
    UltimaRegresion.PrimeraObsRegresion = Muestra.InicioRegresion = 10;
    UltimaRegresion.UltimaObsRegresion = Muestra.FinRegresion = 20;
    PonerMatriz("_YDEP", std::vector<double>(11, 1.0), 11, 1);
    UltimoContraste = {};
    Lote.VerRegresion = 0;
}

// The results of a regression, whose block another test reads.
void DejarBloque(int codigo, int fila) {
    PonerMatriz(NombreFamilia(FamBETA, codigo), {1.5, -2.25}, 2, 1);
    PonerMatriz(NombreFamilia(FamDTE, codigo), {0.5, 0.25}, 2, 1);
    PonerSerie(NombreFamilia(FamDIV, codigo), {3.0, -9.0, 1.0}, fila);
    PonerSerie(NombreFamilia(FamPROBT, codigo), {0.25, 0.125, 0.5}, fila);
    for (const Familias f : {FamMVD, FamDTVD, FamDTR, FamDCR, FamRC, FamRCC, FamLV, FamAIC, FamFORLA, FamESTF,
                             FamDW, FamEA1, FamANREG, FamNORE})
        PonerEscalar(nullptr, NombreFamilia(f, codigo), 2.0);
}

// ----- CR

void DejarRestringido() {
    DejarRegresion();
    PonerEscalar(nullptr, "_EST5", 1.0);
    PonerEscalar(nullptr, "_NORE", 17.0);
    PonerEscalar(nullptr, "_FORLAR", 4.5);
    PonerEscalar(nullptr, "_ESTFR", 0.0489);
}

TEST(InformeCR, Lineas) {
    DejarRestringido();
    MostrarRegresion(nullptr, OrdenCR);
    EXPECT_TRUE(Prueba.cajas.empty()) << "it is shown without a question, whatever VSR says";
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const ResultadoVisto &r = Prueba.resultados[0];
    EXPECT_EQ(r.titulo, "Contrastes de significatividad: Modelo restringido");
    EXPECT_EQ(r.clase, 9);
    EXPECT_EQ(r.lineas, (Lineas{{1, "MC Y 1 X Z"},
                                {0, "Variable Dep.: Y"},
                                {0, "Regresores   : 1,X"},
                                {0, "Muestra      : 2000 - 2010          Nº Observaciones     : 11"},
                                {0, ""},
                                {1, "Estadístico F(  1, 17):    4.5000  Prob > F             :    0.0489"}}));
    InformeProducido informe;
    ASSERT_EQ(InformeModeloRestringido(informe, nullptr, OrdenCR), 1);
    const Lineas enteras = Leer(informe.lineas);
    EXPECT_EQ(enteras[1].second, "Variable Dep.: Y         " + std::string(44, ' '));
    EXPECT_EQ(enteras[2].second, "Regresores   : 1,X" + std::string(51, ' '));
    EXPECT_EQ(enteras[4].second, Setenta);
    EXPECT_EQ(enteras[5].second, "Estadístico F(  1, 17):    4.5000  Prob > F             :    0.0489 ");
    EXPECT_TRUE(informe.tablas.empty());
    EXPECT_EQ(Utf8De1252(informe.tabla), "MC Y 1 X Z\nEstadístico F\t4.5\nGrados de libertad 1\t1\n"
                                         "Grados de libertad 2\t17\nProb > F\t0.0489\n");
}

TEST(InformeCR, LaEcuacionSeDetiene) {
    const std::string largo(12, 'A');
    const struct {
        int metodo;
        const char *dependiente;
        std::vector<std::string> nombres;
        std::string linea;
    } Casos[] = {
        {OrdenMCP, "SALARIO", {"1", "X"}, "MCP SALARIO 1 X"},
        // "MC Y " and three names of 12 have 43 characters; with a fourth one 56.
        {OrdenMC,
         "Y",
         {largo, largo, largo, largo, "B"},
         "MC Y " + largo + " " + largo + " " + largo + " " + largo},
        // 45 characters are not yet beyond 45.
        {OrdenMC,
         "YYY",
         {largo, largo, largo, "B", "C"},
         "MC YYY " + largo + " " + largo + " " + largo + " B"},
        {OrdenMC, "Y", {}, "MC Y"},
    };
    for (const auto &caso : Casos) {
        SCOPED_TRACE(caso.linea);
        DejarRestringido();
        UltimaRegresion.MetodoRegresion = caso.metodo;
        PonerCampo(UltimaRegresion.CodigoDependiente, caso.dependiente, AnchoCodigo);
        UltimaRegresion.CodigosRegresores = caso.nombres;
        InformeProducido informe;
        ASSERT_EQ(InformeModeloRestringido(informe, nullptr, OrdenCR), 1);
        EXPECT_EQ(Leer(informe.lineas)[0].second, caso.linea);
    }
}

// ----- CGQ

// Positions 1 to 4 and 7 to 11 of the ordered sample.
void DejarGoldfeld() {
    DejarRegresion();
    UltimoContraste.primeraDenominador = 10;
    UltimoContraste.ultimaDenominador = 13;
    UltimoContraste.primeraNumerador = 16;
    UltimoContraste.ultimaNumerador = 20;
    UltimoContraste.ordenacion = " LN(X) ";
    PonerEscalar(nullptr, "_SCRGD", 8.0);
    PonerEscalar(nullptr, "_SCRGN", 30.0);
    PonerEscalar(nullptr, "_NREG", 2.0);
    PonerEscalar(nullptr, "_ESTFG", 0.125);
}

const Lineas LineasGoldfeld = {
    {1, "SCR denominador :     8.0000      Número de observaciones:    4 "},
    {1, "SCR numerador   :    30.0000      Número de observaciones:    5 "},
    {1, "Variable de ordenación :  LN(X)                                 "},
    // (30 / 5) / (8 / 4), beside the degrees of freedom 4 - 2 and 5 - 2.
    {2, "Estadístico F(  2,  3):    3.0000  Prob > F             :    0.1250 "},
};

TEST(InformeCGQ, Lineas) {
    DejarGoldfeld();
    InformeProducido informe;
    ASSERT_EQ(InformeGoldfeldQuandt(informe, nullptr, OrdenMGD), 1);
    EXPECT_EQ(Leer(informe.lineas), LineasGoldfeld);
    EXPECT_EQ(
        Utf8De1252(informe.tabla),
        "SCR denominador\t8\nObservaciones denominador\t4\nSCR numerador\t30\nObservaciones numerador\t5\n"
        "Variable de ordenación\tLN(X)\nEstadístico F\t3\nGrados de libertad 1\t2\n"
        "Grados de libertad 2\t3\nProb > F\t0.125\n");
}

TEST(InformeCGQ, DivisoresQueNoSonPositivos) {
    static constexpr struct {
        double scrDen, scrNum;
        int ultimaDen, ultimaNum;
        const char *estadistico;
    } Casos[] = {
        {0.0, 30.0, 13, 20, "    0.0000"}, {8.0, 0.0, 13, 20, "    0.0000"},
        {8.0, 30.0, 9, 20, "    0.0000"},  // no observation in the denominator
        {8.0, 30.0, 13, 15, "    0.0000"}, // none in the numerator
        {8.0, 30.0, 10, 16, "    3.7500"}, // one in each
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(testing::Message()
                     << c.scrDen << " " << c.scrNum << " " << c.ultimaDen << " " << c.ultimaNum);
        DejarGoldfeld();
        PonerEscalar(nullptr, "_SCRGD", c.scrDen);
        PonerEscalar(nullptr, "_SCRGN", c.scrNum);
        UltimoContraste.ultimaDenominador = c.ultimaDen;
        UltimoContraste.ultimaNumerador = c.ultimaNum;
        InformeProducido informe;
        ASSERT_EQ(InformeGoldfeldQuandt(informe, nullptr, OrdenMGD), 1);
        EXPECT_EQ(Leer(informe.lineas)[3].second.substr(24, 10), c.estadistico);
    }
}

TEST(InformeCGQ, ConLasDosRegresiones) {
    DejarGoldfeld();
    UltimoContraste.verRegresion = 1;
    UltimaRegresion.CodigosRegresores = {"1", "X"};
    DejarBloque(OrdenMGD, 10);
    DejarBloque(OrdenMGN, 16);
    InformeProducido informe;
    ASSERT_EQ(InformeGoldfeldQuandt(informe, nullptr, OrdenMGD), 1);
    const Lineas l = Leer(informe.lineas);
    // Four lines of the test; then head of a part, four of the head, titles, two rows, six of statistics.
    ASSERT_EQ(l.size(), 4u + 2 * 14u);
    EXPECT_EQ(Lineas(l.begin(), l.begin() + 4), LineasGoldfeld);
    EXPECT_EQ(l[4], std::pair(3, std::string("                    REGRESION DENOMINADOR                 ")));
    EXPECT_EQ(l[7].second, "Muestra Orde.: 1,4                  Nº Observaciones     : 4         ");
    EXPECT_EQ(l[10].second, "              1       1.500000       0.500000     3.00       0.2500");
    EXPECT_EQ(l[11].second, "              X      -2.250000       0.250000    -9.00       0.1250");
    EXPECT_EQ(l[18], std::pair(3, std::string("                    REGRESION NUMERADOR                   ")));
    EXPECT_EQ(l[21].second, "Muestra Orde.: 7,11                 Nº Observaciones     : 5         ");
    EXPECT_EQ(l[25].second, "              X      -2.250000       0.250000    -9.00       0.1250");
    ASSERT_EQ(informe.tablas.size(), 2u);
    EXPECT_EQ(informe.tablas[0].primera, 10);
    EXPECT_EQ(informe.tablas[1].ultima, 25);
    const std::string tabla = Utf8De1252(informe.tabla);
    EXPECT_NE(tabla.find("Muestra Orde.\t7\t11\nNº Observaciones\t5\n"), std::string::npos) << tabla;
    EXPECT_NE(tabla.find("X\t-2.25\t0.25\t-9\t0.125\n"), std::string::npos) << tabla;
    SoltarTodasMatrices();
}

// ----- CWH

void DejarWhite(double estadistico) {
    DejarRegresion();
    PonerEscalar(nullptr, "_TM11", estadistico);
    PonerEscalar(nullptr, "_TM12", 5.0);
    PonerEscalar(nullptr, "_TM13", 0.0304);
}

TEST(InformeCWH, UnaLinea) {
    static constexpr struct {
        double estadistico;
        const char *linea;
    } Casos[] = {
        {12.34567, "Estadístico Chi-cuadrado (  5): 12.3457 Prob > Chi-cuadrado : 0.0304"},
        {123.456,
         "Estadístico Chi-cuadrado (  5):  123.45 Prob > Chi-cuadrado : 0.0304"}, // one too long: six
    };
    for (const auto &c : Casos) {
        DejarWhite(c.estadistico);
        InformeProducido informe;
        ASSERT_EQ(InformeWhite(informe, nullptr, OrdenCWH), 1);
        EXPECT_EQ(Leer(informe.lineas), (Lineas{{2, c.linea}}));
    }
}

TEST(InformeCWH, ConSuRegresion) {
    DejarWhite(1.0);
    UltimoContraste.verRegresion = 1;
    PonerCampo(UltimaRegresion.DependienteMostrado, "_RESCUAD", AnchoCodigo);
    UltimaRegresion.TextosRegresores = {"1", "X*X"};
    DejarBloque(OrdenCWH, 10);
    InformeProducido informe;
    ASSERT_EQ(InformeWhite(informe, nullptr, OrdenCWH), 1);
    const Lineas l = Leer(informe.lineas);
    ASSERT_EQ(l.size(), 1u + 13u);
    EXPECT_EQ(l[1].second, "Variable Dep.: _RESCUAD  " + std::string(44, ' '));
    EXPECT_EQ(l[7].second, "X*X                  -2.250000       0.250000    -9.00       0.1250");
    ASSERT_EQ(informe.tablas.size(), 1u);
    EXPECT_EQ(informe.tablas[0].titulo, 5);
    const std::string tabla = Utf8De1252(informe.tabla);
    EXPECT_EQ(tabla.find("Estadístico Chi-cuadrado\t1\nGrados de libertad\t5\nProb > Chi-cuadrado\t0.0304\n\n"
                         "Variable Dep.\t_RESCUAD\nMuestra\t2000\t2010\nNº Observaciones\t11\n"),
              0u)
        << tabla;
    EXPECT_NE(tabla.find("X*X\t-2.25\t0.25\t-9\t0.125\n"), std::string::npos);
    SoltarTodasMatrices();
}

// ----- What is missing

TEST(InformesDeContraste, LoQueFalta) {
    const struct {
        int codigo;
        void (*dejar)();
        const char *falta, *caja;
    } Casos[] = {
        {OrdenCR, DejarRestringido, "_YDEP", "Secuencia no Válida. Pto 86"},
        {OrdenCR, DejarRestringido, "_EST5", "Secuencia no válida. Pto 871"},
        {OrdenCR, DejarRestringido, "_NORE", "Secuencia no válida. Pto 871"},
        {OrdenCR, DejarRestringido, "_ESTFR", "Secuencia no válida. Pto 871"},
        {OrdenMGD, DejarGoldfeld, "_SCRGD", "Secuencia no válida. Pto 871"},
        {OrdenMGD, DejarGoldfeld, "_SCRGN", "Secuencia no válida. Pto 871"},
        {OrdenMGD, DejarGoldfeld, "_ESTFG", "Secuencia no válida. Pto 871"},
        {OrdenCWH, [] { DejarWhite(1.0); }, "_TM12", "Secuencia no válida. Pto 871"},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.falta);
        c.dejar();
        if (BuscarMatriz(c.falta) >= 0) BorrarMatriz(nullptr, BuscarMatriz(c.falta));
        if (BuscarEscalar(c.falta) >= 0) BorrarEscalar(BuscarEscalar(c.falta));
        MostrarRegresion(nullptr, c.codigo);
        EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{c.caja});
        EXPECT_TRUE(Prueba.resultados.empty());
    }
    // With RA the regressions must be there too, each of them.
    for (const int codigo : {OrdenMGD, OrdenMGN}) {
        DejarGoldfeld();
        UltimoContraste.verRegresion = 1;
        DejarBloque(codigo, 10);
        MostrarRegresion(nullptr, OrdenMGD);
        EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"Secuencia no válida. Pto 87"}) << codigo;
        EXPECT_TRUE(Prueba.resultados.empty());
        SoltarTodasMatrices();
    }
}

} // namespace
