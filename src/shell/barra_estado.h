// What the status line of the main window says: the work file and its sample, and at its left how the last batch
// ended and what it noted. It only looks: neither the sample nor a batch knows of it. Texts are in Windows-1252.
#pragma once

#include <string>
#include <string_view>

struct EstadoDeBarra {
    std::string archivo; // "Anual 1920-1941", or "Sin tipo de datos"
    std::string
        muestra;     // "Muestra 1921-1924 (4 de 22)", as the next command finds it; empty without a data type
    std::string vsr; // "VSR SI"
    std::string
        porque; // why the automatic sample is shorter than that of the last batch; empty where it isn't
};

EstadoDeBarra EstadoActualDeBarra();

// "Anual 1920-1941 | Muestra 1921-1924 (4 de 22) | VSR SI | Lín 5, Col 9"; line and column from 1.
std::string TextoDeBarra(const EstadoDeBarra &estado, int linea, int columna);

// ----- The message

// "Procesando...", while a batch runs; "8 sentencias procesadas", "Detenido en la línea 5: SER LB = LN(BENEFF)" or
// "Procesado hasta la línea 5" behind it, with the first of its notes; or a note alone.
std::string MensajeDeBarra();

// A command begins: what stood there was of the one before.
void OlvidarMensajeDeBarra();

// A batch begins (the sample is noted, for the comparison with the next one), and has come to its end.
void EmpezarLoteEnBarra();
void TerminarLoteEnBarra();

// A note of the batch at hand or, with line 0, of a command.
void AnotarEnBarra(std::string_view texto, int linea);
