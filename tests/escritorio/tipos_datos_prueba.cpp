// The choice of the data type: the first dialog, the one of each type, their messages in order, and what a Cancel leaves.
#include "apoyo_escritorio.h"

#include "platform/campos_texto.h"
#include "store/archivo.h"

#include <QLineEdit>
#include <QRadioButton>

using TiposDatos = Escritorio;

namespace {

constexpr const char *Titulo = "Tipos de datos";
constexpr const char *TitulosDelTipo[] = {"Datos sin periodicidad", "Datos anuales", "Datos trimestrales",
                                          "Datos mensuales", "Datos Panel"};
constexpr const char *Cancelado = "Proceso cancelado";

// The first dialog: a name, where one is given, a type, and OK.
Paso Primero(int tipo, const char *nombre = nullptr) {
    return {Titulo, [=](QDialog &d) {
                if (nombre != nullptr) Escribir(d, "NombreProyecto", nombre);
                if (tipo >= 0) Pulsar(d, QByteArray("tipo").append(QByteArray::number(tipo)).constData());
                Pulsar(d, "OK");
            }};
}

Paso Periodos(int tipo, const char *inicio, const char *fin, const char *boton = "OK") {
    return {TitulosDelTipo[tipo], [=](QDialog &d) {
                Escribir(d, "inicio", inicio);
                Escribir(d, "fin", fin);
                Pulsar(d, boton);
            }};
}

struct Foto {
    std::string nombre, intervalo;
    int tipo, observaciones, series, etiquetas;
    bool operator==(const Foto &) const = default;
};

Foto Fotografiar() {
    const auto &a = ArchivoTrabajo;
    return {std::string(Recortado(a.NombreProyecto, RecorteDerecha)),
            std::string(Recortado(a.TextoIntervalo, RecorteDerecha)),
            a.TipoDatos,
            a.NumObs,
            a.NumSeries,
            a.ConEtiquetas};
}

std::string Fila(int fila) {
    return std::string(Recortado(TextoPeriodo(fila)));
}

} // namespace

TEST_F(TiposDatos, AlAbrirse) {
    ConGuion({{Titulo,
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "NombreProyecto"), "PROYEC01");
                   EXPECT_EQ(Hijo<QLineEdit>(d, "NombreProyecto")->maxLength(), 8);
                   static constexpr const char *Textos[] = {"Sin periodicidad", "Anuales", "Trimestrales",
                                                            "Mensuales",
                                                            "Panel: Individúo-período o Período-Individúo"};
                   for (int t = 0; t < 5; ++t) {
                       auto *boton = Hijo<QRadioButton>(d, QByteArray("tipo").append(QByteArray::number(t)));
                       EXPECT_EQ(boton->text().remove(u'&').toStdString(), Textos[t]);
                       EXPECT_FALSE(boton->isChecked());
                   }
                   Pulsar(d, "Cancela");
               }}},
             [&] { Ordenar(2020); });
}

// The title stays "Tabira" until the first time, and then bears the name whether the user accepted or not.
TEST_F(TiposDatos, TituloDeLaVentana) {
    const auto titulo = [&] { return ventana->windowTitle().toStdString(); };
    EXPECT_EQ(titulo(), "Tabira");
    ConGuion({ConEscape(Titulo)}, [&] { Ordenar(2020); });
    EXPECT_EQ(titulo(), "Tabira: Proyec01");
    ConGuion({Primero(1, "KLEIN"), Periodos(1, "1920", "1941")}, [&] { Ordenar(2020); });
    EXPECT_EQ(titulo(), "Tabira: KLEIN");
    ConGuion({{Titulo,
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "NombreProyecto"), "KLEIN"); // of the work file that is there now
                   Escribir(d, "NombreProyecto", "OTRO");
                   Pulsar(d, "Cancela");
               }}},
             [&] { Ordenar(2020); });
    EXPECT_EQ(titulo(), "Tabira: KLEIN");
}

// Name first, then type, then the warning that the data will be lost.
TEST_F(TiposDatos, OrdenDeLasComprobaciones) {
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3});
    const Foto antes = Fotografiar();
    ConGuion({Primero(-1, ""), Caja(Cancelado, "Introduzca nombre fichero"), Primero(-1, "   "),
              Caja(Cancelado, "Introduzca nombre fichero"), Primero(-1, "NUEVO"),
              Caja(Cancelado, "Introduzca tipo de datos"), Primero(2, ""),
              Caja(Cancelado, "Introduzca nombre fichero"), Primero(2, "NUEVO"),
              Caja("Aviso", "Guarde el fichero ó se perderán todos los datos"),
              Pulsando(TitulosDelTipo[2], "Cancela"), Pulsando(Titulo, "Cancela")},
             [&] { Ordenar(2020); });
    EXPECT_EQ(Fotografiar(), antes);
    EXPECT_EQ(CodigosDeSeries(), std::vector<std::string>{"A"});
}

