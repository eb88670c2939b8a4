// The record of the trace.
#include "language/traza.h"

#include "language/evaluador_interno.h"
#include "platform/campos_texto.h"
#include "platform/literal.h"
#include "platform/texto.h"
#include "platform/ultima_caja.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <unordered_map>

RegistroTraza Traza;
void (*AlTrazar)(int desde, int hasta) = nullptr;

namespace {

// Room for the values of operands, in doubles, an operand itself among them: a loop over large formulas keeps its steps and
// loses what they took from elsewhere.
constexpr std::size_t MaxElementosOperandos = 1500000;
constexpr std::size_t PesoDeOperando = 20;

// A step, group or statement that has begun.
struct Abierto {
    bool esPaso;
    int sentenciaAnterior;
    std::int64_t fallos; // told when it began
    std::int64_t cajas;  // shown when it began
};

struct EstadoTraza {
    int corridas = 0; // begun and not ended
    std::vector<Abierto> abiertos;
    int pasosAbiertos = 0;
    FilasTraza filas; // of the formula at hand
    int sentencia = -1;
    int nivelEscrito = 0; // of the text buffers, at which the typed formula at hand begins
    int avisados = 0;     // steps that AlTrazar was called with
    std::int64_t fallos = 0;
    std::size_t elementos = 0;                    // of the operands kept
    std::unordered_map<std::string, int> dadores; // the last step that gave a value to a name
};

EstadoTraza Estado;

// ----- Values

// The first and last rows of a table whose edges are shown.
ValorTraza ValorDeMatriz(const double *datos, int filas, int columnas) {
    ValorTraza v{filas, columnas, {}, {}, {}};
    const std::vector<int> lugaresFila = LugaresMostrados(filas), lugaresColumna = LugaresMostrados(columnas);
    v.valores.reserve(lugaresFila.size() * lugaresColumna.size());
    for (const int i : lugaresFila)
        for (const int j : lugaresColumna) v.valores.push_back(datos[i * columnas + j]);
    return v;
}

ValorTraza ValorDeNumero(double valor) {
    return {1, 1, {valor}, {}, {}};
}

// Gathers the rows of a series that have a value, in their order.
struct Extremos {
    ValorTraza v;
    std::array<double, ExtremosDeSerie> ultimos{}; // the value number i at i % ExtremosDeSerie
    int primera = -1, ultima = -1;                 // rows
};

void AnadirFila(Extremos &e, int fila, double valor) {
    if (e.v.filas < ExtremosDeSerie) e.v.valores.push_back(valor);
    e.ultimos[static_cast<std::size_t>(e.v.filas++ % ExtremosDeSerie)] = valor;
    if (e.primera < 0) e.primera = fila;
    e.ultima = fila;
}

ValorTraza Cerrar(Extremos &e) {
    for (int i = std::max(ExtremosDeSerie, e.v.filas - ExtremosDeSerie); i < e.v.filas; ++i)
        e.v.valores.push_back(e.ultimos[static_cast<std::size_t>(i % ExtremosDeSerie)]);
    e.v.columnas = e.v.filas > 0 ? 1 : 0;
    e.v.primerPeriodo = TextoPeriodo(e.primera);
    e.v.ultimoPeriodo = TextoPeriodo(e.ultima);
    if (e.v.primerPeriodo.empty() || e.v.ultimoPeriodo.empty()) e.v.primerPeriodo = e.v.ultimoPeriodo = {};
    return std::move(e.v);
}

// The rows of the tables lie hundreds of bytes apart: asked for in advance they cost a fraction.
ValorTraza ValorDeSerie(int serie, int desde, int hasta) {
    constexpr int FilasPorDelante = 16;
    Extremos e;
    for (int i = std::max(desde, 0); i <= std::min(hasta, MaxObservaciones - 1); ++i) {
        __builtin_prefetch(
            &ArchivoTrabajo.PresenciaObs[std::min(i + FilasPorDelante, MaxObservaciones - 1)][serie]);
        if (ArchivoTrabajo.PresenciaObs[i][serie] != 0) AnadirFila(e, i, ArchivoTrabajo.ValoresObs[i][serie]);
    }
    return Cerrar(e);
}

// The edges of a series in the rows of a step; missing values among them are left out, the rows between aren't looked at.
ValorTraza ValorDeOperandoSerie(int serie, const FilasTraza &filas) {
    const int desde = std::max(filas.primera, 0), hasta = std::min(filas.ultima, MaxObservaciones - 1);
    const int total = hasta - desde + 1;
    if (total < 1) return ValorDeSerie(serie, 0, ArchivoTrabajo.FilasEscritas[serie] - 1);
    ValorTraza v{total, 1, {}, std::string(TextoPeriodo(desde)), std::string(TextoPeriodo(hasta))};
    for (const int i : LugaresMostrados(total))
        if (ArchivoTrabajo.PresenciaObs[desde + i][serie] != 0)
            v.valores.push_back(ArchivoTrabajo.ValoresObs[desde + i][serie]);
    return v;
}

// The lock of a matrix stays as it was.
ValorTraza ValorDeMatrizGuardada(int m) {
    const bool fijada = TablaMatrices.EstadoBloque[m] == BloqueFijado;
    if (!FijarMatriz(m)) return {};
    const RegistroMatriz &r = TablaMatrices.registro[m];
    // A damaged record says more than its block holds.
    const bool cabe = r.Filas > 0 && r.Columnas > 0 && r.Filas * r.Columnas <= TablaMatrices.capacidad[m];
    ValorTraza v = cabe ? ValorDeMatriz(r.Datos, r.Filas, r.Columnas) : ValorTraza{};
    if (!fijada) SoltarMatriz(m);
    return v;
}

// The value of a name as the tables have it; empty when it isn't there.
ValorTraza ValorGuardado(ClasesTraza clase, std::string_view nombre) {
    if (nombre.size() >= AnchoCodigo) return {};
    if (clase == TrazaEscalar) {
        const int e = BuscarEscalar(nombre);
        return e < 0 ? ValorTraza{} : ValorDeNumero(TablaEscalares.registro[e].Valor);
    }
    if (clase == TrazaMatriz) {
        const int m = BuscarMatriz(nombre);
        return m < 0 ? ValorTraza{} : ValorDeMatrizGuardada(m);
    }
    const int s = BuscarSerie(nombre);
    return s < 0 ? ValorTraza{} : ValorDeSerie(s, 0, ArchivoTrabajo.FilasEscritas[s] - 1);
}

// ----- Steps

int Nivel() {
    return static_cast<int>(Estado.abiertos.size());
}

// Counts a step and returns its place, or PasoContado.
int AnadirPaso(ClasesTraza clase, std::string_view formula, std::string_view explicacion) {
    ++Traza.numero;
    if (Traza.pasos.size() >= MaxPasosTraza) return PasoContado;
    const int lugar = static_cast<int>(Traza.pasos.size());
    PasoTraza &p = Traza.pasos.emplace_back();
    p.clase = clase;
    p.nivel = Nivel();
    p.sentencia = clase == TrazaSentencia ? lugar : Estado.sentencia;
    p.formula = Recortado(formula);
    p.explicacion = explicacion;
    return lugar;
}

// Tells the steps whose results are known: none while a formula is being worked out.
void Avisar() {
    const int hasta = static_cast<int>(Traza.pasos.size());
    if (Estado.pasosAbiertos > 0 || Estado.avisados == hasta) return;
    const int desde = Estado.avisados;
    Estado.avisados = hasta;
    if (AlTrazar != nullptr) AlTrazar(desde, hasta);
}

void Abrir(bool esPaso) {
    Estado.abiertos.push_back({esPaso, Estado.sentencia, Estado.fallos, UltimaCaja.numero});
    if (esPaso) ++Estado.pasosAbiertos;
}

Abierto Desapilar() {
    const Abierto a = Estado.abiertos.back();
    Estado.abiertos.pop_back();
    Estado.sentencia = a.sentenciaAnterior;
    if (a.esPaso) --Estado.pasosAbiertos;
    return a;
}

// Why what began at `a` failed: the last boxes since, the cause first.
std::string TextoDeFallo(const Abierto &a) {
    ++Estado.fallos;
    const std::int64_t mostradas = std::min<std::int64_t>(UltimaCaja.numero - a.cajas, CajasRecordadas);
    if (mostradas <= 0) return "No se ha podido calcular";
    std::string texto;
    for (std::int64_t i = UltimaCaja.numero - mostradas; i < UltimaCaja.numero; ++i)
        texto.append(texto.empty() ? "" : "; ")
            .append(UltimaCaja.textos[static_cast<std::size_t>(i % CajasRecordadas)]);
    return texto;
}

// ----- Operands

constexpr std::string_view FinesDeNombre = " ()[]{}+-*/:=><?@|'$,;^\t";

void AnadirOperando(std::vector<OperandoTraza> &operandos, std::string_view nombre, const FilasTraza &filas) {
    const auto igual = [&](const OperandoTraza &o) { return o.nombre == nombre; };
    if (nombre.empty() || (nombre[0] >= '0' && nombre[0] <= '9') ||
        std::any_of(operandos.begin(), operandos.end(), igual) || Estado.elementos > MaxElementosOperandos)
        return;
    OperandoTraza o{std::string(nombre), TrazaEscalar, PasoQueDio(nombre), {}};
    if (o.paso >= 0) {
        o.clase = Traza.pasos[static_cast<std::size_t>(o.paso)].clase;
    } else if (nombre.size() >= AnchoCodigo) {
        return;
    } else if (const int serie = BuscarSerie(nombre); serie >= 0) {
        o.clase = TrazaSerie;
        o.valor = ValorDeOperandoSerie(serie, filas);
    } else {
        o.clase = BuscarMatriz(nombre) >= 0 ? TrazaMatriz : TrazaEscalar;
        o.valor = ValorGuardado(o.clase, nombre);
        if (o.valor.filas == 0) return; // a word, a sign
    }
    Estado.elementos += PesoDeOperando + o.valor.valores.size();
    operandos.push_back(std::move(o));
}

void LeerOperandos(std::vector<OperandoTraza> &operandos, std::string_view formula, const FilasTraza &filas) {
    for (std::size_t i = 0; i < formula.size();) {
        const std::size_t fin = std::min(formula.find_first_of(FinesDeNombre, i), formula.size());
        AnadirOperando(operandos, formula.substr(i, fin - i), filas);
        i = fin + 1;
    }
}

// The numbers of a formula that steps of this statement gave, by the placeholders where they stand.
void LeerDados(std::vector<OperandoTraza> &operandos, std::string_view modelo, const FilasTraza &filas) {
    for (std::size_t i = modelo.find("%("); i != modelo.npos; i = modelo.find("%(", i + 2)) {
        const std::string_view nombre = modelo.substr(i + 2, modelo.find(')', i) - i - 2);
        const int paso = PasoQueDio(nombre);
        if (paso >= 0 && Traza.pasos[static_cast<std::size_t>(paso)].sentencia == Estado.sentencia)
            AnadirOperando(operandos, nombre, filas);
    }
}

void TrazarDirecto(ClasesTraza clase, std::string_view destino, std::string_view formula,
                   std::string_view explicacion, const FilasTraza &filas, std::string_view operandos,
                   ValorTraza valor) {
    const int paso = AnadirPaso(clase, formula, explicacion);
    if (paso == PasoContado) return;
    PasoTraza &p = Traza.pasos[static_cast<std::size_t>(paso)];
    p.destino = destino;
    p.filas = filas;
    LeerOperandos(p.operandos, p.formula, filas);
    LeerOperandos(p.operandos, operandos, filas);
    p.resultado = std::move(valor);
    if (!destino.empty()) Estado.dadores[p.destino] = paso;
    Avisar();
}

} // namespace

