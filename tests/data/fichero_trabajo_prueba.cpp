// The work file on disk: what is saved comes back to the last bit, and other programs read it.
#include "data/fichero_trabajo.h"

#include "apoyo/plataforma_prueba.h"
#include "data/trabajo_apoyo.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cstdlib>
#include <limits>
#include <utility>

namespace {

class FicheroTrabajo : public EnCarpeta {
protected:
    // Saves, empties the program, reads: everything is as before.
    void IdaYVuelta() {
        const std::string antes = RetratoDelTrabajo();
        ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("a.TR2")));
        EmpezarPrueba();
        ASSERT_NE(RetratoDelTrabajo(), antes);
        ASSERT_EQ(LeerFicheroTrabajo(Ruta("a.TR2")), TablasLeidas);
        EXPECT_TRUE(RetratoDelTrabajo() == antes);
        EXPECT_EQ(Ficheros(), 1);
    }
};

TEST_F(FicheroTrabajo, TablasLlenasVuelvenHastaElUltimoBit) {
    for (const bool panel : {false, true}) {
        SCOPED_TRACE(panel);
        LlenarTrabajo(panel ? 1 : 2, panel);
        IdaYVuelta();
    }
}

TEST_F(FicheroTrabajo, TrabajoPequenoYVacio) {
    TrabajoPequeno(3);
    IdaYVuelta();
    EXPECT_LT(std::filesystem::file_size(Ruta("a.TR2")), 100000u);
    for (const int tipo : {TipoSinPeriodicidad, TipoAnual, TipoTrimestral, TipoMensual}) {
        SCOPED_TRACE(tipo);
        EmpezarConDatos(tipo, "");
        IdaYVuelta();
    }
}

// Each form of the panel, at the ends of its counts.
TEST_F(FicheroTrabajo, DescripcionesDelPanel) {
    struct {
        FormasPanel forma;
        ConceptosPanel primero;
        int entradas, periodicidad;
    } const casos[] = {
        {PanelConstante, PeriodoPrimero, 3, TipoAnual},
        {PanelConstante, IndividuoPrimero, 5000, TipoMensual},
        {PanelVariable, PeriodoPrimero, 1, 0},
        {PanelVariable, PeriodoPrimero, MaxPeriodosPanel, 0},
        {PanelVariable, IndividuoPrimero, 1, 0},
        {PanelVariable, IndividuoPrimero, MaxIndividuosEtiqueta, TipoTrimestral},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(testing::Message() << c.forma << c.primero << c.entradas);
        EmpezarPrueba();
        DescripcionDePanel &p = DescripcionPanel;
        p.FormaPanel = c.forma;
        p.PrimerConcepto = c.primero;
        p.NumEntradas = c.entradas;
        p.TipoPeriodoPanel = c.periodicidad;
        PonerCampo(p.EtiquetasIndividuo[49], "la última"_w, AnchoEtiqueta);
        for (int e = 0; c.forma == PanelVariable && e < c.entradas; ++e) {
            if (c.primero == PeriodoPrimero) {
                p.periodos[e].individuos = 1 + e % 3;
                PonerCampo(p.periodos[e].periodo, Formatear("%d", 1000 + e), 12);
            } else {
                p.individuos[e].orden = e + 1;
                p.individuos[e].numPeriodos = MaxPeriodosIndividuo;
                for (auto &periodo : p.individuos[e].periodos) PonerCampo(periodo, "1990.01", 10);
            }
        }
        ArchivoTrabajo.TipoDatos = TipoPanel;
        ArchivoTrabajo.ConEtiquetas = c.entradas % 2;
        VaciarArchivoTrabajo();
        IdaYVuelta();
    }
}

// Values at rows that count as missing, rows behind the last observation, codes in slots that aren't counted yet: the
// tables come back as they were all the same.
TEST_F(FicheroTrabajo, LoQueQuedaFueraDeLoContado) {
    TrabajoPequeno(1);
    PonerObservacion(3, 0, 7.5, 0); // missing
    PonerObservacion(20, 1, 3, 1);  // behind the ten observations
    PonerCodigoSerie(5, "nueva");
    PonerObservacion(0, 5, -0.0, 0);
    PonerObservacion(1, 5, -0.0, 1);
    IdaYVuelta();
    EXPECT_EQ(Consulta(Ruta("a.TR2"), "SELECT max(fila) FROM observaciones"), "21");
    PonerCampo(ArchivoTrabajo.EtiquetasObs[MaxObservaciones - 1], "x", AnchoEtiqueta);
    PonerCodigoSerie(MaxSeries - 1, "ULTIMA");
    IdaYVuelta();
    EXPECT_EQ(Consulta(Ruta("a.TR2"), "SELECT max(lugar) FROM series"), "100");
}

