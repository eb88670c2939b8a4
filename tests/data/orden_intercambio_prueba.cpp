// The commands of the ASCII exchange from beginning to end, with the dialog's part played.
#include "data/intercambio.h"

#include "apoyo/plataforma_prueba.h"
#include "language/lote_sentencias.h"
#include "platform/archivos.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

// A folder without a hyphen in its path, which the exchange would refuse.
std::string Ruta(const char *nombre) {
    const fs::path carpeta = fs::temp_directory_path() / "tabira_orden_intercambio";
    fs::create_directories(carpeta);
    fs::remove(carpeta / nombre);
    return (carpeta / nombre).string();
}

// The user accepts the variable format as it is proposed, chooses a file and closes with OK.
void AceptarTodo(const DialogoPedido &) {
    AceptarFormatoVariable({.primerRegistroCodigos = true}, Intercambio.opciones);
    EXPECT_TRUE(ElegirArchivoDeIntercambio(nullptr));
    Intercambio.opciones.Aceptado = 1;
}

std::string Contenido(const std::string &ruta) {
    std::string texto;
    LeerArchivo(ruta, texto);
    return texto;
}

} // namespace

TEST(OrdenIntercambio, Titulos) {
    EXPECT_EQ(Utf8De1252(TituloIntercambio(true)), "Importación de Series");
    EXPECT_EQ(Utf8De1252(TituloIntercambio(false)), "Exportación de Series");
}

TEST(OrdenIntercambio, SinTipoDeDatos) {
    EmpezarPrueba();
    for (const bool importando : {false, true}) {
        Prueba.cajas.clear();
        IntercambiarAscii(nullptr, importando);
        EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{{"Proceso cancelado", "Tipo de datos no válidos",
                                                         IconoInformacion, BotonesAceptar}}));
        EXPECT_TRUE(Prueba.dialogos.empty());
    }
}

TEST(OrdenIntercambio, LoQueElDialogoEncuentra) {
    EmpezarConDatos(TipoAnual, "1990#1991");
    Lote.DecimalesSalida = 5;
    Intercambio.archivo = "otro";
    Intercambio.opciones.Aceptado = 1;
    Intercambio.opciones.FormatoElegido = 1;
    Prueba.enDialogo = [](const DialogoPedido &d) {
        EXPECT_EQ(d.cual, Dialogo::Intercambio);
        EXPECT_EQ(Intercambio.archivo, "*.txt");
        EXPECT_EQ(Intercambio.decimales, 5);
        EXPECT_EQ(Intercambio.opciones.Importando, 1);
        EXPECT_EQ(Intercambio.opciones.Aceptado, 0);
        EXPECT_EQ(Intercambio.opciones.FormatoElegido, 0);
    };
    IntercambiarAscii(nullptr, true);
    EXPECT_EQ(Prueba.dialogos.size(), 1u);
    EXPECT_TRUE(Prueba.cajas.empty()); // closed without OK: nothing happens
}

TEST(OrdenIntercambio, LaPreguntaVaAntes) {
    for (const Respuesta r : {RespuestaSi, RespuestaNo, RespuestaCancelar}) {
        EmpezarConDatos(TipoAnual, "1990#1991");
        PonerSerie("A", {1});
        Prueba.respuestas = {r};
        Prueba.enDialogo = [r](const DialogoPedido &) {
            EXPECT_EQ(Intercambio.opciones.SustituirSeries, r == RespuestaSi ? 1 : 0);
        };
        IntercambiarAscii(nullptr, true);
        EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{{"Aviso", "Existen Series ¿Desea sustituirlas?",
                                                         IconoPregunta, BotonesSiNoCancelar}}));
        EXPECT_EQ(Prueba.dialogos.size(), r == RespuestaCancelar ? 0u : 1u);
    }
    Prueba.cajas.clear();
    IntercambiarAscii(nullptr, false); // export asks nothing
    EXPECT_TRUE(Prueba.cajas.empty());
}

// "OK" without a format, then with one and without a file.
TEST(OrdenIntercambio, SinFormatoYSinArchivo) {
    EmpezarConDatos(TipoAnual, "1990#1991");
    Prueba.enDialogo = [](const DialogoPedido &) { Intercambio.opciones.Aceptado = 1; };
    IntercambiarAscii(nullptr, false);
    EXPECT_EQ(TextosDeCajas(), (std::vector<std::string>{"Opciones no válidas"}));
    Prueba.cajas.clear();
    Prueba.enDialogo = [](const DialogoPedido &) {
        AceptarFormatoVariable({}, Intercambio.opciones);
        Intercambio.opciones.Aceptado = 1;
    };
    IntercambiarAscii(nullptr, false);
    EXPECT_EQ(TextosDeCajas(), (std::vector<std::string>{"Nombre archivo incorrecto"}));
}

TEST(OrdenIntercambio, SeleccionarArchivo) {
    for (const bool importando : {false, true}) {
        EmpezarConDatos(TipoAnual, "1990#1991");
        Intercambio.opciones.Importando = importando ? 1 : 0;
        Intercambio.archivo = "viejo.txt";
        Prueba.rutas = {"/tmp/a.txt"};
        EXPECT_TRUE(ElegirArchivoDeIntercambio(nullptr));
        EXPECT_EQ(Intercambio.archivo, "/tmp/a.txt");
        ASSERT_EQ(Prueba.archivos.size(), 1u);
        EXPECT_EQ(Prueba.archivos[0].guardar, !importando);
        EXPECT_EQ(Prueba.archivos[0].filtros, (std::vector<std::string>{"Archivos de texto (*.TXT)"}));
        EXPECT_EQ(Prueba.archivos[0].titulo, "Seleccionar archivo");
        EXPECT_FALSE(ElegirArchivoDeIntercambio(nullptr)); // cancelled
        EXPECT_EQ(Intercambio.archivo, "*.txt");
    }
}

TEST(OrdenIntercambio, IdaYVuelta) {
    EmpezarConDatos(TipoAnual, "1990#1991");
    PonerSerie("A", {1.25, 2.5});
    PonerSerie("B", {3, 4});
    ActualizarMuestra();
    const std::string ruta = Ruta("ida.txt");
    Prueba.rutas = {ruta, ruta};
    Prueba.enDialogo = [](const DialogoPedido &d) {
        Intercambio.decimales = 1;
        AceptarTodo(d);
    };
    IntercambiarAscii(nullptr, false);
    EXPECT_EQ(Lote.DecimalesSalida, 1);
    EXPECT_EQ(Contenido(ruta), "      A            ,      B            \n"
                               "1.2                ,3.0                \n"
                               "2.5                ,4.0                \n");
    EXPECT_TRUE(Prueba.cajas.empty());
    // The same file again: the question is the transfer's own.
    Prueba.respuestas = {RespuestaCancelar};
    IntercambiarAscii(nullptr, false);
    EXPECT_EQ(TextosDeCajas(), (std::vector<std::string>{"El archivo ya existe ¿Sobreescribir?"}));
    // Back, in place of what there is.
    PonerSerie("C", {9, 9});
    Prueba.rutas = {ruta};
    Prueba.respuestas = {RespuestaSi};
    IntercambiarAscii(nullptr, true);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 2);
    EXPECT_EQ(ValoresDe("A", 2), (std::vector<double>{1.2, 2.5}));
    EXPECT_EQ(BuscarSerie("C"), -1);
}
