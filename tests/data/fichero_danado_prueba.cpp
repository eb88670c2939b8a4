// Work files that are damaged, foreign, newer or meant to do harm: each is refused with the tables as they were, or read
// into tables that are sound.
#include "data/fichero_trabajo.h"

#include "apoyo/plataforma_prueba.h"
#include "data/trabajo_apoyo.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cstdlib>
#include <random>

namespace {

class FicheroDanado : public EnCarpeta {
protected:
    // Reads the file over other work; where it is refused that work stands as it was.
    LecturasDeTablas Leer(const std::string &ruta) {
        if (antes.empty()) {
            TrabajoPequeno(77);
            antes = RetratoDelTrabajo();
        }
        Prueba.refrescos = 0;
        const LecturasDeTablas r = LeerFicheroTrabajo(ruta);
        if (r != TablasLeidas) {
            EXPECT_TRUE(RetratoDelTrabajo() == antes);
            EXPECT_EQ(Prueba.refrescos, 0);
        } else {
            antes.clear();
        }
        EXPECT_TRUE(Prueba.cajas.empty()); // boxes are the command's
        return r;
    }

    // A good file, changed by these statements.
    LecturasDeTablas LeerCambiado(const std::string &sentencias) {
        if (original.empty()) {
            EXPECT_TRUE(EscribirOriginal(Ruta("a.TR2")));
            original = BytesDe(Ruta("a.TR2"));
        }
        std::filesystem::remove(Ruta("a.TR2-wal"));
        PonerBytes(Ruta("a.TR2"), original);
        if (!Sql(Ruta("a.TR2"), sentencias)) return TablasSinAbrir;
        return Leer(Ruta("a.TR2"));
    }

