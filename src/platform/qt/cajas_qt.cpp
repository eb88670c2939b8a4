// The modal boxes of the desktop.
#include "platform/qt/cajas_qt.h"

#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>

#include <vector>

namespace {

constexpr QMessageBox::Icon Iconos[] = {QMessageBox::Information, QMessageBox::Question, QMessageBox::Warning,
                                        QMessageBox::Critical};

struct BotonDeCaja {
    Respuesta respuesta;
    const char *texto; // Windows-1252
    const char *nombre;
    QMessageBox::ButtonRole papel;
};

constexpr BotonDeCaja Aceptar = {RespuestaAceptar, "&Aceptar", "Aceptar", QMessageBox::AcceptRole};
constexpr BotonDeCaja Cancelar = {RespuestaCancelar, "&Cancelar", "Cancelar", QMessageBox::RejectRole};
constexpr BotonDeCaja Si = {RespuestaSi, "&Sí"_w, "Si", QMessageBox::YesRole};
constexpr BotonDeCaja No = {RespuestaNo, "&No", "No", QMessageBox::NoRole};

// By Botones, the default first; the last one answers Escape, where it cancels.
constexpr struct {
    int numero;
    BotonDeCaja boton[3];
} BotonesDeCaja[] = {{1, {Aceptar}}, {2, {Aceptar, Cancelar}}, {2, {Si, No}}, {3, {Si, No, Cancelar}}};

// A box must stay on the screen, and what stands at the end of a message is its number. So a formula of 100,000 characters
// loses its middle, and a word that is longer than a line may break where no blank is.
QString TextoQueCabe(std::string_view texto) {
    constexpr std::size_t Principio = 1600, Final = 400;
    constexpr int LetrasDeUnaLinea = 60;
    constexpr QChar Rotura(0x200B); // a blank of no width
    const QString entero = texto.size() <= Principio + Final
                               ? QDe1252(texto)
                               : QDe1252(texto.substr(0, Principio)) + QStringLiteral("...") +
                                     QDe1252(texto.substr(texto.size() - Final));
    QString roto;
    int seguidas = 0;
    for (const QChar letra : entero) {
        seguidas = letra.isSpace() ? 0 : seguidas + 1;
        roto += letra;
        if (seguidas % LetrasDeUnaLinea == 0 && seguidas > 0) roto += Rotura;
    }
    return roto;
}

} // namespace

Respuesta CajaQt(Ventana *ventana, std::string_view texto, std::string_view titulo, Icono icono,
                 Botones botones) {
    QMessageBox caja(DeVentana(ventana));
    caja.setObjectName(QStringLiteral("caja"));
    caja.setWindowTitle(QDe1252(titulo));
    caja.setTextFormat(Qt::PlainText);
    caja.setText(TextoQueCabe(texto));
    caja.setIcon(Iconos[icono]);
    const auto &deCaja = BotonesDeCaja[botones];
    std::vector<QPushButton *> puestos;
    for (int i = 0; i < deCaja.numero; ++i) {
        puestos.push_back(caja.addButton(QDe1252(deCaja.boton[i].texto), deCaja.boton[i].papel));
        puestos.back()->setObjectName(QString::fromLatin1(deCaja.boton[i].nombre));
    }
    // The box asks its grid for its width, and never looks at its own title.
    if (auto *rejilla = qobject_cast<QGridLayout *>(caja.layout()))
        rejilla->addItem(new QSpacerItem(AnchoConTitulo(caja), 0), rejilla->rowCount(), 0, 1,
                         rejilla->columnCount());
    caja.setDefaultButton(puestos.front());
    caja.setEscapeButton(puestos.back());
    // The wait cursor of a batch must not stand over a question.
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    Modal(caja);
    QApplication::restoreOverrideCursor();
    int pulsado = deCaja.numero - 1;
    for (int i = 0; i < deCaja.numero; ++i)
        if (caja.clickedButton() == puestos[static_cast<std::size_t>(i)]) pulsado = i;
    return deCaja.boton[pulsado].respuesta;
}
