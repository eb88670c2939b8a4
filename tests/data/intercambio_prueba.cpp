// The dialogs in front of the transfer, and the transfer with its file: order of the tests, messages, cursor.
#include "data/ascii_apoyo.h"
#include "language/lote_sentencias.h"
#include "platform/archivos.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Boxes and cursors in the order in which they came: "espera", "flecha", "caja: text".
std::vector<std::string> Sucesos;
OperacionesPlataforma Anterior, Vigilada;

void VigilarPlataforma() {
    Sucesos.clear();
    Anterior = Vigilada = Plataforma();
    Vigilada.cursor = [](Cursor c) { Sucesos.emplace_back(c == CursorEspera ? "espera" : "flecha"); };
    Vigilada.caja = [](Ventana *v, std::string_view texto, std::string_view titulo, Icono i, Botones b) {
        Sucesos.push_back("caja: " + Utf8De1252(texto));
        return Anterior.caja(v, texto, titulo, i, b);
    };
    InstalarPlataforma(Vigilada);
}

using Lista = std::vector<std::string>;

std::string Contenido(const std::string &ruta) {
    std::string r;
    return LeerArchivo(ruta, r) ? r : "<none>";
}

// ---------------------------------------------------------------------------------------------------------------

struct CasoEmpezar {
    int tipo;
    bool importando;
    int series;
    Respuesta respuesta;
    bool sigue;
    int sustituir;
    Lista cajas;
};

const CasoEmpezar Comienzos[] = {
    {SinTipoDatos, true, 1, RespuestaSi, false, 0, {"Tipo de datos no válidos"}},
    {SinTipoDatos, false, 0, RespuestaSi, false, 0, {"Tipo de datos no válidos"}},
    {5, false, 0, RespuestaSi, true, 0, {}},
    {TipoAnual, true, 0, RespuestaSi, true, 0, {}},
    {TipoAnual, false, 1, RespuestaSi, true, 0, {}},
    {TipoAnual, true, 1, RespuestaSi, true, 1, {"Existen Series ¿Desea sustituirlas?"}},
    {TipoAnual, true, 1, RespuestaNo, true, 0, {"Existen Series ¿Desea sustituirlas?"}},
    {TipoAnual, true, 1, RespuestaCancelar, false, 0, {"Existen Series ¿Desea sustituirlas?"}},
};

TEST(Intercambio, Empezar) {
    for (const CasoEmpezar &caso : Comienzos) {
        SCOPED_TRACE(&caso - Comienzos);
        PrepararAscii(caso.tipo, 4);
        ArchivoTrabajo.NumSeries = static_cast<std::uint16_t>(caso.series);
        Prueba.respuestas = {caso.respuesta};
        OpcionesIntercambio o;
        o.PrimerRegistroCodigos = o.FormatoElegido = 1;
        EXPECT_EQ(EmpezarIntercambio(nullptr, caso.importando, o), caso.sigue);
        EXPECT_EQ(TextosDeCajas(), caso.cajas);
        if (!caso.sigue) continue;
        EXPECT_EQ(o.Importando, caso.importando ? 1 : 0);
        EXPECT_EQ(o.SustituirSeries, caso.sustituir);
        EXPECT_EQ(o.PrimerRegistroCodigos + o.FormatoElegido + o.ModoEtiquetas + o.Aceptado, 0);
        EXPECT_EQ(o.SoloEtiquetas, 1);
    }
}

TEST(Intercambio, CajasDelComienzo) {
    PrepararAscii(SinTipoDatos, 4);
    OpcionesIntercambio o;
    EmpezarIntercambio(nullptr, true, o);
    ArchivoTrabajo.TipoDatos = TipoAnual;
    ArchivoTrabajo.NumSeries = 1;
    EmpezarIntercambio(nullptr, true, o);
    ASSERT_EQ(Prueba.cajas.size(), 2u);
    EXPECT_EQ(Prueba.cajas[0],
              (CajaVista{"Proceso cancelado", "Tipo de datos no válidos", IconoInformacion, BotonesAceptar}));
    EXPECT_EQ(Prueba.cajas[1], (CajaVista{"Aviso", "Existen Series ¿Desea sustituirlas?", IconoPregunta,
                                          BotonesSiNoCancelar}));
}

struct CasoVariable {
    int tipo;
    ValoresFormatoVariable valores;
    OpcionesIntercambio o; // Separador to CamposPanel count
};

