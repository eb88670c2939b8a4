// Frequency counting.
#include "platform/frecuencias.h"

void ContarFrecuencias(const double *valores, const double *limites, double *resultados, int nValores,
                       int nLimites, int, int) {
    const int clases = nLimites - 1;
    for (int i = 0; i < clases; ++i) {
        const bool ultima = i == clases - 1;
        resultados[i] = 0;
        for (int j = 0; j < nValores; ++j) {
            const double v = valores[j];
            if (v >= limites[i] && (v < limites[i + 1] || (ultima && v == limites[i + 1]))) ++resultados[i];
        }
    }
}
