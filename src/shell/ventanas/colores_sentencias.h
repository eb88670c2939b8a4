// The colours of the statements in their text control: the parts of a line as the language tells them apart, in
// colours that are read on the paper of the desktop, dark or light.
#pragma once

#include <QPalette>
#include <QSyntaxHighlighter>

#include "language/coloreado.h"

#include <string>

// True where the paper of this palette is dark.
bool EsOscura(const QPalette &paleta);

// The ink of a part, of the numbers in the margin, the mark of a stop and the paper of its line.
QColor TintaDeTrozo(ClasesDeTrozo clase, bool oscura);
QColor TintaDelMargen(bool oscura);
QColor TintaDeParada(bool oscura);
QColor PapelDeParada(bool oscura);

// Colours the lines that are on the screen, and those around them; the others when they come there. So neither a long
// text nor a change of the work file costs more than a screen.
class ColoresDeSentencias : public QSyntaxHighlighter {
public:
    explicit ColoresDeSentencias(QTextDocument *documento);

    void PonerPaleta(const QPalette &paleta);

    // The work file may have other names now. True when it has: what is on the screen must be coloured anew.
    bool MirarNombres();

    // The lines from `primera` to `ultima` come to the screen; those whose colours are not of the moment get them.
    void ALaVista(const QTextBlock &primera, const QTextBlock &ultima);

    // True while it does that.
    bool Coloreando() const { return coloreando; }

protected:
    void highlightBlock(const QString &texto) override;

private:
    QTextCharFormat formatos[TrozoAjeno + 1];
    std::string nombres; // of the work file, at the last look
    bool coloreando = false;
    int edad = 1;             // rises when names or colours change; a line keeps that of its colours
    int desde = 0, hasta = 0; // numbers of the lines on the screen
};
