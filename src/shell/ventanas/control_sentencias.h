// The text control of the statements: line numbers, colours, matching parentheses, the mark of a stop, zoom, files
// dropped on it. Its positions are those of the core's text, one a character.
#pragma once

#include <QPlainTextEdit>

class ColoresDeSentencias;

class ControlSentencias : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit ControlSentencias(QWidget *padre);

    // A batch stopped at the statement that begins at `posicion`: the caret goes there, and its line bears a mark
    // until the text is edited.
    void MarcarParada(int posicion);
    void QuitarParada();
    int LineaDeParada() const { return lineaDeParada; } // from 0; -1 for none

    // The work file may have other names now.
    void RefrescarColores();

    int AnchoDelMargen() const;
    void PintarMargen(QPaintEvent *suceso);

signals:
    void PideBuscar();
    void PideTraza();
    void PideEjemplo(int cual); // row of TablaEjemplos
    void FicheroSoltado(const QString &ruta);

protected:
    void changeEvent(QEvent *suceso) override;
    void contextMenuEvent(QContextMenuEvent *suceso) override;
    void dragEnterEvent(QDragEnterEvent *suceso) override;
    void dragMoveEvent(QDragMoveEvent *suceso) override;
    void dropEvent(QDropEvent *suceso) override;
    void insertFromMimeData(const QMimeData *datos) override;
    void keyPressEvent(QKeyEvent *tecla) override;
    void paintEvent(QPaintEvent *suceso) override;
    void resizeEvent(QResizeEvent *suceso) override;
    void wheelEvent(QWheelEvent *suceso) override;

private:
    void AjustarMargen();
    void AlCambiarElTexto();
    void ColorearLoVisible();
    void PonerPaleta();
    void Resaltar();

    QWidget *margen;
    ColoresDeSentencias *colores;
    int lineaDeParada = -1;
    QString textoDeParada; // at the stop: any other one is an edited one
    QFont fuenteSinZoom;
    int zoom = 100;       // per cent
    int restoDeRueda = 0; // below a notch
};
