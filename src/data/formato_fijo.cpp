// The table of the fixed format: its rows, the checks of the dialog, and the lines of its list.
#include "data/intercambio.h"

#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <cstring>

TablaDeCampos TablaCampos;

namespace {

constexpr int AnchoCampoPropuesto = 18; // length of every field of the table that an export begins from

bool EsCodigo(const CampoFijo &campo, const char *codigo) {
    return std::strcmp(campo.Codigo, codigo) == 0;
}

bool EsPanel() {
    return ArchivoTrabajo.TipoDatos == TipoPanel;
}

bool PeriodoEsPrimero() {
    return DescripcionPanel.PrimerConcepto == PeriodoPrimero;
}

bool PuedeIrEtiqueta(int fila) {
    return fila == 0 || fila == 2;
}

// The tests by code: null, or the message that refuses it. `serie` is the slot of the series, -1 for none.
const char *RechazoPorCodigo(bool importando, const CampoFijo &campo, int serie) {
    const int fila = TablaCampos.numero;
    const bool etiqueta = EsCodigo(campo, CodigoEtiqueta);
    const bool periodo = EsCodigo(campo, CodigoPeriodo);
    const bool individuo = EsCodigo(campo, CodigoIndividuo);
    if (CadenaDeCaracter(campo.Codigo, ' ') == 1) return "Introduzca nombre de serie";
    if (!importando && serie < 0 && !etiqueta && !(EsPanel() && (periodo || individuo)))
        return "Nombre de serie no existe";
    if (EsPanel() && importando) {
        if (periodo && fila > 0 && PeriodoEsPrimero()) return "El período debe estar en el primer campo"_w;
        if (individuo && fila > 0 && !PeriodoEsPrimero())
            return "Los individúos deben estar en el primer campo"_w;
        if (etiqueta && !PuedeIrEtiqueta(fila))
            return "Las Etiquetas deben estar en el primer ó tercer campo"_w;
    }
    for (int f = 0; f < fila; ++f)
        if (EsCodigo(TablaCampos.campo[f], campo.Codigo)) return "Nombre de serie repetido";
    return nullptr;
}

const char *RechazoPorTipo(bool importando, char tipo) {
    const int fila = TablaCampos.numero;
    const bool panel = EsPanel();
    if (tipo == '\0' || std::strchr(panel ? "ANPI" : "AN", tipo) == nullptr)
        return panel ? "Tipo debe ser 'A','N','P' ó 'I'"_w : "Tipo debe ser 'A' ó 'N'"_w;
    if (!importando) return nullptr;
    if (tipo == 'A' && fila > 0 && !panel) return "Tipo debe ser 'N'";
    if (tipo == 'A' && panel && !PuedeIrEtiqueta(fila)) return "Tipo no válido"_w;
    // Whatever the first concept is: so a panel with the individual first can't read its period, which would stand
    // in the second field, and the dialog's OK refuses the individual without it.
    if (tipo == 'P' && panel && fila > 0) return "Tipo no válido"_w;
    return nullptr;
}

const char *RechazoPorPosicion(const CampoFijo &campo) {
    if (LeerEntero(campo.Inicio) < 1) return "Posición de inicio no válida"_w;
    if (LeerEntero(campo.Longitud) < 1) return "Longitud no válida"_w;
    if (TablaCampos.numero >= MaxCamposFijos) return "Demasiadas Series";
    return nullptr;
}

// The codes that name no series ask for their type, for data that are no panel too.
const char *RechazoPorPareja(const CampoFijo &campo) {
    static constexpr struct {
        const char *codigo;
        char tipo;
        const char *mensaje;
    } Parejas[] = {{CodigoEtiqueta, 'A', "Tipo debe ser 'A'"},
                   {CodigoPeriodo, 'P', "Tipo debe ser 'P'"},
                   {CodigoIndividuo, 'I', "Tipo debe ser 'I'"}};
    for (const auto &p : Parejas)
        if (EsCodigo(campo, p.codigo) && campo.Tipo != p.tipo) return p.mensaje;
    return nullptr;
}

char TipoDeEdicion(std::string_view edicion) {
    const char tipo = edicion.empty() ? '\0' : edicion[0];
    return tipo != '\0' && std::strchr("anpi", tipo) != nullptr ? Mayuscula(tipo) : tipo;
}

// Text of a position: at most 3 characters, not padded.
void PonerPosicion(char (&destino)[AnchoPosicion], std::string_view texto) {
    const std::size_t n = texto.copy(destino, AnchoPosicion - 1);
    destino[n] = '\0';
}

// The position of an edit field, as it was typed. Of what is more than digits the number alone is kept: a hyphen would
// be counted with those of the list.
void PonerPosicionEscrita(char (&destino)[AnchoPosicion], std::string_view texto) {
    const std::string_view leido = texto.substr(0, AnchoPosicion - 1);
    const bool limpio = leido.find_first_not_of("0123456789 ") == std::string_view::npos;
    PonerPosicion(destino, limpio ? std::string(leido) : Formatear("%d", LeerEntero(leido)));
}

void AnadirFila(const CampoFijo &campo) {
    TablaCampos.campo[TablaCampos.numero++] = campo;
}

void ProponerFila(const char *codigo, char tipo, int inicio, int serie) {
    CampoFijo campo{};
    PonerCampo(campo.Codigo, codigo, AnchoCodigoCampo);
    campo.Tipo = tipo;
    // Three digits are all that a position has: from the 57th field on the proposal is cut, 1009 to 100.
    PonerPosicion(campo.Inicio, Formatear("%3d", inicio));
    PonerPosicion(campo.Longitud, Formatear("%d", AnchoCampoPropuesto));
    campo.IndiceSerie = serie;
    AnadirFila(campo);
}

char TipoDeFila(int fila) {
    return fila < TablaCampos.numero ? TablaCampos.campo[fila].Tipo : '\0';
}

// Both panel fields or neither, in the order of the first concept. Null, or the message; sets CamposPanel.
const char *RechazoPorPanel(OpcionesIntercambio &opciones) {
    static constexpr struct {
        char primero, segundo;
        const char *faltaSegundo, *faltaPrimero;
    } Reglas[] = {
        {'P', 'I', "El segundo campo deben ser los individuos", "El primer campo debe ser el período"_w},
        {'I', 'P', "El segundo campo debe ser el período"_w, "El primer campo deben ser los individuos"}};
    const auto &regla = Reglas[PeriodoEsPrimero() ? 0 : 1];
    const bool primero = TipoDeFila(0) == regla.primero;
    const bool segundo = TipoDeFila(1) == regla.segundo;
    if (primero && !segundo) return regla.faltaSegundo;
    if (!primero && segundo) return regla.faltaPrimero;
    opciones.CamposPanel = primero ? 1 : 0;
    if (primero && TipoDeFila(2) == 'A') opciones.ModoEtiquetas = EtiquetasTercerCampo;
    return nullptr;
}

} // namespace

