// Reading the work file: into a copy, every count and every text checked, and only then over the tables.
#include "data/esquema_trabajo.h"
#include "data/fichero_trabajo.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <bit>
#include <cstring>
#include <limits>
#include <memory>
#include <new>

namespace {

struct CopiaTrabajo {
    CabeceraArchivo archivo;
    TablaDeEscalares escalares;
    TablaDeEcuaciones ecuaciones;
    DescripcionDePanel panel;
    TablaDeMatrices matrices; // with blocks of its own
};

struct BorrarCopia {
    void operator()(CopiaTrabajo *copia) const {
        LiberarMatrices(copia->matrices);
        delete copia;
    }
};
using CopiaPropia = std::unique_ptr<CopiaTrabajo, BorrarCopia>;

constexpr std::int64_t MaxEntero = std::numeric_limits<std::int32_t>::max();

// A whole number of the row into a field of any width, which holds the bounds.
template <class Campo>
bool Entero(FilasDeTabla *f, int columna, std::int64_t minimo, std::int64_t maximo, Campo &campo) {
    std::int64_t valor = 0;
    if (!LeerEnteroDeFila(f, columna, minimo, maximo, valor)) return false;
    campo = static_cast<Campo>(valor);
    return true;
}

// A text of the row into a field of its width, padded with blanks.
template <std::size_t N> bool Texto(FilasDeTabla *f, int columna, char (&campo)[N]) {
    std::string texto;
    if (!LeerTextoDeFila(f, columna, static_cast<int>(N) - 1, texto)) return false;
    PonerCampo(campo, texto, static_cast<int>(N));
    return true;
}

// The same, as it stands in the file.
template <std::size_t N> bool TextoSinRellenar(FilasDeTabla *f, int columna, char (&campo)[N]) {
    std::string texto;
    if (!LeerTextoDeFila(f, columna, static_cast<int>(N) - 1, texto)) return false;
    std::memcpy(campo, texto.c_str(), texto.size() + 1);
    return true;
}

// The name of a matrix or scalar. Series bear what an import or the editor wrote, until it is validated.
bool EsCodigo(const char *codigo) {
    Codigo copia;
    return CadenaDeCaracter(codigo, ' ') == 0 && CodigoValido(std::string(codigo), copia) == 1;
}

// Reads all rows of a table, at least `minimo` and at most `maximo`; `leer` reads row i. False at the first that is
// refused.
template <class Leer>
bool RecorrerFilas(BaseDeTablas *t, const std::string &tabla, const std::string &orden, int minimo,
                   int maximo, Leer leer) {
    // An index that somebody added may be damaged; the order of the rows is the table's own.
    const FilasAbiertas f = PrepararFilas(t, "SELECT * FROM " + tabla + " NOT INDEXED ORDER BY " + orden);
    if (f == nullptr) return false;
    for (int i = 0;; ++i) {
        const PasosDeFila paso = SiguienteFila(f.get());
        if (paso == NoHayMasFilas) return i >= minimo;
        if (paso == FilaDanada || i >= maximo || !leer(f.get(), i)) return false;
    }
}

template <class Leer>
bool LeerTabla(BaseDeTablas *t, TablasDeTrabajo cual, int minimo, int maximo, Leer leer) {
    const TablaDeFichero &tabla = EsquemaTrabajo[cual];
    return EsTabla(t, tabla.nombre, CrearTabla(tabla.nombre, tabla.columnas)) &&
           RecorrerFilas(t, tabla.nombre, "rowid", minimo, maximo, leer);
}

// The number of a row stands in its first cell: rows from 1 on, without a gap.
bool EsFila(FilasDeTabla *f, int i) {
    std::int64_t numero = 0;
    return LeerEnteroDeFila(f, 0, i + 1, i + 1, numero);
}

// ---------------------------------------------------------------------------------------------------------------
// Series and observations

struct MedidasDeFichero {
    int filas, lugares;
};

bool LeerCabecera(BaseDeTablas *t, CabeceraArchivo &a, MedidasDeFichero &medidas) {
    return LeerTabla(t, TablaCabecera, 1, 1, [&](FilasDeTabla *f, int) {
        return Texto(f, 0, a.NombreProyecto) && Entero(f, 1, TipoSinPeriodicidad, TipoPanel, a.TipoDatos) &&
               Texto(f, 2, a.TextoIntervalo) && Entero(f, 3, 1, MaxObservaciones, a.NumObs) &&
               Entero(f, 4, 0, MaxSeries, a.NumSeries) && Entero(f, 5, 0, 1, a.ConEtiquetas) &&
               Entero(f, 6, a.NumObs, MaxObservaciones, medidas.filas) &&
               Entero(f, 7, a.NumSeries, MaxSeries, medidas.lugares);
    });
}

bool LeerSeries(BaseDeTablas *t, CabeceraArchivo &a, int lugares) {
    return LeerTabla(t, TablaDeSeries, lugares, lugares, [&](FilasDeTabla *f, int s) {
        if (!EsFila(f, s) || !Texto(f, 1, a.Codigos[s]) ||
            !Entero(f, 2, 1, MaxObservaciones, a.PrimeraObs[s]) ||
            !Entero(f, 3, 1, MaxObservaciones, a.UltimaObs[s]))
            return false;
        --a.PrimeraObs[s];
        --a.UltimaObs[s];
        return true;
    });
}

bool LeerObservaciones(BaseDeTablas *t, CabeceraArchivo &a, MedidasDeFichero medidas) {
    if (!EsTabla(t, TablaObservaciones,
                 CrearTabla(TablaObservaciones, ColumnasObservaciones(medidas.lugares))))
        return false;
    return RecorrerFilas(
        t, TablaObservaciones, "rowid", medidas.filas, medidas.filas, [&](FilasDeTabla *f, int i) {
            bool bien = EsFila(f, i) && Texto(f, 1, a.TextosPeriodo[i]) && Texto(f, 2, a.EtiquetasObs[i]);
            for (int s = 0; s < medidas.lugares && bien; ++s) {
                bool presente = false;
                bien = LeerValorDeFila(f, ColumnasAntesDeSeries + s, a.ValoresObs[i][s], presente);
                a.PresenciaObs[i][s] = presente ? 1 : 0;
                if (presente || std::bit_cast<std::uint64_t>(a.ValoresObs[i][s]) != 0)
                    a.FilasEscritas[s] = i + 1;
            }
            return bien;
        });
}

// ---------------------------------------------------------------------------------------------------------------
// Matrices, scalars, equations

bool LeerMatrices(BaseDeTablas *t, TablaDeMatrices &tabla) {
    return LeerTabla(t, TablaMatricesFichero, 0, MaxMatrices, [&](FilasDeTabla *f, int i) {
        Codigo codigo;
        int filas = 0, columnas = 0;
        if (!EsFila(f, i) || !Texto(f, 1, codigo) || !EsCodigo(codigo) ||
            !Entero(f, 2, 0, ElementosBloque, filas) || !Entero(f, 3, 0, ElementosBloque, columnas) ||
            filas > std::numeric_limits<std::int16_t>::max() ||
            columnas > std::numeric_limits<std::int16_t>::max() || filas * columnas > ElementosBloque)
            return false;
        double *elementos = AnadirMatriz(tabla, codigo, filas, columnas);
        return elementos != nullptr && LeerDoblesDeFila(f, 4, elementos, filas * columnas);
    });
}

bool LeerEscalares(BaseDeTablas *t, TablaDeEscalares &tabla) {
    return LeerTabla(t, TablaEscalaresFichero, 0, MaxEscalares, [&](FilasDeTabla *f, int i) {
        RegistroEscalar &r = tabla.registro[i];
        bool presente = false;
        tabla.numero = i + 1;
        return EsFila(f, i) && Texto(f, 1, r.Codigo) && EsCodigo(r.Codigo) &&
               LeerValorDeFila(f, 2, r.Valor, presente) && presente;
    });
}

bool LeerEcuaciones(BaseDeTablas *t, TablaDeEcuaciones &tabla) {
    return LeerTabla(t, TablaEcuacionesFichero, 0, MaxEcuaciones, [&](FilasDeTabla *f, int i) {
        tabla.numero = static_cast<std::int16_t>(i + 1);
        return EsFila(f, i) && TextoSinRellenar(f, 1, tabla.Codigos[i]) &&
               TextoSinRellenar(f, 2, tabla.TextosEcuacion[i]);
    });
}

// ---------------------------------------------------------------------------------------------------------------
// Panel

bool LeerPanelIndividuos(BaseDeTablas *t, DescripcionDePanel &p, int entradas) {
    int leidas = 0;
    const auto leerFila = [&](FilasDeTabla *f, int) {
        int entrada = 0, orden = 0;
        char periodo[sizeof p.individuos[0].periodos[0]];
        // A row goes on with the individual before it or begins the next one.
        if (!Entero(f, 0, leidas == 0 ? 1 : leidas, entradas, entrada) || entrada > leidas + 1 ||
            !Entero(f, 1, 0, MaxEntero, orden) || !Texto(f, 2, periodo))
            return false;
        EntradaIndividuoPanel &e = p.individuos[entrada - 1];
        if (entrada > leidas) {
            leidas = entrada;
            e.orden = orden;
        }
        if (CadenaDeCaracter(periodo, ' ') == 1) return e.numPeriodos == 0; // an individual without periods
        if (orden != e.orden || e.numPeriodos >= MaxPeriodosIndividuo) return false;
        std::memcpy(e.periodos[e.numPeriodos++], periodo, sizeof periodo);
        return true;
    };
    return LeerTabla(t, TablaPanelIndividuos, 0, entradas * MaxPeriodosIndividuo, leerFila) &&
           leidas == entradas;
}

bool LeerPanel(BaseDeTablas *t, DescripcionDePanel &p) {
    const auto leerPanel = [&](FilasDeTabla *f, int) {
        return Entero(f, 0, PanelConstante, PanelVariable, p.FormaPanel) &&
               Entero(f, 1, PeriodoPrimero, IndividuoPrimero, p.PrimerConcepto) &&
               Entero(f, 2, 0, MaxEntero, p.NumEntradas) && Entero(f, 3, 0, TipoMensual, p.TipoPeriodoPanel);
    };
    if (!LeerTabla(t, TablaPanel, 1, 1, leerPanel)) return false;
    const bool variable = p.FormaPanel == PanelVariable;
    const bool individuos = variable && p.PrimerConcepto == IndividuoPrimero;
    if (variable && p.NumEntradas > (individuos ? MaxIndividuosEtiqueta : MaxPeriodosPanel)) return false;
    const int entradas = variable ? p.NumEntradas : 0;
    const int periodos = individuos ? 0 : entradas;
    const auto leerEtiqueta = [&](FilasDeTabla *f, int i) {
        return EsFila(f, i) && Texto(f, 1, p.EtiquetasIndividuo[i]);
    };
    const auto leerPeriodo = [&](FilasDeTabla *f, int i) {
        return EsFila(f, i) && Texto(f, 1, p.periodos[i].periodo) &&
               Entero(f, 2, 0, MaxEntero, p.periodos[i].individuos);
    };
    return LeerTabla(t, TablaPanelEtiquetas, MaxIndividuosEtiqueta, MaxIndividuosEtiqueta, leerEtiqueta) &&
           LeerTabla(t, TablaPanelPeriodos, periodos, periodos, leerPeriodo) &&
           LeerPanelIndividuos(t, p, individuos ? entradas : 0);
}

// ---------------------------------------------------------------------------------------------------------------

// What the file doesn't hold is blank.
void EmpezarCopia(CopiaTrabajo &c) {
    for (auto &codigo : c.archivo.Codigos) RellenarCadena(codigo, ' ', AnchoCodigo - 1);
    for (auto &etiqueta : c.archivo.EtiquetasObs) RellenarCadena(etiqueta, ' ', AnchoEtiqueta - 1);
    for (auto &texto : c.archivo.TextosPeriodo) RellenarCadena(texto, ' ', AnchoPeriodo - 1);
}

bool LeerCopia(BaseDeTablas *t, CopiaTrabajo &c) {
    MedidasDeFichero medidas{};
    EmpezarCopia(c);
    return LeerCabecera(t, c.archivo, medidas) && LeerSeries(t, c.archivo, medidas.lugares) &&
           LeerObservaciones(t, c.archivo, medidas) && LeerMatrices(t, c.matrices) &&
           LeerEscalares(t, c.escalares) && LeerEcuaciones(t, c.ecuaciones) && LeerPanel(t, c.panel);
}

void PonerCopia(CopiaTrabajo &c) {
    ArchivoTrabajo = c.archivo;
    for (int i = 0; i < MaxObservaciones; ++i) PonerTextoPeriodo(i, c.archivo.TextosPeriodo[i]);
    TablaEscalares = c.escalares;
    TablaEcuaciones = c.ecuaciones;
    DescripcionPanel = c.panel;
    LiberarMatrices();
    TablaMatrices = c.matrices;
    c.matrices = {}; // the blocks are the work file's now
}

} // namespace

LecturasDeTablas LeerFicheroTrabajo(const std::string &ruta) {
    LecturasDeTablas resultado{};
    const TablasAbiertas t = LeerTablas(ruta, MarcaTrabajo, resultado);
    if (t == nullptr) return resultado;
    const CopiaPropia copia(new (std::nothrow) CopiaTrabajo());
    if (copia == nullptr || !LeerCopia(t.get(), *copia)) return TablasDanadas;
    PonerCopia(*copia);
    RefrescarEditor();
    return TablasLeidas;
}
