// Fields, heads and lines of scalars.
#include "charts/resultados/partes_informe.h"

#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>
#include <charconv>

// ----- Number fields

namespace {

std::string ALaDerecha(std::string texto, std::size_t ancho) {
    if (texto.size() < ancho) texto.insert(0, ancho - texto.size(), ' ');
    return texto;
}

std::string Impreso(int decimales, double valor) {
    return std::string(Recortado(Formatear("%20.*f", decimales, valor)));
}

} // namespace

std::string NumeroCampo(int decimales, double valor, int ancho) {
    std::string numero = Impreso(decimales >= 0 && decimales <= 7 ? decimales : 10, valor);
    const auto n = static_cast<std::size_t>(std::max(ancho, 1));
    if (numero.size() <= n) return ALaDerecha(std::move(numero), n);
    numero.resize(n - 1);
    return numero;
}

std::string NumeroFijo(double valor, int decimales, int ancho) {
    const std::string numero = Impreso(decimales, valor);
    const auto n = static_cast<std::size_t>(std::max(ancho, 1));
    return numero.size() > n ? numero.substr(numero.size() - n) : ALaDerecha(numero, n);
}

std::string NumeroCopiado(int impresos, int decimales, double valor, int ancho) {
    std::string numero = Impreso(impresos, valor);
    // Without decimals the point goes too.
    if (const std::size_t punto = numero.find('.'); punto != std::string::npos)
        numero.resize(
            std::min(numero.size(), decimales > 0 ? punto + 1 + static_cast<std::size_t>(decimales) : punto));
    const auto n = static_cast<std::size_t>(std::max(ancho, 1));
    numero.resize(std::min(numero.size(), n));
    return ALaDerecha(std::move(numero), n);
}

std::string NumeroExacto(double valor) {
    char texto[32];
    const auto fin = std::to_chars(std::begin(texto), std::end(texto), valor).ptr;
    return {texto, fin};
}

std::string Centrado(std::string_view texto, int ancho) {
    std::string r(texto.substr(0, static_cast<std::size_t>(ancho)));
    r.insert(0, (static_cast<std::size_t>(ancho) - r.size()) / 2, ' ');
    r.resize(static_cast<std::size_t>(ancho), ' ');
    return r;
}

// ----- Head

std::string UnirNombres(std::span<const std::string> nombres, char separador, std::size_t largo,
                        const char *alCortar) {
    std::string r;
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        if (r.size() > largo) return r + alCortar;
        if (i > 0) r += separador;
        r += nombres[i];
    }
    return r;
}

std::string TextoDeFilas(int primera, int ultima) {
    const auto periodo = [](int fila) {
        const bool dentro = fila >= 0 && fila < MaxObservaciones;
        return std::string(dentro ? Recortado(ArchivoTrabajo.TextosPeriodo[fila], RecorteDerecha) : "");
    };
    return periodo(primera) + " - " + periodo(ultima);
}

void AnadirCabecera(TextoSalida &texto, const FormatoCabecera &formato, const DatosCabecera &datos) {
    const std::string nombres = UnirNombres(datos.nombres, ',', formato.largoLista, formato.alCortar);
    AnadirLinea(texto, 0, Formatear(formato.dependiente, datos.dependiente.c_str()));
    AnadirLinea(texto, 0, Formatear(formato.regresores, nombres.c_str()));
    AnadirLinea(texto, 0, Formatear(datos.formatoMuestra, datos.muestra.c_str(), datos.observaciones));
    if (!datos.mas.empty()) AnadirLinea(texto, 0, datos.mas);
    AnadirLinea(texto, 0, std::string(static_cast<std::size_t>(formato.blancos), ' '));
}

// ----- Lines of scalars

