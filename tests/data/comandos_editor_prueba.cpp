// The menus of the editor and what each entry does.
#include "data/comandos_editor.h"

#include "charts/resultados/seleccion.h"
#include "data/editor_apoyo.h"
#include "data/editor_matrices.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

namespace {

struct EntradaEsperada {
    int id;
    const char *texto; // null: no entry
};

void EsperarMenu(ModosDeEditor modo, const std::vector<EntradaEsperada> &esperadas) {
    const auto menu = ComandosDelEditor(modo);
    ASSERT_EQ(menu.size(), esperadas.size());
    for (std::size_t i = 0; i < menu.size(); ++i) {
        EXPECT_EQ(menu[i].id, esperadas[i].id);
        EXPECT_EQ(menu[i].entrada == nullptr, esperadas[i].texto == nullptr) << i;
        if (esperadas[i].texto != nullptr) {
            EXPECT_EQ(Utf8De1252(menu[i].entrada), esperadas[i].texto);
        }
    }
}

const CajaVista Repetidos = {"Proceso cancelado", "Códigos repetidos : A           ", IconoInformacion,
                             BotonesAceptar};

// Two series of one code, and the cursor away from the beginning.
void ConCodigosRepetidos() {
    PonerSerie("A", {1});
    PonerSerie("B", {2});
    PonerCodigoSerie(1, "A");
    EntrarEnEditor({BarraEnFila, 30});
    EntrarEnEditor({BarraEnColumna, 2});
    Clic(60);
}

void EsperarDondeEstaba() {
    EXPECT_EQ(Editor.CeldaActual, 60);
    EXPECT_EQ(Editor.FilaInicial, 30);
    EXPECT_EQ(Editor.ColumnaInicial, 2);
}

void EsperarAlPrincipio(int celda) {
    EXPECT_EQ(Editor.CeldaActual, celda);
    EXPECT_EQ(Editor.FilaInicial, 0);
    EXPECT_EQ(Editor.ColumnaInicial, 0);
    EXPECT_EQ(Editor.foco, FocoEnCelda);
}

// The dialogs that were asked for: number and mode.
std::vector<std::pair<int, int>> Pedidos() {
    std::vector<std::pair<int, int>> r;
    for (const DialogoPedido &d : Prueba.dialogos) r.emplace_back(static_cast<int>(d.cual), d.datos.modo);
    return r;
}

std::pair<int, int> Pedido(Dialogo cual, int modo = 0) {
    return {static_cast<int>(cual), modo};
}

} // namespace

// ----- The menus

TEST(ComandosEditor, MenuDeSeries) {
    EsperarMenu(EditorDeSeries, {{2010, "&Restaurar pantalla"},
                                 {2008, "&Borrar todas las series"},
                                 {2076, "&Eliminar observación..."},
                                 {2077, "&Ordenar series..."},
                                 {2021, "&Salir"},
                                 {2007, "&Decimales"},
                                 {2006, "&Imprimir"},
                                 {2046, "&Ayuda"},
                                 {2074, nullptr}});
}

TEST(ComandosEditor, MenuDeMatrices) {
    EsperarMenu(EditorDeMatrices, {{2009, "&Salvar matriz"},
                                   {2064, "&Borrar matriz"},
                                   {2065, "Blanquear &pantalla"},
                                   {2011, "M&ostrar matriz"},
                                   {2021, "Sa&lir"},
                                   {2007, "&Decimales"},
                                   {2006, "&Imprimir"},
                                   {2046, "&Ayuda"}});
}

TEST(ComandosEditor, Titulos) {
    AbrirSeries();
    EXPECT_STREQ(TituloDelEditor(), "Editor de series");
    AbrirMatrices();
    EXPECT_STREQ(TituloDelEditor(), "Editor de matrices");
}

// Greyed, the two commands do nothing even when they are asked for.
TEST(ComandosEditor, ObservacionesSoloSinPeriodicidad) {
    for (const int tipo : {0, 1, 2, 3, 4}) {
        SCOPED_TRACE(tipo);
        AbrirSeries();
        PonerSerie("A", {1, 2});
        ArchivoTrabajo.TipoDatos = static_cast<std::int16_t>(tipo);
        for (const ComandoDeEditor &c : ComandosDelEditor(EditorDeSeries)) {
            const bool libre = c.id != 2076 && c.id != 2077;
            EXPECT_EQ(c.habilitado == nullptr || c.habilitado(), libre || tipo == 0) << c.id;
        }
        Clic(CeldaEn(1, 1));
        EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2076));
        EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2077));
        EXPECT_EQ(Prueba.cajas.size(), tipo == 0 ? 1u : 0u);
        EXPECT_EQ(Prueba.dialogos.size(), tipo == 0 ? 1u : 0u);
    }
}

