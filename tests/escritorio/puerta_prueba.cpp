// The door to the dialogs and the rest of the desktop's seam: titles, text put into a control, cursors, files.
#include "apoyo_escritorio.h"

#include "platform/qt/ventana_qt.h"
#include "platform/texto.h"
#include "shell/ventanas/escritorio.h"
#include "store/archivo.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStandardPaths>

using Puerta = Escritorio;

TEST_F(Puerta, CadaDialogoConSuFila) {
    std::vector<int> veces(static_cast<std::size_t>(Dialogo::Total), 0);
    for (const FilaDeDialogo &fila : TablaDeDialogos()) {
        ASSERT_LT(fila.cual, Dialogo::Total);
        EXPECT_NE(fila.abrir, nullptr);
        ++veces[static_cast<std::size_t>(fila.cual)];
    }
    EXPECT_EQ(veces, std::vector<int>(veces.size(), 1));
}

TEST_F(Puerta, AbreElDialogoDeSuNombre) {
    PonerDatos(TipoAnual, "1990#1999");
    Ventana *v = AVentana(ventana.get());
    ConGuion({Pulsando("Relación de matrices", "OK")}, [&] { AbrirDialogo(v, Dialogo::Lista, {1}); });
    ConGuion({Pulsando("Acotación intervalos muestra", "OK")},
             [&] { AbrirDialogo(v, Dialogo::Ayuda, {PaginaMuestra}); });
    ConGuion({Pulsando("Opción del menú", "OK")}, [&] { AbrirDialogo(v, Dialogo::NoEnsamblada); });
    ConGuion({}, [&] { AbrirDialogo(v, Dialogo::Total); });
}

TEST_F(Puerta, TituloYTextoDelControl) {
    PonerTitulo(AVentana(ventana.get()), Texto1252DeUtf8("Tabira: año [*]"));
    EXPECT_EQ(ventana->windowTitle().toStdString(), "Tabira: año [*][*]");
    QPlainTextEdit *p = ventana->PantallaEdicion;
    p->setPlainText(QStringLiteral("uno dos"));
    SeleccionarEnControl(AControl(p), 0, 32000);
    EscribirEnControl(AControl(p), Texto1252DeUtf8("SER AÑO = 1\r\nSER B = 2"));
    EXPECT_EQ(p->toPlainText().toStdString(), "SER AÑO = 1\nSER B = 2");
    p->undo();
    EXPECT_EQ(p->toPlainText().toStdString(), "uno dos");
}

TEST_F(Puerta, Cursores) {
    static constexpr std::pair<Cursor, Qt::CursorShape> Casos[] = {{CursorEspera, Qt::WaitCursor},
                                                                   {CursorDesplazar, Qt::SizeAllCursor},
                                                                   {CursorHorizontal, Qt::SizeHorCursor},
                                                                   {CursorVertical, Qt::SizeVerCursor}};
    for (const auto &[cursor, forma] : Casos) {
        PonerCursor(cursor);
        PonerCursor(cursor);
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), forma);
    }
    PonerCursor(CursorFlecha);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

namespace {

constexpr FormatoArchivo Formatos[] = {{"txt", "Texto (*.txt)"}, {"csv", "Comas (*.csv)"}};

QString EnDocumentos(const char *nombre) {
    const QDir carpeta(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return carpeta.filePath(QString::fromUtf8(nombre));
}

Paso ConNombre(const char *titulo, const QString &nombre, const char *filtro = nullptr) {
    return {titulo, [=](QDialog &d) {
                auto *archivos = qobject_cast<QFileDialog *>(&d);
                ASSERT_NE(archivos, nullptr);
                if (filtro != nullptr) archivos->selectNameFilter(QString::fromUtf8(filtro));
                Hijo<QLineEdit>(d, "fileNameEdit")->setText(nombre);
                QMetaObject::invokeMethod(archivos, "accept", Qt::DirectConnection);
            }};
}

} // namespace

TEST_F(Puerta, ElegirArchivo) {
    struct {
        bool guardar;
        QString nombre;
        const char *filtro;
        std::string ruta;
    } const casos[] = {
        {true, EnDocumentos("klein 1.5"), nullptr, EnDocumentos("klein 1.5.txt").toStdString()},
        {true, EnDocumentos("klein"), "Comas (*.csv)", EnDocumentos("klein.csv").toStdString()},
        {true, EnDocumentos("klein.CSV"), nullptr, EnDocumentos("klein.CSV").toStdString()},
        {false, EnDocumentos("peñón"), nullptr, EnDocumentos("peñón").toStdString()},
    };
    QFile hay(EnDocumentos("peñón"));
    ASSERT_TRUE(hay.open(QIODevice::WriteOnly));
    hay.close();
    for (const auto &c : casos) {
        SCOPED_TRACE(c.ruta);
        std::string ruta;
        ConGuion({ConNombre("Título", c.nombre, c.filtro)}, [&] {
            EXPECT_TRUE(
                ElegirArchivo(AVentana(ventana.get()), {c.guardar, "Título"_w, Formatos, "propuesto"}, ruta));
        });
        EXPECT_EQ(ruta, c.ruta);
    }
    std::string ruta = "antes";
    ConGuion({ConEscape("Abrir")}, [&] {
        EXPECT_FALSE(ElegirArchivo(AVentana(ventana.get()), {false, "Abrir", Formatos, ""}, ruta));
    });
    EXPECT_EQ(ruta, "antes");
}

// A folder that is gone isn't offered as the name of a file.
TEST_F(Puerta, ElegirArchivoSinSuCarpeta) {
    const std::string ida = EnDocumentos("ida/y vuelta").toStdString();
    std::string ruta;
    ConGuion({{"Guardar",
               [](QDialog &d) {
                   EXPECT_EQ(Hijo<QLineEdit>(d, "fileNameEdit")->text(), QString());
                   EXPECT_EQ(qobject_cast<QFileDialog *>(&d)->directory(), QDir::home());
                   d.reject();
               }}},
             [&] {
                 EXPECT_FALSE(ElegirArchivo(AVentana(ventana.get()),
                                            {true, "Guardar", Formatos, "", false, ida}, ruta));
             });
}

// A file that is there is replaced only after a question, which leads back to the chooser.
TEST_F(Puerta, ElegirArchivoQueYaExiste) {
    QFile hay(EnDocumentos("hay.txt"));
    ASSERT_TRUE(hay.open(QIODevice::WriteOnly));
    hay.close();
    std::string ruta;
    ConGuion({ConNombre("Guardar", EnDocumentos("hay")),
              Caja("Guardar", "hay.txt ya existe. ¿Desea reemplazarlo?", "No", QMessageBox::Question),
              ConNombre("Guardar", EnDocumentos("hay")),
              Caja("Guardar", "hay.txt ya existe. ¿Desea reemplazarlo?", "Si", QMessageBox::Question)},
             [&] {
                 EXPECT_TRUE(ElegirArchivo(AVentana(ventana.get()), {true, "Guardar", Formatos, "x"}, ruta));
             });
    EXPECT_EQ(ruta, EnDocumentos("hay.txt").toStdString());
}
