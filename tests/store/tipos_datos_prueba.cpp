// The choice of the data type: every check of its dialogs in their order, and what an acceptance does.
#include "apoyo/plataforma_prueba.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/panel.h"
#include "store/tipos_datos.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::string IntervaloActual() {
    return std::string(Recortado(ArchivoTrabajo.TextoIntervalo, RecorteDerecha));
}

// Every box so far is a plain box. What refuses cancels; only the warning of the data that will be lost, and what a panel
// lacks, are titled otherwise.
void EsperarAvisos() {
    for (const CajaVista &c : Prueba.cajas) {
        const bool aviso =
            c.texto == "Guarde el fichero ó se perderán todos los datos" || c.texto == "Introduzca datos";
        EXPECT_EQ(c.titulo, aviso ? "Aviso" : "Proceso cancelado") << c.texto;
        EXPECT_EQ(c.icono, IconoInformacion);
        EXPECT_EQ(c.botones, BotonesAceptar);
    }
}

constexpr const char *AnoMinimo = "Año mínimo no válido";
constexpr const char *AnoMaximo = "Año máximo no válido";
constexpr const char *Rango = "Rango de años no válidos";
constexpr const char *Excesivo = "Año máximo excesivamente grande";

struct CasoTipo {
    int tipo;
    const char *inicio, *fin;
    const char *mensaje;   // null: accepted
    const char *intervalo; // after the reset
    int filas;
};

constexpr CasoTipo Tipos[] = {
    {TipoSinPeriodicidad, "", "", nullptr, " 1 # 4000", 4000},
    // Annual
    {TipoAnual, "1990", "2005", nullptr, "1990#2005", 16},
    {TipoAnual, "", "", nullptr, "2001#6000", 4000},
    {TipoAnual, "    ", "  ", nullptr, "2001#6000", 4000},
    {TipoAnual, "1990", "", nullptr, "1990#5989", 4000},
    {TipoAnual, "1990", "1990", nullptr, "1990#1991", 2},
    {TipoAnual, "19901", "20059", nullptr, "1990#2005", 16}, // cut to four characters
    {TipoAnual, "1899", "2005", AnoMinimo, nullptr, 0},
    {TipoAnual, "1899", "1000", AnoMinimo, nullptr, 0}, // the first year comes first
    {TipoAnual, "-5", "", AnoMinimo, nullptr, 0},
    {TipoAnual, " 1990", "2005", AnoMinimo, nullptr, 0}, // cut to " 199"
    {TipoAnual, "1900", "2005", nullptr, "1900#2005", 106},
    {TipoAnual, "0", "2005", nullptr, "2001#2005", 5},
    {TipoAnual, "abc", "2005", nullptr, "2001#2005", 5},
    {TipoAnual, "2005", "1990", Rango, nullptr, 0},
    {TipoAnual, "2005", "1800", Rango, nullptr, 0},
    {TipoAnual, "", "1800", AnoMaximo, nullptr, 0},
    {TipoAnual, "1990", "-5", AnoMaximo, nullptr, 0},
    {TipoAnual, "1990", "0", nullptr, "1990#5989", 4000},
    {TipoAnual, "1990", "5989", nullptr, "1990#5989", 4000},
    {TipoAnual, "1990", "5990", Excesivo, nullptr, 0},
    {TipoAnual, "", "3999", nullptr, "2001#3999", 1999},
    {TipoAnual, "", "4000", Excesivo, nullptr, 0}, // a blank first year counts as 0
    // Quarterly
    {TipoTrimestral, "1990.1", "2005.4", nullptr, "1990.1#2005.4", 64},
    {TipoTrimestral, "1990", "2005", nullptr, "1990.1#2005.4", 64},
    {TipoTrimestral, "1990.0", "2005.", nullptr, "1990.1#2005.4", 64},
    {TipoTrimestral, "", "", nullptr, "2001.1#3000.4", 4000},
    {TipoTrimestral, "1990.3", "", nullptr, "1990.3#2990.2", 4000},
    {TipoTrimestral, " 1990.3", "1990.4", nullptr, "1990.3#1990.4", 2},
    {TipoTrimestral, "1990.1", "2989.4", nullptr, "1990.1#2989.4", 4000},
    {TipoTrimestral, "1990.1", "2990.1", Excesivo, nullptr, 0},
    {TipoTrimestral, "", "2005.4", Excesivo, nullptr, 0},
    {TipoTrimestral, "1899.1", "2005.4", AnoMinimo, nullptr, 0},
    {TipoTrimestral, "2005.1", "2004.4", Rango, nullptr, 0},
    {TipoTrimestral, "1990.1", "-1.4", AnoMaximo, nullptr, 0},
    {TipoTrimestral, "1990.5", "2005.4", "Trimestre mínimo no válido", nullptr, 0},
    {TipoTrimestral, "1990.5", "2005.5", "Trimestre mínimo no válido", nullptr, 0},
    {TipoTrimestral, "1990.-1", "2005.4", "Trimestre mínimo no válido", nullptr, 0},
    {TipoTrimestral, "1990.1", "2005.5", "Trimestre máximo no válido", nullptr, 0},
    {TipoTrimestral, "1990.1", "2005.99999999999999", "Trimestre máximo no válido", nullptr, 0},
    {TipoTrimestral, "1990.9", "2990.1", Excesivo, nullptr, 0}, // years before quarters
    // Monthly
    {TipoMensual, "1990.01", "2005.12", nullptr, "1990. 1#2005.12", 192},
    {TipoMensual, "1990.1", "2005.9", nullptr, "1990. 1#2005. 9", 189},
    {TipoMensual, "1990", "2005", nullptr, "1990. 1#2005.12", 192},
    {TipoMensual, "", "", nullptr, "2001. 1#2334. 4", 4000},
    {TipoMensual, "1990.01", "2322.12", nullptr, "1990. 1#2322.12", 3996},
    {TipoMensual, "1990.01", "2323.01", Excesivo, nullptr, 0},
    {TipoMensual, "1800.01", "1990.01", AnoMinimo, nullptr, 0},
    {TipoMensual, "1990.01", "1989.12", Rango, nullptr, 0},
    {TipoMensual, "1990.13", "2005.13", "Mes mínimo no válido", nullptr, 0},
    {TipoMensual, "1990.12", "2005.13", "Mes máximo no válido", nullptr, 0},
    {TipoMensual, "1990.00", "2005.00", nullptr, "1990. 1#2005.12", 192},
    {TipoMensual, "1990.011", "2005.120", "Mes máximo no válido", nullptr, 0},
};

