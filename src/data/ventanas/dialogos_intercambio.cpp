// The three dialogs of the ASCII exchange. Each carries the values of its controls to the routines of data/intercambio.h.
#include "data/ventanas/dialogos_datos.h"

#include "data/intercambio.h"
#include "platform/qt/formulario.h"
#include "platform/qt/superficie_qt.h"
#include "platform/qt/texto_qt.h"
#include "store/archivo.h"

#include <QFileInfo>

#include "ui_formato_fijo.h"
#include "ui_formato_variable.h"
#include "ui_intercambio.h"

namespace {

OpcionesIntercambio &Opciones() {
    return Intercambio.opciones;
}

bool Importando() {
    return Opciones().Importando != 0;
}

QString Titulo(const char *formato) {
    return QDe1252(std::string(TituloIntercambio(Importando())) + formato);
}

// ---------------------------------------------------------------------------------------------------------------
// Variable format

void DialogoFormatoVariable(Ventana *ventana) {
    DialogoConFormulario<Ui::FormatoVariable> d(ventana);
    d.dialogo.setWindowTitle(Titulo(": Formato variable"));
    d.ui.separador0->setChecked(true);
    d.ui.delimitador0->setChecked(true);
    d.ui.soloEtiquetas->setChecked(true);
    d.ui.separador0->setFocus();
    AbreAyuda(d.dialogo, *d.ui.AyudaPanel, PaginaPanel);
    d.AlAceptar([&] {
        AceptarFormatoVariable({.separador = static_cast<EleccionesSeparador>(
                                    BotonElegido({d.ui.separador0, d.ui.separador1, d.ui.separador2})),
                                .otroSeparador = De1252Q(d.ui.otroSeparador->text()),
                                .delimitador = static_cast<EleccionesDelimitador>(
                                    BotonElegido({d.ui.delimitador0, d.ui.delimitador1, d.ui.delimitador2})),
                                .otroDelimitador = De1252Q(d.ui.otroDelimitador->text()),
                                .delimitadasSoloEtiquetas = d.ui.soloEtiquetas->isChecked(),
                                .primerRegistroCodigos = d.ui.primerRegistroCodigos->isChecked(),
                                .primerCampoEtiquetas = d.ui.primerCampoEtiquetas->isChecked(),
                                .decimalesConComas = d.ui.decimalesConComas->isChecked(),
                                .camposPanel = d.ui.camposPanel->isChecked(),
                                .tercerCampoEtiquetas = d.ui.tercerCampoEtiquetas->isChecked()},
                               Opciones());
        return true;
    });
    d.Ejecutar();
}

// ---------------------------------------------------------------------------------------------------------------
// Fixed format

struct CamposDeEdicion {
    QLineEdit *codigo, *tipo, *inicio, *longitud;
};

EdicionCampo Leer(const CamposDeEdicion &c) {
    return {De1252Q(c.codigo->text()), De1252Q(c.tipo->text()), De1252Q(c.inicio->text()),
            De1252Q(c.longitud->text())};
}

void Escribir(const CamposDeEdicion &c, const EdicionCampo &e) {
    c.codigo->setText(QDe1252(e.codigo));
    c.tipo->setText(QDe1252(e.tipo));
    c.inicio->setText(QDe1252(e.inicio));
    c.longitud->setText(QDe1252(e.longitud));
}

void MostrarTabla(QListWidget &lista) {
    lista.clear();
    for (int f = 0; f < TablaCampos.numero; ++f) lista.addItem(QDe1252(LineaDeCampo(TablaCampos.campo[f])));
    lista.setCurrentIndex({});
}

void DialogoFormatoFijo(Ventana *ventana) {
    DialogoConFormulario<Ui::FormatoFijo> d(ventana);
    d.dialogo.setWindowTitle(Titulo(": Formato fijo"));
    d.ui.lista->setFont(FuenteFijaDePantalla());
    const CamposDeEdicion campos = {d.ui.codigo, d.ui.tipo, d.ui.inicio, d.ui.longitud};
    EdicionCampo edicion;
    AbrirFormatoFijo(Importando(), edicion);
    Escribir(campos, edicion);
    MostrarTabla(*d.ui.lista);
    AbreAyuda(d.dialogo, *d.ui.AyudaPanel, PaginaPanel);
    QObject::connect(d.ui.Anadir, &QPushButton::clicked, &d.dialogo, [&] {
        EdicionCampo e = Leer(campos);
        if (!AnadirCampo(d.ventana(), Importando(), e)) return;
        Escribir(campos, e);
        MostrarTabla(*d.ui.lista);
        d.ui.codigo->setFocus(); // for the next one
    });
    QObject::connect(d.ui.Eliminar, &QPushButton::clicked, &d.dialogo, [&] {
        EdicionCampo e;
        if (!EliminarCampo(FilaElegida(*d.ui.lista), e)) return;
        Escribir(campos, e);
        MostrarTabla(*d.ui.lista);
    });
    d.AlAceptar(
        [&] { return AceptarFormatoFijo(d.ventana(), d.ui.decimalesConComas->isChecked(), Opciones()); });
    d.Ejecutar();
}

} // namespace

// ---------------------------------------------------------------------------------------------------------------

namespace {

void MostrarArchivo(QLabel &texto) {
    texto.setText(QFileInfo(QString::fromStdString(Intercambio.archivo)).fileName());
}

} // namespace

void DialogoIntercambio(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::DialogoAscii> d(ventana);
    d.dialogo.setWindowTitle(Titulo(""));
    MostrarArchivo(*d.ui.archivo);    // none yet, or the one that was dropped on the window
    d.ui.FormatoVariable->setFocus(); // without a format OK is of no use
    MenuDecimales(d.dialogo, Intercambio.decimales);
    MenuAyuda(d.dialogo, PaginaAscii);
    QObject::connect(d.ui.FormatoVariable, &QPushButton::clicked, &d.dialogo,
                     [&] { DialogoFormatoVariable(d.ventana()); });
    QObject::connect(d.ui.FormatoFijo, &QPushButton::clicked, &d.dialogo,
                     [&] { DialogoFormatoFijo(d.ventana()); });
    QObject::connect(d.ui.SeleccionarArchivo, &QPushButton::clicked, &d.dialogo, [&] {
        if (!ElegirArchivoDeIntercambio(d.ventana())) return d.dialogo.reject();
        MostrarArchivo(*d.ui.archivo);
    });
    d.AlAceptar([&] {
        Opciones().Aceptado = 1;
        return true;
    });
    d.Ejecutar();
}
