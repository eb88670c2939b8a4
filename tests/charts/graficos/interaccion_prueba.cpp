// The mouse in a chart. The legend opens as (760, 96) to (928, 160), so that the middle of its sides is at (760, 128), (928,
// 128), (844, 96) and (844, 160).
#include "charts/graficos/graficos.h"

#include "charts/graficos/interaccion.h"

namespace {

using Ordenes = std::vector<std::string>;

struct Raton : testing::Test {
    void SetUp() override {
        EmpezarConDatos(TipoAnual, "1990#1993");
        PonerSerie("X", {1, 2, 4, 3});
        Prueba.enGrafico = [this](Grafico &abierto) { g = abierto; };
        Sentencia("GRAF X");
        g.opciones.titulo = "Titulo";   // 6 letters: (488, 16) to (536, 48)
        g.opciones.tituloX = "Eje";     // 3: (500, 736) to (524, 768)
        g.opciones.tituloY = "Valores"; // 7: (16, 64) to (32, 176)
        Redibujado(g);
    }

    Ordenes Contorno() const {
        std::vector<OrdenDibujo> ordenes;
        Superficie s = SuperficieGrabadora(ordenes, 1024, 768, 8, 16);
        PintarContorno(s, g);
        return EnLetra(ordenes);
    }

    CajaGrafico Leyenda() const { return g.disposicion.parte[ParteLeyenda]; }

    // Two presses take the legend.
    void Coger(int x, int y) {
        PulsarEnGrafico(g, x, y);
        SoltarEnGrafico(g);
        PulsarEnGrafico(g, x, y);
    }

    Grafico g;
};

TEST_F(Raton, ElegirLaLeyenda) {
    EXPECT_TRUE(Contorno().empty());
    const EfectoDelRaton e = PulsarEnGrafico(g, 800, 110);
    EXPECT_EQ(e.cursor, CursorDesplazar);
    EXPECT_TRUE(e.contorno);
    EXPECT_FALSE(e.repintar);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaElegida);
    EXPECT_EQ(
        Contorno(),
        (Ordenes{"caja 760,96 928,160 255,255,255", "caja 760,96 928,160 0,0,0 p",
                 "caja 758,126 762,130 0,0,0 relleno 0,0,0", "caja 926,126 930,130 0,0,0 relleno 0,0,0",
                 "caja 842,94 846,98 0,0,0 relleno 0,0,0", "caja 842,158 846,162 0,0,0 relleno 0,0,0"}));
    const EfectoDelRaton suelta = SoltarEnGrafico(g);
    EXPECT_EQ(suelta.cursor, CursorFlecha);
    EXPECT_TRUE(suelta.repintar);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaElegida); // it stays selected
}

struct Pulsacion {
    int x, y;
    bool dentro;
};
class RatonEnLeyenda : public Raton, public testing::WithParamInterface<Pulsacion> {};
TEST_P(RatonEnLeyenda, Alcanza) {
    PulsarEnGrafico(g, GetParam().x, GetParam().y);
    EXPECT_EQ(g.arrastre.estadoLeyenda, GetParam().dentro ? LeyendaElegida : LeyendaQuieta);
}
INSTANTIATE_TEST_SUITE_P(Casos, RatonEnLeyenda,
                         testing::Values(Pulsacion{760, 96, true}, Pulsacion{928, 160, true},
                                         Pulsacion{759, 96, false}, Pulsacion{760, 95, false},
                                         Pulsacion{929, 160, false}, Pulsacion{928, 161, false}));

TEST_F(Raton, SinLeyendaNoHayQueElegir) {
    g.opciones.verLeyenda = 0;
    PulsarEnGrafico(g, 800, 110);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaQuieta);
}

