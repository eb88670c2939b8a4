// JSON text.
#include "lote/json.h"

#include "platform/texto.h"

#include <cmath>

void PonerTextoJson(std::string &json, std::string_view texto1252) {
    json += '"';
    for (const char c : Utf8De1252(texto1252)) {
        const auto b = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (b < 0x20 || b == 0x7F) {
            json += Formatear("\\u%04x", b);
        } else {
            json += c;
        }
    }
    json += '"';
}

void PonerNumeroJson(std::string &json, double valor) {
    if (std::isnan(valor)) {
        json += "\"nan\"";
    } else if (std::isinf(valor)) {
        json += valor > 0 ? "\"inf\"" : "\"-inf\"";
    } else {
        json += Formatear("%.17g", valor);
    }
}

void PonerComaJson(std::string &json) {
    if (!json.empty() && json.back() != '{' && json.back() != '[') json += ',';
}

void PonerClaveJson(std::string &json, const char *clave) {
    PonerComaJson(json);
    json += '"';
    json += clave;
    json += "\":";
}

void PonerParJson(std::string &json, const char *clave, std::string_view texto1252) {
    PonerClaveJson(json, clave);
    PonerTextoJson(json, texto1252);
}

void PonerParJson(std::string &json, const char *clave, int valor) {
    PonerClaveJson(json, clave);
    json += std::to_string(valor);
}

void PonerParJson(std::string &json, const char *clave, double valor) {
    PonerClaveJson(json, clave);
    PonerNumeroJson(json, valor);
}
