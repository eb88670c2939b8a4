// Editing of panel data: the private copy, its lists with their checks, and the acceptance.
#include "apoyo/plataforma_prueba.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/panel.h"
#include "store/tipos_datos.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr const char *AnoMinimo = "Año mínimo no válido";
constexpr const char *AnoMaximo = "Año máximo no válido";
constexpr const char *Excesivo = "Año máximo excesivamente grande";

std::string IntervaloActual() {
    return std::string(Recortado(ArchivoTrabajo.TextoIntervalo, RecorteDerecha));
}

std::vector<std::string> Filas() {
    std::vector<std::string> r;
    for (int i = 0; i < ArchivoTrabajo.NumObs; ++i) r.emplace_back(TextoPeriodo(i));
    return r;
}

// The one box of the test so far.
void EsperarAviso(const char *texto, const char *titulo = "Aviso") {
    const CajaVista caja{titulo, texto, IconoInformacion, BotonesAceptar};
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{caja});
    Prueba.cajas.clear();
}

PropuestaTipoDatos PropuestaPanel() {
    PropuestaTipoDatos p;
    p.nombre = "PANEL";
    p.tipo = TipoPanel;
    return p;
}

TEST(PanelPorPeriodos, MensajesEnSuOrden) {
    struct Caso {
        const char *periodo, *individuos, *mensaje;
    };
    constexpr Caso Casos[] = {
        {"1990", "0", "Individuos ha de ser mayor de cero"},
        {"1990", "-3", "Individuos ha de ser mayor de cero"},
        {"900", "", "Individuos ha de ser mayor de cero"},
        {"999", "1", "Período ha de ser mayor de mil"},
        {"", "1", "Período ha de ser mayor de mil"},
        {"999.9", "1", "Período ha de ser mayor de mil"},
        {"1000", "1", nullptr},
    };
    for (const Caso &c : Casos) {
        SCOPED_TRACE(c.periodo);
        EmpezarPrueba();
        ElegirFormaPanel(PanelVariable, PeriodoPrimero);
        EXPECT_EQ(AnadirPeriodoPanel(nullptr, c.periodo, c.individuos), c.mensaje == nullptr ? 1 : 0);
        EXPECT_EQ(EdicionPanel.panel.NumEntradas, c.mensaje == nullptr ? 1 : 0);
        if (c.mensaje != nullptr) EsperarAviso(c.mensaje);
    }
}

TEST(PanelPorPeriodos, LaListaSeOrdenaPorSuNumero) {
    EmpezarPrueba();
    ElegirFormaPanel(PanelVariable, PeriodoPrimero);
    for (const char *p : {"1995", "1990.2", "10000", "1990.1"})
        EXPECT_EQ(AnadirPeriodoPanel(nullptr, p, "2"), 1);
    const auto textos = [] {
        std::vector<std::string> r;
        for (int e = 0; e < EdicionPanel.panel.NumEntradas; ++e)
            r.emplace_back(EdicionPanel.panel.periodos[e].periodo);
        return r;
    };
    EXPECT_EQ(textos(), (std::vector<std::string>{"1990.1", "1990.2", "1995", "10000"}));
    QuitarPeriodoPanel(1);
    EXPECT_EQ(textos(), (std::vector<std::string>{"1990.1", "1995", "10000"}));
    QuitarPeriodoPanel(3); // nothing selected
    QuitarPeriodoPanel(-1);
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 3);
    EXPECT_EQ(AnadirPeriodoPanel(nullptr, "1234567890123456", "1"), 1); // cut to its field
    EXPECT_EQ(textos().back(), "12345678901");
}

TEST(PanelPorPeriodos, LaListaAcabaEn3999) {
    EmpezarPrueba();
    ElegirFormaPanel(PanelVariable, PeriodoPrimero);
    for (int k = 0; k < 3999; ++k) ASSERT_EQ(AnadirPeriodoPanel(nullptr, Formatear("%d", 1000 + k), "1"), 1);
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(AnadirPeriodoPanel(nullptr, "9000", "1"), 0);
    EsperarAviso("No se pueden introducir más periodos");
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 3999);
    EXPECT_EQ(AnadirPeriodoPanel(nullptr, "900", "1"), 0); // the period is looked at before the room
    EsperarAviso("Período ha de ser mayor de mil");
}

