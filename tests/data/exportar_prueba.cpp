// Export: text of each kind of field, records of both formats, and the way there and back.
#include "data/ascii_apoyo.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>

namespace {

constexpr double Nada = std::numeric_limits<double>::quiet_NaN();

// Fields of 19 characters: at the left, and at the right of the first 18.
std::string Izq(std::string t) {
    t.resize(19, ' ');
    return t;
}
std::string Der(const std::string &t) {
    return std::string(18 - t.size(), ' ') + t + ' ';
}

void PonerRotulo(int fila, std::string_view utf8) {
    const std::string t = Texto1252DeUtf8(utf8);
    t.copy(ArchivoTrabajo.EtiquetasObs[fila], AnchoEtiqueta - 1);
}

struct CasoValor {
    double valor;
    int decimales;
    bool comas;
    std::string campo;
};

const CasoValor Valores[] = {
    {12.5, 2, false, Izq("12.50")},
    {12.5, 0, false, Izq("12")}, // half to even
    {-0.125, 3, false, Izq("-0.125")},
    {1.0 / 3, 6, false, Izq("0.333333")},
    {1.0 / 3, 7, false, Izq("0.333333")}, // any other value takes 6
    {1.0 / 3, -1, false, Izq("0.333333")},
    {12.5, 2, true, Izq("12,50")},
    {1234567890123456.0, 2, false, "1234567890123456.00"},
    {12345678901234567.0, 2, false, "12345678901234568.0"}, // cut at 19
    {1e30, 6, false, "1000000000000000019"},
    {1e300, 0, true, "1000000000000000052"},
    {Nada, 2, false, std::string(19, ' ')},
};

TEST(Exportar, Valores) {
    for (const CasoValor &caso : Valores) {
        SCOPED_TRACE(testing::Message() << caso.valor << " with " << caso.decimales);
        PrepararAscii(TipoSinPeriodicidad, 1);
        PonerSerie("X", {caso.valor});
        EXPECT_EQ(ExportarUtf8(Variable({.decimalesConComas = caso.comas}, false), caso.decimales),
                  caso.campo + "\n");
    }
}

// The digits are those of the formatted print, from the smallest number to the largest.
TEST(Exportar, CifrasComoSeImprimen) {
    PrepararAscii(TipoSinPeriodicidad, 1);
    PonerSerie("X", {0.0});
    double x = 1.0;
    for (int i = 0; i < 2000; ++i) {
        x = std::fmod(x * 1103515245.0 + 12345.0, 2147483648.0);
        const double valor = (i % 2 != 0 ? -1.0 : 1.0) * x * std::pow(10.0, i % 640 - 330);
        SCOPED_TRACE(valor);
        ArchivoTrabajo.ValoresObs[0][0] = valor;
        const std::string impreso = Formatear("%18.*f", i % 7, valor);
        EXPECT_EQ(ExportarUtf8(Variable({}, false), i % 7),
                  Izq(impreso.substr(impreso.find_first_not_of(' '))) + "\n");
    }
}

// Two series over two observations, labels "Uno" and "Peñón".
void PrepararDos(int tipo, int primero, bool etiquetas) {
    PrepararAscii(tipo, 2, primero);
    PonerSerie("X", {1, 2});
    PonerSerie("LARGA678", {Nada, 3});
    ArchivoTrabajo.ConEtiquetas = etiquetas ? 1 : 0;
    PonerRotulo(0, "Uno");
    PonerRotulo(1, "Peñón");
}

struct CasoRegistros {
    const char *nombre;
    int panel; // -1: data without periodicity
    bool etiquetas;
    ValoresFormatoVariable valores;
    std::string registros[2]; // the first two
};

const std::string X1 = Izq("1.00"), L1 = Izq(""), X2 = Izq("2.00"), L2 = Izq("3.00");
const std::string CX = Der("X           "), CL = Der("LARGA678    ");
const std::string Uno = Der("Uno         ");

const CasoRegistros Registros[] = {
    {"as it opens", -1, false, {}, {X1 + "," + L1, X2 + "," + L2}},
    {"codes", -1, false, {.primerRegistroCodigos = true}, {CX + "," + CL, X1 + "," + L1}},
    {"all delimited",
     -1,
     false,
     {.delimitadasSoloEtiquetas = false, .primerRegistroCodigos = true},
     {"\"" + CX + "\",\"" + CL + "\"", "\"" + X1 + "\",\"" + L1 + "\""}},
    {"no delimiter",
     -1,
     false,
     {.delimitador = DelimitadorNada, .delimitadasSoloEtiquetas = false},
     {X1 + "," + L1, X2 + "," + L2}},
    {"tabs", -1, false, {.separador = SeparadorTabuladores}, {X1 + "\t" + L1, X2 + "\t" + L2}},
    {"labels",
     -1,
     true,
     {.primerRegistroCodigos = true, .primerCampoEtiquetas = true},
     {"\"" + Der("Denominacion\t") + "\"," + CX + "," + CL, "\"" + Uno + "\"," + X1 + "," + L1}},
    {"labels that the work file lacks",
     -1,
     false,
     {.primerCampoEtiquetas = true},
     {X1 + "," + L1, X2 + "," + L2}},
    {"labels not asked for", -1, true, {}, {X1 + "," + L1, X2 + "," + L2}},
    // Without delimiter nothing parts the name from the first code.
    {"labels without delimiter",
     -1,
     true,
     {.delimitador = DelimitadorNada, .primerRegistroCodigos = true, .primerCampoEtiquetas = true},
     {Der("Denominacion\t") + CX + "," + CL, Uno + "," + X1 + "," + L1}},
    {"panel fields are for panels",
     -1,
     false,
     {.camposPanel = true, .tercerCampoEtiquetas = true},
     {X1 + "," + L1, X2 + "," + L2}},
    // What stands behind the hyphen runs to the end of the padded text: at the left.
    {"panel, period first",
     PeriodoPrimero,
     false,
     {.primerRegistroCodigos = true, .camposPanel = true},
     {"\"" + Der("Periodo\t") + "\",\"" + Der("Individuo\t") + "\"," + CX + "," + CL,
      "\"" + Der("1990") + "\",\"" + Izq("1") + "\"," + X1 + "," + L1}},
    {"panel, individual first",
     IndividuoPrimero,
     false,
     {.primerRegistroCodigos = true, .camposPanel = true},
     {"\"" + Der("Individuo\t") + "\",\"" + Der("Periodo\t") + "\"," + CX + "," + CL,
      "\"" + Der("1") + "\",\"" + Izq("1990") + "\"," + X1 + "," + L1}},
    {"panel without its fields", PeriodoPrimero, false, {}, {X1 + "," + L1, X2 + "," + L2}},
    {"panel with labels",
     PeriodoPrimero,
     true,
     {.camposPanel = true, .tercerCampoEtiquetas = true},
     {"\"" + Der("1990") + "\",\"" + Izq("1") + "\",\"" + Uno + "\"," + X1 + "," + L1,
      "\"" + Der("1990") + "\",\"" + Izq("2") + "\",\"" + "      Peñón        " + "\"," + X2 + "," + L2}},
    {"panel without delimiter",
     PeriodoPrimero,
     false,
     {.delimitador = DelimitadorNada, .primerRegistroCodigos = true, .camposPanel = true},
     {Der("Periodo\t") + Der("Individuo\t") + CX + "," + CL,
      Der("1990") + "," + Izq("1") + "," + X1 + "," + L1}},
};

TEST(Exportar, RegistrosVariables) {
    for (const CasoRegistros &caso : Registros) {
        SCOPED_TRACE(caso.nombre);
        PrepararDos(caso.panel < 0 ? TipoSinPeriodicidad : TipoPanel, std::max(caso.panel, 0),
                    caso.etiquetas);
        const std::string texto = ExportarUtf8(Variable(caso.valores, false));
        const std::string esperado = caso.registros[0] + "\n" + caso.registros[1] + "\n";
        EXPECT_EQ(texto.substr(0, esperado.size()), esperado);
        const bool codigos = caso.valores.primerRegistroCodigos;
        EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), codigos ? 3 : 2);
    }
}

