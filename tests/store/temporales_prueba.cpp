// Names of results and the deletion of a command's temporaries.
#include "store/temporales.h"

#include "apoyo/plataforma_prueba.h"
#include "estimation/regresion.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

namespace {

std::string Lista(const std::vector<std::string> &nombres) {
    std::string r;
    for (const std::string &n : nombres) r += n + " ";
    return r;
}

std::string SeriesQueQuedan() {
    std::vector<std::string> r;
    for (int s = 0; s < ArchivoTrabajo.NumSeries; ++s) r.emplace_back(ArchivoTrabajo.Codigos[s]);
    for (std::string &n : r) n.erase(n.find_last_not_of(' ') + 1);
    return Lista(r);
}

std::string MatricesQueQuedan() {
    std::vector<std::string> r;
    for (int m = 0; m < TablaMatrices.numero; ++m) r.emplace_back(TablaMatrices.registro[m].Codigo);
    for (std::string &n : r) n.erase(n.find_last_not_of(' ') + 1);
    return Lista(r);
}

std::string EscalaresQueQuedan() {
    std::vector<std::string> r;
    for (int e = 0; e < TablaEscalares.numero; ++e) r.emplace_back(TablaEscalares.registro[e].Codigo);
    for (std::string &n : r) n.erase(n.find_last_not_of(' ') + 1);
    return Lista(r);
}

void Empezar() {
    EmpezarConDatos(TipoSinPeriodicidad, "");
}

} // namespace

TEST(NombreFamilia, BaseYSufijoPorCodigo) {
    static constexpr struct {
        Familias familia;
        int codigo;
        const char *nombre;
    } Casos[] = {
        {FamBETA, 8, "_BETA"},  {FamBETA, 13, "_BETA"},   {FamBETA, 9, "_BETAR"},
        {FamRES, 10, "_RESGN"}, {FamRES, 11, "_RESGD"},   {FamPROBT, 12, "_PROBTW"},
        {FamNREG, 8, "_NREG"},  {FamANREG, 9, "_ANREGR"}, {FamSCR, 10, "_SCRGN"},
        {FamDTR, 11, "_DTRGD"}, {FamDIV, 12, "_DIVW"},    {FamMTR, 9, "_MTRR"},
        {FamCOV, 9, "_COVR"},   {FamDTE, 9, "_DTER"},     {FamMVD, 9, "_MVDR"},
        {FamSTVD, 9, "_STVDR"}, {FamLV, 9, "_LVR"},       {FamAIC, 9, "_AICR"},
        {FamSCVD, 9, "_SCVDR"}, {FamDTVD, 9, "_DTVDR"},   {FamDCR, 9, "_DCRR"},
        {FamRC, 9, "_RCR"},     {FamDW, 9, "_DWR"},       {FamRCC, 9, "_RCCR"},
        {FamEA1, 9, "_EA1R"},   {FamNORE, 9, "_NORER"},   {FamFORLA, 9, "_FORLAR"},
        {FamESTF, 9, "_ESTFR"}, {FamBETA, 104, "_BETA"},  {FamBETA, 0, "_BETA"},
    };
    for (const auto &c : Casos) EXPECT_STREQ(NombreFamilia(c.familia, c.codigo), c.nombre) << c.codigo;
}

TEST(FamiliaDeNombre, SinElSubrayado) {
    EXPECT_EQ(FamiliaDeNombre("BETA"), FamBETA);
    EXPECT_EQ(FamiliaDeNombre("SCR"), FamSCR);
    EXPECT_EQ(FamiliaDeNombre("RES"), FamRES);
    for (const char *ajeno : {"", "_SCR", "SCRR", "SC", "gl"})
        EXPECT_EQ(FamiliaDeNombre(ajeno), NumFamilias) << ajeno;
}

// Every code of a statement has a place among the counts, and those that are no regressions have no temporaries.
TEST(BorrarTemporales, TodosLosCodigos) {
    for (int codigo = 0; codigo < NumOrdenes; ++codigo) {
        Empezar();
        UltimaRegresion.SeriesRegresion[codigo] = 2;
        PonerSerie("Y", {1, 2, 3});
        for (const char *serie : {"_TMR1", "_TMR2", "_TMR3"}) PonerSerie(serie, {1});
        BorrarTemporales(nullptr, codigo);
        const bool regresion = codigo >= 8 && codigo <= 13;
        EXPECT_EQ(SeriesQueQuedan(), regresion ? "Y _TMR3 " : "Y _TMR1 _TMR2 _TMR3 ") << codigo;
        UltimaRegresion.SeriesRegresion[codigo] = 0;
    }
}

