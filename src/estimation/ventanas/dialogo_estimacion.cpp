// The dialogs of MC and MCP, one form for both: MC has a choice of covariances, MCP a weight.
#include "estimation/ventanas/dialogo_estimacion.h"

#include "estimation/dialogo_mc.h"
#include "estimation/ecuaciones.h"
#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"
#include "store/archivo.h"

#include "ui_estimacion.h"

#include <array>

namespace {

using Formulario = DialogoConFormulario<Ui::Estimacion>;

std::array<QCheckBox *, NumOpcionesEstimacion> Opciones(const Ui::Estimacion &ui) {
    return {ui.resultados, ui.covarianza, ui.valores, ui.graficoValores, ui.graficoResiduos, ui.varianza};
}

void PonerValores(const Formulario &d, const ValoresMC &valores) {
    d.ui.ecuacion->setText(QDe1252(valores.ecuacion));
    d.ui.ponderacion->setText(QDe1252(valores.ponderacion));
    (valores.covarianza == CovarianzaHeterocedasticidad ? d.ui.heterocedasticidad : d.ui.estandard)
        ->setChecked(true);
    const auto opciones = Opciones(d.ui);
    for (std::size_t i = 0; i < opciones.size(); ++i) opciones[i]->setChecked(valores.opciones[i]);
}

ValoresMC LeerValores(const Formulario &d, int metodo) {
    ValoresMC valores;
    valores.metodo = metodo;
    valores.ecuacion = De1252Q(d.ui.ecuacion->text());
    valores.ponderacion = De1252Q(d.ui.ponderacion->text());
    valores.covarianza = CovarianzaNormal + BotonElegido({d.ui.estandard, d.ui.heterocedasticidad});
    const auto opciones = Opciones(d.ui);
    for (std::size_t i = 0; i < opciones.size(); ++i) valores.opciones[i] = opciones[i]->isChecked();
    return valores;
}

void MostrarEcuaciones(const Formulario &d) {
    std::vector<std::string> codigos, textos;
    for (int e = 0; e < TablaEcuaciones.numero; ++e) {
        codigos.push_back(CodigoDeEcuacion(e));
        textos.push_back(TextoDeEcuacion(e));
    }
    d.ui.codigosEcuacion->clear();
    d.ui.textosEcuacion->clear();
    PonerLineas(*d.ui.codigosEcuacion, codigos);
    PonerLineas(*d.ui.textosEcuacion, textos);
}

// The four lists, and the buttons that do what they do.
void PrepararListas(Formulario &d) {
    PonerLineas(*d.ui.retardos, ListaRetardos());
    PonerLineas(*d.ui.regresores, ListaRegresores());
    AnadeAlCampo(*d.ui.retardos, EligeDobleClic, *d.ui.ecuacion, AnadirRetardoMC);
    AnadeAlCampo(*d.ui.regresores, EligeDobleClic, *d.ui.ecuacion, AnadirRegresorMC);
    QObject::connect(d.ui.anadirRetardo, &QPushButton::clicked, &d.dialogo,
                     [&d] { AnadirElegido(*d.ui.retardos, *d.ui.ecuacion, AnadirRetardoMC); });
    QObject::connect(d.ui.anadirRegresor, &QPushButton::clicked, &d.dialogo,
                     [&d] { AnadirElegido(*d.ui.regresores, *d.ui.ecuacion, AnadirRegresorMC); });
    MostrarEcuaciones(d);
    for (QListWidget *lista : {d.ui.codigosEcuacion, d.ui.textosEcuacion})
        AlElegir(*lista, EligeDobleClic, [&d, lista](const QListWidgetItem &linea) {
            const int e = lista->row(&linea);
            d.ui.codigoEcuacion->setText(QDe1252(CodigoDeEcuacion(e)));
            d.ui.ecuacion->setText(QDe1252(TextoDeEcuacion(e)));
        });
    QObject::connect(d.ui.alta, &QPushButton::clicked, &d.dialogo, [&d] {
        AltaEcuacion(De1252Q(d.ui.codigoEcuacion->text()), De1252Q(d.ui.ecuacion->text()));
        MostrarEcuaciones(d);
    });
    QObject::connect(d.ui.baja, &QPushButton::clicked, &d.dialogo, [&d] {
        BajaEcuacion(De1252Q(d.ui.codigoEcuacion->text()));
        MostrarEcuaciones(d);
    });
}

void Abrir(Ventana *ventana, int metodo) {
    Formulario d(ventana);
    const bool conPesos = metodo == OrdenMCP;
    if (conPesos) d.dialogo.setWindowTitle(QDe1252("Método: Mínimos cuadrados ponderados"_w));
    d.dialogo.setObjectName(conPesos ? QStringLiteral("DialogoMCP") : QStringLiteral("DialogoMC"));
    d.ui.filaPonderacion->setVisible(conPesos);
    d.ui.grupoCovarianza->setVisible(!conPesos);
    PrepararListas(d);
    PonerValores(d, AbrirMC(metodo));
    (conPesos ? d.ui.ponderacion : d.ui.ecuacion)->setFocus();
    d.AlAceptar([&] {
        AceptarMC(d.ventana(), LeerValores(d, metodo));
        return false; // its listings are asked for in turn
    });
    d.Ejecutar();
}

} // namespace

void DialogoMC(Ventana *ventana, const DatosDialogo &) {
    Abrir(ventana, OrdenMC);
}

void DialogoMCP(Ventana *ventana, const DatosDialogo &) {
    Abrir(ventana, OrdenMCP);
}
