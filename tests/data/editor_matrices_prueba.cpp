// The grid on a matrix: the working area, storing, loading, deleting.
#include "data/editor_apoyo.h"
#include "data/editor_matrices.h"

#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

// Row and column from 1.
void Poner(int fila, int columna, const char *texto) {
    EntrarEnMatriz(fila - 1, columna - 1, texto);
}

void Nombrar(const char *codigo) {
    Clic(CeldaCodigoMatriz);
    Teclear("<Izquierda><Escape>");
    Teclear(codigo);
    Teclear("<Enter>");
}

bool AreaVacia() {
    for (int i = 0; i < ElementosBloque; ++i)
        if (BufferMatriz.datos[i] != 0.0 || BufferMatriz.presencia[i] != 0) return false;
    return true;
}

std::string CodigoDeArea() {
    return std::string(Recortado(BufferMatriz.Codigo));
}

using Datos = std::vector<double>;

Datos Guardada(const char *codigo, int filas, int columnas) {
    int f = 0, c = 0;
    const Datos d = MatrizDe(codigo, f, c);
    EXPECT_EQ(f, filas);
    EXPECT_EQ(c, columnas);
    return d;
}

// The one box that was shown, title "Proceso cancelado", with the information icon.
std::string Mensaje() {
    if (Prueba.cajas.size() != 1) return Formatear("%zu boxes", Prueba.cajas.size());
    EXPECT_EQ(Prueba.cajas[0].titulo, "Proceso cancelado");
    EXPECT_EQ(Prueba.cajas[0].icono, IconoInformacion);
    const std::string texto = Prueba.cajas[0].texto;
    Prueba.cajas.clear();
    return texto;
}

} // namespace

// ----- What the cells show

TEST(EditorMatrices, Celdas) {
    AbrirMatrices();
    EXPECT_EQ(TextoDeCelda(0), "");
    EXPECT_EQ(TextoDeCelda(1), "     1     ");
    EXPECT_EQ(TextoDeCelda(16), "    16     ");
    EXPECT_EQ(TextoDeCelda(17), "     1     ");
    EXPECT_EQ(TextoDeCelda(85), "     5     ");
    EntrarEnEditor({BarraEnFila, 100});
    EntrarEnEditor({BarraEnColumna, 9});
    EXPECT_EQ(TextoDeCelda(1), "   101     ");
    EXPECT_EQ(TextoDeCelda(17), "    10     ");
    EXPECT_EQ(TextoDeCelda(85), "    14     ");
}

TEST(EditorMatrices, Elementos) {
    AbrirMatrices();
    Poner(1, 1, "1.5");
    Poner(16, 5, "-2");
    Poner(17, 6, "3");
    EXPECT_EQ(TextoDeCelda(18), "        1.50");
    EXPECT_EQ(TextoDeCelda(101), "       -2.00");
    EXPECT_EQ(Celda(19), "");
    Lote.DecimalesSalida = 4;
    EXPECT_EQ(TextoDeCelda(18), "      1.5000");
    EntrarEnEditor({DesplazaFilas, 1});
    EntrarEnEditor({DesplazaColumnas, 1});
    EXPECT_EQ(Celda(101), "3.0000");
    Clic(101);
    EXPECT_EQ(Campo(), "        3.0000000000");
    EXPECT_EQ(Celda(CeldaInformacion), "17;  6");
    EXPECT_EQ(TextoDeCelda(CeldaInformacion), " 17;  6");
    Clic(18);
    EXPECT_EQ(TextoDeCelda(CeldaInformacion), "  2;  2");
    Clic(CeldaCodigoMatriz);
    EXPECT_EQ(Celda(CeldaInformacion), "Código...:");
}

