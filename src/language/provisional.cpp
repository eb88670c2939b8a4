// PROVISIONAL: stand-ins until the folder's routines are written.
#include "language/asignaciones.h"
#include "language/bloques.h"
#include "language/evaluador.h"
#include "language/lote_sentencias.h"
EstadoLote Lote{1, 2, 0, 0};
DestinosAsignacion Destinos;
void IniciarLote() {}
int ProcesarLote(Ventana *, ControlTexto *, int, std::string_view, int, int) { return 0; }
int EjecutarSentencia(int, LineasSentencia &, int, int &, std::string_view, const std::string &, Ventana *, int &, int &, int &) { return 0; }
int NoEnsamblada(Ventana *) { return 0; }
int EjecutarAsignacion(LineasSentencia &, int &, Ventana *, int, int, int &) { return 0; }
int GuardarSerie() { return 0; }
int GuardarEscalar() { return 0; }
int GuardarObservacion(std::string_view, Ventana *) { return 0; }
int GuardarObservacionMuestra(std::string_view, Ventana *) { return 0; }
int SerieDesdeMatriz(std::string_view, const std::string &, int, Ventana *) { return 0; }
int EjecutarBloque(const std::string &, LineasSentencia &, int &, Ventana *, int &, int &) { return 0; }
