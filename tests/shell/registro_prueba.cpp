// The log: what it writes down, in which order, how a result is kept, and its limits.
#include "shell/registro.h"

#include "apoyo/plataforma_prueba.h"
#include "charts/resultados/formatos_tabla.h"
#include "language/lote_sentencias.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Two series over ten years, and the log before the recording platform, empty.
void Empezar() {
    EmpezarConDatos(TipoAnual, "1990#1999");
    PonerSerie("X", {1, 4, 2, 8, 5, 7, 3, 9, 6, 11});
    PonerSerie("Y", {2, 9, 5, 15, 11, 13, 7, 20, 10, 24});
    VaciarRegistro();
    RegistrarPlataforma();
}

std::string Registro() {
    return Utf8De1252(TextoDeRegistro());
}

// The classes of the entries: S, C, N, R.
std::string Clases() {
    std::string r;
    for (const EntradaRegistro &e : EntradasRegistro()) r += "SCNR"[e.clase];
    return r;
}

struct CasoDeRegistro {
    const char *lote, *esperado;
};

} // namespace

TEST(Registro, LosLotes) {
    static constexpr CasoDeRegistro Casos[] = {
        {"SER Z = X\nSER W = Z", "SER Z = X\nSER W = Z\n"},
        {"SER Z = X\r\n\r\nSER W = Z\r\n", "SER Z = X\n\nSER W = Z\n"},
        {"; un comentario\nESC A = 1", "; un comentario\nESC A = 1\n"},
        // Each box stands behind its statement.
        {"CAL 2 + 3\nESC A = 1\nCAL 2 * 4",
         "CAL 2 + 3\n; [Resultado] 5.0000\nESC A = 1\nCAL 2 * 4\n; [Resultado] 8.0000\n"},
        // What comes behind the statement that stops isn't run, and isn't written down.
        {"ESC A = 1\nSER W = NADIE\nESC B = 2", "ESC A = 1\nSER W = NADIE\n; [Proceso cancelado] "},
        // A taken name stops without a box.
        {"ESC A = 1\nSER A = X\nESC B = 2", "ESC A = 1\nSER A = X\n"},
    };
    for (const CasoDeRegistro &c : Casos) {
        Empezar();
        Procesar(c.lote);
        EXPECT_TRUE(Registro().starts_with(c.esperado)) << Registro() << "---\n" << c.lote;
        if (std::string_view(c.esperado).ends_with("\n")) {
            EXPECT_EQ(Registro(), c.esperado) << c.lote;
        }
    }
}

// The block is written down as far as it has come, and not anew at each turn.
TEST(Registro, LosBloques) {
    Empezar();
    Procesar("REPITE J DESDE 1990 HASTA 1992\nCAL J\nESC A = J\nFINREPITE\nESC B = 1");
    EXPECT_EQ(Clases(), "SCCCS") << Registro();
    EXPECT_TRUE(Registro().starts_with("REPITE J DESDE 1990 HASTA 1992\nCAL J\n; [")) << Registro();
    EXPECT_TRUE(Registro().ends_with("\nESC A = J\nFINREPITE\nESC B = 1\n")) << Registro();
}

TEST(Registro, LaSentenciaDeUnDialogo) {
    Empezar();
    ProcesarSentencia(nullptr, "SER Z = X", 0, 9);
    EXPECT_EQ(Registro(), "SER Z = X\n");
}

// Boxes outside a batch, and their answers.
TEST(Registro, LasCajas) {
    Empezar();
    static constexpr struct {
        Botones botones;
        Respuesta respuesta;
        const char *detras;
    } Casos[] = {{BotonesAceptar, RespuestaAceptar, ""},
                 {BotonesAceptarCancelar, RespuestaCancelar, " -> Cancelar"},
                 {BotonesAceptarCancelar, RespuestaAceptar, " -> Aceptar"},
                 {BotonesSiNo, RespuestaSi, " -> Sí"},
                 {BotonesSiNoCancelar, RespuestaNo, " -> No"}};
    std::string esperado;
    for (const auto &c : Casos) {
        Prueba.respuestas = {c.respuesta};
        EXPECT_EQ(MostrarCaja(nullptr, "uno\ndos", "Aviso", IconoPregunta, c.botones), c.respuesta);
        esperado += std::string("; [Aviso] uno\n; dos") + c.detras + "\n";
    }
    EXPECT_EQ(Registro(), esperado);
    EXPECT_EQ(Prueba.cajas.size(), std::size(Casos)) << "each one was shown, once";
    MostrarMensaje(nullptr, std::string(1'000'000, 'x') + "FIN");
    EXPECT_LT(EntradasRegistro().back().texto.size(), MaxTextoDeCaja + 100);
    EXPECT_TRUE(EntradasRegistro().back().texto.ends_with("xFIN\n"));
}

TEST(Registro, LasNotas) {
    Empezar();
    PonerNota("fuera de un lote", 0);
    PonerNota("dentro", 3);
    EXPECT_EQ(Registro(), "; Nota: fuera de un lote\n; Nota, línea 3: dentro\n");
    EXPECT_EQ(Prueba.notas, (std::vector<NotaVista>{{0, "fuera de un lote"}, {3, "dentro"}}));
}

