// What the desktop remembers.
#include "platform/qt/ajustes_qt.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileInfo>
#include <QHash>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>

namespace {

constexpr qsizetype MaximoRecientes = 10;
constexpr const char *Recientes = "recientes";

QString TerminacionDe(const QString &ruta) {
    return QFileInfo(ruta).suffix().toLower();
}

// The name under which the place of this window is kept; empty for one that has none.
QString NombreDeSitio(const QObject *objeto) {
    const auto *d = qobject_cast<const QDialog *>(objeto);
    if (d == nullptr || !d->isWindow() || qobject_cast<const QMessageBox *>(d) != nullptr) return {};
    const QString nombre = d->objectName();
    return QStringLiteral("sitios/") +
           (nombre.isEmpty() ? QLatin1String(d->metaObject()->className()) : nombre);
}

QRect DentroDe(const QRect &pantalla, QRect sitio) {
    sitio.setSize(sitio.size().boundedTo(pantalla.size()));
    sitio.moveLeft(qBound(pantalla.left(), sitio.left(), pantalla.right() + 1 - sitio.width()));
    sitio.moveTop(qBound(pantalla.top(), sitio.top(), pantalla.bottom() + 1 - sitio.height()));
    return sitio;
}

class MemoriaDeSitios : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *objeto, QEvent *suceso) override {
        if (suceso->type() != QEvent::Show && suceso->type() != QEvent::Hide) return false;
        const QString nombre = suceso->spontaneous() ? QString() : NombreDeSitio(objeto);
        if (nombre.isEmpty()) return false;
        auto &ventana = *static_cast<QWidget *>(objeto);
        if (suceso->type() == QEvent::Show) {
            Restaurar(ventana, nombre);
        } else if (!ventana.isMaximized() && !ventana.isFullScreen()) {
            Guardar(ventana, nombre);
        }
        return false;
    }

private:
    static void Restaurar(QWidget &ventana, const QString &nombre) {
        const QSize pedido = ventana.size();
        ventana.setProperty("ladoPedido", pedido);
        const QSettings ajustes = Ajustes();
        if (!ajustes.contains(nombre)) return;
        const QSize lado = ajustes.value(nombre + QStringLiteral("Lado")).toSize().expandedTo(pedido);
        const QScreen *pantalla = QGuiApplication::screenAt(ajustes.value(nombre).toPoint());
        if (pantalla == nullptr) pantalla = ventana.screen();
        // On some desktops its frame isn't known until it is seen: the place is that of what is within, and its bar,
        // which must stay at hand, is taken to be as high as the toolkit's own.
        QRect libre = pantalla->availableGeometry();
        libre.setTop(libre.top() + ventana.style()->pixelMetric(QStyle::PM_TitleBarHeight));
        ventana.setGeometry(DentroDe(libre, {ajustes.value(nombre).toPoint(), lado}));
    }

    // A size that nobody changed isn't the user's: the next text may ask for a smaller window.
    static void Guardar(const QWidget &ventana, const QString &nombre) {
        QSettings ajustes = Ajustes();
        ajustes.setValue(nombre, ventana.geometry().topLeft());
        if (ventana.size() != ventana.property("ladoPedido").toSize())
            ajustes.setValue(nombre + QStringLiteral("Lado"), ventana.size());
    }
};

} // namespace

QSettings Ajustes() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("tabira"),
                     QStringLiteral("tabira"));
}

bool Eleccion(const char *clave, bool alPrincipio) {
    return Ajustes().value(QLatin1String(clave), alPrincipio).toBool();
}

void PonerEleccion(const char *clave, bool elegido) {
    Ajustes().setValue(QLatin1String(clave), elegido);
}

void RecordarSitios(QApplication &aplicacion) {
    aplicacion.installEventFilter(new MemoriaDeSitios(&aplicacion));
}

void AnotarReciente(const QString &ruta) {
    QSettings ajustes = Ajustes();
    QStringList rutas = ajustes.value(QLatin1String(Recientes)).toStringList();
    rutas.removeAll(ruta);
    rutas.prepend(ruta);
    QHash<QString, qsizetype> vistos; // by ending
    rutas.removeIf([&](const QString &r) { return ++vistos[TerminacionDe(r)] > MaximoRecientes; });
    ajustes.setValue(QLatin1String(Recientes), rutas);
}

QStringList FicherosRecientes(const QStringList &terminaciones) {
    QStringList rutas = Ajustes().value(QLatin1String(Recientes)).toStringList();
    rutas.removeIf([&](const QString &r) {
        return !QFileInfo(r).isFile() ||
               (!terminaciones.isEmpty() && !terminaciones.contains(TerminacionDe(r)));
    });
    return rutas.mid(0, MaximoRecientes);
}

QStringList CarpetasRecientes() {
    QStringList carpetas;
    for (const QString &ruta : FicherosRecientes()) carpetas << QFileInfo(ruta).absolutePath();
    carpetas.removeDuplicates();
    return carpetas;
}
