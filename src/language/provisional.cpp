// PROVISIONAL: stand-ins until the folder's routines are written.
#include "language/evaluador.h"
EstadoEvaluador Evaluador;
void LimpiarEvaluador() {}
bool AbrirPilaColumnas() { return true; }
void CerrarPilaColumnas() {}
int EvaluarFormula(LineasSentencia &, int &, int, int) { return 0; }
ColumnaPila &ColumnaSuperior() { return Evaluador.PilaColumnas[0]; }
double ValorSuperior() { return 0.0; }
void AgruparPrioridades(std::string &, int, int) {}
bool ApilarNumero(double) { return false; }
bool ApilarSerie(int) { return false; }
bool EsCaracterFormula(char) { return false; }
int ParentesisCierre(const std::string &, int) { return 0; }
