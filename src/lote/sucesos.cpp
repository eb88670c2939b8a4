// The events of a run.
#include "lote/sucesos.h"

#include "lote/corrida.h"
#include "lote/json.h"
#include "platform/strstr.h"
#include "platform/texto.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr const char *NombresIcono[] = {"informacion", "pregunta", "exclamacion", "alto"};
constexpr const char *NombresBotones[] = {"aceptar", "aceptar-cancelar", "si-no", "si-no-cancelar"};
constexpr const char *NombresRespuesta[] = {"aceptar", "cancelar", "si", "no"};
constexpr const char *NombresVentana[] = {"resultado",   "hipotesis",  "autocorrelacion",  "normalidad", "prediccion",
                                          "descriptivos", "histograma", "ultima-regresion", "muestra",    "relacion"};

constexpr std::size_t AnchoBloque = 70; // characters of a line that a result window shows

std::string AbrirSuceso(const char *suceso) {
    std::string json = "{";
    PonerParJson(json, "suceso", suceso);
    return json;
}

void EscribirLinea(std::string_view linea) {
    std::fwrite(linea.data(), 1, linea.size(), stdout);
    std::fputc('\n', stdout);
}

void PonerLineasJson(std::string &json, const char *clave, const TextoSalida &lineas) {
    PonerClaveJson(json, clave);
    json += '[';
    for (const LineaSalida &l : lineas) {
        PonerComaJson(json);
        json += '[' + std::to_string(l.Grupo) + ',';
        PonerTextoJson(json, Recortado(l.texto, RecorteDerecha));
        json += ']';
    }
    json += ']';
}

bool EsFilaDeCoeficientes(const SalidaResultado &salida, int linea) {
    return salida.tablas != nullptr &&
           std::any_of(salida.tablas->begin(), salida.tablas->end(),
                       [&](const TablaCoeficientes &t) { return linea >= t.primera && linea <= t.ultima; });
}

// One line between the side rules of the block, cut as the window cuts it. The rows of the coefficient table get
// their vertical rules where the fields leave a blank.
void EscribirEnBloque(std::string_view linea, bool coeficientes) {
    static constexpr std::size_t Columnas[] = {15, 30, 45, 54};
    std::string texto(linea.substr(0, AnchoBloque));
    texto.resize(AnchoBloque, ' ');
    for (const std::size_t c : Columnas)
        if (coeficientes && texto[c] == ' ') texto[c] = '|';
    EscribirLinea("| " + Utf8De1252(texto) + " |");
}

void EscribirRegla() { EscribirLinea("+" + std::string(AnchoBloque + 2, '-') + "+"); }

// The block as the result window paints it: a rule above, below, and between neighbouring lines of different kind, for
// a regression not in the last three lines.
void EscribirBloque(const SalidaResultado &salida) {
    const TextoSalida &lineas = *salida.lineas;
    const bool regresion = salida.tipo == SalidaRegresion && (salida.Clase == 8 || salida.Clase == 11 || salida.Clase == 13);
    const int ultima = static_cast<int>(lineas.size()) - 1;
    EscribirRegla();
    for (int i = 0; i <= ultima; ++i) {
        const auto &linea = lineas[static_cast<std::size_t>(i)];
        EscribirEnBloque(linea.texto, EsFilaDeCoeficientes(salida, i));
        const bool cambia = i < ultima && lineas[static_cast<std::size_t>(i) + 1].Grupo != linea.Grupo;
        if (cambia && !(regresion && i >= ultima - 2)) EscribirRegla();
    }
    EscribirRegla();
}

Respuesta RespuestaPara(Botones botones) {
    switch (botones) {
    case BotonesAceptar: return RespuestaAceptar;
    case BotonesAceptarCancelar: return Corrida.respuesta == ResponderSi ? RespuestaAceptar : RespuestaCancelar;
    case BotonesSiNo: return Corrida.respuesta == ResponderSi ? RespuestaSi : RespuestaNo;
    case BotonesSiNoCancelar: break;
    }
    if (Corrida.respuesta == ResponderCancelar) return RespuestaCancelar;
    return Corrida.respuesta == ResponderSi ? RespuestaSi : RespuestaNo;
}