struct Cercania {
    int x, y;
    Cursor cursor;
};
class RatonCerca : public Raton, public testing::WithParamInterface<Cercania> {};
TEST_P(RatonCerca, Cursor) {
    EXPECT_EQ(MoverEnGrafico(g, GetParam().x, GetParam().y).cursor, CursorFlecha); // not selected yet
    PulsarEnGrafico(g, 800, 110);
    SoltarEnGrafico(g);
    const EfectoDelRaton e = MoverEnGrafico(g, GetParam().x, GetParam().y);
    EXPECT_EQ(e.cursor, GetParam().cursor);
    EXPECT_FALSE(e.contorno);
    EXPECT_EQ(Leyenda(), (CajaGrafico{760, 96, 928, 160}));
}
// A cell's width across the side, a row's height along it.
INSTANTIATE_TEST_SUITE_P(Casos, RatonCerca,
                         testing::Values(Cercania{752, 112, CursorHorizontal},
                                         Cercania{768, 144, CursorHorizontal},
                                         Cercania{751, 128, CursorFlecha}, Cercania{769, 128, CursorFlecha},
                                         Cercania{760, 111, CursorFlecha}, Cercania{760, 145, CursorFlecha},
                                         Cercania{936, 128, CursorHorizontal},
                                         Cercania{920, 128, CursorHorizontal},
                                         Cercania{937, 128, CursorFlecha}, Cercania{828, 88, CursorVertical},
                                         Cercania{860, 104, CursorVertical}, Cercania{844, 87, CursorFlecha},
                                         Cercania{827, 96, CursorFlecha}, Cercania{844, 168, CursorVertical},
                                         Cercania{844, 169, CursorFlecha}, Cercania{800, 120, CursorFlecha}));

TEST_F(Raton, MoverLaLeyenda) {
    Coger(800, 110);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaMoviendose);
    const EfectoDelRaton e = MoverEnGrafico(g, 300, 200);
    EXPECT_TRUE(e.contorno);
    EXPECT_FALSE(e.repintar);
    EXPECT_EQ(e.cursor, CursorDesplazar);
    EXPECT_EQ(Leyenda(), (CajaGrafico{300, 200, 468, 264})); // its corner jumps to the mouse
    MoverEnGrafico(g, -50, 700);
    EXPECT_EQ(Leyenda(), (CajaGrafico{-50, 700, 118, 764}));
    EXPECT_EQ(Contorno().front(), "caja -50,700 118,764 0,0,0 p");
    EXPECT_TRUE(SoltarEnGrafico(g).repintar);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaQuieta);
    EXPECT_TRUE(Contorno().empty());
    MoverEnGrafico(g, 10, 10);
    EXPECT_EQ(Leyenda(), (CajaGrafico{-50, 700, 118, 764}));
    // It stays there when the chart is painted again, in a larger window too; what wasn't moved follows the window.
    EXPECT_EQ(Solo(Redibujado(g, 1200, 900), "caja"), (Ordenes{"caja -50,700 118,764 0,0,0"}));
    EXPECT_EQ(g.disposicion.parte[ParteTitulo].izquierda, 120 + (1080 - 120 - 48) / 2);
}

struct Tiron {
    int desdeX, desdeY, x, y;
    Cursor cursor;
    CajaGrafico caja;
};
class RatonTira : public Raton, public testing::WithParamInterface<Tiron> {};
TEST_P(RatonTira, DeUnLado) {
    const Tiron &p = GetParam();
    Coger(p.desdeX, p.desdeY);
    EXPECT_EQ(MoverEnGrafico(g, p.desdeX, p.desdeY).cursor, p.cursor);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaCambiandose);
    // However fast the mouse is, the side follows it.
    EXPECT_EQ(MoverEnGrafico(g, p.x, p.y).cursor, p.cursor);
    EXPECT_EQ(Leyenda(), p.caja);
    SoltarEnGrafico(g);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaQuieta);
    // The next move begins anew.
    Coger((p.caja.izquierda + p.caja.derecha) / 2 - 30, p.caja.superior + 4);
    EXPECT_EQ(g.arrastre.lado, SinLado);
}
INSTANTIATE_TEST_SUITE_P(Casos, RatonTira,
                         testing::Values(Tiron{762, 128, 600, 300, CursorHorizontal, {600, 96, 928, 160}},
                                         Tiron{926, 128, 1000, 300, CursorHorizontal, {760, 96, 1000, 160}},
                                         Tiron{844, 98, 300, 20, CursorVertical, {760, 20, 928, 160}},
                                         Tiron{844, 158, 300, 500, CursorVertical, {760, 96, 928, 500}},
                                         // A side stops at the one opposite.
                                         Tiron{762, 128, 2000, 128, CursorHorizontal, {928, 96, 928, 160}},
                                         Tiron{926, 128, 0, 128, CursorHorizontal, {760, 96, 760, 160}},
                                         Tiron{844, 98, 844, 2000, CursorVertical, {760, 160, 928, 160}},
                                         Tiron{844, 158, 844, 0, CursorVertical, {760, 96, 928, 96}}));

