// The installed printer.
#include "platform/impresora.h"

namespace {
constexpr OperacionesImpresora Grabadora;
const OperacionesImpresora *Instalada = &Grabadora;
} // namespace

void InstalarImpresora(const OperacionesImpresora &operaciones) {
    Instalada = &operaciones;
}

const OperacionesImpresora &ImpresoraEnUso() {
    return *Instalada;
}
