// The tree of the steps.
#include "charts/resultados/ventanas/modelo_traza.h"

#include "charts/resultados/traza_texto.h"
#include "language/traza.h"
#include "platform/qt/texto_qt.h"

#include <QFont>

bool ModeloTraza::Cambiado() const {
    return corrida != Traza.corrida || nodos.size() != Traza.pasos.size();
}

bool ModeloTraza::Refrescar() {
    if (!Cambiado()) return false;
    beginResetModel();
    corrida = Traza.corrida;
    nodos.clear();
    raices.clear();
    nodos.reserve(Traza.pasos.size());
    std::vector<int> encima; // the last step of each level
    for (const PasoTraza &p : Traza.pasos) {
        const int lugar = static_cast<int>(nodos.size());
        encima.resize(std::min(static_cast<std::size_t>(p.nivel), encima.size()));
        const int padre = encima.empty() ? -1 : encima.back();
        std::vector<int> &hermanos = padre < 0 ? raices : nodos[static_cast<std::size_t>(padre)].hijos;
        const int fila = static_cast<int>(hermanos.size());
        hermanos.push_back(lugar);
        nodos.push_back({padre, fila, false, {}});
        if (!p.fallo.empty()) MarcarFallo(lugar);
        encima.push_back(lugar);
    }
    endResetModel();
    return true;
}

void ModeloTraza::MarcarFallo(int paso) {
    for (int i = paso; i >= 0; i = nodos[static_cast<std::size_t>(i)].padre)
        nodos[static_cast<std::size_t>(i)].falla = true;
}

void ModeloTraza::Terminar(int desde, int hasta) {
    if (corrida != Traza.corrida) return;
    const auto cambia = [this](int paso) {
        const QModelIndex indice = IndiceDe(paso);
        emit dataChanged(indice, indice.siblingAtColumn(ColumnaResumen));
    };
    for (int paso = desde; paso < std::min(hasta, static_cast<int>(nodos.size())); ++paso) {
        cambia(paso);
        if (Traza.pasos[static_cast<std::size_t>(paso)].fallo.empty()) continue;
        MarcarFallo(paso);
        for (int i = paso; i >= 0; i = nodos[static_cast<std::size_t>(i)].padre) cambia(i);
    }
}

const std::vector<int> &ModeloTraza::HijosDe(const QModelIndex &padre) const {
    return padre.isValid() ? nodos[padre.internalId()].hijos : raices;
}

QModelIndex ModeloTraza::IndiceDe(int paso) const {
    if (paso < 0 || paso >= static_cast<int>(nodos.size())) return {};
    return createIndex(nodos[static_cast<std::size_t>(paso)].fila, 0, static_cast<quintptr>(paso));
}

int ModeloTraza::PasoDe(const QModelIndex &indice) const {
    if (!indice.isValid() || corrida != Traza.corrida || indice.internalId() >= Traza.pasos.size()) return -1;
    return static_cast<int>(indice.internalId());
}

QModelIndex ModeloTraza::index(int fila, int columna, const QModelIndex &padre) const {
    const std::vector<int> &hijos = HijosDe(padre);
    if (fila < 0 || fila >= static_cast<int>(hijos.size()) || columna < 0 || columna >= NumColumnasTraza)
        return {};
    return createIndex(fila, columna, static_cast<quintptr>(hijos[static_cast<std::size_t>(fila)]));
}

QModelIndex ModeloTraza::parent(const QModelIndex &indice) const {
    return indice.isValid() ? IndiceDe(nodos[indice.internalId()].padre) : QModelIndex();
}

int ModeloTraza::rowCount(const QModelIndex &padre) const {
    return padre.column() > 0 ? 0 : static_cast<int>(HijosDe(padre).size());
}

int ModeloTraza::columnCount(const QModelIndex &) const {
    return NumColumnasTraza;
}

QVariant ModeloTraza::data(const QModelIndex &indice, int papel) const {
    const int paso = PasoDe(indice);
    if (paso < 0) return {};
    const PasoTraza &p = Traza.pasos[static_cast<std::size_t>(paso)];
    const bool deResumen = indice.column() == ColumnaResumen;
    switch (papel) {
    case Qt::DisplayRole: return QDe1252(deResumen ? ResumenDePaso(paso) : RotuloDePaso(paso));
    case Qt::ToolTipRole: return QDe1252(p.fallo.empty() ? p.explicacion : p.fallo);
    case Qt::AccessibleTextRole:
        return QDe1252(deResumen ? ResumenDePaso(paso)
                                 : p.explicacion + ": " + RotuloDePaso(paso) +
                                       (p.fallo.empty() ? "" : ". Fallo: " + p.fallo));
    case Qt::TextAlignmentRole: return deResumen ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::ForegroundRole: return nodos[indice.internalId()].falla ? QVariant(colorDeFallo) : QVariant();
    case Qt::FontRole: {
        QFont fuente;
        fuente.setBold(p.clase == TrazaSentencia || !p.fallo.empty());
        return fuente;
    }
    default: return {};
    }
}

QVariant ModeloTraza::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    if (orientacion != Qt::Horizontal || papel != Qt::DisplayRole) return {};
    return seccion == ColumnaPaso ? QStringLiteral("Paso") : QStringLiteral("Resultado");
}
