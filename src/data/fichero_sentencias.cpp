// Opening, saving and appending statement files.
#include "data/fichero_sentencias.h"

#include "data/intercambio.h"
#include "platform/archivos.h"
#include "platform/texto.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t Limite = LimiteSentencias;
constexpr std::size_t CortePantalla = 3999; // characters that a text beyond the limit keeps
constexpr std::size_t Holgura = 100;        // room that a further line must find below the limit
constexpr std::size_t AnchoLinea = 1024;    // characters of a line that are read at once
constexpr std::size_t FinSeleccion = 32000; // where the replaced part of the screen's text ends

// The text on its way in or out, lines ended by CR LF, and the lines of the screen.
struct AreaSentencias {
    std::string BufferSentencias;
    int NumLineas;
};

// A box while the command works under the wait cursor.
bool Rechazar(Ventana *ventana, const char *texto) {
    PonerCursor(CursorFlecha);
    return MensajeCancelado(ventana, texto) == 1;
}

std::string ConFinesCrLf(std::string_view texto) {
    std::string r;
    for (const char c : texto) {
        if (c == '\n') r += '\r';
        r += c;
    }
    return r;
}

// Any line end becomes a line feed.
std::string ConFinesLf(std::string_view texto) {
    std::string r;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] == '\r' && texto.substr(i + 1, 1) == "\n") continue;
        r += texto[i] == '\r' ? '\n' : texto[i];
    }
    return r;
}

// As many lines as the screen has, even where the limit cut the text: those behind the cut are empty.
std::string TextoDeFichero(const AreaSentencias &area) {
    const std::string &buffer = area.BufferSentencias;
    std::string r;
    std::size_t PosicionActual = 0;
    for (int LineaActual = 0; LineaActual < area.NumLineas; ++LineaActual) {
        const std::size_t fin = std::min(buffer.find('\r', PosicionActual), buffer.size());
        r.append(buffer, PosicionActual, fin - PosicionActual).append(1, '\n');
        PosicionActual = std::min(fin + 2, buffer.size());
    }
    return r;
}

bool LeerSentencias(Ventana *ventana, const std::string &ruta, AreaSentencias &area) {
    std::string bytes;
    if (!LeerArchivo(ruta, bytes)) return Rechazar(ventana, "Error al abrir el archivo");
    const std::string texto = ConFinesLf(Texto1252DeArchivo(bytes));
    for (std::size_t i = 0; i < texto.size();) {
        if (area.BufferSentencias.size() + Holgura >= Limite) {
            Rechazar(ventana, "No se puede leer el fichero completo");
            break;
        }
        const std::size_t fin = std::min({texto.find('\n', i), texto.size() - 1, i + AnchoLinea - 1});
        // The last character goes, whatever it is: of a last line without an end, or a very long one, that is a letter.
        area.BufferSentencias.append(texto, i, fin - i).append("\r\n");
        i = fin + 1;
    }
    return true;
}

bool ArchivoSentencias(Ventana *ventana, ComandosDeSentencias comando, AreaSentencias &area) {
    static constexpr FormatoArchivo Formatos[] = {{"txt", "Archivos de texto (*.TXT)"}};
    std::string ruta;
    if (!ElegirArchivo(ventana, {comando == GuardarSentencias, "*.TXT", Formatos, ArchivoSinElegir}, ruta))
        return false;
    PonerCursor(CursorEspera);
    if (!AjustarNombreArchivo(ruta)) return Rechazar(ventana, "Nombre archivo incorrecto");
    const bool bien = comando == GuardarSentencias ? EscribirArchivo(ruta, TextoDeFichero(area)) ||
                                                         Rechazar(ventana, "Error al abrir el archivo")
                                                   : LeerSentencias(ventana, ruta, area);
    PonerCursor(CursorFlecha);
    return bien;
}

// Puts the text in the place of the screen's, up to the place that is its 32,000th character with two for a line end: what
// stands behind that stays.
void PonerEnPantalla(ControlTexto *pantalla, std::string_view actual, std::string_view texto) {
    std::size_t fin = 0;
    for (std::size_t cuenta = 0; fin < actual.size(); ++fin) {
        cuenta += actual[fin] == '\n' ? 2 : 1;
        if (cuenta > FinSeleccion) break;
    }
    SeleccionarEnControl(pantalla, 0, static_cast<int>(fin));
    EscribirEnControl(pantalla, ConFinesLf(texto));
}

// The same with what was read, cut to what the commands work with.
void PonerLeido(ControlTexto *pantalla, std::string_view actual, std::string &buffer) {
    if (buffer.size() > Limite) {
        buffer.resize(CortePantalla);
    } else if (buffer.size() >= 2) {
        buffer.resize(buffer.size() - 2);
    }
    PonerEnPantalla(pantalla, actual, buffer);
}

} // namespace

void ComandoSentencias(Ventana *ventana, ControlTexto *pantalla, ComandosDeSentencias comando) {
    const std::string actual = TextoDeControl(pantalla);
    AreaSentencias area = {"", 1 + static_cast<int>(std::count(actual.begin(), actual.end(), '\n'))};
    std::string &buffer = area.BufferSentencias;
    if (comando != AbrirSentencias) buffer = ConFinesCrLf(actual).substr(0, Limite) + "\r\n";
    if (!ArchivoSentencias(ventana, comando, area) || comando == GuardarSentencias) return;
    PonerLeido(pantalla, actual, buffer);
}

bool AbrirFicheroSentencias(Ventana *ventana, ControlTexto *pantalla, const std::string &ruta) {
    AreaSentencias area = {"", 0};
    if (!LeerSentencias(ventana, ruta, area)) return false;
    PonerLeido(pantalla, TextoDeControl(pantalla), area.BufferSentencias);
    return true;
}
