// The listings of series, of matrices, and of the main screen.
#include "apoyo/plataforma_prueba.h"
#include "charts/resultados/dibujo.h"
#include "charts/resultados/listados.h"
#include "language/lote_sentencias.h"
#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Lineas = std::vector<std::string>;

constexpr int C = AnchoCaracterPagina, H = AltoLineaPagina;
constexpr int LineasPagina = AltoPagina / AltoLineaPagina; // 58

// A work file of n observations with periods from `primero` on, all of them in the sample.
void Empezar(int tipo, int n, int primero = 1) {
    EmpezarPrueba();
    Lote.DecimalesSalida = 2;
    ArchivoTrabajo.TipoDatos = static_cast<std::int16_t>(tipo);
    ArchivoTrabajo.NumObs = n;
    for (int i = 0; i < n && i < MaxObservaciones; ++i) PonerTextoPeriodo(i, std::to_string(primero + i));
    Muestra.InicioMuestra = 0;
    Muestra.FinMuestra = n - 1;
}

int Imprimir(int clase, const std::vector<std::string> &codigos) {
    const ListaDeCodigos lista = {codigos, Lote.DecimalesSalida};
    return ImprimirSalida(nullptr, "Listado", clase, &lista);
}

Lineas Pagina(std::size_t p, std::size_t trabajo = 0) {
    return Prueba.trabajos.at(trabajo).paginas.at(p);
}

// The head of matrices begins two columns further to the left.
std::string CabeceraSeries(int pagina) {
    return Formatear("        Listado de Series                Página.: %3d", pagina);
}
std::string CabeceraMatrices(int pagina) {
    return Formatear("      Listado de Matrices                Página.: %3d", pagina);
}

// ---------------------------------------------------------------------------------------------------------------
// Series

TEST(ListadoSeries, UnBloque) {
    Empezar(TipoAnual, 3, 1990);
    PonerSerie("X", {1, -2.5, 3});
    PonerSerie("CONSUMO", {1000.125, NAN, 0});
    EXPECT_EQ(Imprimir(ImprimirSeries, {"CONSUMO", "X"}), 0);
    EXPECT_EQ(Prueba.trabajos.at(0).paginas.size(), 1u);
    EXPECT_EQ(Pagina(0), (Lineas{
                             CabeceraSeries(1),
                             "  Período             CONSUMO               X",
                             "     1990              1000.12            1.00",
                             "     1991      " + std::string(12, ' ') +
                                 "           -2.50", // a missing value has 12 blanks only
                             "     1992                 0.00            3.00",
                         }));
}

TEST(ListadoSeries, SinPeriodicidadYDecimales) {
    const struct {
        int decimales;
        const char *valor;
    } Casos[] = {{0, "              2"},
                 {2, "           1.50"},
                 {6, "       1.500000"},
                 {9, "       1.500000"},
                 {-1, "              2"}};
    for (const auto &caso : Casos) {
        Empezar(TipoSinPeriodicidad, 1);
        Lote.DecimalesSalida = caso.decimales;
        PonerSerie("X", {1.5});
        EXPECT_EQ(Imprimir(ImprimirSeries, {"X"}), 0);
        EXPECT_EQ(Pagina(0).at(1), "  Observac.                 X") << caso.decimales;
        EXPECT_EQ(Pagina(0).at(2), std::string("       1       ") + caso.valor) << caso.decimales;
    }
}

