// The lines of the regression report. Everything is read back from the store by name.
#include "estimation/informe.h"

#include "estimation/regresion.h"
#include "estimation/tabla_informe.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"
#include "store/temporales.h"

#include <algorithm>

// ----- Fields

std::string NumeroCampo(int decimales, double valor, int ancho) {
    const int d = decimales >= 0 && decimales <= 7 ? decimales : 10;
    const std::string impreso = Formatear("%20.*f", d, valor);
    std::string numero(Recortado(impreso));
    const std::size_t n = static_cast<std::size_t>(std::max(ancho, 1));
    if (numero.size() > n)
        numero.resize(n - 1);
    else
        numero.insert(0, n - numero.size(), ' ');
    return numero;
}

namespace {

enum GruposLinea { GrupoTexto = 0, GrupoFila = 1, GrupoTitulo = 2, GrupoCabecera = 3 };

constexpr std::size_t AnchoNombre = 14; // characters of a name in its row

struct TituloDeCodigo {
    int codigo;
    const char *titulo;
};

constexpr TituloDeCodigo Titulos[] = {
    {OrdenMC, "Mínimos cuadrados ordinarios"_w},
    {OrdenCR, "Contrastes de significatividad: Modelo restringido"},
    {OrdenMGD, "Contrastes de heteroscedasticidad: Goldfeld y Quandt"},
    {OrdenCWH, "Contrastes de heteroscedasticidad: White"},
    {OrdenMCP, "Mínimos cuadrados ponderados"_w},
    {OrdenCWA, "Contrastes de autocorrelación: Wallis"_w},
    {OrdenCRA, "Contrastes de heteroscedasticidad: Rangos"},
    {OrdenCDU, "Contrastes de autocorrelación: h de Durbin"_w},
};

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

} // namespace

std::string TituloRegresion(int codigo) {
    if (codigo == OrdenMC && UltimaRegresion.TipoCovarianza == CovarianzaHeterocedasticidad)
        return "Mínimos C.: Matriz de covarianzas consistente bajo heterocedasticidad"_w;
    if (codigo == OrdenMC && UltimaRegresion.TipoCovarianza == CovarianzaAutocorrelacion)
        return Formatear("Mínimos C.: Matriz de covarianzas consistente bajo autocorrelacion (%d r.)"_w,
                         UltimaRegresion.RetardosCovarianza);
    for (const TituloDeCodigo &t : Titulos)
        if (t.codigo == codigo) return t.titulo;
    return {};
}

// ----- Reading the results

