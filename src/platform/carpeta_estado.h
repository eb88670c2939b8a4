// The folder in which a program keeps what it needs between two runs, its files, and locks that end with their process.
// Paths are bytes as the system takes them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The user's folder for the state of this program (XDG_STATE_HOME or ~/.local/state), made if it isn't there. Empty when
// there is none.
std::string CarpetaDeEstado();

// The paths of the files of the folder whose name has this ending (".TR2") or the other one, the newest first.
std::vector<std::string> ArchivosConTerminacion(const std::string &carpeta, std::string_view terminacion,
                                                std::string_view otra = {});

// A path in the folder that names this process: `nombre`, its number and, from the second one on, `cual`.
std::string RutaDeProceso(const std::string &carpeta, const std::string &nombre, int cual);

// Takes the lock that this file stands for, which is made if it isn't there. -1 when another process holds it, or it
// can't be made; else the number by which it is let go, at the latest by the end of the process. Letting it go deletes
// the file.
int TomarCerrojo(const std::string &ruta);
void SoltarCerrojo(int cerrojo, const std::string &ruta);

bool MoverArchivo(const std::string &ruta, const std::string &destino);
void BorrarArchivo(const std::string &ruta);