TEST_F(Raton, OtraPulsacionSinSoltar) {
    Coger(800, 110);
    // The release was lost: everything clears, and the press selects again.
    PulsarEnGrafico(g, 800, 110);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaElegida);
    PulsarEnGrafico(g, 800, 110);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaMoviendose);
    PulsarEnGrafico(g, 5, 5);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaQuieta);
}

TEST_F(Raton, ElegidaNoCedeALosTitulos) {
    PulsarEnGrafico(g, 800, 110);
    SoltarEnGrafico(g);
    PulsarEnGrafico(g, 500, 20); // the main title
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaElegida);
    EXPECT_EQ(g.arrastre.titulo, ParteLeyenda);
}

struct ArrastreDeTitulo {
    int x, y;
    PartesDeGrafico parte; // ParteLeyenda: none
    CajaGrafico caja;      // after a move to (200, 300)
};
class RatonTitulo : public Raton, public testing::WithParamInterface<ArrastreDeTitulo> {};
TEST_P(RatonTitulo, Sigue) {
    const ArrastreDeTitulo &p = GetParam();
    const EfectoDelRaton e = PulsarEnGrafico(g, p.x, p.y);
    EXPECT_EQ(g.arrastre.titulo, p.parte);
    EXPECT_EQ(e.cursor, p.parte == ParteLeyenda ? CursorFlecha : CursorDesplazar);
    if (p.parte == ParteLeyenda) return;
    EXPECT_TRUE(MoverEnGrafico(g, 200, 300).contorno);
    EXPECT_EQ(g.disposicion.parte[static_cast<std::size_t>(p.parte)], p.caja);
    EXPECT_EQ(Contorno().size(), 1U);
    SoltarEnGrafico(g);
    EXPECT_EQ(g.arrastre.titulo, ParteLeyenda);
    MoverEnGrafico(g, 0, 0);
    const Ordenes d = Redibujado(g);
    EXPECT_EQ(Solo(d, "texto 200,300").size(), 1U);
    EXPECT_EQ(g.disposicion.parte[static_cast<std::size_t>(p.parte)], p.caja); // for the next press
}
INSTANTIATE_TEST_SUITE_P(
    Casos, RatonTitulo,
    testing::Values(ArrastreDeTitulo{488, 16, ParteTitulo, {200, 300, 248, 332}},
                    ArrastreDeTitulo{536, 48, ParteTitulo, {200, 300, 248, 332}},
                    ArrastreDeTitulo{487, 16, ParteLeyenda, {}}, ArrastreDeTitulo{537, 48, ParteLeyenda, {}},
                    ArrastreDeTitulo{488, 49, ParteLeyenda, {}}, ArrastreDeTitulo{488, 15, ParteLeyenda, {}},
                    ArrastreDeTitulo{16, 64, ParteTituloY, {200, 300, 216, 412}},
                    ArrastreDeTitulo{32, 176, ParteTituloY, {200, 300, 216, 412}},
                    ArrastreDeTitulo{33, 176, ParteLeyenda, {}}, ArrastreDeTitulo{32, 177, ParteLeyenda, {}},
                    // Its box is 22 units high once it moves.
                    ArrastreDeTitulo{500, 768, ParteTituloX, {200, 300, 224, 322}},
                    ArrastreDeTitulo{524, 736, ParteTituloX, {200, 300, 224, 322}},
                    ArrastreDeTitulo{525, 736, ParteLeyenda, {}}));

TEST_F(Raton, TituloVacioNoSeCoge) {
    g.opciones.titulo.clear();
    Redibujado(g);
    const CajaGrafico caja = g.disposicion.parte[ParteTitulo];
    PulsarEnGrafico(g, caja.izquierda, caja.superior);
    EXPECT_EQ(g.arrastre.titulo, ParteLeyenda);
}

TEST_F(Raton, TituloMovidoYReescritoGuardaSuEsquina) {
    PulsarEnGrafico(g, 490, 20);
    MoverEnGrafico(g, 200, 300);
    SoltarEnGrafico(g);
    g.opciones.titulo = "Otro mas largo";
    Redibujado(g);
    EXPECT_EQ(g.disposicion.parte[ParteTitulo], (CajaGrafico{200, 300, 312, 332}));
}

TEST_F(Raton, UnGraficoSinPartes) {
    g.clase = GraficoAutocorrelacion;
    PulsarEnGrafico(g, 800, 110);
    EXPECT_EQ(g.arrastre.estadoLeyenda, LeyendaQuieta);
}

} // namespace
