// A chapter of the tutorial as a document of the toolkit, in colours and letters that suit the desktop.
#pragma once

#include <QPalette>
#include <QTextDocument>

#include "shell/tutorial.h"

struct AspectoTutorial {
    QPalette paleta;
    int anchoImagen; // pictures are this wide, in pixels of the layout, unless they are smaller
    double densidad; // pixels of the screen for one of them
};

// Puts the chapter in the place of the document. Its pictures are those of `carpeta`, the folder of the chapters.
void PonerCapitulo(QTextDocument &documento, const CapituloTutorial &capitulo, const QString &carpeta,
                   const AspectoTutorial &aspecto);
