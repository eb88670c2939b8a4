// The lines of the block of a regression, and its table for spreadsheets.
#include "estimation/bloque_regresion.h"

#include "charts/resultados/partes_informe.h"
#include "estimation/regresion.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"
#include "store/temporales.h"

namespace {

enum GruposLinea { GrupoTexto = 0, GrupoFila = 1, GrupoTitulo = 2, GrupoCabecera = 3 };

constexpr std::size_t AnchoNombre = 14; // characters of a name in its row

// What a block is made from.
struct DatosBloque {
    int codigo;
    const ParteMuestra *parte;
    std::string dependiente;
    const std::vector<std::string> *nombres;
    int observaciones;
    const double *beta, *desviacion;
    int numBeta, numDesviacion;
    int serieT, serieProbabilidad;
};

// ----- Reading the results

// Elements of a matrix with their number. False when it is gone.
bool LeerMatriz(std::string_view nombre, const double *&datos, int &numero) {
    const int m = BuscarMatriz(nombre);
    if (m < 0 || !FijarMatriz(m)) return false;
    datos = TablaMatrices.registro[m].Datos;
    numero = TablaMatrices.registro[m].Filas * TablaMatrices.registro[m].Columnas;
    return true;
}

// White's list is the widened one; the others are shown with the names of the last regression.
std::string DependienteDe(int codigo) {
    const RegistroRegresion &u = UltimaRegresion;
    return std::string(Recortado(codigo == OrdenCWH ? u.DependienteMostrado : u.CodigoDependiente));
}

const std::vector<std::string> &NombresDe(int codigo) {
    return codigo == OrdenCWH ? UltimaRegresion.TextosRegresores : UltimaRegresion.CodigosRegresores;
}

int ReunirDatos(DatosBloque &d, Ventana *ventana) {
    d.dependiente = DependienteDe(d.codigo);
    d.nombres = &NombresDe(d.codigo);
    const int y = BuscarMatriz("_YDEP");
    if (y < 0) return MensajePunto(ventana, "Secuencia no Válida"_w, 86);
    d.observaciones = TablaMatrices.registro[y].Filas;
    if (!LeerMatriz(NombreFamilia(FamBETA, d.codigo), d.beta, d.numBeta))
        return MensajePunto(ventana, "Secuencia no válida"_w, 87);
    if (!LeerMatriz(NombreFamilia(FamDTE, d.codigo), d.desviacion, d.numDesviacion))
        return MensajePunto(ventana, "Secuencia no válida"_w, 88);
    d.serieT = BuscarSerie(NombreFamilia(FamDIV, d.codigo));
    d.serieProbabilidad = BuscarSerie(NombreFamilia(FamPROBT, d.codigo));
    if (d.serieT < 0 || d.serieProbabilidad < 0) return MensajePunto(ventana, "Serie no Encontrada", 86);
    return 1;
}

// The values of a regression stand in their series from the first observation of the range on.
int FilaDelRango(const ParteMuestra *parte, int i) {
    return (parte != nullptr ? parte->fila : Muestra.InicioRegresion) + i;
}

double EnSerie(const DatosBloque &d, int serie, int i) {
    const int fila = FilaDelRango(d.parte, i);
    return fila >= 0 && fila < MaxObservaciones ? ArchivoTrabajo.ValoresObs[fila][serie] : 0.0;
}

double EnMatriz(const double *datos, int numero, int i) {
    return i < numero ? datos[i] : 0.0;
}

// ----- Head

// How the blocks differ: White's auxiliary regression has a line of its own kind for names, and names at the left.
struct FormatoBloque {
    FormatoCabecera cabecera;
    const char *fila;
};

constexpr FormatoCabecera ConListaCorta(FormatoCabecera f) {
    f.largoLista = 34;
    f.alCortar = "..";
    return f;
}

constexpr FormatoBloque FormatoComun = {CabeceraDeRegresion, "%15s%15s%15s%9s%13s"};
constexpr FormatoBloque FormatoWhite = {ConListaCorta(CabeceraDeContraste), "%-15s%15s%15s%9s%13s"};

void AnadirCabeceraDeBloque(TextoSalida &texto, const DatosBloque &d, const FormatoBloque &f) {
    if (d.codigo == OrdenMGD)
        AnadirLinea(texto, GrupoCabecera, "                    REGRESION DENOMINADOR                 ");
    if (d.codigo == OrdenMGN)
        AnadirLinea(texto, GrupoCabecera, "                    REGRESION NUMERADOR                   ");
    DatosCabecera c = {.dependiente = d.dependiente,
                       .nombres = *d.nombres,
                       .muestra = TextoDeFilas(Muestra.InicioRegresion, Muestra.FinRegresion),
                       .observaciones = d.observaciones};
    if (d.parte != nullptr) {
        c.muestra = Formatear("%d,%d", d.parte->primera, d.parte->ultima);
        c.observaciones = d.parte->ultima - d.parte->primera + 1;
        c.formatoMuestra = FormatoMuestraOrdenada;
    }
    if (d.codigo == OrdenMCP)
        c.mas = Formatear("Variable de ponderación :%-14s                   "_w,
                          UltimaRegresion.TextoPonderacion.c_str());
    AnadirCabecera(texto, f.cabecera, c);
}

// ----- Coefficients

void AnadirCoeficientes(TextoSalida &texto, std::vector<TablaCoeficientes> &tablas, const DatosBloque &d,
                        const FormatoBloque &f) {
    TablaCoeficientes tabla = {static_cast<int>(texto.size()), 0, 0};
    AnadirLinea(texto, GrupoTitulo, " Regresores      Coeficiente    Desv. Típica   Estadís. t   Prob>|t|"_w);
    tabla.primera = static_cast<int>(texto.size());
    for (std::size_t n = 0; n < d.nombres->size(); ++n) {
        const int i = static_cast<int>(n);
        const std::string nombre = (*d.nombres)[n].substr(0, AnchoNombre);
        AnadirLinea(texto, GrupoFila,
                    Formatear(f.fila, nombre.c_str(),
                              NumeroCampo(6, EnMatriz(d.beta, d.numBeta, i), 14).c_str(),
                              NumeroCampo(6, EnMatriz(d.desviacion, d.numDesviacion, i), 14).c_str(),
                              NumeroCampo(2, EnSerie(d, d.serieT, i), 8).c_str(),
                              NumeroCampo(4, EnSerie(d, d.serieProbabilidad, i), 12).c_str()));
    }
    tabla.ultima = static_cast<int>(texto.size()) - 1;
    tablas.push_back(tabla);
}

void AnadirFuentesDeCoeficientes(FuentesDeSalida &fuentes, const TablaCoeficientes &tabla, int codigo) {
    static constexpr Familias DeLaFila[] = {FamBETA, FamDTE, FamDIV, FamPROBT};
    for (int linea = tabla.primera; linea <= tabla.ultima; ++linea) {
        FuentesDeLinea &f = fuentes.emplace_back();
        f.linea = linea;
        for (const Familias familia : DeLaFila)
            f.numeros.push_back({NombreFamilia(familia, codigo), linea - tabla.primera});
    }
}

// ----- Statistics

constexpr LineaDeInforme Estadisticos[] = {
    {GrupoTexto,
     "Media Var. Dependiente:%10s  Des. Típ. Var. Depen.:%10s"_w,
     {DeFamilia(FamMVD, "Media Var. Dependiente"), DeFamilia(FamDTVD, "Des. Típ. Var. Depen."_w)}},
    {GrupoTexto,
     "Error Típico Regresión:%10s  Suma Cuadrados Resid.:%10s"_w,
     {DeFamilia(FamDTR, "Error Típico Regresión"_w), DeFamilia(FamDCR, "Suma Cuadrados Resid.")}},
    {GrupoTexto,
     "R Cuadrado            :%10s  R Cuadrado Corregido :%10s",
     {DeFamilia(FamRC, "R Cuadrado"), DeFamilia(FamRCC, "R Cuadrado Corregido")}},
    {GrupoTexto,
     "Logaritmo de Verosim. :%10s  Criterio AIC         :%10s",
     {DeFamilia(FamLV, "Logaritmo de Verosim."), DeFamilia(FamAIC, "Criterio AIC")}},
    // In the table the statistic stands in front of its degrees of freedom.
    {GrupoTexto,
     "Estadístico F(%2$3s,%3$3s):%1$10s  Prob > F             :%4$10s"_w,
     {DeFamilia(FamFORLA, "Estadístico F"_w), DeFamilia(FamANREG, "Grados de libertad 1", 0, 3),
      DeFamilia(FamNORE, "Grados de libertad 2", 0, 3), DeFamilia(FamESTF, "Prob > F")}},
    {GrupoTexto,
     "Estadís. Durbin-Watson:%10s  Est. Autocorrelación :%10s"_w,
     {DeFamilia(FamDW, "Estadís. Durbin-Watson"_w), DeFamilia(FamEA1, "Est. Autocorrelación"_w)}},
};

// ----- Table for a spreadsheet

// Element i of a matrix of the results, empty when there is none.
std::string DeMatriz(Familias familia, int codigo, int i) {
    const int m = BuscarMatriz(NombreFamilia(familia, codigo));
    if (m < 0 || !FijarMatriz(m)) return {};
    const RegistroMatriz &r = TablaMatrices.registro[m];
    return i < r.Filas * r.Columnas ? NumeroExacto(r.Datos[i]) : std::string();
}

// Value of a series of the results at a row, empty when there is none.
std::string DeSerie(Familias familia, int codigo, int fila) {
    const int s = BuscarSerie(NombreFamilia(familia, codigo));
    const bool hay =
        s >= 0 && fila >= 0 && fila < MaxObservaciones && ArchivoTrabajo.PresenciaObs[fila][s] == 1;
    return hay ? NumeroExacto(ArchivoTrabajo.ValoresObs[fila][s]) : std::string();
}

} // namespace