// 40 by 40: beyond, cells are blank, and what is typed there wraps as far as it has a place.
TEST(EditorMatrices, ElBordeDelArea) {
    AbrirMatrices();
    EntrarEnEditor({BarraEnFila, 30});
    EntrarEnEditor({BarraEnColumna, 36});
    Clic(CeldaEn(4, 10)); // row 40, column 40: the last place
    Teclear("9<Enter>");
    EXPECT_EQ(BufferMatriz.presencia[1599], 1);
    EXPECT_EQ(BufferMatriz.datos[1599], 9.0);
    EXPECT_EQ(Celda(CeldaEn(4, 10)), "9.00");
    Teclear("8<Enter>"); // row 41
    EXPECT_EQ(BufferMatriz.presencia[1639], 0);
    EXPECT_EQ(Celda(CeldaEn(4, 11)), "");
    Clic(CeldaEn(5, 10)); // row 40, column 41: place 1,600
    Teclear("7<Enter>");
    EXPECT_EQ(BufferMatriz.presencia[1600], 0);
    Clic(CeldaEn(5, 9)); // row 39, column 41: the first place of row 40
    Teclear("6<Enter>");
    EXPECT_EQ(BufferMatriz.presencia[1560], 1);
    EXPECT_EQ(BufferMatriz.datos[1560], 6.0);
    EXPECT_EQ(Celda(CeldaEn(5, 9)), "");
    EntrarEnEditor({BarraEnColumna, 0});
    EXPECT_EQ(Celda(CeldaEn(1, 10)), "6.00");
}

TEST(EditorMatrices, ConfirmarUnValor) {
    AbrirMatrices();
    Clic(18);
    Teclear("1.25<Enter>-<Enter>A<Enter>");
    EXPECT_EQ(BufferMatriz.datos[0], 1.25);
    EXPECT_EQ(BufferMatriz.presencia[0], 1);
    EXPECT_EQ(BufferMatriz.presencia[40], 1); // any text that isn't blank
    EXPECT_EQ(BufferMatriz.datos[40], 0.0);
    EXPECT_EQ(BufferMatriz.presencia[80], 0);
    Clic(18);
    Teclear("<Escape><Enter>");
    EXPECT_EQ(BufferMatriz.presencia[0], 0);
    EXPECT_EQ(BufferMatriz.datos[0], 0.0);
    LimpiarBufferMatriz();
    EXPECT_TRUE(AreaVacia());
}

TEST(EditorMatrices, ElCodigoTieneOchoCaracteres) {
    AbrirMatrices();
    Teclear("matriz larga");
    EXPECT_EQ(CodigoDeArea(), ""); // until it is confirmed
    Teclear("<Enter>");
    EXPECT_STREQ(BufferMatriz.Codigo, "matriz l    ");
    EXPECT_EQ(Celda(CeldaCodigoMatriz), "matriz l");
    EXPECT_EQ(Editor.CeldaActual, 18);
    Clic(CeldaCodigoMatriz);
    EXPECT_EQ(Campo(), "matriz l");
}

// Up leads to the head of a column, where no key does anything. A click leads away.
TEST(EditorMatrices, UnaCabeceraNoTomaTeclas) {
    AbrirMatrices();
    Clic(35);
    Teclear("<Arriba>");
    ASSERT_EQ(Editor.CeldaActual, 34);
    EXPECT_EQ(CeldaConCursor(), -1);
    EXPECT_EQ(Campo(), "");
    Teclear("<Enter><Tab><Arriba><Abajo><Inicio><Fin><RePag><AvPag><Shift><Derecha>5<Escape>");
    EXPECT_EQ(Editor.CeldaActual, 34);
    EXPECT_EQ(Editor.foco, FocoEnCelda);
    EXPECT_EQ(Editor.ShiftPulsado, 0);
    EntrarEnEditor({ClicEnCampo, 0});
    Teclear("5<Enter>");
    EXPECT_EQ(Editor.CeldaActual, 34);
    EXPECT_TRUE(AreaVacia());
    Clic(36);
    Teclear("<Enter>");
    EXPECT_EQ(Editor.CeldaActual, 37);
}

// ----- Store

