// The bar under the statements that finds and replaces in them. Opened from the context menu of the text; Enter finds
// the next place, Mayús+Enter the one before, Escape leaves it.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QWidget>

class BarraBuscar : public QWidget {
public:
    BarraBuscar(QWidget *padre, QPlainTextEdit &pantalla);

    // Shows the bar, with what is selected on one line as the text to find.
    void Abrir();

protected:
    void keyPressEvent(QKeyEvent *tecla) override;

private:
    bool Buscar(QTextDocument::FindFlags hacia);
    void Reemplazar();
    void ReemplazarTodo();
    void Cerrar();

    QPlainTextEdit &pantalla;
    QLineEdit *buscado;
    QLineEdit *nuevo;
    QLabel *aviso;
};