TEST(ListadoSeries, CuatroSeriesSonDosBloques) {
    Empezar(TipoSinPeriodicidad, 2);
    for (const char *c : {"A", "B", "C", "D"}) PonerSerie(c, {1, 2});
    EXPECT_EQ(Imprimir(ImprimirSeries, {"A", "B", "C", "D"}), 0);
    EXPECT_EQ(Pagina(0), (Lineas{
                             CabeceraSeries(1),
                             "  Observac.                 A               B               C",
                             "       1                  1.00            1.00            1.00",
                             "       2                  2.00            2.00            2.00",
                             "  Observac.                 D",
                             "       1                  1.00",
                             "       2                  2.00",
                         }));
    const auto &ordenes = Prueba.trabajos[0].dibujo[0].ordenes;
    const int izquierda = (AnchoPagina - 65 * C) / 2;
    const auto reglas = Trazos(ordenes, true, 3);
    // Around the head of the page, below and above the heads of the blocks, and at the end.
    ASSERT_EQ(reglas.size(), 6u);
    for (const Trazo &t : reglas) {
        EXPECT_EQ(t.x1, izquierda);
        EXPECT_EQ(t.x2, izquierda + 65 * C);
    }
    EXPECT_EQ(Trazos(ordenes, false, 3),
              (std::vector<Trazo>{
                  {izquierda, reglas.front().y1, izquierda, reglas.back().y1, 3},
                  {izquierda + 65 * C, reglas.front().y1, izquierda + 65 * C, reglas.back().y1, 3}}));
    for (const Letrero &l : Letreros(ordenes)) EXPECT_EQ(l.x, izquierda + C);
}

TEST(ListadoSeries, ConEtiquetasDosPorBloque) {
    Empezar(TipoSinPeriodicidad, 1);
    ArchivoTrabajo.ConEtiquetas = 1;
    PonerCampo(ArchivoTrabajo.EtiquetasObs[0], Texto1252DeUtf8("Peñón"), AnchoEtiqueta);
    for (const char *c : {"A", "B", "C"}) PonerSerie(c, {1});
    EXPECT_EQ(Imprimir(ImprimirSeries, {"A", "B", "C"}), 0);
    EXPECT_EQ(Pagina(0), (Lineas{
                             CabeceraSeries(1),
                             "  Observac.     Etiquetas                 A               B",
                             // The label has its 12 places, at the right of 15.
                             "       1       "
                             "   Peñón       "
                             "           1.00            1.00",
                             "  Observac.     Etiquetas                 C",
                             "       1       "
                             "   Peñón       "
                             "           1.00",
                         }));
}

// A value too wide for what is left of the 64 characters goes on in the next line.
TEST(ListadoSeries, ValoresAnchos) {
    Empezar(TipoSinPeriodicidad, 1);
    Lote.DecimalesSalida = 6;
    PonerSerie("A", {1e20});
    PonerSerie("B", {-1e20});
    PonerSerie("C", {1});
    EXPECT_EQ(Imprimir(ImprimirSeries, {"A", "B", "C"}), 0);
    EXPECT_EQ(Pagina(0).at(2), "       1       100000000000000000000.000000");
    EXPECT_EQ(Pagina(0).at(3), "-100000000000000000000.000000        1.000000");
    // One that fits in no line has a line of its own.
    Empezar(TipoSinPeriodicidad, 1); // two decimals again
    PonerSerie("A", {1e80});
    PonerSerie("B", {2});
    EXPECT_EQ(Imprimir(ImprimirSeries, {"A", "B"}), 0);
    ASSERT_EQ(Pagina(0).size(), 5u);
    EXPECT_EQ(Pagina(0).at(2), "       1");
    EXPECT_EQ(Pagina(0).at(3).size(), 84u);
    EXPECT_EQ(Pagina(0).at(4), "           2.00");
}

TEST(ListadoSeries, CambiosDePagina) {
    const int n = 120;
    Empezar(TipoSinPeriodicidad, n);
    PonerSerie("A", std::vector<double>(static_cast<std::size_t>(n), 7));
    EXPECT_EQ(Imprimir(ImprimirSeries, {"A"}), 0);
    const auto &paginas = Prueba.trabajos.at(0).paginas;
    // 10 lines count as head, 3 as head of the block: lines 13 to 58 of each page are free.
    const std::size_t porPagina = static_cast<std::size_t>(LineasPagina - 13 + 1);
    ASSERT_EQ(paginas.size(), 3u);
    for (std::size_t p = 0; p < 3; ++p) {
        EXPECT_EQ(paginas[p].at(0), CabeceraSeries(static_cast<int>(p) + 1));
        EXPECT_EQ(paginas[p].at(1), "  Observac.                 A");
        EXPECT_EQ(paginas[p].size(), 2 + std::min(porPagina, n - p * porPagina));
        const auto reglas = Trazos(Prueba.trabajos[0].dibujo[p].ordenes, true, 3);
        EXPECT_EQ(reglas.size(), 4u);
        EXPECT_LT(reglas.back().y1, AltoPagina);
    }
    EXPECT_EQ(paginas[1].at(2), Formatear("      %d       "
                                          "           7.00",
                                          static_cast<int>(porPagina) + 1));
    EXPECT_EQ(std::count(Prueba.pasosImpresora.begin(), Prueba.pasosImpresora.end(),
                         "documento Imprime: Imprimiendo"),
              2);
    EXPECT_EQ(std::count(Prueba.pasosImpresora.begin(), Prueba.pasosImpresora.end(), "fin pagina"), 3);
}

