// The table of commands and the closing of the program, without a window.
#include "apoyo/plataforma_prueba.h"
#include "platform/texto.h"
#include "shell/comandos.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr const char *Plural = "Tipo de datos no válidos", *Singular = "Tipo de datos no válido";

// ----- A desktop that notes what it is asked for

std::vector<std::string> Pedido;

void Anotar(const char *que) {
    Pedido.emplace_back(que);
}

const OperacionesEscritorio Anotadas = {
    .pantallaEdicion = [](Ventana *) -> ControlTexto * {
        Anotar("pantalla");
        return nullptr;
    },
    .editar = [](Ventana *, AccionesDeEdicion a) { Pedido.push_back("editar " + std::to_string(a)); },
    .ponerTitulo = [](Ventana *, std::string_view t) { Pedido.push_back("titulo " + Utf8De1252(t)); },
    .destruir = [](Ventana *) { Anotar("destruir"); },
    .dialogoTipoDatos = [](Ventana *) { Anotar("tipo"); },
    .dialogoMuestra = [](Ventana *) { Anotar("muestra"); },
    .dialogoMuestraActual = [](Ventana *) { Anotar("muestra actual"); },
    .dialogoLista = [](Ventana *, ListasDeElementos l) { Pedido.push_back("lista " + std::to_string(l)); },
    .dialogoUltimaRegresion = [](Ventana *) { Anotar("regresion"); },
    .dialogoNoEnsamblada = [](Ventana *) { Anotar("no ensamblada"); },
    .paginaAyuda = [](Ventana *, int p) { Pedido.push_back("pagina " + std::to_string(p)); },
};

void Ordenar(int id) {
    Pedido.clear();
    Prueba.cajas.clear();
    InstalarEscritorio(Anotadas);
    EjecutarComando(nullptr, id);
}

// ----- The table

struct FilaEsperada {
    int id;
    const char *bloques;
    bool refresca;
    const char *guardia;
};

constexpr FilaEsperada Filas[] = {
    {2055, "WLVPT", true, nullptr},  {2056, "WLVPT", true, nullptr},   {2057, "WLVPT", true, nullptr},
    {2021, "", false, nullptr},      {2047, "", false, nullptr},       {2048, "", false, nullptr},
    {2049, "", false, nullptr},      {2050, "", false, nullptr},       {2020, "WLVPT", false, nullptr},
    {2035, "WLVPT", true, Singular}, {2054, "WLVPT", false, Singular}, {2065, "T", true, nullptr},
    {2064, "T", true, nullptr},      {2066, "T", true, nullptr},       {2085, "T", true, Plural},
    {2038, "WLVPT", false, Plural},  {2006, "WVPTE", true, Plural},    {2039, "WVPT", true, Plural},
    {2007, "VPT", true, Singular},   {2036, "LVPT", false, Singular},  {2094, "WLVPT", true, nullptr},
    {2013, "WLVPT", true, nullptr},  {2023, "WLVPT", true, nullptr},   {2004, "WVPTE", true, Plural},
    {2081, "WVPTE", true, Plural},   {2086, "T", true, nullptr},       {2012, "WVPT", false, Plural},
    {2075, "WVPT", false, Plural},   {2078, "WVPT", false, Plural},    {2080, "WVPT", false, Plural},
    {2079, "WVPT", false, Plural},   {2082, "WVPT", false, Plural},    {2083, "WVPT", false, Plural},
    {2073, "VPT", true, Singular},   {2093, "VPT", true, Singular},    {2087, "LVPT", true, Singular},
    {2071, "LVPT", true, Plural},    {2072, "LVPT", true, Plural},     {2088, "", false, nullptr},
    {2092, "", false, nullptr},      {2091, "", false, nullptr},       {2090, "", false, nullptr},
};

const Comando *BuscarComando(int id) {
    const auto *fin = TablaComandos + NumComandos;
    const auto *c = std::find_if(TablaComandos, fin, [&](const Comando &fila) { return fila.id == id; });
    return c != fin ? c : nullptr;
}

} // namespace

TEST(Comandos, CadaUnoConSusBloquesSuRefrescoYSuGuardia) {
    for (const FilaEsperada &f : Filas) {
        SCOPED_TRACE(f.id);
        const Comando *c = BuscarComando(f.id);
        ASSERT_NE(c, nullptr);
        EXPECT_STREQ(c->bloques, f.bloques);
        EXPECT_EQ(c->refrescaMuestra, f.refresca);
        EXPECT_EQ(c->guardia != nullptr ? Utf8De1252(c->guardia) : "", f.guardia != nullptr ? f.guardia : "");
    }
}

