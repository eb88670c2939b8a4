// Runs the tests of the windows: an application without a display, whose user has a home of its own in the build.
#include "shell/ventanas/aplicacion.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

int main(int numArgumentos, char **argumentos) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What is printed and saved stays in the build, and never reaches the paper of whoever runs the tests.
    // Each run has a folder of its own, since several run at once.
    QDir().mkpath(QStringLiteral(TABIRA_CASA));
    const QTemporaryDir propia(QStringLiteral(TABIRA_CASA "/XXXXXX"));
    const QString casa = propia.path();
    QDir().mkpath(casa + QStringLiteral("/Documents"));
    qputenv("HOME", casa.toUtf8());
    qputenv("XDG_DOCUMENTS_DIR", (casa + QStringLiteral("/Documents")).toUtf8());
    qputenv("CUPS_SERVER", "127.0.0.1:1");
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "PRINTER", "LPDEST"})
        qunsetenv(variable);
    // Of windows without a screen the toolkit says nothing of interest.
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false;default.warning=false");
    qputenv("XDG_RUNTIME_DIR", casa.toUtf8());
    const QApplication aplicacion(numArgumentos, argumentos);
    PrepararAplicacion();
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&numArgumentos, argumentos);
    return RUN_ALL_TESTS();
}
