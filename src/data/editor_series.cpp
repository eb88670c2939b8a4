// The grid on series: what each cell shows and where what is typed goes. It is written to the tables at once.
#include "data/editor_series.h"

#include "data/intercambio.h"
#include "data/portapapeles.h"
#include "data/rejilla.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cstring>
#include <vector>

namespace {

// 1 while the first of the five columns is that of the labels.
int ColumnasDeEtiquetas() {
    return ArchivoTrabajo.ConEtiquetas != 0 ? 1 : 0;
}

std::string_view Etiqueta(int fila) {
    return {ArchivoTrabajo.EtiquetasObs[fila], strnlen(ArchivoTrabajo.EtiquetasObs[fila], AnchoEtiqueta - 1)};
}

std::string Centrado(std::string_view texto) {
    const std::size_t hueco = texto.size() < AnchoCelda ? (AnchoCelda - texto.size()) / 2 : 0;
    return std::string(hueco, ' ').append(texto);
}

bool TieneCodigo(int serie) {
    return serie >= 0 && serie < MaxSeries && CadenaDeCaracter(ArchivoTrabajo.Codigos[serie], ' ') == 0;
}

bool EstaPresente(const LugarDeSerie &l) {
    return ArchivoTrabajo.PresenciaObs[l.fila][l.serie] == 1;
}

int CeldaInicialDeSeries() {
    return CeldasPorColumna + ColumnasDeEtiquetas();
}

int ColumnasPorPagina() {
    return ColumnasVisibles - ColumnasDeEtiquetas();
}

bool FilasAcotadas() {
    return ArchivoTrabajo.NumObs <= MaxObservaciones;
}

TiposDeCelda TipoDeCelda(int celda) {
    switch (LugarDeCelda(celda).clase) {
    case LugarCodigo:
    case LugarEtiqueta: return CeldaDeTexto;
    case LugarValor: return CeldaDeValor;
    default: return CeldaFija;
    }
}

bool TomaTeclas(int) {
    return true;
}

std::string TextoDeCeldaDeSeries(int celda) {
    const LugarDeSerie l = LugarDeCelda(celda);
    switch (l.clase) {
    case LugarEsquina:
        return ArchivoTrabajo.TipoDatos == TipoSinPeriodicidad ? "Observac.     " : " Periodo      ";
    case LugarPeriodo: return Centrado(TextoPeriodo(l.fila));
    case LugarCabeceraEtiquetas: return "Etiquetas           ";
    case LugarEtiqueta: return std::string(Etiqueta(l.fila));
    case LugarCodigo: return ArchivoTrabajo.Codigos[l.serie];
    case LugarValor:
        if (!TieneCodigo(l.serie) || !EstaPresente(l)) return {};
        return NumeroDeCelda(ArchivoTrabajo.ValoresObs[l.fila][l.serie], Lote.DecimalesSalida);
    default: return {};
    }
}

std::string DetalleDeSeries(int celda) {
    const LugarDeSerie l = LugarDeCelda(celda);
    switch (l.clase) {
    case LugarEtiqueta: return std::string(Etiqueta(l.fila));
    case LugarCodigo: return std::string(ArchivoTrabajo.Codigos[l.serie]).substr(0, AnchoCodigoCampoEdicion);
    case LugarValor:
        return EstaPresente(l) ? NumeroCompleto(ArchivoTrabajo.ValoresObs[l.fila][l.serie]) : std::string();
    default: return {};
    }
}

std::string InformacionDeSeries(int celda) {
    const LugarDeSerie l = LugarDeCelda(celda);
    const bool enCabecera = l.clase == LugarCodigo || l.clase == LugarCabeceraEtiquetas;
    const bool deEtiquetas = l.clase == LugarEtiqueta || l.clase == LugarCabeceraEtiquetas;
    std::string nombre;
    if (deEtiquetas) {
        nombre = "Etiquetas";
    } else if (l.clase == LugarCodigo || l.clase == LugarValor) {
        nombre = Recortado(ArchivoTrabajo.Codigos[l.serie]);
    }
    if (enCabecera) return "Código: "_w + nombre;
    return std::string(TextoPeriodo(l.fila)).append("; ").append(nombre);
}

void ConfirmarSerie(int celda, std::string_view texto) {
    EntrarEnSerie(LugarDeCelda(celda), texto);
}

// A head without text leaves the code that is there: typed blank it would delete the series.
bool PegarEnSerie(int columna, int fila, std::string_view texto) {
    const LugarDeSerie l = LugarEnRejilla(columna, fila);
    if (l.clase == LugarCabeceraEtiquetas) return true;
    const bool enValor = l.clase == LugarValor;
    const bool cabe = enValor                    ? AdmiteValor(l.serie, l.fila)
                      : l.clase == LugarEtiqueta ? !TextoPeriodo(l.fila).empty()
                                                 : l.clase == LugarCodigo;
    if (texto.empty()) {
        if (cabe && l.clase != LugarCodigo) EntrarEnSerie(l, texto);
        return true;
    }
    std::string numero(texto);
    if (!cabe || (enValor && !NumeroPegado(texto, numero))) return false;
    EntrarEnSerie(l, numero);
    return true;
}

// The series over the sample under their codes, labels in front, as a block that can be pasted here again.
std::string CopiarSeries(char marcaDecimal) {
    ActualizarMuestra();
    const FilasDeMuestra filas = FilasDelArchivo(Muestra.InicioMuestra, Muestra.FinMuestra);
    std::vector<std::string> linea;
    if (ColumnasDeEtiquetas() == 1) linea.emplace_back("Etiquetas");
    for (int s = 0; s < MaxSeries; ++s)
        if (TieneCodigo(s)) linea.emplace_back(Recortado(ArchivoTrabajo.Codigos[s]));
    std::string texto = LineaDeHoja(linea);
    for (int f = filas.inicio; f <= filas.fin; ++f) {
        linea.clear();
        if (ColumnasDeEtiquetas() == 1) linea.emplace_back(Recortado(Etiqueta(f)));
        for (int s = 0; s < MaxSeries; ++s) {
            if (!TieneCodigo(s)) continue;
            linea.push_back(EstaPresente({LugarValor, s, f})
                                ? NumeroParaHoja(ArchivoTrabajo.ValoresObs[f][s], marcaDecimal)
                                : std::string());
        }
        texto += LineaDeHoja(linea);
    }
    return texto;
}

} // namespace

