// The dialogs of the autocorrelation functions, normality, prediction, descriptive measures and transformations: how they
// open, what OK makes of their controls, and that they stay or close.
#include "apoyo_escritorio.h"

#include "analysis/prediccion.h"
#include "hypothesis/autocorrelacion.h"
#include "language/lote_sentencias.h"
#include "platform/qt/ventana_qt.h"
#include "shell/comandos.h"
#include "store/archivo.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>

using Analisis = Escritorio;
using Textos = std::vector<std::string>;

namespace {

constexpr const char *Fac = "Función de autocorrelación estimada";
constexpr const char *Facp = "Función de autocorrelación parcial estimada";
constexpr const char *ListadoFac = "Contrastes de autocorrelación estimada";
constexpr const char *ListadoFacp = "Contrastes de autocorrelación parcial estimada";
constexpr const char *Normalidad = "Contraste de normalidad";
constexpr const char *Evaluacion = "Predicción y evaluación de la capacidad predictiva";
constexpr const char *Series = "Selección de series";
constexpr const char *Transformacion = "Transformación de series";

// Twelve quarters of X, and Y about a line on it.
void PonerSeries() {
    PonerDatos(TipoTrimestral, "1990.1#1992.4");
    PonerSerie("X", {3, 1, 4, 1, 5, 9, 2, 6, 5, 3, 5, 8});
    PonerSerie("Y", {7, 2, 8, 1, 9, 17, 5, 13, 10, 7, 9, 18});
    ActualizarMuestra();
}

Paso Cierra(const char *titulo) {
    return {titulo, [](QDialog &d) { d.reject(); }};
}

// "&Gráficos" of a result window, then its end.
Paso PideGraficos(const char *titulo) {
    return {titulo, [](QDialog &d) {
                auto *graficos = d.findChild<QAction *>(QStringLiteral("comandoGraficos"));
                ASSERT_NE(graficos, nullptr);
                EXPECT_EQ(graficos->text().toStdString(), "&Gráficos");
                graficos->trigger();
                d.reject();
            }};
}

Textos EntradasDe(QDialog &d, const char *lista) {
    Textos r;
    const auto *c = Hijo<QComboBox>(d, lista);
    for (int i = 0; i < c->count(); ++i) r.push_back(c->itemText(i).toStdString());
    return r;
}

void DisparaMenu(QDialog &d, const char *entrada) {
    for (QAction *a : d.findChild<QMenuBar *>()->actions())
        if (a->text() == QString::fromUtf8(entrada)) a->trigger();
}

bool Marcado(QDialog &d, const char *boton) {
    return Hijo<QAbstractButton>(d, boton)->isChecked();
}

// "Formato decimal" opens from the menu, and what is chosen there holds.
void ConDecimales(VentanaPrincipal &v, int comando, const char *titulo) {
    Lote.DecimalesSalida = 2;
    ConGuion({{titulo,
               [](QDialog &d) {
                   DisparaMenu(d, "&Decimales");
                   EXPECT_EQ(Lote.DecimalesSalida, 5);
                   Pulsar(d, "Cancela");
               }},
              {"Formato decimal",
               [](QDialog &d) {
                   Pulsar(d, "decimales5");
                   Pulsar(d, "OK");
               }}},
             [&] { EjecutarComando(AVentana(&v), comando); });
}

} // namespace

// ----- Autocorrelation

TEST_F(Analisis, AutocorrelacionComoSeAbre) {
    const struct {
        int comando;
        const char *titulo, *rotulo;
        Textos bandas;
    } Casos[] = {
        {2073, Fac, "Número de retardos.....:", {"Uniforme", "Arma", "Sin banda"}},
        {2093, Facp, "Número de coeficientes.....:", {"Uniforme", "Sin banda"}},
    };
    PonerSeries();
    for (const auto &c : Casos)
        ConGuion({{c.titulo,
                   [&](QDialog &d) {
                       EXPECT_EQ(LineasDe(d, "series"), (Textos{"X", "Y"}));
                       EXPECT_EQ(TextoDe(d, "rotuloRetardos"), c.rotulo);
                       EXPECT_EQ(TextoDe(d, "retardos"), "");
                       EXPECT_TRUE(Marcado(d, "conTitulo"));
                       EXPECT_EQ(TextoDe(d, "titulo"), " ");
                       EXPECT_EQ(Hijo<QLineEdit>(d, "titulo")->maxLength(), 60);
                       EXPECT_TRUE(Marcado(d, "tituloArriba"));
                       EXPECT_TRUE(Marcado(d, "alMedio"));
                       EXPECT_EQ(EntradasDe(d, "bandas"), c.bandas);
                       EXPECT_EQ(Hijo<QComboBox>(d, "bandas")->currentIndex(), 0);
                       EXPECT_EQ(EntradasDelMenu(d), (Textos{"&Decimales", "&Ayuda"}));
                       Pulsar(d, "Cancela");
                   }}},
                 [&] { Ordenar(c.comando); });
}

