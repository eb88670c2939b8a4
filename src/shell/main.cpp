// tabira: the desktop program. It takes no options, but a file to open.
#include "platform/qt/ajustes_qt.h"
#include "platform/qt/ventana_qt.h"
#include "shell/comandos.h"
#include "shell/ventanas/abrir_fichero_qt.h"
#include "shell/ventanas/aplicacion.h"
#include "shell/ventanas/escritorio.h"
#include "shell/ventanas/ventana_principal.h"

#include <QApplication>

int main(int numArgumentos, char **argumentos) {
    QApplication aplicacion(numArgumentos, argumentos);
    PrepararAplicacion();
    PrepararEscritorio();
    RecordarSitios(aplicacion);
    IniciarPrograma();
    VentanaPrincipal ventana;
    // What they may ask stands in the middle of the window, which has its place and size only by then.
    ventana.TrasLaPortada = [&ventana] {
        IniciarCopias(AVentana(&ventana));
        if (const QStringList palabras = QApplication::arguments(); palabras.size() > 1)
            AbrirFichero(ventana, palabras[1]);
    };
    ventana.showMaximized();
    return QApplication::exec();
}