TEST(ComandosEditor, LosDelOtroMenuNoHacenNada) {
    AbrirSeries();
    PonerMatriz("A", {1}, 1, 1);
    PonerCampo(BufferMatriz.Codigo, "A", AnchoCodigo);
    for (const int id : {2009, 2064, 2065, 2011, 2001, 2, 0})
        EXPECT_FALSE(EjecutarComandoEditor(nullptr, id));
    EXPECT_EQ(TablaMatrices.numero, 1);
    EXPECT_EQ(std::string(Recortado(BufferMatriz.Codigo)), "A");
    AbrirMatrices();
    PonerSerie("A", {1});
    for (const int id : {2010, 2008, 2076, 2077, 2074}) EXPECT_FALSE(EjecutarComandoEditor(nullptr, id));
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 1);
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_TRUE(Prueba.dialogos.empty());
}

// ----- Series

TEST(ComandosEditor, Restaurar) {
    AbrirSeries(0, "", true);
    PonerSerie("A", {1});
    PonerSerie("B", {2});
    PonerSerie("C", {3});
    PonerCodigoSerie(1, "");
    PonerCodigoSerie(2, "c");
    EntrarEnEditor({BarraEnFila, 30});
    EntrarEnEditor({BarraEnColumna, 2});
    PonerCodigoSerie(2, "c");
    Prueba.refrescos = 0;
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2010));
    EsperarAlPrincipio(18);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 2);
    EXPECT_EQ(Celda(CeldaEn(3, 0)), "C");
    EXPECT_EQ(Celda(CeldaEn(3, 1)), "3.00");
    EXPECT_EQ(Prueba.refrescos, 1);
}

// A code that is refused: its message, nothing else, and the position as it was. No dialog opens.
TEST(ComandosEditor, UnCodigoMalo) {
    for (const int id : {2010, 2007, 2006, 2076, 2077, 2021}) {
        SCOPED_TRACE(id);
        AbrirSeries();
        ConCodigosRepetidos();
        EXPECT_FALSE(EjecutarComandoEditor(nullptr, id));
        EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{Repetidos}));
        EXPECT_TRUE(Prueba.dialogos.empty());
        EsperarDondeEstaba();
    }
}

TEST(ComandosEditor, BorrarTodasLasSeries) {
    AbrirSeries(0, "", true);
    ConCodigosRepetidos(); // which this command doesn't look at
    PonerCodigoSerie(99, "Z");
    PonerObservacion(3999, 99, 4, 1);
    PonerCampo(ArchivoTrabajo.EtiquetasObs[3999], "Etiqueta", AnchoEtiqueta);
    PonerEscalar(nullptr, "E", 1);
    PonerMatriz("M", {1}, 1, 1);
    MuestraDeSentencia("MUEST 2 3");
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2008));
    EXPECT_TRUE(Prueba.cajas.empty()); // without a question
    EsperarAlPrincipio(18);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
    for (int s = 0; s < MaxSeries; ++s) EXPECT_STREQ(ArchivoTrabajo.Codigos[s], "            ");
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[3999][99], 0.0);
    EXPECT_EQ(ArchivoTrabajo.PresenciaObs[3999][99], 0);
    EXPECT_EQ(ArchivoTrabajo.PresenciaObs[0][0], 0);
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[3999], "            ");
    EXPECT_EQ(TablaEscalares.numero, 1);
    EXPECT_EQ(TablaMatrices.numero, 1);
    EXPECT_EQ(Muestra.AnoInicial, 2);
}

TEST(ComandosEditor, EliminarObservacion) {
    const auto abrir = [] {
        AbrirSeries();
        PonerSerie("A", {});
        PonerSerie("B", {1, 2, 3, 4});
        PonerCodigoSerie(0, ""); // B takes its place
        EntrarEnEditor({DesplazaFilas, 1});
        Clic(CeldaEn(2, 2));
    };
    abrir();
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2076));
    EXPECT_EQ(TextosDeCajas(),
              (std::vector<std::string>{"¿Está seguro de desear eliminar la presente observación?"}));
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[1][0], 2.0);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[2][0], 4.0); // the third was at the cursor
    EsperarAlPrincipio(17);
    abrir();
    Prueba.respuestas = {RespuestaCancelar};
    EjecutarComandoEditor(nullptr, 2076);
    EXPECT_EQ(ArchivoTrabajo.ValoresObs[2][0], 3.0); // closed up all the same
    EXPECT_EQ(Editor.FilaInicial, 1);
    EXPECT_EQ(Editor.CeldaActual, CeldaEn(2, 2));
    EXPECT_EQ(Campo(), "");
    // The head row stands for no observation, not for the one hidden above it either.
    for (const int filaInicial : {0, 1}) {
        abrir();
        EntrarEnEditor({BarraEnFila, filaInicial});
        Clic(CeldaEn(2, 0));
        EjecutarComandoEditor(nullptr, 2076);
        EXPECT_TRUE(Prueba.cajas.empty());
        EXPECT_EQ(ArchivoTrabajo.NumSeries, 1); // the codes were checked all the same
        EXPECT_EQ(ArchivoTrabajo.ValoresObs[0][0], 1.0);
    }
}

