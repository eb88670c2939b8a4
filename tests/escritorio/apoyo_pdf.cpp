// Reading back PDF documents.
#include "apoyo_pdf.h"

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

bool HayPdftotext() {
    return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

QStringList TextoDePdf(const QString &ruta) {
    return SalidaDe("pdftotext", {QStringLiteral("-layout"), QStringLiteral("-enc"), QStringLiteral("UTF-8"),
                                  ruta, QStringLiteral("-")})
        .split(u'\n');
}

void EstaEnElPdf(const QString &texto, const QString &ruta) {
    if (!HayPdftotext()) return;
    QStringList apretadas; // each stretch of blanks made one
    for (const QString &l : TextoDePdf(ruta)) apretadas << l.simplified();
    static const QRegularExpression Palabra(QStringLiteral("[0-9A-Za-z]"));
    for (const QString &linea : texto.split(u'\n')) {
        if (!linea.contains(Palabra)) continue;
        EXPECT_TRUE(apretadas.contains(linea.left(70).simplified())) << linea.toStdString();
    }
}
