// What `--ayuda PALABRA` explains.
#pragma once

#include <string_view>

// The text, in UTF-8, of "tipo", "formato" or "sucesos"; null for any other word.
const char *TextoDeAyuda(std::string_view palabra);