TEST(Exportar, PeriodosRaros) {
    PrepararAscii(TipoPanel, 3);
    PonerTextoPeriodo(0, "sin guion");
    PonerTextoPeriodo(1, "1990-1-2");
    PonerTextoPeriodo(2, "-12345678901234567890123456789");
    EXPECT_EQ(ExportarUtf8(Variable({.delimitador = DelimitadorNada, .camposPanel = true}, false)),
              // The part before the hyphen is then the whole padded text, and that is wider than a field.
              Izq("sin guion") + "," + Izq("") + ",\n" + Der("1990") + "," + Izq("1-2") + ",\n" + Izq("") +
                  ",1234567890123456789,\n");
}

struct CasoMuestra {
    int observaciones, inicio, fin;
    const char *valores; // one character a record
};

const CasoMuestra Muestras[] = {
    {20, 0, 19, "abcdefghijklmnopqrst"},
    {20, 5, 10, "abcdef"}, // six records with the observations 0 to 5
    {20, 19, 19, "a"},
    {20, 19, 20, "a"},     // the end that a first limit on the last row gives
    {3, 0, 100000, "abc"}, // the end that a sample without data has
    {3, 1, 100000, "ab"},
    {3, 2, 1, ""},
    {3, 100000, 100000, ""},
    {3, -100000, 1, "ab"},
    {3, INT_MIN, INT_MAX, "abc"},
    {3, INT_MAX, INT_MIN, ""},
    {0, 0, 5, ""},
};