    // The work that the tests damage: every table has rows.
    bool EscribirOriginal(const std::string &ruta) {
        antes.clear();
        TrabajoPequeno(1);
        PonerMatriz("MAT2", {7}, 1, 1);
        DescripcionDePanel &p = DescripcionPanel;
        p.FormaPanel = PanelVariable;
        p.PrimerConcepto = IndividuoPrimero;
        p.NumEntradas = 2;
        for (int e = 0; e < 2; ++e) {
            p.individuos[e].orden = e + 1;
            p.individuos[e].numPeriodos = 2 * e;
            for (int t = 0; t < 2 * e; ++t) PonerCampo(p.individuos[e].periodos[t], "1990", 10);
        }
        return EscribirFicheroTrabajo(ruta);
    }

private:
    std::string antes, original;
};

// What every reader of the tables relies on.
void EstaSano() {
    const CabeceraArchivo &a = ArchivoTrabajo;
    EXPECT_LE(a.NumSeries, MaxSeries);
    EXPECT_GE(a.NumObs, 1);
    EXPECT_LE(a.NumObs, MaxObservaciones);
    EXPECT_GE(a.TipoDatos, 0);
    EXPECT_LE(a.TipoDatos, TipoPanel);
    for (int s = 0; s < MaxSeries; ++s) {
        ASSERT_EQ(strnlen(a.Codigos[s], AnchoCodigo), AnchoCodigo - 1u);
        ASSERT_TRUE(a.PrimeraObs[s] >= 0 && a.PrimeraObs[s] < MaxObservaciones);
        ASSERT_TRUE(a.UltimaObs[s] >= 0 && a.UltimaObs[s] < MaxObservaciones);
    }
    for (int i = 0; i < MaxObservaciones; ++i) {
        ASSERT_EQ(strnlen(a.TextosPeriodo[i], AnchoPeriodo), AnchoPeriodo - 1u);
        ASSERT_EQ(strnlen(a.EtiquetasObs[i], AnchoEtiqueta), AnchoEtiqueta - 1u);
    }
    ASSERT_LE(TablaMatrices.numero, MaxMatrices);
    for (int m = 0; m < TablaMatrices.numero; ++m)
        ASSERT_LE(TablaMatrices.registro[m].Filas * TablaMatrices.registro[m].Columnas,
                  TablaMatrices.capacidad[m]);
    ASSERT_LE(TablaEscalares.numero, MaxEscalares);
    ASSERT_LE(TablaEcuaciones.numero, MaxEcuaciones);
    for (const auto &texto : TablaEcuaciones.TextosEcuacion)
        ASSERT_LT(strnlen(texto, AnchoEcuacion), AnchoEcuacion + 0u);
    EXPECT_TRUE(DescripcionPanel.FormaPanel == PanelConstante ||
                DescripcionPanel.NumEntradas <= MaxPeriodosPanel);
}

TEST_F(FicheroDanado, ElOriginalSeLee) {
    ASSERT_EQ(LeerCambiado("SELECT 1"), TablasLeidas);
    EstaSano();
    EXPECT_EQ(DescripcionPanel.individuos[1].numPeriodos, 2);
}

TEST_F(FicheroDanado, LoQueNoSePuedeAbrir) {
    EXPECT_EQ(Leer(Ruta("no hay.TR2")), TablasSinAbrir);
    EXPECT_EQ(Leer(carpeta.string()), TablasSinAbrir);
    EXPECT_EQ(Leer(""), TablasSinAbrir);
    // Longer than any work file, though it begins as one.
    ASSERT_TRUE(EscribirOriginal(Ruta("a.TR2")));
    std::filesystem::resize_file(Ruta("a.TR2"), (std::size_t{64} << 20) + 1);
    EXPECT_EQ(Leer(Ruta("a.TR2")), TablasSinAbrir);
    std::filesystem::resize_file(Ruta("a.TR2"), std::size_t{64} << 20);
    EXPECT_EQ(Leer(Ruta("a.TR2")), TablasLeidas);
}

TEST_F(FicheroDanado, LoAjenoYLoPosterior) {
    PonerBytes(Ruta("a"), "");
    EXPECT_EQ(Leer(Ruta("a")), TablasAjenas);
    PonerBytes(Ruta("a"), "MC CONSUMO 1 RENTA\n");
    EXPECT_EQ(Leer(Ruta("a")), TablasAjenas);
    ASSERT_TRUE(EscribirOriginal(Ruta("b")));
    const std::string bytes = BytesDe(Ruta("b"));
    PonerBytes(Ruta("a"), bytes.substr(0, 99)); // a byte less than a header
    EXPECT_EQ(Leer(Ruta("a")), TablasAjenas);
    PonerBytes(Ruta("a"), bytes.substr(0, 100));
    EXPECT_EQ(Leer(Ruta("a")), TablasDanadas);
    Sql(Ruta("c"), "CREATE TABLE series(a); INSERT INTO series VALUES(1)"); // another program's database
    EXPECT_EQ(Leer(Ruta("c")), TablasAjenas);
    EXPECT_EQ(LeerCambiado("PRAGMA application_id = 1"), TablasAjenas);
    EXPECT_EQ(LeerCambiado("PRAGMA user_version = 2"), TablasPosteriores);
    EXPECT_EQ(LeerCambiado("PRAGMA user_version = 0"), TablasDanadas);
    EXPECT_EQ(LeerCambiado("PRAGMA user_version = -1"), TablasPosteriores);
    EXPECT_EQ(LeerCambiado("PRAGMA journal_mode = WAL"), TablasDanadas);
    EXPECT_EQ(LeerCambiado("VACUUM"), TablasLeidas);
}

// One change a line. Those that are read leave values that another program may have put there.
TEST_F(FicheroDanado, CadaCuentaCadaTextoYCadaTabla) {
    struct {
        const char *sentencias;
        LecturasDeTablas resultado;
    } const casos[] = {
        // counts
        {"UPDATE cabecera SET observaciones = 0", TablasDanadas},
        {"UPDATE cabecera SET observaciones = 1", TablasLeidas},
        {"UPDATE cabecera SET observaciones = 11", TablasDanadas}, // more than rows
        {"UPDATE cabecera SET observaciones = 4001, filas = 4001", TablasDanadas},
        {"UPDATE cabecera SET observaciones = 4294967306", TablasDanadas}, // 10, cut to 32 bits
        {"UPDATE cabecera SET observaciones = NULL", TablasDanadas},
        {"UPDATE cabecera SET observaciones = 9e999", TablasDanadas},
        {"UPDATE cabecera SET observaciones = 1.5", TablasDanadas},
        {"UPDATE cabecera SET observaciones = 'diez'", TablasDanadas},
        {"UPDATE cabecera SET series = 3", TablasDanadas},
        {"UPDATE cabecera SET series = 1", TablasLeidas},
        {"UPDATE cabecera SET series = -1", TablasDanadas},
        {"UPDATE cabecera SET series = 65536", TablasDanadas},
        {"UPDATE cabecera SET lugares = 1, series = 1", TablasDanadas}, // the tables have two
        {"UPDATE cabecera SET lugares = 3", TablasDanadas},
        {"UPDATE cabecera SET lugares = 101", TablasDanadas},
        {"UPDATE cabecera SET filas = 9", TablasDanadas},
        {"UPDATE cabecera SET filas = 11", TablasDanadas},
        {"UPDATE cabecera SET tipo = -1", TablasDanadas},
        {"UPDATE cabecera SET tipo = 5", TablasDanadas},
        {"UPDATE cabecera SET tipo = 6", TablasDanadas},
        {"UPDATE cabecera SET tipo = 4", TablasLeidas},
        {"UPDATE cabecera SET etiquetas = 2", TablasDanadas},
        {"UPDATE cabecera SET proyecto = '1234567890'", TablasDanadas},
        {"UPDATE cabecera SET proyecto = '123456789'", TablasLeidas},
        {"UPDATE cabecera SET proyecto = NULL", TablasDanadas},
        {"UPDATE cabecera SET proyecto = x'414243'", TablasDanadas},
        {"UPDATE cabecera SET intervalo = printf('%31s', 'x')", TablasDanadas},
        {"UPDATE cabecera SET intervalo = printf('%30s', 'x')", TablasLeidas},
        {"DELETE FROM cabecera", TablasDanadas},
        {"INSERT INTO cabecera SELECT * FROM cabecera", TablasDanadas},
        // series
        {"UPDATE series SET codigo = '1234567890123' WHERE lugar = 1", TablasDanadas},
        {"UPDATE series SET codigo = 'ñandú' WHERE lugar = 1", TablasLeidas},
        {"UPDATE series SET codigo = 7 WHERE lugar = 1", TablasLeidas}, // the column makes a text of it
        {"UPDATE series SET codigo = x'41' WHERE lugar = 1", TablasDanadas},
        {"UPDATE series SET codigo = CAST(x'41FF' AS TEXT) WHERE lugar = 1", TablasDanadas}, // no UTF-8
        {"UPDATE series SET codigo = CAST(x'410042' AS TEXT) WHERE lugar = 1", TablasDanadas},
        {"UPDATE series SET primera = 0 WHERE lugar = 1", TablasDanadas},
        {"UPDATE series SET primera = 4000 WHERE lugar = 1", TablasLeidas},
        {"UPDATE series SET primera = 4001 WHERE lugar = 1", TablasDanadas},
        {"UPDATE series SET ultima = 0 WHERE lugar = 1", TablasDanadas},
        {"UPDATE series SET ultima = 4001 WHERE lugar = 2", TablasDanadas},
        {"UPDATE series SET lugar = 3 WHERE lugar = 2", TablasDanadas},
        {"DELETE FROM series WHERE lugar = 1", TablasDanadas},
        {"INSERT INTO series VALUES(3, 'C', 1, 1)", TablasDanadas},
        // observations
        {"DELETE FROM observaciones WHERE fila = 10", TablasDanadas},
        {"DELETE FROM observaciones WHERE fila = 3", TablasDanadas},
        {"INSERT INTO observaciones(fila) VALUES(11)", TablasDanadas},
        {"UPDATE observaciones SET periodo = printf('%30s', 'x')", TablasDanadas},
        {"UPDATE observaciones SET etiqueta = printf('%13s', 'x') WHERE fila = 10", TablasDanadas},
        {"UPDATE observaciones SET etiqueta = printf('%12s', 'x') WHERE fila = 10", TablasLeidas},
        {"UPDATE observaciones SET s1 = 'x' WHERE fila = 10", TablasDanadas},
        {"UPDATE observaciones SET s1 = '12' WHERE fila = 10", TablasLeidas}, // a number, once it is stored
        {"UPDATE observaciones SET s2 = x'013FF0000000000000' WHERE fila = 10", TablasLeidas},
        {"UPDATE observaciones SET s2 = x'023FF0000000000000' WHERE fila = 10", TablasDanadas},
        {"UPDATE observaciones SET s2 = x'3FF0000000000000' WHERE fila = 10", TablasDanadas},
        {"UPDATE observaciones SET s2 = x'013FF000000000000000' WHERE fila = 10", TablasDanadas},
        {"UPDATE observaciones SET s2 = x'' WHERE fila = 10", TablasDanadas},
        // matrices
        {"UPDATE matrices SET filas = 3 WHERE lugar = 1", TablasDanadas},
        {"UPDATE matrices SET filas = 3, columnas = 2 WHERE lugar = 1", TablasLeidas},
        {"UPDATE matrices SET filas = -2, columnas = -3 WHERE lugar = 1", TablasDanadas},
        {"UPDATE matrices SET filas = 32768, columnas = 1, datos = zeroblob(262144)", TablasDanadas},
        {"UPDATE matrices SET filas = 32767, columnas = 1, datos = zeroblob(262136)", TablasLeidas},
        {"UPDATE matrices SET filas = 1, columnas = 32768, datos = zeroblob(262144)", TablasDanadas},
        {"UPDATE matrices SET filas = 2, columnas = 20001, datos = zeroblob(320016)", TablasDanadas},
        {"UPDATE matrices SET filas = 13, columnas = 3077, datos = zeroblob(320008)", TablasLeidas},
        {"UPDATE matrices SET filas = 40000, columnas = 40000", TablasDanadas},
        {"UPDATE matrices SET datos = 'texto'", TablasDanadas},
        {"UPDATE matrices SET datos = NULL", TablasDanadas},
        {"UPDATE matrices SET datos = zeroblob(9) WHERE lugar = 2", TablasDanadas},
        {"UPDATE matrices SET datos = zeroblob(7) WHERE lugar = 2", TablasDanadas},
        {"UPDATE matrices SET datos = zeroblob(2000000) WHERE lugar = 2", TablasDanadas},
        {"UPDATE matrices SET datos = (SELECT datos FROM matrices WHERE lugar = 1) WHERE lugar = 2",
         TablasDanadas},
        {"UPDATE matrices SET codigo = '' WHERE lugar = 1", TablasDanadas},
        {"UPDATE matrices SET codigo = '1A' WHERE lugar = 1", TablasDanadas},
        {"UPDATE matrices SET codigo = 'NUEVELETR' WHERE lugar = 1", TablasDanadas},
        {"UPDATE matrices SET lugar = 4 WHERE lugar = 2", TablasDanadas},
        {"INSERT INTO matrices WITH n(i) AS (VALUES(3) UNION ALL SELECT i + 1 FROM n WHERE i < 30) "
         "SELECT i, 'M' || i, 1, 1, zeroblob(8) FROM n",
         TablasLeidas},
        {"INSERT INTO matrices WITH n(i) AS (VALUES(3) UNION ALL SELECT i + 1 FROM n WHERE i < 31) "
         "SELECT i, 'M' || i, 1, 1, zeroblob(8) FROM n",
         TablasDanadas},
        // scalars and equations
        {"UPDATE escalares SET valor = NULL", TablasDanadas},
        {"UPDATE escalares SET valor = 'x'", TablasDanadas},
        {"UPDATE escalares SET valor = x'003FF0000000000000'", TablasDanadas}, // missing
        {"UPDATE escalares SET codigo = 'A-B'", TablasDanadas},
        {"UPDATE escalares SET lugar = 0", TablasDanadas},
        {"DELETE FROM escalares", TablasLeidas},
        {"INSERT INTO escalares WITH n(i) AS (VALUES(2) UNION ALL SELECT i + 1 FROM n WHERE i < 60) "
         "SELECT i, 'E' || i, i FROM n",
         TablasLeidas},
        {"INSERT INTO escalares WITH n(i) AS (VALUES(2) UNION ALL SELECT i + 1 FROM n WHERE i < 61) "
         "SELECT i, 'E' || i, i FROM n",
         TablasDanadas},
        {"UPDATE ecuaciones SET texto = printf('%100s', 'x')", TablasDanadas},
        {"UPDATE ecuaciones SET texto = printf('%99s', 'x')", TablasLeidas},
        {"UPDATE ecuaciones SET codigo = printf('%13s', 'x')", TablasDanadas},
        {"UPDATE ecuaciones SET lugar = 2", TablasDanadas},
        {"INSERT INTO ecuaciones WITH n(i) AS (VALUES(2) UNION ALL SELECT i + 1 FROM n WHERE i < 20) "
         "SELECT i, 'E' || i, '' FROM n",
         TablasLeidas},
        {"INSERT INTO ecuaciones WITH n(i) AS (VALUES(2) UNION ALL SELECT i + 1 FROM n WHERE i < 21) "
         "SELECT i, 'E' || i, '' FROM n",
         TablasDanadas},
        // panel
        {"UPDATE panel SET forma = 2", TablasDanadas},
        {"UPDATE panel SET forma = 0", TablasDanadas}, // its list would have no place
        {"UPDATE panel SET forma = 0; DELETE FROM panel_individuos", TablasLeidas},
        {"UPDATE panel SET primero = 2", TablasDanadas},
        {"UPDATE panel SET primero = 0", TablasDanadas},
        {"UPDATE panel SET entradas = 1", TablasDanadas},
        {"UPDATE panel SET entradas = 3", TablasDanadas},
        {"UPDATE panel SET entradas = 51", TablasDanadas},
        {"UPDATE panel SET entradas = -1", TablasDanadas},
        {"UPDATE panel SET periodicidad = 4", TablasDanadas},
        {"UPDATE panel SET periodicidad = 3", TablasLeidas},
        {"DELETE FROM panel", TablasDanadas},
        {"DELETE FROM panel_etiquetas WHERE individuo = 50", TablasDanadas},
        {"INSERT INTO panel_etiquetas VALUES(51, '')", TablasDanadas},
        {"UPDATE panel_etiquetas SET etiqueta = printf('%13s', 'x') WHERE individuo = 50", TablasDanadas},
        {"INSERT INTO panel_periodos VALUES(1, '1990', 1)", TablasDanadas},
        {"UPDATE panel SET primero = 0; DELETE FROM panel_individuos; INSERT INTO panel_periodos "
         "VALUES(1, '1990', 1), (2, '1991', 2)",
         TablasLeidas},
        {"UPDATE panel SET primero = 0; DELETE FROM panel_individuos; INSERT INTO panel_periodos "
         "VALUES(1, '1990', 1), (2, '123456789012', 2)",
         TablasDanadas},
        {"UPDATE panel SET primero = 0; DELETE FROM panel_individuos; INSERT INTO panel_periodos "
         "VALUES(1, '1990', 1), (2, '1991', -2)",
         TablasDanadas},
        {"UPDATE panel SET primero = 0, entradas = 4000; DELETE FROM panel_individuos", TablasDanadas},
        {"UPDATE panel_individuos SET entrada = 1", TablasDanadas},
        {"UPDATE panel_individuos SET entrada = 3 WHERE entrada = 2", TablasDanadas},
        {"UPDATE panel_individuos SET entrada = 0 WHERE entrada = 1", TablasDanadas},
        {"UPDATE panel_individuos SET orden = rowid WHERE entrada = 2",
         TablasDanadas}, // two orders, one individual
        {"UPDATE panel_individuos SET orden = -1 WHERE entrada = 1", TablasDanadas},
        {"UPDATE panel_individuos SET periodo = '1234567890' WHERE entrada = 2", TablasDanadas},
        {"UPDATE panel_individuos SET periodo = '' WHERE rowid = 3", TablasDanadas},
        {"INSERT INTO panel_individuos VALUES(1, 1, '1990')", TablasDanadas}, // behind those of individual 2
        {"INSERT INTO panel_individuos WITH n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < 23) "
         "SELECT 2, 2, '1991' FROM n",
         TablasLeidas},
        {"INSERT INTO panel_individuos WITH n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < 24) "
         "SELECT 2, 2, '1991' FROM n",
         TablasDanadas},
        // tables
        {"DROP TABLE cabecera", TablasDanadas},
        {"DROP TABLE panel_etiquetas", TablasDanadas},
        {"ALTER TABLE series ADD COLUMN x", TablasDanadas},
        {"ALTER TABLE observaciones DROP COLUMN s2", TablasDanadas},
        {"DROP VIEW datos; DROP VIEW elementos; CREATE TABLE notas(a); CREATE INDEX i ON series(codigo)",
         TablasLeidas},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.sentencias);
        const LecturasDeTablas r = LeerCambiado(c.sentencias);
        EXPECT_EQ(r, c.resultado);
        if (r == TablasLeidas) EstaSano();
    }
}

