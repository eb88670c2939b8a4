// The report of a regression, line by line and character by character.
#include "estimation/informe.h"

#include "apoyo/datos_csv.h"
#include "apoyo/datos_regresion.h"
#include "platform/campos_texto.h"
#include "store/temporales.h"

#include <Eigen/Dense>
#include <boost/math/distributions/fisher_f.hpp>
#include <boost/math/distributions/students_t.hpp>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using Textos = std::vector<std::string>;
using Lineas = std::vector<std::pair<int, std::string>>;

void CargarKlein() {
    EmpezarConDatos(TipoAnual, "1920#1941");
    ASSERT_TRUE(CargarCsv("klein.csv"));
    ASSERT_TRUE(Procesar("SER SAL = SALPRIV + SALPUB"));
}

// A number at the right of its field.
std::string Campo(long double v, int decimales, int ancho) {
    return Formatear("%*.*f", ancho, decimales, static_cast<double>(v));
}

} // namespace

TEST(NumeroCampo, Ancho) {
    static constexpr struct {
        int decimales;
        double valor;
        int ancho;
        const char *texto;
    } Casos[] = {
        {4, 1.5, 10, "    1.5000"},
        {0, 17.0, 3, " 17"},
        {0, 17.0, 2, "17"},
        {0, 1234.0, 3, "12"},
        {4, -12345.678, 10, "-12345.67"},          // one more than the field: nine characters
        {4, 12345.678, 10, "12345.6780"},          // just the field
        {6, 12345678.123456, 14, "12345678.1234"}, // fifteen characters are cut to thirteen
        {6, 1234567.123456, 14, "1234567.123456"},
        {7, 0.5, 12, "   0.5000000"},
        {8, 0.5, 14, "  0.5000000000"},
        {-1, 0.5, 14, "  0.5000000000"},
        {2, -0.001, 8, "   -0.00"},
        {4, 1e300, 10, "100000000"},
    };
    for (const auto &c : Casos) EXPECT_EQ(NumeroCampo(c.decimales, c.valor, c.ancho), c.texto) << c.texto;
}