TEST(TiposDatos, CadaPropuesta) {
    for (const CasoTipo &c : Tipos) {
        SCOPED_TRACE(Formatear("tipo %d: \"%s\" a \"%s\"", c.tipo, c.inicio, c.fin));
        EmpezarConDatos(TipoAnual, "1970#1979");
        ArchivoTrabajo.ConEtiquetas = 1;
        MuestraDeSentencia("MUEST 1971 1972");
        PropuestaTipoDatos p;
        p.nombre = "DATOS";
        p.tipo = c.tipo;
        p.inicio = c.inicio;
        p.fin = c.fin;
        EXPECT_EQ(AceptarTipoDatos(nullptr, p), c.mensaje == nullptr ? 1 : 0);
        EsperarAvisos();
        if (c.mensaje != nullptr) {
            EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{c.mensaje});
            EXPECT_EQ(IntervaloActual(), "1970#1979"); // the store as it was
            EXPECT_EQ(ArchivoTrabajo.TipoDatos, TipoAnual);
            EXPECT_STREQ(ArchivoTrabajo.NombreProyecto, "Proyec01 ");
            EXPECT_EQ(Muestra.AnoInicial, 1971);
            continue;
        }
        EXPECT_TRUE(Prueba.cajas.empty());
        EXPECT_EQ(ArchivoTrabajo.TipoDatos, c.tipo);
        EXPECT_EQ(IntervaloActual(), c.intervalo);
        EXPECT_EQ(ArchivoTrabajo.NumObs, c.filas);
        EXPECT_STREQ(ArchivoTrabajo.NombreProyecto, "DATOS    ");
        EXPECT_EQ(ArchivoTrabajo.ConEtiquetas, 0);
        EXPECT_EQ(Muestra.AnoInicial, 0);
    }
}

struct CasoNombre {
    const char *nombre;
    int tipo;
    bool conSeries;
    std::vector<std::string> mensajes;
    int resultado;
};