Respuesta Caja(Ventana *, std::string_view texto, std::string_view titulo, Icono icono, Botones botones) {
    const Respuesta respuesta = RespuestaPara(botones);
    SucesoCaja(texto, titulo, icono, botones, respuesta);
    return respuesta;
}

// The text of --procesar stands in the one text control of the run, wholly selected.
std::string TextoDelControl(ControlTexto *control) { return *reinterpret_cast<const std::string *>(control); }

void SeleccionDelControl(ControlTexto *control, int &desde, int &hasta) {
    desde = 0;
    hasta = static_cast<int>(reinterpret_cast<const std::string *>(control)->size());
}

std::int32_t Segundos() { return static_cast<std::int32_t>(std::time(nullptr)); }

} // namespace

void SucesoCaja(std::string_view texto, std::string_view titulo, Icono icono, Botones botones, Respuesta respuesta) {
    if (!Corrida.json) {
        const std::string contestado = std::string(" -> ") + NombresRespuesta[respuesta];
        EscribirLinea(Utf8De1252("[" + std::string(titulo) + "] " + std::string(texto)) +
                      (botones == BotonesAceptar ? "" : contestado));
        return;
    }
    std::string json = AbrirSuceso("caja");
    PonerParJson(json, "titulo", titulo);
    PonerParJson(json, "texto", texto);
    PonerParJson(json, "icono", NombresIcono[icono]);
    PonerParJson(json, "botones", NombresBotones[botones]);
    PonerParJson(json, "respuesta", NombresRespuesta[respuesta]);
    EscribirLinea(json + "}");
}

void SucesoSalida(const SalidaResultado &salida) {
    if (!Corrida.json) {
        EscribirLinea("");
        EscribirLinea(Utf8De1252(salida.titulo));
        if (salida.fijas != nullptr)
            for (const LineaSalida &l : *salida.fijas) EscribirLinea(Utf8De1252(Recortado(l.texto, RecorteDerecha)));
        EscribirBloque(salida);
        return;
    }
    std::string json = AbrirSuceso("salida");
    PonerParJson(json, "ventana", NombresVentana[salida.tipo]);
    PonerParJson(json, "titulo", salida.titulo);
    if (salida.tipo == SalidaRegresion) {
        PonerParJson(json, "clase", salida.Clase);
        PonerParJson(json, "contenido", salida.Contenido);
    }
    if (salida.fijas != nullptr) PonerLineasJson(json, "fijas", *salida.fijas);
    PonerLineasJson(json, "lineas", *salida.lineas);
    EscribirLinea(json + "}");
}

void SucesoLineas(TiposDeSalida tipo, std::string_view titulo, const std::vector<std::string> &lineas) {
    TextoSalida texto;
    for (const std::string &l : lineas) AnadirLinea(texto, 0, l);
    SucesoSalida({.tipo = tipo, .titulo = titulo, .Clase = 0, .Contenido = 0, .lineas = &texto, .fijas = nullptr, .tablas = nullptr});
}

void SucesoFin(int estado) {
    if (!Corrida.json) return;
    std::string json = AbrirSuceso("fin");
    PonerParJson(json, "estado", estado);
    EscribirLinea(json + "}");
}

const OperacionesPlataforma PlataformaLote = {
    .caja = Caja,
    .cursor = [](Cursor) {},
    .textoDeControl = TextoDelControl,
    .seleccionDeControl = SeleccionDelControl,
    .mostrarResultado = [](Ventana *, const SalidaResultado &salida) { SucesoSalida(salida); },
    .mostrarGrafico = [](Ventana *, const Grafico &) {},
    .refrescarEditor = [] {},
    .abrirImpresora = []() -> DispositivoImpresion * { return nullptr; },
    .iniciarDocumento = [](DispositivoImpresion *, const char *) { return false; },
    .iniciarPagina = [](DispositivoImpresion *) { return false; },
    .superficieDePagina = [](DispositivoImpresion *) -> Superficie * { return nullptr; },
    .terminarPagina = [](DispositivoImpresion *) { return false; },
    .terminarDocumento = [](DispositivoImpresion *) { return false; },
    .cerrarImpresora = [](DispositivoImpresion *) {},
    .segundos = Segundos,
};
