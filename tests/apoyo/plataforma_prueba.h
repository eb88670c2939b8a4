// The platform of the tests: records every box, result window, print page and refresh, and answers questions from a
// script. Texts are kept in UTF-8, so that a test writes them as they are read.
#pragma once

#include "charts/resultados/resultado.h"
#include "platform/impresora.h"
#include "platform/plataforma.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A box that was shown. Printed as `titulo | texto`, with `?` in front when it was a question.
struct CajaVista {
    std::string titulo, texto;
    Icono icono;
    Botones botones;
    bool operator==(const CajaVista &) const = default;
};

// A result window that was shown; lines with their kind, trailing blanks removed.
struct ResultadoVisto {
    TiposDeSalida tipo;
    std::string titulo;
    int clase, contenido;
    std::vector<std::pair<int, std::string>> lineas;
    std::vector<std::pair<int, std::string>> fijas;
};

// A chart that was opened, as its window of 1024 x 768 units and cells of 8 x 16 shows it.
struct GraficoVisto {
    std::string titulo;
    std::vector<OrdenDibujo> ordenes;
};

// A print job that came to its end. The pages are kept as drawn, too.
struct TrabajoVisto {
    std::string titulo, documento;
    std::vector<std::vector<std::string>> paginas; // the lines of each page
    std::deque<PaginaImpresa> dibujo;
};

// Steps at which the printer can refuse.
enum PasosDeImpresora {
    PasoAbrir,
    PasoDocumento,
    PasoPagina,
    PasoFinPagina,
    PasoFinDocumento,
    NumPasosDeImpresora
};

// A dialog that was asked for.
struct DialogoPedido {
    Dialogo cual;
    DatosDialogo datos;
};

// A file that was asked for.
struct ArchivoPedido {
    bool guardar;
    std::string titulo, nombre;
    std::vector<std::string> filtros;
};

// A note, in UTF-8, with the line of its batch.
struct NotaVista {
    int linea;
    std::string texto;
    bool operator==(const NotaVista &) const = default;
};

struct PlataformaDePrueba {
    std::vector<CajaVista> cajas;
    std::vector<NotaVista> notas;
    std::vector<ResultadoVisto> resultados;
    std::vector<GraficoVisto> graficos;
    std::function<void(Grafico &)> enGrafico; // what is done with an open chart, after its first painting
    std::deque<Respuesta> respuestas;         // for the questions to come; when empty, yes or OK
    int refrescos = 0;                        // calls of RefrescarEditor
    Cursor cursor = CursorFlecha;
    std::int32_t segundos = 1234567; // what SegundosDeCalendario answers
    std::vector<TrabajoVisto> trabajos;
    std::vector<std::string>
        pasosImpresora; // "abrir", "documento NOMBRE", "pagina", "fin pagina", "fin documento", "cerrar"
    // A step refuses from this occurrence in a job on, counted from 1; 0: never.
    int fallaPaso[NumPasosDeImpresora] = {};
    std::vector<DialogoPedido> dialogos;
    // Run when a dialog is asked for, in its place: what the user does there.
    std::function<void(const DialogoPedido &)> enDialogo;
    std::vector<ArchivoPedido> archivos;
    std::deque<std::string> rutas; // answers to the files asked for; when empty, the user cancels
    std::string titulo;            // of the window
    std::string textoControl;      // text of the one control, in Windows-1252
    int desde = 0, hasta = 0;      // its selection
};

extern PlataformaDePrueba Prueba;

// Installs the platform anew, with nothing recorded, and an empty work file without a data type. The trace is off, unless
// the environment has TABIRA_PRUEBAS_TRAZA: what a test expects it must find with it, too.
void EmpezarPrueba();

// What comes with the program is that of the sources, wherever the tests are built; part of EmpezarPrueba.
void BuscarEnLasFuentes();

// EmpezarPrueba, then a work file of the given kind (TiposDeDatos), the periods as its dialog's fields take them joined
// in TextoIntervalo's columns, such as "1990#2005"; empty for type 0.
void EmpezarConDatos(int tipo, std::string_view intervalo);

// Creates a series, its values from row `primera` on; a NaN is a missing value.
void PonerSerie(std::string_view codigo, const std::vector<double> &valores, int primera = 0);

// Values of a series in rows 0 to n - 1; NaN for a missing value or when there is no such series.
std::vector<double> ValoresDe(std::string_view codigo, int n);

// Value of a scalar, NaN when there is none.
double EscalarDe(std::string_view codigo);

// Elements of a matrix by rows, empty when there is none; its size through the two references.
std::vector<double> MatrizDe(std::string_view codigo, int &filas, int &columnas);
void PonerMatriz(std::string_view codigo, const std::vector<double> &datos, int filas, int columnas);

// The texts of the boxes shown since EmpezarPrueba, in order.
std::vector<std::string> TextosDeCajas();

// Runs a text (UTF-8) as the edit screen does with everything selected, over the refreshed sample. True when the
// batch ran to its end.
bool Procesar(std::string_view texto);

// Runs one statement as a dialog does. True when it didn't stop.
bool Sentencia(std::string_view texto);
