// The dialogs of the ASCII exchange on the real widgets.
#include "apoyo_escritorio.h"

#include "data/intercambio.h"
#include "language/lote_sentencias.h"
#include "store/archivo.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QRadioButton>
#include <QTemporaryDir>

namespace {

constexpr const char *Importacion = "Importación de Series", *Exportacion = "Exportación de Series";
constexpr const char *ImportarVariable = "Importación de Series: Formato variable";
constexpr const char *ExportarVariable = "Exportación de Series: Formato variable";
constexpr const char *ImportarFijo = "Importación de Series: Formato fijo";
constexpr const char *ExportarFijo = "Exportación de Series: Formato fijo";

class DialogosAscii : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        // The toolkit's own names of folders can hold a hyphen, which the exchange refuses.
        carpeta = QDir::tempPath() +
                  QStringLiteral("/tabira_intercambio_%1").arg(QCoreApplication::applicationPid());
        QDir(carpeta).removeRecursively();
        ASSERT_TRUE(QDir().mkpath(carpeta));
        PonerDatos(TipoAnual, "1990#1992");
    }
    void TearDown() override { QDir(carpeta).removeRecursively(); }

    QString Ruta(const char *nombre) const { return carpeta + u'/' + QString::fromUtf8(nombre); }

    void Poner(const char *nombre, const char *contenido) const {
        QFile f(Ruta(nombre));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(contenido);
    }
    std::string Contenido(const char *nombre) const {
        QFile f(Ruta(nombre));
        return f.open(QIODevice::ReadOnly) ? f.readAll().toStdString() : "nothing";
    }

    // The chooser of files, with this name given.
    Paso Elige(const char *nombre) const {
        const QString ruta = Ruta(nombre);
        return {"Seleccionar archivo", [ruta](QDialog &d) {
                    auto *e = Hijo<QLineEdit>(d, "fileNameEdit");
                    if (e == nullptr) return d.reject();
                    e->setText(ruta);
                    QTest::keyClick(e, Qt::Key_Return);
                }};
    }

    QString carpeta;
};

// The first dialog: presses these buttons, one after the other.
Paso Pulsa(const char *titulo, const std::vector<const char *> &botones) {
    return {titulo, [=](QDialog &d) {
                for (const char *b : botones) Pulsar(d, b);
            }};
}

bool Marcado(QWidget &w, const char *boton) {
    auto *b = Hijo<QAbstractButton>(w, boton);
    return b != nullptr && b->isChecked();
}

void DelMenu(QDialog &d, const char *entrada) {
    auto *accion = d.findChild<QAction *>(QString::fromLatin1(entrada));
    ASSERT_NE(accion, nullptr) << entrada;
    accion->trigger();
}

} // namespace

// ----- The first dialog

TEST_F(DialogosAscii, ElPrimero) {
    for (const int id : {2071, 2072}) {
        ConGuion({{id == 2071 ? Exportacion : Importacion,
                   [](QDialog &d) {
                       EXPECT_EQ(TextoDe(d, "recuerde"), "Recuerde que la Importación/Exportación se realiza "
                                                         "solo sobre la muestra seleccionada");
                       EXPECT_EQ(TextoDe(d, "FormatoVariable"), "Formato &variable");
                       EXPECT_EQ(TextoDe(d, "FormatoFijo"), "Formato &fijo");
                       EXPECT_EQ(TextoDe(d, "SeleccionarArchivo"), "&Seleccionar archivo");
                       EXPECT_EQ(TextoDe(d, "archivo"), "*.txt");
                       DelMenu(d, "Ayuda");
                       DelMenu(d, "Decimales");
                       EXPECT_EQ(Intercambio.decimales, 5);
                       Pulsar(d, "Cancela");
                   }},
                  Pulsando("Importación/Exportación a/de  ASCII", "OK"),
                  {"Formato decimal",
                   [](QDialog &d) {
                       Pulsar(d, "decimales5");
                       Pulsar(d, "OK");
                   }}},
                 [&] { Ordenar(id); });
        EXPECT_EQ(Lote.DecimalesSalida, 2); // a copy, until the transfer begins
    }
}

TEST_F(DialogosAscii, SinFormato) {
    ConGuion({Pulsa(Exportacion, {"OK"}), Caja("Proceso cancelado", "Opciones no válidas")},
             [&] { Ordenar(2071); });
    ConGuion({Pulsa(Exportacion, {"FormatoVariable", "OK"}), Pulsando(ExportarVariable, "Cancela"),
              Caja("Proceso cancelado", "Opciones no válidas")},
             [&] { Ordenar(2071); });
}

