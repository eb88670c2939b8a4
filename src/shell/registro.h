// The log of a session: statements, boxes with their answers, notes and results, in their order. It stands before the platform's
// operations and hands every call on.
#pragma once

#include "charts/resultados/resultado.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <string>

enum ClasesDeEntrada { EntradaSentencias, EntradaCaja, EntradaNota, EntradaResultado };

// A result with all that its window points to. Its charts, which show what the program last computed, stay behind.
struct ResultadoGuardado {
    TextoSalida lineas, fijas, papelFijas, papelAlAbrir;
    std::vector<TablaCoeficientes> tablas;
    std::vector<std::string> titulosDePapel;
    std::string titulo, tabla;
    FuentesDeSalida fuentes;
    SalidaResultado salida; // points into this structure
};

struct EntradaRegistro {
    int numero; // from 1; never given again
    ClasesDeEntrada clase;
    std::string texto; // its lines, each with its end. All but statements are comments of the language
    std::shared_ptr<const ResultadoGuardado> resultado; // of EntradaResultado
};

// The oldest entries go when there are more of them, or more bytes in all; the newest one always stays.
inline constexpr std::size_t MaxEntradasRegistro = 5000;
inline constexpr std::size_t MaxBytesRegistro = 8u << 20;
inline constexpr std::size_t MaxTextoDeCaja = 4000; // of a box; a longer one loses its middle

// Puts the log before the operations that are installed now. It begins where it was: what was logged stays.
void RegistrarPlataforma();

void VaciarRegistro();
const std::deque<EntradaRegistro> &EntradasRegistro();

// Null when there is no such entry, or no more.
const EntradaRegistro *BuscarEntrada(int numero);

// All the entries, one behind the other: a text that runs again as statements.
std::string TextoDeRegistro();

// Called behind each new entry, where a program sets it.
extern void (*AlCambiarRegistro)();
