// Writing the work file.
#include "data/esquema_trabajo.h"
#include "data/fichero_trabajo.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <bit>
#include <cstring>

std::string ColumnasObservaciones(int lugares) {
    std::string columnas = "fila INTEGER PRIMARY KEY, periodo TEXT, etiqueta TEXT";
    for (int s = 1; s <= lugares; ++s) columnas += Formatear(", s%d REAL", s);
    return columnas;
}

std::string CrearTabla(const std::string &nombre, const std::string &columnas) {
    return "CREATE TABLE " + nombre + "(" + columnas + ")";
}

namespace {

// A padded field without the blanks behind it.
template <std::size_t N> std::string_view Campo(const char (&campo)[N]) {
    return Recortado({campo, strnlen(campo, N)}, RecorteDerecha);
}

bool EnBlanco(std::string_view texto) {
    return CadenaDeCaracter(texto, ' ') == 1;
}

FilasAbiertas PrepararInsercion(BaseDeTablas *t, const std::string &tabla, int columnas) {
    std::string sql = "INSERT INTO " + tabla + " VALUES(?";
    for (int c = 1; c < columnas; ++c) sql += ",?";
    return PrepararFilas(t, sql + ")");
}

FilasAbiertas CrearTablaDeTrabajo(BaseDeTablas *t, TablasDeTrabajo cual) {
    const TablaDeFichero &tabla = EsquemaTrabajo[cual];
    if (!EjecutarEnTablas(t, CrearTabla(tabla.nombre, tabla.columnas))) return nullptr;
    return PrepararInsercion(t, tabla.nombre, tabla.numColumnas);
}

// Creates a table and adds `numero` rows; `poner` sets the cells of row i.
template <class Poner> bool EscribirTabla(BaseDeTablas *t, TablasDeTrabajo cual, int numero, Poner poner) {
    const FilasAbiertas f = CrearTablaDeTrabajo(t, cual);
    bool bien = f != nullptr;
    for (int i = 0; i < numero && bien; ++i) {
        poner(f.get(), i);
        bien = AnadirFila(f.get());
    }
    return bien;
}

// ---------------------------------------------------------------------------------------------------------------
// Series and observations

bool HayAlgo(int fila) {
    const CabeceraArchivo &a = ArchivoTrabajo;
    return !EnBlanco(a.TextosPeriodo[fila]) || !EnBlanco(a.EtiquetasObs[fila]) ||
           std::any_of(std::begin(a.PresenciaObs[fila]), std::end(a.PresenciaObs[fila]),
                       [](std::int32_t p) { return p != 0; }) ||
           std::any_of(std::begin(a.ValoresObs[fila]), std::end(a.ValoresObs[fila]),
                       [](double v) { return std::bit_cast<std::uint64_t>(v) != 0; });
}

// Rows that are written. Behind the observations of the work file values can stand, too: an import or a deletion of
// observations leaves them there.
int FilasDelFichero() {
    int n = MaxObservaciones;
    const int minimo = FilasEnUso();
    while (n > minimo && !HayAlgo(n - 1)) --n;
    return n;
}

// Slots that are written. While the codes are being edited, and after an import, some stand beyond NumSeries.
int LugaresEscritos() {
    int n = MaxSeries;
    while (n > ArchivoTrabajo.NumSeries && EnBlanco(ArchivoTrabajo.Codigos[n - 1])) --n;
    return n;
}

bool EscribirCabecera(BaseDeTablas *t, int filas, int lugares) {
    return EscribirTabla(t, TablaCabecera, 1, [=](FilasDeTabla *f, int) {
        const CabeceraArchivo &a = ArchivoTrabajo;
        PonerTexto(f, 0, Campo(a.NombreProyecto));
        PonerEntero(f, 1, a.TipoDatos);
        PonerTexto(f, 2, Campo(a.TextoIntervalo));
        PonerEntero(f, 3, a.NumObs);
        PonerEntero(f, 4, a.NumSeries);
        PonerEntero(f, 5, a.ConEtiquetas != 0 ? 1 : 0);
        PonerEntero(f, 6, filas);
        PonerEntero(f, 7, lugares);
    });
}

bool EscribirSeries(BaseDeTablas *t, int lugares) {
    const auto fila = [](std::int16_t f) { return std::clamp<int>(f, 0, MaxObservaciones - 1) + 1; };
    return EscribirTabla(t, TablaDeSeries, lugares, [&](FilasDeTabla *f, int s) {
        PonerEntero(f, 0, s + 1);
        PonerTexto(f, 1, Campo(ArchivoTrabajo.Codigos[s]));
        PonerEntero(f, 2, fila(ArchivoTrabajo.PrimeraObs[s]));
        PonerEntero(f, 3, fila(ArchivoTrabajo.UltimaObs[s]));
    });
}

bool EscribirObservaciones(BaseDeTablas *t, int filas, int lugares) {
    const CabeceraArchivo &a = ArchivoTrabajo;
    if (!EjecutarEnTablas(t, CrearTabla(TablaObservaciones, ColumnasObservaciones(lugares)))) return false;
    const FilasAbiertas f = PrepararInsercion(t, TablaObservaciones, ColumnasAntesDeSeries + lugares);
    bool bien = f != nullptr;
    for (int i = 0; i < filas && bien; ++i) {
        PonerEntero(f.get(), 0, i + 1);
        PonerTexto(f.get(), 1, Campo(a.TextosPeriodo[i]));
        PonerTexto(f.get(), 2, Campo(a.EtiquetasObs[i]));
        for (int s = 0; s < lugares; ++s)
            PonerValor(f.get(), ColumnasAntesDeSeries + s, a.ValoresObs[i][s], a.PresenciaObs[i][s] != 0);
        bien = AnadirFila(f.get());
    }
    return bien;
}

// ---------------------------------------------------------------------------------------------------------------
// Matrices, scalars, equations, panel

bool EscribirMatrices(BaseDeTablas *t) {
    const TablaDeMatrices &m = TablaMatrices;
    return EscribirTabla(t, TablaMatricesFichero, m.numero, [&](FilasDeTabla *f, int i) {
        const RegistroMatriz &r = m.registro[i];
        PonerEntero(f, 0, i + 1);
        PonerTexto(f, 1, Campo(r.Codigo));
        PonerEntero(f, 2, r.Filas);
        PonerEntero(f, 3, r.Columnas);
        PonerDobles(f, 4, m.bloque[i], r.Filas * r.Columnas);
    });
}

bool EscribirEscalares(BaseDeTablas *t) {
    return EscribirTabla(t, TablaEscalaresFichero, TablaEscalares.numero, [](FilasDeTabla *f, int i) {
        PonerEntero(f, 0, i + 1);
        PonerTexto(f, 1, Campo(TablaEscalares.registro[i].Codigo));
        PonerValor(f, 2, TablaEscalares.registro[i].Valor, true);
    });
}

// Texts as they were typed, with their blanks.
bool EscribirEcuaciones(BaseDeTablas *t) {
    return EscribirTabla(t, TablaEcuacionesFichero, TablaEcuaciones.numero, [](FilasDeTabla *f, int i) {
        PonerEntero(f, 0, i + 1);
        PonerTexto(f, 1, TablaEcuaciones.Codigos[i]);
        PonerTexto(f, 2, TablaEcuaciones.TextosEcuacion[i]);
    });
}

bool EscribirPanelIndividuos(BaseDeTablas *t, int entradas) {
    const FilasAbiertas f = CrearTablaDeTrabajo(t, TablaPanelIndividuos);
    bool bien = f != nullptr;
    for (int e = 0; e < entradas; ++e) {
        const EntradaIndividuoPanel &entrada = DescripcionPanel.individuos[e];
        const int periodos = std::clamp(entrada.numPeriodos, 0, MaxPeriodosIndividuo);
        for (int p = 0; p < std::max(periodos, 1) && bien; ++p) {
            PonerEntero(f.get(), 0, e + 1);
            PonerEntero(f.get(), 1, entrada.orden);
            PonerTexto(f.get(), 2, periodos > 0 ? Campo(entrada.periodos[p]) : "");
            bien = AnadirFila(f.get());
        }
    }
    return bien;
}

bool EscribirPanel(BaseDeTablas *t) {
    const DescripcionDePanel &p = DescripcionPanel;
    const bool variable = p.FormaPanel == PanelVariable;
    const bool individuos = variable && p.PrimerConcepto == IndividuoPrimero;
    const int entradas =
        !variable ? std::max(p.NumEntradas, 0)
                  : std::clamp<int>(p.NumEntradas, 0, individuos ? MaxIndividuosEtiqueta : MaxPeriodosPanel);
    const auto ponerPanel = [=](FilasDeTabla *f, int) {
        PonerEntero(f, 0, DescripcionPanel.FormaPanel);
        PonerEntero(f, 1, DescripcionPanel.PrimerConcepto);
        PonerEntero(f, 2, entradas);
        PonerEntero(f, 3, DescripcionPanel.TipoPeriodoPanel);
    };
    const auto ponerEtiqueta = [&](FilasDeTabla *f, int i) {
        PonerEntero(f, 0, i + 1);
        PonerTexto(f, 1, Campo(p.EtiquetasIndividuo[i]));
    };
    const auto ponerPeriodo = [&](FilasDeTabla *f, int i) {
        PonerEntero(f, 0, i + 1);
        PonerTexto(f, 1, Campo(p.periodos[i].periodo));
        PonerEntero(f, 2, p.periodos[i].individuos);
    };
    return EscribirTabla(t, TablaPanel, 1, ponerPanel) &&
           EscribirTabla(t, TablaPanelEtiquetas, MaxIndividuosEtiqueta, ponerEtiqueta) &&
           EscribirTabla(t, TablaPanelPeriodos, variable && !individuos ? entradas : 0, ponerPeriodo) &&
           EscribirPanelIndividuos(t, individuos ? entradas : 0);
}

// ---------------------------------------------------------------------------------------------------------------
// For who opens the file with another program: the series under their codes, the elements of the matrices one by one.
// Nothing here is read again, so what fails is left out.

void EscribirVistas(BaseDeTablas *t, int lugares) {
    std::string datos = "CREATE VIEW datos AS SELECT fila, periodo, etiqueta";
    for (int s = 1; s <= lugares; ++s) {
        const std::string_view codigo = Campo(ArchivoTrabajo.Codigos[s - 1]);
        if (codigo.empty()) continue;
        datos += Formatear(", CASE typeof(s%d) WHEN 'blob' THEN NULL ELSE s%d END AS \"", s, s);
        for (const char c : codigo) datos.append(c == '"' ? 2 : 1, c);
        datos += "\"";
    }
    EjecutarEnTablas(t, datos + " FROM observaciones");
    EjecutarEnTablas(
        t, "CREATE VIEW elementos AS WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n "
           "WHERE i < (SELECT max(filas * columnas) FROM matrices)) "
           "SELECT codigo, i / columnas + 1 AS fila, i % columnas + 1 AS columna, "
           "ieee754_from_blob(substr(datos, 8 * i + 1, 8)) AS valor "
           "FROM matrices JOIN n ON i < filas * columnas");
}

} // namespace

bool EscribirFicheroTrabajo(const std::string &ruta) {
    const TablasAbiertas t = CrearTablas(MarcaTrabajo);
    const int filas = FilasDelFichero();
    const int lugares = LugaresEscritos();
    if (t == nullptr || !EscribirCabecera(t.get(), filas, lugares) || !EscribirSeries(t.get(), lugares) ||
        !EscribirObservaciones(t.get(), filas, lugares) || !EscribirMatrices(t.get()) ||
        !EscribirEscalares(t.get()) || !EscribirEcuaciones(t.get()) || !EscribirPanel(t.get()))
        return false;
    EscribirVistas(t.get(), lugares);
    return EscribirTablas(t.get(), ruta);
}
