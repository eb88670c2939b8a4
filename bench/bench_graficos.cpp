// What painting a chart costs, against the same lines drawn by the toolkit alone. The arguments are the number of series, of
// 4,000 observations each that swing over the plot every few points, and the width of the window: as it opens, and one whose
// rows are a power of two of bytes apart, the worst of all for what is upright.
#include "charts/graficos/grafico.h"
#include "platform/qt/pdf.h"
#include "platform/qt/superficie_qt.h"

#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

constexpr int Filas = 4000, Alto = 512;

Grafico Lleno(int series) {
    Grafico g = GraficoNuevo(GraficoSeries, Filas);
    for (int t = 0; t < Filas; ++t) g.periodos.push_back(std::to_string(t + 1));
    g.numeros.resize(Filas);
    for (int s = 0; s < series; ++s) {
        SerieGrafico &serie = g.series.emplace_back(SerieGrafico{"S" + std::to_string(s), {}});
        for (int t = 0; t < Filas; ++t) serie.valores.push_back(std::sin(t * 0.7 + s) * (s + 1) + t * 0.001);
    }
    CalcularLimites(g);
    return g;
}

void Pintar(benchmark::State &estado) {
    Grafico g = Lleno(static_cast<int>(estado.range(0)));
    const QFont fuente = FuenteFija(8);
    const int ancho = static_cast<int>(estado.range(1));
    QImage imagen(ancho, Alto, QImage::Format_RGB32);
    for (auto _ : estado) {
        imagen.fill(Qt::white);
        QPainter pintor(&imagen);
        PintorSuperficie propio;
        Superficie s = SuperficieDePintor(propio, pintor, fuente, ancho, Alto);
        PintarGrafico(s, g);
    }
}
BENCHMARK(Pintar)->ArgsProduct({{10, 99}, {720, 1024}})->Unit(benchmark::kMillisecond);

void SoloElToolkit(benchmark::State &estado) {
    Grafico g = Lleno(static_cast<int>(estado.range(0)));
    const int ancho = static_cast<int>(estado.range(1));
    std::vector<OrdenDibujo> ordenes;
    Superficie grabadora = SuperficieGrabadora(ordenes, ancho, Alto, 8, 16);
    PintarGrafico(grabadora, g);
    QImage imagen(ancho, Alto, QImage::Format_RGB32);
    for (auto _ : estado) {
        imagen.fill(Qt::white);
        QPainter pintor(&imagen);
        for (const OrdenDibujo &o : ordenes) {
            if (o.clase != OrdenLinea) continue;
            const QColor color(o.pluma.color.r, o.pluma.color.g, o.pluma.color.b);
            if (pintor.pen().color() != color) pintor.setPen(color);
            pintor.drawLine(o.x1, o.y1, o.x2, o.y2);
        }
    }
}
BENCHMARK(SoloElToolkit)->ArgsProduct({{10, 99}, {720, 1024}})->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) {
    CrearAplicacionSinPantalla();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