TEST_F(DialogosAscii, SinArchivo) {
    ConGuion({Pulsa(Exportacion, {"FormatoVariable", "OK"}), Pulsando(ExportarVariable, "OK"),
              Caja("Proceso cancelado", "Nombre archivo incorrecto")},
             [&] { Ordenar(2071); });
}

// Cancelling the choice of a file closes the first dialog too: nothing is said, nothing done.
TEST_F(DialogosAscii, CancelarElArchivoCancelaTodo) {
    for (const int id : {2071, 2072}) {
        const bool exporta = id == 2071;
        ConGuion({{exporta ? Exportacion : Importacion,
                   [](QDialog &d) {
                       Pulsar(d, "FormatoVariable");
                       Pulsar(d, "SeleccionarArchivo");
                       EXPECT_FALSE(d.isVisible());
                       EXPECT_EQ(d.result(), QDialog::Rejected);
                   }},
                  Pulsando(exporta ? ExportarVariable : ImportarVariable, "OK"),
                  ConEscape("Seleccionar archivo")},
                 [&] { Ordenar(id); });
        EXPECT_EQ(Intercambio.archivo, "*.txt");
    }
}

TEST_F(DialogosAscii, ElSelectorDeArchivos) {
    for (const int id : {2071, 2072}) {
        const bool exporta = id == 2071;
        ConGuion({Pulsa(exporta ? Exportacion : Importacion, {"SeleccionarArchivo"}),
                  {"Seleccionar archivo",
                   [exporta](QDialog &d) {
                       auto *archivos = qobject_cast<QFileDialog *>(&d);
                       ASSERT_NE(archivos, nullptr);
                       EXPECT_EQ(archivos->nameFilters(), QStringList{"Archivos de texto (*.TXT)"});
                       EXPECT_EQ(archivos->acceptMode(),
                                 exporta ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
                       archivos->reject();
                   }}},
                 [&] { Ordenar(id); });
    }
}

// ----- Variable format

TEST_F(DialogosAscii, FormatoVariableAlAbrir) {
    ConGuion({Pulsa(Importacion, {"FormatoVariable", "Cancela"}),
              {ImportarVariable,
               [](QDialog &d) {
                   for (const char *marcado : {"separador0", "delimitador0", "soloEtiquetas"})
                       EXPECT_TRUE(Marcado(d, marcado)) << marcado;
                   for (const char *libre :
                        {"separador1", "separador2", "delimitador1", "delimitador2", "etiquetasYSeries",
                         "primerRegistroCodigos", "primerCampoEtiquetas", "decimalesConComas", "camposPanel",
                         "tercerCampoEtiquetas"})
                       EXPECT_FALSE(Marcado(d, libre)) << libre;
                   EXPECT_EQ(TextoDe(d, "otroSeparador"), "");
                   EXPECT_EQ(TextoDe(d, "otroDelimitador"), "");
                   Pulsar(d, "AyudaPanel");
                   Pulsar(d, "Cancela");
               }},
              Pulsando("Datos Panel", "OK")},
             [&] { Ordenar(2072); });
    EXPECT_EQ(Intercambio.opciones.FormatoElegido, 0);
}

// Each control on its way to the options. The work file is a panel, where all of them count.
TEST_F(DialogosAscii, FormatoVariableCadaControl) {
    struct Caso {
        std::vector<const char *> botones;
        std::function<bool(const OpcionesIntercambio &)> cumple;
    };
    using O = const OpcionesIntercambio &;
    const std::vector<Caso> casos = {
        {{}, [](O o) { return o.Separador == ',' && o.Delimitador == '"' && o.SoloEtiquetas == 1; }},
        {{"separador1"}, [](O o) { return o.Separador == '\t'; }},
        {{"separador2"}, [](O o) { return o.Separador == ';'; }},
        {{"delimitador1"}, [](O o) { return o.Delimitador == 0; }},
        {{"delimitador2"}, [](O o) { return o.Delimitador == '/'; }},
        {{"etiquetasYSeries"}, [](O o) { return o.SoloEtiquetas == 0; }},
        {{"primerRegistroCodigos"}, [](O o) { return o.PrimerRegistroCodigos == 1; }},
        {{"primerCampoEtiquetas"}, [](O o) { return o.ModoEtiquetas == 1; }},
        {{"decimalesConComas"}, [](O o) { return o.DecimalesConComas == 1; }},
        {{"camposPanel"}, [](O o) { return o.CamposPanel == 1; }},
        {{"tercerCampoEtiquetas"}, [](O o) { return o.ModoEtiquetas == 2; }},
    };
    ArchivoTrabajo.TipoDatos = TipoPanel;
    for (std::size_t i = 0; i < casos.size(); ++i) {
        SCOPED_TRACE(i);
        ConGuion({Pulsa(Exportacion, {"FormatoVariable", "Cancela"}),
                  {ExportarVariable,
                   [&](QDialog &d) {
                       Escribir(d, "otroSeparador", " ;");
                       Escribir(d, "otroDelimitador", "/");
                       for (const char *b : casos[i].botones) Pulsar(d, b);
                       Pulsar(d, "OK");
                   }}},
                 [&] { Ordenar(2071); });
        EXPECT_EQ(Intercambio.opciones.FormatoElegido, 1);
        EXPECT_EQ(Intercambio.opciones.FormatoVariable, 1);
        for (std::size_t j = 1; j < casos.size(); ++j)
            EXPECT_EQ(casos[j].cumple(Intercambio.opciones), j == i) << j;
    }
}

TEST_F(DialogosAscii, ExportarEImportar) {
    PonerSerie("A", {1.25, 2.5, 3});
    const std::vector<const char *> pasos = {"FormatoVariable", "SeleccionarArchivo", "OK"};
    ConGuion({Pulsa(Exportacion, pasos),
              {ExportarVariable,
               [](QDialog &d) {
                   Pulsar(d, "primerRegistroCodigos");
                   Pulsar(d, "OK");
               }},
              Elige("datos")},
             [&] { Ordenar(2071); });
    EXPECT_EQ(Contenido("datos.txt"), "      A            \n1.25               \n2.50               \n"
                                      "3.00               \n");
    // Over it: one question, the transfer's own.
    ConGuion({Pulsa(Exportacion, pasos), Pulsando(ExportarVariable, "OK"), Elige("datos.txt"),
              Caja("Aviso", "El archivo ya existe ¿Sobreescribir?", "Cancelar", QMessageBox::Critical)},
             [&] { Ordenar(2071); });
    EXPECT_EQ(Contenido("datos.txt").substr(0, 8), "      A ");
    // A name with another ending keeps it.
    ConGuion({Pulsa(Exportacion, pasos), Pulsando(ExportarVariable, "OK"), Elige("datos.csv")},
             [&] { Ordenar(2071); });
    EXPECT_EQ(Contenido("datos.csv").substr(0, 4), "1.25");
    ConGuion({Caja("Aviso", "Existen Series ¿Desea sustituirlas?", "Si", QMessageBox::Question),
              Pulsa(Importacion, pasos),
              {ImportarVariable,
               [](QDialog &d) {
                   Pulsar(d, "primerRegistroCodigos");
                   Pulsar(d, "OK");
               }},
              Elige("datos.txt")},
             [&] { Ordenar(2072); });
    EXPECT_EQ(CodigosDeSeries(), (std::vector<std::string>{"A"}));
    EXPECT_EQ(ValoresDe("A", 3), (std::vector<double>{1.25, 2.5, 3}));
}

// ----- Fixed format

// Fills the edit fields; a null leaves what stands there.
void Rellenar(QDialog &d, const char *codigo, const char *tipo, const char *inicio, const char *longitud) {
    const char *const nombres[] = {"codigo", "tipo", "inicio", "longitud"};
    const char *const textos[] = {codigo, tipo, inicio, longitud};
    for (int i = 0; i < 4; ++i)
        if (textos[i] != nullptr) Escribir(d, nombres[i], textos[i]);
}

TEST_F(DialogosAscii, FormatoFijoAlExportar) {
    PonerSerie("A", {1});
    PonerSerie("B", {2});
    ConGuion({Pulsa(Exportacion, {"FormatoFijo", "Cancela"}),
              {ExportarFijo,
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "lista"), (std::vector<std::string>{"N---  1---18---A       ",
                                                                             "N--- 19---18---B       "}));
                   EXPECT_EQ(TextoDe(d, "inicio"), "");
                   Elegir(d, "lista", 0);
                   Pulsar(d, "Eliminar");
                   EXPECT_EQ(TextoDe(d, "codigo"), "A");
                   EXPECT_EQ(TextoDe(d, "tipo"), "N");
                   EXPECT_EQ(TextoDe(d, "inicio"), "1");
                   EXPECT_EQ(TextoDe(d, "longitud"), "18");
                   EXPECT_EQ(LineasDe(d, "lista"), (std::vector<std::string>{"N--- 19---18---B       "}));
                   Pulsar(d, "Eliminar"); // nothing is chosen
                   Pulsar(d, "Anadir");
                   EXPECT_EQ(LineasDe(d, "lista"),
                             (std::vector<std::string>{"N--- 19---18---B       ", "N---1---18---A       "}));
                   EXPECT_EQ(TextoDe(d, "codigo"), "");
                   EXPECT_EQ(TextoDe(d, "tipo"), "N");
                   EXPECT_EQ(TextoDe(d, "inicio"), "19");
                   EXPECT_EQ(TextoDe(d, "longitud"), "");
                   EXPECT_EQ(d.focusWidget(), Hijo<QLineEdit>(d, "codigo"));
                   Pulsar(d, "AyudaPanel");
                   Pulsar(d, "decimalesConComas");
                   Pulsar(d, "OK");
               }},
              Pulsando("Datos Panel", "OK")},
             [&] { Ordenar(2071); });
    EXPECT_EQ(Intercambio.opciones.FormatoElegido, 1);
    EXPECT_EQ(Intercambio.opciones.FormatoVariable, 0);
    EXPECT_EQ(Intercambio.opciones.DecimalesConComas, 1);
}

