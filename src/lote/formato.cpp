// Reading of the argument of --formato, and the transfer behind --importar and --exportar.
#include "lote/formato.h"

#include "language/lote_sentencias.h"

namespace {

// Whether a whole option ends where `resto` begins.
bool AcabaOpcion(std::string_view resto) {
    return resto.empty() || resto[0] == ',';
}

// Takes `palabra` from the front of the text, if it stands there as a whole option.
bool TomarOpcion(std::string_view &texto, std::string_view palabra) {
    if (!texto.starts_with(palabra) || !AcabaOpcion(texto.substr(palabra.size()))) return false;
    texto.remove_prefix(palabra.size());
    return true;
}

// Takes one character, which may be the comma itself: separador=,,codigos.
bool TomarCaracter(std::string_view &texto, std::string_view nombre, std::string &caracter) {
    if (texto.size() <= nombre.size() || !texto.starts_with(nombre)) return false;
    if (!AcabaOpcion(texto.substr(nombre.size() + 1))) return false;
    caracter = texto[nombre.size()];
    texto.remove_prefix(nombre.size() + 1);
    return true;
}

using PonerOpcion = void (*)(ValoresFormatoVariable &valores);

void PonerEtiquetas(ValoresFormatoVariable &v, bool primer, bool tercer) {
    v.primerCampoEtiquetas = primer;
    v.tercerCampoEtiquetas = tercer;
}

constexpr struct {
    std::string_view palabra;
    PonerOpcion poner;
} OpcionesVariables[] = {
    {"separador=coma", [](ValoresFormatoVariable &v) { v.separador = SeparadorComas; }},
    {"separador=tab", [](ValoresFormatoVariable &v) { v.separador = SeparadorTabuladores; }},
    {"delimitador=comillas", [](ValoresFormatoVariable &v) { v.delimitador = DelimitadorComillas; }},
    {"delimitador=nada", [](ValoresFormatoVariable &v) { v.delimitador = DelimitadorNada; }},
    {"delimitados=etiquetas", [](ValoresFormatoVariable &v) { v.delimitadasSoloEtiquetas = true; }},
    {"delimitados=todo", [](ValoresFormatoVariable &v) { v.delimitadasSoloEtiquetas = false; }},
    {"codigos", [](ValoresFormatoVariable &v) { v.primerRegistroCodigos = true; }},
    {"etiquetas=0", [](ValoresFormatoVariable &v) { PonerEtiquetas(v, false, false); }},
    {"etiquetas=1", [](ValoresFormatoVariable &v) { PonerEtiquetas(v, true, false); }},
    {"etiquetas=3", [](ValoresFormatoVariable &v) { PonerEtiquetas(v, false, true); }},
    {"comas", [](ValoresFormatoVariable &v) { v.decimalesConComas = true; }},
    {"panel", [](ValoresFormatoVariable &v) { v.camposPanel = true; }},
};

bool LeerOpcion(std::string_view &texto, ValoresFormatoVariable &valores) {
    for (const auto &o : OpcionesVariables) {
        if (!TomarOpcion(texto, o.palabra)) continue;
        o.poner(valores);
        return true;
    }
    if (TomarCaracter(texto, "separador=", valores.otroSeparador)) {
        valores.separador = SeparadorOtros;
        return true;
    }
    if (TomarCaracter(texto, "delimitador=", valores.otroDelimitador)) {
        valores.delimitador = DelimitadorOtros;
        return true;
    }
    return false;
}

// Options parted by commas, at least one.
bool LeerVariable(std::string_view texto, FormatoAscii &formato) {
    while (LeerOpcion(texto, formato.valores)) {
        if (texto.empty()) return true;
        texto.remove_prefix(1);
    }
    return false;
}

// T/INICIO/LONGITUD/CODIGO; the code may hold a slash.
bool LeerFila(std::string_view texto, EdicionCampo &fila) {
    for (std::string *parte : {&fila.tipo, &fila.inicio, &fila.longitud}) {
        const std::size_t barra = texto.find('/');
        if (barra == std::string_view::npos) return false;
        parte->assign(texto.substr(0, barra));
        texto.remove_prefix(barra + 1);
    }
    fila.codigo = texto;
    return fila.tipo.size() <= 1;
}

bool LeerFijo(std::string_view texto, FormatoAscii &formato) {
    constexpr std::string_view Comas = ",comas";
    formato.esVariable = false;
    formato.comas = texto.ends_with(Comas);
    if (formato.comas) texto.remove_suffix(Comas.size());
    for (std::size_t fin = 0; fin != std::string_view::npos;) {
        fin = texto.find(';');
        EdicionCampo fila;
        if (!LeerFila(texto.substr(0, fin), fila)) return false;
        formato.filas.push_back(fila);
        if (fin != std::string_view::npos) texto.remove_prefix(fin + 1);
    }
    return true;
}

// The dialog of the fixed format: true when all rows were taken. Without any the format stays unaccepted.
bool AceptarFilas(Ventana *ventana, const FormatoAscii &formato, bool importar,
                  OpcionesIntercambio &opciones) {
    EdicionCampo edicion;
    AbrirFormatoFijo(importar, edicion);
    while (EliminarCampo(0, edicion)) {
    }
    bool todas = true;
    for (EdicionCampo fila : formato.filas) todas = AnadirCampo(ventana, importar, fila) && todas;
    return AceptarFormatoFijo(ventana, formato.comas, opciones) && todas;
}

} // namespace

FormatoAscii FormatoInicial() {
    FormatoAscii formato;
    formato.valores.primerRegistroCodigos = true;
    return formato;
}

bool LeerFormato(std::string_view argumento, FormatoAscii &formato) {
    constexpr std::string_view Variable = "variable", ConOpciones = "variable:", Fijo = "fijo:";
    FormatoAscii leido;
    bool bien = argumento == Variable;
    if (argumento.starts_with(ConOpciones)) bien = LeerVariable(argumento.substr(ConOpciones.size()), leido);
    if (argumento.starts_with(Fijo)) bien = LeerFijo(argumento.substr(Fijo.size()), leido);
    if (bien) formato = leido;
    return bien;
}

bool EjecutarIntercambio(Ventana *ventana, const FormatoAscii &formato, bool importar,
                         const std::string &archivo) {
    OpcionesIntercambio opciones;
    if (!EmpezarIntercambio(ventana, importar, opciones)) return false;
    bool todas = true;
    if (formato.esVariable) {
        AceptarFormatoVariable(formato.valores, opciones);
    } else {
        todas = AceptarFilas(ventana, formato, importar, opciones);
        if (opciones.FormatoElegido == 0) return false; // its message was shown; the dialog would stand open
    }
    return IntercambioAscii(ventana, opciones, archivo, Lote.DecimalesSalida) && todas;
}
