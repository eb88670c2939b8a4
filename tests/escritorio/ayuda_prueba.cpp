// The pages of the manual as windows: how they open, what their buttons do, and the page "Acerca de..".
#include "apoyo_escritorio.h"

#include "platform/qt/ventana_qt.h"
#include "platform/texto.h"
#include "shell/ayuda.h"
#include "shell/ventanas/dialogos.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>

using Manual = Escritorio;

namespace {

// A page: its window bears its number as a name.
Paso Pagina(const char *titulo, int numero, const char *boton) {
    return {titulo, [=](QDialog &d) {
                EXPECT_EQ(d.objectName().toStdString(), "P" + std::to_string(numero));
                EXPECT_FALSE(TextoDe(d, "texto").empty());
                Pulsar(d, boton);
            }};
}

QWidget *PaginaAbierta(const char *nombre) {
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w->objectName() == QLatin1String(nombre)) return w;
    return nullptr;
}

struct Cadena {
    int comando;
    const char *titulo;
    std::vector<int> paginas;
};

const Cadena Cadenas[] = {
    {2067, "Reglas generales", {1194, 1138, 1128}},
    {2051, "Generación de series", {1197, 1130, 1127, 1131, 1132, 1217, 1218}},
    {2069, "Generación de matrices", {1192, 1129}},
    {2084, "Métodos y contrastes", {1191, 1133, 1134}},
    {2089, "Control de flujo y otros", {1190, 1135, 1136}},
};

struct PaginaSola {
    int comando;
    const char *titulo;
    int pagina;
};

constexpr PaginaSola Solas[] = {
    {2068, "Generación de escalares", 1193},
    {2053, "Calculadora", 1196},
    {2101, "Acotación intervalos muestra", 1114},
    {2096, "Generación de series", 1220},
    {2097, "Generación de series", 1221},
    {2098, "Generación de series", 1219},
    {2102, "Acceso a procedimientos desde la Pantalla de Edición", 1224},
    {2100, "Ejemplos de ayuda", 1223},
    {2099, "Generación de series", 1222},
    {2052, "Alisado exponencial", 1195},
};

} // namespace

// Siguiente to the last page, Cancelar there: all close.
TEST_F(Manual, CancelarCierraTodas) {
    for (const Cadena &c : Cadenas) {
        SCOPED_TRACE(c.titulo);
        Guion guion;
        for (const int p : c.paginas)
            guion.push_back(Pagina(c.titulo, p, p == c.paginas.back() ? "Cancelar" : "Siguiente"));
        ConGuion(guion, [&] { Ordenar(c.comando); });
    }
}

// Escape is Cancelar, from the middle of a chain too.
TEST_F(Manual, EscapeCierraTodas) {
    for (const Cadena &c : Cadenas) {
        SCOPED_TRACE(c.titulo);
        ConGuion({Pagina(c.titulo, c.paginas[0], "Siguiente"), ConEscape(c.titulo)},
                 [&] { Ordenar(c.comando); });
    }
}

// Siguiente to the last page, Anterior back to the first, which has no Anterior; and forth once more.
TEST_F(Manual, AnteriorVuelve) {
    for (const Cadena &c : Cadenas) {
        SCOPED_TRACE(c.titulo);
        Guion guion;
        for (const int p : c.paginas)
            if (p != c.paginas.back()) guion.push_back(Pagina(c.titulo, p, "Siguiente"));
        for (auto p = c.paginas.rbegin(); p + 1 != c.paginas.rend(); ++p)
            guion.push_back(Pagina(c.titulo, *p, "Anterior"));
        guion.push_back({c.titulo, [&](QDialog &d) {
                             EXPECT_FALSE(Hijo<QWidget>(d, "Anterior")->isVisible());
                             EXPECT_EQ(d.objectName().toStdString(), "P" + std::to_string(c.paginas[0]));
                             Pulsar(d, "Siguiente");
                         }});
        guion.push_back(Pagina(c.titulo, c.paginas[1], "Cancelar"));
        ConGuion(guion, [&] { Ordenar(c.comando); });
    }
}

// A Cancelar doesn't stay behind: the next chain opens and goes back as ever.
TEST_F(Manual, CancelarNoSeQueda) {
    const Cadena &c = Cadenas[0];
    for (int vez = 0; vez < 2; ++vez)
        ConGuion({Pagina(c.titulo, 1194, "Siguiente"), Pagina(c.titulo, 1138, "Anterior"),
                  Pagina(c.titulo, 1194, "Cancelar")},
                 [&] { Ordenar(c.comando); });
}

