// Work files, sorting and deletion of observations from the command line.
#include "lote/corrida.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using nlohmann::json;

std::vector<std::string> Mas(std::vector<std::string> a, const std::vector<std::string> &b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

json Volcado(const ResultadoCorrida &r) {
    const auto v = SucesosDe(r, "volcado");
    return v.empty() ? json() : v.back();
}

std::vector<std::string> Cajas(const ResultadoCorrida &r) {
    std::vector<std::string> textos;
    for (const json &c : SucesosDe(r, "caja"))
        textos.push_back(c["titulo"].get<std::string>() + ": " + c["texto"].get<std::string>());
    return textos;
}

TEST(LoteTrabajo, LoGuardadoSeAbre) {
    const std::string carpeta = CarpetaNueva("trabajo");
    const std::string fichero = carpeta + "/consumo de klein.TR2";
    const auto antes =
        Correr({"--json", "--tipo", "anual:1920:1941", "--importar", "klein.csv", "--procesar", "klein.txt",
                "--sentencia", "MAT MM = _COV * 2", "--guardar", fichero, "--volcado"});
    ASSERT_EQ(antes.estado, 0) << antes.errores;
    const auto despues = Correr({"--json", "--abrir", fichero, "--volcado"});
    ASSERT_EQ(despues.estado, 0) << despues.errores;
    json a = Volcado(antes), d = Volcado(despues);
    EXPECT_EQ(a["proyecto"], "consumo");
    EXPECT_FALSE(a["series"].empty());
    EXPECT_FALSE(a["matrices"].empty());
    EXPECT_FALSE(a["escalares"].empty());
    // What belongs to a session isn't in the file.
    for (json *v : {&a, &d}) v->erase("regresion");
    EXPECT_EQ(a, d);
    // The statements go on where they were.
    const auto sigue = Correr({"--json", "--abrir", fichero, "--sentencia", "MAT K = MM + MM", "--volcado"});
    EXPECT_EQ(sigue.estado, 0);
}

TEST(LoteTrabajo, LoQueNoSeAbreYLoQueNoSeGuarda) {
    const std::string carpeta = CarpetaNueva("trabajo");
    EscribirBytes(carpeta + "/ajeno.TR2", "MC Y 1\n");
    struct {
        std::vector<std::string> acciones;
        const char *mensaje;
    } const casos[] = {
        {{"--abrir", carpeta + "/no_hay.TR2"}, "Proceso cancelado: Error al abrir el archivo"},
        {{"--abrir", carpeta + "/ajeno.TR2"}, "Proceso cancelado: El archivo no es un archivo de trabajo"},
        {{"--guardar", carpeta + "/no/hay.TR2"}, "Proceso cancelado: Error al guardar el archivo de trabajo"},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.mensaje);
        const auto r = Correr(Mas({"--json", "--seguir"}, Mas(c.acciones, {"--volcado"})));
        EXPECT_EQ(r.estado, 1);
        EXPECT_EQ(Cajas(r), std::vector<std::string>{c.mensaje});
        // A work file without a data type is one without periodicity from then on.
        EXPECT_EQ(Volcado(r)["tipo"], 0);
        EXPECT_EQ(Volcado(r)["observaciones"], 4000);
    }
}

TEST(LoteTrabajo, GuardarSinTipoDeDatosYSobreescribir) {
    const std::string fichero = CarpetaNueva("trabajo") + "/vacio.TR2";
    for (int vez = 0; vez < 2; ++vez) {
        const auto r = Correr({"--json", "--respuesta", "no", "--guardar", fichero, "--volcado"});
        EXPECT_EQ(r.estado, 0) << r.errores;
        EXPECT_TRUE(Cajas(r).empty());
        EXPECT_EQ(Volcado(r)["tipo"], 0);
    }
    const auto r = Correr({"--json", "--abrir", fichero, "--sentencia", "SER A = TEND", "--volcado"});
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(Volcado(r)["series"].size(), 1u);
}

const std::vector<std::string> Datos = {"--json", "--tipo", "sin", "--importar", "datos.csv"};

