// The log of a session.
#include "shell/registro.h"

#include "charts/resultados/formatos_tabla.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/literal.h"
#include "platform/texto.h"

#include <algorithm>
#include <utility>

void (*AlCambiarRegistro)() = nullptr;

namespace {

std::deque<EntradaRegistro> Entradas;
std::size_t BytesDeEntradas = 0;
int UltimoNumero = 0;

// A batch that runs, with those around it below: a window that a statement opens may run another one. Its statements are
// written down when something happens, and at its end; so a loop of a hundred thousand turns costs no more than its text.
struct LoteAnotado {
    const std::string *clave; // names the batch; what it points to may be gone
    std::string texto;
    int anotado, hasta; // what of the text is written down already, and where the batch ends
};
std::vector<LoteAnotado> Lotes;

const OperacionesPlataforma *Debajo = nullptr;

std::size_t BytesDe(const ResultadoGuardado &r) {
    const std::size_t lineas = r.lineas.size() + r.fijas.size() + r.papelFijas.size() + r.papelAlAbrir.size();
    return lineas * sizeof(LineaSalida) + r.tabla.size();
}

std::size_t BytesDe(const EntradaRegistro &e) {
    return sizeof e + e.texto.size() + (e.resultado != nullptr ? BytesDe(*e.resultado) : 0);
}

void AnadirEntrada(ClasesDeEntrada clase, std::string texto,
                   std::shared_ptr<const ResultadoGuardado> resultado = nullptr) {
    Entradas.push_back({++UltimoNumero, clase, std::move(texto), std::move(resultado)});
    BytesDeEntradas += BytesDe(Entradas.back());
    while (Entradas.size() > MaxEntradasRegistro ||
           (BytesDeEntradas > MaxBytesRegistro && Entradas.size() > 1)) {
        BytesDeEntradas -= BytesDe(Entradas.front());
        Entradas.pop_front();
    }
    if (AlCambiarRegistro != nullptr) AlCambiarRegistro();
}

// The lines of a text, each behind "; " and with its end.
std::string ComoComentario(std::string_view texto) {
    std::string r;
    for (std::size_t desde = 0; desde <= texto.size();) {
        const std::size_t fin = std::min(texto.find('\n', desde), texto.size());
        r += "; ";
        r += texto.substr(desde, fin - desde);
        r += '\n';
        desde = fin + 1;
    }
    return r;
}

std::string SinMedio(std::string_view texto) {
    constexpr std::size_t Final = MaxTextoDeCaja / 4;
    if (texto.size() <= MaxTextoDeCaja) return std::string(texto);
    return std::string(texto.substr(0, MaxTextoDeCaja - Final)) + "..." +
           std::string(texto.substr(texto.size() - Final));
}

// ----- Statements

// A line ends with "\r\n", "\n" or "\r"; empty ones at either side are left out.
std::string LineasDe(std::string_view texto) {
    constexpr std::string_view Fines = "\r\n";
    const std::size_t primera = texto.find_first_not_of(Fines);
    if (primera == std::string_view::npos) return {};
    texto = texto.substr(primera, texto.find_last_not_of(Fines) + 1 - primera);
    std::string r;
    r.reserve(texto.size() + 1); // once, since a text may be long
    if (texto.find('\r') == std::string_view::npos) {
        r += texto;
        r += '\n';
        return r;
    }
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const bool deDos = texto[i] == '\r' && i + 1 < texto.size() && texto[i + 1] == '\n';
        if (!deDos) r += texto[i] == '\r' ? '\n' : texto[i];
    }
    return r + '\n';
}

// Writes down what stands in the text of the batch up to `fin` and isn't there yet. A loop that goes back brings nothing new.
void AnotarHasta(LoteAnotado &lote, int fin) {
    fin = std::min(fin, lote.hasta);
    if (fin <= lote.anotado) return;
    const auto desde = static_cast<std::size_t>(lote.anotado);
    lote.anotado = fin;
    std::string lineas =
        LineasDe(std::string_view(lote.texto).substr(desde, static_cast<std::size_t>(fin) - desde));
    if (!lineas.empty()) AnadirEntrada(EntradaSentencias, std::move(lineas));
}

// Something happens now: it stands behind the statement at hand.
void AnotarLoDeAntes() {
    if (!Lotes.empty() && Lotes.back().clave == LoteEnCurso().texto)
        AnotarHasta(Lotes.back(), LugarActual().fin);
}

void EmpezarLote(const TextoEnCurso &lote) {
    const int largo = static_cast<int>(lote.texto->size());
    Lotes.push_back(
        {lote.texto, *lote.texto, std::clamp(lote.desde, 0, largo), std::clamp(lote.hasta, 0, largo)});
}

void TerminarLote() {
    LoteAnotado &lote = Lotes.back();
    AnotarHasta(lote, Lote.detenido != 0 ? Lote.parada.fin : lote.hasta);
    Lotes.pop_back();
}

