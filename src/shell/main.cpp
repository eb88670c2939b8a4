// tabira: the desktop program. It takes no options.
#include "platform/qt/plataforma_qt.h"
#include "shell/comandos.h"
#include "shell/ventanas/ventana_principal.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

#include <clocale>

int main(int numArgumentos, char **argumentos) {
    QApplication aplicacion(numArgumentos, argumentos);
    // The toolkit took the locale of the desktop; numbers in formulas, reports and files keep the decimal point.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("tabira"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName(QStringLiteral("tabira"));
    QIcon icono;
    for (int lado : {16, 32, 64, 128})
        icono.addFile(QStringLiteral(":/tabira/icono%1.png").arg(lado), QSize(lado, lado));
    QApplication::setWindowIcon(icono);
    // The toolkit's own texts (the menu of a text field, the file dialog) in Spanish, where its translation is installed.
    QTranslator espanol;
    if (espanol.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&espanol);

    InstalarPlataformaQt();
    InstalarOperacionesEscritorio();
    VentanaPrincipal ventana;
    ventana.showMaximized();
    IniciarPrograma();
    return QApplication::exec();
}