// While no data type is chosen a guarded command shows its message and leaves all as it was, the sample too; with one
// it finds the sample refreshed if its row says so. The other commands don't ask.
TEST(Comandos, LaGuardiaYElRefrescoDeCadaFila) {
    for (const FilaEsperada &f : Filas) {
        SCOPED_TRACE(f.id);
        for (const bool conTipo : {false, true}) {
            EmpezarConDatos(TipoAnual, "1990#1999");
            PonerSerie("A", {1, 2, 3}, 2);
            if (!conTipo) ArchivoTrabajo.TipoDatos = SinTipoDatos;
            Muestra.InicioMuestra = Muestra.FinMuestra = 9;
            Prueba.respuestas = {RespuestaCancelar}; // to the question of Salir
            Ordenar(f.id);
            const bool pasa = conTipo || f.guardia == nullptr;
            EXPECT_EQ(Muestra.InicioMuestra, pasa && f.refresca ? 2 : 9);
            EXPECT_EQ(Muestra.FinMuestra, pasa && f.refresca ? 4 : 9);
            if (pasa) continue;
            EXPECT_EQ(Prueba.cajas, (std::vector<CajaVista>{
                                        {"Proceso cancelado", f.guardia, IconoInformacion, BotonesAceptar}}));
            EXPECT_TRUE(Pedido.empty());
        }
    }
}

TEST(Comandos, LoQuePidenAlEscritorio) {
    struct {
        int id;
        std::vector<std::string> pedido;
    } const casos[] = {
        {2047, {"editar 0"}},
        {2048, {"editar 1"}},
        {2049, {"editar 2"}},
        {2050, {"editar 3"}},
        {2020, {"tipo", "titulo Tabira: Proyec01"}},
        {2065, {"lista 0"}},
        {2064, {"lista 1"}},
        {2066, {"lista 2"}},
        {2085, {"muestra actual"}},
        {2038, {"muestra"}},
        {2006, {"pantalla"}},
        {2086, {"regresion"}},
        {2001, {"no ensamblada"}},
        {2002, {"no ensamblada"}},
        {2003, {"no ensamblada"}},
        {2010, {"no ensamblada"}},
        {2088, {"pantalla"}},
        {2067, {"pagina 1194"}},
        {2046, {"pagina 1198"}},
        {2052, {"pagina 1195"}},
        {2099, {"pagina 1222"}},
        {2021, {"destruir"}},
        {2, {"destruir"}},
        {0, {}},
        {1, {}},
        {120, {}},
        {2074, {}}, // the editor's
        {-2002, {}},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.id);
        EmpezarConDatos(TipoAnual, "1990#1999");
        Ordenar(c.id);
        EXPECT_EQ(Pedido, c.pedido);
    }
}

// ----- The closing

TEST(Comandos, LaPreguntaDelCierre) {
    const CajaVista pregunta{"Aviso", "¿Desea guardar su trabajo?", IconoPregunta, BotonesSiNoCancelar};
    struct {
        bool serie, matriz, escalar;
        Respuesta respuesta;
        std::vector<CajaVista> cajas;
        std::vector<std::string> pedido;
    } const casos[] = {
        {false, false, false, RespuestaCancelar, {}, {"destruir"}},
        {false, false, true, RespuestaCancelar, {}, {"destruir"}},
        {true, false, false, RespuestaCancelar, {pregunta}, {}},
        {false, true, false, RespuestaCancelar, {pregunta}, {}},
        {true, true, true, RespuestaNo, {pregunta}, {"destruir"}},
        // Saving isn't built: whoever wants it keeps the work.
        {true, false, false, RespuestaSi, {pregunta}, {"no ensamblada"}},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(testing::Message() << c.serie << c.matriz << c.escalar << c.respuesta);
        EmpezarConDatos(TipoAnual, "1990#1999");
        if (c.serie) PonerSerie("A", {1, 2, 3});
        if (c.matriz) PonerMatriz("M", {1, 2}, 1, 2);
        if (c.escalar) PonerEscalar(nullptr, "E", 1);
        Prueba.respuestas = {c.respuesta};
        Ordenar(2021);
        EXPECT_EQ(Prueba.cajas, c.cajas);
        EXPECT_EQ(Pedido, c.pedido);
    }
}

TEST(Comandos, SinMemoria) {
    EmpezarPrueba();
    MensajeSinMemoria(2001, 3999, nullptr);
    EXPECT_EQ(Prueba.cajas,
              (std::vector<CajaVista>{{"Proceso cancelado", "No hay suficiente memoria. Ptos: 2001 3999",
                                       IconoInformacion, BotonesAceptar}}));
}
