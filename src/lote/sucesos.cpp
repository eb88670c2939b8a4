// The events of a run.
#include "lote/sucesos.h"

#include "charts/resultados/impresion.h"
#include "charts/resultados/ventana_resultado.h"
#include "language/palabras.h"
#include "language/traza.h"
#include "lote/corrida.h"
#include "lote/graficos.h"
#include "lote/impresora.h"
#include "lote/json.h"
#include "platform/campos_texto.h"
#include "platform/impresora.h"
#include "platform/texto.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>

namespace {

constexpr const char *NombresIcono[] = {"informacion", "pregunta", "exclamacion", "alto"};
constexpr const char *NombresBotones[] = {"aceptar", "aceptar-cancelar", "si-no", "si-no-cancelar"};
constexpr const char *NombresRespuesta[] = {"aceptar", "cancelar", "si", "no"};
constexpr const char *NombresVentana[] = {"resultado",  "hipotesis",    "autocorrelacion", "normalidad",
                                          "prediccion", "descriptivos", "histograma",      "ultima-regresion",
                                          "muestra",    "relacion"};

// By ClasesDeGrafico.
constexpr const char *NombresGrafico[] = {"series",     "dispersion",      "residuos",  "valores",
                                          "prediccion", "autocorrelacion", "histograma"};

std::string AbrirSuceso(const char *suceso) {
    std::string json = "{";
    PonerParJson(json, "suceso", suceso);
    return json;
}

std::string EnUnaLinea(std::string_view texto) {
    std::string linea(texto);
    std::replace_if(
        linea.begin(), linea.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return linea;
}

void EscribirLinea(std::string_view linea) {
    std::fwrite(linea.data(), 1, linea.size(), stdout);
    std::fputc('\n', stdout);
}

void PonerLineaJson(std::string &json, int grupo, std::string_view texto) {
    PonerComaJson(json);
    json += '[' + std::to_string(grupo) + ',';
    PonerTextoJson(json, Recortado(texto, RecorteDerecha));
    json += ']';
}

void PonerLineasJson(std::string &json, const char *clave, const TextoSalida &lineas) {
    PonerClaveJson(json, clave);
    json += '[';
    for (const LineaSalida &l : lineas) PonerLineaJson(json, l.Grupo, l.texto);
    json += ']';
}

// The table that a line is a row of, null for none.
const TablaCoeficientes *TablaDeLaLinea(const SalidaResultado &salida, int linea) {
    if (salida.tablas == nullptr) return nullptr;
    const auto t =
        std::find_if(salida.tablas->begin(), salida.tablas->end(),
                     [&](const TablaCoeficientes &c) { return linea >= c.primera && linea <= c.ultima; });
    return t != salida.tablas->end() ? &*t : nullptr;
}

void PonerColorJson(std::string &json, const Color &c) {
    json += Formatear("[%d,%d,%d", c.r, c.g, c.b);
}

// Lines and rectangles end with their pen; a rectangle with what fills it, too.
void PonerOrdenJson(std::string &json, const OrdenDibujo &o) {
    PonerComaJson(json);
    if (o.clase == OrdenTexto) {
        json += Formatear("[\"texto\",%d,%d,", o.x1, o.y1);
        PonerTextoJson(json, o.texto);
        json += ']';
        return;
    }
    json += Formatear("[\"%s\",%d,%d,%d,%d,", o.clase == OrdenLinea ? "linea" : "rectangulo", o.x1, o.y1,
                      o.x2, o.y2);
    PonerColorJson(json, o.pluma.color);
    json += Formatear(",%d,%d]", o.pluma.ancho, o.pluma.estilo);
    if (o.clase == OrdenRectangulo && o.conRelleno) {
        json += ',';
        PonerColorJson(json, o.relleno);
        json += ']';
    } else if (o.clase == OrdenRectangulo) {
        json += ",null";
    }
    json += ']';
}

// One line between the side rules of a block so wide, cut as the window cuts it. The rows of a table get their vertical
// rules where the fields leave a blank.
void EscribirEnBloque(std::string_view linea, std::size_t ancho, const TablaCoeficientes *tabla) {
    std::string texto(linea.substr(0, ancho));
    texto.resize(ancho, ' ');
    if (tabla != nullptr)
        for (const std::size_t c : tabla->reglas->blancos)
            if (texto[c] == ' ') texto[c] = '|';
    EscribirLinea("| " + Utf8De1252(texto) + " |");
}

// The block with the rules of the result window.
void EscribirBloque(const SalidaResultado &salida) {
    const auto ancho = static_cast<std::size_t>(FormaDe(salida).columnas);
    const std::string regla = "+" + std::string(ancho + 2, '-') + "+";
    EscribirLinea(regla);
    for (int i = 0; i < static_cast<int>(salida.lineas->size()); ++i) {
        EscribirEnBloque((*salida.lineas)[static_cast<std::size_t>(i)].texto, ancho,
                         TablaDeLaLinea(salida, i));
        if (ReglaDetras(salida, i)) EscribirLinea(regla);
    }
    EscribirLinea(regla);
}

Respuesta RespuestaPara(Botones botones) {
    switch (botones) {
    case BotonesAceptar: return RespuestaAceptar;
    case BotonesAceptarCancelar:
        return Corrida.respuesta == ResponderSi ? RespuestaAceptar : RespuestaCancelar;
    case BotonesSiNo: return Corrida.respuesta == ResponderSi ? RespuestaSi : RespuestaNo;
    case BotonesSiNoCancelar: break;
    }
    if (Corrida.respuesta == ResponderCancelar) return RespuestaCancelar;
    return Corrida.respuesta == ResponderSi ? RespuestaSi : RespuestaNo;
}

// The fields that say where the batch at hand is.
void PonerLugarJson(std::string &json, const LugarDeSentencia &lugar) {
    PonerParJson(json, "linea", lugar.linea);
    PonerParJson(json, "sentencia", lugar.sentencia);
}

std::string_view PalabraDe(int codigo) {
    const auto p =
        std::find_if(Palabras.begin(), Palabras.end(), [=](const Palabra &q) { return q.codigo == codigo; });
    return p != Palabras.end() ? p->palabra : std::string_view();
}

// In JSON alone: for people the report itself is the text.
void SucesoRegresion(const RegresionMostrada &r) {
    if (!Corrida.json) return;
    std::string json = AbrirSuceso("regresion");
    PonerParJson(json, "metodo", PalabraDe(r.metodo));
    PonerParJson(json, "dependiente", r.dependiente);
    PonerClaveJson(json, "muestra");
    json += Formatear("[%d,%d]", r.primera, r.ultima);
    PonerParJson(json, "observaciones", r.observaciones);
    PonerClaveJson(json, "regresores");
    json += '[';
    for (const RegresionMostrada::Regresor &x : r.regresores) {
        PonerComaJson(json);
        json += '{';
        PonerParJson(json, "codigo", x.codigo);
        PonerParJson(json, "coeficiente", x.coeficiente);
        PonerParJson(json, "desviacion", x.desviacion);
        PonerParJson(json, "t", x.t);
        PonerParJson(json, "probabilidad", x.probabilidad);
        json += '}';
    }
    json += ']';
    PonerClaveJson(json, "estadisticos");
    json += '{';
    for (const RegresionMostrada::Estadistico &e : r.estadisticos)
        PonerParJson(json, Utf8De1252(Recortado(e.rotulo)).c_str(), e.valor);
    EscribirLinea(json + "}}");
}

Respuesta Caja(Ventana *, std::string_view texto, std::string_view titulo, Icono icono, Botones botones) {
    const Respuesta respuesta = RespuestaPara(botones);
    SucesoCaja(texto, titulo, icono, botones, respuesta);
    return respuesta;
}

// Calendar time, or the clock of --semilla, which goes on by a second each time it is read.
std::int32_t Segundos() {
    if (!Corrida.conSemilla) return static_cast<std::int32_t>(std::time(nullptr));
    // It begins again at the other end: what a random number needs is that its seeds differ.
    const std::int32_t ahora = Corrida.semilla;
    Corrida.semilla = ahora == std::numeric_limits<std::int32_t>::max() ? 0 : ahora + 1;
    return ahora;
}

// The text of --procesar stands in the one text control of the run, wholly selected.
std::string TextoDelControl(ControlTexto *control) {
    return *reinterpret_cast<const std::string *>(control);
}

void SeleccionDelControl(ControlTexto *control, int &desde, int &hasta) {
    desde = 0;
    hasta = static_cast<int>(reinterpret_cast<const std::string *>(control)->size());
}

void MostrarResultado(Ventana *, const SalidaResultado &salida) {
    SucesoSalida(salida);
    if (salida.regresiones != nullptr)
        for (const RegresionMostrada &r : *salida.regresiones) SucesoRegresion(r);
    if (Corrida.imprimirSalidas) ImprimirResultado(nullptr, salida);
    // The chart behind the window's command is told, too; that of a prediction has an action of its own.
    if (salida.graficos != nullptr && salida.tipo != SalidaPrediccion) salida.graficos(nullptr);
}

} // namespace

void SucesoCaja(std::string_view texto, std::string_view titulo, Icono icono, Botones botones,
                Respuesta respuesta) {
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
    if (EnLote()) PonerLugarJson(json, LugarActual());
    EscribirLinea(json + "}");
}

void SucesoParada() {
    // A batch that was refused before its first statement stopped at none.
    if (Lote.detenido == 0 || Lote.parada.linea == 0) return;
    if (!Corrida.json) {
        EscribirLinea(Formatear("Detenido en la línea %d: ", Lote.parada.linea) +
                      Utf8De1252(Lote.parada.sentencia));
        return;
    }
    std::string json = AbrirSuceso("parada");
    PonerLugarJson(json, Lote.parada);
    EscribirLinea(json + "}");
}

void SucesoNota(std::string_view texto, int linea) {
    const std::string donde = linea > 0 ? Formatear("nota, línea %d: ", linea) : std::string("nota: ");
    Quejarse(donde + Utf8De1252(texto));
    if (!Corrida.json) return;
    std::string json = AbrirSuceso("nota");
    PonerParJson(json, "texto", texto);
    PonerParJson(json, "linea", linea);
    EscribirLinea(json + "}");
}

namespace {

// By ClasesTraza.
constexpr const char *NombresClaseTraza[] = {"sentencia", "grupo", "escalar", "matriz", "serie"};

std::int64_t PasosAnteriores = 0; // of the batches that ended

// The explanation, and the periods of a series that is no single value.
std::string ExplicacionDePaso(const PasoTraza &p) {
    const ValorTraza &v = p.resultado;
    return v.primerPeriodo.empty() ? p.explicacion
                                   : p.explicacion + " (" + v.primerPeriodo + " a " + v.ultimoPeriodo + ")";
}

void EscribirPasoJson(const PasoTraza &p, std::int64_t n) {
    std::string json = AbrirSuceso("paso");
    PonerParJson(json, "n", static_cast<int>(n));
    PonerParJson(json, "nivel", p.nivel);
    PonerParJson(json, "sentencia",
                 p.sentencia < 0 ? std::string_view()
                                 : Traza.pasos[static_cast<std::size_t>(p.sentencia)].formula);
    PonerParJson(json, "formula", p.formula);
    PonerParJson(json, "destino", p.destino);
    PonerParJson(json, "clase", NombresClaseTraza[p.clase]);
    PonerParJson(json, "filas", p.resultado.filas);
    PonerParJson(json, "columnas", p.resultado.columnas);
    PonerClaveJson(json, "valores");
    json += '[';
    for (const double valor : p.resultado.valores) {
        PonerComaJson(json);
        PonerNumeroJson(json, valor);
    }
    json += ']';
    PonerParJson(json, "explicacion", ExplicacionDePaso(p));
    PonerParJson(json, "fallo", p.fallo);
    EscribirLinea(json + "}");
}

// "    _DW = formula = 1.2: explanation"; a matrix or a series with its size and the values that are kept of it.
void EscribirPasoTexto(const PasoTraza &p) {
    std::string linea(2 * static_cast<std::size_t>(p.nivel), ' ');
    if (!p.destino.empty()) linea += p.destino + " = ";
    linea += p.formula;
    const ValorTraza &v = p.resultado;
    if (v.filas * v.columnas > 1) linea += Formatear(" [%d x %d]", v.filas, v.columnas);
    // What is left out stands behind the first rows; the columns of a wide matrix have no sign.
    const std::size_t corte = v.filas > LadoDeMatriz ? v.valores.size() / 2 : v.valores.size();
    for (std::size_t i = 0; i < v.valores.size(); ++i) {
        if (i == corte) linea += " ...";
        linea += Formatear(i == 0 ? " = %.10g" : " %.10g", v.valores[i]);
    }
    if (p.clase != TrazaSentencia) linea += (p.formula.empty() ? "" : ": ") + ExplicacionDePaso(p);
    if (!p.fallo.empty()) linea += " [" + EnUnaLinea(p.fallo) + "]";
    EscribirLinea(Utf8De1252(linea));
}

void EscribirOmitidos(std::int64_t omitidos, std::int64_t n) {
    const std::string texto = Formatear("%lld pasos más"_w, static_cast<long long>(omitidos));
    if (!Corrida.json) return EscribirLinea(Utf8De1252(texto));
    PasoTraza resto;
    resto.clase = TrazaGrupo;
    resto.nivel = 0;
    resto.sentencia = -1;
    resto.explicacion = texto;
    EscribirPasoJson(resto, n);
}

} // namespace

void SucesoPasos(int desde, int hasta) {
    for (int i = desde; i < hasta; ++i) {
        const PasoTraza &p = Traza.pasos[static_cast<std::size_t>(i)];
        if (Corrida.json)
            EscribirPasoJson(p, PasosAnteriores + i + 1);
        else
            EscribirPasoTexto(p);
    }
    if (desde < hasta) return;
    const std::int64_t omitidos = Traza.numero - static_cast<std::int64_t>(Traza.pasos.size());
    PasosAnteriores += Traza.numero;
    if (omitidos > 0) EscribirOmitidos(omitidos, PasosAnteriores);
}

void SucesoSalida(const SalidaResultado &salida) {
    if (!Corrida.json) {
        EscribirLinea("");
        EscribirLinea(Utf8De1252(salida.titulo));
        if (salida.fijas != nullptr)
            for (const LineaSalida &l : *salida.fijas)
                EscribirLinea(Utf8De1252(Recortado(l.texto, RecorteDerecha)));
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
    if (!Corrida.json) {
        EscribirLinea("");
        EscribirLinea(Utf8De1252(titulo));
        for (const std::string &l : lineas) EscribirLinea("  " + Utf8De1252(l));
        return;
    }
    std::string json = AbrirSuceso("salida");
    PonerParJson(json, "ventana", NombresVentana[tipo]);
    PonerParJson(json, "titulo", titulo);
    PonerClaveJson(json, "lineas");
    json += '[';
    for (const std::string &l : lineas) PonerLineaJson(json, 0, l);
    EscribirLinea(json + "]}");
}

void SucesoGrafico(const Grafico &grafico, const Superficie &superficie,
                   const std::vector<OrdenDibujo> &ordenes) {
    if (!Corrida.json) {
        EscribirLinea("");
        EscribirLinea("Gráfico: " + Utf8De1252(grafico.tituloVentana));
        return;
    }
    std::string json = AbrirSuceso("grafico");
    PonerParJson(json, "ventana", NombresGrafico[grafico.clase]);
    PonerParJson(json, "titulo", grafico.tituloVentana);
    PonerParJson(json, "ancho", superficie.ancho);
    PonerParJson(json, "alto", superficie.alto);
    PonerParJson(json, "c", superficie.anchoCaracter);
    PonerParJson(json, "h", superficie.altoLinea);
    PonerClaveJson(json, "ordenes");
    json += '[';
    for (const OrdenDibujo &o : ordenes) PonerOrdenJson(json, o);
    EscribirLinea(json + "]}");
}

void SucesoImpresion(const TrabajoImpreso &trabajo) {
    if (!Corrida.json) {
        for (std::size_t p = 0; p < trabajo.paginas.size(); ++p) {
            EscribirLinea("");
            EscribirLinea("Impresión: " + Utf8De1252(trabajo.titulo) + ", página " + std::to_string(p + 1));
            for (const std::string &l : LineasDePagina(trabajo.paginas[p]))
                EscribirLinea("  " + Utf8De1252(l));
        }
        return;
    }
    std::string json = AbrirSuceso("impresion");
    PonerParJson(json, "documento", trabajo.documento);
    PonerParJson(json, "titulo", trabajo.titulo);
    PonerClaveJson(json, "paginas");
    json += '[';
    for (const PaginaImpresa &p : trabajo.paginas) {
        PonerComaJson(json);
        json += '[';
        for (const std::string &l : LineasDePagina(p)) {
            PonerComaJson(json);
            PonerTextoJson(json, l);
        }
        json += ']';
    }
    EscribirLinea(json + "]}");
}

void Quejarse(std::string_view texto) {
    // A value of the command line may hold a line break; what a script reads is one line a complaint.
    std::fprintf(stderr, "tabira-lote: %s\n", EnUnaLinea(texto).c_str());
}

void SucesoFin(int estado) {
    if (!Corrida.json) return;
    std::string json = AbrirSuceso("fin");
    PonerParJson(json, "estado", estado);
    EscribirLinea(json + "}");
}

void InstalarPlataformaLote() {
    static const OperacionesPlataforma Operaciones = {
        .caja = Caja,
        .textoDeControl = TextoDelControl,
        .seleccionDeControl = SeleccionDelControl,
        .mostrarResultado = MostrarResultado,
        .mostrarGrafico = MostrarGraficoDeCorrida,
        .elegirArchivo =
            [](Ventana *, const PeticionArchivo &, std::string &ruta) {
                ruta = Corrida.archivo;
                return true;
            },
        .nota = SucesoNota,
        .segundos = Segundos,
    };
    DespuesDeCadaLote = SucesoParada;
    AlTrazar = SucesoPasos;
    InstalarPlataforma(Operaciones);
    static const OperacionesImpresora OperacionesDePapel = {.terminarTrabajo = TerminarTrabajoDeCorrida};
    InstalarImpresora(OperacionesDePapel);
}
