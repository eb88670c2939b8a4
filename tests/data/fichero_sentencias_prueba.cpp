// Statement files: opened, saved, put behind what is there.
#include "data/fichero_sentencias.h"

#include "apoyo/plataforma_prueba.h"
#include "data/trabajo_apoyo.h"
#include "platform/texto.h"

#include <algorithm>

namespace {

const CajaVista NombreIncorrecto = {"Proceso cancelado", "Nombre archivo incorrecto", IconoInformacion,
                                    BotonesAceptar};
const CajaVista ErrorAlAbrir = {"Proceso cancelado", "Error al abrir el archivo", IconoInformacion,
                                BotonesAceptar};
const CajaVista NoCompleto = {"Proceso cancelado", "No se puede leer el fichero completo", IconoInformacion,
                              BotonesAceptar};

class FicheroSentencias : public EnCarpeta {
protected:
    void Ejecutar(ComandosDeSentencias comando, const std::string &pantalla, const std::string &ruta) {
        EmpezarPrueba();
        Prueba.textoControl = Texto1252DeUtf8(pantalla);
        Prueba.desde = Prueba.hasta = 3;
        if (!ruta.empty()) Prueba.rutas = {ruta};
        ComandoSentencias(nullptr, nullptr, comando);
        EXPECT_EQ(Prueba.cursor, CursorFlecha);
    }
    // What a screen shows after a file was opened over it, or put behind it.
    std::string Pantalla(ComandosDeSentencias comando, const std::string &pantalla,
                         const std::string &fichero) {
        PonerBytes(Ruta("a.txt"), fichero);
        Ejecutar(comando, pantalla, Ruta("a.txt"));
        return Utf8De1252(Prueba.textoControl);
    }
    std::string Guardado(const std::string &pantalla) {
        Ejecutar(GuardarSentencias, pantalla, Ruta("g.txt"));
        EXPECT_TRUE(Prueba.cajas.empty());
        EXPECT_EQ(Utf8De1252(Prueba.textoControl), pantalla); // saving changes nothing on the screen
        return BytesDe(Ruta("g.txt"));
    }
};

std::string Lineas(int n, std::size_t ancho) {
    std::string r;
    for (int i = 0; i < n; ++i) r.append(ancho - 1, static_cast<char>('a' + i % 26)).append(1, '\n');
    return r;
}

TEST_F(FicheroSentencias, SePideUnFichero) {
    for (const ComandosDeSentencias c : {AbrirSentencias, GuardarSentencias, AnadirSentencias}) {
        Ejecutar(c, "MC Y 1", ""); // cancelled
        ASSERT_EQ(Prueba.archivos.size(), 1u);
        EXPECT_EQ(Prueba.archivos[0].guardar, c == GuardarSentencias);
        EXPECT_EQ(Prueba.archivos[0].titulo, "*.TXT");
        EXPECT_EQ(Prueba.archivos[0].nombre, "*.txt");
        EXPECT_EQ(Prueba.archivos[0].filtros, std::vector<std::string>{"Archivos de texto (*.TXT)"});
        EXPECT_EQ(Prueba.textoControl, "MC Y 1");
        EXPECT_TRUE(Prueba.cajas.empty());
    }
    EXPECT_EQ(Ficheros(), 0);
}

TEST_F(FicheroSentencias, NombresQueNoSeAdmiten) {
    std::filesystem::create_directory(Ruta("con-guion"));
    for (const char *nombre : {"a-b.txt", "a*.txt", "a?.txt", "con-guion/a.txt", "-", "*.txt"}) {
        SCOPED_TRACE(nombre);
        for (const ComandosDeSentencias c : {AbrirSentencias, GuardarSentencias, AnadirSentencias}) {
            Ejecutar(c, "MC Y 1", Ruta(nombre));
            EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{NombreIncorrecto});
            EXPECT_EQ(Prueba.textoControl, "MC Y 1");
        }
    }
}