const ModoDeRejilla RejillaDeSeries = {
    .celdaInicial = CeldaInicialDeSeries,
    .columnasPorPagina = ColumnasPorPagina,
    .filasAcotadas = FilasAcotadas,
    .tipo = TipoDeCelda,
    .tomaTeclas = TomaTeclas,
    .texto = TextoDeCeldaDeSeries,
    .detalle = DetalleDeSeries,
    .informacion = InformacionDeSeries,
    .confirmar = ConfirmarSerie,
    .pegar = PegarEnSerie,
    .copiar = CopiarSeries,
};

LugarDeSerie LugarDeCelda(int celda) {
    if (celda < 0 || celda > UltimaCelda) return {LugarNinguno, -1, -1};
    return LugarEnRejilla(ColumnaDeCelda(celda), FilaDeCelda(celda));
}

LugarDeSerie LugarEnRejilla(int columna, int filaDeRejilla) {
    const int fila = filaDeRejilla - 1 + Editor.FilaInicial;
    const int serie = columna - 1 - ColumnasDeEtiquetas() + Editor.ColumnaInicial;
    const bool cabecera = filaDeRejilla == 0;
    const bool existeFila = fila >= 0 && fila < MaxObservaciones;
    if (cabecera && columna == 0) return {LugarEsquina, -1, -1};
    if (!cabecera && !existeFila) return {LugarNinguno, -1, -1};
    if (columna == 0) return {LugarPeriodo, -1, fila};
    if (columna == 1 && ColumnasDeEtiquetas() == 1)
        return {cabecera ? LugarCabeceraEtiquetas : LugarEtiqueta, -1, cabecera ? -1 : fila};
    if (serie < 0 || serie >= MaxSeries) return {LugarNinguno, -1, -1};
    return {cabecera ? LugarCodigo : LugarValor, serie, cabecera ? -1 : fila};
}

bool AdmiteValor(int serie, int fila) {
    return TieneCodigo(serie) && !TextoPeriodo(fila).empty();
}

bool ValidarYCompactar(Ventana *ventana) {
    std::string texto;
    return ValidarCodigosSeries(true, texto) != 0 || MensajeCancelado(ventana, texto) != 0;
}

void EntrarEnSerie(const LugarDeSerie &lugar, std::string_view texto) {
    switch (lugar.clase) {
    case LugarCodigo: PonerCodigoSerie(lugar.serie, texto); break;
    case LugarEtiqueta: PonerCampo(ArchivoTrabajo.EtiquetasObs[lugar.fila], texto, AnchoEtiqueta); break;
    case LugarValor: {
        // Without a code, or where the work file has no period, nothing is kept, whatever was typed.
        const bool hay = AdmiteValor(lugar.serie, lugar.fila) && CadenaDeCaracter(texto, ' ') == 0;
        PonerObservacion(lugar.fila, lugar.serie, hay ? LeerDecimal(texto) : 0.0, hay ? 1 : 0);
        break;
    }
    default: break;
    }
}