// Every number worked out here in long double, apart from the program.
TEST(Informe, Klein) {
    CargarKlein();
    ASSERT_TRUE(Procesar("MC CONSUMO 1 BENEF BENEF(-1) SAL"));
    ASSERT_EQ(TextosDeCajas(), Textos{"¿Desea ver la regresion?"});
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const ResultadoVisto &r = Prueba.resultados[0];
    EXPECT_EQ(r.tipo, SalidaRegresion);
    EXPECT_EQ(r.titulo, "Mínimos cuadrados ordinarios");
    EXPECT_EQ(r.clase, 8);
    EXPECT_EQ(r.contenido, 0);

    using M = Eigen::Matrix<long double, Eigen::Dynamic, Eigen::Dynamic>;
    const std::vector<double> consumo = ValoresDe("CONSUMO", 22), benef = ValoresDe("BENEF", 22);
    const std::vector<double> priv = ValoresDe("SALPRIV", 22), pub = ValoresDe("SALPUB", 22);
    const int n = 21, k = 4;
    M X(n, k), y(n, 1);
    for (int i = 0; i < n; ++i) {
        const auto t = static_cast<std::size_t>(i + 1);
        X.row(i) << 1.0L, benef[t], benef[t - 1], static_cast<long double>(priv[t]) + pub[t];
        y(i, 0) = consumo[t];
    }
    const M inversa = (X.transpose() * X).inverse();
    const M b = inversa * (X.transpose() * y), e = y - X * b;
    const long double scr = e.squaredNorm(), s2 = scr / (n - k), media = y.sum() / n;
    const long double scvd = (y.array() - media).square().sum(), r2 = 1 - scr / scvd;
    const long double f = (r2 / (k - 1)) / ((1 - r2) / (n - k));
    const long double lv = -(n / 2.0L) * (std::log(6.283185307179586L) + 1 + std::log(scr / n));
    const long double dw = (e.bottomRows(n - 1) - e.topRows(n - 1)).squaredNorm() / scr;
    const boost::math::fisher_f F(3, 17);
    const boost::math::students_t T(17);

    Lineas esperadas = {
        {0, "Variable Dep.: CONSUMO"},
        {0, "Regresores   : 1,BENEF,BENEF(-1),SAL"},
        {0, "Muestra      : 1921 - 1941          Nº Observaciones     : 21"},
        {0, ""},
        {2, " Regresores      Coeficiente    Desv. Típica   Estadís. t   Prob>|t|"},
    };
    const char *nombres[] = {"1", "BENEF", "BENEF(-1)", "SAL"};
    for (int j = 0; j < k; ++j) {
        const long double d = std::sqrt(s2 * inversa(j, j)), t = b(j, 0) / d;
        const double p = 2 * boost::math::cdf(boost::math::complement(T, static_cast<double>(std::fabs(t))));
        esperadas.emplace_back(1, Formatear("%15s", nombres[j]) + Campo(b(j, 0), 6, 15) + Campo(d, 6, 15) +
                                      Campo(t, 2, 9) + Campo(p, 4, 13));
    }
    const auto linea = [&](const char *izquierda, long double a, const char *derecha, long double c) {
        esperadas.emplace_back(0, izquierda + Campo(a, 4, 10) + "  " + derecha + Campo(c, 4, 10));
    };
    linea("Media Var. Dependiente:", media, "Des. Típ. Var. Depen.:", std::sqrt(scvd / (n - 1)));
    linea("Error Típico Regresión:", std::sqrt(s2), "Suma Cuadrados Resid.:", scr);
    linea("R Cuadrado            :", r2, "R Cuadrado Corregido :", 1 - (1 - r2) * (n - 1) / (n - k));
    linea("Logaritmo de Verosim. :", lv, "Criterio AIC         :", -2 * (lv - k) / n);
    linea("Estadístico F(  3, 17):", f,
          "Prob > F             :", boost::math::cdf(boost::math::complement(F, static_cast<double>(f))));
    linea("Estadís. Durbin-Watson:", dw, "Est. Autocorrelación :", 1 - dw / 2);
    EXPECT_EQ(r.lineas, esperadas);

    // The published figures, as a reader finds them.
    const char *publicados[] = {"16.2366", "0.1929", "0.0898", "0.7962"};
    for (std::size_t j = 0; j < 4; ++j)
        EXPECT_NE(r.lineas[5 + j].second.find(publicados[j]), std::string::npos) << r.lineas[5 + j].second;
}

TEST(Informe, TitulosPorCodigo) {
    EmpezarRegresion();
    static constexpr struct {
        int codigo, tipo, retardos;
        const char *titulo;
    } Casos[] = {
        {8, 1, 1, "Mínimos cuadrados ordinarios"},
        {8, 2, 1, "Mínimos C.: Matriz de covarianzas consistente bajo heterocedasticidad"},
        {8, 3, 12, "Mínimos C.: Matriz de covarianzas consistente bajo autocorrelacion (12 r.)"},
        {8, 3, 0, "Mínimos C.: Matriz de covarianzas consistente bajo autocorrelacion (0 r.)"},
        {13, 1, 1, "Mínimos cuadrados ponderados"},
        {9, 2, 1, "Contrastes de significatividad: Modelo restringido"},
        {104, 1, 1, "Contrastes de heteroscedasticidad: Rangos"},
        {11, 1, 1, "Contrastes de heteroscedasticidad: Goldfeld y Quandt"},
        {12, 1, 1, "Contrastes de heteroscedasticidad: White"},
        {101, 1, 1, "Contrastes de autocorrelación: Wallis"},
        {105, 1, 1, "Contrastes de autocorrelación: h de Durbin"},
        {0, 1, 1, ""},
    };
    for (const auto &c : Casos) {
        UltimaRegresion.TipoCovarianza = c.tipo;
        UltimaRegresion.RetardosCovarianza = c.retardos;
        EXPECT_EQ(Utf8De1252(TituloRegresion(c.codigo)), c.titulo);
    }
}