// Tables that aren't what they are called: nothing in the file runs.
TEST_F(FicheroDanado, LoQueQuiereHacerDano) {
    const char *const casos[] = {
        "ALTER TABLE escalares RENAME TO otra; CREATE VIEW escalares AS SELECT * FROM otra",
        "DROP TABLE escalares; CREATE VIEW escalares(lugar, codigo, valor) AS WITH RECURSIVE n(i) AS (SELECT "
        "1 UNION "
        "ALL SELECT i FROM n) SELECT i, 'A', 1 FROM n", // without an end
        "DROP TABLE ecuaciones; CREATE VIRTUAL TABLE ecuaciones USING fts4(lugar, codigo, texto)",
        "UPDATE sqlite_master SET type = 'view' WHERE name = 'series'",
        "UPDATE sqlite_master SET sql = 'CREATE TABLE series(lugar INTEGER PRIMARY KEY, codigo TEXT, primera "
        "INTEGER, "
        "ultima INTEGER DEFAULT (load_extension(''x'')))' WHERE name = 'series'",
        "UPDATE sqlite_master SET rootpage = 0 WHERE name = 'series'",
        "UPDATE sqlite_master SET rootpage = 1 WHERE name = 'series'",
        "UPDATE sqlite_master SET rootpage = 99999 WHERE name = 'observaciones'",
        "UPDATE sqlite_master SET rootpage = (SELECT rootpage FROM sqlite_master WHERE name = 'series') "
        "WHERE name = "
        "'matrices'",
        "UPDATE sqlite_master SET sql = NULL WHERE name = 'cabecera'",
        "DELETE FROM sqlite_master WHERE name = 'cabecera'",
        "INSERT INTO sqlite_master SELECT * FROM sqlite_master WHERE name = 'cabecera'",
    };
    for (const char *c : casos) {
        SCOPED_TRACE(c);
        EXPECT_EQ(LeerCambiado(c), TablasDanadas);
    }
}

