// What forms repeat.
#include "platform/qt/formulario.h"

#include "platform/qt/dialogo_decimales.h"
#include "platform/qt/texto_qt.h"

#include <QMenuBar>

namespace {

// Enter in a list would press the dialog's OK, and the blank do nothing: both choose the current line.
class TeclaQueElige : public QObject {
public:
    TeclaQueElige(QListWidget &l, const std::function<void(QListWidgetItem &)> &e)
        : QObject(&l), lista(l), elegir(e) {}

protected:
    bool eventFilter(QObject *, QEvent *suceso) override {
        if (suceso->type() != QEvent::KeyPress) return false;
        const int tecla = static_cast<QKeyEvent *>(suceso)->key();
        if (tecla != Qt::Key_Return && tecla != Qt::Key_Enter && tecla != Qt::Key_Space) return false;
        const int fila = FilaElegida(lista);
        if (fila >= 0) elegir(*lista.item(fila));
        return true;
    }

private:
    QListWidget &lista;
    std::function<void(QListWidgetItem &)> elegir;
};

void Anadir(const QListWidgetItem &elemento, QLineEdit &campo, const ReglaDeAnadir &regla) {
    const std::string texto = De1252Q(campo.text());
    const std::string nuevo = TextoConElemento(texto, De1252Q(elemento.text()), regla);
    if (nuevo == texto) return;
    campo.selectAll();
    campo.insert(QDe1252(nuevo)); // the field's undo takes it back
}

} // namespace

int BotonElegido(std::initializer_list<const QAbstractButton *> botones) {
    const auto *b = std::find_if(botones.begin(), botones.end(), [](auto *x) { return x->isChecked(); });
    return b != botones.end() ? static_cast<int>(b - botones.begin()) : -1;
}

void AbreAyuda(QDialog &dialogo, QPushButton &boton, int pagina) {
    QObject::connect(&boton, &QPushButton::clicked, &dialogo,
                     [&dialogo, pagina] { AbrirDialogo(AVentana(&dialogo), Dialogo::Ayuda, {pagina}); });
}

void PonerLineas(QListWidget &lista, const std::vector<std::string> &lineas) {
    for (const std::string &linea : lineas) lista.addItem(QDe1252(linea));
    lista.setCurrentIndex({}); // a list that was cleared would take its first line for the current one again
}

QAction *EntradaDeMenu(QDialog &dialogo, const char *texto, const std::function<void()> &hacer) {
    auto *barra = qobject_cast<QMenuBar *>(dialogo.layout()->menuBar());
    if (barra == nullptr) {
        barra = new QMenuBar(&dialogo);
        barra->setObjectName(QStringLiteral("menuDialogo"));
        barra->setNativeMenuBar(false); // it belongs to this window, whatever the desktop does with menus
        dialogo.layout()->setMenuBar(barra);
    }
    QAction *entrada = barra->addAction(QDe1252(texto));
    entrada->setObjectName(entrada->text().remove(u'&'));
    QObject::connect(entrada, &QAction::triggered, &dialogo, hacer);
    return entrada;
}

void MenuAyuda(QDialog &dialogo, int pagina) {
    EntradaDeMenu(dialogo, "&Ayuda",
                  [&dialogo, pagina] { AbrirDialogo(AVentana(&dialogo), Dialogo::Ayuda, {pagina}); });
}

void MenuDecimales(QDialog &dialogo, int &decimales) {
    EntradaDeMenu(dialogo, "&Decimales",
                  [&dialogo, &decimales] { DialogoDecimales(decimales, AVentana(&dialogo)); });
}

void AlElegir(QListWidget &lista, Eleccion eleccion, const std::function<void(QListWidgetItem &)> &elegir) {
    const auto conRaton = [elegir](QListWidgetItem *linea) { elegir(*linea); };
    QObject::connect(&lista,
                     eleccion == EligeUnClic ? &QListWidget::itemClicked : &QListWidget::itemDoubleClicked,
                     &lista, conRaton);
    lista.installEventFilter(new TeclaQueElige(lista, elegir));
}

void AnadirElegido(const QListWidget &lista, QLineEdit &campo, const ReglaDeAnadir &regla) {
    const int fila = FilaElegida(lista);
    if (fila >= 0) Anadir(*lista.item(fila), campo, regla);
}

void AnadeAlCampo(QListWidget &lista, Eleccion eleccion, QLineEdit &campo, const ReglaDeAnadir &regla) {
    campo.setMaxLength(regla.longitud);
    AlElegir(lista, eleccion, [&campo, regla](const QListWidgetItem &linea) { Anadir(linea, campo, regla); });
}