TEST(EditorMatrices, SeGuardaSinLoVacioDeAlrededor) {
    AbrirMatrices();
    Poner(3, 2, "1");
    Poner(3, 3, "2");
    Poner(4, 2, "3");
    Poner(4, 3, "4");
    EntrarEnEditor({BarraEnFila, 2});
    EntrarEnEditor({BarraEnColumna, 1});
    Nombrar("beta");
    Clic(20);
    EXPECT_EQ(SalvarMatriz(nullptr), 1);
    EXPECT_EQ(Guardada("BETA", 2, 2), (Datos{1, 2, 3, 4}));
    EXPECT_TRUE(AreaVacia());
    EXPECT_EQ(CodigoDeArea(), "");
    EXPECT_EQ(Editor.CeldaActual, CeldaCodigoMatriz);
    EXPECT_EQ(Editor.FilaInicial, 0);
    EXPECT_EQ(Editor.ColumnaInicial, 0);
    EXPECT_EQ(Campo(), "");
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
}

TEST(EditorMatrices, ElAreaEntera) {
    AbrirMatrices();
    Datos datos;
    for (int i = 0; i < 1600; ++i) {
        datos.push_back(i * 0.1);
        EntrarEnMatriz(i / 40, i % 40, Formatear("%.17g", i * 0.1));
    }
    Nombrar("TODA");
    EXPECT_EQ(SalvarMatriz(nullptr), 1);
    EXPECT_EQ(Guardada("TODA", 40, 40), datos);
}

struct CasoDeForma {
    const char *area; // rows parted by "/", from the place (1, 1); "x" typed, "." not
    const char *mensaje;
    int filas, columnas;
};

constexpr CasoDeForma Formas[] = {
    {"", "Introduzca Datos", 0, 0},
    {"x", nullptr, 1, 1},
    {"xxx", nullptr, 1, 3},
    {"x/x/x", nullptr, 3, 1},
    {"../.x", nullptr, 1, 1},
    {"xx/xx", nullptr, 2, 2},
    {"xx/x.", "Matriz no Válida.P1", 0, 0},    // the second column ends above
    {"x./xx", "Matriz no Válida.P1", 0, 0},    // it begins below
    {"xx/xx/x.", "Matriz no Válida.P1", 0, 0}, // a cell sticks out below
    {"xxx/xx.", "Matriz no Válida.P1", 0, 0},  // and at the right
    {".x/xx", "Matriz no Válida.P1", 0, 0},
    {"xx/.x", "Matriz no Válida.P1", 0, 0},
    {"x/./x", "Matriz no Válida.P4", 0, 0}, // one is missing inside
    {"xxx/x.x/xxx", "Matriz no Válida.P4", 0, 0},
    {"x.x", "Matriz no Válida.P4", 0, 0}, // a column between
    {"xx/../xx", "Matriz no Válida.P4", 0, 0},
    {"x.x/x.x", "Matriz no Válida.P4", 0, 0},
};

TEST(EditorMatrices, LaForma) {
    for (const CasoDeForma &c : Formas) {
        SCOPED_TRACE(c.area);
        AbrirMatrices();
        int fila = 1, columna = 1;
        Datos esperados;
        for (const char *p = c.area; *p != '\0'; ++p) {
            if (*p == '/') {
                ++fila;
                columna = 1;
                continue;
            }
            if (*p == 'x') {
                Poner(fila, columna, Formatear("%d", fila * 10 + columna).c_str());
                esperados.push_back(fila * 10 + columna);
            }
            ++columna;
        }
        Nombrar("M");
        Clic(50);
        EXPECT_EQ(SalvarMatriz(nullptr), c.mensaje == nullptr ? 1 : 0);
        if (c.mensaje == nullptr) {
            EXPECT_EQ(Guardada("M", c.filas, c.columnas), esperados);
            continue;
        }
        EXPECT_EQ(Mensaje(), c.mensaje);
        EXPECT_EQ(TablaMatrices.numero, 0);
        EXPECT_EQ(Editor.CeldaActual, 50); // the window stays as it was
        EXPECT_EQ(CodigoDeArea(), "M");
        EXPECT_EQ(AreaVacia(), esperados.empty());
    }
}

struct CasoDeNombre {
    const char *codigo;
    const char *mensaje;
    const char *guardada;
};