// A code behind the end of the counts has left no numbered series.
TEST(BorrarTemporales, CuentasCortas) {
    Empezar();
    for (const char *serie : {"_TMR1", "_TMR2", "_RESCUAD"}) PonerSerie(serie, {1});
    const int cuentas[] = {5, 5, 5, 5, 5, 5, 5, 5, 1};
    BorrarTemporales(nullptr, OrdenCR, {3, cuentas});
    EXPECT_EQ(SeriesQueQuedan(), "_TMR1 _TMR2 ");
    BorrarTemporales(nullptr, OrdenMC, {3, cuentas});
    EXPECT_EQ(SeriesQueQuedan(), "_TMR2 ");
}

TEST(BorrarTemporales, NombresPorCodigo) {
    const struct {
        int codigo;
        std::vector<std::string> matrices, escalares, series;
        const char *quedanMatrices, *quedanEscalares, *quedanSeries;
    } Casos[] = {
        {8,
         {"_BETA", "_YDEP", "_XIND", "_YAJU1", "_DTE",  "_DTE1", "_RESM", "_SCR1", "_COV",
          "_TMF2", "_TMF3", "_TMF4", "_TMF5",  "_TMF6", "_S0",   "_S2",   "_S3",   "_S8",
          "_S5",   "_S9",   "_S7",   "_S6",    "_TMS2", "_TMS3", "_TMS4"},
         {"_MTR", "_MVD",   "_STVD", "_LV",   "_AIC", "_SCVD", "_DTVD",  "_DCR", "_RC",   "_RCC",
          "_EA1", "_ANREG", "_TMF7", "_NREG", "_SCR", "_NORE", "_FORLA", "_DTR", "_ESTF", "_DW"},
         {"Y", "_RES", "_RESCUAD", "_TMR1", "_TMR2", "_TMR3", "_DTE2", "_DIV", "_PROBT", "_YAJUS", "_BETA2"},
         "_BETA _COV ",
         "_NREG _SCR _NORE _FORLA _DTR _ESTF _DW ",
         "Y _RES _TMR3 _DTE2 _DIV _PROBT _YAJUS _BETA2 "},
        {9,
         {"_BETA", "_BETAR", "_COVR", "_COV", "_DTER", "_DTER1"},
         {"_SCR", "_SCRR", "_NREGR", "_NORER", "_FORLAR", "_DTRR", "_ESTFR", "_DWR", "_EST5", "_MTRR",
          "_TMF7"},
         {"_RES", "_RESR", "_DTER", "_DTER2", "_DIVR", "_PROBTR", "_YAJUS", "_BETA2", "_TMR1"},
         "_BETA _COV ",
         "_SCR ",
         "_RES "},
        {10,
         {"_BETAGN", "_BETAGD"},
         {"_SCRGN", "_SCRGD", "_ESTFG"},
         {"_RESGN", "_RESGD", "_TMP1", "_TMP2", "_TMP5", "_TMP6"},
         "_BETAGD ",
         "_SCRGD _ESTFG ",
         "_RESGD _TMP6 "},
        {11,
         {"_BETAGN", "_BETAGD", "_DTEGN1"},
         {"_SCRGN", "_SCRGD", "_ESTFG", "_TMPD", "_TMPN"},
         {"_RESGN", "_RESGD", "_TMP1", "_DTEGN2"},
         "",
         "",
         ""},
        {12,
         {"_COVW", "_DTEW"},
         {"_TM11", "_TM12", "_TM13", "_RCW"},
         {"_RESCUAD", "_TMP1", "_TMP6", "_TMP7", "_RESW"},
         "",
         "",
         "_TMP7 "},
        {13,
         {"_BETA", "_TMP1", "_TMP2", "_TMP3", "_TMP4", "_TMP5", "_TMP6", "_COV", "_DTE"},
         {"_TMP7", "_SCR", "_MTR"},
         {"_RES", "_VORD", "_TMR1"},
         "_BETA _TMP1 _COV ",
         "_SCR ",
         "_RES _VORD "},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.codigo);
        Empezar();
        UltimaRegresion.NumRegresores = 3; // the numerator's names go up to _TMP5
        for (int &n : UltimaRegresion.SeriesRegresion) n = 2;
        for (const std::string &n : c.matrices) PonerMatriz(n, {1.0}, 1, 1);
        for (const std::string &n : c.escalares) ASSERT_EQ(PonerEscalar(nullptr, n, 1.0), 0);
        for (const std::string &n : c.series) PonerSerie(n, {1.0, 2.0});
        Prueba.refrescos = 0;
        EXPECT_EQ(BorrarTemporales(nullptr, c.codigo), 0);
        EXPECT_EQ(MatricesQueQuedan(), c.quedanMatrices);
        EXPECT_EQ(EscalaresQueQuedan(), c.quedanEscalares);
        EXPECT_EQ(SeriesQueQuedan(), c.quedanSeries);
        EXPECT_GE(Prueba.refrescos, 1);
        Prueba.refrescos = 0;
        EXPECT_EQ(BorrarTemporales(nullptr, c.codigo), 0); // the second time there is nothing to do
        EXPECT_EQ(Prueba.refrescos, 0);
        EXPECT_EQ(MatricesQueQuedan(), c.quedanMatrices);
        EXPECT_TRUE(Prueba.cajas.empty());
    }
}

