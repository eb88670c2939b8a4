// How a dialog composes a text from lists.
#include "platform/composicion.h"

#include "platform/campos_texto.h"

std::string TextoConElemento(std::string_view texto, std::string_view elemento, const ReglaDeAnadir &regla) {
    std::string nuevo(Recortado(texto, RecorteDerecha));
    const bool lleno = nuevo.size() >= static_cast<std::size_t>(regla.tope);
    nuevo += regla.separador;
    nuevo += elemento;
    return lleno || nuevo.size() > static_cast<std::size_t>(regla.longitud) ? std::string(texto) : nuevo;
}