TEST_F(Analisis, AutocorrelacionListaYQueda) {
    PonerSeries();
    ConGuion({{Fac,
               [](QDialog &d) {
                   Elegir(d, "series", 1);
                   Escribir(d, "retardos", "4");
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   EXPECT_STREQ(Autocorrelacion.serie, "Y           ");
                   EXPECT_EQ(Autocorrelacion.funcion, 2073);
                   EXPECT_EQ(Autocorrelacion.retardos, 4);
                   EXPECT_EQ(Autocorrelacion.conTitulo, 1);
                   EXPECT_EQ(Autocorrelacion.titulo, " ");
                   EXPECT_EQ(Autocorrelacion.tituloAbajo, 0);
                   EXPECT_EQ(Autocorrelacion.marcas, 1);
                   EXPECT_EQ(Autocorrelacion.tipoBanda, 0);
                   Pulsar(d, "conTitulo");
                   Escribir(d, "titulo", "Retardos de Y");
                   Pulsar(d, "tituloArriba");
                   Pulsar(d, "parteInferior");
                   Hijo<QComboBox>(d, "bandas")->setCurrentIndex(1);
                   Pulsar(d, "OK");
                   EXPECT_EQ(Autocorrelacion.conTitulo, 0);
                   EXPECT_EQ(Autocorrelacion.titulo, "Retardos de Y");
                   EXPECT_EQ(Autocorrelacion.tituloAbajo, 1);
                   EXPECT_EQ(Autocorrelacion.marcas, 2);
                   EXPECT_EQ(Autocorrelacion.tipoBanda, 1);
                   Pulsar(d, "sinMarca");
                   Hijo<QComboBox>(d, "bandas")->setCurrentIndex(2);
                   Pulsar(d, "OK");
                   EXPECT_EQ(Autocorrelacion.marcas, 3);
                   EXPECT_EQ(Autocorrelacion.tipoBanda, 2);
                   Pulsar(d, "Cancela");
               }},
              Cierra(ListadoFac),
              Cierra(ListadoFac),
              Cierra(ListadoFac)},
             [&] { Ordenar(2073); });
}

// The partial function leaves one band out of its list.
TEST_F(Analisis, ParcialSinBanda) {
    PonerSeries();
    ConGuion({{Facp,
               [](QDialog &d) {
                   Elegir(d, "series", 0);
                   Escribir(d, "retardos", "3");
                   Hijo<QComboBox>(d, "bandas")->setCurrentIndex(1);
                   Pulsar(d, "OK");
                   EXPECT_EQ(Autocorrelacion.tipoBanda, 2);
                   EXPECT_EQ(Autocorrelacion.funcion, 2093);
                   Pulsar(d, "Cancela");
               }},
              PideGraficos(ListadoFacp),
              {ListadoFacp,
               [](QDialog &d) {
                   EXPECT_EQ(d.objectName(), QStringLiteral("ventanaGrafico")); // under the listing's title
                   d.reject();
               }}},
             [&] { Ordenar(2093); });
}

TEST_F(Analisis, AutocorrelacionSinSerieElegida) {
    PonerSeries();
    ConGuion({{Fac,
               [](QDialog &d) {
                   Escribir(d, "retardos", "3");
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   Pulsar(d, "Cancela");
               }},
              Caja("Aviso", "Serie no válida.")},
             [&] { Ordenar(2073); });
}

// ----- Normality

