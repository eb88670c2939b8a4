// The modal boxes of the desktop.
#include "platform/qt/cajas_qt.h"

#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

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
const std::vector<BotonDeCaja> BotonesDeCaja[] = {
    {Aceptar}, {Aceptar, Cancelar}, {Si, No}, {Si, No, Cancelar}};

} // namespace

Respuesta CajaQt(Ventana *ventana, std::string_view texto, std::string_view titulo, Icono icono,
                 Botones botones) {
    QMessageBox caja(DeVentana(ventana));
    caja.setObjectName(QStringLiteral("caja"));
    caja.setWindowTitle(QDe1252(titulo));
    caja.setTextFormat(Qt::PlainText);
    // A formula of 100,000 characters is told in full elsewhere; a box must stay on the screen.
    constexpr std::size_t MasLargo = 2000;
    caja.setText(QDe1252(texto.substr(0, MasLargo)) +
                 (texto.size() > MasLargo ? QStringLiteral("...") : QString()));
    caja.setIcon(Iconos[icono]);
    std::vector<QPushButton *> puestos;
    for (const BotonDeCaja &b : BotonesDeCaja[botones]) {
        puestos.push_back(caja.addButton(QDe1252(b.texto), b.papel));
        puestos.back()->setObjectName(QString::fromLatin1(b.nombre));
    }
    caja.setDefaultButton(puestos.front());
    caja.setEscapeButton(puestos.back());
    // The wait cursor of a batch must not stand over a question.
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    caja.exec();
    QApplication::restoreOverrideCursor();
    for (std::size_t i = 0; i < puestos.size(); ++i)
        if (caja.clickedButton() == puestos[i]) return BotonesDeCaja[botones][i].respuesta;
    return BotonesDeCaja[botones].back().respuesta;
}
