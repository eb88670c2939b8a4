// The main window of the tests, and the script of modal windows.
#include "apoyo_escritorio.h"

#include "platform/campos_texto.h"
#include "platform/qt/ventana_qt.h"
#include "shell/comandos.h"
#include "shell/ventanas/escritorio.h"
#include "store/archivo.h"
#include "store/panel.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace {

struct EstadoGuion {
    Guion pasos;
    std::size_t siguiente = 0;
    std::vector<QDialog *> enCurso; // windows whose step hasn't come back yet
    int vueltasDeMas = 0;
    bool terminado = false;
};
using Estado = std::shared_ptr<EstadoGuion>;

void Mirar(const Estado &e);

void VolverAMirar(const Estado &e) {
    QTimer::singleShot(1, qApp, [e] { Mirar(e); });
}

void Mirar(const Estado &e) {
    if (e->terminado) return;
    VolverAMirar(e); // before the step: a window that it opens runs its own loop
    auto *d = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (d == nullptr || !d->isVisible() || (!e->enCurso.empty() && e->enCurso.back() == d)) return;
    if (e->siguiente >= e->pasos.size()) {
        if (++e->vueltasDeMas < 50) return; // it may be about to close
        e->vueltasDeMas = 0;
        ADD_FAILURE() << "a window that nobody expects: " << d->windowTitle().toStdString();
        d->done(QDialog::Rejected);
        return;
    }
    const Paso paso = e->pasos[e->siguiente++];
    SCOPED_TRACE(paso.titulo);
    if (d->windowTitle().toStdString() != paso.titulo) {
        ADD_FAILURE() << "another window: " << d->windowTitle().toStdString();
        d->done(QDialog::Rejected);
        return;
    }
    e->enCurso.push_back(d);
    paso.hacer(*d);
    e->enCurso.pop_back();
}

std::vector<std::string> Codigos(int numero, const std::function<const char *(int)> &codigo) {
    std::vector<std::string> r;
    for (int i = 0; i < numero; ++i) r.emplace_back(Recortado(codigo(i)));
    return r;
}

} // namespace

void Escritorio::SetUp() {
    EmpezarPrueba();
    LimpiarEdicionPanel();
    PrepararEscritorio();
    ventana = std::make_unique<VentanaPrincipal>();
    IniciarPrograma();
}

void Escritorio::Ordenar(int id) {
    if (auto *entrada = ventana->findChild<QAction *>(QStringLiteral("comando%1").arg(id))) {
        entrada->trigger();
    } else {
        EjecutarComando(AVentana(ventana.get()), id);
    }
}

void PonerDatos(int tipo, std::string_view intervalo) {
    EmpezarConDatos(tipo, intervalo);
    PrepararEscritorio();
}

void ConGuion(const Guion &guion, const std::function<void()> &llamada) {
    const auto estado = std::make_shared<EstadoGuion>();
    estado->pasos = guion;
    VolverAMirar(estado);
    llamada();
    estado->terminado = true;
    for (std::size_t i = estado->siguiente; i < guion.size(); ++i)
        ADD_FAILURE() << "a window that didn't come: " << guion[i].titulo;
}

Paso Caja(const char *titulo, const char *texto, const char *boton, QMessageBox::Icon icono) {
    return {titulo, [=](QDialog &d) {
                auto *caja = qobject_cast<QMessageBox *>(&d);
                ASSERT_NE(caja, nullptr);
                EXPECT_EQ(caja->text().toStdString(), texto);
                EXPECT_EQ(caja->icon(), icono);
                Pulsar(d, boton);
            }};
}

Paso Pulsando(const char *titulo, const char *boton) {
    return {titulo, [=](QDialog &d) { Pulsar(d, boton); }};
}

Paso ConEscape(const char *titulo) {
    return {titulo, [](QDialog &d) { QTest::keyClick(&d, Qt::Key_Escape); }};
}