TEST_F(Analisis, NormalidadQueda) {
    PonerSeries();
    ConGuion({{Normalidad,
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "series"), (Textos{"X", "Y"}));
                   EXPECT_EQ(EntradasDelMenu(d), Textos{"&Decimales"});
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   Elegir(d, "series", 0);
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   Pulsar(d, "Cancela");
               }},
              Caja("Proceso cancelado", "No existe la serie escogida. Pto 1"),
              Cierra("Contraste de normalidad  Bera y Jarque")},
             [&] { Ordenar(2087); });
}

// With the keys alone: down to a series, Enter presses OK.
TEST_F(Analisis, NormalidadConElTeclado) {
    PonerSeries();
    ConGuion({{Normalidad,
               [](QDialog &d) {
                   Activar(d);
                   QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
                   QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                   QTest::keyClick(&d, Qt::Key_Escape);
                   EXPECT_FALSE(d.isVisible());
               }},
              Cierra("Contraste de normalidad  Bera y Jarque")},
             [&] { Ordenar(2087); });
}

// ----- Prediction

TEST_F(Analisis, PrediccionSinRegresion) {
    PonerSeries();
    ConGuion({Caja("Proceso cancelado", "Realice una regresión")}, [&] { Ordenar(2036); });
}

TEST_F(Analisis, PrediccionPrediceYQueda) {
    PonerSeries();
    Lote.VerRegresion = 0;
    ASSERT_TRUE(Sentencia("MC Y 1 X"));
    ConGuion({{Evaluacion,
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "inicio") + TextoDe(d, "fin"), "");
                   EXPECT_EQ(Hijo<QLineEdit>(d, "inicio")->maxLength(), 50);
                   EXPECT_EQ(Hijo<QLineEdit>(d, "fin")->maxLength(), 50);
                   EXPECT_EQ(TextoDe(d, "codigoPred"), "_PRED");
                   EXPECT_EQ(TextoDe(d, "codigoDtm"), "_DTPVM");
                   EXPECT_EQ(TextoDe(d, "codigoDti"), "_DTPVI");
                   for (const char *codigo : {"codigoPred", "codigoDtm", "codigoDti"})
                       EXPECT_EQ(Hijo<QLineEdit>(d, codigo)->maxLength(), 13);
                   EXPECT_TRUE(Marcado(d, "originales"));
                   EXPECT_EQ(EntradasDelMenu(d), Textos{"&Decimales"});
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   EXPECT_EQ(Prediccion.modoEvaluacion, 0);
                   EXPECT_EQ(Prediccion.finPred, 11);
                   Escribir(d, "inicio", "1990.3");
                   Escribir(d, "fin", "1991.4");
                   Escribir(d, "codigoPred", "P");
                   Escribir(d, "codigoDtm", "M");
                   Escribir(d, "codigoDti", "I");
                   Pulsar(d, "tasas");
                   Pulsar(d, "OK");
                   EXPECT_EQ(Prediccion.modoEvaluacion, 1);
                   EXPECT_EQ(Prediccion.inicioPred, 2);
                   EXPECT_EQ(Prediccion.finPred, 7);
                   Pulsar(d, "incrementos");
                   Pulsar(d, "OK");
                   EXPECT_EQ(Prediccion.modoEvaluacion, 2);
                   Pulsar(d, "Cancela");
               }},
              PideGraficos(Evaluacion), // of original values there is no diagram
              PideGraficos(Evaluacion),
              Cierra("Diagrama predicción-observación"),
              Cierra(Evaluacion)},
             [&] { Ordenar(2036); });
    for (const char *codigo : {"_PRED", "_DTPVM", "_DTPVI", "P", "M", "I"})
        EXPECT_GE(BuscarSerie(codigo), 0) << codigo;
}

// ----- Descriptive measures

TEST_F(Analisis, DescriptivosEligeYQueda) {
    PonerSeries();
    ConGuion({{Series,
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "textoDisponibles"), "Series en el archivo de trabajo");
                   EXPECT_EQ(TextoDe(d, "textoElegidas"), "Series seleccionadas");
                   EXPECT_EQ(EntradasDelMenu(d), Textos{"&Decimales"});
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   Elegir(d, "disponibles", 1);
                   Pulsar(d, "Anadir");
                   Elegir(d, "disponibles", 0);
                   Pulsar(d, "Anadir");
                   EXPECT_EQ(LineasDe(d, "elegidas"), (Textos{"Y", "X"}));
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   Pulsar(d, "Cancela");
               }},
              Caja("Aviso", "Escoja una serie"),
              Cierra("Medidas descriptivas")},
             [&] { Ordenar(2039); });
}

