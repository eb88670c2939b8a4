// Opens a file that was named on the command line or dropped on the statements, as the menu does.
#pragma once

class QString;
class VentanaPrincipal;

void AbrirFichero(VentanaPrincipal &ventana, const QString &ruta);