TEST(Informe, LaListaSeDetieneYLaTablaNo) {
    EmpezarRegresion();
    Lote.VerRegresion = 1;
    std::string sentencia = "MC Y 1";
    for (int i = 0; i < 8; ++i) {
        std::vector<double> v(20);
        for (std::size_t j = 0; j < 20; ++j)
            v[j] = static_cast<double>((j * j * (static_cast<std::size_t>(i) + 3) + j) % 17);
        PonerSerie(Formatear("LARGA%03d", i), v);
        sentencia += Formatear(" LARGA%03d", i);
    }
    ASSERT_TRUE(Procesar(sentencia));
    ASSERT_EQ(Prueba.resultados.size(), 1u);
    const Lineas &l = Prueba.resultados[0].lineas;
    // 46 characters after the fifth name, so that no sixth one follows.
    EXPECT_EQ(l[1].second, "Regresores   : 1,LARGA000,LARGA001,LARGA002,LARGA003,LARGA004");
    EXPECT_EQ(l.size(), 5u + 9u + 6u);
    EXPECT_EQ(l[13].second.substr(0, 15), "       LARGA007");
}

TEST(Informe, NombresLargosSeCortanA14) {
    EmpezarRegresion();
    Lote.VerRegresion = 1;
    PonerSerie("EDUCACIO", {1, 4, 2, 9, 3, 3, 1, 7, 2, 2, 9, 1, 4, 5, 2, 6, 2, 8, 1, 3});
    ASSERT_TRUE(Procesar("MC Y 1 EDUCACIO(-1)"));
    EXPECT_EQ(Prueba.resultados[0].lineas[6].second.substr(0, 15), "   EDUCACIO(-1)");
}

// The blocks of the tests are made from results that a regression left under their names.
namespace {

void DejarResultados(int codigo) {
    EmpezarRegresion();
    PonerMatriz("_YDEP", std::vector<double>(20, 1.0), 20, 1);
    PonerMatriz(NombreFamilia(FamBETA, codigo), {1.5, -2.25}, 2, 1);
    PonerMatriz(NombreFamilia(FamDTE, codigo), {0.5}, 1, 1); // an element behind the end counts as 0.0
    PonerSerie(NombreFamilia(FamDIV, codigo), {3.0, 4.0}, 10);
    PonerSerie(NombreFamilia(FamPROBT, codigo), {0.25, 0.125}, 10);
    for (const Familias f : {FamMVD, FamDTVD, FamDTR, FamDCR, FamRC, FamRCC, FamLV, FamAIC, FamFORLA, FamESTF,
                             FamDW, FamEA1, FamANREG, FamNORE})
        PonerEscalar(nullptr, NombreFamilia(f, codigo), 2.0);
    PonerCampo(UltimaRegresion.CodigoDependiente, "Y", AnchoCodigo);
    UltimaRegresion.CodigosRegresores = {"1", "X"};
    PonerCampo(UltimaRegresion.DependienteMostrado, "_RESCUAD", AnchoCodigo);
    UltimaRegresion.TextosRegresores = {"1", "X*X"};
    Muestra.InicioRegresion = 10;
    Muestra.FinRegresion = 19;
}

Lineas Leer(const TextoSalida &texto) {
    Lineas r;
    for (const LineaSalida &l : texto) r.emplace_back(l.Grupo, Utf8De1252(l.texto));
    return r;
}

const Lineas Estadisticos = {
    {0, "Media Var. Dependiente:    2.0000  Des. Típ. Var. Depen.:    2.0000"},
    {0, "Error Típico Regresión:    2.0000  Suma Cuadrados Resid.:    2.0000"},
    {0, "R Cuadrado            :    2.0000  R Cuadrado Corregido :    2.0000"},
    {0, "Logaritmo de Verosim. :    2.0000  Criterio AIC         :    2.0000"},
    {0, "Estadístico F(  2,  2):    2.0000  Prob > F             :    2.0000"},
    {0, "Estadís. Durbin-Watson:    2.0000  Est. Autocorrelación :    2.0000"},
};

const char *const Titulos = " Regresores      Coeficiente    Desv. Típica   Estadís. t   Prob>|t|";

} // namespace

