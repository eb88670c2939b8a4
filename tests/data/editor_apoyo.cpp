// Keys as text.
#include "data/editor_apoyo.h"

#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

EntradasEditor TeclaDeNombre(std::string_view nombre) {
    static constexpr struct {
        std::string_view nombre;
        EntradasEditor clase;
    } Nombres[] = {{"Tab", PulsaTab},         {"Enter", PulsaEnter},           {"Abajo", PulsaAbajo},
                   {"Arriba", PulsaArriba},   {"Inicio", PulsaInicio},         {"Fin", PulsaFin},
                   {"RePag", PulsaRePag},     {"AvPag", PulsaAvPag},           {"Izquierda", PulsaIzquierda},
                   {"Derecha", PulsaDerecha}, {"Suprimir", PulsaSuprimir},     {"Shift", PulsaShift},
                   {"shift", SueltaShift},    {"Retroceso", EscribeRetroceso}, {"Escape", EscribeEscape}};
    for (const auto &n : Nombres)
        if (n.nombre == nombre) return n.clase;
    return NumEntradasEditor;
}

void Teclear(std::string_view teclas) {
    while (!teclas.empty()) {
        const std::size_t fin = teclas.find('>');
        const EntradasEditor clase = teclas[0] == '<' && fin != std::string_view::npos
                                         ? TeclaDeNombre(teclas.substr(1, fin - 1))
                                         : NumEntradasEditor;
        if (clase != NumEntradasEditor) {
            EntrarEnEditor({clase});
            teclas.remove_prefix(fin + 1);
        } else {
            EntrarEnEditor({EscribeCaracter, static_cast<unsigned char>(teclas[0])});
            teclas.remove_prefix(1);
        }
    }
}

void Clic(int celda) {
    EntrarEnEditor({ClicEnCelda, celda});
}

std::string Campo() {
    return std::string(Recortado(Editor.CampoEdicion, RecorteDerecha));
}

std::string Celda(int celda) {
    return Utf8De1252(Recortado(TextoDeCelda(celda)));
}

void AbrirSeries(int tipo, std::string_view intervalo, bool etiquetas) {
    EmpezarConDatos(tipo, intervalo);
    if (etiquetas) {
        ArchivoTrabajo.ConEtiquetas = 1;
        VaciarArchivoTrabajo();
        Prueba = {};
    }
    AbrirEditor(EditorDeSeries);
}

void AbrirMatrices() {
    EmpezarConDatos(TipoSinPeriodicidad, "");
    AbrirEditor(EditorDeMatrices);
}