TEST(Intercambio, FormatoVariable) {
    const auto opciones = [](char separador, char delimitador) {
        OpcionesIntercambio o;
        o.Separador = separador;
        o.Delimitador = delimitador;
        return o;
    };
    const auto modo = [](int m, int panel) {
        OpcionesIntercambio o;
        o.ModoEtiquetas = m;
        o.CamposPanel = panel;
        return o;
    };
    OpcionesIntercambio todas;
    todas.SoloEtiquetas = 0;
    todas.PrimerRegistroCodigos = todas.DecimalesConComas = 1;
    const CasoVariable Casos[] = {
        {TipoAnual, {}, opciones(',', '"')},
        {TipoAnual, {.separador = SeparadorTabuladores, .otroSeparador = ";"}, opciones('\t', '"')},
        {TipoAnual, {.separador = SeparadorOtros, .otroSeparador = ";,"}, opciones(';', '"')},
        {TipoAnual, {.separador = SeparadorOtros, .otroSeparador = "  ;"}, opciones(';', '"')},
        {TipoAnual, {.separador = SeparadorOtros, .otroSeparador = "   ;"}, opciones(' ', '"')}, // 3 are read
        {TipoAnual, {.separador = SeparadorOtros}, opciones(' ', '"')},
        {TipoAnual, {.separador = SeparadorOtros, .otroSeparador = "\t"}, opciones(' ', '"')},
        {TipoAnual, {.separador = SeparadorOtros, .otroSeparador = "\xA7"}, opciones('\xA7', '"')},
        {TipoAnual, {.delimitador = DelimitadorNada, .otroDelimitador = "'"}, opciones(',', '\0')},
        {TipoAnual, {.delimitador = DelimitadorOtros, .otroDelimitador = " '"}, opciones(',', '\'')},
        {TipoAnual, {.delimitador = DelimitadorOtros}, opciones(',', '\0')},
        {TipoAnual, {.delimitador = DelimitadorOtros, .otroDelimitador = "   "}, opciones(',', '\0')},
        {TipoAnual,
         {.delimitadasSoloEtiquetas = false, .primerRegistroCodigos = true, .decimalesConComas = true},
         todas},
        {TipoAnual, {.primerCampoEtiquetas = true}, modo(1, 0)},
        {TipoAnual, {.camposPanel = true, .tercerCampoEtiquetas = true}, modo(0, 0)},
        {TipoPanel, {.camposPanel = true}, modo(0, 1)},
        {TipoPanel, {.tercerCampoEtiquetas = true}, modo(2, 0)},
        {TipoPanel,
         {.primerCampoEtiquetas = true, .camposPanel = true, .tercerCampoEtiquetas = true},
         modo(2, 1)},
    };
    for (const CasoVariable &caso : Casos) {
        SCOPED_TRACE(&caso - Casos);
        PrepararAscii(caso.tipo, 4);
        OpcionesIntercambio o;
        o.ModoEtiquetas = 2; // of a dialog accepted before
        AceptarFormatoVariable(caso.valores, o);
        EXPECT_EQ(o.Separador, caso.o.Separador);
        EXPECT_EQ(o.Delimitador, caso.o.Delimitador);
        EXPECT_EQ(o.SoloEtiquetas, caso.o.SoloEtiquetas);
        EXPECT_EQ(o.PrimerRegistroCodigos, caso.o.PrimerRegistroCodigos);
        EXPECT_EQ(o.ModoEtiquetas, caso.o.ModoEtiquetas);
        EXPECT_EQ(o.DecimalesConComas, caso.o.DecimalesConComas);
        EXPECT_EQ(o.CamposPanel, caso.o.CamposPanel);
        EXPECT_EQ(o.FormatoElegido, 1);
        EXPECT_EQ(o.FormatoVariable, 1);
    }
}

TEST(Intercambio, ElUltimoDialogoDecide) {
    PrepararAscii(TipoSinPeriodicidad, 4);
    OpcionesIntercambio o = Variable({});
    ASSERT_TRUE(AnadirFilas(true, {"N/1/1/X"}));
    ASSERT_TRUE(AceptarFormatoFijo(nullptr, false, o));
    EXPECT_EQ(o.FormatoVariable, 0);
    AceptarFormatoVariable({}, o);
    EXPECT_EQ(o.FormatoVariable, 1);
}

struct CasoNombre {
    const char *nombre;
    const char *ajustado; // null: refused
};

