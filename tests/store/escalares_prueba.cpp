// The table of scalars.
#include "apoyo/plataforma_prueba.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

namespace {

TEST(Escalares, El59CabeYEl60No) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    for (int k = 1; k <= 59; ++k) ASSERT_EQ(PonerEscalar(nullptr, Formatear("E%d", k), k), 0) << k;
    EXPECT_EQ(TablaEscalares.numero, 59);
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(PonerEscalar(nullptr, "E60", 60.0), 3);
    const CajaVista caja{"Proceso cancelado", "Borre algunos escalares", IconoInformacion, BotonesAceptar};
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{caja});
    EXPECT_EQ(TablaEscalares.numero, 59);
    EXPECT_EQ(PonerEscalar(nullptr, "E30", -1.0), 0); // an existing name is overwritten
    EXPECT_EQ(EscalarDe("E30"), -1.0);
}

TEST(Escalares, ElNombreDeUnaSerieODeUnaMatriz) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerSerie("A", {1});
    PonerMatriz("M", {1}, 1, 1);
    EXPECT_EQ(PonerEscalar(nullptr, "A", 1.0), 1);
    EXPECT_EQ(PonerEscalar(nullptr, "M", 1.0), 2);
    EXPECT_EQ(TablaEscalares.numero, 0);
    EXPECT_TRUE(Prueba.cajas.empty()); // the caller reports
}

TEST(Escalares, BorrarConservaElOrden) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    for (const char *e : {"A", "B", "C", "D"}) PonerEscalar(nullptr, e, e[0]);
    BorrarEscalar(1);
    EXPECT_EQ(TablaEscalares.numero, 3);
    EXPECT_EQ(BuscarEscalar("A"), 0);
    EXPECT_EQ(BuscarEscalar("C"), 1);
    EXPECT_EQ(BuscarEscalar("D"), 2);
    EXPECT_EQ(EscalarDe("C"), 'C');
    EXPECT_EQ(EscalarDe("D"), 'D');
    EXPECT_EQ(BuscarEscalar("B"), -1);
    BorrarEscalar(2);
    EXPECT_EQ(BuscarEscalar("D"), -1);
    EXPECT_EQ(BuscarEscalarEnTabla("D"), -1);
    EXPECT_EQ(TablaEscalares.numero, 2);
}

TEST(Escalares, LaBusquedaEnTodaLaTabla) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    PonerEscalar(nullptr, "A", 1.0);
    TablaEscalares.registro[59] = {"_TMP01      ", 2.0};
    EXPECT_EQ(BuscarEscalar("_TMP01"), -1);
    EXPECT_EQ(BuscarEscalarEnTabla("_TMP01"), 59);
    EXPECT_EQ(BuscarEscalarEnTabla("A"), 0);
}

} // namespace