TEST(PanelPorIndividuos, ListaDeIndividuosYDeSusPeriodos) {
    EmpezarPrueba();
    ElegirFormaPanel(PanelVariable, IndividuoPrimero);
    EXPECT_EQ(AnadirIndividuoPanel(nullptr, "7"), 0);
    EXPECT_EQ(AnadirIndividuoPanel(nullptr, "3"), 0); // sorted by order number
    EXPECT_EQ(AnadirIndividuoPanel(nullptr, "9"), 2);
    EXPECT_EQ(AnadirIndividuoPanel(nullptr, "7"), 1); // it is there already
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 3);
    EXPECT_EQ(AnadirIndividuoPanel(nullptr, "0"), -1);
    EsperarAviso("Individuos ha de ser mayor de cero");
    for (const char *p : {"1992", "1990", "1991"}) EXPECT_EQ(AnadirPeriodoIndividuo(nullptr, 1, p), 1);
    EXPECT_EQ(AnadirPeriodoIndividuo(nullptr, 1, "999"), 0);
    EsperarAviso("Período ha de ser mayor de 1000");
    const EntradaIndividuoPanel &siete = EdicionPanel.panel.individuos[1];
    EXPECT_EQ(siete.orden, 7);
    ASSERT_EQ(siete.numPeriodos, 3);
    EXPECT_STREQ(siete.periodos[0], "1990");
    EXPECT_STREQ(siete.periodos[2], "1992");
    QuitarPeriodoIndividuo(1, 0);
    QuitarPeriodoIndividuo(1, 5);
    QuitarPeriodoIndividuo(8, 0);
    ASSERT_EQ(siete.numPeriodos, 2);
    EXPECT_STREQ(siete.periodos[0], "1991");
    QuitarIndividuoPanel(0);
    EXPECT_EQ(EdicionPanel.panel.individuos[0].orden, 7);
    EXPECT_EQ(EdicionPanel.panel.individuos[0].numPeriodos, 2);
    EXPECT_EQ(AnadirPeriodoIndividuo(nullptr, 50, "1990"), 0);
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST(PanelPorIndividuos, Limites) {
    EmpezarPrueba();
    ElegirFormaPanel(PanelVariable, IndividuoPrimero);
    for (int k = 1; k <= 50; ++k) ASSERT_EQ(AnadirIndividuoPanel(nullptr, Formatear("%d", k)), k - 1);
    EXPECT_EQ(AnadirIndividuoPanel(nullptr, "51"), -1);
    EsperarAviso("No se pueden introducir más periodos");
    for (int k = 0; k < 25; ++k) ASSERT_EQ(AnadirPeriodoIndividuo(nullptr, 49, Formatear("%d", 2000 - k)), 1);
    EXPECT_EQ(AnadirPeriodoIndividuo(nullptr, 49, "1990"), 0);
    EsperarAviso("No se pueden introducir más periodos");
    EXPECT_STREQ(EdicionPanel.panel.individuos[49].periodos[0], "1976");
}

TEST(PanelEtiquetas, LineasYCambios) {
    struct Caso {
        const char *orden, *texto;
        int resultado;
    };
    const Caso Casos[] = {
        {"1", "Pe\xF1\xF3n", 1}, {"50", "Una etiqueta larga", 1}, {"0", "x", 0}, {"51", "x", 0}, {"", "x", 0},
        {"99999999999", "x", 0}};
    EmpezarPrueba();
    for (const Caso &c : Casos) {
        SCOPED_TRACE(c.orden);
        EXPECT_EQ(PonerEtiquetaIndividuo(nullptr, c.orden, c.texto), c.resultado);
        if (c.resultado == 0) EsperarAviso("Orden de individúo no correcto");
    }
    EXPECT_EQ(Utf8De1252(LineaEtiqueta(0)), " 1---\"Peñón       \"");
    EXPECT_EQ(LineaEtiqueta(1), " 2---\"            \"");
    EXPECT_EQ(LineaEtiqueta(49), "50---\"Una etiqueta\"");
    EXPECT_EQ(LineaEtiqueta(50), "");
    EXPECT_EQ(SacarEtiquetaIndividuo(49), "Una etiqueta");
    EXPECT_EQ(LineaEtiqueta(49), "50---\"            \"");
    EXPECT_EQ(SacarEtiquetaIndividuo(50), "");
}

// ---------------------------------------------------------------------------------------------------------------
// The constant form

struct CasoConstante {
    const char *individuos;
    int periodicidad;
    const char *inicio, *fin;
    const char *mensaje; // null: accepted
    const char *intervalo;
    int filas;
};