TEST_F(FicheroSentencias, UnNombreSinPuntoLoRecibe) {
    Ejecutar(GuardarSentencias, "A", Ruta("nombre"));
    EXPECT_EQ(BytesDe(Ruta("nombre.TXT")), "A\n");
    Ejecutar(AbrirSentencias, "", Ruta("nombre"));
    EXPECT_EQ(Prueba.textoControl, "A");
    Ejecutar(GuardarSentencias, "B", Ruta("nombre.x"));
    EXPECT_EQ(BytesDe(Ruta("nombre.x")), "B\n");
}

TEST_F(FicheroSentencias, LoQueNoSePuedeAbrir) {
    std::filesystem::create_directory(Ruta("carpeta.d"));
    for (const ComandosDeSentencias c : {AbrirSentencias, GuardarSentencias, AnadirSentencias}) {
        Ejecutar(c, "MC Y 1", Ruta("carpeta.d"));
        EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{ErrorAlAbrir});
        EXPECT_EQ(Prueba.textoControl, "MC Y 1");
    }
    Ejecutar(AbrirSentencias, "MC Y 1", Ruta("no_hay.txt"));
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{ErrorAlAbrir});
}

TEST_F(FicheroSentencias, Guardar) {
    EXPECT_EQ(Guardado(""), "\n"); // the screen counts one line
    EXPECT_EQ(Guardado("A"), "A\n");
    EXPECT_EQ(Guardado("A\nB"), "A\nB\n");
    EXPECT_EQ(Guardado("A\nB\n"), "A\nB\n\n");
    EXPECT_EQ(Guardado("\n\nA"), "\n\nA\n");
    EXPECT_EQ(Guardado("; año €"), "; a\xF1o \x80\n"); // Windows-1252
}

// Of a longer text the first 4,000 characters, a line end counting as two; the lines behind the cut are there and empty.
TEST_F(FicheroSentencias, GuardarHastaElLimite) {
    const std::string justo(4000, 'x');
    EXPECT_EQ(Guardado(justo), justo + "\n");
    EXPECT_EQ(Guardado(justo + "y"), justo + "\n");
    // 40 lines of 100 characters with their two of the end are 4,000; two more are lost.
    const std::string lineas = Lineas(42, 99);
    EXPECT_EQ(Guardado(Lineas(40, 99) + "z"), Lineas(40, 99) + "\n");
    EXPECT_EQ(Guardado(lineas), Lineas(40, 99) + "\n\n\n");
    EXPECT_EQ(Guardado(std::string(10, 'a') + "\n" + std::string(5000, 'b') + "\nc"),
              std::string(10, 'a') + "\n" + std::string(3988, 'b') + "\n\n");
}

TEST_F(FicheroSentencias, Abrir) {
    struct {
        const char *fichero, *pantalla;
    } const casos[] = {
        {"", ""},
        {"A\n", "A"},
        {"A\nB\n", "A\nB"},
        {"A\r\nB\r\n", "A\nB"},
        {"A\rB\r", "A\nB"},
        {"A\n\n", "A\n"},
        {"\n", ""},
        {"A\nBC", "A\nB"}, // a last line without its end loses a character
        {"X", ""},
        {"; a\xF1o\n", "; año"},
        {"; a\xC3\xB1o\n", "; año"}, // UTF-8 is understood, too
        {"\xEF\xBB\xBFMC\n", "MC"},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.fichero);
        EXPECT_EQ(Pantalla(AbrirSentencias, "lo de antes\ny más", c.fichero), c.pantalla);
        EXPECT_TRUE(Prueba.cajas.empty());
    }
}

// Lines are read as long as the text so far, with two characters for each end, is below 3,900.
TEST_F(FicheroSentencias, AbrirHastaElLimite) {
    const std::string lineas = Lineas(60, 99); // 100 characters each, with two for the end
    EXPECT_EQ(Pantalla(AbrirSentencias, "", Lineas(39, 99)), Lineas(39, 99).substr(0, 39 * 99 - 1));
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(Pantalla(AbrirSentencias, "", Lineas(40, 99)), Lineas(39, 99).substr(0, 39 * 99 - 1));
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{NoCompleto});
    EXPECT_EQ(Pantalla(AbrirSentencias, "", lineas), Lineas(39, 99).substr(0, 39 * 99 - 1));
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{NoCompleto}); // once
    // 3,899 characters are fewer than 3,900: one more line goes in.
    const std::string casi = Lineas(38, 99) + std::string(97, 'm') + "\n";
    EXPECT_EQ(Pantalla(AbrirSentencias, "", casi + "ultima\n"), casi + "ultima");
    EXPECT_TRUE(Prueba.cajas.empty());
}

