// The desktop's chooser of files.
#include "platform/qt/elegir_archivo_qt.h"

#include "platform/qt/ajustes_qt.h"
#include "platform/qt/texto_qt.h"
#include "platform/qt/ventana_qt.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>

#include <algorithm>

namespace {

// A name such as "klein 1.5" has no ending of ours: the format chosen gives it one.
QString ConTerminacion(const QString &ruta, std::span<const FormatoArchivo> formatos, qsizetype elegido) {
    const QString terminacion = QFileInfo(ruta).suffix().toLower();
    const bool nuestra =
        formatos.empty() || std::any_of(formatos.begin(), formatos.end(), [&](const FormatoArchivo &f) {
            return terminacion == QLatin1String(f.terminacion);
        });
    return nuestra ? ruta
                   : ruta + u'.' + QLatin1String(formatos[static_cast<std::size_t>(elegido)].terminacion);
}

// The folder in which the chooser begins. The last part of one that isn't there would become the name of a file: no
// user has made a folder of documents yet, or the last one went with its disk.
QString CarpetaInicial(std::string_view pedida) {
    const QString carpeta =
        pedida.empty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                       : QString::fromLocal8Bit(pedida.data(), static_cast<qsizetype>(pedida.size()));
    return QDir(carpeta).exists() ? carpeta : QDir::homePath();
}

// The folders of the files of late are at hand: at the side, under those of the toolkit, and in the list of the present folder.
void OfrecerCarpetas(QFileDialog &dialogo, const QStringList &carpetas) {
    QList<QUrl> lado = dialogo.sidebarUrls();
    for (const QString &carpeta : carpetas)
        if (const QUrl url = QUrl::fromLocalFile(carpeta); !lado.contains(url)) lado << url;
    dialogo.setSidebarUrls(lado);
    dialogo.setHistory(carpetas);
}

// The files themselves, in a line of their own at the foot: the one that is chosen goes to the line of the name.
void OfrecerFicheros(QFileDialog &dialogo, const QStringList &rutas) {
    auto *rejilla = qobject_cast<QGridLayout *>(dialogo.layout());
    if (rutas.isEmpty() || rejilla == nullptr) return;
    auto *recientes = new QComboBox(&dialogo);
    recientes->setObjectName(QStringLiteral("recientes"));
    recientes->setSizeAdjustPolicy(
        QComboBox::AdjustToMinimumContentsLengthWithIcon); // long paths don't widen it
    for (const QString &ruta : rutas) {
        const QFileInfo fichero(ruta);
        recientes->addItem(fichero.fileName() + QStringLiteral(" (%1)").arg(fichero.absolutePath()), ruta);
    }
    recientes->setCurrentIndex(-1); // none of them before one is chosen
    QObject::connect(recientes, &QComboBox::activated, &dialogo,
                     [&dialogo, recientes] { dialogo.selectFile(recientes->currentData().toString()); });
    auto *rotulo = new QLabel(QStringLiteral("&Recientes:"), &dialogo);
    rotulo->setBuddy(recientes);
    const int fila = rejilla->rowCount();
    rejilla->addWidget(rotulo, fila, 0);
    rejilla->addWidget(recientes, fila, 1);
}

// Of the endings that are offered, or of any where the name is free.
QStringList RecientesPara(const PeticionArchivo &peticion) {
    QStringList terminaciones;
    if (!peticion.nombreLibre)
        for (const FormatoArchivo &f : peticion.formatos) terminaciones << QLatin1String(f.terminacion);
    return FicherosRecientes(terminaciones);
}

} // namespace

bool ElegirArchivoQt(Ventana *ventana, const PeticionArchivo &peticion, std::string &ruta) {
    QStringList filtros;
    for (const FormatoArchivo &f : peticion.formatos) filtros << QDe1252(f.filtro);
    QFileDialog dialogo(DeVentana(ventana), QDe1252(peticion.titulo), CarpetaInicial(peticion.carpeta),
                        filtros.join(QStringLiteral(";;")));
    dialogo.setAcceptMode(peticion.guardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    if (!peticion.guardar) dialogo.setFileMode(QFileDialog::ExistingFile);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite); // the name isn't whole yet when it would look
    dialogo.setOption(
        QFileDialog::DontUseNativeDialog); // the desktop's own has no room for the files of late
    OfrecerCarpetas(dialogo, CarpetasRecientes());
    OfrecerFicheros(dialogo, RecientesPara(peticion));
    dialogo.selectFile(QDe1252(peticion.nombre));
    dialogo.resize(DentroDeLaPantalla(dialogo, dialogo.sizeHint() * 4 / 3));
    // As it comes, it cuts its columns and the user's places.
    if (auto *archivos = dialogo.findChild<QTreeView *>(QStringLiteral("treeView")); archivos != nullptr)
        archivos->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    if (auto *partes = dialogo.findChild<QSplitter *>(QStringLiteral("splitter")); partes != nullptr)
        partes->setSizes({dialogo.width() / 5, dialogo.width() * 4 / 5});
    while (Modal(dialogo) == QDialog::Accepted && !dialogo.selectedFiles().isEmpty()) {
        QString elegida = dialogo.selectedFiles().constFirst();
        if (peticion.guardar) {
            const auto filtro = std::max(filtros.indexOf(dialogo.selectedNameFilter()), qsizetype{0});
            if (!peticion.nombreLibre || QFileInfo(elegida).suffix().isEmpty())
                elegida = ConTerminacion(elegida, peticion.formatos, filtro);
            const std::string yaExiste =
                De1252Q(QFileInfo(elegida).fileName()) + " ya existe. ¿Desea reemplazarlo?"_w;
            if (!peticion.nombreLibre && QFileInfo::exists(elegida) &&
                MostrarCaja(AVentana(&dialogo), yaExiste, peticion.titulo, IconoPregunta, BotonesSiNo) !=
                    RespuestaSi)
                continue;
        }
        AnotarReciente(elegida);
        ruta = elegida.toStdString();
        return true;
    }
    return false;
}