TEST(Exportar, Muestra) {
    for (const CasoMuestra &caso : Muestras) {
        SCOPED_TRACE(testing::Message() << caso.inicio << " to " << caso.fin);
        PrepararAscii(TipoSinPeriodicidad, caso.observaciones);
        ArchivoTrabajo.ConEtiquetas = 1;
        for (int i = 0; i < caso.observaciones; ++i)
            PonerRotulo(i, std::string(1, static_cast<char>('a' + i)));
        Muestra.InicioMuestra = caso.inicio;
        Muestra.FinMuestra = caso.fin;
        std::string primeras;
        for (const char c : ExportarUtf8(Variable({.primerCampoEtiquetas = true}, false)))
            if (c >= 'a' && c <= 'z') primeras += c;
        EXPECT_EQ(primeras, caso.valores);
    }
}

TEST(Exportar, NumObsDesmedido) {
    PrepararAscii(TipoSinPeriodicidad, 4);
    PonerSerie("X", {1});
    ArchivoTrabajo.NumObs = 2000000000; // a damaged work file
    Muestra.FinMuestra = 100000;
    const std::string texto = ExportarUtf8(Variable({}, false));
    EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), MaxObservaciones);
}

// ---------------------------------------------------------------------------------------------------------------
// Fixed

struct CasoFijo {
    const char *nombre;
    std::initializer_list<std::string_view> filas;
    std::string registro; // of the first observation: X 1, LARGA678 missing, Uno, 1990-1
};

const CasoFijo Fijos[] = {
    {"one field", {"N/1/18/X"}, "1.00" + std::string(14, ' ')},
    {"at most its own 19 characters", {"N/1/40/X"}, "1.00" + std::string(15, ' ')},
    {"a short field is cut", {"N/1/3/X"}, "1.0"},
    {"further on", {"N/5/4/X"}, "    1.00"},
    {"missing", {"N/1/3/X", "N/5/3/LARGA678"}, "1.0    "},
    {"out of order", {"N/6/4/X", "A/1/3/DENO"}, "Uno  1.00"},
    {"a later row overwrites", {"N/1/8/X", "A/3/3/DENO"}, "1.Uno   "},
    {"period and individual", {"P/1/6/PERI", "I/7/2/INDI", "N/9/4/X"}, "1990  1 1.00"},
    {"the same series as a label", {"A/1/3/X"}, "Uno"},
    {"the last position there is", {"N/999/999/X"}, std::string(998, ' ') + "1.00" + std::string(15, ' ')},
};

TEST(Exportar, RegistrosFijos) {
    for (const CasoFijo &caso : Fijos) {
        SCOPED_TRACE(caso.nombre);
        PrepararDos(TipoPanel, PeriodoPrimero, true);
        const OpcionesIntercambio o = Fijo(caso.filas, false);
        ASSERT_EQ(o.FormatoElegido, 1);
        const std::string texto = ExportarUtf8(o);
        EXPECT_EQ(texto.substr(0, texto.find('\n')), caso.registro);
    }
}

TEST(Exportar, FijoComoSeAbre) {
    PrepararDos(TipoSinPeriodicidad, 0, true);
    EdicionCampo edicion;
    AbrirFormatoFijo(false, edicion);
    // The variable dialog accepted before: its first record of codes stays in force.
    OpcionesIntercambio o = Variable({.primerRegistroCodigos = true}, false);
    ASSERT_TRUE(AceptarFormatoFijo(nullptr, true, o));
    const auto f = [](std::string t) {
        t.resize(18, ' ');
        return t;
    };
    const std::string penon = Texto1252DeUtf8("Peñón");
    EXPECT_EQ(ExportarUtf8(o, 1), f("Denominacion\t") + f("X") + f("LARGA678") + "\n" + f("Uno") + f("1,0") +
                                      f("") + "\n" + Utf8De1252(f(penon)) + f("2,0") + f("3,0") + "\n");
}