std::vector<int> LugaresMostrados(int total) {
    std::vector<int> lugares;
    for (int i = 0; i < total; ++i) {
        if (total > LadoDeMatriz && i == LadoDeMatriz / 2) i = total - LadoDeMatriz / 2;
        lugares.push_back(i);
    }
    return lugares;
}

// ----- The record

void PonerTraza(bool activa) {
    Traza.activa = activa;
}

void EmpezarTraza() {
    if (Estado.corridas++ > 0 || !Traza.activa) return;
    Traza.pasos.clear();
    Traza.numero = 0;
    Traza.reducciones = false;
    ++Traza.corrida;
    const int corridas = Estado.corridas;
    Estado = {};
    Estado.corridas = corridas;
}

void TerminarTraza() {
    if (--Estado.corridas > 0 || !Traza.activa) return;
    const int hasta = static_cast<int>(Traza.pasos.size());
    if (AlTrazar != nullptr) AlTrazar(hasta, hasta);
}

int PasoQueDio(std::string_view nombre, int hasta) {
    const auto dador = Estado.dadores.find(std::string(nombre));
    if (dador == Estado.dadores.end()) return -1;
    if (dador->second < hasta) return dador->second;
    for (int i = hasta; i-- > 0;)
        if (Traza.pasos[static_cast<std::size_t>(i)].destino == nombre) return i;
    return -1;
}