// Without series nothing warns, whatever scalars there are.
TEST_F(TiposDatos, SinSeriesNoAvisa) {
    PonerDatos(TipoAnual, "1990#1999");
    PonerEscalar(nullptr, "E", 1);
    ConGuion({Primero(0), Pulsando(TitulosDelTipo[0], "OK")}, [&] { Ordenar(2020); });
    EXPECT_EQ(ArchivoTrabajo.TipoDatos, TipoSinPeriodicidad);
    EXPECT_EQ(TablaEscalares.numero, 0);
}

// Cancel, and Escape, in the dialog of the type come back to the first one with what was typed; nothing changes.
TEST_F(TiposDatos, CancelarVuelveAlPrimero) {
    for (const bool conTipo : {false, true}) {
        if (conTipo) PonerDatos(TipoTrimestral, "1990#1#1995#4");
        const Foto antes = Fotografiar();
        for (int tipo = 0; tipo <= 4; ++tipo) {
            SCOPED_TRACE(TitulosDelTipo[tipo]);
            const Paso vuelta = {
                Titulo, [=](QDialog &d) {
                    EXPECT_EQ(TextoDe(d, "NombreProyecto"), "OTRO");
                    EXPECT_TRUE(Hijo<QRadioButton>(d, QByteArray("tipo").append(QByteArray::number(tipo)))
                                    ->isChecked());
                    Pulsar(d, "OK");
                }};
            ConGuion({Primero(tipo, "OTRO"), Pulsando(TitulosDelTipo[tipo], "Cancela"), vuelta,
                      ConEscape(TitulosDelTipo[tipo]), Pulsando(Titulo, "Cancela")},
                     [&] { Ordenar(2020); });
            EXPECT_EQ(Fotografiar(), antes);
        }
    }
}

TEST_F(TiposDatos, SinPeriodicidad) {
    for (const bool etiquetas : {false, true}) {
        ConGuion({Primero(0, "SINPER"),
                  {TitulosDelTipo[0],
                   [=](QDialog &d) {
                       EXPECT_EQ(TextoDe(d, "totalObservaciones"), "Número total de observaciones: 4.000");
                       EXPECT_EQ(QString::fromStdString(TextoDe(d, "etiquetas")).remove(u'&').toStdString(),
                                 "Se desea introducir una etiqueta para cada observación");
                       EXPECT_FALSE(Hijo<QAbstractButton>(d, "etiquetas")->isChecked());
                       if (etiquetas) Pulsar(d, "etiquetas");
                       Pulsar(d, "OK");
                   }}},
                 [&] { Ordenar(2020); });
        EXPECT_EQ(ArchivoTrabajo.TipoDatos, TipoSinPeriodicidad);
        EXPECT_EQ(ArchivoTrabajo.NumObs, 4000);
        EXPECT_EQ(ArchivoTrabajo.ConEtiquetas, etiquetas ? 1 : 0);
        EXPECT_EQ(Fila(0), "1");
        EXPECT_EQ(Fila(3999), "4000");
        EXPECT_EQ(Fotografiar().nombre, "SINPER");
    }
}

namespace {

struct CasoAceptado {
    int tipo;
    const char *inicio, *fin;
    int observaciones;
    const char *primera, *ultima;
};

constexpr CasoAceptado Aceptados[] = {
    {1, "", "", 4000, "2001", "6000"},
    {1, "1990", "1999", 10, "1990", "1999"},
    {1, "1990", "1990", 2, "1990", "1991"},
    {1, "19905", "1999", 10, "1990", "1999"}, // a field has four characters
    {1, "1990", "", 4000, "1990", "5989"},
    {2, "", "", 4000, "2001.1", "3000.4"},
    {2, "1995.2", "1996.3", 6, "1995.2", "1996.3"},
    {2, "1995", "1996", 8, "1995.1", "1996.4"},
    {2, "1995.0", "1996.0", 8, "1995.1", "1996.4"},
    {3, "1995.3", "1996.11", 21, "1995.03", "1996.11"},
    {3, "1995.03", "1996.11", 21, "1995.03", "1996.11"},
    {3, "1995", "1996", 24, "1995.01", "1996.12"},
};

struct CasoRechazado {
    int tipo;
    const char *inicio, *fin, *mensaje;
};

constexpr CasoRechazado Rechazados[] = {
    {1, "1899", "1999", "Año mínimo no válido"},
    {1, "1899", "1800", "Año mínimo no válido"}, // the first year comes first
    {1, "1990", "1989", "Rango de años no válidos"},
    {1, "1990", "1800", "Rango de años no válidos"},
    {1, "0", "1800", "Año máximo no válido"},
    {1, "1900", "5900", "Año máximo excesivamente grande"},
    {2, "1899.1", "1999.1", "Año mínimo no válido"},
    {2, "1990.9", "1989.9", "Rango de años no válidos"}, // the years come before the quarters
    {2, "1900.1", "2900.1", "Año máximo excesivamente grande"},
    {2, "1990.5", "1995.1", "Trimestre mínimo no válido"},
    {2, "1990.5", "1995.5", "Trimestre mínimo no válido"},
    {2, "1990.1", "1995.5", "Trimestre máximo no válido"},
    {3, "1899.1", "1999.1", "Año mínimo no válido"},
    {3, "1900.1", "2300.1", "Año máximo excesivamente grande"},
    {3, "1990.13", "1995.1", "Mes mínimo no válido"},
    {3, "1990.1", "1995.13", "Mes máximo no válido"},
};

} // namespace

