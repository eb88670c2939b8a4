// What the application is to its desktop.
#include "shell/ventanas/aplicacion.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

#include <clocale>

void PrepararAplicacion() {
    // The toolkit took the locale of the desktop; numbers in formulas, reports and files keep the decimal point.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("tabira"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName(QStringLiteral("tabira"));
    QIcon icono;
    for (int lado : {16, 32, 64, 128})
        icono.addFile(QStringLiteral(":/tabira/icono%1.png").arg(lado), QSize(lado, lado));
    QApplication::setWindowIcon(icono);
    static QTranslator espanol; // the texts of a field's menu, of the file dialog
    if (espanol.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&espanol);
}
