// The two lists of a chooser: entries move between them by their buttons and by a double click.
#pragma once

#include "charts/resultados/seleccion.h"
#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"

#include <algorithm>

inline void MostrarCodigos(QListWidget &lista, const std::vector<std::string> &codigos) {
    lista.clear();
    PonerLineas(lista, codigos);
}

// Titles the dialog and its lists, fills and connects the lists `disponibles` and `elegidas` of the form with their buttons `Anadir` and
// `Eliminar`. `estado` must outlive the dialog.
template <class Formulario> void UnirListas(DialogoConFormulario<Formulario> &d, EstadoSeleccion &estado) {
    const TextosSeleccion &textos = TextosDe(estado.modo);
    d.dialogo.setWindowTitle(QDe1252(textos.titulo));
    d.ui.textoDisponibles->setText(QDe1252(textos.disponibles));
    d.ui.textoElegidas->setText(QDe1252(textos.elegidas));
    d.ui.disponibles->setAccessibleName(QDe1252(textos.disponibles));
    d.ui.elegidas->setAccessibleName(QDe1252(textos.elegidas));
    MostrarCodigos(*d.ui.disponibles, estado.disponibles);
    // An entry goes over, and the next one takes its place under the choice: so Enter or clicks in a row move many.
    const auto mover = [&d, &estado](QListWidget &de, bool (*rutina)(EstadoSeleccion &, int, Ventana *)) {
        const int elegida = FilaElegida(de);
        if (!rutina(estado, elegida, d.ventana())) return;
        MostrarCodigos(*d.ui.disponibles, estado.disponibles);
        MostrarCodigos(*d.ui.elegidas, estado.elegidas);
        de.setCurrentRow(std::min(elegida, de.count() - 1));
    };
    const auto anadir = [&d, mover] { mover(*d.ui.disponibles, AnadirASeleccion); };
    const auto eliminar = [&d, mover] { mover(*d.ui.elegidas, EliminarDeSeleccion); };
    QObject::connect(d.ui.Anadir, &QPushButton::clicked, &d.dialogo, anadir);
    QObject::connect(d.ui.Eliminar, &QPushButton::clicked, &d.dialogo, eliminar);
    QObject::connect(d.ui.disponibles, &QListWidget::itemDoubleClicked, &d.dialogo, anadir);
    QObject::connect(d.ui.elegidas, &QListWidget::itemDoubleClicked, &d.dialogo, eliminar);
}
