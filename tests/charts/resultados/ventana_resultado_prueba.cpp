// The result window: what is painted on its surface, and scrolling.
#include "apoyo/plataforma_prueba.h"
#include "charts/resultados/dibujo.h"
#include "charts/resultados/ventana_resultado.h"

#include <gtest/gtest.h>

namespace {

struct Ventanita {
    std::vector<OrdenDibujo> ordenes;
    EstadoVentanaResultado estado{};
};

// The window as it opens with the stock font: 77 columns of 8, characters 16 high.
constexpr int Ancho = 616, Alto = 400, C = 8, H = 16;

Ventanita Pintar(const SalidaResultado &salida, int desde = 0, int ancho = Ancho, int alto = Alto, int c = C,
                 int h = H) {
    Ventanita v;
    v.estado = {salida.Clase, salida.Contenido, desde, 0, 0, 0};
    Superficie s = SuperficieGrabadora(v.ordenes, ancho, alto, c, h);
    PintarResultado(s, v.estado, salida);
    return v;
}

// A line stands at the top of its row, a rule in the middle of one; the rule at the top, at h, is in row -1.
constexpr int Regla(int fila) {
    return 2 * H + H * fila;
}
constexpr int Renglon(int fila) {
    return H + H / 2 + H * fila;
}

TEST(VentanaResultado, MarcoBloqueYLineas) {
    const TextoSalida lineas = LineasDeGrupos({0, 0});
    const Ventanita v = Pintar(SalidaDePrueba(9, lineas));
    EXPECT_EQ(v.estado.Fila, 2);
    EXPECT_EQ(v.estado.anchoCaracter, C);
    EXPECT_EQ(v.estado.altoLinea, H);
    ASSERT_EQ(v.ordenes[0].clase, OrdenRectangulo) << "the frame of the client area";
    EXPECT_EQ(v.ordenes[0].x1, 0);
    EXPECT_EQ(v.ordenes[0].y1, 0);
    EXPECT_EQ(v.ordenes[0].x2, Ancho - 1);
    EXPECT_EQ(v.ordenes[0].y2, Alto - 1);
    EXPECT_EQ(v.ordenes[0].pluma.ancho, 3);
    EXPECT_FALSE(v.ordenes[0].conRelleno);
    // (616 - 69 * 8) / 2 = 32, and 70 * 8 further.
    EXPECT_EQ(Trazos(v.ordenes, true, 3),
              (std::vector<Trazo>{{32, Regla(-1), 592, Regla(-1), 3}, {32, Regla(2), 592, Regla(2), 3}}));
    EXPECT_EQ(Trazos(v.ordenes, false, 3),
              (std::vector<Trazo>{{32, Regla(-1), 32, Regla(2), 3}, {592, Regla(-1), 592, Regla(2), 3}}));
    EXPECT_EQ(Letreros(v.ordenes),
              (std::vector<Letrero>{{40, Renglon(0), "linea 0"}, {40, Renglon(1), "linea 1"}}));
    EXPECT_TRUE(Trazos(v.ordenes, false, 1).empty());
}

TEST(VentanaResultado, BloqueEnOtrosAnchos) {
    struct Caso {
        int ancho, c, izquierda, derecha;
    };
    const Caso Casos[] = {
        {616, 8, 32, 592},  {1024, 8, 236, 796}, {1232, 16, 64, 1184}, // the last at 200 %
        {560, 8, 4, 560},                                              // the right edge stays in the window
        {400, 8, -76, 400}, {552, 8, 0, 552},    {553, 8, 0, 553},
    };
    const TextoSalida lineas = LineasDeGrupos({0});
    for (const Caso &caso : Casos) {
        SCOPED_TRACE(caso.ancho);
        const Ventanita v = Pintar(SalidaDePrueba(9, lineas), 0, caso.ancho, 400, caso.c, 2 * caso.c);
        const auto reglas = Trazos(v.ordenes, true, 3);
        ASSERT_EQ(reglas.size(), 2u);
        EXPECT_EQ(reglas[0].x1, caso.izquierda);
        EXPECT_EQ(reglas[0].x2, caso.derecha);
        EXPECT_EQ(Letreros(v.ordenes).at(0).x, caso.izquierda + caso.c);
    }
}

struct CasoReglas {
    int clase;
    std::vector<int> grupos;
    std::vector<int> detras; // lines with a rule behind them
};

TEST(VentanaResultado, ReglasEntreGrupos) {
    const CasoReglas Casos[] = {
        {9, {0, 0, 0}, {}},
        {9, {0, 1, 1, 2}, {0, 2}},
        {9, {0, 1, 0, 1}, {0, 1, 2}},
        {104, {0, 1, 0, 1}, {0, 1, 2}},
        {12, {0, 1, 0, 1}, {0, 1, 2}},
        // Regression blocks have no rule in the last three lines.
        {8, {0, 1, 0, 1}, {0}},
        {11, {0, 1, 0, 1}, {0}},
        {13, {0, 1, 0, 1}, {0}},
        {8, {0, 1, 0}, {}},
        {8, {0, 1, 0, 1, 0}, {0, 1}},
        {8, {0}, {}},
        {8, {}, {}},
    };
    for (const CasoReglas &caso : Casos) {
        SCOPED_TRACE(testing::PrintToString(caso.grupos) + " " + std::to_string(caso.clase));
        const TextoSalida lineas = LineasDeGrupos(caso.grupos);
        const SalidaResultado salida = SalidaDePrueba(caso.clase, lineas);
        std::vector<int> detras;
        for (int i = -1; i <= static_cast<int>(caso.grupos.size()); ++i)
            if (ReglaDetras(salida, i)) detras.push_back(i);
        EXPECT_EQ(detras, caso.detras);
        // Each rule takes a row, and moves what follows down by one.
        const Ventanita v = Pintar(salida);
        const int n = static_cast<int>(caso.grupos.size());
        EXPECT_EQ(v.estado.Fila, n + static_cast<int>(caso.detras.size()));
        std::vector<Letrero> esperados;
        std::vector<Trazo> reglas = {{32, Regla(-1), 592, Regla(-1), 3}};
        for (int i = 0, fila = 0; i < n; ++i) {
            esperados.push_back({40, Renglon(fila++), "linea " + std::to_string(i)});
            const bool regla = std::find(caso.detras.begin(), caso.detras.end(), i) != caso.detras.end();
            if (regla || i + 1 == n) reglas.push_back({32, Regla(fila), 592, Regla(fila), 3});
            if (regla) ++fila;
        }
        if (n == 0) reglas.push_back({32, Regla(0), 592, Regla(0), 3}); // an empty block is one row high
        EXPECT_EQ(Letreros(v.ordenes), esperados);
        EXPECT_EQ(Trazos(v.ordenes, true, 3), reglas);
    }
}

TEST(VentanaResultado, LineasSeCortanA70) {
    TextoSalida lineas;
    AnadirLinea(lineas, 0, std::string(70, 'x') + "y" + std::string(20, 'z'));
    AnadirLinea(lineas, 0, std::string(70, 'x'));
    AnadirLinea(lineas, 0, "");
    const auto textos = Letreros(Pintar(SalidaDePrueba(9, lineas)).ordenes);
    ASSERT_EQ(textos.size(), 3u);
    EXPECT_EQ(textos[0].texto, std::string(70, 'x'));
    EXPECT_EQ(textos[1].texto, std::string(70, 'x'));
    EXPECT_EQ(textos[2].texto, "");
}

// The bottom limit is the height less a line; drawing stops 50 units above it.
TEST(VentanaResultado, LasLineasParanAntesDelFondo) {
    const TextoSalida lineas = LineasDeGrupos(std::vector<int>(100, 0));
    for (const int alto : {100, 101, 200, 400, 405, 768}) {
        SCOPED_TRACE(alto);
        const Ventanita v = Pintar(SalidaDePrueba(9, lineas), 0, Ancho, alto);
        int caben = 0;
        while (Renglon(caben) <= alto - H - 50) ++caben;
        EXPECT_EQ(static_cast<int>(Letreros(v.ordenes).size()), caben);
        const auto reglas = Trazos(v.ordenes, true, 3);
        ASSERT_EQ(reglas.size(), 2u);
        EXPECT_EQ(reglas[1].y1, Regla(caben)) << "the block closes below the last line that fits";
        EXPECT_LE(reglas[1].y1, alto - H);
    }
    EXPECT_TRUE(Letreros(Pintar(SalidaDePrueba(9, lineas), 0, Ancho, 0).ordenes).empty());
}

TEST(VentanaResultado, DesdeUnaLinea) {
    const TextoSalida lineas = LineasDeGrupos({0, 0, 1, 1});
    const auto textos = Letreros(Pintar(SalidaDePrueba(9, lineas), 2).ordenes);
    EXPECT_EQ(textos, (std::vector<Letrero>{{40, Renglon(0), "linea 2"}, {40, Renglon(1), "linea 3"}}));
    // The last line alone on top.
    EXPECT_EQ(Letreros(Pintar(SalidaDePrueba(9, lineas), 3).ordenes),
              (std::vector<Letrero>{{40, Renglon(0), "linea 3"}}));
}

TEST(VentanaResultado, LineasFijas) {
    const TextoSalida lineas = LineasDeGrupos({1, 1, 1}), fijas = LineasDeGrupos({0, 0});
    SalidaResultado salida = SalidaDePrueba(9, lineas);
    salida.fijas = &fijas;
    const Ventanita v = Pintar(salida, 1);
    EXPECT_EQ(Letreros(v.ordenes), (std::vector<Letrero>{{40, Renglon(0), "linea 0"},
                                                         {40, Renglon(1), "linea 1"},
                                                         {40, Renglon(3), "linea 1"},
                                                         {40, Renglon(4), "linea 2"}}));
    EXPECT_EQ(Trazos(v.ordenes, true, 3).size(), 3u);
}

// A regression report of three regressors: lines 0 to 3 head, 4 titles, 5 to 7 coefficients, 8 to 13 statistics.
struct CasoVerticales {
    int desde, ancho, alto, c, h;
    std::vector<int> x;
    int arriba, abajo; // rows of the rules between which they stand
};

TEST(VentanaResultado, ReglasVerticalesDeLaTabla) {
    const TextoSalida lineas = LineasDeGrupos({0, 0, 0, 0, 2, 1, 1, 1, 0, 0, 0, 0, 0, 0});
    const std::vector<TablaCoeficientes> tablas = {{4, 5, 7}};
    const std::vector<int> stock = {160, 290, 410, 510};
    const CasoVerticales Casos[] = {
        // Rule behind the titles: behind 4 lines, a rule, a line. Behind the last row: 3 lines and a rule further.
        {0, 616, 400, 8, 16, stock, 6, 10},
        {4, 616, 400, 8, 16, stock, 1, 5},  // titles on top
        {5, 616, 400, 8, 16, stock, -1, 3}, // first row on top: from the rule of the block
        {6, 616, 400, 8, 16, stock, -1, 2},
        {7, 616, 400, 8, 16, stock, -1, 1},
        {8, 616, 400, 8, 16, {}, 0, 0},    // the table is out of sight
        {0, 616, 212, 8, 16, stock, 6, 8}, // cut below: the window ends behind the first row
        {0, 616, 100, 8, 16, {}, 0, 0},
        {0, 1024, 400, 8, 16, {364, 494, 614, 714}, 6, 10}, // they move with the block
        // Another font: in the middle of the blanks 15, 30, 45 and 54 of a row. Text begins at 64 + 16, at 40, at 45.
        {0, 1232, 800, 16, 32, {328, 568, 808, 952}, 6, 10},
        {0, 616, 400, 8, 18, {164, 284, 404, 476}, 6, 10},
        {0, 693, 500, 9, 18, {184, 319, 454, 535}, 6, 10},
    };
    for (const CasoVerticales &caso : Casos) {
        SCOPED_TRACE(std::to_string(caso.desde) + " " + std::to_string(caso.ancho) + "x" +
                     std::to_string(caso.alto));
        const Ventanita v =
            Pintar(SalidaDePrueba(8, lineas, &tablas), caso.desde, caso.ancho, caso.alto, caso.c, caso.h);
        std::vector<Trazo> esperados;
        for (const int x : caso.x)
            esperados.push_back({x, caso.h * (2 + caso.arriba), x, caso.h * (2 + caso.abajo), 1});
        EXPECT_EQ(Trazos(v.ordenes, false, 1), esperados);
    }
}

// With the stock font they run where the titles have blanks, with any other where the widest numbers leave one.
TEST(VentanaResultado, LasVerticalesNoCruzanTexto) {
    const std::string titulos =
        Texto1252DeUtf8(" Regresores      Coeficiente    Desv. Típica   Estadís. t   Prob>|t|");
    for (const int x : {160, 290, 410, 510})
        EXPECT_EQ(titulos.at(static_cast<std::size_t>((x - 40) / 8)), ' ') << x;
    const std::string fila = Formatear("%15s%15s%15s%9s%13s", "SALARIOSMEDIOS", "-123456.123456",
                                       "1234567.123456", "12345.67", "0.1234567890");
    for (const std::size_t columna : {15u, 30u, 45u, 54u}) EXPECT_EQ(fila.at(columna), ' ') << columna;
}

struct CasoScroll {
    int lineas, desde;
    Desplazamientos que;
    int posicion, queda;
};

TEST(VentanaResultado, Desplazamiento) {
    const CasoScroll Casos[] = {
        {40, 0, LineaAbajo, 0, 1},     {40, 1, LineaArriba, 0, 0},  {40, 0, LineaArriba, 0, 0},
        {40, 0, PaginaAbajo, 0, 5},    {40, 7, PaginaArriba, 0, 2}, {40, 3, PaginaArriba, 0, 0},
        {40, 36, PaginaAbajo, 0, 39},  {40, 39, LineaAbajo, 0, 39}, {40, 0, DesplazarA, 17, 17},
        {40, 0, DesplazarA, 4000, 39}, {40, 20, DesplazarA, -3, 0}, {40, 39, PaginaAbajo, 0, 39},
        {1, 0, LineaAbajo, 0, 0},      {1, 0, PaginaAbajo, 0, 0},   {1, 0, DesplazarA, 4000, 0},
        {0, 0, LineaAbajo, 0, 0},      {0, 0, DesplazarA, 1, 0},
    };
    for (const CasoScroll &caso : Casos) {
        SCOPED_TRACE(std::to_string(caso.lineas) + " " + std::to_string(caso.desde) + " " +
                     std::to_string(caso.que));
        const TextoSalida lineas = LineasDeGrupos(std::vector<int>(static_cast<std::size_t>(caso.lineas), 0));
        EstadoVentanaResultado estado{8, 0, caso.desde, 23, C, H};
        DesplazarResultado(estado, SalidaDePrueba(8, lineas), caso.que, caso.posicion);
        EXPECT_EQ(estado.LineaInicial, caso.queda);
        EXPECT_EQ(estado.Fila, 0);
    }
}

TEST(VentanaResultado, TeclasYRueda) {
    const TextoSalida lineas = LineasDeGrupos(std::vector<int>(40, 0));
    const SalidaResultado salida = SalidaDePrueba(8, lineas);
    const struct {
        TeclasResultado tecla;
        int queda;
    } Teclas[] = {{TeclaArriba, 9},       {TeclaAbajo, 11}, {TeclaPaginaArriba, 5},
                  {TeclaPaginaAbajo, 15}, {TeclaInicio, 0}, {TeclaFin, 39}};
    for (const auto &caso : Teclas) {
        EstadoVentanaResultado estado{8, 0, 10, 0, C, H};
        DesplazarConTecla(estado, salida, caso.tecla);
        EXPECT_EQ(estado.LineaInicial, caso.queda) << caso.tecla;
    }
    const struct {
        int muescas, queda;
    } Ruedas[] = {{1, 13}, {-1, 7}, {0, 10}, {-4, 0}, {100, 39}, {2147483647, 39}, {-2147483647 - 1, 0}};
    for (const auto &caso : Ruedas) {
        EstadoVentanaResultado estado{8, 0, 10, 0, C, H};
        DesplazarConRueda(estado, salida, caso.muescas);
        EXPECT_EQ(estado.LineaInicial, caso.queda) << caso.muescas;
    }
}

// ----- The other kinds of window

SalidaResultado SalidaDeTipo(TiposDeSalida tipo, const TextoSalida &lineas) {
    SalidaResultado salida = SalidaDePrueba(0, lineas);
    salida.tipo = tipo;
    return salida;
}

struct CasoForma {
    TiposDeSalida tipo;
    int ancho, izquierda, derecha; // of the surface, and the side rules
    int grosor;
    bool marco;
    int vacias; // rows
    std::size_t caracteres;
};

TEST(VentanaResultado, CadaClaseTieneSuBloque) {
    const CasoForma Casos[] = {
        // 85 characters behind one; held a character inside.
        {SalidaHipotesis, 736, 8, 688, 3, true, 1, 85},
        {SalidaHipotesis, 696, 8, 688, 3, true, 1, 85},
        {SalidaHipotesis, 695, 8, 687, 3, true, 1, 85},
        {SalidaHipotesis, 400, 8, 392, 3, true, 1, 85},
        // 70 characters in the middle, held inside.
        {SalidaAutocorrelacion, 616, 28, 588, 2, false, 0, 70},
        {SalidaAutocorrelacion, 561, 0, 560, 2, false, 0, 70},
        {SalidaAutocorrelacion, 400, 0, 400, 2, false, 0, 70},
        {SalidaNormalidad, 616, 32, 592, 3, true, 0, 70},
        {SalidaPrediccion, 616, 32, 592, 3, true, 0, 70},
        {SalidaDescriptivos, 616, 32, 592, 3, true, 0, 70},
    };
    TextoSalida lineas = LineasDeGrupos({0, 1});
    AnadirLinea(lineas, 1, std::string(100, 'x'));
    for (const CasoForma &caso : Casos) {
        SCOPED_TRACE(std::to_string(caso.tipo) + " " + std::to_string(caso.ancho));
        const Ventanita v = Pintar(SalidaDeTipo(caso.tipo, lineas), 0, caso.ancho);
        const int i = caso.izquierda, d = caso.derecha, n = caso.vacias, g = caso.grosor;
        EXPECT_EQ(v.ordenes[0].clase == OrdenRectangulo, caso.marco);
        EXPECT_EQ(Trazos(v.ordenes, true, g),
                  (std::vector<Trazo>{{i, Regla(-1), d, Regla(-1), g},
                                      {i, Regla(n + 1), d, Regla(n + 1), g},
                                      {i, Regla(2 * n + 4), d, Regla(2 * n + 4), g}}));
        EXPECT_EQ(Trazos(v.ordenes, false, g), (std::vector<Trazo>{{i, Regla(-1), i, Regla(2 * n + 4), g},
                                                                   {d, Regla(-1), d, Regla(2 * n + 4), g}}));
        EXPECT_EQ(Letreros(v.ordenes),
                  (std::vector<Letrero>{{i + C, Renglon(n), "linea 0"},
                                        {i + C, Renglon(n + 2), "linea 1"},
                                        {i + C, Renglon(n + 3), std::string(caso.caracteres, 'x')}}));
    }
}

TEST(VentanaResultado, CadaClaseTieneSuBarra) {
    static constexpr struct {
        TiposDeSalida tipo;
        int tope;
        bool conGraficos;
    } Casos[] = {
        {SalidaRegresion, 4000, false}, {SalidaHipotesis, 0, false},  {SalidaAutocorrelacion, 250, true},
        {SalidaNormalidad, 0, false},   {SalidaPrediccion, 20, true}, {SalidaDescriptivos, 100, false},
        {SalidaHistograma, 4000, true},
    };
    const TextoSalida lineas = LineasDeGrupos(std::vector<int>(40, 0));
    for (const auto &caso : Casos) {
        SCOPED_TRACE(caso.tipo);
        const SalidaResultado salida = SalidaDeTipo(caso.tipo, lineas);
        EXPECT_EQ(FormaDe(salida).topeBarra, caso.tope);
        EXPECT_EQ(FormaDe(salida).conGraficos, caso.conGraficos);
        EstadoVentanaResultado estado{0, 0, 10, 7, C, H};
        DesplazarResultado(estado, salida, LineaAbajo);
        EXPECT_EQ(estado.LineaInicial, caso.tope > 0 ? 11 : 10) << "without a bar nothing moves";
        EXPECT_EQ(estado.Fila, caso.tope > 0 ? 0 : 7);
        // What can't be scrolled is drawn to the edge; the others stop above the bottom.
        const std::size_t caben = Letreros(Pintar(salida, 0, Ancho, 400).ordenes).size();
        EXPECT_EQ(caben, caso.tope > 0 ? 20u : static_cast<std::size_t>(24 - FormaDe(salida).filasVacias));
    }
    EXPECT_EQ(ColumnasAlAbrir(FormaDe(SalidaDeTipo(SalidaHipotesis, lineas))), 92);
    EXPECT_EQ(ColumnasAlAbrir(FormaDe(SalidaDeTipo(SalidaRegresion, lineas))), 77);
}

// The analysis of variance has rules of its own over the lines of its sums.
TEST(VentanaResultado, ReglasVerticalesDeLaVarianza) {
    const TextoSalida lineas = LineasDeGrupos({0, 0, 1, 1, 1});
    const std::vector<TablaCoeficientes> tablas = {{1, 2, 4, &ReglasDeVarianza}};
    const auto x = [&](int c, int h) {
        std::vector<int> r;
        for (const Trazo &t :
             Trazos(Pintar(SalidaDePrueba(8, lineas, &tablas), 0, 77 * c, 800, c, h).ordenes, false, 1))
            r.push_back(t.x1);
        return r;
    };
    EXPECT_EQ(x(8, 16), (std::vector<int>{156, 250, 410, 510}));
    // Text begins at 40: in the middle of its characters 14, 25, 35 and 49.
    EXPECT_EQ(x(8, 18), (std::vector<int>{156, 244, 324, 436}));
}

} // namespace