TEST(ComandosEditor, LosQueAbrenUnDialogo) {
    struct Caso {
        int id;
        std::pair<int, int> dialogo;
    };
    for (const Caso &c : {Caso{2077, Pedido(Dialogo::OrdenarSeries)}, Caso{2007, Pedido(Dialogo::Decimales)},
                          Caso{2006, Pedido(Dialogo::Seleccion, SeleccionDeSeries)}}) {
        SCOPED_TRACE(c.id);
        AbrirSeries();
        PonerSerie("A", {});
        PonerSerie("B", {1});
        PonerCodigoSerie(0, "");
        EntrarEnEditor({BarraEnFila, 30});
        Clic(60);
        Prueba.enDialogo = [](const DialogoPedido &) {
            EXPECT_EQ(ArchivoTrabajo.NumSeries, 1); // closed up before
            EXPECT_EQ(Editor.FilaInicial, 30);
        };
        EXPECT_FALSE(EjecutarComandoEditor(nullptr, c.id));
        EXPECT_EQ(Pedidos(), (std::vector<std::pair<int, int>>{c.dialogo}));
        EXPECT_TRUE(Prueba.cajas.empty());
        EsperarAlPrincipio(17);
    }
}

// A listing is over the sample as the data are now.
TEST(ComandosEditor, ImprimirPoneAlDiaLaMuestra) {
    AbrirSeries(1, "1990#1999");
    Teclear("A<Enter><Enter><Enter>3<Enter>4<Enter>5<Enter>");
    Prueba.enDialogo = [](const DialogoPedido &) {
        EXPECT_EQ(ArchivoTrabajo.PrimeraObs[0], 2);
        EXPECT_EQ(ArchivoTrabajo.UltimaObs[0], 4);
        EXPECT_EQ(Muestra.InicioMuestra, 2);
        EXPECT_EQ(Muestra.FinMuestra, 4);
    };
    EjecutarComandoEditor(nullptr, 2006);
    EXPECT_EQ(Prueba.dialogos.size(), 1u);
}

TEST(ComandosEditor, Ayuda) {
    const CajaVista lado = {"final peropero", "1234 567", IconoInformacion, BotonesAceptar};
    for (const bool deMatrices : {false, true}) {
        SCOPED_TRACE(deMatrices);
        if (deMatrices) {
            AbrirMatrices();
        } else {
            AbrirSeries();
        }
        RedimensionarEditor(1234, 567);
        EntrarEnEditor({BarraEnFila, 30});
        EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2046));
        EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{lado}));
        EXPECT_EQ(Pedidos(), (std::vector<std::pair<int, int>>{Pedido(Dialogo::Ayuda, 1126)}));
        EsperarAlPrincipio(deMatrices ? 18 : 17);
    }
    AbrirSeries();
    RedimensionarEditor(1234, 567);
    ConCodigosRepetidos();
    EjecutarComandoEditor(nullptr, 2046);
    EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{lado, Repetidos}));
    EXPECT_TRUE(Prueba.dialogos.empty());
    EsperarDondeEstaba();
}

TEST(ComandosEditor, SinEnsamblar) {
    AbrirSeries();
    Clic(60);
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2074));
    EXPECT_EQ(Pedidos(), (std::vector<std::pair<int, int>>{Pedido(Dialogo::NoEnsamblada)}));
    EXPECT_EQ(Editor.CeldaActual, 60);
}

// ----- Leaving

TEST(ComandosEditor, Salir) {
    AbrirSeries(1, "1990#1999");
    Teclear("b<Tab><Tab>a<Enter><Enter>3<Enter>4<Enter>");
    EntrarEnEditor({BarraEnFila, 30});
    Clic(60);
    Teclear("12");
    EXPECT_TRUE(EjecutarComandoEditor(nullptr, 2021));
    EsperarAlPrincipio(17);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 2);
    EXPECT_STREQ(ArchivoTrabajo.Codigos[0], "B           ");
    EXPECT_STREQ(ArchivoTrabajo.Codigos[1], "A           "); // closed up, in capitals
    EXPECT_EQ(ArchivoTrabajo.PrimeraObs[1], 1);
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[1], 2);
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(ComandosEditor, SalirConMasFilasQueLasTablas) {
    for (const int filas : {4000, 4001}) {
        AbrirSeries();
        PonerSerie("A", {1, 2});
        ArchivoTrabajo.UltimaObs[0] = 77;
        ArchivoTrabajo.NumObs = filas;
        EXPECT_TRUE(EjecutarComandoEditor(nullptr, 2021));
        EXPECT_EQ(ArchivoTrabajo.UltimaObs[0], filas == 4000 ? 1 : 77);
    }
}