const CasoNombre Nombres[] = {
    {"datos", "datos.TXT"},
    {"datos.csv", "datos.csv"},
    {"datos.", "datos."},
    {"carpeta.d/datos", "carpeta.d/datos"}, // the "." of a folder counts
    {"carpeta/datos", "carpeta/datos.TXT"},
    {"España/peñón", "España/peñón.TXT"},
    {ArchivoSinElegir, nullptr},
    {"que?.txt", nullptr},
    {"mis-datos.txt", nullptr},
    {"una-carpeta/datos.txt", nullptr},
    {"-", nullptr},
    {"", nullptr},
};

TEST(Intercambio, NombreDeArchivo) {
    for (const CasoNombre &caso : Nombres) {
        SCOPED_TRACE(caso.nombre);
        std::string nombre = caso.nombre;
        EXPECT_EQ(AjustarNombreArchivo(nombre), caso.ajustado != nullptr);
        if (caso.ajustado != nullptr) {
            EXPECT_EQ(nombre, caso.ajustado);
        }
    }
}

// ---------------------------------------------------------------------------------------------------------------
// The transfer. Each case: the cursor and box events, the result, and DecimalesSalida (2 before, 5 from the dialog).

const Lista Bien = {"espera", "flecha"};

Lista ConCaja(const std::string &texto) {
    return {"espera", "flecha", "caja: " + texto, "espera", "flecha"};
}

struct Transferencia : testing::Test {
    void SetUp() override {
        EntrarEnCarpeta();
        PrepararAscii(TipoSinPeriodicidad, 3);
        Lote.DecimalesSalida = 2;
        PonerSerie("X", {1, 2, 3});
        VigilarPlataforma();
    }
    void TearDown() override { SalirDeCarpeta(); }
};

TEST_F(Transferencia, SinFormato) {
    OpcionesIntercambio o;
    EXPECT_FALSE(IntercambioAscii(nullptr, o, ArchivoSinElegir, 5)); // the format comes before the name
    EXPECT_EQ(Sucesos, ConCaja("Opciones no válidas"));
    EXPECT_EQ(Prueba.cajas[0].titulo, "Proceso cancelado");
    EXPECT_EQ(o.Aceptado, 1);
    EXPECT_EQ(Lote.DecimalesSalida, 2);
}

TEST_F(Transferencia, NombreIncorrecto) {
    OpcionesIntercambio o = Variable({});
    EXPECT_FALSE(IntercambioAscii(nullptr, o, ArchivoSinElegir, 5));
    EXPECT_EQ(Sucesos, ConCaja("Nombre archivo incorrecto"));
    EXPECT_EQ(Prueba.cajas[0].titulo, "Proceso cancelado");
    EXPECT_EQ(Lote.DecimalesSalida, 2);
}

TEST_F(Transferencia, ImportarSinArchivo) {
    OpcionesIntercambio o = Variable({});
    o.SustituirSeries = 1;
    EXPECT_FALSE(IntercambioAscii(nullptr, o, "no_existe.csv", 5));
    EXPECT_EQ(Sucesos, ConCaja("Error al abrir el archivo"));
    EXPECT_EQ(Prueba.cajas[0].titulo, "Proceso cancelado");
    EXPECT_EQ(VolcadoSeries(3), "X: 1 2 3") << "the series are not yet touched";
    EXPECT_EQ(Lote.DecimalesSalida, 5) << "it changes as soon as the transfer begins";
    EXPECT_FALSE(IntercambioAscii(nullptr, o, ".", 5)) << "a folder is no file";
}

TEST_F(Transferencia, Importar) {
    ASSERT_TRUE(EscribirArchivo("utf8.csv", "\xEF\xBB\xBF"
                                            "Año,Y\n1,2\n"));
    ASSERT_TRUE(EscribirArchivo("w1252.csv", Texto1252DeUtf8("Año,Y\n1,2\n")));
    for (const char *nombre : {"utf8.csv", "w1252.csv"}) {
        SCOPED_TRACE(nombre);
        Sucesos.clear();
        OpcionesIntercambio o = Variable({.primerRegistroCodigos = true});
        o.SustituirSeries = 1;
        EXPECT_TRUE(IntercambioAscii(nullptr, o, nombre, 5));
        EXPECT_EQ(Sucesos, Bien);
        EXPECT_EQ(VolcadoSeries(3), "Año: 1 . . / Y: 2 . .");
    }
}

