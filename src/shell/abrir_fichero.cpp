// Files that are named outside the menus.
#include "shell/abrir_fichero.h"

#include "platform/campos_texto.h"
#include "shell/ids_comandos.h"

#include <algorithm>

int ComandoDeFichero(const std::string &ruta) {
    std::string terminacion = ruta.substr(std::min(ruta.find_last_of("./"), ruta.size()));
    PonerEnMayusculas(terminacion);
    if (terminacion == ".TR2") return ComandoAbrirTrabajo;
    return terminacion == ".TXT" ? ComandoAbrirSentencias : ComandoImportar;
}
