// tabira-lote: Tabira without windows.
#include "language/palabras.h"
#include "lote/acciones.h"
#include "lote/sucesos.h"
#include "store/archivo.h"

#include <cstdio>

int main(int numArgumentos, char **argumentos) {
    InstalarPlataformaLote();
    IniciarArchivoTrabajo();
    IniciarProcedimientos();
    const int primero = numArgumentos > 0 ? 1 : 0; // a program may be started without even its own name
    const int estado = EjecutarLinea({argumentos + primero, argumentos + numArgumentos});
    LiberarMatrices();
    // A full disk or a closed pipe must not pass for a run that went well.
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        std::perror("tabira-lote: salida");
        return EstadoFallo;
    }
    return estado;
}