int EmpezarComando(std::string_view formula, std::string_view explicacion) {
    EmpezarTraza();
    return AbrirGrupo(formula, explicacion);
}

int TerminarComando(int grupo, int bien) {
    CerrarGrupo(grupo, bien == 1);
    TerminarTraza();
    return bien;
}

// ----- Statements and groups

int AbrirSentencia(std::string_view texto) {
    if (!Traza.activa) return SinTrazar;
    const int lugar = AnadirPaso(TrazaSentencia, texto, "Sentencia");
    Abrir(false);
    Estado.sentencia = lugar;
    Avisar();
    return lugar;
}

int AbrirGrupo(std::string_view formula, std::string_view explicacion) {
    if (!Traza.activa) return SinTrazar;
    const int lugar = AnadirPaso(TrazaGrupo, formula, explicacion);
    Abrir(false);
    Avisar();
    return lugar;
}

void CerrarGrupo(int grupo, bool bien) {
    if (grupo == SinTrazar) return;
    if (!bien && Estado.fallos == Estado.abiertos.back().fallos) {
        const int paso = AnadirPaso(TrazaGrupo, {}, "No se ha podido seguir");
        const std::string fallo = TextoDeFallo(Estado.abiertos.back());
        if (paso != PasoContado) Traza.pasos[static_cast<std::size_t>(paso)].fallo = fallo;
    }
    Desapilar();
    Avisar();
}

