// Files that are named outside the menus.
#include "shell/ventanas/abrir_fichero_qt.h"

#include "platform/archivo_dado.h"
#include "platform/qt/ajustes_qt.h"
#include "shell/abrir_fichero.h"
#include "shell/ventanas/ventana_principal.h"

#include <QFileInfo>

void AbrirFichero(VentanaPrincipal &ventana, const QString &ruta) {
    // Whole, as the chooser of files gives it.
    const QFileInfo fichero(ruta);
    if (fichero.isFile()) AnotarReciente(fichero.absoluteFilePath());
    const std::string entera = fichero.absoluteFilePath().toStdString();
    DarArchivo(entera);
    ventana.Ordenar(ComandoDeFichero(entera));
    DarArchivo({}); // a command that stopped before its file leaves none for the next one
}