constexpr CasoConstante Constantes[] = {
    {"3", TipoAnual, "1990", "1991", nullptr, "1990#1991", 6},
    {"3", TipoAnual, "1991", "1990", nullptr, "1991#1992", 6}, // accepted: first plus 1
    {"3", TipoAnual, "1990", "1990", nullptr, "1990#1990", 3},
    {"3", TipoAnual, "", "1990", nullptr, "2001#2002", 6},
    {"3", TipoAnual, "", "", nullptr, "2001#3333", 3999},          // 2001 - 1 + 3999/3
    {"4", TipoTrimestral, "", "", nullptr, "2001.1#2250.4", 4000}, // 2001 - 1 + 4000/16
    {"4", TipoTrimestral, "", "2005.2", nullptr, "2001.1#2005.2", 72},
    {"4", TipoTrimestral, "1990.2", "1990.3", nullptr, "1990.2#1990.3", 8},
    {"5", TipoMensual, "1990", "", nullptr, "1990. 1#2055.12", 3960}, // 1990 - 1 + 4000/60
    {"5000", TipoAnual, "1990", "", nullptr, "1990#1991", 4000},
    {"3", TipoAnual, "1899", "1991", AnoMinimo, nullptr, 0},
    {"3", TipoAnual, "1990", "1800", AnoMaximo, nullptr, 0}, // no check of the range before it
    {"3", TipoAnual, "1990", "5990", Excesivo, nullptr, 0},
    {"3", TipoTrimestral, "1990.5", "1991.1", "Trimestre mínimo no válido", nullptr, 0},
    {"3", TipoTrimestral, "1990.1", "1991.5", "Trimestre máximo no válido", nullptr, 0},
    {"3", TipoMensual, "1990.13", "1991.1", "Mes mínimo no válido", nullptr, 0},
    {"3", TipoMensual, "1990.1", "1991.13", "Mes máximo no válido", nullptr, 0},
    {"0", TipoAnual, "1990", "1991", "Introduzca datos", nullptr, 0},
    {"-1", TipoAnual, "1990", "1991", "Introduzca datos", nullptr, 0},
    {"", TipoAnual, "1990", "1991", "Introduzca datos", nullptr, 0},
};

TEST(PanelConstante, CadaPropuesta) {
    for (const CasoConstante &c : Constantes) {
        SCOPED_TRACE(Formatear("%s, %d, \"%s\" a \"%s\"", c.individuos, c.periodicidad, c.inicio, c.fin));
        EmpezarConDatos(TipoAnual, "1970#1979");
        PropuestaTipoDatos p = PropuestaPanel();
        p.individuos = c.individuos;
        p.tipoPeriodo = c.periodicidad;
        p.inicio = c.inicio;
        p.fin = c.fin;
        EXPECT_EQ(AceptarTipoDatos(nullptr, p), c.mensaje == nullptr ? 1 : 0);
        if (c.mensaje != nullptr) {
            // What a panel lacks is a warning; the checks of its periods cancel.
            EsperarAviso(c.mensaje,
                         std::string_view(c.mensaje) == "Introduzca datos" ? "Aviso" : "Proceso cancelado");
            EXPECT_EQ(IntervaloActual(), "1970#1979");
            EXPECT_EQ(ArchivoTrabajo.TipoDatos, TipoAnual);
            EXPECT_EQ(DescripcionPanel.NumEntradas, 0);
            continue;
        }
        EXPECT_TRUE(Prueba.cajas.empty());
        EXPECT_EQ(ArchivoTrabajo.TipoDatos, TipoPanel);
        EXPECT_EQ(IntervaloActual(), c.intervalo);
        EXPECT_EQ(ArchivoTrabajo.NumObs, c.filas);
    }
}

// ---------------------------------------------------------------------------------------------------------------
// Acceptance and the private copy

TEST(Panel, SinDatos) {
    EmpezarConDatos(TipoAnual, "1970#1979");
    PropuestaTipoDatos p = PropuestaPanel();
    AbrirEdicionPanel();
    EXPECT_EQ(AceptarDialogoDelTipo(nullptr, p), 0);
    EsperarAviso("Introduzca datos");
    ElegirFormaPanel(PanelVariable, IndividuoPrimero);
    AnadirIndividuoPanel(nullptr, "1"); // without periods it makes no row
    EXPECT_EQ(AceptarDialogoDelTipo(nullptr, p), 0);
    EsperarAviso("Introduzca datos");
    EXPECT_EQ(DescripcionPanel.FormaPanel, PanelConstante);
    AnadirPeriodoIndividuo(nullptr, 0, "1990");
    EXPECT_EQ(AceptarDialogoDelTipo(nullptr, p), 1);
    EXPECT_EQ(Filas(), std::vector<std::string>{"1-1990"});
    EXPECT_EQ(DescripcionPanel.FormaPanel, PanelVariable);
}