// A line of more than 1,024 characters is read in pieces, and the last character of each piece goes as if it were the end.
TEST_F(FicheroSentencias, LineasMuyLargas) {
    EXPECT_EQ(Pantalla(AbrirSentencias, "", std::string(1023, 'a') + "\nb\n"),
              std::string(1023, 'a') + "\nb");
    EXPECT_EQ(Pantalla(AbrirSentencias, "", std::string(1024, 'a') + "\nb\n"),
              std::string(1023, 'a') + "\n\nb");
    EXPECT_EQ(Pantalla(AbrirSentencias, "", std::string(1500, 'a') + "\n"),
              std::string(1023, 'a') + "\n" + std::string(476, 'a'));
    // A text of 4,001 characters or more is cut at 3,999: 3 pieces of 1,025, one of 824 are 3,899, then a whole one.
    const std::string largo =
        std::string(3 * 1024, 'a') + std::string(822, 'b') + "\n" + std::string(900, 'c') + "\n";
    const std::string leido = Pantalla(AbrirSentencias, "", largo);
    const std::string a = std::string(1023, 'a') + "\n";
    EXPECT_EQ(leido, a + a + a + std::string(822, 'b') + "\n" + std::string(3999 - 3899, 'c'));
    EXPECT_TRUE(Prueba.cajas.empty());
}

TEST_F(FicheroSentencias, Anadir) {
    EXPECT_EQ(Pantalla(AnadirSentencias, "A", "B\n"), "A\nB");
    EXPECT_EQ(Pantalla(AnadirSentencias, "", "B\n"), "\nB"); // the screen counts one line
    EXPECT_EQ(Pantalla(AnadirSentencias, "A\n", "B\nC\n"), "A\n\nB\nC");
    EXPECT_EQ(Pantalla(AnadirSentencias, "A", ""), "A");
    EXPECT_EQ(Pantalla(AnadirSentencias, "año", "; \xF1\n"), "año\n; ñ");
}

TEST_F(FicheroSentencias, AnadirAUnaPantallaLlena) {
    const std::string llena(3900, 'x'); // and the line end behind it: stops at once
    EXPECT_EQ(Pantalla(AnadirSentencias, llena, "B\n"), llena);
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{NoCompleto});
    const std::string casi(3897, 'x'); // 3,899 with its end
    EXPECT_EQ(Pantalla(AnadirSentencias, casi, "B\n"), casi + "\nB");
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(Pantalla(AnadirSentencias, std::string(3898, 'x'), "B\n"), std::string(3898, 'x'));
    EXPECT_EQ(Prueba.cajas, std::vector<CajaVista>{NoCompleto});
    // 3,998 characters and the end are 4,000; beyond that the text is cut at 3,999.
    for (const std::size_t n : {3998u, 3999u, 4000u, 5000u})
        EXPECT_EQ(Pantalla(AnadirSentencias, std::string(n, 'x'), "B\n").size(),
                  std::min<std::size_t>(n, 3999));
}

// The replaced part of the screen ends at its character 32,000, two for a line end.
TEST_F(FicheroSentencias, LoQueQuedaDetrasDeLaSeleccion) {
    EXPECT_EQ(Pantalla(AbrirSentencias, std::string(32000, 'x') + "yz", "A\n"), "Ayz");
    EXPECT_EQ(Pantalla(AbrirSentencias, std::string(31999, 'x'), "A\n"), "A");
    EXPECT_EQ(Pantalla(AbrirSentencias, "\n\n" + std::string(31996, 'x') + "yz", "A\n"), "Ayz");
    EXPECT_EQ(Pantalla(AbrirSentencias, std::string(31999, 'x') + "\nyz", "A\n"), "A\nyz");
}

} // namespace
