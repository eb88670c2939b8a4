// The printer behind the seam. A print job goes through the operations of this table one by one; those that a program
// doesn't give are those of the printer that records.
#pragma once

#include "platform/impresora_grabadora.h"

#include <string_view>

struct OperacionesImpresora {
    // Around every print job, whatever documents it opens: what the user is told about it and where its pages go is
    // decided here.
    void (*empezarTrabajo)(std::string_view titulo) = EmpezarTrabajoGrabado;
    void (*terminarTrabajo)() = OlvidarTrabajoGrabado;
    // Steps of a print job: null, or false, when the printer refuses.
    DispositivoImpresion *(*abrir)() = AbrirImpresoraGrabadora;
    bool (*iniciarDocumento)(DispositivoImpresion *dispositivo, const char *nombre) = IniciarDocumentoGrabado;
    bool (*iniciarPagina)(DispositivoImpresion *dispositivo) = IniciarPaginaGrabada;
    Superficie *(*superficieDePagina)(DispositivoImpresion *dispositivo) = SuperficieGrabada;
    bool (*terminarPagina)(DispositivoImpresion *dispositivo) = TerminarPaginaGrabada;
    bool (*terminarDocumento)(DispositivoImpresion *dispositivo) = TerminarDocumentoGrabado;
    void (*cerrar)(DispositivoImpresion *dispositivo) = CerrarImpresoraGrabadora;
};

// Installs the printer of this run, in place of the one that records and forgets. `operaciones` must outlive its use.
void InstalarImpresora(const OperacionesImpresora &operaciones);

const OperacionesImpresora &ImpresoraEnUso();