int BloqueRegresion(TextoSalida &texto, std::vector<TablaCoeficientes> &tablas, Ventana *ventana, int codigo,
                    const ParteMuestra *parte, FuentesDeSalida *fuentes) {
    DatosBloque d = {};
    d.codigo = codigo;
    d.parte = parte;
    if (ReunirDatos(d, ventana) == 0) return 0;
    const FormatoBloque &f = codigo == OrdenCWH ? FormatoWhite : FormatoComun;
    AnadirCabeceraDeBloque(texto, d, f);
    AnadirCoeficientes(texto, tablas, d, f);
    if (!AnadirLineas(texto, Estadisticos, codigo))
        return MensajePunto(ventana, "Secuencia no válida"_w, 871);
    if (fuentes == nullptr) return 1;
    AnadirFuentesDeCoeficientes(*fuentes, tablas.back(), codigo);
    AnadirFuentes(*fuentes, texto, Estadisticos, codigo);
    return 1;
}

RegresionMostrada RegresionDe(int codigo, const ParteMuestra *parte) {
    DatosBloque d = {};
    d.codigo = codigo;
    d.parte = parte;
    if (ReunirDatos(d, nullptr) == 0) return {};
    RegresionMostrada r = {
        codigo, d.dependiente, Muestra.InicioRegresion, Muestra.FinRegresion, d.observaciones, {}, {}};
    if (parte != nullptr) {
        r.observaciones = parte->ultima - parte->primera + 1;
        r.primera = parte->fila;
        r.ultima = parte->fila + r.observaciones - 1;
    }
    for (std::size_t n = 0; n < d.nombres->size(); ++n) {
        const int i = static_cast<int>(n);
        r.regresores.push_back({(*d.nombres)[n], EnMatriz(d.beta, d.numBeta, i),
                                EnMatriz(d.desviacion, d.numDesviacion, i), EnSerie(d, d.serieT, i),
                                EnSerie(d, d.serieProbabilidad, i)});
    }
    r.estadisticos = ValoresDeLineas(Estadisticos, codigo);
    return r;
}

