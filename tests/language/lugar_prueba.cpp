// Where a batch stopped, what it counts, and the notes that it makes.
#include "apoyo/plataforma_prueba.h"
#include "language/lote_sentencias.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

namespace {

void Empezar() {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("X", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    PonerSerie("Y", {2, 1, 4, 3, 6, 5, 8, 7, 10, 9});
    ActualizarMuestra();
    Lote.VerRegresion = 0;
}

void Correr(const std::string &texto, int desde = 0) {
    Empezar();
    Prueba.textoControl = Texto1252DeUtf8(texto);
    Prueba.desde = desde;
    Prueba.hasta = static_cast<int>(Prueba.textoControl.size());
    ProcesarLote(nullptr, nullptr, OrigenSeleccion, {}, Muestra.InicioMuestra, Muestra.FinMuestra);
}

constexpr struct {
    const char *texto;
    int linea; // 0: the batch ran to its end
    const char *sentencia;
    int inicio, sentencias;
} Paradas[] = {
    {"SER Z = X\nSER Z = X + 1", 0, "", 0, 2},
    {"; a comment\n\nSER Z = X\n", 0, "", 0, 1},
    {"SER Z = X\nq\n; c\nESC A = 1\n", 0, "", 0, 2},
    {"NADA\n", 1, "NADA", 0, 0},
    {"SER Z = X\n\n  ser w = nadie  \nSER Z = Y", 3, "ser w = nadie", 13, 1},
    {"SER Z = X\r\nSER W = LN(NADIE)\r\n", 2, "SER W = LN(NADIE)", 11, 1},
    {"SER Z = X\rSER W = (\r", 2, "SER W = (", 10, 1},
    // A taken name stops without a box.
    {"ESC X = 1\nSER A = 2\nESC A = 3\nSER Z = 1", 1, "ESC X = 1", 0, 0},
    {"REPITE I DESDE 1 HASTA 3\n ESC A = I\n ESC B = NADIE\nFINREPITE\n", 3, "ESC B = NADIE", 37, 0},
    {"ESC C = 1\nREPITE I DESDE 1 HASTA 3\nESC A = I\nFINREPITE\nESC B = NADIE\n", 5, "ESC B = NADIE", 55, 2},
    {"ESC C = 1\nSI (C = 1) ENTONCES\nESC A = NADIE\nFINSI\n", 3, "ESC A = NADIE", 30, 1},
    {"REPITE I DESDE 1 HASTA 3\nESC A = I\n", 1, "REPITE I DESDE 1 HASTA 3", 0, 0},
};

} // namespace

TEST(Lugar, DondeSeDetuvo) {
    for (const auto &c : Paradas) {
        SCOPED_TRACE(c.texto);
        Correr(c.texto);
        EXPECT_EQ(Lote.detenido, c.linea > 0 ? 1 : 0);
        EXPECT_EQ(Lote.parada.linea, c.linea);
        EXPECT_EQ(Lote.parada.sentencia, c.sentencia);
        EXPECT_EQ(Lote.parada.inicio, c.inicio);
        EXPECT_EQ(Lote.parada.fin - Lote.parada.inicio, static_cast<int>(Lote.parada.sentencia.size()));
        EXPECT_EQ(Lote.sentencias, c.sentencias);
        EXPECT_FALSE(EnLote());
    }
}

// Lines are those of the whole text, though a part of it is selected.
TEST(Lugar, LaSeleccionEmpiezaDespues) {
    Correr("NADA\nSER Z = X\nSER W = NADIE", 5);
    EXPECT_EQ(Lote.parada.linea, 3);
    EXPECT_EQ(Lote.parada.sentencia, "SER W = NADIE");
}

TEST(Lugar, LaSentenciaDeUnDialogo) {
    Empezar();
    EXPECT_EQ(ProcesarSentencia(nullptr, "SER W = NADIE", 0, 9), 0);
    EXPECT_EQ(Lote.parada.linea, 1);
    EXPECT_EQ(Lote.parada.sentencia, "SER W = NADIE");
    EXPECT_EQ(ProcesarSentencia(nullptr, "SER W = X", 0, 9), 1);
    EXPECT_EQ(Lote.parada.linea, 0);
    EXPECT_EQ(Lote.sentencias, 1);
}

// Refused before its first statement: it stopped at none.
TEST(Lugar, SinEmpezar) {
    Correr("");
    EXPECT_EQ(Lote.detenido, 1);
    EXPECT_EQ(Lote.parada.linea, 0);
    EmpezarPrueba();
    EXPECT_EQ(ProcesarSentencia(nullptr, "SER W = 1", 0, 9), 0);
    EXPECT_EQ(Lote.parada.linea, 0);
}

// A box that is shown while a batch runs can ask where it is; behind the batch nobody is anywhere.
TEST(Lugar, MientrasCorre) {
    static LugarDeSentencia visto;
    Correr("SER Z = X\n");
    EXPECT_EQ(LugarActual().linea, 0);
    static void (*const mirar)() = [] { visto = LugarActual(); };
    DespuesDeCadaLote = mirar;
    Correr("SER Z = X\nSER W = NADIE");
    DespuesDeCadaLote = nullptr;
    EXPECT_EQ(visto.linea, 0);
    EXPECT_EQ(Lote.parada.linea, 2);
}

// ----- Notes

namespace {

using Notas = std::vector<NotaVista>;

const char *const Coma = "La fórmula se lee hasta la coma; los decimales se escriben con punto";
const char *const Periodo = "El período no está en el archivo de trabajo: no ha cambiado ninguna observación";
const char *const PeriodoDeMuestra = "La muestra nombra un período que no está en el archivo de trabajo";
const char *const Opcion = "La opción no es CN, CH ni CA n: las covarianzas son las habituales";

const struct {
    const char *texto;
    Notas notas;
} CasosDeNota[] = {
    {"ESC A = 3,5", {{1, Coma}}},
    {"SER Z = X\nSER W = (X + 3,5) * 2", {{2, Coma}}},
    {"CAL 3,5", {{1, Coma}}},
    {"CAL PROBT(2,9)", {}},
    {"ESC A = 3 ; 3,5", {}},
    {"REPITE I DESDE 1 HASTA 4\nESC A = 2,5 * I\nFINREPITE", {{2, Coma}}},
    {"OBS X[2005] = 1", {{1, Periodo}}},
    {"OBS X[1995] = 1", {}},
    {"SER X = X(-1) + 1", {}},
    {"MUEST 1992 1998", {}},
    {"MUEST 1890 1998", {{1, PeriodoDeMuestra}}},
    {"MUEST 1992 2008", {{1, PeriodoDeMuestra}}},
    {"MUEST", {}},
    {"MUEST 1990 1999\nMC (HC) Y 1 X", {{2, Opcion}}},
    {"MUEST 1990 1999\nMC (CH) Y 1 X", {}},
    {"MUEST 1990 1999\nMC (CN) Y 1 X", {}},
    {"MUEST 1990 1999\nMC (CA 2) Y 1 X", {}},
    {"MUEST 1990 1999\nMC Y 1 X", {}},
};

} // namespace

TEST(Notas, CadaCosa) {
    for (const auto &c : CasosDeNota) {
        SCOPED_TRACE(c.texto);
        Correr(c.texto);
        EXPECT_EQ(Prueba.notas, c.notas);
        EXPECT_EQ(Lote.detenido, 0);
    }
}
