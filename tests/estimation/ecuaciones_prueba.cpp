// The table of named equations.
#include "estimation/ecuaciones.h"

#include "apoyo/plataforma_prueba.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using Tabla = std::vector<std::pair<std::string, std::string>>;

Tabla TablaActual() {
    Tabla tabla;
    for (int e = 0; e < TablaEcuaciones.numero; ++e)
        tabla.emplace_back(CodigoDeEcuacion(e), TextoDeEcuacion(e));
    return tabla;
}

class Ecuaciones : public testing::Test {
protected:
    void SetUp() override { EmpezarConDatos(TipoAnual, "1990#1999"); }
};

} // namespace

TEST_F(Ecuaciones, Alta) {
    const std::string veinte(20, 'C'), largo(120, 'X');
    struct {
        std::string codigo, texto;
        bool entra;
    } const casos[] = {
        {"CONS", "CONSUMO 1 RENTA", true},
        {"  DOS  ", "  Y 1 X  ", true},
        {"", "Y 1", false},
        {"   ", "Y 1", false},
        {"TRES", "", false},
        {"TRES", "   ", false},
        {"CONS", "Y 1 Z", false}, // the old text stays
        {" DOS", "Y 1 Z", false},
        {"cons", "y 1", true}, // another code
        {veinte, largo, true},
        {veinte + "Z", "Y", false}, // the same 12 characters
    };
    for (const auto &c : casos) EXPECT_EQ(AltaEcuacion(c.codigo, c.texto), c.entra) << c.codigo;
    EXPECT_EQ(TablaActual(), (Tabla{{"CONS", "CONSUMO 1 RENTA"},
                                    {"DOS", "Y 1 X"},
                                    {"cons", "y 1"},
                                    {std::string(12, 'C'), std::string(99, 'X')}}));
    EXPECT_STREQ(TablaEcuaciones.Codigos[1], "DOS         ");
    EXPECT_STREQ(TablaEcuaciones.TextosEcuacion[1], "Y 1 X");
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST_F(Ecuaciones, LaDiecinueveEntraYLaVeinteNo) {
    for (int n = 1; n <= 19; ++n) EXPECT_TRUE(AltaEcuacion(Formatear("E%d", n), Formatear("Y %d", n))) << n;
    EXPECT_FALSE(AltaEcuacion("E20", "Y 20"));
    EXPECT_EQ(TablaEcuaciones.numero, 19);
    EXPECT_EQ(TextoDeEcuacion(18), "Y 19");
    EXPECT_TRUE(Prueba.cajas.empty());
    // A place that was freed is taken again.
    EXPECT_TRUE(BajaEcuacion("E1"));
    EXPECT_TRUE(AltaEcuacion("E20", "Y 20"));
    EXPECT_EQ(CodigoDeEcuacion(18), "E20");
}

TEST_F(Ecuaciones, Baja) {
    for (const char *c : {"A", "B", "C"}) AltaEcuacion(c, std::string("Y ") + c);
    EXPECT_EQ(BuscarEcuacion("A"), 0);
    EXPECT_EQ(BuscarEcuacion(" C "), 2);
    EXPECT_EQ(BuscarEcuacion("D"), -1);
    EXPECT_FALSE(BajaEcuacion("D"));
    EXPECT_FALSE(BajaEcuacion(""));
    EXPECT_TRUE(BajaEcuacion(" A "));
    EXPECT_EQ(TablaActual(), (Tabla{{"B", "Y B"}, {"C", "Y C"}}));
    // The place behind the last holds nothing of the one that left it.
    EXPECT_EQ(TablaEcuaciones.Codigos[2][0], '\0');
    EXPECT_EQ(TablaEcuaciones.TextosEcuacion[2][0], '\0');
    EXPECT_EQ(BuscarEcuacion("A"), -1);
    EXPECT_TRUE(BajaEcuacion("C"));
    EXPECT_EQ(TablaActual(), (Tabla{{"B", "Y B"}}));
    EXPECT_TRUE(BajaEcuacion("B"));
    EXPECT_FALSE(BajaEcuacion("B"));
    EXPECT_EQ(TablaEcuaciones.numero, 0);
    // A shorter text isn't followed by the end of the longer one that stood there.
    AltaEcuacion("LARGA", "Y 1 X1 X2");
    BajaEcuacion("LARGA");
    AltaEcuacion("C", "Y");
    EXPECT_STREQ(TablaEcuaciones.TextosEcuacion[0], "Y");
}