TEST_F(FicheroTrabajo, LosLimitesDeUnaSerieCabenEnElFichero) {
    TrabajoPequeno(1);
    ArchivoTrabajo.PrimeraObs[0] = -5;
    ArchivoTrabajo.UltimaObs[0] = MaxObservaciones; // where a sample without data ends
    ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("a.TR2")));
    ASSERT_EQ(LeerFicheroTrabajo(Ruta("a.TR2")), TablasLeidas);
    EXPECT_EQ(ArchivoTrabajo.PrimeraObs[0], 0);
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[0], MaxObservaciones - 1);
}

TEST_F(FicheroTrabajo, AlLeerSeRefrescaElEditorYSeSueltanLosBloques) {
    TrabajoPequeno(1);
    ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("a.TR2")));
    PonerMatriz("OTRA", {1, 2}, 1, 2);
    FijarMatriz(0);
    Prueba.refrescos = 0;
    ASSERT_EQ(LeerFicheroTrabajo(Ruta("a.TR2")), TablasLeidas);
    EXPECT_EQ(Prueba.refrescos, 1);
    EXPECT_EQ(TablaMatrices.numero, 1);
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
    EXPECT_EQ(TablaMatrices.EstadoBloque[1], SinBloque);
    EXPECT_EQ(TablaMatrices.capacidad[0], ElementosBloque); // as a matrix that a statement makes
}

// The same work gives the same bytes, so that files can be compared.
TEST_F(FicheroTrabajo, ElMismoTrabajoDaElMismoFichero) {
    TrabajoPequeno(4);
    ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("a.TR2")));
    ASSERT_EQ(LeerFicheroTrabajo(Ruta("a.TR2")), TablasLeidas);
    ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("b.TR2")));
    EXPECT_EQ(BytesDe(Ruta("a.TR2")), BytesDe(Ruta("b.TR2")));
}

TEST_F(FicheroTrabajo, LoLeenOtrosProgramas) {
    TrabajoPequeno(0);
    PonerCampo(ArchivoTrabajo.EtiquetasObs[1], "Peñón"_w, AnchoEtiqueta);
    PonerSerie("A\"B", {1});
    ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("a.TR2")));
    struct {
        const char *sql, *esperado;
    } const casos[] = {
        {"PRAGMA application_id", "1413632577"},
        {"PRAGMA user_version", "1"},
        {"PRAGMA integrity_check", "ok"},
        {"SELECT proyecto || '|' || tipo || '|' || intervalo || '|' || observaciones || '|' || series FROM "
         "cabecera",
         "Proyec01|1|1990#1999|10|3"},
        {"SELECT group_concat(codigo) FROM series", "CONSUMO,RENTA,A\"B"},
        {"SELECT group_concat(periodo) FROM observaciones WHERE fila <= 3", "1990,1991,1992"},
        {"SELECT etiqueta FROM observaciones WHERE fila = 2", "Peñón"},
        {"SELECT \"CONSUMO\" FROM datos WHERE periodo = '1991'", "1.5"},
        {"SELECT \"CONSUMO\" FROM datos WHERE periodo = '1993'", "NULL"},
        {"SELECT \"A\"\"B\" FROM datos WHERE fila = 1", "1.0"},
        {"SELECT avg(\"RENTA\") FROM datos WHERE periodo < '1992'", "-0.5"},
        {"SELECT filas || 'x' || columnas || ' ' || hex(substr(datos, 1, 8)) FROM matrices",
         "2x3 3FF0000000000000"},
        {"SELECT valor FROM escalares WHERE codigo = 'ESC1'", "3.25"},
        {"SELECT trim(texto) FROM ecuaciones WHERE trim(codigo) = 'EC1'", "CONSUMO 1 RENTA"},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.sql);
        EXPECT_EQ(Consulta(Ruta("a.TR2"), c.sql), c.esperado);
    }
}

// The program of the database, where it's installed, takes the elements of a matrix out of their bytes, too.
TEST_F(FicheroTrabajo, LoLeeElProgramaSqlite3) {
    if (std::system("sqlite3 --version > /dev/null 2>&1") != 0) GTEST_SKIP() << "sqlite3 isn't installed";
    TrabajoPequeno(0);
    ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("a.TR2")));
    const auto sqlite = [&](const std::string &sql) {
        const std::string orden =
            "sqlite3 '" + Ruta("a.TR2") + "' \"" + sql + "\" > '" + Ruta("salida") + "'";
        EXPECT_EQ(std::system(orden.c_str()), 0) << orden;
        return BytesDe(Ruta("salida"));
    };
    EXPECT_EQ(sqlite("SELECT * FROM datos WHERE fila <= 3"),
              "1|1990|||-1.0\n2|1991||1.5|0.0\n3|1992||2.25|0.0\n");
    EXPECT_EQ(sqlite("SELECT * FROM elementos"),
              "MAT1|1|1|1.0\nMAT1|1|2|2.0\nMAT1|1|3|3.0\nMAT1|2|1|4.0\nMAT1|2|2|5.0\nMAT1|2|3|6.5\n");
}

} // namespace