double Contraste(const QColor &a, const QColor &b) {
    const auto luz = [](const QColor &c) {
        const auto parte = [](double v) {
            return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * parte(c.redF()) + 0.7152 * parte(c.greenF()) + 0.0722 * parte(c.blueF());
    };
    const double x = luz(a), y = luz(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

QPalette Paleta(bool oscura) {
    return oscura ? QPalette(QColor(53, 53, 53), QColor(42, 42, 42)) : QPalette(QColor(239, 239, 239));
}

void Activar(QDialog &d) {
    d.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &d; }, 1000));
}

void Pulsar(QWidget &w, const char *boton) {
    if (auto *b = Hijo<QAbstractButton>(w, boton)) {
        EXPECT_TRUE(b->isVisible()) << boton;
        // On its mark: a radio button takes clicks on its text only as far as the text goes.
        QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(8, b->height() / 2));
    } else {
        w.close(); // not to hang
    }
}

void Escribir(QWidget &w, const char *campo, const char *texto) {
    auto *e = Hijo<QLineEdit>(w, campo);
    if (e == nullptr) return;
    e->setFocus();
    e->selectAll();
    QTest::keyClick(e, Qt::Key_Delete);
    QTest::keyClicks(e, QString::fromUtf8(texto));
}

std::string TextoDe(QWidget &w, const char *control) {
    QWidget *c = Hijo<QWidget>(w, control);
    if (auto *l = qobject_cast<QLabel *>(c)) return l->text().toStdString();
    if (auto *b = qobject_cast<QAbstractButton *>(c)) return b->text().toStdString();
    if (auto *e = qobject_cast<QLineEdit *>(c)) return e->text().toStdString();
    return {};
}

std::vector<std::string> LineasDe(QWidget &w, const char *lista) {
    std::vector<std::string> r;
    if (auto *l = Hijo<QListWidget>(w, lista))
        for (int i = 0; i < l->count(); ++i) r.push_back(l->item(i)->text().toStdString());
    return r;
}

std::vector<std::string> EntradasDelMenu(const QDialog &d) {
    std::vector<std::string> r;
    if (const auto *barra = d.findChild<QMenuBar *>())
        for (const QAction *a : barra->actions()) r.push_back(a->text().toStdString());
    return r;
}

QString NotaDeImpresion(QWidget &w) {
    const auto *lugar = Hijo<QLabel>(w, "lugarDeImpresion");
    return lugar != nullptr && lugar->isVisibleTo(&w) ? QString(lugar->text()).remove(QChar(0x200B))
                                                      : QString();
}

void Elegir(QWidget &w, const char *lista, int linea) {
    auto *l = Hijo<QListWidget>(w, lista);
    if (l == nullptr) return;
    ASSERT_LT(linea, l->count());
    l->scrollToItem(l->item(linea));
    QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, l->visualItemRect(l->item(linea)).center());
}

void ElegirDelMenu(QWidget &w, const char *entrada) {
    QTimer::singleShot(20, &w, [=] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction *a : menu->actions()) {
            if (QString(a->text()).remove(u'&').toStdString() != entrada) continue;
            menu->setActiveAction(a);
            QTest::keyClick(menu, Qt::Key_Return);
            return;
        }
        ADD_FAILURE() << "no entry " << entrada;
        menu->close();
    });
}

void DelMenu(QWidget &w, const char *entrada) {
    ElegirDelMenu(w, entrada);
    QContextMenuEvent suceso(QContextMenuEvent::Keyboard, {20, 20}, w.mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(&w, &suceso);
}

std::vector<std::string> CodigosDeSeries() {
    return Codigos(ArchivoTrabajo.NumSeries, [](int i) { return ArchivoTrabajo.Codigos[i]; });
}

std::vector<std::string> CodigosDeEscalares() {
    return Codigos(TablaEscalares.numero, [](int i) { return TablaEscalares.registro[i].Codigo; });
}