namespace {

// Elements of a matrix with their number. False when it is gone.
bool LeerMatriz(std::string_view nombre, const double *&datos, int &numero) {
    const int m = BuscarMatriz(nombre);
    if (m < 0 || !FijarMatriz(m)) return false;
    datos = TablaMatrices.registro[m].Datos;
    numero = TablaMatrices.registro[m].Filas * TablaMatrices.registro[m].Columnas;
    return true;
}

int ReunirDatos(DatosBloque &d, Ventana *ventana) {
    const RegistroRegresion &u = UltimaRegresion;
    // White's list is the widened one; the others are shown with the names of the last regression.
    const bool propia = d.codigo == OrdenCWH;
    d.dependiente = Recortado(propia ? u.DependienteMostrado : u.CodigoDependiente);
    d.nombres = propia ? &u.TextosRegresores : &u.CodigosRegresores;
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
double EnSerie(const DatosBloque &d, int serie, int i) {
    const int fila = (d.parte != nullptr ? d.parte->fila : Muestra.InicioRegresion) + i;
    return fila >= 0 && fila < MaxObservaciones ? ArchivoTrabajo.ValoresObs[fila][serie] : 0.0;
}

double EnMatriz(const double *datos, int numero, int i) {
    return i < numero ? datos[i] : 0.0;
}

// ----- Head

// Names joined by commas; `alCortar` goes behind a list that not all found room in.
std::string UnirNombres(const std::vector<std::string> &nombres, std::size_t largo, const char *alCortar) {
    std::string r;
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        if (r.size() > largo) return r + alCortar;
        if (i > 0) r += ',';
        r += nombres[i];
    }
    return r;
}

std::string TextoMuestra(const DatosBloque &d) {
    if (d.parte != nullptr) return Formatear("%d,%d", d.parte->primera, d.parte->ultima);
    const auto periodo = [](int fila) {
        const bool dentro = fila >= 0 && fila < MaxObservaciones;
        return std::string(dentro ? Recortado(ArchivoTrabajo.TextosPeriodo[fila], RecorteDerecha) : "");
    };
    return periodo(Muestra.InicioRegresion) + " - " + periodo(Muestra.FinRegresion);
}

// How the blocks differ: White's auxiliary regression has a line of its own kind for names, and names at the left.
struct FormatoBloque {
    const char *dependiente, *regresores, *fila;
    std::size_t largoLista; // a longer list of names takes no further one
    const char *alCortar;   // stands behind a list that was cut
};

constexpr FormatoBloque FormatoComun = {"Variable Dep.: %-10s   ", "Regresores   : %-44s",
                                        "%15s%15s%15s%9s%13s", 45, ""};
constexpr FormatoBloque FormatoWhite = {"Variable Dep.: %-10s                                            ",
                                        "Regresores   : %-54s", "%-15s%15s%15s%9s%13s", 34, ".."};

void AnadirCabecera(TextoSalida &texto, const DatosBloque &d, const FormatoBloque &f) {
    if (d.codigo == OrdenMGD)
        AnadirLinea(texto, GrupoCabecera, "                    REGRESION DENOMINADOR                 ");
    if (d.codigo == OrdenMGN)
        AnadirLinea(texto, GrupoCabecera, "                    REGRESION NUMERADOR                   ");
    const std::string nombres = UnirNombres(*d.nombres, f.largoLista, f.alCortar);
    AnadirLinea(texto, GrupoTexto, Formatear(f.dependiente, d.dependiente.c_str()));
    AnadirLinea(texto, GrupoTexto, Formatear(f.regresores, nombres.c_str()));
    const char *muestra = d.parte != nullptr ? "Muestra Orde.: %-20s Nº Observaciones     : %-10d"_w
                                             : "Muestra      : %-20s Nº Observaciones     : %-10d"_w;
    const int observaciones = d.parte != nullptr ? d.parte->ultima - d.parte->primera + 1 : d.observaciones;
    AnadirLinea(texto, GrupoTexto, Formatear(muestra, TextoMuestra(d).c_str(), observaciones));
    if (d.codigo == OrdenMCP)
        AnadirLinea(texto, GrupoTexto,
                    Formatear("Variable de ponderación :%-14s                   "_w,
                              UltimaRegresion.TextoPonderacion.c_str()));
    AnadirLinea(texto, GrupoTexto, std::string(70, ' '));
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

// ----- Statistics

struct LineaEstadisticos {
    const char *formato;
    Familias izquierda, derecha;
};

constexpr LineaEstadisticos Estadisticos[] = {
    {"Media Var. Dependiente:%10s  Des. Típ. Var. Depen.:%10s"_w, FamMVD, FamDTVD},
    {"Error Típico Regresión:%10s  Suma Cuadrados Resid.:%10s"_w, FamDTR, FamDCR},
    {"R Cuadrado            :%10s  R Cuadrado Corregido :%10s", FamRC, FamRCC},
    {"Logaritmo de Verosim. :%10s  Criterio AIC         :%10s", FamLV, FamAIC},
    {"Estadístico F(%3s,%3s):%10s  Prob > F             :%10s"_w, FamFORLA, FamESTF},
    {"Estadís. Durbin-Watson:%10s  Est. Autocorrelación :%10s"_w, FamDW, FamEA1},
};

// The value of a scalar in its field. False when it is gone.
bool CampoEscalar(Familias familia, int codigo, int decimales, int ancho, std::string &campo) {
    const int s = BuscarEscalar(NombreFamilia(familia, codigo));
    if (s < 0) return false;
    campo = NumeroCampo(decimales, TablaEscalares.registro[s].Valor, ancho);
    return true;
}

int AnadirEstadisticos(TextoSalida &texto, const DatosBloque &d, Ventana *ventana) {
    for (const LineaEstadisticos &l : Estadisticos) {
        std::string izquierda, derecha, gl1, gl2;
        const bool bien = CampoEscalar(l.izquierda, d.codigo, 4, 10, izquierda) &&
                          CampoEscalar(l.derecha, d.codigo, 4, 10, derecha) &&
                          CampoEscalar(FamANREG, d.codigo, 0, 3, gl1) &&
                          CampoEscalar(FamNORE, d.codigo, 0, 3, gl2);
        if (!bien) return MensajePunto(ventana, "Secuencia no válida"_w, 871);
        AnadirLinea(texto, GrupoTexto,
                    l.izquierda == FamFORLA
                        ? Formatear(l.formato, gl1.c_str(), gl2.c_str(), izquierda.c_str(), derecha.c_str())
                        : Formatear(l.formato, izquierda.c_str(), derecha.c_str()));
    }
    return 1;
}

// ----- Whether to show

// Goldfeld and Quandt's and the rank test have no sense on weighted data.
bool RechazaPonderada(int codigo) {
    return UltimaRegresion.MetodoRegresion == OrdenMCP &&
           (codigo == OrdenMGN || codigo == OrdenMGD || codigo == OrdenCRA);
}

bool QuiereVer(Ventana *ventana) {
    return Lote.VerRegresion != 0 && MostrarCaja(ventana, "¿Desea ver la regresion?"_w, TituloAviso,
                                                 IconoPregunta, BotonesSiNo) == RespuestaSi;
}

} // namespace

int BloqueRegresion(TextoSalida &texto, std::vector<TablaCoeficientes> &tablas, Ventana *ventana, int codigo,
                    const ParteMuestra *parte) {
    DatosBloque d = {};
    d.codigo = codigo;
    d.parte = parte;
    if (ReunirDatos(d, ventana) == 0) return 0;
    const FormatoBloque &f = codigo == OrdenCWH ? FormatoWhite : FormatoComun;
    AnadirCabecera(texto, d, f);
    AnadirCoeficientes(texto, tablas, d, f);
    return AnadirEstadisticos(texto, d, ventana);
}

void MostrarSalida(Ventana *ventana, int clase, ProductorDeInforme producir) {
    if (RechazaPonderada(clase)) return MostrarMensaje(ventana, "Utilice MC ordinarios");
    if ((clase == OrdenMC || clase == OrdenMCP) && !QuiereVer(ventana)) return;
    InformeProducido informe;
    if (producir(informe, ventana, clase) == 0) return;
    const std::string titulo = TituloRegresion(clase);
    MostrarVentanaResultado(ventana, {SalidaRegresion, titulo, clase, 0, &informe.lineas, nullptr,
                                      &informe.tablas, informe.tabla});
}

void MostrarRegresion(Ventana *ventana, int codigo) {
    MostrarSalida(ventana, codigo, [](InformeProducido &informe, Ventana *v, int c) {
        if (BloqueRegresion(informe.lineas, informe.tablas, v, c, nullptr) == 0) return 0;
        informe.tabla = TablaRegresion(c);
        return 1;
    });
}
