// The lines of the help pages, by subject. Each text ends with a line whose `texto` is null.
#pragma once

#include "shell/ayuda.h"

// Short names of the two kinds, so that a text reads as it will be seen.
inline constexpr TiposDeLineaAyuda T = LineaDeTexto;
inline constexpr TiposDeLineaAyuda E = LineaDeEjemplo;

// ayuda_textos_reglas.cpp
extern const LineaAyuda TextoReglas1[], TextoReglas2[], TextoReglas3[];

// ayuda_textos_series.cpp
extern const LineaAyuda TextoSeries1[], TextoSeries2[], TextoSeries3[], TextoSeries4[];
extern const LineaAyuda TextoProbabilidades[], TextoLogicos[], TextoFicticias[], TextoRetardadas[];

// ayuda_textos_matrices.cpp
extern const LineaAyuda TextoMatrices1[], TextoMatrices2[], TextoEscalares[], TextoCalculadora[];

// ayuda_textos_metodos.cpp
extern const LineaAyuda TextoMetodos1[], TextoMetodos2[], TextoMetodos3[], TextoAlisado[],
    TextoAutocorrelacion[];

// ayuda_textos_control.cpp
extern const LineaAyuda TextoControl1[], TextoControl2[], TextoControl3[];
extern const LineaAyuda TextoMuestra[], TextoPantalla[], TextoEjemplos[];

// ayuda_textos_dialogos.cpp
extern const LineaAyuda TextoHipotesisNula[], TextoGoldfeldQuandt[];
extern const LineaAyuda TextoGraficos[], TextoGraficosRegresion[], TextoHistograma[];

// ayuda_textos_ventanas.cpp
extern const LineaAyuda TextoEdicion[], TextoAscii[], TextoPanel[], TextoAcerca[], TextoNoEnsamblada[];