TEST_F(Manual, PaginasSolas) {
    for (const PaginaSola &p : Solas) {
        SCOPED_TRACE(p.pagina);
        ConGuion({{p.titulo,
                   [&](QDialog &d) {
                       EXPECT_EQ(d.objectName().toStdString(), "P" + std::to_string(p.pagina));
                       for (const char *b : {"Anterior", "Siguiente", "Cancelar"})
                           EXPECT_FALSE(Hijo<QWidget>(d, b)->isVisible()) << b;
                       Pulsar(d, "OK");
                   }}},
                 [&] { Ordenar(p.comando); });
    }
}

// Enter goes on through the chain, and on its last page closes it.
TEST_F(Manual, EnterRecorreLaCadena) {
    for (const Cadena &c : Cadenas) {
        SCOPED_TRACE(c.titulo);
        Guion guion;
        for (const int p : c.paginas)
            guion.push_back({c.titulo, [p](QDialog &d) {
                                 EXPECT_EQ(d.objectName().toStdString(), "P" + std::to_string(p));
                                 Activar(d);
                                 QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
                             }});
        ConGuion(guion, [&] { Ordenar(c.comando); });
    }
}

// A page stays open below the next, which belongs to it.
TEST_F(Manual, LasPaginasSeApilan) {
    const Cadena &c = Cadenas[0];
    ConGuion({Pagina(c.titulo, 1194, "Siguiente"),
              Pagina(c.titulo, 1138, "Siguiente"),
              {c.titulo,
               [](QDialog &d) {
                   for (const char *debajo : {"P1138", "P1194"}) {
                       auto *w = PaginaAbierta(debajo);
                       ASSERT_NE(w, nullptr) << debajo;
                       EXPECT_TRUE(w->isVisible());
                   }
                   EXPECT_EQ(d.parentWidget()->objectName(), QStringLiteral("P1138"));
                   Pulsar(d, "Anterior");
               }},
              {c.titulo,
               [](QDialog &d) {
                   EXPECT_EQ(d.objectName(), QStringLiteral("P1138"));
                   EXPECT_EQ(PaginaAbierta("P1128"), nullptr);
                   Pulsar(d, "Cancelar");
               }}},
             [&] { Ordenar(c.comando); });
}

// An example can be copied with the keyboard alone.
TEST_F(Manual, CopiarConElTeclado) {
    ConGuion({{"Calculadora",
               [](QDialog &d) {
                   Activar(d);
                   QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                   auto *texto = Hijo<QLabel>(d, "texto");
                   EXPECT_EQ(QApplication::focusWidget(), texto);
                   QTest::keyClick(texto, Qt::Key_A, Qt::ControlModifier);
                   QTest::keyClick(texto, Qt::Key_C, Qt::ControlModifier);
                   EXPECT_EQ(QApplication::clipboard()->text(), texto->text());
                   Pulsar(d, "OK");
               }}},
             [&] { Ordenar(2053); });
}

// Every page shows all its lines, examples indented, in a fixed pitch.
TEST_F(Manual, TextoEntero) {
    for (const PaginaManual &p : PaginasManual()) {
        if (p.id == PaginaAcerca) continue;
        SCOPED_TRACE(p.id);
        const std::string titulo = Utf8De1252(p.titulo);
        ConGuion({{titulo.c_str(),
                   [&](QDialog &d) {
                       const QStringList lineas = Hijo<QLabel>(d, "texto")->text().split(u'\n');
                       int i = 0;
                       for (const LineaAyuda *l = p.lineas; l->texto != nullptr; ++l, ++i) {
                           ASSERT_LT(i, lineas.size());
                           EXPECT_TRUE(lineas[i].toStdString().ends_with(Utf8De1252(l->texto)))
                               << lineas[i].toStdString();
                       }
                       EXPECT_EQ(i, lineas.size());
                       QTest::keyClick(&d, Qt::Key_Escape);
                   }}},
                 [&] { DialogoAyuda(AVentana(ventana.get()), {p.id}); });
    }
}

TEST_F(Manual, PaginasQueNoExisten) {
    for (const int p : {0, -1, 1137, 1207, 9999})
        ConGuion({}, [&] { DialogoAyuda(AVentana(ventana.get()), {p}); });
}

TEST_F(Manual, AcercaDe) {
    ConGuion({{"Acerca de..",
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "nombre"), "TABIRA");
                   EXPECT_EQ(TextoDe(d, "captionDiseno"), "Diseño :");
                   EXPECT_EQ(TextoDe(d, "captionProgramacion"), "Programación informática:");
                   for (const char *autor : {"autor0", "autor1", "autor2"})
                       EXPECT_NE(TextoDe(d, autor), "") << autor;
                   for (const char *icono : {"iconoIzquierdo", "iconoDerecho"})
                       EXPECT_FALSE(Hijo<QLabel>(d, icono)->pixmap(Qt::ReturnByValue).isNull()) << icono;
                   Pulsar(d, "OK");
               }}},
             [&] { Ordenar(2046); });
}
