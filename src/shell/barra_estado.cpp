// The texts of the status line.
#include "shell/barra_estado.h"

#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <vector>

namespace {

// The work file and the rows of a batch.
struct MuestraDeLote {
    int tipo = SinTipoDatos;
    std::string intervalo;
    FilasDeMuestra filas = {0, -1};
};

struct MensajeEnCurso {
    std::string final; // how the batch stands
    std::string nota;  // the first one
    int notas = 0;
};

MuestraDeLote UltimaMuestra;
MensajeEnCurso Mensaje;

constexpr const char *Tipos[] = {"Sin periodicidad", "Anual", "Trimestral", "Mensual", "Panel"};
constexpr int SeriesNombradas = 3; // of those that shorten the sample

std::string Intervalo() {
    return std::string(Recortado(ArchivoTrabajo.TextoIntervalo, RecorteDerecha));
}

// The names of panel rows have a hyphen in them.
std::string Tramo(int desde, int hasta) {
    const char *entre = ArchivoTrabajo.TipoDatos == TipoPanel ? " a " : "-";
    return std::string(TextoPeriodo(desde)) + entre + std::string(TextoPeriodo(hasta));
}

int NumeroDe(const FilasDeMuestra &f) {
    return std::max(f.fin - f.inicio + 1, 0);
}

// The sample that the next command refreshes to. What the commands without a refresh work on stays as it is.
EstadoDeMuestra MuestraSiguiente() {
    const EstadoDeMuestra guardada = Muestra;
    ActualizarMuestra();
    EstadoDeMuestra siguiente = Muestra;
    Muestra = guardada;
    return siguiente;
}

// The series whose data begin behind the rows of the last batch or end before them, as the automatic sample looks at them.
std::vector<std::string> SeriesMasCortas(const FilasDeMuestra &lote) {
    std::vector<std::string> cortas;
    for (int s = 0; s < std::min<int>(ArchivoTrabajo.NumSeries, MaxSeries); ++s) {
        int primera = 0, ultima = 0;
        const int filas = std::min<int>(FilasEnUso(), ArchivoTrabajo.FilasEscritas[s]);
        while (primera < filas && ArchivoTrabajo.PresenciaObs[primera][s] != 1) ++primera;
        for (int i = primera; i < filas; ++i)
            if (ArchivoTrabajo.PresenciaObs[i][s] == 1) ultima = i;
        if (primera >= filas || ultima == 0)
            continue; // the one without values, or with one in row 0, doesn't count
        if (primera > lote.inicio || ultima < lote.fin)
            cortas.emplace_back(Recortado(ArchivoTrabajo.Codigos[s]));
    }
    return cortas;
}

std::string Porque() {
    const std::vector<std::string> cortas = SeriesMasCortas(UltimaMuestra.filas);
    std::string nombres;
    const int total = static_cast<int>(cortas.size());
    for (int i = 0; i < std::min(total, SeriesNombradas); ++i) {
        if (i > 0) nombres += i + 1 == total ? " y " : ", ";
        nombres += cortas[static_cast<std::size_t>(i)];
    }
    if (total > SeriesNombradas) nombres += Formatear(" y %d más"_w, total - SeriesNombradas);
    return Formatear(
               "Es más corta que la del último lote, de %d observaciones: sin MUEST la muestra llega hasta "
               "donde llegan todas las series. Con menos datos: "_w,
               NumeroDe(UltimaMuestra.filas)) +
           nombres + ". MUEST fija la muestra.";
}

bool EsMasCorta(const EstadoDeMuestra &m, const FilasDeMuestra &filas) {
    return m.AnoInicial == 0 && m.AnoFinal == 0 && UltimaMuestra.tipo == ArchivoTrabajo.TipoDatos &&
           UltimaMuestra.intervalo == Intervalo() && NumeroDe(filas) < NumeroDe(UltimaMuestra.filas);
}

std::string FinalDelLote() {
    if (Lote.detenido == 0)
        return Lote.sentencias == 1 ? "1 sentencia procesada"
                                    : Formatear("%d sentencias procesadas", Lote.sentencias);
    if (Lote.parada.linea == 0) return {}; // refused before its first statement, and its box said why
    if (Lote.deDialogo)
        return Lote.finPorRegla ? "1 sentencia procesada" : "Detenido: " + Lote.parada.sentencia;
    if (Lote.finPorRegla) return Formatear("Procesado hasta la línea %d"_w, Lote.parada.linea);
    return Formatear("Detenido en la línea %d: "_w, Lote.parada.linea) + Lote.parada.sentencia;
}

} // namespace

EstadoDeBarra EstadoActualDeBarra() {
    EstadoDeBarra e;
    e.vsr = Lote.VerRegresion != 0 ? "VSR SI" : "VSR NO";
    e.archivo = "Sin tipo de datos";
    const int tipo = ArchivoTrabajo.TipoDatos;
    const int total = FilasEnUso(); // 0 before the program's start
    if (tipo < 0 || tipo >= static_cast<int>(std::size(Tipos)) || total == 0) return e;
    e.archivo = std::string(Tipos[tipo]) + " " + Tramo(0, total - 1);
    const EstadoDeMuestra m = MuestraSiguiente();
    const FilasDeMuestra filas = FilasDelArchivo(m.InicioMuestra, m.FinMuestra);
    const int numero = NumeroDe(filas);
    e.muestra = (numero > 0 ? "Muestra " + Tramo(filas.inicio, filas.fin) : std::string("Muestra vacía"_w)) +
                Formatear(" (%d de %d)", numero, total);
    if (EsMasCorta(m, filas)) e.porque = Porque();
    return e;
}

std::string TextoDeBarra(const EstadoDeBarra &estado, int linea, int columna) {
    std::string texto = estado.archivo;
    for (const std::string &parte :
         {estado.muestra, estado.vsr, Formatear("Lín %d, Col %d"_w, linea, columna)})
        if (!parte.empty()) texto += " | " + parte;
    return texto;
}

std::string MensajeDeBarra() {
    std::string texto = Mensaje.final;
    if (Mensaje.notas > 0) texto += (texto.empty() ? "" : " | ") + Mensaje.nota;
    if (Mensaje.notas > 1)
        texto += Mensaje.notas == 2 ? " (y otra nota)" : Formatear(" (y otras %d notas)", Mensaje.notas - 1);
    return texto;
}

void OlvidarMensajeDeBarra() {
    Mensaje = {};
}

void EmpezarLoteEnBarra() {
    Mensaje = {"Procesando...", {}, 0};
    UltimaMuestra = {ArchivoTrabajo.TipoDatos, Intervalo(),
                     FilasDelArchivo(Muestra.InicioMuestra, Muestra.FinMuestra)};
}

void TerminarLoteEnBarra() {
    Mensaje.final = FinalDelLote();
}

void AnotarEnBarra(std::string_view texto, int linea) {
    if (++Mensaje.notas > 1) return;
    Mensaje.nota = (linea > 0 ? Formatear("Línea %d: "_w, linea) : std::string()).append(texto);
}