namespace {

// The value of a field; `dados` loses what it takes. False when there is none.
bool ValorDelCampo(const CampoDeInforme &campo, int codigo, std::span<const double> &dados, double &valor) {
    if (campo.familia == NumFamilias && campo.escalar == nullptr) {
        if (dados.empty()) return false;
        valor = dados.front();
        dados = dados.subspan(1);
        return true;
    }
    const int e =
        BuscarEscalar(campo.escalar != nullptr ? campo.escalar : NombreFamilia(campo.familia, codigo));
    if (e < 0) return false;
    valor = TablaEscalares.registro[e].Valor;
    return true;
}

bool EsElFinal(const CampoDeInforme &campo) {
    return campo.rotulo == nullptr;
}

std::span<const CampoDeInforme> CamposDe(const LineaDeInforme &linea) {
    const auto fin = std::find_if(linea.campos.begin(), linea.campos.end(), EsElFinal);
    return {linea.campos.begin(), fin};
}

} // namespace

bool AnadirLineas(TextoSalida &texto, std::span<const LineaDeInforme> lineas, int codigo,
                  std::span<const double> dados) {
    for (const LineaDeInforme &l : lineas) {
        std::array<std::string, 4> escritos;
        std::size_t n = 0;
        for (const CampoDeInforme &c : CamposDe(l)) {
            double valor = 0.0;
            if (!ValorDelCampo(c, codigo, dados, valor)) return false;
            escritos[n++] = NumeroCampo(c.decimales, valor, c.ancho);
        }
        AnadirLinea(texto, l.grupo,
                    Formatear(l.formato, escritos[0].c_str(), escritos[1].c_str(), escritos[2].c_str(),
                              escritos[3].c_str()));
    }
    return true;
}

namespace {

FuenteDeNumero FuenteDelCampo(const CampoDeInforme &campo, int codigo) {
    if (campo.escalar != nullptr) return {campo.escalar};
    if (campo.familia != NumFamilias) return {NombreFamilia(campo.familia, codigo)};
    return {campo.explicacion != nullptr ? std::string("=") + campo.explicacion : std::string()};
}

// The fields of a line in the order in which its format writes them: "%2$s" is the second one.
std::vector<std::size_t> OrdenDeCampos(const LineaDeInforme &linea) {
    std::vector<std::size_t> orden;
    const std::string_view formato = linea.formato;
    for (std::size_t i = formato.find('%'); i != std::string_view::npos; i = formato.find('%', i + 1)) {
        const bool conNumero = i + 2 < formato.size() && formato[i + 2] == '$';
        orden.push_back(conNumero ? static_cast<std::size_t>(formato[i + 1] - '1') : orden.size());
    }
    return orden;
}

} // namespace

void AnadirFuentes(FuentesDeSalida &fuentes, const TextoSalida &texto, std::span<const LineaDeInforme> lineas,
                   int codigo) {
    int linea = static_cast<int>(texto.size() - std::min(texto.size(), lineas.size()));
    for (const LineaDeInforme &l : lineas) {
        FuentesDeLinea &f = fuentes.emplace_back();
        f.linea = linea++;
        const std::span<const CampoDeInforme> campos = CamposDe(l);
        for (const std::size_t i : OrdenDeCampos(l))
            if (i < campos.size()) f.numeros.push_back(FuenteDelCampo(campos[i], codigo));
    }
}

std::vector<RegresionMostrada::Estadistico> ValoresDeLineas(std::span<const LineaDeInforme> lineas,
                                                            int codigo, std::span<const double> dados) {
    std::vector<RegresionMostrada::Estadistico> valores;
    for (const LineaDeInforme &l : lineas)
        for (const CampoDeInforme &c : CamposDe(l)) {
            double valor = 0.0;
            if (ValorDelCampo(c, codigo, dados, valor)) valores.push_back({c.rotulo, valor});
        }
    return valores;
}

std::string TablaDeLineas(std::span<const LineaDeInforme> lineas, int codigo, std::span<const double> dados) {
    std::string t;
    for (const auto &e : ValoresDeLineas(lineas, codigo, dados))
        t += std::string(e.rotulo) + "\t" + NumeroExacto(e.valor) + "\n";
    return t;
}