TEST_F(Transferencia, Exportar) {
    PonerCodigoSerie(0, Texto1252DeUtf8("AÑO"));
    OpcionesIntercambio o = Variable({.primerRegistroCodigos = true}, false);
    EXPECT_TRUE(IntercambioAscii(nullptr, o, "salida.csv", 3));
    EXPECT_EQ(Sucesos, Bien);
    EXPECT_EQ(Contenido("salida.csv"), "      " + Texto1252DeUtf8("AÑO") + "          \n" +
                                           "1.000              \n2.000              \n3.000              \n")
        << "one byte a character";
    EXPECT_EQ(Lote.DecimalesSalida, 3);
}

TEST_F(Transferencia, ExportarPoneExtension) {
    OpcionesIntercambio o = Variable({}, false);
    EXPECT_TRUE(IntercambioAscii(nullptr, o, "salida", 2));
    EXPECT_EQ(Contenido("salida.TXT").substr(0, 4), "1.00");
}

TEST_F(Transferencia, ArchivoQueExiste) {
    const std::string ruta = "salida.csv";
    struct {
        Respuesta respuesta;
        bool hecho;
        const char *principio;
    } static const Casos[] = {{RespuestaCancelar, false, "viejo"}, {RespuestaAceptar, true, "1.00 "}};
    for (const auto &caso : Casos) {
        SCOPED_TRACE(caso.respuesta);
        ASSERT_TRUE(EscribirArchivo(ruta, "viejo"));
        Sucesos.clear();
        Prueba.cajas.clear();
        Prueba.respuestas = {caso.respuesta};
        OpcionesIntercambio o = Variable({}, false);
        EXPECT_EQ(IntercambioAscii(nullptr, o, ruta, 2), caso.hecho);
        EXPECT_EQ(Sucesos, ConCaja("El archivo ya existe ¿Sobreescribir?"));
        EXPECT_EQ(Prueba.cajas[0], (CajaVista{"Aviso", "El archivo ya existe ¿Sobreescribir?", IconoAlto,
                                              BotonesAceptarCancelar}));
        EXPECT_EQ(Contenido(ruta).substr(0, 5), caso.principio);
    }
}

TEST_F(Transferencia, ExportarDondeNoSePuede) {
    OpcionesIntercambio o = Variable({}, false);
    EXPECT_FALSE(IntercambioAscii(nullptr, o, "no/hay/salida.csv", 5));
    EXPECT_EQ(Sucesos, ConCaja("Error al abrir el archivo"));
    EXPECT_EQ(Lote.DecimalesSalida, 5);
}

// A binary file, 100,000 lines, 4,000 by 99 values: nothing falls over, and it doesn't take long.
TEST_F(Transferencia, ArchivosDesmedidos) {
    std::string binario, lineas, todo;
    for (unsigned i = 0; i < 300000; ++i) binario += static_cast<char>((i * 7919u + i / 251u) & 0xFFu);
    for (int i = 0; i < 100000; ++i) lineas += "1,2,3\n";
    for (int i = 0; i < 4000; ++i)
        for (int s = 0; s < 99; ++s) todo += Formatear("%d.%d%c", i, s, s == 98 ? '\n' : ',');
    ArchivoTrabajo.NumObs = MaxObservaciones;
    Muestra.FinMuestra = MaxObservaciones - 1;
    for (const std::string *contenido : {&binario, &lineas, &todo}) {
        ASSERT_TRUE(EscribirArchivo("grande.csv", *contenido));
        for (const bool fijo : {false, true}) {
            OpcionesIntercambio o =
                fijo ? Fijo({"N/1/3/A", "N/2/900/B"}) : Variable({.primerRegistroCodigos = true});
            o.SustituirSeries = 1;
            EXPECT_TRUE(IntercambioAscii(nullptr, o, "grande.csv", 2));
            EXPECT_LE(ArchivoTrabajo.NumSeries, MaxSeries);
        }
    }
    OpcionesIntercambio o = Variable({});
    o.SustituirSeries = 1;
    EXPECT_TRUE(IntercambioAscii(nullptr, o, "grande.csv", 2));
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 99);
    EXPECT_DOUBLE_EQ(ArchivoTrabajo.ValoresObs[3999][98], 3999.98);
    EXPECT_EQ(ArchivoTrabajo.UltimaObs[98], 3999);
}

} // namespace