ResultadoCorrida ConDatos(const std::vector<std::string> &acciones) {
    const std::string carpeta = CarpetaNueva("ordenar");
    EscribirBytes(carpeta + "/datos.csv", "A,B\n3,30\n1,10\n2,20\n");
    return Correr(Mas(Datos, Mas(acciones, {"--volcado"})), {carpeta, "", {}});
}

json Valores(const ResultadoCorrida &r, std::size_t serie) {
    return Volcado(r)["series"][serie]["valores"];
}

TEST(LoteTrabajo, Ordenar) {
    struct {
        const char *valor;
        json a, b;
    } const casos[] = {
        {"A", {1, 2, 3}, {10, 20, 30}},
        {"A:descendente", {3, 2, 1}, {30, 20, 10}},
        {"B", {1, 2, 3}, {10, 20, 30}},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.valor);
        const auto r = ConDatos({"--ordenar", c.valor});
        EXPECT_EQ(r.estado, 0) << r.errores;
        EXPECT_EQ(Valores(r, 0), c.a);
        EXPECT_EQ(Valores(r, 1), c.b);
    }
}

TEST(LoteTrabajo, EliminarObservacion) {
    const std::string pregunta = "Aviso: ¿Está seguro de desear eliminar la presente observación?";
    const auto r = ConDatos({"--eliminar-observacion", "1"});
    EXPECT_EQ(r.estado, 0) << r.errores;
    EXPECT_EQ(Cajas(r), std::vector<std::string>{pregunta});
    EXPECT_EQ(Valores(r, 0), json({1, 2}));
    EXPECT_EQ(Volcado(r)["series"][0]["ultima"], 1);
    EXPECT_EQ(Volcado(r)["observaciones"], 4000);
    const auto no = ConDatos({"--respuesta", "no", "--seguir", "--eliminar-observacion", "1"});
    EXPECT_EQ(no.estado, 1);
    EXPECT_EQ(Valores(no, 0), json({3, 1, 2}));
    EXPECT_EQ(Valores(ConDatos({"--eliminar-observacion", "4000"}), 0), json({3, 1, 2}));
}

TEST(LoteTrabajo, LoQueSeRechaza) {
    struct {
        std::vector<std::string> acciones;
        std::vector<std::string> cajas;
        const char *queja;
    } const casos[] = {
        {{"--ordenar", "A"}, {"Proceso cancelado: Tipo de datos no válido"}, ""},
        {{"--eliminar-observacion", "1"}, {"Proceso cancelado: Tipo de datos no válido"}, ""},
        {{"--tipo", "anual:1990:1999", "--ordenar", "A"},
         {},
         "tabira-lote: --ordenar solo es posible con datos sin periodicidad\n"},
        {{"--tipo", "anual:1990:1999", "--eliminar-observacion", "1"},
         {},
         "tabira-lote: --eliminar-observacion solo es posible con datos sin periodicidad\n"},
        {{"--tipo", "sin", "--ordenar", "NADA"}, {"Aviso: Serie desconocida"}, ""},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(c.acciones.back());
        const auto r = Correr(Mas({"--json"}, c.acciones));
        EXPECT_EQ(r.estado, 1);
        EXPECT_EQ(Cajas(r), c.cajas);
        EXPECT_EQ(r.errores, c.queja);
    }
    // The codes are checked first, and the command ends with that.
    const std::string carpeta = CarpetaNueva("codigos");
    EscribirBytes(carpeta + "/datos.csv", "A,A\n2,20\n1,10\n");
    for (const std::vector<std::string> &accion : {std::vector<std::string>{"--ordenar", "A"},
                                                   std::vector<std::string>{"--eliminar-observacion", "1"}}) {
        const auto r = Correr(Mas(Datos, Mas(accion, {})), {carpeta, "", {}});
        EXPECT_EQ(r.estado, 1);
        EXPECT_EQ(Cajas(r), std::vector<std::string>{"Proceso cancelado: Códigos repetidos : A           "});
    }
}

} // namespace