// The tests of "Añadir" in their order: each row mends what the one before was refused for.
TEST_F(DialogosAscii, LasPruebasDeAnadir) {
    struct Caso {
        const char *codigo, *tipo, *inicio, *longitud, *mensaje;
    };
    static const std::vector<Caso> casos = {
        {"", "", "", "", "Introduzca nombre de serie"},
        {"NADA", "", "", "", "Nombre de serie no existe"},
        {"B", "", "", "", "Nombre de serie repetido"},
        {"A", "", "", "", "Tipo debe ser 'A' ó 'N'"},
        {"A", "p", "", "", "Tipo debe ser 'A' ó 'N'"},
        {"A", "n", "", "", "Posición de inicio no válida"},
        {"A", "n", "0", "", "Posición de inicio no válida"},
        {"A", "n", "1", "", "Longitud no válida"},
        {"A", "n", "1", "0", "Longitud no válida"},
        {"DENO", "n", "1", "9", "Tipo debe ser 'A'"},
    };
    PonerSerie("A", {1});
    PonerSerie("B", {2});
    Guion guion = {Pulsa(Exportacion, {"FormatoFijo", "Cancela"}),
                   {ExportarFijo, [](QDialog &d) {
                        Elegir(d, "lista", 0); // A goes, B stays
                        Pulsar(d, "Eliminar");
                        for (const Caso &c : casos) {
                            Rellenar(d, c.codigo, c.tipo, c.inicio, c.longitud);
                            Pulsar(d, "Anadir");
                            EXPECT_EQ(TextoDe(d, "codigo"), c.codigo);
                            EXPECT_EQ(LineasDe(d, "lista").size(), 1u);
                        }
                        Rellenar(d, "A", "n", "1", "9");
                        Pulsar(d, "Anadir");
                        EXPECT_EQ(LineasDe(d, "lista").back(), "N---1---9---A       ");
                        Pulsar(d, "Cancela");
                    }}};
    for (const Caso &c : casos) guion.push_back(Caja("Aviso", c.mensaje));
    ConGuion(guion, [&] { Ordenar(2071); });
}

