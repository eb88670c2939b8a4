// Paths on the screen: whatever way they are painted, they look like the lines that they stand for.
#include "platform/qt/superficie_qt.h"

#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr int Ancho = 200, Alto = 150, Margen = 20;

using Puntos = std::vector<PuntoDibujo>;

QImage Pintado(const Puntos &puntos, const Pluma &pluma, bool comoCamino) {
    QImage imagen(Ancho, Alto, QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    PintorSuperficie propio;
    Superficie s = SuperficieDePintor(propio, pintor, FuenteFija(8), Ancho, Alto);
    if (comoCamino) {
        Camino(s, puntos, pluma);
    } else {
        for (std::size_t i = 1; i < puntos.size(); ++i)
            Linea(s, puntos[i - 1].x, puntos[i - 1].y, puntos[i].x, puntos[i].y, pluma);
    }
    return imagen;
}

// Pixels of the first that have none of the second's beside them or at their place.
int SinVecino(const QImage &a, const QImage &b) {
    int solos = 0;
    for (int y = 1; y < Alto - 1; ++y)
        for (int x = 1; x < Ancho - 1; ++x) {
            if (a.pixel(x, y) == qRgb(255, 255, 255)) continue;
            bool cerca = false;
            for (const auto &[dx, dy] : {std::pair{0, 0}, {1, 0}, {-1, 0}, {0, 1}, {0, -1}})
                cerca = cerca || b.pixel(x + dx, y + dy) == a.pixel(x, y);
            solos += cerca ? 0 : 1;
        }
    return solos;
}

int Pintados(const QImage &imagen) {
    int n = 0;
    for (int y = 0; y < Alto; ++y)
        for (int x = 0; x < Ancho; ++x) n += imagen.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
    return n;
}

// Points so many to a column, up and down over the picture.
Puntos Onda(double porColumna) {
    Puntos p;
    for (int i = 0; i < (Ancho - 2 * Margen) * porColumna; ++i)
        p.push_back({Margen + static_cast<int>(i / porColumna),
                     Alto / 2 + static_cast<int>((Alto / 2 - Margen) * std::sin(i * 0.7))});
    return p;
}

constexpr Pluma Fina = {{255, 0, 0}, 1, PlumaContinua};
constexpr Pluma Gruesa = {{0, 0, 255}, 3, PlumaContinua};
constexpr Pluma Punteada = {{0, 127, 0}, 1, PlumaPunteada};

} // namespace

TEST(SuperficieQt, UnCaminoDensoEsComoSusLineas) {
    for (const double porColumna : {1.0, 1.5, 5.0, 40.0})
        for (const Pluma &pluma : {Fina, Gruesa}) {
            SCOPED_TRACE(porColumna);
            SCOPED_TRACE(pluma.ancho);
            const QImage camino = Pintado(Onda(porColumna), pluma, true);
            const QImage lineas = Pintado(Onda(porColumna), pluma, false);
            EXPECT_GT(Pintados(lineas), 3000);
            EXPECT_LE(SinVecino(lineas, camino), 2); // where a thick line ends aslant
            EXPECT_LE(SinVecino(camino, lineas), 2);
        }
}

TEST(SuperficieQt, LoDemasSonLineas) {
    const Puntos varios[] = {{}, {{50, 50}}, {{20, 20}, {60, 90}, {90, 30}, {30, 25}}, {{20, 20}, {90, 20}}};
    for (const Puntos &p : varios)
        for (const Pluma &pluma : {Fina, Gruesa, Punteada})
            EXPECT_TRUE(Pintado(p, pluma, true) == Pintado(p, pluma, false))
                << p.size() << " points, pen " << pluma.ancho << " " << pluma.estilo;
    // The dots of each piece begin with it.
    EXPECT_TRUE(Pintado(Onda(5), Punteada, true) == Pintado(Onda(5), Punteada, false));
}

TEST(SuperficieQt, UnaColumnaVisitadaDosVecesGuardaSuHueco) {
    const QImage imagen = Pintado({{50, 20}, {50, 40}, {90, 60}, {50, 100}, {50, 120}}, Fina, true);
    EXPECT_EQ(imagen.pixel(50, 30), qRgb(255, 0, 0));
    EXPECT_EQ(imagen.pixel(50, 70), qRgb(255, 255, 255));
    EXPECT_EQ(imagen.pixel(50, 110), qRgb(255, 0, 0));
}

TEST(SuperficieQt, UnPicoSePintaEntero) {
    const QImage pico = Pintado({{50, 100}, {50, 30}, {50, 120}, {51, 60}}, Fina, true);
    EXPECT_EQ(pico.pixel(50, 30), qRgb(255, 0, 0));
    EXPECT_EQ(pico.pixel(50, 29), qRgb(255, 255, 255));
    EXPECT_EQ(pico.pixel(50, 120), qRgb(255, 0, 0));
    EXPECT_EQ(pico.pixel(50, 121), qRgb(255, 255, 255));
    EXPECT_EQ(pico.pixel(51, 60), qRgb(255, 0, 0));
    EXPECT_EQ(pico.pixel(51, 59), qRgb(255, 255, 255));
    EXPECT_EQ(pico.pixel(49, 60), qRgb(255, 255, 255));
}
