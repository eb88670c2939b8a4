// Print jobs: their steps, what happens when one fails, and the text of a report on paper.
#include "apoyo/plataforma_prueba.h"
#include "charts/resultados/dibujo.h"
#include "charts/resultados/impresion.h"
#include "charts/resultados/listados.h"
#include "charts/resultados/ventana_resultado.h"
#include "estimation/regresion.h"

#include <gtest/gtest.h>

namespace {

using Pasos = std::vector<std::string>;

constexpr int C = AnchoCaracterPagina, H = AltoLineaPagina;

// "Texto" on the main screen's listing: the simplest job there is, with one page change at its end.
int ImprimirUnaLinea() {
    const std::string texto = "Texto";
    return ImprimirSalida(nullptr, "Listado Pantalla principal", ImprimirPantalla, &texto);
}

TEST(Impresion, PasosDeUnTrabajo) {
    EmpezarPrueba();
    EXPECT_EQ(ImprimirUnaLinea(), 0);
    EXPECT_EQ(Prueba.pasosImpresora,
              (Pasos{"abrir", "documento Imprime1: Imprimiendo", "pagina", "abrir",
                     "documento Imprime: Imprimiendo", "pagina", "fin pagina", "fin documento", "cerrar",
                     "fin pagina", "fin documento", "cerrar"}));
    EXPECT_TRUE(Prueba.cajas.empty());
    EXPECT_EQ(Prueba.cursor, CursorFlecha);
    ASSERT_EQ(Prueba.trabajos.size(), 1u);
    EXPECT_EQ(Prueba.trabajos[0].titulo, "Listado Pantalla principal");
    EXPECT_EQ(Prueba.trabajos[0].documento, "Imprime1: Imprimiendo");
    EXPECT_EQ(Prueba.trabajos[0].paginas.size(), 1u) << "the page that nothing uses makes no blank sheet";
}

struct CasoDeFallo {
    PasosDeImpresora paso;
    int vez;
    Pasos cajas; // texts
    Pasos pasos; // all that was asked of the printer
    std::size_t paginas;
};

TEST(Impresion, FallosEnCadaPaso) {
    const std::string uno = "documento Imprime1: Imprimiendo", otro = "documento Imprime: Imprimiendo";
    const CasoDeFallo Casos[] = {
        // The job's own document: nobody is told.
        {PasoAbrir, 1, {}, {"abrir"}, 0},
        {PasoDocumento, 1, {}, {"abrir", uno, "cerrar"}, 0},
        {PasoPagina, 1, {}, {"abrir", uno, "pagina", "fin documento", "cerrar"}, 0},
        {PasoFinPagina,
         1,
         {},
         {"abrir", uno, "pagina", "abrir", otro, "pagina", "fin pagina", "fin documento", "cerrar",
          "fin pagina", "fin documento", "cerrar"},
         1},
        {PasoFinDocumento,
         1,
         {},
         {"abrir", uno, "pagina", "abrir", otro, "pagina", "fin pagina", "fin documento", "cerrar",
          "fin pagina", "fin documento", "cerrar"},
         1},
        // The page change.
        {PasoAbrir,
         2,
         {"Error imprimiedo. 1"},
         {"abrir", uno, "pagina", "abrir", "fin pagina", "fin documento", "cerrar"},
         1},
        {PasoDocumento,
         2,
         {"Error imprimiedo. 3"},
         {"abrir", uno, "pagina", "abrir", otro, "cerrar", "fin pagina", "fin documento", "cerrar"},
         1},
        {PasoPagina,
         2,
         {"Error imprimiedo. 2"},
         {"abrir", uno, "pagina", "abrir", otro, "pagina", "fin documento", "cerrar", "fin pagina",
          "fin documento", "cerrar"},
         1},
    };
    for (const CasoDeFallo &caso : Casos) {
        SCOPED_TRACE(std::to_string(caso.paso) + " " + std::to_string(caso.vez));
        EmpezarPrueba();
        Prueba.fallaPaso[caso.paso] = caso.vez;
        EXPECT_EQ(ImprimirUnaLinea(), 1);
        EXPECT_EQ(TextosDeCajas(), caso.cajas);
        for (const CajaVista &c : Prueba.cajas) {
            EXPECT_EQ(c.titulo, "Aviso");
            EXPECT_EQ(c.icono, IconoInformacion);
        }
        EXPECT_EQ(Prueba.pasosImpresora, caso.pasos);
        EXPECT_EQ(Prueba.cursor, CursorFlecha);
        ASSERT_EQ(Prueba.trabajos.size(), 1u);
        EXPECT_EQ(Prueba.trabajos[0].paginas.size(), caso.paginas) << "what was drawn before is kept";
    }
}

TEST(Impresion, ClasesSinRutina) {
    const int Clases[] = {1, 5, 24, -1, 1000};
    for (const int clase : Clases) {
        SCOPED_TRACE(clase);
        EmpezarPrueba();
        EXPECT_EQ(ImprimirSalida(nullptr, "Nada", clase, "datos"), 1);
        EXPECT_TRUE(Prueba.pasosImpresora.empty());
        EXPECT_TRUE(Prueba.cajas.empty());
    }
    // The text of a report is printed from its window only.
    EmpezarPrueba();
    EXPECT_EQ(ImprimirSalida(nullptr, "Nada", ImprimirInforme, nullptr), 1);
    EXPECT_TRUE(Prueba.pasosImpresora.empty());
}

struct CasoTitulo {
    int clase, covarianza;
    const char *ventana; // title of the window
    std::vector<std::string> impreso;
};

TEST(Impresion, TitulosDelInforme) {
    const char *ordinarios = "Método: Mínimos cuadrados ordinarios";
    const CasoTitulo Casos[] = {
        {8, CovarianzaNormal, "Mínimos cuadrados ordinarios", {ordinarios}},
        {8,
         CovarianzaHeterocedasticidad,
         "Mínimos C.: Matriz de covarianzas consistente bajo heterocedasticidad",
         {ordinarios, "Matriz de covarianzas consistente bajo heterocedasticidad"}},
        // Only the window's title names this covariance.
        {8,
         CovarianzaAutocorrelacion,
         "Mínimos C.: Matriz de covarianzas consistente bajo autocorrelacion (3 r.)",
         {ordinarios}},
        {13, CovarianzaNormal, "Mínimos cuadrados ponderados", {"Método: Mínimos cuadrados ponderados"}},
        {13,
         CovarianzaHeterocedasticidad,
         "Mínimos cuadrados ponderados",
         {"Método: Mínimos cuadrados ponderados"}},
        {9,
         CovarianzaHeterocedasticidad,
         "Contrastes de significatividad: Modelo restringido",
         {"Contrastes de significatividad: Modelo restringido"}},
        {101,
         CovarianzaNormal,
         "Contrastes de autocorrelación: Wallis",
         {"Contrastes de autocorrelación: Wallis"}},
    };
    for (const CasoTitulo &caso : Casos) {
        SCOPED_TRACE(caso.ventana + std::to_string(caso.clase));
        EmpezarPrueba();
        UltimaRegresion.TipoCovarianza = caso.covarianza;
        const TextoSalida lineas = LineasDeGrupos({0});
        const std::string titulo = Texto1252DeUtf8(caso.ventana);
        SalidaResultado salida = SalidaDePrueba(caso.clase, lineas);
        salida.titulo = titulo;
        EXPECT_EQ(ImprimirResultado(nullptr, salida), 0);
        ASSERT_EQ(Prueba.trabajos.size(), 1u);
        EXPECT_EQ(Prueba.trabajos[0].titulo, caso.ventana);
        EXPECT_EQ(Prueba.trabajos[0].documento, "Imprime1: Imprimiendo");
        std::vector<std::string> esperadas = caso.impreso;
        esperadas.emplace_back("linea 0");
        ASSERT_EQ(Prueba.trabajos[0].paginas, (std::vector<std::vector<std::string>>{esperadas}));
        for (const Letrero &l : Letreros(Prueba.trabajos[0].dibujo[0].ordenes)) {
            const int largo = static_cast<int>(Texto1252DeUtf8(l.texto).size());
            if (l.texto == "linea 0") continue;
            EXPECT_LE(std::abs(2 * l.x + largo * C - AnchoPagina), 1) << "centred on the page: " << l.texto;
        }
    }
}

// The same rules as in the window, the left-out ones and the thin ones of the table among them.
TEST(Impresion, ReglasDelInforme) {
    EmpezarPrueba();
    const TextoSalida lineas = LineasDeGrupos({0, 2, 1, 1, 0, 1, 0});
    const std::vector<TablaCoeficientes> tablas = {{1, 2, 3}};
    EXPECT_EQ(ImprimirResultado(nullptr, SalidaDePrueba(8, lineas, &tablas)), 0);
    const auto &ordenes = Prueba.trabajos.at(0).dibujo.at(0).ordenes;
    const auto textos = Letreros(ordenes);
    ASSERT_EQ(textos.size(), 8u);
    const int izquierda = (AnchoPagina - 69 * C) / 2, derecha = izquierda + 70 * C;
    EXPECT_EQ(textos[1].x, izquierda + C);
    const auto reglas = Trazos(ordenes, true, 3);
    ASSERT_EQ(reglas.size(), 5u) << "top, behind lines 0, 1 and 3, bottom; none in the last three lines";
    std::vector<int> filas; // of the rules, in half lines below the first line of the block
    for (const Trazo &t : reglas) {
        EXPECT_EQ(t.x1, izquierda);
        EXPECT_EQ(t.x2, derecha);
        filas.push_back((t.y1 - textos[1].y) * 2 / H);
    }
    EXPECT_EQ(filas, (std::vector<int>{-1, 3, 7, 13, 21}));
    const auto finas = Trazos(ordenes, false, 1);
    ASSERT_EQ(finas.size(), 4u);
    for (const Trazo &t : finas) {
        EXPECT_EQ(t.y1, reglas[2].y1);
        EXPECT_EQ(t.y2, reglas[3].y1);
    }
    EXPECT_EQ(finas[0].x1, textos[1].x + 15 * C + C / 2);
}

TEST(Impresion, InformeDeVariasPaginas) {
    EmpezarPrueba();
    const TextoSalida lineas = LineasDeGrupos(std::vector<int>(120, 0));
    EXPECT_EQ(ImprimirResultado(nullptr, SalidaDePrueba(9, lineas)), 0);
    ASSERT_EQ(Prueba.trabajos.size(), 1u);
    const auto &paginas = Prueba.trabajos[0].paginas;
    ASSERT_EQ(paginas.size(), 3u);
    std::vector<std::string> todas;
    for (const auto &p : paginas) {
        EXPECT_EQ(p.at(0), "Prueba") << "the title stands on every page";
        todas.insert(todas.end(), p.begin() + 1, p.end());
    }
    ASSERT_EQ(todas.size(), 120u);
    for (std::size_t i = 0; i < todas.size(); ++i) EXPECT_EQ(todas[i], "linea " + std::to_string(i));
    EXPECT_EQ(Prueba.pasosImpresora,
              (Pasos{"abrir", "documento Imprime1: Imprimiendo", "pagina", "fin pagina", "abrir",
                     "documento Imprime: Imprimiendo", "pagina", "fin pagina", "fin documento", "cerrar",
                     "abrir", "documento Imprime: Imprimiendo", "pagina", "fin documento", "cerrar",
                     "fin pagina", "fin documento", "cerrar"}));
}

TEST(Impresion, InformeConImpresoraQueFallaAMedias) {
    EmpezarPrueba();
    Prueba.fallaPaso[PasoDocumento] = 2;
    const TextoSalida lineas = LineasDeGrupos(std::vector<int>(120, 0));
    EXPECT_EQ(ImprimirResultado(nullptr, SalidaDePrueba(9, lineas)), 1);
    EXPECT_EQ(TextosDeCajas(), Pasos{"Error imprimiedo. 3"});
    ASSERT_EQ(Prueba.trabajos.at(0).paginas.size(), 1u) << "the first page is printed";
}

TEST(Impresion, ContenidosDeLaVentana) {
    const TextoSalida lineas = LineasDeGrupos({0});
    for (const int contenido : {-1, 0, 1, 2, 3, 4, 9, 23, 99}) {
        EmpezarPrueba();
        SalidaResultado salida = SalidaDePrueba(9, lineas);
        salida.Contenido = contenido;
        const bool hay = contenido >= 0 && contenido <= 3;
        EXPECT_EQ(ImprimirResultado(nullptr, salida), hay ? 0 : 1) << contenido;
        ASSERT_EQ(Prueba.trabajos.size(), hay ? 1u : 0u) << contenido;
        if (hay) {
            EXPECT_EQ(Prueba.trabajos[0].paginas, (std::vector<Pasos>{{"Prueba", "linea 0"}})) << contenido;
        }
    }
    // The boxes of lines can't be printed.
    for (const TiposDeSalida tipo : {SalidaUltimaRegresion, SalidaMuestra, SalidaRelacion}) {
        EmpezarPrueba();
        SalidaResultado salida = SalidaDePrueba(0, lineas);
        salida.tipo = tipo;
        EXPECT_EQ(ImprimirResultado(nullptr, salida), 1) << tipo;
        EXPECT_TRUE(Prueba.trabajos.empty());
    }
}

// ----- The other kinds of window on paper

SalidaResultado SalidaDeTipo(TiposDeSalida tipo, const TextoSalida &lineas) {
    SalidaResultado salida = SalidaDePrueba(0, lineas);
    salida.tipo = tipo;
    return salida;
}

TEST(Impresion, TituloEntreReglas) {
    const struct {
        TiposDeSalida tipo;
        const char *titulo;
        int izquierda, derecha;
    } Casos[] = {
        // 85 characters are wider than the paper.
        {SalidaHipotesis, "Contraste de significatividad: Hipótesis nula", 0, AnchoPagina},
        {SalidaNormalidad, "Contrastes de normalidad", (AnchoPagina - 69 * C) / 2,
         (AnchoPagina - 69 * C) / 2 + 70 * C},
        {SalidaPrediccion, "Evaluación de la capacidad predicitiva", (AnchoPagina - 69 * C) / 2,
         (AnchoPagina - 69 * C) / 2 + 70 * C},
        {SalidaDescriptivos, "Medidas descriptivas", (AnchoPagina - 69 * C) / 2,
         (AnchoPagina - 69 * C) / 2 + 70 * C},
    };
    for (const auto &caso : Casos) {
        SCOPED_TRACE(caso.titulo);
        EmpezarPrueba();
        const TextoSalida lineas = LineasDeGrupos({0, 0, 1});
        EXPECT_EQ(ImprimirResultado(nullptr, SalidaDeTipo(caso.tipo, lineas)), 0);
        ASSERT_EQ(Prueba.trabajos.size(), 1u);
        EXPECT_EQ(Prueba.trabajos[0].titulo, "Prueba");
        EXPECT_EQ(Prueba.trabajos[0].paginas,
                  (std::vector<Pasos>{{caso.titulo, "linea 0", "linea 1", "linea 2"}}));
        const auto &ordenes = Prueba.trabajos[0].dibujo[0].ordenes;
        const auto reglas = Trazos(ordenes, true, 3);
        std::vector<int> alturas;
        for (const Trazo &t : reglas) {
            EXPECT_EQ(t.x1, caso.izquierda);
            EXPECT_EQ(t.x2, caso.derecha);
            alturas.push_back(t.y1);
        }
        // From a tenth of the height: title, rule, two lines, rule, line; a rule stands in the middle of a row.
        const int y = AltoPagina / 10;
        EXPECT_EQ(alturas, (std::vector<int>{y, y + 2 * H, y + 5 * H, y + 7 * H}));
        const auto textos = Letreros(ordenes);
        EXPECT_EQ(textos[0].y, y + H / 2);
        const int largo = static_cast<int>(Texto1252DeUtf8(caso.titulo).size()) * C;
        EXPECT_EQ(textos[0].x, (caso.izquierda + caso.derecha - largo) / 2);
        EXPECT_EQ(textos[1].x, caso.izquierda + C);
    }
}

// 58 lines a page, ten of them counted as margin; no title, and rules and frame on every page.
TEST(Impresion, PaginasDeAutocorrelaciones) {
    EmpezarPrueba();
    TextoSalida lineas = LineasDeGrupos({2, 2, 2, 2});
    for (int i = 4; i < 100; ++i) AnadirLinea(lineas, 1, "linea " + std::to_string(i));
    EXPECT_EQ(ImprimirResultado(nullptr, SalidaDeTipo(SalidaAutocorrelacion, lineas)), 0);
    const TrabajoVisto &t = Prueba.trabajos.at(0);
    ASSERT_EQ(t.paginas.size(), 3u);
    const std::size_t esperadas[] = {48, 48, 4};
    int n = 0;
    for (std::size_t p = 0; p < 3; ++p) {
        ASSERT_EQ(t.paginas[p].size(), esperadas[p]);
        for (const std::string &l : t.paginas[p]) EXPECT_EQ(l, "linea " + std::to_string(n++));
        EXPECT_EQ(Trazos(t.dibujo[p].ordenes, true, 2).size(), p == 0 ? 3u : 2u);
        EXPECT_EQ(Trazos(t.dibujo[p].ordenes, false, 2).size(), 2u);
    }
}

// A page has its number behind the first title, its own lines above the others, and may begin otherwise than the
// window shows the line.
TEST(Impresion, PapelPropio) {
    EmpezarPrueba();
    const TextoSalida lineas = LineasDeGrupos(std::vector<int>(60, 1));
    TextoSalida enVentana, enPapel, alAbrir;
    AnadirLinea(enVentana, 0, "fija en la ventana");
    AnadirLinea(enPapel, 0, "fija en el papel");
    for (int i = 0; i < 60; ++i) AnadirLinea(alAbrir, 1, "abre " + std::to_string(i));
    SalidaResultado salida = SalidaDePrueba(8, lineas);
    salida.Contenido = 1;
    salida.fijas = &enVentana;
    salida.papel = {
        .titulos = {"Primero", "Segundo"}, .pagina = " p. %2d", .fijas = &enPapel, .alAbrir = &alAbrir};
    EXPECT_EQ(ImprimirResultado(nullptr, salida), 0);
    const auto &paginas = Prueba.trabajos.at(0).paginas;
    ASSERT_EQ(paginas.size(), 2u);
    std::size_t n = 0;
    for (std::size_t p = 0; p < 2; ++p) {
        ASSERT_GT(paginas[p].size(), 4u);
        // Titles are centred, each by itself.
        EXPECT_EQ(paginas[p][0], "Primero p.  " + std::to_string(p + 1));
        EXPECT_EQ(paginas[p][1], "Segundo");
        EXPECT_EQ(paginas[p][2], "fija en el papel");
        for (std::size_t i = 3; i < paginas[p].size(); ++i, ++n)
            EXPECT_EQ(paginas[p][i], (p == 1 && i == 3 ? "abre " : "linea ") + std::to_string(n));
    }
    EXPECT_EQ(n, 60u);
}

TEST(Impresion, LineasDeUnaPaginaPorAltura) {
    PaginaImpresa pagina;
    Superficie s = SuperficieGrabadora(pagina.ordenes, AnchoPagina, AltoPagina, C, H);
    Texto(s, 10 * C, 2 * H, "derecha  ");
    Texto(s, 5 * C, 4 * H, "abajo");
    Texto(s, 0, 2 * H, "izq");
    Texto(s, 0, 0, "");
    EXPECT_EQ(LineasDePagina(pagina), (Pasos{"", "izq       derecha", "abajo"}));
}

} // namespace
