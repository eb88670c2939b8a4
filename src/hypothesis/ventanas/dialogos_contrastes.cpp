// The dialogs of the tests: they carry values to and from the routines of the folder.
#include "hypothesis/ventanas/dialogos_contrastes.h"

#include "estimation/dialogo_mc.h"
#include "hypothesis/dialogo_goldfeld.h"
#include "hypothesis/dialogo_hipotesis_nula.h"
#include "hypothesis/dialogo_modelo_restringido.h"
#include "hypothesis/dialogo_rangos.h"
#include "hypothesis/dialogo_white.h"
#include "language/lote_sentencias.h"
#include "platform/qt/formulario.h"
#include "platform/qt/texto_qt.h"

#include "ui_goldfeld_quandt.h"
#include "ui_hipotesis_nula.h"
#include "ui_modelo_restringido.h"
#include "ui_rangos.h"
#include "ui_white.h"

#include <array>
#include <iterator>

namespace {

// How a chosen item joins the text of each field.
constexpr ReglaDeAnadir AnadirSerieCR = {" ", 240, 250}, AnadirRetardoCR = {"", 240, 250};
constexpr ReglaDeAnadir AnadirOrdenCGQ = {" ", 40, 50}, AnadirOrdenCRA = {" ", 240, 250};
constexpr ReglaDeAnadir AnadirSimbolo = {"", 80, 80};

constexpr const char *Simbolos[] = {"BETA(1) ", "BETA(2) ", "BETA(3) ", "BETA(4) ", "BETA(5) ", "BETA(6) ",
                                    "BETA(7) ", "BETA(8) ", " = ",      " * ",      "BETA",     " (",
                                    " )",       "0",        "1",        "2",        "3"};

// The codes of the work file, without the constant that closes the list of regressors.
std::vector<std::string> ListaSeries() {
    std::vector<std::string> series = ListaRegresores();
    series.pop_back();
    return series;
}

struct FilaDeRestriccion {
    QLineEdit *texto;
    QRadioButton *elige;
};
using FilasDeRestriccion = std::array<FilaDeRestriccion, MaxRestricciones>;

FilasDeRestriccion FilasDe(const Ui::HipotesisNula &ui) {
    return {{{ui.restriccion1, ui.elige1},
             {ui.restriccion2, ui.elige2},
             {ui.restriccion3, ui.elige3},
             {ui.restriccion4, ui.elige4},
             {ui.restriccion5, ui.elige5},
             {ui.restriccion6, ui.elige6},
             {ui.restriccion7, ui.elige7},
             {ui.restriccion8, ui.elige8},
             {ui.restriccion9, ui.elige9},
             {ui.restriccion10, ui.elige10},
             {ui.restriccion11, ui.elige11}}};
}

void MostrarFilas(const FilasDeRestriccion &filas, int visibles) {
    for (int i = 0; i < MaxRestricciones; ++i) {
        const FilaDeRestriccion &fila = filas[static_cast<std::size_t>(i)];
        fila.texto->setVisible(i < visibles);
        fila.elige->setVisible(i < visibles);
    }
    if (visibles > 0) filas[0].elige->setChecked(true);
}

// The symbol goes to the field that is marked; a hidden one is none.
void AnadirSimboloElegido(const QListWidget &simbolos, const FilasDeRestriccion &filas) {
    for (const FilaDeRestriccion &fila : filas)
        if (fila.elige->isChecked() && !fila.texto->isHidden())
            AnadirElegido(simbolos, *fila.texto, AnadirSimbolo);
}

} // namespace

