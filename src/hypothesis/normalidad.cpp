// The test of Bera and Jarque.
#include "hypothesis/normalidad.h"

#include "charts/resultados/partes_informe.h"
#include "language/traza.h"
#include "matrix/probabilidad.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr int GrupoTexto = 1;

struct LineaDeContraste {
    const char *formato, *rotulo; // the second for a spreadsheet
    double ContrasteNormalidad::*valor;
    const char *paso; // of the trace
};

constexpr LineaDeContraste Lineas[] = {
    {"         Coeficiente de asimetria...: %10s", "Coeficiente de asimetria",
     &ContrasteNormalidad::asimetria, "asimetria"},
    {"         Coeficiente de curtosis....: %10s", "Coeficiente de curtosis", &ContrasteNormalidad::curtosis,
     "curtosis"},
    {"         Estadístico................: %10s"_w, "Estadístico"_w, &ContrasteNormalidad::estadistico,
     "estadistico"},
    {"         Prob > Chi-cuadrado...... .: %10s", "Prob > Chi-cuadrado", &ContrasteNormalidad::probabilidad,
     "probabilidad"},
};

void Mostrar(Ventana *ventana, std::string_view serie, const FilasDeMuestra &filas,
             const ContrasteNormalidad &contraste) {
    const std::string muestra =
        std::string(TextoPeriodo(filas.inicio)) + " - " + std::string(TextoPeriodo(filas.fin));
    const std::string codigo(Recortado(serie));
    const int n = filas.fin - filas.inicio + 1;
    TextoSalida texto;
    AnadirLinea(texto, GrupoTexto, Formatear("         Muestra: %-19s NºObs.: %-10d"_w, muestra.c_str(), n));
    AnadirLinea(texto, GrupoTexto, Formatear("         Serie......................: %-10s", codigo.c_str()));
    std::string tabla =
        "Muestra\t" + muestra + "\nNºObs.\t"_w + std::to_string(n) + "\nSerie\t" + codigo + "\n";
    FuentesDeSalida fuentes;
    for (const LineaDeContraste &l : Lineas) {
        const double valor = contraste.*l.valor;
        fuentes.push_back({static_cast<int>(texto.size()), {{l.paso}}});
        AnadirLinea(texto, GrupoTexto, Formatear(l.formato, NumeroCopiado(4, 4, valor, 10).c_str()));
        tabla += std::string(l.rotulo) + "\t" + NumeroExacto(valor) + "\n";
    }
    SalidaResultado salida = {};
    salida.tipo = SalidaNormalidad;
    salida.titulo = "Contraste de normalidad  Bera y Jarque";
    salida.lineas = &texto;
    salida.tabla = tabla;
    salida.fuentes = &fuentes;
    MostrarVentanaResultado(ventana, salida);
}

struct SumasDePotencias {
    double S2 = 0.0, S3 = 0.0, S4 = 0.0;
};

SumasDePotencias SumarPotencias(std::span<const double> x) {
    SumasDePotencias s;
    for (const double v : x) {
        s.S2 += v * v;
        s.S3 += v * v * v;
        s.S4 += v * v * v * v;
    }
    return s;
}

} // namespace

ContrasteNormalidad ContrastarNormalidad(std::span<const double> x) {
    const double n = static_cast<double>(x.size());
    const auto [S2, S3, S4] = SumarPotencias(x);
    ContrasteNormalidad c = {};
    const double desviacion3 = std::sqrt(S2 / n * (S2 / n) * (S2 / n));
    if (desviacion3 > 0.0) c.asimetria = S3 / n / desviacion3;
    const double cuadrado = S2 * S2 / n;
    if (cuadrado > 0.0) c.curtosis = S4 / cuadrado;
    c.estadistico = n / 6.0 * c.asimetria * c.asimetria + n / 24.0 * (c.curtosis - 3.0) * (c.curtosis - 3.0);
    Probabilidad('c', c.estadistico, 2.0, 0.0, c.probabilidad);
    return c;
}

namespace {

// The steps of ContrastarNormalidad; x(t) is the series.
void TrazarContraste(std::string_view serie, std::span<const double> x, const ContrasteNormalidad &c,
                     const FilasTraza &filas) {
    if (!Trazando()) return;
    const int n = static_cast<int>(x.size());
    const auto [S2, S3, S4] = SumarPotencias(x);
    const std::string codigo(Recortado(serie));
    const auto momento = [&](const char *nombre, int orden, double valor) {
        TrazarEscalar(nombre, ConPeriodos(Formatear("suma de %s(t)^%d", codigo.c_str(), orden), filas), valor,
                      Formatear("Suma de potencias %d de la serie, sin restar la media", orden), filas);
    };
    momento("s2", 2, S2);
    momento("s3", 3, S3);
    momento("s4", 4, S4);
    TrazarEscalar("asimetria", Formatear("(s3/%d) / RCUAD(s2/%d * s2/%d * s2/%d)", n, n, n, n), c.asimetria,
                  "Coeficiente de asimetría; 0 si no hay variación"_w);
    TrazarEscalar("curtosis", Formatear("s4 / (s2 * s2 / %d)", n), c.curtosis,
                  "Coeficiente de curtosis; 0 si no hay variación"_w);
    TrazarEscalar(
        "estadistico",
        Formatear("(%d/6 * asimetria * asimetria) + (%d/24 * (curtosis - 3) * (curtosis - 3))", n, n),
        c.estadistico, "Estadístico de Bera y Jarque"_w);
    TrazarEscalar("probabilidad", "PROBC(estadistico,2)", c.probabilidad,
                  "Probabilidad del estadístico, ji cuadrado con 2 grados de libertad"_w);
}

int Contrastar(Ventana *ventana, std::string_view serie) {
    const int s = BuscarSerie(serie);
    if (s < 0) return MensajePunto(ventana, "No existe la serie escogida", 1);
    const FilasDeMuestra filas = FilasDelArchivo(Muestra.InicioMuestra, Muestra.FinMuestra);
    std::vector<double> x;
    for (int i = filas.inicio; i <= filas.fin; ++i) x.push_back(ArchivoTrabajo.ValoresObs[i][s]);
    const ContrasteNormalidad contraste = ContrastarNormalidad(x);
    TrazarContraste(serie, x, contraste, {filas.inicio, filas.fin});
    Mostrar(ventana, serie, filas, contraste);
    return 1;
}

} // namespace

int AceptarNormalidad(Ventana *ventana, std::string_view serie) {
    const int grupo = EmpezarComando(serie, "Contraste de normalidad de Bera y Jarque");
    return TerminarComando(grupo, Contrastar(ventana, serie));
}
