// The event that shows the content of the store.
#include "language/lote_sentencias.h"
#include "lote/corrida.h"
#include "lote/json.h"
#include "lote/sucesos.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cstdio>

namespace {

// Rows of a series from 0 to the last one that holds a value.
int FilasConValor(int serie) {
    int n = MaxObservaciones;
    while (n > 0 && ArchivoTrabajo.PresenciaObs[n - 1][serie] == 0) --n;
    return n;
}

std::string_view CodigoVisible(const char *codigo) {
    return Recortado(codigo, RecorteDerecha);
}

void PonerParDeEnteros(std::string &json, const char *clave, int a, int b) {
    PonerClaveJson(json, clave);
    json += '[' + std::to_string(a) + ',' + std::to_string(b) + ']';
}

void PonerTextos(std::string &json, const char *clave, std::string_view (*texto)(int)) {
    PonerClaveJson(json, clave);
    json += '[';
    for (int i = 0; i < FilasEnUso(); ++i) {
        PonerComaJson(json);
        PonerTextoJson(json, texto(i));
    }
    json += ']';
}

void PonerSeries(std::string &json) {
    PonerClaveJson(json, "series");
    json += '[';
    for (int s = 0; s < ArchivoTrabajo.NumSeries; ++s) {
        PonerComaJson(json);
        json += '{';
        PonerParJson(json, "codigo", CodigoVisible(ArchivoTrabajo.Codigos[s]));
        PonerParJson(json, "primera", ArchivoTrabajo.PrimeraObs[s]);
        PonerParJson(json, "ultima", ArchivoTrabajo.UltimaObs[s]);
        PonerClaveJson(json, "valores");
        json += '[';
        const int filas = FilasConValor(s);
        for (int i = 0; i < filas; ++i) {
            PonerComaJson(json);
            if (ArchivoTrabajo.PresenciaObs[i][s] == 1) {
                PonerNumeroJson(json, ArchivoTrabajo.ValoresObs[i][s]);
            } else {
                json += "null";
            }
        }
        json += "]}";
    }
    json += ']';
}

void PonerEscalares(std::string &json) {
    PonerClaveJson(json, "escalares");
    json += '[';
    for (int e = 0; e < TablaEscalares.numero; ++e) {
        PonerComaJson(json);
        json += '{';
        PonerParJson(json, "codigo", CodigoVisible(TablaEscalares.registro[e].Codigo));
        PonerClaveJson(json, "valor");
        PonerNumeroJson(json, TablaEscalares.registro[e].Valor);
        json += '}';
    }
    json += ']';
}

void PonerMatrices(std::string &json) {
    PonerClaveJson(json, "matrices");
    json += '[';
    for (int m = 0; m < TablaMatrices.numero; ++m) {
        const RegistroMatriz &r = TablaMatrices.registro[m];
        PonerComaJson(json);
        json += '{';
        PonerParJson(json, "codigo", CodigoVisible(r.Codigo));
        PonerParJson(json, "filas", r.Filas);
        PonerParJson(json, "columnas", r.Columnas);
        PonerClaveJson(json, "datos");
        json += '[';
        if (FijarMatriz(m)) {
            for (int i = 0; i < r.Filas * r.Columnas; ++i) {
                PonerComaJson(json);
                PonerNumeroJson(json, r.Datos[i]);
            }
            SoltarMatriz(m);
        }
        json += "]}";
    }
    json += ']';
}

void PonerEcuaciones(std::string &json) {
    PonerClaveJson(json, "ecuaciones");
    json += '[';
    for (int e = 0; e < TablaEcuaciones.numero; ++e) {
        PonerComaJson(json);
        json += '{';
        PonerParJson(json, "codigo", CodigoVisible(TablaEcuaciones.Codigos[e]));
        PonerParJson(json, "texto", TablaEcuaciones.TextosEcuacion[e]);
        json += '}';
    }
    json += ']';
}

void VolcadoJson() {
    std::string json = "{";
    PonerParJson(json, "suceso", "volcado");
    PonerParJson(json, "proyecto", CodigoVisible(ArchivoTrabajo.NombreProyecto));
    PonerParJson(json, "tipo", ArchivoTrabajo.TipoDatos);
    PonerParJson(json, "intervalo", CodigoVisible(ArchivoTrabajo.TextoIntervalo));
    PonerParJson(json, "observaciones", ArchivoTrabajo.NumObs);
    PonerClaveJson(json, "etiquetas");
    json += ArchivoTrabajo.ConEtiquetas != 0 ? "true" : "false";
    PonerParDeEnteros(json, "muestra", Muestra.InicioMuestra, Muestra.FinMuestra);
    PonerParDeEnteros(json, "regresion", Muestra.InicioRegresion, Muestra.FinRegresion);
    PonerParJson(json, "decimales", Lote.DecimalesSalida);
    PonerParJson(json, "ver_regresion", Lote.VerRegresion);
    PonerTextos(json, "periodos", TextoPeriodo);
    PonerSeries(json);
    PonerEscalares(json);
    PonerMatrices(json);
    PonerEcuaciones(json);
    if (ArchivoTrabajo.ConEtiquetas != 0)
        PonerTextos(json, "rotulos", [](int i) { return CodigoVisible(ArchivoTrabajo.EtiquetasObs[i]); });
    std::puts((json + "}").c_str());
}

void Escribir(const std::string &texto1252) {
    std::puts(Utf8De1252(texto1252).c_str());
}

// For people: what there is, and the values a line each.
void VolcadoTexto() {
    const std::string proyecto(CodigoVisible(ArchivoTrabajo.NombreProyecto));
    const std::string intervalo(CodigoVisible(ArchivoTrabajo.TextoIntervalo));
    Escribir(Formatear("Archivo de trabajo %s, tipo %d, intervalo %s, %d observaciones", proyecto.c_str(),
                       ArchivoTrabajo.TipoDatos, intervalo.c_str(), ArchivoTrabajo.NumObs));
    Escribir(Formatear("Muestra: filas %d a %d; regresión: %d a %d"_w, Muestra.InicioMuestra,
                       Muestra.FinMuestra, Muestra.InicioRegresion, Muestra.FinRegresion));
    for (int s = 0; s < ArchivoTrabajo.NumSeries; ++s) {
        std::string linea = Formatear("Serie %s:", ArchivoTrabajo.Codigos[s]);
        const int filas = FilasConValor(s);
        for (int i = 0; i < filas; ++i)
            linea += ArchivoTrabajo.PresenciaObs[i][s] == 1
                         ? Formatear(" %g", ArchivoTrabajo.ValoresObs[i][s])
                         : " ---";
        Escribir(linea);
    }
    for (int e = 0; e < TablaEscalares.numero; ++e)
        Escribir(
            Formatear("Escalar %s= %g", TablaEscalares.registro[e].Codigo, TablaEscalares.registro[e].Valor));
    for (int m = 0; m < TablaMatrices.numero; ++m) {
        const RegistroMatriz &r = TablaMatrices.registro[m];
        Escribir(Formatear("Matriz %s(%d,%d)", r.Codigo, r.Filas, r.Columnas));
        if (!FijarMatriz(m)) continue;
        for (int f = 0; f < r.Filas; ++f) {
            std::string linea = "   ";
            for (int c = 0; c < r.Columnas; ++c) linea += Formatear(" %g", r.Datos[f * r.Columnas + c]);
            Escribir(linea);
        }
        SoltarMatriz(m);
    }
    for (int e = 0; e < TablaEcuaciones.numero; ++e)
        Escribir(
            Formatear("Ecuación %s: %s"_w, TablaEcuaciones.Codigos[e], TablaEcuaciones.TextosEcuacion[e]));
}

} // namespace

void SucesoVolcado() {
    if (Corrida.json) {
        VolcadoJson();
    } else {
        VolcadoTexto();
    }
}