// A listing that ends with the page opens no other one.
TEST(ListadoSeries, PaginaJusta) {
    const int n = LineasPagina - 13 + 1;
    for (const int mas : {0, 1}) {
        Empezar(TipoSinPeriodicidad, n + mas);
        PonerSerie("A", {1});
        EXPECT_EQ(Imprimir(ImprimirSeries, {"A"}), 0);
        EXPECT_EQ(Prueba.trabajos.at(0).paginas.size(), 1u + static_cast<std::size_t>(mas));
    }
}

struct CasoDeFallo {
    PasosDeImpresora paso;
    int vez;
    Lineas cajas;
    std::size_t paginas;
};

TEST(ListadoSeries, FallosAMedias) {
    const CasoDeFallo Casos[] = {
        {PasoAbrir, 1, {}, 0},
        {PasoFinPagina, 1, {"Ha habido un error en la impresión"}, 1},
        {PasoFinPagina, 2, {"Ha habido un error en la impresión"}, 2},
        {PasoAbrir, 2, {"Error imprimiedo. 1"}, 1},
        {PasoDocumento, 3, {"Error imprimiedo. 3"}, 2},
        {PasoPagina, 2, {"Error imprimiedo. 2"}, 1},
    };
    for (const CasoDeFallo &caso : Casos) {
        SCOPED_TRACE(std::to_string(caso.paso) + " " + std::to_string(caso.vez));
        Empezar(TipoSinPeriodicidad, 120);
        PonerSerie("A", {1});
        Prueba.fallaPaso[caso.paso] = caso.vez;
        EXPECT_EQ(Imprimir(ImprimirSeries, {"A"}), 1);
        EXPECT_EQ(TextosDeCajas(), caso.cajas);
        for (const CajaVista &c : Prueba.cajas) EXPECT_EQ(c.titulo, "Aviso");
        EXPECT_EQ(Prueba.trabajos.at(0).paginas.size(), caso.paginas) << "the output so far is kept";
    }
}

struct CasoMuestra {
    int numObs, inicio, fin;
    int primera, cuantas; // period of the first line, number of lines
};

TEST(ListadoSeries, Muestra) {
    const CasoMuestra Casos[] = {
        {10, 0, 9, 1, 10},
        {10, 3, 5, 4, 3},
        {10, 0, 100000, 1, 10}, // the bound of a sample without data
        {10, -5, 2, 1, 3},
        {10, 12, 15, 0, 0},
        {4000, 3995, 100000, 3996, 5},
        {4001, 100, 102, 1, 3}, // more rows than there are tables for: the sample begins at the first
        {4001, 1, 4000, 0, -1}, // and is listed only when it has fewer than 4,000
        {100000, 0, 100000, 0, -1},
    };
    for (const CasoMuestra &caso : Casos) {
        SCOPED_TRACE(std::to_string(caso.numObs) + " " + std::to_string(caso.inicio) + " " +
                     std::to_string(caso.fin));
        Empezar(TipoSinPeriodicidad, caso.numObs);
        PonerSerie("A", {1});
        Muestra.InicioMuestra = caso.inicio;
        Muestra.FinMuestra = caso.fin;
        EXPECT_EQ(Imprimir(ImprimirSeries, {"A"}), caso.cuantas < 0 ? 1 : 0);
        ASSERT_EQ(Prueba.trabajos.size(), 1u);
        if (caso.cuantas < 0) {
            EXPECT_TRUE(Prueba.trabajos[0].paginas.empty());
            continue;
        }
        const Lineas lineas = Pagina(0);
        ASSERT_EQ(lineas.size(), 2u + static_cast<std::size_t>(caso.cuantas));
        if (caso.cuantas > 0) {
            EXPECT_EQ(std::stoi(lineas.at(2)), caso.primera);
        }
    }
}

