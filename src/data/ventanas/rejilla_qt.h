// The grid of the editor as one drawn surface with its two bars. It paints what data/rejilla.h holds and forwards keys,
// clicks and bars to it.
#pragma once

#include "data/rejilla.h"

#include <QAbstractScrollArea>
#include <QFont>

class RejillaQt : public QAbstractScrollArea {
public:
    explicit RejillaQt(QWidget *padre);

    // Everything shown anew: after what changed the tables or the state from outside.
    void Refrescar();

    // Where a cell stands in the viewport: of the grid, CeldaCodigoMatriz or CeldaInformacion.
    QRect SitioDeCelda(int celda) const;
    QRect SitioDelCampo() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *suceso) override;
    void resizeEvent(QResizeEvent *suceso) override;
    void keyPressEvent(QKeyEvent *tecla) override;
    void keyReleaseEvent(QKeyEvent *tecla) override;
    void inputMethodEvent(QInputMethodEvent *suceso) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery pregunta) const override;
    void focusInEvent(QFocusEvent *suceso) override;
    void focusOutEvent(QFocusEvent *suceso) override;
    void mousePressEvent(QMouseEvent *suceso) override;
    void wheelEvent(QWheelEvent *suceso) override;
    void contextMenuEvent(QContextMenuEvent *suceso) override;
    bool focusNextPrevChild(bool siguiente) override;

private:
    void Entrar(EntradasEditor clase, int dato = 0);
    void EscribirTexto(const QString &texto);
    void Copiar();
    void Pegar();
    void MedirLetras(const QFont &letras, bool holgado);
    QRect Proporcion(int x, int y, int ancho, int alto) const;
    int Margen() const { return anchoLetra / 3; } // between a cell's side and its text
    int CeldaEn(QPoint punto) const;              // -1 for none

    QFont fuente;
    int anchoLetra = 8, altoLetra = 16, pasoAlto = 16;
    int restoFilas = 0, restoColumnas = 0; // of the wheel, below a notch
};