constexpr CasoDeNombre Nombres[] = {
    {"", "Introduzca Nombre Matriz y apriete \"Enter\"", nullptr},
    {"   ", "Introduzca Nombre Matriz y apriete \"Enter\"", nullptr},
    {"1A", "Nombre de Matriz no Válido", nullptr},
    {"A-1", "Nombre de Matriz no Válido", nullptr},
    {"SERIE", "Nombre Matriz no Válido", nullptr},
    {"serie", "Nombre Matriz no Válido", nullptr},
    {"ESCALAR", "Nombre Matriz no Válido", nullptr},
    {"  m", nullptr, "M"},   // blanks in front go
    {"DET", nullptr, "DET"}, // a reserved word, padded: it passes here
    {"ABCDEFGHIJ", nullptr, "ABCDEFGH"},
};

TEST(EditorMatrices, ElNombre) {
    for (const CasoDeNombre &c : Nombres) {
        SCOPED_TRACE(c.codigo);
        AbrirMatrices();
        PonerSerie("SERIE", {1});
        PonerEscalar(nullptr, "ESCALAR", 1);
        Poner(1, 1, "4");
        Nombrar(c.codigo);
        EXPECT_EQ(SalvarMatriz(nullptr), c.mensaje == nullptr ? 1 : 0);
        if (c.mensaje == nullptr) {
            EXPECT_EQ(Guardada(c.guardada, 1, 1), (Datos{4}));
        } else {
            EXPECT_EQ(Mensaje(), c.mensaje);
            EXPECT_EQ(TablaMatrices.numero, 0);
            EXPECT_FALSE(AreaVacia());
        }
    }
}

// What stands in the cell counts only behind Enter, which is why the message asks for it.
TEST(EditorMatrices, UnNombreSinConfirmar) {
    AbrirMatrices();
    Poner(1, 1, "4");
    Teclear("M");
    SalvarMatriz(nullptr);
    EXPECT_EQ(Mensaje(), "Introduzca Nombre Matriz y apriete \"Enter\"");
}

// The name is looked at before the data, and the data before the room.
TEST(EditorMatrices, OrdenDeLosMensajes) {
    AbrirMatrices();
    for (int m = 0; m < 29; ++m) PonerMatriz(Formatear("M%d", m), {1.0 * m}, 1, 1);
    SalvarMatriz(nullptr);
    EXPECT_EQ(Mensaje(), "Introduzca Nombre Matriz y apriete \"Enter\"");
    Nombrar("NUEVA");
    SalvarMatriz(nullptr);
    EXPECT_EQ(Mensaje(), "Introduzca Datos");
    Poner(1, 1, "5");
    SalvarMatriz(nullptr);
    EXPECT_EQ(Mensaje(), "Demasiadas Matrices");
    EXPECT_EQ(TablaMatrices.numero, 29);
    EXPECT_FALSE(AreaVacia());
    Nombrar("M7"); // one that exists is still replaced
    EXPECT_EQ(SalvarMatriz(nullptr), 1);
    EXPECT_EQ(Guardada("M7", 1, 1), (Datos{5}));
    EXPECT_EQ(TablaMatrices.numero, 29);
}

TEST(EditorMatrices, CabeLaVigesimonovena) {
    AbrirMatrices();
    for (int m = 0; m < 28; ++m) PonerMatriz(Formatear("M%d", m), {1.0 * m}, 1, 1);
    Poner(1, 1, "5");
    Nombrar("NUEVA");
    EXPECT_EQ(SalvarMatriz(nullptr), 1);
    EXPECT_EQ(TablaMatrices.numero, 29);
}

// ----- Load

