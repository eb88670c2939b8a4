// The seam where a program gives boxes only, and the printer that stands before one is installed.
#include "apoyo/plataforma_prueba.h"
#include "charts/resultados/resultado.h"

#include <gtest/gtest.h>

namespace {

int Cajas;

const OperacionesPlataforma SoloCajas = {
    .caja =
        [](Ventana *, std::string_view, std::string_view, Icono, Botones) {
            ++Cajas;
            return RespuestaCancelar;
        },
};

} // namespace

TEST(Plataforma, LoQueUnProgramaNoDaNoHaceNada) {
    InstalarPlataforma(SoloCajas);
    Cajas = 0;
    EXPECT_EQ(MostrarCaja(nullptr, "a", "b", IconoPregunta, BotonesSiNoCancelar), RespuestaCancelar);
    EXPECT_EQ(Cajas, 1);
    PonerCursor(CursorEspera);
    EXPECT_EQ(TextoDeControl(nullptr), "");
    int desde = 7, hasta = 9;
    SeleccionDeControl(nullptr, desde, hasta);
    EXPECT_EQ(desde, 0);
    EXPECT_EQ(hasta, 0);
    SeleccionarEnControl(nullptr, 1, 2);
    EscribirEnControl(nullptr, "x");
    PonerTitulo(nullptr, "x");
    const TextoSalida lineas;
    MostrarVentanaResultado(nullptr, {SalidaHipotesis, "x", 0, 0, &lineas, nullptr, nullptr});
    AbrirDialogo(nullptr, Dialogo::Ayuda, {PaginaMuestra});
    std::string ruta = "antes";
    EXPECT_FALSE(ElegirArchivo(nullptr, {true, "x", {}, "y"}, ruta));
    EXPECT_EQ(ruta, "antes");
    RefrescarEditor();
    EXPECT_EQ(SegundosDeCalendario(), 0);
    EXPECT_EQ(Cajas, 1);
}

// What the platform of the tests keeps of what it is asked, for the tests of the core.
TEST(Plataforma, LaDeLasPruebasAnotaYContesta) {
    EmpezarPrueba();
    Prueba.textoControl = "uno dos tres";
    SeleccionarEnControl(nullptr, 4, 7);
    EscribirEnControl(nullptr, "2");
    EXPECT_EQ(TextoDeControl(nullptr), "uno 2 tres");
    int desde, hasta;
    SeleccionDeControl(nullptr, desde, hasta);
    EXPECT_EQ(desde, 5);
    EXPECT_EQ(hasta, 5);
    PonerTitulo(nullptr, "Título"_w);
    EXPECT_EQ(Prueba.titulo, "Título");
    int veces = 0;
    Prueba.enDialogo = [&](const DialogoPedido &) { ++veces; };
    AbrirDialogo(nullptr, Dialogo::Lista, {2});
    ASSERT_EQ(Prueba.dialogos.size(), 1u);
    EXPECT_EQ(Prueba.dialogos[0].cual, Dialogo::Lista);
    EXPECT_EQ(Prueba.dialogos[0].datos.modo, 2);
    EXPECT_EQ(veces, 1);
    constexpr FormatoArchivo Formatos[] = {{"txt", "Texto (*.txt)"}, {"png", "Imagen"}};
    Prueba.rutas = {"/a/b.txt"};
    std::string ruta;
    EXPECT_TRUE(ElegirArchivo(nullptr, {false, "Abrir", Formatos, "*.txt"}, ruta));
    EXPECT_EQ(ruta, "/a/b.txt");
    EXPECT_FALSE(ElegirArchivo(nullptr, {true, "Guardar", Formatos, ""}, ruta));
    ASSERT_EQ(Prueba.archivos.size(), 2u);
    EXPECT_FALSE(Prueba.archivos[0].guardar);
    EXPECT_EQ(Prueba.archivos[0].titulo, "Abrir");
    EXPECT_EQ(Prueba.archivos[0].nombre, "*.txt");
    EXPECT_EQ(Prueba.archivos[0].filtros, (std::vector<std::string>{"Texto (*.txt)", "Imagen"}));
    EXPECT_TRUE(Prueba.archivos[1].guardar);
}

TEST(Plataforma, LaImpresoraPorDefectoGrabaYOlvida) {
    static const OperacionesImpresora PorDefecto;
    InstalarImpresora(PorDefecto);
    const OperacionesImpresora &i = ImpresoraEnUso();
    i.empezarTrabajo("Trabajo");
    DispositivoImpresion *d = i.abrir();
    ASSERT_NE(d, nullptr);
    EXPECT_TRUE(i.iniciarDocumento(d, "Documento"));
    EXPECT_EQ(i.superficieDePagina(d), nullptr);
    EXPECT_TRUE(i.iniciarPagina(d));
    Superficie *s = i.superficieDePagina(d);
    ASSERT_NE(s, nullptr);
    Texto(*s, 0, 0, "x");
    EXPECT_TRUE(i.terminarPagina(d));
    EXPECT_TRUE(i.terminarDocumento(d));
    i.cerrar(d);
    i.terminarTrabajo();
    // Nothing of it is left for the next job.
    const TrabajoImpreso resto = TerminarTrabajoGrabado();
    EXPECT_TRUE(resto.paginas.empty());
    EXPECT_EQ(resto.documento, "");
}