struct CasoDeSalida {
    const char *codigos[2];
    const char *mensaje;
};

constexpr CasoDeSalida Salidas[] = {
    {{"A", "a"}, nullptr}, // not equal until one is put in capitals: the next command sees it
    {{"A", "A"}, "Códigos repetidos : A           "},
    {{"1A", "B"}, "Primer caracter código no válido1A          "},
    {{"A", "B-C"}, "Código de serie no válido:B-C         "},
    {{"ABCDEFGHI", "B"}, "Código de serie no válido:ABCDEFGHI   "},
    {{"M", "B"}, "Código de serie no válido, igual a matriz:M           "},
    {{"A", "E"}, "Código de serie no válido, igual a escalar:E           "},
    {{"LOG", "B"}, nullptr}, // a reserved word, padded
};

TEST(ComandosEditor, AlSalirSeComprueban) {
    for (const CasoDeSalida &c : Salidas) {
        SCOPED_TRACE(c.codigos[0]);
        AbrirSeries();
        PonerMatriz("M", {1}, 1, 1);
        PonerEscalar(nullptr, "E", 1);
        PonerCodigoSerie(0, c.codigos[0]);
        PonerCodigoSerie(1, c.codigos[1]);
        Clic(60);
        EXPECT_EQ(EjecutarComandoEditor(nullptr, 2021), c.mensaje == nullptr);
        EXPECT_EQ(TextosDeCajas(),
                  c.mensaje == nullptr ? std::vector<std::string>{} : std::vector<std::string>{c.mensaje});
        EXPECT_EQ(Editor.CeldaActual, c.mensaje == nullptr ? 17 : 60);
    }
}

// ----- Matrices

TEST(ComandosEditor, DeMatrices) {
    AbrirMatrices();
    Teclear("A<Enter>5<Enter>");
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2009));
    EXPECT_EQ(BuscarMatriz("A"), 0);
    Teclear("A<Enter>");
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2011));
    EXPECT_EQ(BufferMatriz.datos[0], 5.0);
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2065));
    EXPECT_EQ(BufferMatriz.presencia[0], 0);
    EXPECT_EQ(BuscarMatriz("A"), 0);
    Teclear("A<Enter>");
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2064));
    EXPECT_EQ(BuscarMatriz("A"), -1);
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(ComandosEditor, DecimalesDeMatriz) {
    AbrirMatrices();
    PonerCampo(BufferMatriz.Codigo, "  a-b", AnchoCodigo);
    EntrarEnEditor({BarraEnFila, 30});
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2007));
    EXPECT_STREQ(BufferMatriz.Codigo, "a-b         "); // read without a test
    EXPECT_EQ(Pedidos(), (std::vector<std::pair<int, int>>{Pedido(Dialogo::Decimales)}));
    EXPECT_TRUE(Prueba.cajas.empty());
    EsperarAlPrincipio(18);
}

TEST(ComandosEditor, ImprimirMatrices) {
    AbrirMatrices();
    PonerSerie("A", {1});
    PonerCodigoSerie(0, "1"); // not looked at here
    EntrarEnEditor({BarraEnFila, 30});
    Clic(60);
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2006));
    EXPECT_EQ(Pedidos(), (std::vector<std::pair<int, int>>{Pedido(Dialogo::Seleccion, SeleccionDeMatrices)}));
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(Editor.CeldaActual, 60);
    EXPECT_EQ(Editor.FilaInicial, 30);
}

TEST(ComandosEditor, SalirDeMatricesPierdeLoTecleado) {
    AbrirMatrices();
    Teclear("A<Enter>5<Enter>");
    EXPECT_TRUE(EjecutarComandoEditor(nullptr, 2021));
    EXPECT_EQ(BufferMatriz.presencia[0], 0);
    EXPECT_EQ(TablaMatrices.numero, 0);
    EXPECT_TRUE(Prueba.cajas.empty());
    // Codes of the series that don't do keep the editor open; the area is cleared by then.
    AbrirMatrices();
    PonerSerie("A", {1});
    PonerCodigoSerie(1, "A");
    Teclear("B<Enter>5<Enter>");
    EXPECT_FALSE(EjecutarComandoEditor(nullptr, 2021));
    EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{Repetidos}));
    EXPECT_EQ(BufferMatriz.presencia[0], 0);
}