TEST(EditorMatrices, Mostrar) {
    AbrirMatrices();
    PonerMatriz("A", {1, 2, 3, 4, 5, 6}, 2, 3);
    Poner(20, 20, "9"); // goes
    Nombrar(" a");
    EntrarEnEditor({BarraEnFila, 5});
    EXPECT_EQ(MostrarMatriz(nullptr), 1);
    for (int k = 0; k < 6; ++k) {
        EXPECT_EQ(BufferMatriz.datos[k / 3 * 40 + k % 3], k + 1.0);
        EXPECT_EQ(BufferMatriz.presencia[k / 3 * 40 + k % 3], 1);
    }
    int hay = 0;
    for (const int p : BufferMatriz.presencia) hay += p;
    EXPECT_EQ(hay, 6);
    EXPECT_EQ(CodigoDeArea(), "A");
    EXPECT_EQ(BufferMatriz.Filas, 2);
    EXPECT_EQ(BufferMatriz.Columnas, 3);
    EXPECT_EQ(Editor.CeldaActual, CeldaCodigoMatriz);
    EXPECT_EQ(Editor.FilaInicial, 0);
    EXPECT_EQ(Campo(), "A");
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
    EXPECT_EQ(SalvarMatriz(nullptr), 1); // and it is stored as it was
    EXPECT_EQ(Guardada("A", 2, 3), (Datos{1, 2, 3, 4, 5, 6}));
}

// The area is cleared before the code is looked at.
TEST(EditorMatrices, MostrarLaQueNoExiste) {
    struct Caso {
        const char *codigo, *mensaje;
    };
    for (const Caso &c : {Caso{"NADA", "No Existe la Matriz"}, Caso{"1", "Nombre de Matriz no Válido"},
                          Caso{"", "Introduzca Nombre Matriz y apriete \"Enter\""}}) {
        SCOPED_TRACE(c.codigo);
        AbrirMatrices();
        Poner(2, 2, "9");
        Nombrar(c.codigo);
        EXPECT_EQ(MostrarMatriz(nullptr), 0);
        EXPECT_EQ(Mensaje(), c.mensaje);
        EXPECT_TRUE(AreaVacia());
        EXPECT_EQ(CodigoDeArea(), c.codigo);
        EXPECT_EQ(Campo(), c.codigo);
        EXPECT_EQ(Editor.CeldaActual, CeldaCodigoMatriz);
    }
}

TEST(EditorMatrices, MostrarSinBloque) {
    AbrirMatrices();
    PonerMatriz("X", {0}, 1, 1);
    PonerMatriz("A", {1}, 1, 1);
    double *const bloque = TablaMatrices.bloque[1];
    TablaMatrices.bloque[1] = nullptr;
    Nombrar("A");
    EXPECT_EQ(MostrarMatriz(nullptr), 0);
    EXPECT_EQ(Mensaje(), "Error en Memoria. P23. 1");
    TablaMatrices.EstadoBloque[1] = SinBloque;
    EXPECT_EQ(MostrarMatriz(nullptr), 0);
    EXPECT_EQ(Mensaje(), "No hay suficiente Memoria. P21");
    TablaMatrices.bloque[1] = bloque;
    TablaMatrices.EstadoBloque[1] = BloqueSuelto;
}

// Wider or longer than the area: the grid is garbled, without a message, and what it holds is what is stored.
TEST(EditorMatrices, MostrarUnaDe60Por60) {
    AbrirMatrices();
    Datos grande;
    for (int i = 0; i < 3600; ++i) grande.push_back(i);
    PonerMatriz("G", grande, 60, 60);
    Nombrar("G");
    EXPECT_EQ(MostrarMatriz(nullptr), 1);
    EXPECT_TRUE(Prueba.cajas.empty());
    // Element (r, c) stands at place r x 40 + c, and a later one over an earlier one: of the places of row 1, the first 20
    // were those of row 0's columns 40 to 59.
    Datos plegada(1600);
    for (int r = 0; r < 60; ++r)
        for (int c = 0; c < 60; ++c)
            if (r * 40 + c < 1600) plegada[static_cast<std::size_t>(r * 40 + c)] = r * 60.0 + c;
    EXPECT_EQ(Datos(BufferMatriz.datos, BufferMatriz.datos + 1600), plegada);
    EXPECT_EQ(BufferMatriz.presencia[1599], 1);
    EXPECT_EQ(BufferMatriz.presencia[1600], 0);
    EXPECT_EQ(SalvarMatriz(nullptr), 1);
    EXPECT_EQ(Guardada("G", 40, 40), plegada);
}