TEST(Informe, BloquesDeLosContrastes) {
    const ParteMuestra parte = {3, 12, 10};
    const struct {
        int codigo;
        const ParteMuestra *parte;
        Lineas cabecera;
        const char *uno, *otro;
    } Casos[] = {
        {13,
         nullptr,
         {{0, "Variable Dep.: Y            "},
          {0, "Regresores   : 1,X                                         "},
          {0, "Muestra      :   11 -   20          Nº Observaciones     : 20        "},
          {0, "Variable de ponderación :LN(X)                            "},
          {0, std::string(70, ' ')}},
         "              1",
         "              X"},
        {11,
         &parte,
         {{3, "                    REGRESION DENOMINADOR                 "},
          {0, "Variable Dep.: Y            "},
          {0, "Regresores   : 1,X                                         "},
          {0, "Muestra Orde.: 3,12                 Nº Observaciones     : 10        "},
          {0, std::string(70, ' ')}},
         "              1",
         "              X"},
        {10,
         &parte,
         {{3, "                    REGRESION NUMERADOR                   "},
          {0, "Variable Dep.: Y            "},
          {0, "Regresores   : 1,X                                         "},
          {0, "Muestra Orde.: 3,12                 Nº Observaciones     : 10        "},
          {0, std::string(70, ' ')}},
         "              1",
         "              X"},
        {12,
         nullptr,
         {{0, "Variable Dep.: _RESCUAD  " + std::string(44, ' ')},
          {0, "Regresores   : 1,X*X                                                 "},
          {0, "Muestra      :   11 -   20          Nº Observaciones     : 20        "},
          {0, std::string(70, ' ')}},
         "1              ",
         "X*X            "},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.codigo);
        DejarResultados(c.codigo);
        UltimaRegresion.TextoPonderacion = "LN(X)";
        TextoSalida texto;
        std::vector<TablaCoeficientes> tablas;
        ASSERT_EQ(BloqueRegresion(texto, tablas, nullptr, c.codigo, c.parte), 1);
        Lineas esperadas = c.cabecera;
        const int titulo = static_cast<int>(esperadas.size());
        esperadas.emplace_back(2, Titulos);
        esperadas.emplace_back(1,
                               std::string(c.uno) + "       1.500000       0.500000     3.00       0.2500");
        esperadas.emplace_back(1,
                               std::string(c.otro) + "      -2.250000       0.000000     4.00       0.1250");
        esperadas.insert(esperadas.end(), Estadisticos.begin(), Estadisticos.end());
        EXPECT_EQ(Leer(texto), esperadas);
        ASSERT_EQ(tablas.size(), 1u);
        EXPECT_EQ(tablas[0].titulo, titulo);
        EXPECT_EQ(tablas[0].primera, titulo + 1);
        EXPECT_EQ(tablas[0].ultima, titulo + 2);
        SoltarTodasMatrices();
    }
}

// A value too long for its column loses its end and keeps the column's width.
TEST(Informe, ValoresLargosEnLaTabla) {
    static constexpr struct {
        double beta, desviacion, t, probabilidad;
        const char *fila;
    } Casos[] = {
        {1234567.123456, 0.5, 12345.67, 0.25,
         "              1 1234567.123456       0.500000 12345.67       0.2500"},
        {12345678.123456, 0.5, 123456.78, 0.25,
         "              1  12345678.1234       0.500000  123456.       0.2500"},
        {-1234567.123456, 98765432.5, -12345.67, 1.0,
         "              1  -1234567.1234  98765432.5000  -12345.       1.0000"},
    };
    for (const auto &c : Casos) {
        DejarResultados(8);
        PonerMatriz("_BETA", {c.beta, 1.0}, 2, 1);
        PonerMatriz("_DTE", {c.desviacion, 1.0}, 1, 2);
        ArchivoTrabajo.ValoresObs[10][BuscarSerie("_DIV")] = c.t;
        ArchivoTrabajo.ValoresObs[10][BuscarSerie("_PROBT")] = c.probabilidad;
        TextoSalida texto;
        std::vector<TablaCoeficientes> tablas;
        ASSERT_EQ(BloqueRegresion(texto, tablas, nullptr, 8, nullptr), 1);
        EXPECT_EQ(Leer(texto)[5].second, c.fila);
        SoltarTodasMatrices();
    }
}

