// Both editors under keys, clicks and bars at random: nothing is read or written outside the tables (the sanitizers look
// on), and what must always hold holds after each.
#include "data/editor_apoyo.h"
#include "data/editor_matrices.h"
#include "data/portapapeles.h"

#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

namespace {

using Azar = std::mt19937;

int Entre(Azar &azar, int desde, int hasta) {
    return std::uniform_int_distribution<int>(desde, hasta)(azar);
}

// Mostly what a hand can do; now and then a number that no hand can bring.
EntradaEditor AlAzar(Azar &azar) {
    const int que = Entre(azar, 0, 99);
    if (que < 45)
        return {EscribeCaracter, Entre(azar, 0, 3) == 0 ? Entre(azar, -300, 300) : Entre(azar, '-', '9')};
    if (que < 80) return {static_cast<EntradasEditor>(Entre(azar, PulsaTab, EscribeEscape))};
    if (que < 90) return {ClicEnCelda, Entre(azar, -5, 110)};
    const auto clase = static_cast<EntradasEditor>(Entre(azar, ClicEnCelda, BarraEnFila));
    if (que < 98) return {clase, Entre(azar, -6000, 6000)};
    return {clase,
            Entre(azar, 0, 1) == 0 ? std::numeric_limits<int>::max() : std::numeric_limits<int>::min()};
}

void EsperarEnOrden(bool filasAcotadas) {
    ASSERT_TRUE((Editor.CeldaActual >= 17 && Editor.CeldaActual <= 101) || Editor.CeldaActual == 102);
    ASSERT_TRUE(Editor.CeldaActual != 102 || Editor.ModoEditor == EditorDeMatrices);
    ASSERT_TRUE(Editor.ColumnaInicial >= 0 && Editor.ColumnaInicial <= 96);
    if (filasAcotadas) {
        ASSERT_TRUE(Editor.FilaInicial >= 0 && Editor.FilaInicial <= 3984);
    }
    ASSERT_TRUE(Editor.cursorCampo >= 0 && Editor.cursorCampo < AnchoCampoEdicion);
    ASSERT_EQ(std::strlen(Editor.CampoEdicion), static_cast<std::size_t>(AnchoCampoEdicion));
    for (int c = 0; c < NumCeldas; ++c) ASSERT_LE(TextoDeCelda(c).size(), 12u);
    ASSERT_FALSE(TextoHablado().empty());
}

// Where a value stands there is a code and a period, and where none stands the value is zero.
void EsperarTablasEnOrden() {
    for (int s = 0; s < MaxSeries; ++s) {
        ASSERT_EQ(std::strlen(ArchivoTrabajo.Codigos[s]), 12u);
        for (int i = 0; i < MaxObservaciones; ++i) {
            if (ArchivoTrabajo.PresenciaObs[i][s] == 1) {
                ASSERT_FALSE(TextoPeriodo(i).empty());
            } else {
                ASSERT_EQ(ArchivoTrabajo.ValoresObs[i][s], 0.0);
            }
        }
    }
}

void Golpear(unsigned semilla, int veces, bool filasAcotadas) {
    Azar azar(semilla);
    for (int k = 0; k < veces; ++k) {
        const EntradaEditor e = AlAzar(azar);
        SCOPED_TRACE(Formatear("%u, number %d: %d %d", semilla, k, e.clase, e.dato));
        EntrarEnEditor(e);
        EsperarEnOrden(filasAcotadas);
        if (testing::Test::HasFatalFailure()) return;
        if (k % 500 == 0) CopiarDelEditor(',');
        if (k % 700 == 0) PegarEnEditor(nullptr, "A\tB\n1\t2,5\n\tx\n");
        if (Editor.ModoEditor == EditorDeMatrices && k % 400 == 399) {
            int (*const ordenes[])(Ventana *) = {SalvarMatriz, MostrarMatriz, BorrarMatrizDelEditor};
            ordenes[Entre(azar, 0, 2)](nullptr);
        }
    }
}

} // namespace

// TABIRA_AZAR asks for another number of strokes in each run.
TEST(EditorAlAzar, Aguanta) {
    const char *pedido = std::getenv("TABIRA_AZAR");
    const int veces = pedido != nullptr ? std::atoi(pedido) : 4000;
    for (const bool etiquetas : {false, true}) {
        AbrirSeries(1, "1990#2015", etiquetas);
        Golpear(etiquetas ? 1u : 2u, veces, true);
        EsperarTablasEnOrden();
    }
    AbrirSeries();
    ArchivoTrabajo.NumObs = 5000; // a damaged work file
    Golpear(3, veces, false);
    AbrirMatrices();
    PonerMatriz("1", std::vector<double>(3600, 2.5), 60, 60);
    PonerMatriz("A", {1, 2, 3}, 1, 3);
    Golpear(4, veces, true);
    ArchivoTrabajo.ConEtiquetas = 1;
    ArchivoTrabajo.NumObs = std::numeric_limits<int>::max();
    Golpear(5, veces, true);
}