// A report as text, in its place, and whole: it is as it was though the program has gone on.
TEST(Registro, LosResultados) {
    Empezar();
    Procesar("MUEST 1990 1999\nMC Y 1 X\nVSR NO\nMC X 1 Y");
    EXPECT_EQ(Clases(), "SCRS") << Registro();
    ASSERT_EQ(Prueba.resultados.size(), 1u) << "it was shown, too";
    const EntradaRegistro entrada = EntradasRegistro()[2];
    ASSERT_NE(entrada.resultado, nullptr);
    EXPECT_EQ(BuscarEntrada(entrada.numero)->resultado, entrada.resultado);
    const SalidaResultado &salida = entrada.resultado->salida;
    EXPECT_EQ(salida.tipo, SalidaRegresion);
    EXPECT_EQ(salida.Clase, 8);
    EXPECT_EQ(Utf8De1252(salida.titulo), "Mínimos cuadrados ordinarios");
    ASSERT_EQ(salida.lineas->size(), Prueba.resultados[0].lineas.size());
    const std::string texto = TextoDeResultado(salida);
    EXPECT_NE(texto.find("Variable Dep.: Y\n"), std::string::npos) << texto;
    EXPECT_NE(Registro().find("; [Mínimos cuadrados ordinarios]\n; Variable Dep.: Y"), std::string::npos)
        << Registro();
    ASSERT_NE(salida.tablas, nullptr);
    EXPECT_EQ(salida.tablas->size(), 1u);
    EXPECT_TRUE(salida.tabla.starts_with("Variable Dep.\tY\n"));
    // All of its lines are comments: the log runs again as statements.
    for (std::size_t i = 0; i < entrada.texto.size(); i = entrada.texto.find('\n', i) + 1)
        EXPECT_EQ(entrada.texto[i], ';');
    VaciarRegistro();
    EXPECT_EQ(TextoDeResultado(salida), texto) << "who holds it keeps it";
    EXPECT_EQ(BuscarEntrada(entrada.numero), nullptr);
}

// Everything that a result points to is a copy.
TEST(Registro, ElResultadoEsUnaCopia) {
    Empezar();
    {
        TextoSalida lineas, fijas, papelFijas, alAbrir;
        AnadirLinea(lineas, 1, "linea");
        AnadirLinea(fijas, 0, "fija");
        AnadirLinea(papelFijas, 0, "fija del papel");
        AnadirLinea(alAbrir, 0, "al abrir");
        std::vector<TablaCoeficientes> tablas = {{1, 2, 3}};
        std::string titulo = "Titulo", tabla = "a\tb\n", delPapel = "Del papel";
        SalidaResultado salida = {.tipo = SalidaDescriptivos,
                                  .titulo = titulo,
                                  .Clase = 0,
                                  .Contenido = 0,
                                  .lineas = &lineas,
                                  .fijas = &fijas,
                                  .tablas = &tablas,
                                  .tabla = tabla};
        salida.papel = {{delPapel}, nullptr, &papelFijas, &alAbrir};
        salida.graficos = [](Ventana *) { return 1; };
        MostrarVentanaResultado(nullptr, salida);
        lineas[0].texto[0] = titulo[0] = tabla[0] = delPapel[0] = '#';
        tablas.clear();
    }
    const SalidaResultado &s = EntradasRegistro().back().resultado->salida;
    EXPECT_STREQ(s.lineas->front().texto, "linea");
    EXPECT_STREQ(s.fijas->front().texto, "fija");
    EXPECT_STREQ(s.papel.fijas->front().texto, "fija del papel");
    EXPECT_STREQ(s.papel.alAbrir->front().texto, "al abrir");
    EXPECT_EQ(s.papel.titulos.front(), "Del papel");
    EXPECT_EQ(s.titulo, "Titulo");
    EXPECT_EQ(s.tabla, "a\tb\n");
    EXPECT_EQ(s.tablas->front().ultima, 3);
    EXPECT_EQ(s.graficos, nullptr);
}

TEST(Registro, LosLimites) {
    Empezar();
    for (std::size_t i = 0; i < MaxEntradasRegistro + 10; ++i) PonerNota(std::to_string(i), 0);
    EXPECT_EQ(EntradasRegistro().size(), MaxEntradasRegistro);
    EXPECT_EQ(EntradasRegistro().front().texto, "; Nota: 10\n");
    VaciarRegistro();
    TextoSalida lineas;
    for (int i = 0; i < 4000; ++i) AnadirLinea(lineas, 0, std::string(100, 'x'));
    const SalidaResultado salida = {.tipo = SalidaRegresion,
                                    .titulo = "Largo",
                                    .Clase = 8,
                                    .Contenido = 0,
                                    .lineas = &lineas,
                                    .fijas = nullptr,
                                    .tablas = nullptr};
    for (int i = 0; i < 100; ++i) MostrarVentanaResultado(nullptr, salida);
    std::size_t bytes = 0;
    for (const EntradaRegistro &e : EntradasRegistro())
        bytes += e.texto.size() + e.resultado->lineas.size() * sizeof(LineaSalida);
    EXPECT_LE(bytes, MaxBytesRegistro);
    EXPECT_GT(EntradasRegistro().size(), 5u);
}

// A loop of a hundred thousand lines leaves its text, once.
TEST(Registro, UnBucleLargo) {
    Empezar();
    Procesar("ESC A = 0\nMIENTRAS (A < 50000) ENTONCES\nESC A = A + 1\nFINMIENTRAS\nESC B = A");
    EXPECT_EQ(EscalarDe("A"), 50000);
    EXPECT_EQ(Clases(), "S");
    EXPECT_EQ(Registro(),
              "ESC A = 0\nMIENTRAS (A < 50000) ENTONCES\nESC A = A + 1\nFINMIENTRAS\nESC B = A\n");
}

// Installed twice, it stands there once; without it nothing is written down.
TEST(Registro, UnaSolaVez) {
    Empezar();
    RegistrarPlataforma();
    PonerNota("una", 0);
    EXPECT_EQ(EntradasRegistro().size(), 1u);
    EXPECT_EQ(Prueba.notas.size(), 1u);
    EmpezarPrueba();
    PonerNota("otra", 0);
    EXPECT_EQ(EntradasRegistro().size(), 1u);
}
