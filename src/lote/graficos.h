// The charts of a run, and the histogram that an action asks for. Each chart is an event, and a picture where
// --graficos names a folder.
#pragma once

#include "charts/graficos/histograma.h"
#include "platform/plataforma.h"

#include <string>
#include <string_view>

// From here on every chart is also written to this folder, which is made when it's missing: grafico-01.png, grafico-02.png.
// False when it can't be made.
bool ElegirCarpetaDeGraficos(const std::string &carpeta);

// A chart that was opened, for the platform of the run: drawn on a surface of 1024 x 768 with cells of 8 x 16, told, written
// and printed as the run asks for.
void MostrarGraficoDeCorrida(Ventana *ventana, Grafico &grafico);

// True while every picture could be written.
bool GraficosEscritos();

// No folder and no chart, as at the start of a run.
void OlvidarGraficos();
// What --histograma asks for.
struct PeticionHistograma {
    std::string serie;
    OpcionesHistograma opciones;
};

// Reads `X` or `X:OP,OP...` with `clases=N`, `limites=a/b/c...`, `min=A`, `max=B`; what it doesn't name is as the dialog
// opens. False when it can't be read.
bool LeerPeticionHistograma(std::string_view valor, PeticionHistograma &peticion);