TEST(Panel, CancelarDejaLaDescripcionYLaCopia) {
    EmpezarPrueba();
    AbrirEdicionPanel();
    ASSERT_EQ(AceptarPanelConstante(nullptr, "2", TipoAnual, "1990", "1991"), 1);
    ASSERT_EQ(AceptarDialogoDelTipo(nullptr, PropuestaPanel()), 1);
    EXPECT_EQ(DescripcionPanel.NumEntradas, 2);
    // A second dialog is cancelled: the description stays, and the copy keeps what was typed.
    AbrirEdicionPanel();
    EXPECT_FALSE(EdicionPanel.cambiada);
    AceptarPanelConstante(nullptr, "5", TipoAnual, "1990", "1991");
    EXPECT_EQ(DescripcionPanel.NumEntradas, 2);
    AbrirEdicionPanel();
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 5);
    // A third one leaves it in another form: at the next opening the copy is cleared.
    ElegirFormaPanel(PanelVariable, PeriodoPrimero);
    AnadirPeriodoPanel(nullptr, "1990", "1");
    AbrirEdicionPanel();
    EXPECT_EQ(EdicionPanel.panel.FormaPanel, PanelConstante);
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 0);
    EXPECT_EQ(EdicionPanel.panel.periodos[0].individuos, 0);
}

TEST(Panel, AceptarSinCambiosConservaElPanel) {
    EmpezarPrueba();
    ASSERT_EQ(AceptarPanelConstante(nullptr, "2", TipoTrimestral, "1990.2", "1991.3"), 1);
    ASSERT_EQ(AceptarDialogoDelTipo(nullptr, PropuestaPanel()), 1);
    const std::vector<std::string> filas = Filas();
    EXPECT_EQ(filas.size(), 12u);
    PonerSerie("A", {1, 2});
    AbrirEdicionPanel();
    ASSERT_EQ(AceptarDialogoDelTipo(nullptr, PropuestaPanel()), 1);
    EXPECT_EQ(Filas(), filas);
    EXPECT_EQ(IntervaloActual(), "1990.2#1991.3");
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
}

TEST(Panel, OtraFormaVaciaLaListaYConservaLasEtiquetas) {
    EmpezarPrueba();
    AceptarPanelConstante(nullptr, "2", TipoAnual, "1990", "1991");
    PonerEtiquetaIndividuo(nullptr, "1", "Uno");
    ElegirFormaPanel(PanelConstante, IndividuoPrimero); // the order alone loses nothing
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 2);
    ElegirFormaPanel(PanelVariable, IndividuoPrimero);
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 0);
    AnadirIndividuoPanel(nullptr, "4");
    ElegirFormaPanel(PanelVariable, IndividuoPrimero);
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 1);
    ElegirFormaPanel(PanelVariable, PeriodoPrimero);
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 0);
    EXPECT_EQ(EdicionPanel.panel.individuos[0].orden, 0);
    EXPECT_EQ(SacarEtiquetaIndividuo(0), "Uno");
}

TEST(Panel, EtiquetasEnLasFilas) {
    EmpezarPrueba();
    AceptarPanelConstante(nullptr, "2", TipoAnual, "1990", "1991");
    PonerEtiquetaIndividuo(nullptr, "2", "Dos");
    PropuestaTipoDatos p = PropuestaPanel();
    p.etiquetas = true;
    ASSERT_EQ(AceptarDialogoDelTipo(nullptr, p), 1);
    EXPECT_EQ(ArchivoTrabajo.ConEtiquetas, 1);
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[0], "            ");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[1], "Dos         ");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[3], "Dos         ");
    EXPECT_STREQ(ArchivoTrabajo.EtiquetasObs[4], "            ");
}

TEST(Panel, UnaDescripcionDanadaSeEditaSinSalirseDeSusListas) {
    EmpezarPrueba();
    DescripcionPanel.NumEntradas = 2147483647;
    DescripcionPanel.FormaPanel = PanelVariable;
    DescripcionPanel.PrimerConcepto = IndividuoPrimero;
    DescripcionPanel.individuos[0].numPeriodos = 1000;
    std::fill_n(DescripcionPanel.individuos[0].periodos[0], sizeof DescripcionPanel.individuos[0].periodos,
                '7');
    EdicionPanel.panel.FormaPanel = PanelVariable;
    EdicionPanel.panel.PrimerConcepto = IndividuoPrimero;
    AbrirEdicionPanel();
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 50);
    EXPECT_EQ(AnadirPeriodoIndividuo(nullptr, 0, "1990"), 0);
    EXPECT_EQ(AnadirIndividuoPanel(nullptr, "3"), -1);
    QuitarIndividuoPanel(0);
    EXPECT_EQ(EdicionPanel.panel.NumEntradas, 49);
}

} // namespace
