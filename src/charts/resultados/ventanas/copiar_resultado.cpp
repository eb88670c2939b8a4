// A result on the clipboard.
#include "charts/resultados/ventanas/copiar_resultado.h"

#include "charts/resultados/formatos_tabla.h"
#include "platform/qt/ajustes_qt.h"
#include "platform/qt/texto_qt.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

namespace {

constexpr const char *ClaveDeComas = "resultados/comasAlCopiar";

SignoDecimal Signo() {
    return ComasAlCopiar() ? ComaDecimal : PuntoDecimal;
}

void PonerTexto(const std::string &texto) {
    QApplication::clipboard()->setText(QDe1252(texto));
}

} // namespace

void CopiarTexto(const SalidaResultado &salida) {
    PonerTexto(TextoDeResultado(salida));
}

void CopiarComoTabla(const SalidaResultado &salida) {
    CopiarTabla(salida.titulo, TablaDeResultado(salida));
}

void CopiarTabla(std::string_view titulo, const std::string &tabla) {
    auto *datos = new QMimeData;
    datos->setText(QDe1252(TablaEnTexto(tabla, Signo())));
    datos->setHtml(QDe1252(TablaEnHtml(titulo, tabla, Signo())));
    QApplication::clipboard()->setMimeData(datos);
}

void CopiarComoLatex(const SalidaResultado &salida) {
    PonerTexto(TablaEnLatex(salida.titulo, TablaDeResultado(salida), Signo()));
}

void CopiarComoMarkdown(const SalidaResultado &salida) {
    PonerTexto(TablaEnMarkdown(salida.titulo, TablaDeResultado(salida), Signo()));
}

bool ComasAlCopiar() {
    return Eleccion(ClaveDeComas, false);
}

void PonerComasAlCopiar(bool comas) {
    PonerEleccion(ClaveDeComas, comas);
}