TEST(Listados, NadaQueListar) {
    for (const auto &codigos : {Lineas{}, Lineas{"NADA"}}) {
        Empezar(TipoSinPeriodicidad, 3);
        EXPECT_EQ(Imprimir(ImprimirSeries, codigos), 1);
        EXPECT_EQ(Imprimir(ImprimirMatrices, codigos), 1);
        EXPECT_EQ(Prueba.cajas,
                  (std::vector<CajaVista>{
                      {"Aviso", "No existen series a listar", IconoInformacion, BotonesAceptar},
                      {"Aviso", "No existen matrices a listar", IconoInformacion, BotonesAceptar}}));
        // With no printer nothing is said at all.
        Empezar(TipoSinPeriodicidad, 3);
        Prueba.fallaPaso[PasoAbrir] = 1;
        EXPECT_EQ(Imprimir(ImprimirSeries, codigos), 1);
        EXPECT_TRUE(Prueba.cajas.empty());
    }
}

// ---------------------------------------------------------------------------------------------------------------
// Matrices

TEST(ListadoMatrices, CuatroElementosPorRenglon) {
    Empezar(TipoSinPeriodicidad, 3);
    PonerMatriz("ANCHA", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 2, 5);
    PonerMatriz("M", {1.125, -2}, 1, 2);
    EXPECT_EQ(Imprimir(ImprimirMatrices, {"ANCHA", "M"}), 0);
    EXPECT_EQ(Pagina(0), (Lineas{
                             CabeceraMatrices(1),
                             "  Nombre Matriz..: ANCHA            Nº Filas:   2 Nº Col.:   5",
                             "{           1.00            2.00            3.00            4.00",
                             "            5.00 }",
                             "{           6.00            7.00            8.00            9.00",
                             "           10.00 }",
                             "  Nombre Matriz..: M                Nº Filas:   1 Nº Col.:   2",
                             "{           1.12           -2.00 }",
                         }));
}

TEST(ListadoMatrices, CuatroColumnasCabenEnUnRenglon) {
    Empezar(TipoSinPeriodicidad, 3);
    Lote.DecimalesSalida = 0;
    PonerMatriz("M", {1, 2, 3, 4}, 1, 4);
    EXPECT_EQ(Imprimir(ImprimirMatrices, {"M"}), 0);
    EXPECT_EQ(Pagina(0).at(2), "{              1               2               3               4 }");
    const auto &ordenes = Prueba.trabajos[0].dibujo[0].ordenes;
    const Letrero renglon = Letreros(ordenes).at(2);
    EXPECT_LE(renglon.x + 66 * C, Trazos(ordenes, true, 3).at(0).x2)
        << "the brace stands inside the right rule";
}

TEST(ListadoMatrices, CambiosDePagina) {
    Empezar(TipoSinPeriodicidad, 3);
    PonerMatriz("M", std::vector<double>(100, 1), 100, 1);
    EXPECT_EQ(Imprimir(ImprimirMatrices, {"M"}), 0);
    const auto &paginas = Prueba.trabajos.at(0).paginas;
    // 10 lines count as head of the page, 6 as head of the matrix.
    const std::size_t porPagina = static_cast<std::size_t>(LineasPagina - 16 + 1);
    ASSERT_EQ(paginas.size(), 3u);
    for (std::size_t p = 0; p < 3; ++p) {
        EXPECT_EQ(paginas[p].at(0), CabeceraMatrices(static_cast<int>(p) + 1));
        EXPECT_EQ(paginas[p].at(1), "  Nombre Matriz..: M                Nº Filas: 100 Nº Col.:   1");
        EXPECT_EQ(paginas[p].size(), 2 + std::min(porPagina, 100 - p * porPagina));
    }
}

