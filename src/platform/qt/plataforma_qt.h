// The desktop behind the seam: boxes, cursor, text controls, files. The windows and dialogs of the folders above are
// handed to it.
#pragma once

#include "platform/plataforma.h"

#include <span>

// A row of the desktop's table of dialogs.
struct FilaDeDialogo {
    Dialogo cual;
    void (*abrir)(Ventana *ventana, const DatosDialogo &datos);
};

struct VentanasQt {
    decltype(OperacionesPlataforma::mostrarResultado) mostrarResultado;
    decltype(OperacionesPlataforma::mostrarGrafico) mostrarGrafico;
    std::span<const FilaDeDialogo> dialogos;
    decltype(OperacionesPlataforma::refrescarEditor) refrescarEditor;
    decltype(OperacionesPlataforma::nota) nota;
};

// Installs the desktop's operations. After the QApplication exists; `ventanas.dialogos` must outlive their use.
void InstalarPlataformaQt(const VentanasQt &ventanas);