TEST_F(DialogosAscii, ImportarFijo) {
    Poner("fijo.txt", "uno   1,5 20\ndos   2,5 21\n");
    TablaCampos.numero = 0;
    ConGuion({Pulsa(Importacion, {"FormatoFijo", "SeleccionarArchivo", "OK"}),
              {ImportarFijo,
               [](QDialog &d) {
                   EXPECT_EQ(TextoDe(d, "inicio"), "1");
                   Pulsar(d, "OK");
                   EXPECT_TRUE(d.isVisible());
                   Rellenar(d, "DENO", "a", nullptr, "6");
                   Pulsar(d, "Anadir");
                   Rellenar(d, "X", "n", nullptr, "4");
                   Pulsar(d, "Anadir");
                   Rellenar(d, "Y", "a", nullptr, "2"); // only in the first row
                   Pulsar(d, "Anadir");
                   Rellenar(d, nullptr, "n", nullptr, nullptr);
                   Pulsar(d, "Anadir");
                   EXPECT_EQ(LineasDe(d, "lista"),
                             (std::vector<std::string>{"A---1---6---DENO    ", "N---7---4---X       ",
                                                       "N---11---2---Y       "}));
                   Pulsar(d, "decimalesConComas");
                   Pulsar(d, "OK");
               }},
              Caja("Aviso", "Introduzca datos"),
              Caja("Aviso", "Tipo debe ser 'N'"),
              Elige("fijo.txt")},
             [&] { Ordenar(2072); });
    EXPECT_EQ(ValoresDe("X", 2), (std::vector<double>{1.5, 2.5}));
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 3); // the labels are counted as if they were a series
    // The table stays for the next import.
    ConGuion({Caja("Aviso", "Existen Series ¿Desea sustituirlas?", "No", QMessageBox::Question),
              Pulsa(Importacion, {"FormatoFijo", "Cancela"}),
              {ImportarFijo,
               [](QDialog &d) {
                   EXPECT_EQ(LineasDe(d, "lista").size(), 3u);
                   Pulsar(d, "Cancela");
               }}},
             [&] { Ordenar(2072); });
}
