// Start and reset of the work file: what resets what.
#include "apoyo/plataforma_prueba.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/panel.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// A work file with something in every table.
void Llenar() {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3});
    PonerEscalar(nullptr, "E", 4.0);
    PonerMatriz("M", {5}, 1, 1);
    TablaEcuaciones.numero = 1;
    PonerCampo(TablaEcuaciones.Codigos[0], "EQ", AnchoCodigo);
    DescripcionPanel.NumEntradas = 7;
    ArchivoTrabajo.ConEtiquetas = 1;
    PonerCampo(ArchivoTrabajo.EtiquetasObs[3], "Etiqueta", AnchoEtiqueta);
    MuestraDeSentencia("MUEST 1991 1995");
    PrepararDialogoMuestra();
    BufferMatriz.datos[0] = 1.0;
    BufferMatriz.enUso = 1;
    BufferMatriz.Filas = 1;
    Prueba = {};
}

void EsperarObservacionesVacias() {
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
    EXPECT_EQ(TablaEscalares.numero, 0);
    EXPECT_EQ(TablaMatrices.numero, 0);
    EXPECT_EQ(BuscarEscalar("E"), -1);
    for (int i = 0; i < MaxObservaciones; ++i) {
        ASSERT_EQ(ArchivoTrabajo.ValoresObs[i][0], 0.0);
        ASSERT_EQ(ArchivoTrabajo.PresenciaObs[i][0], 0);
    }
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[3], "            ");
    EXPECT_EQ(BufferMatriz.datos[0], 0.0);
    EXPECT_EQ(BufferMatriz.Filas, 0);
    EXPECT_EQ(Muestra.AnoInicial, 0);
    EXPECT_EQ(Muestra.AnoFinal, 0);
    EXPECT_EQ(Muestra.LimiteInicial, "");
    EXPECT_EQ(Muestra.TextoFinal, "");
}

TEST(Archivo, Vaciar) {
    Llenar();
    VaciarArchivoTrabajo();
    EsperarObservacionesVacias();
    EXPECT_STREQ(ArchivoTrabajo.Codigos[0], "            ");
    EXPECT_EQ(ArchivoTrabajo.TipoDatos, TipoAnual);
    EXPECT_EQ(ArchivoTrabajo.NumObs, 10);
    EXPECT_EQ(TextoPeriodo(9), "1999");
    EXPECT_EQ(TextoPeriodo(10), "");
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto); // blocks stay
    EXPECT_EQ(TablaEcuaciones.numero, 1);
    EXPECT_STREQ(TablaEcuaciones.Codigos[0], "EQ          ");
    EXPECT_EQ(DescripcionPanel.NumEntradas, 7);
    EXPECT_EQ(ArchivoTrabajo.ConEtiquetas, 1);
    EXPECT_EQ(Prueba.refrescos, 1); // the grid of the editor is cleared
}

TEST(Archivo, VaciarEsquivaLosTextosQueYaNoHay) {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    EXPECT_EQ(TextoPeriodo(3999), "4000");
    ArchivoTrabajo.TipoDatos = TipoAnual;
    PonerCampo(ArchivoTrabajo.TextoIntervalo, "1990#1999", AnchoIntervalo);
    VaciarArchivoTrabajo();
    EXPECT_EQ(TextoPeriodo(3999), "");
    EXPECT_STREQ(ArchivoTrabajo.TextosPeriodo[3999], std::string(29, ' ').c_str());
}

TEST(Archivo, Iniciar) {
    Llenar();
    EdicionPanel.panel.NumEntradas = 3;
    EdicionPanel.cambiada = true;
    IniciarArchivoTrabajo();
    EsperarObservacionesVacias();
    EXPECT_STREQ(ArchivoTrabajo.NombreProyecto, "Proyec01 ");
    EXPECT_EQ(ArchivoTrabajo.TipoDatos, SinTipoDatos);
    EXPECT_EQ(CadenaDeCaracter(ArchivoTrabajo.TextoIntervalo, ' '), 1);
    EXPECT_EQ(ArchivoTrabajo.NumObs, 0);
    EXPECT_EQ(ArchivoTrabajo.ConEtiquetas, 0);
    EXPECT_STREQ(ArchivoTrabajo.Codigos[0], ""); // until the first reset
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], SinBloque);
    EXPECT_EQ(TablaEcuaciones.numero, 0);
    EXPECT_STREQ(TablaEcuaciones.Codigos[0], "");
    EXPECT_EQ(DescripcionPanel.NumEntradas, 0);
    EXPECT_STREQ(DescripcionPanel.EtiquetasIndividuo[49], "            ");
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 0);
    EXPECT_FALSE(EdicionPanel.cambiada);
    EXPECT_EQ(Muestra.InicioMuestra, 0);
    EXPECT_EQ(Muestra.FinRegresion, 0);
}

TEST(Archivo, ElPrimerCambioDejaLosCodigosEnBlanco) {
    EmpezarConDatos(TipoAnual, "1990#1999");
    for (const auto &codigo : ArchivoTrabajo.Codigos) EXPECT_STREQ(codigo, "            ");
}

TEST(Archivo, ElTextoDeUnaFila) {
    EmpezarPrueba();
    PonerTextoPeriodo(0, "1995.01 ");
    EXPECT_EQ(std::string(ArchivoTrabajo.TextosPeriodo[0]), "1995.01" + std::string(22, ' '));
    EXPECT_EQ(TextoPeriodo(0), "1995.01");
    EXPECT_EQ(ArchivoTrabajo.ValoresPeriodo[0], 1995.01);
    PonerTextoPeriodo(1, std::string(100, '9'));
    EXPECT_EQ(TextoPeriodo(1).size(), 29u);
    EXPECT_EQ(TextoPeriodo(-1), "");
    EXPECT_EQ(TextoPeriodo(MaxObservaciones), "");
}

} // namespace