TEST_F(Analisis, DescriptivosDeDiezSeries) {
    PonerSeries();
    for (int i = 0; i < 8; ++i) PonerSerie("S" + std::to_string(i), {1, 2, 3});
    ConGuion({{Series,
               [](QDialog &d) {
                   Elegir(d, "disponibles", 0);
                   for (int i = 0; i < 10; ++i) Pulsar(d, "Anadir");
                   Pulsar(d, "OK");
                   Elegir(d, "elegidas", 0);
                   Pulsar(d, "Eliminar");
                   Pulsar(d, "OK");
                   Pulsar(d, "Cancela");
               }},
              Caja("Aviso", "Demasiadas series escogidas"),
              Cierra("Medidas descriptivas")},
             [&] { Ordenar(2039); });
}

// ----- Transformations

TEST_F(Analisis, TransformacionSeCierraAlAcabar) {
    PonerSeries();
    ConGuion({{Transformacion,
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "series"), (Textos{"X", "Y"}));
                   EXPECT_FALSE(Marcado(d, "boxCox") || Marcado(d, "estacionales") ||
                                Marcado(d, "noEstacionales"));
                   EXPECT_EQ(TextoDe(d, "codigo"), "_TRANS");
                   EXPECT_EQ(TextoDe(d, "lambda") + TextoDe(d, "ordenEstacional") +
                                 TextoDe(d, "ordenNoEstacional"),
                             "111");
                   EXPECT_EQ(Hijo<QLineEdit>(d, "codigo")->maxLength(), 9);
                   EXPECT_EQ(Hijo<QLineEdit>(d, "lambda")->maxLength(), 2);
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   Elegir(d, "series", 0);
                   Pulsar(d, "boxCox");
                   Pulsar(d, "estacionales");
                   Pulsar(d, "noEstacionales");
                   Escribir(d, "codigo", "nueva");
                   Escribir(d, "lambda", "2");
                   Escribir(d, "ordenEstacional", "2");
                   Escribir(d, "ordenNoEstacional", "3");
                   Pulsar(d, "OK");
                   EXPECT_FALSE(d.isVisible());
               }},
              Caja("Aviso", "Escoja una serie")},
             [&] { Ordenar(2094); });
    const std::vector<double> r = ValoresDe("NUEVA", 12);
    for (std::size_t i = 0; i < 11; ++i) EXPECT_TRUE(std::isnan(r[i])) << i;
    EXPECT_EQ(r[11], -29.0); // the seasonal differences -2 -14 5 -3, three times differenced -58, halved
}

// One check at a time: each one is its own.
TEST_F(Analisis, CadaTransformacionConSuMarca) {
    const struct {
        const char *marca;
        int primera;
        double valor;
    } Casos[] = {{"boxCox", 0, 1.5}, {"estacionales", 4, 2}, {"noEstacionales", 1, -2}};
    for (const auto &c : Casos) {
        PonerSeries();
        ConGuion({{Transformacion,
                   [&](QDialog &d) {
                       Elegir(d, "series", 0);
                       Pulsar(d, c.marca);
                       Escribir(d, "lambda", "2");
                       Pulsar(d, "OK");
                   }}},
                 [&] { Ordenar(2094); });
        EXPECT_EQ(ValoresDe("_TRANS", 12)[static_cast<std::size_t>(c.primera)], c.valor) << c.marca;
    }
}

// ----- What all of them share

TEST_F(Analisis, LosDecimalesDesdeElMenu) {
    PonerSeries();
    Lote.VerRegresion = 0;
    ASSERT_TRUE(Sentencia("MC Y 1 X"));
    ConDecimales(*ventana, 2073, Fac);
    ConDecimales(*ventana, 2087, Normalidad);
    ConDecimales(*ventana, 2036, Evaluacion);
    ConDecimales(*ventana, 2039, Series);
}

TEST_F(Analisis, SinTipoDeDatos) {
    for (const int comando : {2073, 2093, 2087, 2036})
        ConGuion({Caja("Proceso cancelado", "Tipo de datos no válido")}, [&] { Ordenar(comando); });
    ConGuion({Caja("Proceso cancelado", "Tipo de datos no válidos")}, [&] { Ordenar(2039); });
}