// The head of a matrix never stands alone at the foot of a page.
TEST(ListadoMatrices, LaCabeceraPasaALaPaginaSiguiente) {
    Empezar(TipoSinPeriodicidad, 3);
    const int filas = LineasPagina - 16 - 3;
    PonerMatriz("M", std::vector<double>(static_cast<std::size_t>(filas), 1), filas, 1);
    PonerMatriz("N", {1}, 1, 1);
    EXPECT_EQ(Imprimir(ImprimirMatrices, {"M", "N"}), 0);
    ASSERT_EQ(Prueba.trabajos.at(0).paginas.size(), 2u);
    EXPECT_EQ(Pagina(1),
              (Lineas{CabeceraMatrices(2), "  Nombre Matriz..: N                Nº Filas:   1 Nº Col.:   1",
                      "{           1.00 }"}));
}

// Unlike the listing of series, this one doesn't look at the end of a page.
TEST(ListadoMatrices, FinDePaginaRechazado) {
    Empezar(TipoSinPeriodicidad, 3);
    Prueba.fallaPaso[PasoFinPagina] = 1;
    PonerMatriz("M", std::vector<double>(100, 1), 100, 1);
    EXPECT_EQ(Imprimir(ImprimirMatrices, {"M"}), 0);
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(Prueba.trabajos.at(0).paginas.size(), 3u);
}

TEST(ListadoMatrices, LaMatrizQuedaSuelta) {
    Empezar(TipoSinPeriodicidad, 3);
    PonerMatriz("M", {1}, 1, 1);
    EXPECT_EQ(Imprimir(ImprimirMatrices, {"M"}), 0);
    EXPECT_EQ(TablaMatrices.EstadoBloque[0], BloqueSuelto);
}

// ---------------------------------------------------------------------------------------------------------------
// Main screen

// The head is padded to 79 and cut to the 70 characters between the rules.
const char *const CabeceraPantalla = "            LISTADO PANTALLA PRINCIPAL        Página.:   0";

struct CasoSeleccion {
    std::string texto;
    int desde, hasta;
    Lineas impreso; // without the head; empty: nothing is printed
};

TEST(ListadoPantalla, Seleccion) {
    const CasoSeleccion Casos[] = {
        {"uno\r\ndos\r\ntres", 0, 0, {"uno", "dos", "tres"}},
        {"uno\r\ndos\r\ntres", 3, 4, {"uno", "dos", "tres"}}, // one character counts as none
        {"uno\r\ndos\r\ntres", 5, 7, {"dos"}},                // through the character at the end position
        {"uno\r\ndos\r\ntres", 5, 9, {"dos"}},
        {"uno\r\ndos\r\ntres", 5, 10, {"dos", "t"}},
        {"uno\ndos\rtres", 0, 12, {"uno", "dos", "tres"}},
        {"uno\r\n\r\ndos", 0, 10, {"uno", "", "dos"}},
        {"uno", 0, 3, {"uno"}},
        {std::string(65536, ' ') + "\ntres\nno", 65537, 65541, {"tres"}}, // positions don't end at 65,535
        {"uno", 3, 0, {"uno"}},
        {"ab", 0, 2, {"ab"}},
        {"", 0, 0, {}},
        {"a", 0, 0, {}},
        {"a", 0, 1, {}},
    };
    for (const CasoSeleccion &caso : Casos) {
        SCOPED_TRACE(caso.texto + " " + std::to_string(caso.desde) + " " + std::to_string(caso.hasta));
        EmpezarPrueba();
        Prueba.textoControl = caso.texto;
        Prueba.desde = caso.desde;
        Prueba.hasta = caso.hasta;
        EXPECT_EQ(ImprimirSeleccion(nullptr, nullptr), caso.impreso.empty() ? 1 : 0);
        EXPECT_EQ(Prueba.cursor, CursorFlecha);
        if (caso.impreso.empty()) {
            EXPECT_EQ(Prueba.cajas,
                      (std::vector<CajaVista>{{"Proceso cancelado", "No hay datos a procesar. Punto 3.",
                                               IconoInformacion, BotonesAceptar}}));
            EXPECT_TRUE(Prueba.trabajos.empty());
            continue;
        }
        ASSERT_EQ(Prueba.trabajos.size(), 1u);
        EXPECT_EQ(Prueba.trabajos[0].titulo, "Listado Pantalla principal");
        Lineas lineas = Pagina(0);
        EXPECT_EQ(lineas.at(0), CabeceraPantalla);
        lineas.erase(lineas.begin());
        while (!lineas.empty() && lineas.back().empty())
            lineas.pop_back(); // what stands behind a last line end
        EXPECT_EQ(lineas, caso.impreso);
    }
}

