// Reading back PDF documents.
#include "apoyo_pdf.h"

#include "platform/impresora_grabadora.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <gtest/gtest.h>

QString Casa() {
    return qEnvironmentVariable("HOME");
}

QDir Documentos() {
    return {QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)};
}

QByteArray Leer(const QString &ruta) {
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString SalidaDe(const char *programa, const QStringList &argumentos) {
    QProcess p;
    p.start(QString::fromLatin1(programa), argumentos);
    if (!p.waitForStarted() || !p.waitForFinished()) return {};
    return QString::fromUtf8(p.readAllStandardOutput());
}

QStringList TextoDePdf(const QString &ruta) {
    EXPECT_FALSE(QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty());
    const double anchoCaracter = AnchoCaracterPagina * 72.0 / PuntosPorPulgada;
    return SalidaDe("pdftotext", {QStringLiteral("-fixed"), QString::number(anchoCaracter),
                                  QStringLiteral("-enc"), QStringLiteral("UTF-8"), ruta, QStringLiteral("-")})
        .split(u'\n');
}

void EstaEnElPdf(const QString &texto, const QString &ruta) {
    const QString pdf = TextoDePdf(ruta).join(u'\n');
    static const QRegularExpression Palabra(QStringLiteral("[0-9A-Za-z]"));
    for (const QString &linea : texto.split(u'\n')) {
        if (!linea.contains(Palabra)) continue;
        EXPECT_TRUE(pdf.contains(linea.left(70).trimmed())) << linea.toStdString() << "\n"
                                                            << pdf.toStdString();
    }
}
