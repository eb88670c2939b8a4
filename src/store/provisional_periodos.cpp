// PROVISIONAL: stand-ins until the routines of periods are written.
#include "store/archivo.h"
#include "store/periodos.h"
DescripcionDePanel DescripcionPanel;
EstadoDeMuestra Muestra;
void ActualizarMuestra() {}
void MuestraDeSentencia(std::string_view) {}
void AceptarDialogoMuestra(std::string_view, std::string_view) {}
void PrepararDialogoMuestra() {}
std::vector<std::string> LineasMuestraActual() { return {}; }
void LimpiarLimitesMuestra() {}
void ConstruirPeriodos() {}