TEST(ListadoPantalla, TextoEnteroHasta32000) {
    EmpezarPrueba();
    Prueba.textoControl = std::string(40000, 'x');
    EXPECT_EQ(ImprimirSeleccion(nullptr, nullptr), 0);
    EXPECT_EQ(Letreros(Prueba.trabajos.at(0).dibujo.at(0).ordenes).at(1).texto.size(), 32001u);
    EXPECT_EQ(Prueba.desde, 0);
    EXPECT_EQ(Prueba.hasta, 32000) << "the control shows what was taken";
}

TEST(ListadoPantalla, Cabecera) {
    EmpezarPrueba();
    const std::string texto = "uno";
    EXPECT_EQ(ImprimirSalida(nullptr, "Listado", ImprimirPantalla, &texto), 0);
    const auto &ordenes = Prueba.trabajos.at(0).dibujo.at(0).ordenes;
    const int izquierda = (AnchoPagina - 70 * C) / 2;
    const auto reglas = Trazos(ordenes, true, 3);
    ASSERT_EQ(reglas.size(), 2u);
    for (const Trazo &t : reglas) {
        EXPECT_EQ(t.x1, izquierda);
        EXPECT_EQ(t.x2, izquierda + 70 * C);
    }
    const auto textos = Letreros(ordenes);
    ASSERT_EQ(textos.size(), 2u);
    EXPECT_EQ(textos[0].x, izquierda);
    EXPECT_EQ(Texto1252DeUtf8(textos[0].texto).size(), 70u);
    EXPECT_EQ(reglas[0].y1, textos[0].y - H / 2);
    EXPECT_EQ(reglas[1].y1, textos[0].y + 2 * H + H / 2) << "two rows down";
    EXPECT_EQ(textos[1].x, izquierda + C);
    EXPECT_GT(textos[1].y, reglas[1].y1);
    EXPECT_TRUE(Trazos(ordenes, false, 3).empty());
}

// A new head is written when the counter passes the lines of a page, but on the same page: the paper ends first.
TEST(ListadoPantalla, NoCambiaDePagina) {
    EmpezarPrueba();
    std::string texto;
    for (int i = 1; i <= 100; ++i) texto += std::to_string(i) + (i < 100 ? "\r\n" : "");
    EXPECT_EQ(ImprimirSalida(nullptr, "Listado", ImprimirPantalla, &texto), 0);
    EXPECT_EQ(Prueba.trabajos.at(0).paginas.size(), 1u);
    const auto textos = Letreros(Prueba.trabajos[0].dibujo[0].ordenes);
    // Lines 12 to 58 after each head.
    const std::size_t porCabecera = static_cast<std::size_t>(LineasPagina - 12 + 1);
    std::size_t n = 0;
    for (std::size_t i = 0; i < textos.size(); ++i) {
        if (i > 0) {
            EXPECT_GT(textos[i].y, textos[i - 1].y) << "the rows keep going down";
        }
        const bool cabecera = i % (porCabecera + 1) == 0;
        EXPECT_EQ(Recortado(textos[i].texto), cabecera ? Recortado(CabeceraPantalla) : std::to_string(++n));
    }
    EXPECT_EQ(n, 100u);
    EXPECT_GT(textos.back().y, AltoPagina);
}

} // namespace