// ----- Formulas

int AbrirPaso(ClasesTraza clase, std::string_view destino, std::string_view formula,
              std::string_view explicacion, const FilasTraza &filas, std::string_view modelo) {
    if (!Traza.activa) return SinTrazar;
    const int paso = AnadirPaso(clase, formula, explicacion);
    Abrir(true);
    Estado.filas = filas;
    if (paso == PasoContado) return paso;
    PasoTraza &p = Traza.pasos[static_cast<std::size_t>(paso)];
    p.destino = Recortado(destino);
    p.filas = filas;
    LeerOperandos(p.operandos, p.formula, filas);
    LeerDados(p.operandos, modelo, filas);
    return paso;
}

namespace {

void Cerrar(int paso, bool bien, ValorTraza (*leer)(const PasoTraza &p, double valor), double valor) {
    if (paso == SinTrazar) return;
    const Abierto a = Desapilar();
    const std::string fallo = bien ? std::string() : TextoDeFallo(a);
    if (paso != PasoContado) {
        PasoTraza &p = Traza.pasos[static_cast<std::size_t>(paso)];
        p.fallo = fallo;
        if (bien) p.resultado = leer(p, valor);
        if (bien && !p.destino.empty()) Estado.dadores[p.destino] = paso;
    }
    Avisar();
}

} // namespace

void CerrarPaso(int paso, bool bien) {
    Cerrar(
        paso, bien, [](const PasoTraza &p, double) { return ValorGuardado(p.clase, p.destino); }, 0.0);
}

void CerrarPasoConValor(int paso, double valor) {
    Cerrar(
        paso, true, [](const PasoTraza &, double v) { return ValorDeNumero(v); }, valor);
}

void TrazarMatriz(std::string_view destino, std::string_view formula, std::string_view explicacion,
                  const FilasTraza &filas, std::string_view operandos) {
    if (Traza.activa)
        TrazarDirecto(TrazaMatriz, destino, formula, explicacion, filas, operandos,
                      ValorGuardado(TrazaMatriz, destino));
}

void TrazarSerie(std::string_view destino, std::string_view formula, std::string_view explicacion,
                 const FilasTraza &filas, std::string_view operandos) {
    if (Traza.activa)
        TrazarDirecto(TrazaSerie, destino, formula, explicacion, filas, operandos,
                      ValorGuardado(TrazaSerie, destino));
}

