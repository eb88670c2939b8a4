// Work files and statement files in the real windows, and the copy of unsaved work.
#include "apoyo_escritorio.h"

#include "data/copia_seguridad.h"
#include "data/trabajo.h"
#include "platform/campos_texto.h"
#include "platform/qt/ventana_qt.h"
#include "shell/comandos.h"
#include "store/archivo.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

namespace {

class TrabajoEscritorio : public Escritorio {
protected:
    void SetUp() override {
        Escritorio::SetUp();
        Trabajo = {};
    }
    QString Ruta(const char *nombre) const { return carpeta.filePath(QString::fromUtf8(nombre)); }
    QByteArray Bytes(const char *nombre) const {
        QFile f(Ruta(nombre));
        EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << nombre;
        return f.readAll();
    }
    std::string Titulo() const { return ventana->windowTitle().toStdString(); }
    // Without hyphens, which statement files refuse.
    QTemporaryDir carpeta{QDir::tempPath() + QStringLiteral("/trabajoXXXXXX")};
};

// The chooser of files, the user types a path.
Paso Eligiendo(const char *titulo, const QString &ruta) {
    return {titulo, [=](QDialog &d) {
                auto *archivos = qobject_cast<QFileDialog *>(&d);
                ASSERT_NE(archivos, nullptr);
                Hijo<QLineEdit>(d, "fileNameEdit")->setText(ruta);
                QMetaObject::invokeMethod(archivos, "accept", Qt::DirectConnection);
            }};
}

TEST_F(TrabajoEscritorio, GuardarCerrarYAbrir) {
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1.5, 2, 3});
    ConGuion({Eligiendo("Guardar archivo de trabajo", Ruta("peñón"))}, [&] { Ordenar(2056); });
    EXPECT_EQ(Titulo(), "Tabira: peñón");
    EXPECT_TRUE(QFile::exists(Ruta("peñón.tr2"))); // the ending of its format
    ArchivoTrabajo.ValoresObs[0][0] = 7;
    ConGuion({}, [&] { Ordenar(2056); }); // without a question now
    SetUp();
    EXPECT_EQ(Titulo(), "Tabira");
    ConGuion({ConEscape("Abrir archivo de trabajo")}, [&] { Ordenar(2055); });
    EXPECT_EQ(Titulo(), "Tabira: Proyec01");
    ConGuion({Eligiendo("Abrir archivo de trabajo", Ruta("peñón.tr2"))}, [&] { Ordenar(2055); });
    EXPECT_EQ(Titulo(), "Tabira: peñón");
    EXPECT_EQ(ValoresDe("A", 3), (std::vector<double>{7, 2, 3}));
    // The chooser begins in the folder of the last file.
    ConGuion({{"Guardar archivo de trabajo",
               [&](QDialog &d) {
                   EXPECT_EQ(qobject_cast<QFileDialog *>(&d)->directory().absolutePath(), carpeta.path());
                   EXPECT_EQ(Hijo<QLineEdit>(d, "fileNameEdit")->text(), QString::fromUtf8("peñón.TR2"));
                   d.reject();
               }}},
             [&] { Ordenar(2057); });
}

TEST_F(TrabajoEscritorio, UnFicheroQueNoLoEs) {
    QFile malo(Ruta("malo.tr2"));
    ASSERT_TRUE(malo.open(QIODevice::WriteOnly));
    malo.write("nada");
    malo.close();
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3});
    ConGuion({Eligiendo("Abrir archivo de trabajo", Ruta("malo.tr2")),
              Caja("Proceso cancelado", "El archivo no es un archivo de trabajo")},
             [&] { Ordenar(2055); });
    EXPECT_EQ(ValoresDe("A", 3), (std::vector<double>{1, 2, 3}));
}

// Opening statements can be undone, and one undo brings all back.
TEST_F(TrabajoEscritorio, FicherosDeSentencias) {
    ventana->PantallaEdicion->setPlainText(QStringLiteral("; año\nMC Y 1"));
    ConGuion({Eligiendo("*.TXT", Ruta("s"))}, [&] { Ordenar(2091); });
    EXPECT_EQ(Bytes("s.txt"), QByteArray("; a\xF1o\nMC Y 1\n"));
    ventana->PantallaEdicion->setPlainText(QStringLiteral("SER A = 1"));
    ConGuion({Eligiendo("*.TXT", Ruta("s.txt"))}, [&] { Ordenar(2090); });
    EXPECT_EQ(ventana->PantallaEdicion->toPlainText().toStdString(), "SER A = 1\n; año\nMC Y 1");
    ConGuion({Eligiendo("*.TXT", Ruta("s.txt"))}, [&] { Ordenar(2092); });
    EXPECT_EQ(ventana->PantallaEdicion->toPlainText().toStdString(), "; año\nMC Y 1");
    Ordenar(2047);
    EXPECT_EQ(ventana->PantallaEdicion->toPlainText().toStdString(), "SER A = 1\n; año\nMC Y 1");
    ConGuion({ConEscape("*.TXT")}, [&] { Ordenar(2092); });
    EXPECT_EQ(ventana->PantallaEdicion->toPlainText().toStdString(), "SER A = 1\n; año\nMC Y 1");
}

TEST_F(TrabajoEscritorio, LaCopiaDeCadaMinuto) {
    auto *reloj = ventana->findChild<QTimer *>(QStringLiteral("relojDeCopias"));
    ASSERT_NE(reloj, nullptr);
    EXPECT_TRUE(reloj->isActive());
    EXPECT_EQ(reloj->interval(), 60000);
    EmpezarCopias(carpeta.path().toStdString());
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3});
    const auto copias = [&] { return QDir(carpeta.path()).entryList({QStringLiteral("*.TR2")}).size(); };
    EXPECT_EQ(copias(), 0);
    reloj->start(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return copias() == 1; }));
    TerminarCopias(false);
    EXPECT_EQ(copias(), 0);
}

} // namespace