const CasoNombre Nombres[] = {
    {"DATOS", TipoSinPeriodicidad, false, {}, 1},
    {"", TipoSinPeriodicidad, false, {"Introduzca nombre fichero"}, 0},
    {"   ", SinTipoDatos, true, {"Introduzca nombre fichero"}, 0},
    {"        X", TipoAnual, false, {"Introduzca nombre fichero"}, 0}, // beyond the eighth character
    {"DATOS", SinTipoDatos, true, {"Introduzca tipo de datos"}, 0},
    {"DATOS", 5, false, {"Introduzca tipo de datos"}, 0},
    {"DATOS", -1, false, {"Introduzca tipo de datos"}, 0},
    {"DATOS", TipoSinPeriodicidad, true, {"Guarde el fichero ó se perderán todos los datos"}, 1},
};

TEST(TiposDatos, NombreYTipo) {
    for (const CasoNombre &c : Nombres) {
        SCOPED_TRACE(c.nombre);
        EmpezarConDatos(TipoAnual, "1970#1979");
        if (c.conSeries) PonerSerie("A", {1, 2});
        PropuestaTipoDatos p;
        p.nombre = c.nombre;
        p.tipo = c.tipo;
        EXPECT_EQ(AceptarTipoDatos(nullptr, p), c.resultado);
        EXPECT_EQ(TextosDeCajas(), c.mensajes);
        EsperarAvisos();
        EXPECT_EQ(BuscarSerie("A") >= 0, c.conSeries && c.resultado == 0);
    }
}

TEST(TiposDatos, ElAvisoVaDelanteDelDialogoDelTipo) {
    EmpezarConDatos(TipoAnual, "1970#1979");
    PonerSerie("A", {1, 2});
    PropuestaTipoDatos p;
    p.nombre = "DATOS";
    p.tipo = TipoAnual;
    p.inicio = "1800";
    EXPECT_EQ(AceptarTipoDatos(nullptr, p), 0);
    EXPECT_EQ(TextosDeCajas(),
              (std::vector<std::string>{"Guarde el fichero ó se perderán todos los datos", AnoMinimo}));
    EXPECT_EQ(BuscarSerie("A"), 0);
}

TEST(TiposDatos, ElNombreSeCortaAOchoCaracteres) {
    EmpezarPrueba();
    EXPECT_EQ(NombreDialogoTipo(), "PROYEC01");
    PropuestaTipoDatos p;
    p.nombre = "Consumo privado";
    p.tipo = TipoSinPeriodicidad;
    p.etiquetas = true;
    EXPECT_EQ(AceptarTipoDatos(nullptr, p), 1);
    EXPECT_STREQ(ArchivoTrabajo.NombreProyecto, "Consumo  ");
    EXPECT_EQ(ArchivoTrabajo.ConEtiquetas, 1);
    EXPECT_EQ(NombreDialogoTipo(), "Consumo");
}

TEST(TiposDatos, SinPeriodicidadSiempre4000) {
    EmpezarConDatos(TipoAnual, "1970#1979");
    PropuestaTipoDatos p;
    p.nombre = "DATOS";
    p.tipo = TipoSinPeriodicidad;
    EXPECT_EQ(AceptarTipoDatos(nullptr, p), 1);
    EXPECT_EQ(ArchivoTrabajo.NumObs, 4000); // not the 10 of before
    EXPECT_STREQ(ArchivoTrabajo.TextosPeriodo[0], ("   1" + std::string(25, ' ')).c_str());
}

TEST(TiposDatos, AceptarVaciaYConservaLasEcuaciones) {
    EmpezarConDatos(TipoAnual, "1970#1979");
    PonerSerie("A", {1, 2});
    PonerEscalar(nullptr, "E", 1.0);
    PonerMatriz("M", {1}, 1, 1);
    TablaEcuaciones.numero = 2;
    PropuestaTipoDatos p;
    p.nombre = "DATOS";
    p.tipo = TipoMensual;
    EXPECT_EQ(AceptarTipoDatos(nullptr, p), 1);
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
    EXPECT_EQ(TablaEscalares.numero, 0);
    EXPECT_EQ(TablaMatrices.numero, 0);
    EXPECT_EQ(TablaEcuaciones.numero, 2);
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
}

} // namespace
