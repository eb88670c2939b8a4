// The words of the language: the code of each, and whether the lines of a block can begin with it.
#include "apoyo/plataforma_prueba.h"
#include "language/lote_sentencias.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

namespace {

struct CasoPalabra {
    const char *palabra;
    int codigo;
    bool enBloque;
};

const CasoPalabra PalabrasDelLenguaje[] = {
    {"MUEST", 0, false}, {"GRAF", 0, false}, {"HIST", 0, false},  {"DECI", 0, false}, {"AES", 1, false},
    {"AED", 2, false},   {"SER", 3, true},   {"CAL", 4, true},    {"ESC", 5, true},   {"MAT", 6, true},
    {"MC", 8, true},     {"CR", 9, true},    {"MGN", 10, true},   {"MGD", 11, true},  {"CWH", 12, true},
    {"MCP", 13, true},   {"OBS", 24, true},  {"CWA", 101, true},  {"CHN", 102, true}, {"CGQ", 103, true},
    {"CRA", 104, true},  {"CDU", 105, true}, {"VSR", 106, false},
};

class PalabraDelLenguaje : public testing::TestWithParam<CasoPalabra> {};

} // namespace

TEST_P(PalabraDelLenguaje, TieneSuCodigo) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    ASSERT_TRUE(AbrirPilaColumnas());
    LineasSentencia lineas;
    int posicion = 0, primera = 0, ultima = 9, codigo = -1;
    EjecutarSentencia(1, lineas, 0, posicion, GetParam().palabra, "", nullptr, primera, ultima, codigo);
    CerrarPilaColumnas();
    EXPECT_EQ(codigo, GetParam().codigo);
    for (const std::string &caja : TextosDeCajas())
        EXPECT_EQ(caja.find("Funciones o parámetros"), std::string::npos) << caja;
}

TEST_P(PalabraDelLenguaje, EnUnBloque) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    const std::string palabra = GetParam().palabra;
    Procesar("REPITE J DESDE 1 HASTA 1\n" + palabra + "\nFINREPITE");
    const std::string rechazo = "Sintaxis no adecuada: [" + palabra + "]: " + palabra + ". Pto 6";
    const std::vector<std::string> cajas = TextosDeCajas();
    EXPECT_EQ(cajas.empty() || cajas.front() != rechazo, GetParam().enBloque);
}

// Of the regressions only MC moves the sample of the regression, even where its line is passed over; MCP does when it runs.
TEST(PalabrasDelLenguaje, SoloMCMueveLaMuestraSinCorrer) {
    for (const char *palabra : {"MC", "MCP", "CR"}) {
        EmpezarConDatos(TipoAnual, "1990#1999");
        PonerSerie("X", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        Muestra.InicioRegresion = Muestra.FinRegresion = 5;
        EXPECT_TRUE(Procesar(std::string("MUEST 1991 1997\nREPITE J DESDE 1 HASTA 1\nSI (J > 3) ENTONCES\n") +
                             palabra + " X 1\nFINSI\nFINREPITE"));
        EXPECT_EQ(Muestra.InicioRegresion, palabra == std::string("MC") ? 1 : 5) << palabra;
        EXPECT_EQ(Muestra.FinRegresion, palabra == std::string("MC") ? 7 : 5) << palabra;
    }
}

INSTANTIATE_TEST_SUITE_P(Lenguaje, PalabraDelLenguaje, testing::ValuesIn(PalabrasDelLenguaje));