TEST_F(TiposDatos, PeriodosAceptados) {
    for (const CasoAceptado &c : Aceptados) {
        SCOPED_TRACE(std::string(TitulosDelTipo[c.tipo]) + ": " + c.inicio + " a " + c.fin);
        ConGuion({Primero(c.tipo, "PERIODOS"), Periodos(c.tipo, c.inicio, c.fin)}, [&] { Ordenar(2020); });
        EXPECT_EQ(ArchivoTrabajo.TipoDatos, c.tipo);
        EXPECT_EQ(ArchivoTrabajo.NumObs, c.observaciones);
        EXPECT_EQ(ArchivoTrabajo.ConEtiquetas, 0);
        EXPECT_EQ(Fila(0), c.primera);
        EXPECT_EQ(Fila(c.observaciones - 1), c.ultima);
    }
}

// The dialog stays open after its message, with the fields as typed, and the store as it was.
TEST_F(TiposDatos, PeriodosRechazados) {
    PonerDatos(TipoAnual, "1960#1970");
    const Foto antes = Fotografiar();
    for (const CasoRechazado &c : Rechazados) {
        SCOPED_TRACE(std::string(TitulosDelTipo[c.tipo]) + ": " + c.inicio + " a " + c.fin);
        const Paso sigue = {TitulosDelTipo[c.tipo], [=](QDialog &d) {
                                EXPECT_EQ(TextoDe(d, "inicio"), c.inicio);
                                EXPECT_EQ(TextoDe(d, "fin"), c.fin);
                                Pulsar(d, "Cancela");
                            }};
        ConGuion({Primero(c.tipo), Periodos(c.tipo, c.inicio, c.fin), Caja(Cancelado, c.mensaje), sigue,
                  Pulsando(Titulo, "Cancela")},
                 [&] { Ordenar(2020); });
        EXPECT_EQ(Fotografiar(), antes);
    }
}

TEST_F(TiposDatos, AnchuraDeLosCampos) {
    static constexpr struct { int tipo, longitud; } Casos[] = {{2, 18}, {3, 8}};
    for (const auto &c : Casos)
        ConGuion({Primero(c.tipo),
                  {TitulosDelTipo[c.tipo],
                   [=](QDialog &d) {
                       EXPECT_EQ(Hijo<QLineEdit>(d, "inicio")->maxLength(), c.longitud);
                       EXPECT_EQ(Hijo<QLineEdit>(d, "fin")->maxLength(), c.longitud);
                       Pulsar(d, "Cancela");
                   }},
                  Pulsando(Titulo, "Cancela")},
                 [&] { Ordenar(2020); });
}

TEST_F(TiposDatos, Ayuda) {
    ConGuion({Pulsando(Titulo, "Ayuda"), Pulsando("Acotación intervalos muestra", "OK"),
              Pulsando(Titulo, "Cancela")},
             [&] { Ordenar(2020); });
}

// An acceptance empties the store and clears the limits of the sample.
TEST_F(TiposDatos, AceptarVacia) {
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3});
    PonerMatriz("M", {1, 2}, 1, 2);
    AceptarDialogoMuestra("1992", "1993");
    ConGuion({Primero(1, "NUEVO"), Caja("Aviso", "Guarde el fichero ó se perderán todos los datos"),
              Periodos(1, "1990", "1995")},
             [&] { Ordenar(2020); });
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
    EXPECT_EQ(TablaMatrices.numero, 0);
    EXPECT_EQ(Muestra.LimiteInicial, "");
    EXPECT_EQ(Muestra.LimiteFinal, "");
}
