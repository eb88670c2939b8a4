// How a dialog composes a text from lists: each chosen item joins the text of a field.
#pragma once

#include <string>
#include <string_view>

struct ReglaDeAnadir {
    const char *separador; // what stands between the text and the item
    int tope;              // a text of this many characters takes no more
    int longitud;          // the longest text that the field holds
};

// The text without the blanks at its right, the separator, the item; the text as it stands where the rule forbids it.
std::string TextoConElemento(std::string_view texto, std::string_view elemento, const ReglaDeAnadir &regla);
