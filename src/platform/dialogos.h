// The door to the dialogs. Whoever needs one, a command of the core or the window of a lower folder, asks for it by its
// name; the desktop has one table that says which function shows it. A new dialog is a name here, its form, its
// function and a row of that table. Without a desktop nothing is shown.
#pragma once

struct Ventana;

enum class Dialogo {
    TipoDatos,
    Muestra,
    MuestraActual,
    Lista, // modo: ListasDeElementos
    UltimaRegresion,
    NoEnsamblada,
    Ayuda,     // modo: id of the page
    Decimales, // of DecimalesSalida
    Seleccion, // modo: ModosSeleccion
    Intercambio,
    OrdenarSeries,
    Autocorrelacion, // modo: the command, which tells the function
    Normalidad,
    Prediccion,
    Descriptivos,
    Transformacion,
    MC,
    MCP,
    GraficoValores,  // of the last regression: observed and estimated values
    GraficoResiduos, // of the last regression
    HipotesisNula,
    ModeloRestringido,
    GoldfeldQuandt,
    White,
    Rangos,
    GraficosSeries, // modo: ModosDeGraficos
    Histograma,
    Total // not a dialog: how many there are
};

// What a dialog is handed beside its window. A dialog that needs more adds a field of its type, with a default.
struct DatosDialogo {
    int modo = 0; // as its name above says
};

// Shows the dialog, modal, and returns when it is closed.
void AbrirDialogo(Ventana *ventana, Dialogo cual, const DatosDialogo &datos = {});

// The pages of the manual that a dialog or a window opens by its "Ayuda", and two that have a form of their own.
inline constexpr int PaginaMuestra = 1114; // sample dialog, data type dialog
inline constexpr int PaginaNoEnsamblada = 1125;
inline constexpr int PaginaEdicion = 1126; // editor
inline constexpr int PaginaAscii = 1141;
inline constexpr int PaginaPanel = 1144;
inline constexpr int PaginaHistograma = 1155; // chart of the histogram
inline constexpr int PaginaHipotesisNula = 1159;
inline constexpr int PaginaGoldfeldQuandt = 1162;
inline constexpr int PaginaAutocorrelacion = 1166;   // both autocorrelation functions
inline constexpr int PaginaGraficos = 1180;          // charts of series: choice, window
inline constexpr int PaginaGraficosRegresion = 1183; // residuals, observed and estimated, prediction
inline constexpr int PaginaAcerca = 1198;