std::string TablaRegresion(int codigo, const ParteMuestra *parte) {
    const std::vector<std::string> &nombres = NombresDe(codigo);
    std::string t = "Variable Dep.\t" + DependienteDe(codigo) + "\n";
    if (parte != nullptr) {
        t += Formatear("Muestra Orde.\t%d\t%d\nNº Observaciones\t%d\n"_w, parte->primera, parte->ultima,
                       parte->ultima - parte->primera + 1);
    } else {
        t += "Muestra\t" + std::string(TextoPeriodo(Muestra.InicioRegresion)) + "\t" +
             std::string(TextoPeriodo(Muestra.FinRegresion)) + "\n";
        if (const int y = BuscarMatriz("_YDEP"); y >= 0)
            t += "Nº Observaciones\t"_w + std::to_string(TablaMatrices.registro[y].Filas) + "\n";
    }
    t += "\n";
    t += "Regresores\tCoeficiente\tDesv. Típica\tEstadís. t\tProb>|t|\n"_w;
    for (std::size_t n = 0; n < nombres.size(); ++n) {
        const int i = static_cast<int>(n), fila = FilaDelRango(parte, i);
        t += nombres[n] + "\t" + DeMatriz(FamBETA, codigo, i) + "\t" + DeMatriz(FamDTE, codigo, i) + "\t" +
             DeSerie(FamDIV, codigo, fila) + "\t" + DeSerie(FamPROBT, codigo, fila) + "\n";
    }
    t += "\n";
    return t + TablaDeLineas(Estadisticos, codigo);
}
