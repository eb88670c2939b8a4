// The record of the trace as a tree. It keeps numbers only: texts are made when a view asks for them, so that a record of
// twenty thousand steps opens at once. Of a record that is no longer there, it shows nothing.
#pragma once

#include <QAbstractItemModel>
#include <QColor>

#include <vector>

enum ColumnasTraza { ColumnaPaso, ColumnaResumen, NumColumnasTraza };

class ModeloTraza : public QAbstractItemModel {
public:
    using QAbstractItemModel::QAbstractItemModel;

    // True when the record has other steps than the tree, or more of them.
    bool Cambiado() const;
    // Takes over what the record has now. False when it has it already.
    bool Refrescar();
    // The results of the steps [desde, hasta) are known by now: the rows that the tree has of them say so, and those above
    // them where one failed.
    void Terminar(int desde, int hasta);
    // The failures, in the colour that the theme asks for.
    void PonerColorDeFallo(const QColor &color) { colorDeFallo = color; }

    QModelIndex IndiceDe(int paso) const;
    // The step of an index, from 0; -1 for none, or when the record is another one.
    int PasoDe(const QModelIndex &indice) const;

    QModelIndex index(int fila, int columna, const QModelIndex &padre) const override;
    QModelIndex parent(const QModelIndex &indice) const override;
    int rowCount(const QModelIndex &padre) const override;
    int columnCount(const QModelIndex &padre) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

private:
    const std::vector<int> &HijosDe(const QModelIndex &padre) const;
    // Marks a step that failed, and those above it.
    void MarcarFallo(int paso);

    struct Nodo {
        int padre;          // -1: of the first level
        int fila;           // among its siblings
        bool falla = false; // it, or a step below it
        std::vector<int> hijos;
    };
    std::vector<Nodo> nodos;
    std::vector<int> raices;
    int corrida = 0;
    QColor colorDeFallo;
};