TEST(Informe, ListaDeWhiteCortada) {
    DejarResultados(12);
    UltimaRegresion.TextosRegresores = {"1", "SALARIO", "EDUCACIO", "SALARIO*SALARIO", "EDUCACIO*EDUCACIO"};
    TextoSalida texto;
    std::vector<TablaCoeficientes> tablas;
    ASSERT_EQ(BloqueRegresion(texto, tablas, nullptr, 12, nullptr), 1);
    // 34 characters are not yet beyond 34.
    EXPECT_EQ(Leer(texto)[1].second, "Regresores   : 1,SALARIO,EDUCACIO,SALARIO*SALARIO,EDUCACIO*EDUCACIO  ");
    UltimaRegresion.TextosRegresores[0] = "10";
    texto.clear();
    ASSERT_EQ(BloqueRegresion(texto, tablas, nullptr, 12, nullptr), 1);
    EXPECT_EQ(Leer(texto)[1].second, "Regresores   : 10,SALARIO,EDUCACIO,SALARIO*SALARIO..                 ");
    SoltarTodasMatrices();
}

TEST(Informe, ObjetosQueFaltan) {
    static constexpr struct {
        const char *nombre, *caja;
    } Casos[] = {
        {"_YDEP", "Secuencia no Válida. Pto 86"},  {"_BETA", "Secuencia no válida. Pto 87"},
        {"_DTE", "Secuencia no válida. Pto 88"},   {"_DIV", "Serie no Encontrada. Pto 86"},
        {"_PROBT", "Serie no Encontrada. Pto 86"}, {"_MVD", "Secuencia no válida. Pto 871"},
        {"_NORE", "Secuencia no válida. Pto 871"},
    };
    for (const auto &c : Casos) {
        DejarResultados(8);
        if (BuscarMatriz(c.nombre) >= 0) BorrarMatriz(nullptr, BuscarMatriz(c.nombre));
        if (BuscarSerie(c.nombre) >= 0) EliminarSerie(BuscarSerie(c.nombre));
        if (BuscarEscalar(c.nombre) >= 0) BorrarEscalar(BuscarEscalar(c.nombre));
        Lote.VerRegresion = 1;
        MostrarRegresion(nullptr, 8);
        EXPECT_EQ(TextosDeCajas(), (Textos{"¿Desea ver la regresion?", c.caja})) << c.nombre;
        EXPECT_TRUE(Prueba.resultados.empty());
        SoltarTodasMatrices();
    }
}

TEST(Informe, LosContrastesNoSeMuestranTrasPonderar) {
    for (const int codigo : {10, 11, 104}) {
        DejarResultados(codigo);
        UltimaRegresion.MetodoRegresion = OrdenMCP;
        MostrarRegresion(nullptr, codigo);
        ASSERT_EQ(Prueba.cajas.size(), 1u);
        EXPECT_EQ(Prueba.cajas[0], (CajaVista{"Proceso cancelado", "Utilice MC ordinarios", IconoInformacion,
                                              BotonesAceptar}));
        EXPECT_TRUE(Prueba.resultados.empty());
    }
}

// A report of a test: shown without a question, whatever VSR says, under the title of its code.
TEST(Informe, SalidaDeUnContraste) {
    static constexpr struct {
        int clase;
        bool seProduce;
        const char *titulo; // of the window, null when none opens
    } Casos[] = {
        {101, true, "Contrastes de autocorrelación: Wallis"},
        {104, true, "Contrastes de heteroscedasticidad: Rangos"},
        {9, true, "Contrastes de significatividad: Modelo restringido"},
        {105, false, nullptr},
    };
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.clase);
        EmpezarRegresion();
        Lote.VerRegresion = 0;
        static bool seProduce = false;
        seProduce = c.seProduce;
        MostrarSalida(nullptr, c.clase, [](InformeProducido &informe, Ventana *, int clase) {
            AnadirLinea(informe.lineas, 3, "clase " + std::to_string(clase));
            return seProduce ? 1 : 0;
        });
        EXPECT_TRUE(Prueba.cajas.empty());
        ASSERT_EQ(Prueba.resultados.size(), c.titulo != nullptr ? 1u : 0u);
        if (c.titulo == nullptr) continue;
        EXPECT_EQ(Prueba.resultados[0].titulo, c.titulo);
        EXPECT_EQ(Prueba.resultados[0].clase, c.clase);
        EXPECT_EQ(Prueba.resultados[0].contenido, 0);
        EXPECT_EQ(Prueba.resultados[0].lineas, (Lineas{{3, "clase " + std::to_string(c.clase)}}));
    }
}