// Bytes changed, swapped, cut off and put between, at random. TABIRA_AZAR asks for another number of files.
TEST_F(FicheroDanado, DanosAlAzar) {
    const char *pedido = std::getenv("TABIRA_AZAR");
    const int casos = pedido != nullptr ? std::atoi(pedido) : 300;
    ASSERT_TRUE(EscribirOriginal(Ruta("original")));
    const std::string bueno = BytesDe(Ruta("original"));
    std::mt19937 azar(20240607);
    const auto hasta = [&](std::size_t n) { return azar() % n; };
    int leidos = 0, rechazados = 0;
    for (int caso = 0; caso < casos; ++caso) {
        SCOPED_TRACE(caso);
        std::string b = bueno;
        const auto pagina = [&] {
            return b.begin() + static_cast<std::ptrdiff_t>(4096 * hasta(b.size() / 4096));
        };
        for (std::size_t k = 0, n = 1 + hasta(4); k < n; ++k) {
            switch (caso % 4) {
            case 0: b[hasta(b.size())] ^= static_cast<char>(1u << hasta(8)); break;
            case 1: b[hasta(b.size())] = static_cast<char>(azar()); break;
            case 2: {
                const auto una = pagina(), otra = pagina();
                if (una != otra) std::swap_ranges(una, una + 4096, otra);
                break;
            }
            default:
                b[hasta(600)] = static_cast<char>(azar());
                break; // the header and the page of the schema
            }
        }
        if (caso % 16 == 15) b.resize(hasta(b.size()));
        PonerBytes(Ruta("a.TR2"), b);
        const LecturasDeTablas r = Leer(Ruta("a.TR2"));
        if (r == TablasLeidas) EstaSano();
        ++(r == TablasLeidas ? leidos : rechazados);
    }
    // Both happen: free places of a page can be anything, its pointers can't.
    EXPECT_GT(leidos, 10);
    EXPECT_GT(rechazados, 100);
}

} // namespace