void AbrirFormatoFijo(bool importando, EdicionCampo &edicion) {
    edicion = {};
    if (importando) {
        edicion.inicio = "1";
        return;
    }
    TablaCampos.numero = 0;
    int inicio = 1;
    if (ArchivoTrabajo.ConEtiquetas != 0) {
        ProponerFila(CodigoEtiqueta, 'A', inicio, 0);
        inicio += AnchoCampoPropuesto;
    }
    const int series = std::min<int>(ArchivoTrabajo.NumSeries, MaxSeries);
    for (int s = 0; s < series; ++s, inicio += AnchoCampoPropuesto)
        ProponerFila(ArchivoTrabajo.Codigos[s], 'N', inicio, s);
}

bool AnadirCampo(Ventana *ventana, bool importando, EdicionCampo &edicion) {
    CampoFijo campo{};
    PonerCampo(campo.Codigo, edicion.codigo, AnchoCodigoCampo);
    const int serie = importando ? -1 : BuscarSerie(campo.Codigo);
    campo.IndiceSerie = std::max(serie, 0);
    campo.Tipo = TipoDeEdicion(edicion.tipo);
    PonerPosicionEscrita(campo.Inicio, edicion.inicio);
    PonerPosicionEscrita(campo.Longitud, edicion.longitud);

    const char *rechazo = RechazoPorCodigo(importando, campo, serie);
    if (rechazo == nullptr) rechazo = RechazoPorTipo(importando, campo.Tipo);
    if (rechazo == nullptr) rechazo = RechazoPorPosicion(campo);
    if (rechazo == nullptr) rechazo = RechazoPorPareja(campo);
    if (rechazo != nullptr) {
        MostrarMensaje(ventana, rechazo, TituloAviso);
        return false;
    }
    AnadirFila(campo);
    edicion.codigo.clear();
    edicion.inicio = Formatear("%d", LeerEntero(campo.Inicio) + LeerEntero(campo.Longitud));
    edicion.longitud.clear();
    return true;
}

bool EliminarCampo(int seleccionado, EdicionCampo &edicion) {
    if (seleccionado < 0 || seleccionado >= TablaCampos.numero) return false;
    CampoFijo *const fila = TablaCampos.campo + seleccionado;
    edicion = {std::string(Recortado(fila->Codigo)), std::string(1, fila->Tipo),
               std::string(Recortado(fila->Inicio)), std::string(Recortado(fila->Longitud))};
    std::copy(fila + 1, TablaCampos.campo + TablaCampos.numero, fila);
    --TablaCampos.numero;
    return true;
}

std::string LineaDeCampo(const CampoFijo &campo) {
    return Formatear("%c---%s---%s---%s", campo.Tipo, campo.Inicio, campo.Longitud, campo.Codigo);
}

CampoFijo CampoDeLinea(std::string_view linea) {
    // What stands behind so many hyphens belongs to the field; a hyphen inside a code therefore ends it.
    std::string partes[10];
    std::size_t guiones = 0;
    for (const char c : linea) {
        if (c == '-') {
            ++guiones;
        } else if (guiones < std::size(partes)) {
            partes[guiones] += c;
        }
    }
    CampoFijo campo{};
    campo.Tipo = partes[0].empty() ? '\0' : partes[0][0];
    PonerPosicion(campo.Inicio, partes[3]);
    PonerPosicion(campo.Longitud, partes[6]);
    PonerCampo(campo.Codigo, partes[9], AnchoCodigoCampo);
    return campo;
}

bool AceptarFormatoFijo(Ventana *ventana, bool decimalesConComas, OpcionesIntercambio &opciones) {
    if (TablaCampos.numero == 0) {
        MostrarMensaje(ventana, "Introduzca datos", TituloAviso);
        return false;
    }
    for (int f = 0; f < TablaCampos.numero; ++f) {
        CampoFijo &campo = TablaCampos.campo[f];
        campo = CampoDeLinea(LineaDeCampo(campo));
        campo.IndiceSerie = std::max(BuscarSerie(campo.Codigo), 0);
    }
    opciones.DecimalesConComas = decimalesConComas ? 1 : 0;
    if (TipoDeFila(0) == 'A') opciones.ModoEtiquetas = EtiquetasPrimerCampo;
    opciones.CamposPanel = 0;
    if (EsPanel()) {
        if (const char *rechazo = RechazoPorPanel(opciones)) {
            MostrarMensaje(ventana, rechazo, TituloAviso);
            return false;
        }
    }
    opciones.FormatoElegido = 1;
    opciones.FormatoVariable = 0;
    return true;
}