void DialogoHipotesisNula(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::HipotesisNula> d(ventana);
    MenuAyuda(d.dialogo, PaginaHipotesisNula);
    const FilasDeRestriccion filas = FilasDe(d.ui);
    ValoresHipotesisNula valores = AbrirHipotesisNula();
    for (std::size_t i = 0; i < filas.size(); ++i) filas[i].texto->setText(QDe1252(valores.restricciones[i]));
    MostrarFilas(filas, valores.visibles);
    d.ui.numero->setText(QStringLiteral("1"));
    d.ui.numero->selectAll();
    PonerLineas(*d.ui.simbolos, {std::begin(Simbolos), std::end(Simbolos)});
    const auto leer = [&] {
        for (std::size_t i = 0; i < filas.size(); ++i)
            valores.restricciones[i] = De1252Q(filas[i].texto->text());
    };
    QObject::connect(d.ui.SI, &QPushButton::clicked, &d.dialogo, [&] {
        leer();
        MostrarFilas(filas, 0);
        MostrarRestricciones(d.ventana(), valores, De1252Q(d.ui.numero->text()));
        MostrarFilas(filas, valores.visibles);
        d.Ajustar();
        if (valores.visibles > 0) filas[0].texto->setFocus(); // what comes next is written there
    });
    const auto anadir = [&] { AnadirSimboloElegido(*d.ui.simbolos, filas); };
    QObject::connect(d.ui.Anadir, &QPushButton::clicked, &d.dialogo, anadir);
    AlElegir(*d.ui.simbolos, EligeDobleClic, [anadir](const QListWidgetItem &) { anadir(); });
    d.AlAceptar([&] {
        // Enter behind a number means its SI: without a field to write in there is nothing to test.
        if (d.ui.numero->hasFocus() && valores.visibles == 0) {
            d.ui.SI->click();
            return false;
        }
        leer();
        AceptarHipotesisNula(d.ventana(), valores);
        return Lote.detenido == 0;
    });
    d.Ejecutar();
}

void DialogoModeloRestringido(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::ModeloRestringido> d(ventana);
    PonerLineas(*d.ui.series, ListaRegresores());
    PonerLineas(*d.ui.retardos, ListaRetardos());
    AnadeAlCampo(*d.ui.series, EligeUnClic, *d.ui.texto, AnadirSerieCR);
    AnadeAlCampo(*d.ui.retardos, EligeUnClic, *d.ui.texto, AnadirRetardoCR);
    d.AlAceptar([&] { return AceptarModeloRestringido(d.ventana(), {De1252Q(d.ui.texto->text())}) == 1; });
    d.Ejecutar();
}

void DialogoGoldfeldQuandt(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::GoldfeldQuandt> d(ventana);
    MenuAyuda(d.dialogo, PaginaGoldfeldQuandt);
    PonerLineas(*d.ui.series, ListaSeries());
    AnadeAlCampo(*d.ui.series, EligeUnClic, *d.ui.variable, AnadirOrdenCGQ);
    d.AlAceptar([&] {
        AceptarGoldfeld(d.ventana(), {.variable = De1252Q(d.ui.variable->text()),
                                      .primeraDenominador = De1252Q(d.ui.primeraDenominador->text()),
                                      .ultimaDenominador = De1252Q(d.ui.ultimaDenominador->text()),
                                      .primeraNumerador = De1252Q(d.ui.primeraNumerador->text()),
                                      .ultimaNumerador = De1252Q(d.ui.ultimaNumerador->text()),
                                      .verRegresiones = d.ui.verRegresiones->isChecked()});
        return false; // other parts of the sample can be tried
    });
    d.Ejecutar();
}

void DialogoWhite(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::White> d(ventana);
    d.AlAceptar([&] {
        return AceptarWhite(d.ventana(), {.productosCruzados = d.ui.productosCruzados->isChecked(),
                                          .verRegresion = d.ui.verRegresion->isChecked()}) == 1;
    });
    d.Ejecutar();
}

void DialogoRangos(Ventana *ventana, const DatosDialogo &) {
    DialogoConFormulario<Ui::Rangos> d(ventana);
    PonerLineas(*d.ui.series, ListaSeries());
    AnadeAlCampo(*d.ui.series, EligeUnClic, *d.ui.variable, AnadirOrdenCRA);
    d.AlAceptar([&] { return AceptarRangos(d.ventana(), {De1252Q(d.ui.variable->text())}) == 1; });
    d.Ejecutar();
}