void TrazarColumna(std::string_view destino, std::string_view formula, std::string_view explicacion,
                   const FilasTraza &filas, const double *valores) {
    if (!Traza.activa) return;
    Extremos e;
    for (int i = filas.primera; i <= filas.ultima; ++i) AnadirFila(e, i, valores[i - filas.primera]);
    TrazarDirecto(TrazaSerie, destino, formula, explicacion, filas, {}, Cerrar(e));
}

void TrazarEscalar(std::string_view destino, std::string_view formula, double valor,
                   std::string_view explicacion, const FilasTraza &filas, std::string_view operandos) {
    if (Traza.activa)
        TrazarDirecto(TrazaEscalar, destino, formula, explicacion, filas, operandos, ValorDeNumero(valor));
}

// ----- Reductions

void ReducirDesde(int nivelLinea) {
    Traza.reducciones = Traza.activa;
    Estado.nivelEscrito = nivelLinea;
}

void DejarDeReducir() {
    Traza.reducciones = false;
}

namespace {

void AnadirReduccion(ClasesTraza clase, std::string_view texto, int nivelLinea, ValorTraza valor) {
    const int parentesis = nivelLinea - Estado.nivelEscrito;
    const std::string explicacion = parentesis <= 0
                                        ? std::string("De izquierda a derecha")
                                        : Formatear("Dentro del paréntesis, nivel %d"_w, parentesis);
    const int paso = AnadirPaso(clase, FormulaComoSeEscribe(texto), explicacion);
    if (paso == PasoContado) return;
    PasoTraza &p = Traza.pasos[static_cast<std::size_t>(paso)];
    p.filas = Estado.filas;
    LeerOperandos(p.operandos, p.formula, p.filas);
    p.resultado = std::move(valor);
}

} // namespace

void TrazarReduccion(std::string_view texto, int nivelLinea, double valor) {
    if (TrazandoReducciones()) AnadirReduccion(TrazaEscalar, texto, nivelLinea, ValorDeNumero(valor));
}

void TrazarReduccion(std::string_view texto, int nivelLinea, const double *datos, int filas, int columnas) {
    if (TrazandoReducciones())
        AnadirReduccion(TrazaMatriz, texto, nivelLinea, ValorDeMatriz(datos, filas, columnas));
}

void TrazarReduccionDeColumna(std::string_view texto, int nivelLinea) {
    if (!TrazandoReducciones() || Evaluador.profundidad < 1) return;
    const FilasEvaluacion f = FilasDeEvaluacion();
    if (f.desde == f.hasta) return TrazarReduccion(texto, nivelLinea, ColumnaSuperior().valor[f.desde]);
    const ColumnaPila &columna = ColumnaSuperior();
    // The rows that a lag reads outside of the work file or of the sample lose their value when the column is stored.
    const int retardo = Evaluador.MarcaRetardo == 1 ? Evaluador.ValorRetardo : 0;
    Extremos e;
    for (int i = std::max(f.desde, -retardo); i <= f.hasta - std::max(retardo, 0); ++i)
        if (columna.presente[i] != 0) AnadirFila(e, i, columna.valor[i]);
    AnadirReduccion(TrazaSerie, texto, nivelLinea, Cerrar(e));
}

std::string FormulaComoSeEscribe(std::string_view formula) {
    constexpr std::pair<char, std::string_view> Operadores[] = {
        {':', "**"}, {'?', ">="}, {'@', "<="}, {'|', "<>"}};
    std::string texto;
    for (std::size_t i = 0; i < formula.size(); ++i) {
        const auto o = std::find_if(std::begin(Operadores), std::end(Operadores),
                                    [&](const auto &par) { return par.first == formula[i]; });
        if (o == std::end(Operadores)) {
            texto += formula[i];
            continue;
        }
        texto += o->second;
        if (i + 1 < formula.size() && formula[i + 1] == ' ') ++i;
    }
    return texto;
}

std::string ConPeriodos(std::string_view formula, const FilasTraza &filas) {
    std::string texto(formula);
    return texto.append(", ")
        .append(TextoPeriodo(filas.primera))
        .append(" a ")
        .append(TextoPeriodo(filas.ultima));
}
