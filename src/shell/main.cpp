// tabira: the desktop program. It takes no options.
#include "platform/qt/ventana_qt.h"
#include "shell/comandos.h"
#include "shell/ventanas/aplicacion.h"
#include "shell/ventanas/escritorio.h"
#include "shell/ventanas/ventana_principal.h"

#include <QApplication>

int main(int numArgumentos, char **argumentos) {
    const QApplication aplicacion(numArgumentos, argumentos);
    PrepararAplicacion();
    PrepararEscritorio();
    IniciarPrograma();
    VentanaPrincipal ventana;
    // What it may ask stands in the middle of the window, which has its place and size only by then.
    ventana.TrasLaPortada = [&ventana] { IniciarCopias(AVentana(&ventana)); };
    ventana.showMaximized();
    return QApplication::exec();
}
