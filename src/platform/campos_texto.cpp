// Operations on blank-padded text.
#include "platform/campos_texto.h"

#include <algorithm>
#include <cstring>

void RellenarCadena(char *texto, char caracter, int n) {
    std::memset(texto, caracter, static_cast<std::size_t>(n));
    texto[n] = '\0';
}

void AjustarAncho(char *texto, int n) {
    const std::size_t ancho = static_cast<std::size_t>(n - 1);
    const std::size_t largo = strnlen(texto, ancho);
    std::memset(texto + largo, ' ', ancho - largo);
    texto[ancho] = '\0';
}

std::string_view Recortado(std::string_view texto, Recorte modo) {
    if (modo != RecorteDerecha) texto.remove_prefix(std::min(texto.find_first_not_of(' '), texto.size()));
    if (modo != RecorteIzquierda) texto.remove_suffix(texto.size() - (texto.find_last_not_of(' ') + 1));
    return texto;
}

void RecortarCadena(char *destino, const char *origen, Recorte modo) {
    const std::string_view r = Recortado(origen, modo);
    std::memmove(destino, r.data(), r.size());
    destino[r.size()] = '\0';
}

std::string SinBlancos(std::string_view texto) {
    std::string r;
    std::copy_if(texto.begin(), texto.end(), std::back_inserter(r), [](char c) { return c != ' '; });
    return r;
}

int CadenaDeCaracter(std::string_view texto, char caracter) {
    return texto.find_first_not_of(caracter) == std::string_view::npos ? 1 : 0;
}

void SubCadena(std::string_view origen, char *destino, int desde, int hasta) {
    const int ultimo = std::min(hasta, static_cast<int>(origen.size()) - 1);
    int n = 0;
    for (int i = std::max(desde, 0); i <= ultimo; ++i) destino[n++] = origen[static_cast<std::size_t>(i)];
    destino[n] = '\0';
}

void JustificarCadena(char *destino, std::string_view texto, int ancho, Justificacion modo) {
    const std::size_t campo = static_cast<std::size_t>(ancho);
    texto = texto.substr(0, campo);
    std::memset(destino, ' ', campo);
    std::memcpy(destino + (modo == JustificarDerecha ? campo - texto.size() : 0), texto.data(), texto.size());
    destino[campo] = '\0';
}

void PonerCampo(char *campo, std::string_view texto, int n) {
    const std::size_t cabe = std::min(texto.size(), static_cast<std::size_t>(n - 1));
    std::memcpy(campo, texto.data(), cabe);
    campo[cabe] = '\0';
    AjustarAncho(campo, n);
}

void PonerEnMayusculas(std::string &texto) {
    std::transform(texto.begin(), texto.end(), texto.begin(), Mayuscula);
}