// ----- The operations

// A batch sets the wait cursor before each of its statements, and the arrow once it is over.
void PonerCursorAnotado(Cursor cursor) {
    if (Debajo->cursor != nullptr) Debajo->cursor(cursor);
    const TextoEnCurso &lote = LoteEnCurso();
    const bool otro = Lotes.empty() || Lotes.back().clave != lote.texto;
    if (!otro) return;
    if (cursor == CursorEspera && lote.texto != nullptr) return EmpezarLote(lote);
    if (cursor == CursorFlecha && !Lotes.empty()) TerminarLote();
}

constexpr const char *Respuestas[] = {" -> Aceptar", " -> Cancelar", " -> Sí"_w, " -> No"};

Respuesta CajaAnotada(Ventana *ventana, std::string_view texto, std::string_view titulo, Icono icono,
                      Botones botones) {
    AnotarLoDeAntes();
    const std::string lineas = "[" + std::string(titulo) + "] " + SinMedio(Recortado(texto));
    const Respuesta respuesta = Debajo->caja(ventana, texto, titulo, icono, botones);
    AnadirEntrada(EntradaCaja,
                  ComoComentario(lineas + (botones == BotonesAceptar ? "" : Respuestas[respuesta])));
    return respuesta;
}

void NotaAnotada(std::string_view texto, int linea) {
    AnotarLoDeAntes();
    AnadirEntrada(
        EntradaNota,
        ComoComentario((linea > 0 ? Formatear("Nota, línea %d: "_w, linea) : "Nota: ") + SinMedio(texto)));
    if (Debajo->nota != nullptr) Debajo->nota(texto, linea);
}

template <class Lista> const Lista *CopiaDe(const Lista *original, Lista &copia) {
    if (original == nullptr) return nullptr;
    copia = *original;
    return &copia;
}

std::shared_ptr<const ResultadoGuardado> GuardarResultado(const SalidaResultado &salida) {
    auto r = std::make_shared<ResultadoGuardado>();
    r->titulo = salida.titulo;
    r->tabla = salida.tabla;
    r->salida = salida;
    r->salida.titulo = r->titulo;
    r->salida.tabla = r->tabla;
    r->salida.lineas = CopiaDe(salida.lineas, r->lineas);
    r->salida.fijas = CopiaDe(salida.fijas, r->fijas);
    r->salida.tablas = CopiaDe(salida.tablas, r->tablas);
    r->salida.fuentes = CopiaDe(salida.fuentes, r->fuentes);
    r->salida.papel.fijas = CopiaDe(salida.papel.fijas, r->papelFijas);
    r->salida.papel.alAbrir = CopiaDe(salida.papel.alAbrir, r->papelAlAbrir);
    r->titulosDePapel.assign(salida.papel.titulos.begin(), salida.papel.titulos.end());
    r->salida.papel.titulos.assign(r->titulosDePapel.begin(), r->titulosDePapel.end());
    r->salida.regresiones = nullptr; // for readers of events
    r->salida.graficos = nullptr;
    return r;
}

void ResultadoAnotado(Ventana *ventana, const SalidaResultado &salida) {
    AnotarLoDeAntes();
    std::string texto = TextoDeResultado(salida);
    if (!texto.empty()) texto.pop_back(); // its last end
    AnadirEntrada(EntradaResultado, ComoComentario("[" + std::string(salida.titulo) + "]\n" + texto),
                  GuardarResultado(salida));
    if (Debajo->mostrarResultado != nullptr) Debajo->mostrarResultado(ventana, salida);
}

} // namespace

void RegistrarPlataforma() {
    static OperacionesPlataforma abajo, anotadas;
    Lotes.clear();
    if (&Plataforma() == &anotadas) return; // it stands there already
    abajo = Plataforma();
    anotadas = abajo;
    anotadas.cursor = PonerCursorAnotado;
    anotadas.caja = CajaAnotada;
    anotadas.nota = NotaAnotada;
    anotadas.mostrarResultado = ResultadoAnotado;
    Debajo = &abajo;
    InstalarPlataforma(anotadas);
}

void VaciarRegistro() {
    Entradas.clear();
    BytesDeEntradas = 0;
}

const std::deque<EntradaRegistro> &EntradasRegistro() {
    return Entradas;
}

const EntradaRegistro *BuscarEntrada(int numero) {
    const auto e = std::lower_bound(Entradas.begin(), Entradas.end(), numero,
                                    [](const EntradaRegistro &una, int n) { return una.numero < n; });
    return e != Entradas.end() && e->numero == numero ? &*e : nullptr;
}

std::string TextoDeRegistro() {
    std::string texto;
    for (const EntradaRegistro &e : Entradas) texto += e.texto;
    return texto;
}