TEST(BorrarTemporales, SinTemporalesNadaCambia) {
    Empezar();
    PonerSerie("Y", {1, 2, 3});
    PonerMatriz("M", {1, 2}, 1, 2);
    PonerEscalar(nullptr, "E", 4.0);
    for (const int codigo : {8, 9, 10, 11, 12, 13, 104, 0, 7, 14, -1, 1000})
        BorrarTemporales(nullptr, codigo);
    EXPECT_EQ(SeriesQueQuedan(), "Y ");
    EXPECT_EQ(MatricesQueQuedan(), "M ");
    EXPECT_EQ(EscalaresQueQuedan(), "E ");
    EXPECT_EQ(ValoresDe("Y", 3), (std::vector<double>{1, 2, 3}));
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(BorrarTemporales, PrimeraMatrizDeDiez) {
    Empezar();
    PonerMatriz("_XIND", {9.0}, 1, 1);
    for (int i = 1; i <= 9; ++i) PonerMatriz(Formatear("M%d", i), {1.0 * i, 2.0 * i}, 1, 2);
    BorrarTemporales(nullptr, 8);
    EXPECT_EQ(MatricesQueQuedan(), "M1 M2 M3 M4 M5 M6 M7 M8 M9 ");
    int filas = 0, columnas = 0;
    EXPECT_EQ(MatrizDe("M7", filas, columnas), (std::vector<double>{7, 14}));
}

TEST(BorrarTemporales, ContrasteDeRangos) {
    Empezar();
    PonerSerie("Y", {1, 2});
    for (int i = 1; i <= 7; ++i) PonerSerie(Formatear("_TMP%d", i), {1.0 * i});
    for (int i = 7; i <= 13; ++i) PonerEscalar(nullptr, Formatear("_TMP%dE", i), 1.0);
    for (int i = 8; i <= 12; ++i) PonerEscalar(nullptr, Formatear("_TMP%d", i), 1.0);
    Prueba.refrescos = 0;
    EXPECT_EQ(BorrarTemporales(nullptr, 104), 0);
    EXPECT_EQ(SeriesQueQuedan(), "Y ");
    for (int i = 1; i <= 7; ++i) EXPECT_EQ(BuscarSerieEnTabla(Formatear("_TMP%d", i)), -1);
    EXPECT_EQ(TablaEscalares.numero, 7); // those with another name
    EXPECT_EQ(Prueba.refrescos, 1);
    // Without compaction: a series behind the hole falls outside the count, its code still in the table.
    PonerSerie("_TMP1", {1});
    PonerSerie("Z", {5});
    BorrarTemporales(nullptr, 104);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 2);
    EXPECT_EQ(BuscarSerie("Z"), -1);
    EXPECT_EQ(BuscarSerieEnTabla("Z"), 2);
}

TEST(BorrarTemporales, UnaMatrizQueNoSeMueveTerminaLaLista) {
    Empezar();
    PonerMatriz("_YDEP", {1.0}, 1, 1);
    PonerMatriz("M", {1.0}, 1, 1);
    PonerEscalar(nullptr, "_MTR", 1.0);
    TablaMatrices.EstadoBloque[1] = SinBloque;
    EXPECT_EQ(BorrarTemporales(nullptr, 8), 0);
    EXPECT_EQ(TextosDeCajas(), (std::vector<std::string>{"No hay suficiente Memoria. P21"}));
    EXPECT_EQ(EscalaresQueQuedan(), "_MTR ");
    TablaMatrices.EstadoBloque[1] = BloqueSuelto;
}