TEST(EditorMatrices, MostrarUnaAlta) {
    AbrirMatrices();
    Datos alta;
    for (int i = 0; i < 84; ++i) alta.push_back(i);
    PonerMatriz("T", alta, 42, 2);
    Nombrar("T");
    EXPECT_EQ(MostrarMatriz(nullptr), 1);
    EXPECT_EQ(BufferMatriz.datos[39 * 40 + 1], 79.0);
    EXPECT_EQ(BufferMatriz.enUso, 39 * 40 + 2);
    EXPECT_EQ(SalvarMatriz(nullptr), 1);
    alta.resize(80);
    EXPECT_EQ(Guardada("T", 40, 2), alta);
}

// ----- Delete, clear

TEST(EditorMatrices, Borrar) {
    AbrirMatrices();
    PonerMatriz("A", {1}, 1, 1);
    PonerMatriz("B", {2, 3}, 1, 2);
    Poner(5, 5, "7");
    Nombrar("a");
    EntrarEnEditor({BarraEnFila, 5});
    EXPECT_EQ(BorrarMatrizDelEditor(nullptr), 1);
    EXPECT_TRUE(Prueba.cajas.empty()); // without a question
    EXPECT_EQ(BuscarMatriz("A"), -1);
    EXPECT_EQ(Guardada("B", 1, 2), (Datos{2, 3}));
    EXPECT_TRUE(AreaVacia()); // of the matrix that moved through it too
    EXPECT_EQ(CodigoDeArea(), "");
    EXPECT_EQ(Editor.CeldaActual, CeldaCodigoMatriz);
    EXPECT_EQ(Editor.FilaInicial, 0);
}

TEST(EditorMatrices, BorrarLaQueNoExiste) {
    AbrirMatrices();
    Poner(5, 5, "7");
    Nombrar("A");
    Clic(40);
    EXPECT_EQ(BorrarMatrizDelEditor(nullptr), 0);
    EXPECT_EQ(Mensaje(), "No existe la Matriz");
    EXPECT_FALSE(AreaVacia());
    EXPECT_EQ(Editor.CeldaActual, 40);
    Nombrar("");
    EXPECT_EQ(BorrarMatrizDelEditor(nullptr), 0);
    EXPECT_EQ(Mensaje(), "Introduzca Nombre Matriz y apriete \"Enter\"");
}

TEST(EditorMatrices, Blanquear) {
    AbrirMatrices();
    PonerMatriz("A", {1}, 1, 1);
    Poner(40, 40, "7");
    Nombrar("A");
    EntrarEnEditor({BarraEnColumna, 5});
    Teclear("12");
    BlanquearAreaMatriz();
    EXPECT_TRUE(AreaVacia());
    EXPECT_EQ(CodigoDeArea(), "");
    EXPECT_EQ(Campo(), "");
    EXPECT_EQ(Editor.CeldaActual, CeldaCodigoMatriz);
    EXPECT_EQ(Editor.foco, FocoEnCelda);
    EXPECT_EQ(Editor.ColumnaInicial, 0);
    EXPECT_EQ(Guardada("A", 1, 1), (Datos{1}));
}

TEST(EditorMatrices, LeerElCodigoSinPrueba) {
    AbrirMatrices();
    PonerCampo(BufferMatriz.Codigo, "  ab-cdefghi", AnchoCodigo);
    EXPECT_EQ(LeerCodigoMatriz(nullptr, false), 1);
    EXPECT_STREQ(BufferMatriz.Codigo, "ab-cdefg    ");
    PonerCampo(BufferMatriz.Codigo, "", AnchoCodigo);
    EXPECT_EQ(LeerCodigoMatriz(nullptr, false), 1);
    EXPECT_TRUE(Prueba.cajas.empty());
}

// Typed by keys alone.
TEST(EditorMatrices, UnaMatrizTecleada) {
    AbrirMatrices();
    Teclear("beta<Enter>1<Tab>2<Tab>3");
    Teclear("<Inicio><Enter>4<Tab>5<Tab>6<Tab>");
    EXPECT_EQ(SalvarMatriz(nullptr), 1);
    EXPECT_EQ(Guardada("BETA", 2, 3), (Datos{1, 2, 3, 4, 5, 6}));
}
