// The charts of a run.
#include "lote/graficos.h"

#include "charts/graficos/grafico.h"
#include "lote/corrida.h"
#include "lote/modulo_pdf.h"
#include "lote/sucesos.h"
#include "platform/texto.h"

#include <charconv>
#include <cmath>
#include <filesystem>
#include <system_error>

namespace {

constexpr int Ancho = 1024, Alto = 768, AnchoCaracter = 8, AltoLinea = 16;

struct EstadoGraficos {
    std::string carpeta; // empty: none
    int numero = 0;      // charts of this run
    bool bien = true;
};

EstadoGraficos Graficos;

void EscribirImagen(const std::vector<OrdenDibujo> &ordenes) {
    const std::string ruta =
        (std::filesystem::path(Graficos.carpeta) / Formatear("grafico-%02d.png", Graficos.numero)).string();
    if (EscribirPngConModulo(ruta, ordenes, Ancho, Alto, AnchoCaracter)) return;
    Quejarse("no se puede escribir '" + ruta + "'");
    Graficos.bien = false;
}

// The whole text as a number, a finite one.
template <class Numero> bool LeerNumero(std::string_view texto, Numero &valor) {
    if (texto.starts_with('+') && !texto.starts_with("+-")) texto.remove_prefix(1);
    const auto [resto, error] = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
    return error == std::errc{} && resto == texto.data() + texto.size() && std::isfinite(valor);
}

bool LeerNumeros(std::string_view texto, std::vector<double> &valores) {
    for (std::size_t fin = 0; fin != std::string_view::npos; texto.remove_prefix(fin + 1)) {
        fin = texto.find('/');
        if (!LeerNumero(texto.substr(0, fin), valores.emplace_back())) return false;
        if (fin == std::string_view::npos) break;
    }
    return true;
}

// One option of the histogram.
bool LeerOpcion(std::string_view opcion, OpcionesHistograma &o) {
    const std::size_t igual = opcion.find('=');
    if (igual == std::string_view::npos) return false;
    const std::string_view nombre = opcion.substr(0, igual), valor = opcion.substr(igual + 1);
    double numero = 0;
    if (nombre == "limites") {
        o.modo = ClasesDadas;
        return LeerNumeros(valor, o.limites);
    }
    if (nombre == "clases") return LeerNumero(valor, o.clases);
    if ((nombre != "min" && nombre != "max") || !LeerNumero(valor, numero)) return false;
    o.modo = ClasesEntreLimites;
    (nombre == "min" ? o.minX : o.maxX) = numero;
    (nombre == "min" ? o.minXDefecto : o.maxXDefecto) = 0;
    return true;
}

} // namespace

bool LeerPeticionHistograma(std::string_view valor, PeticionHistograma &peticion) {
    const std::size_t dosPuntos = valor.find(':');
    peticion.serie = valor.substr(0, dosPuntos);
    peticion.opciones = HistogramaPorDefecto();
    if (dosPuntos == std::string_view::npos) return !valor.empty();
    for (std::string_view resto = valor.substr(dosPuntos + 1);;) {
        const std::size_t coma = resto.find(',');
        if (!LeerOpcion(resto.substr(0, coma), peticion.opciones)) return false;
        if (coma == std::string_view::npos) return true;
        resto.remove_prefix(coma + 1);
    }
}

bool ElegirCarpetaDeGraficos(const std::string &carpeta) {
    std::error_code error;
    std::filesystem::create_directories(carpeta, error);
    if (!std::filesystem::is_directory(carpeta, error)) return false;
    Graficos.carpeta = carpeta;
    return true;
}

void MostrarGraficoDeCorrida(Ventana *ventana, Grafico &grafico) {
    std::vector<OrdenDibujo> ordenes;
    Superficie s = SuperficieGrabadora(ordenes, Ancho, Alto, AnchoCaracter, AltoLinea);
    PintarGrafico(s, grafico);
    SucesoGrafico(grafico, s, ordenes);
    AvisarErrorInterno(ventana, grafico);
    if (!Graficos.carpeta.empty()) {
        ++Graficos.numero;
        EscribirImagen(ordenes);
    }
    if (Corrida.imprimirSalidas) ImprimirVentanaGrafico(ventana, grafico);
}

bool GraficosEscritos() {
    return Graficos.bien;
}

void OlvidarGraficos() {
    Graficos = {};
}