TEST(Exportar, FijoTablaRara) {
    PrepararDos(TipoSinPeriodicidad, 0, false);
    for (const char *linea : {"N---0---5---X", "N-----------", "P---1---0---PERI", "?---1---2---X"})
        TablaCampos.campo[TablaCampos.numero++] = CampoDeLinea(linea);
    TablaCampos.campo[0].IndiceSerie = 100000;
    TablaCampos.campo[1].IndiceSerie = -5;
    OpcionesIntercambio o;
    const std::string texto = ExportarUtf8(o);
    EXPECT_EQ(texto, "1.\n2.\n");
}

// ---------------------------------------------------------------------------------------------------------------
// There and back

double ValorDePrueba(int i, int s) {
    return (i * 37 + s * 11) % 7 == 3 ? Nada : (i - 20) * 1.25 + s * 0.015625;
}

void PonerSeriesDePrueba(int series, int filas) {
    for (int s = 0; s < series; ++s) {
        std::vector<double> valores;
        for (int i = 0; i < filas; ++i) valores.push_back(ValorDePrueba(i, s));
        PonerSerie(Formatear("S%d", s), valores);
    }
}

const ValoresFormatoVariable IdaYVuelta[] = {
    {.primerRegistroCodigos = true},
    {.delimitadasSoloEtiquetas = false, .primerRegistroCodigos = true},
    {.separador = SeparadorTabuladores,
     .delimitador = DelimitadorNada,
     .primerRegistroCodigos = true,
     .decimalesConComas = true},
    {.separador = SeparadorOtros,
     .otroSeparador = ";",
     .delimitador = DelimitadorOtros,
     .otroDelimitador = "'",
     .delimitadasSoloEtiquetas = false,
     .primerRegistroCodigos = true,
     .decimalesConComas = true},
    {.separador = SeparadorOtros,
     .otroSeparador = "|",
     .primerRegistroCodigos = true,
     .primerCampoEtiquetas = true},
};

TEST(Exportar, IdaYVueltaVariable) {
    for (const ValoresFormatoVariable &valores : IdaYVuelta) {
        SCOPED_TRACE(&valores - IdaYVuelta);
        PrepararAscii(TipoSinPeriodicidad, 40);
        PonerSeriesDePrueba(12, 40);
        ArchivoTrabajo.ConEtiquetas = 1;
        PonerRotulo(0, "Peñón");
        PonerRotulo(1, "Doce letras.");
        const std::string antes = VolcadoSeries(40), rotulos = VolcadoEtiquetas(40);
        const std::string texto = ExportarUtf8(Variable(valores, false), 6);
        OpcionesIntercambio o = Variable(valores);
        o.SustituirSeries = 1;
        ImportarUtf8(o, texto);
        EXPECT_EQ(VolcadoSeries(40), antes);
        EXPECT_EQ(VolcadoEtiquetas(40), rotulos);
    }
}

TEST(Exportar, IdaYVueltaFija) {
    for (const bool comas : {false, true}) {
        PrepararAscii(TipoSinPeriodicidad, 40);
        PonerSeriesDePrueba(12, 40);
        const std::string antes = VolcadoSeries(40);
        EdicionCampo edicion;
        AbrirFormatoFijo(false, edicion);
        OpcionesIntercambio o;
        ASSERT_TRUE(AceptarFormatoFijo(nullptr, comas, o));
        const std::string texto = ExportarUtf8(o, 6);
        o.Importando = o.SustituirSeries = 1; // the table of the export is the one that the import finds
        ImportarUtf8(o, texto);
        EXPECT_EQ(VolcadoSeries(40), antes);
    }
}

// Period and individual go out and come back in fixed records.
TEST(Exportar, IdaYVueltaPanel) {
    PrepararAscii(TipoPanel, 4);
    PonerSerie("X", {1, 2, Nada, 4});
    const OpcionesIntercambio o = Fijo({"P/1/7/PERI", "I/8/3/INDI", "N/11/18/X"}, false);
    const std::string texto = ExportarUtf8(o), periodos = VolcadoPeriodos(4);
    OpcionesIntercambio vuelta = o;
    vuelta.Importando = vuelta.SustituirSeries = 1;
    for (int i = 0; i < 4; ++i) PonerTextoPeriodo(i, "nada");
    ImportarUtf8(vuelta, texto);
    EXPECT_EQ(VolcadoPeriodos(4), periodos);
    EXPECT_EQ(ArchivoTrabajo.ValoresPeriodo[2], 1991.0) << "the number of the text follows";
    CompactarSeries();
    EXPECT_EQ(VolcadoSeries(4), "X: 1 2 . 4");
}

} // namespace
