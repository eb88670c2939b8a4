// The result window without the window: what stands on its surface, and how it scrolls.
#pragma once

#include "charts/resultados/forma_ventana.h"
#include "charts/resultados/resultado.h"
#include "platform/superficie.h"

// State of an open result window.
struct EstadoVentanaResultado {
    int Clase;        // kind of result: code of the statement
    int Contenido;    // 0 the report, 1 covariance matrix, 2 values and residuals, 3 analysis of variance
    int LineaInicial; // first line shown, 0 to the last line
    int Fila;         // rows used in this paint: lines and rules
    int anchoCaracter, altoLinea; // of the device of the last paint
    int LineaDetras = 0;          // the one behind the last line drawn in this paint
};

// True when a rule is drawn behind the line (from 0): the next one is of another kind, and not both are among the last
// ones that have no rule. Behind the last line there is none: there the block closes.
bool ReglaDetras(const SalidaResultado &salida, int linea);

// Where a block of lines stands on a surface, in device units.
struct BloqueTexto {
    int izquierda, derecha;     // side rules
    int superior;               // rule at the top
    int limite;                 // no line begins below this
    int filasVacias = 0;        // inside, above the first and below the last line
    int maximo = 0;             // lines, not counting the fixed ones; 0: as many as fit
    bool titulosDentro = false; // the fixed lines stand centred
};

// The two side rules of the block of a result on a surface of this width.
BloqueTexto BloqueDe(const FormaVentana &forma, const Superficie &s, int superior, int limite);

// Draws the fixed lines, then the others from `desde` on as far as they fit, with the rules between kinds, those around
// the block, and the thin vertical rules of the tables. Lines are cut at the width of the block. `filas` receives the
// rows used. Returns the number of the line behind the last one drawn.
int PintarBloque(Superficie &s, const BloqueTexto &bloque, const SalidaResultado &salida, int desde,
                 int &filas);

// Paints the whole window; `estado` gives the first line and receives Fila, LineaDetras and the
// metrics.
void PintarResultado(Superficie &s, EstadoVentanaResultado &estado, const SalidaResultado &salida);

// Lines below those of the last paint, 0 when the last one of the text is shown.
int LineasPorDebajo(const EstadoVentanaResultado &estado, const SalidaResultado &salida);

// The line, from 0, and the column of its text at a point of the window as it was painted last; in an area of this size.
// False where no line that scrolls stands.
bool LineaEnPunto(const EstadoVentanaResultado &estado, const SalidaResultado &salida, int ancho, int alto,
                  PuntoDibujo punto, int &linea, int &columna);

// What the bar asks for. Line up and down is one line, page up and down five, DesplazarA goes to `posicion`.
enum Desplazamientos { LineaArriba, LineaAbajo, PaginaArriba, PaginaAbajo, DesplazarA };

// Moves the first line, held between 0 and the last line of the text, and takes Fila back to 0. The window is then to
// be painted anew. A window without a bar stays where it is.
void DesplazarResultado(EstadoVentanaResultado &estado, const SalidaResultado &salida, Desplazamientos que,
                        int posicion = 0);

// The same from the keyboard and from the wheel: a notch, positive towards the user, is three lines.
enum TeclasResultado { TeclaArriba, TeclaAbajo, TeclaPaginaArriba, TeclaPaginaAbajo, TeclaInicio, TeclaFin };
void DesplazarConTecla(EstadoVentanaResultado &estado, const SalidaResultado &salida, TeclasResultado tecla);
void DesplazarConRueda(EstadoVentanaResultado &estado, const SalidaResultado &salida, int muescas);
