// tabira-lote from outside: its actions, events and exit status.
#include "lote/corrida.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using nlohmann::json;

const std::vector<std::string> Klein = {"--tipo",    "anual:1920:1941", "--importar",
                                        "klein.csv", "--procesar",      "klein.txt"};

std::vector<std::string> Mas(std::vector<std::string> a, const std::vector<std::string> &b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

json BuscarCodigo(const json &lista, const std::string &codigo) {
    for (const json &e : lista)
        if (e["codigo"] == codigo) return e;
    return nullptr;
}

// The published coefficients, to the three decimals of their publication.
const double CoeficientesDeKlein[] = {16.237, 0.193, 0.090, 0.796};

TEST(Lote, KleinDelArchivoAlInforme) {
    const auto r = Correr(Mas({"--json"}, Mas(Klein, {"--volcado"})));
    EXPECT_EQ(r.estado, 0) << r.errores;
    EXPECT_EQ(r.errores, "");
    const auto sucesos = Sucesos(r);
    ASSERT_EQ(sucesos.size(), 5u) << r.salida;

    EXPECT_EQ(sucesos[0], json({{"suceso", "caja"},
                                {"titulo", "Aviso"},
                                {"texto", "¿Desea ver la regresion?"},
                                {"icono", "pregunta"},
                                {"botones", "si-no"},
                                {"respuesta", "si"},
                                {"linea", 4},
                                {"sentencia", "MC CONSUMO 1 BENEF BENEF(-1) SALARIOS"}}));

    const json &salida = sucesos[1];
    EXPECT_EQ(salida["suceso"], "salida");
    EXPECT_EQ(salida["ventana"], "resultado");
    EXPECT_EQ(salida["titulo"], "Mínimos cuadrados ordinarios");
    EXPECT_EQ(salida["clase"], 8);
    EXPECT_EQ(salida["contenido"], 0);
    EXPECT_EQ(salida["lineas"][0], json({0, "Variable Dep.: CONSUMO"}));

    EXPECT_EQ(sucesos[2]["suceso"], "regresion");
    const json &volcado = sucesos[3];
    EXPECT_EQ(volcado["suceso"], "volcado");
    EXPECT_EQ(volcado["proyecto"], "PROYEC01");
    EXPECT_EQ(volcado["tipo"], 1);
    EXPECT_EQ(volcado["intervalo"], "1920#1941");
    EXPECT_EQ(volcado["observaciones"], 22);
    EXPECT_EQ(volcado["etiquetas"], false);
    EXPECT_EQ(volcado["muestra"], json({0, 21}));
    EXPECT_EQ(volcado["regresion"], json({1, 21}));
    EXPECT_EQ(volcado["decimales"], 2);
    EXPECT_EQ(volcado["periodos"].size(), 22u);
    EXPECT_EQ(volcado["periodos"][0], "1920");
    EXPECT_FALSE(volcado.contains("rotulos"));
    EXPECT_EQ(BuscarCodigo(volcado["series"], "CONSUMO")["valores"][0], 39.8);
    // The residuals start where the lag lets them.
    const json residuos = BuscarCodigo(volcado["series"], "_RES");
    ASSERT_EQ(residuos["valores"].size(), 22u);
    EXPECT_TRUE(residuos["valores"][0].is_null());
    const json beta = BuscarCodigo(volcado["matrices"], "_BETA");
    ASSERT_EQ(beta["filas"], 4);
    ASSERT_EQ(beta["columnas"], 1);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(beta["datos"][i].get<double>(), CoeficientesDeKlein[i], 0.0005);

    EXPECT_EQ(sucesos[4], json({{"suceso", "fin"}, {"estado", 0}}));
}

TEST(Lote, InformeParaPersonas) {
    const auto r = Correr(Klein);
    EXPECT_EQ(r.estado, 0);
    const std::string regla = "+" + std::string(72, '-') + "+\n";
    EXPECT_NE(r.salida.find("[Aviso] ¿Desea ver la regresion? -> si\n"), std::string::npos) << r.salida;
    EXPECT_NE(r.salida.find("\nMínimos cuadrados ordinarios\n" + regla + "| Variable Dep.: CONSUMO"),
              std::string::npos);
    // Every line of the block is as wide as its rules, accents or not.
    EXPECT_NE(r.salida.find("| Muestra      : 1921 - 1941"), std::string::npos);
    EXPECT_NE(r.salida.find("Nº Observaciones     : 21         "), std::string::npos) << r.salida;
    for (const char *cifra : {"16.236", "0.1929", "0.0898", "0.7962"})
        EXPECT_NE(r.salida.find(cifra), std::string::npos) << cifra << "\n" << r.salida;
}

struct CasoLinea {
    std::vector<std::string> argumentos;
    std::string queja; // part of the one line on standard error
};

TEST(Lote, LineasQueNoSePuedenLeer) {
    const CasoLinea Casos[] = {
        {{"--volar"}, "acción desconocida: '--volar'"},
        {{"klein.csv"}, "acción desconocida: 'klein.csv'"},
        {{"--importar"}, "falta el valor de --importar"},
        {{"--tipo", "semanal"}, "valor incorrecto de --tipo: 'semanal'"},
        {{"--formato", "libre"}, "valor incorrecto de --formato"},
        {{"--respuesta", "quizás"}, "valor incorrecto de --respuesta: 'quizás'"},
        {{"--decimales", "7"}, "valor incorrecto de --decimales"},
        {{"--decimales", "-1"}, "valor incorrecto de --decimales"},
        {{"--decimales", ""}, "valor incorrecto de --decimales"},
        {{"--relacion", "todo"}, "valor incorrecto de --relacion"},
        {{"--borrar", "X"}, "valor incorrecto de --borrar"},
        {{"--borrar", "serie:"}, "valor incorrecto de --borrar"},
        {{"--abrir", ""}, "valor incorrecto de --abrir"},
        {{"--guardar", ""}, "valor incorrecto de --guardar"},
        {{"--ordenar", ""}, "valor incorrecto de --ordenar"},
        {{"--ordenar", ":descendente"}, "valor incorrecto de --ordenar"},
        {{"--ordenar", "A:"}, "valor incorrecto de --ordenar"},
        {{"--ordenar", "A:ascendente"}, "valor incorrecto de --ordenar"},
        {{"--ordenar", "A:descendent"}, "valor incorrecto de --ordenar"},
        {{"--eliminar-observacion", ""}, "valor incorrecto de --eliminar-observacion"},
        {{"--eliminar-observacion", "0"}, "valor incorrecto de --eliminar-observacion"},
        {{"--eliminar-observacion", "4001"}, "valor incorrecto de --eliminar-observacion"},
        {{"--eliminar-observacion", "-1"}, "valor incorrecto de --eliminar-observacion"},
        {{"--eliminar-observacion", "1.5"}, "valor incorrecto de --eliminar-observacion"},
        {{"--eliminar-observacion", "00001"}, "valor incorrecto de --eliminar-observacion"},
        {{"--grafico", "nada"}, "valor incorrecto de --grafico"},
        {{"--histograma", "X:nada"}, "valor incorrecto de --histograma"},
        {{"--graficos", ""}, "valor incorrecto de --graficos"},
        {{"--listado", "series"}, "valor incorrecto de --listado"},
        {{"--listado", "residuos"}, "valor incorrecto de --listado"},
        {{"--listado", "escalares:A"}, "valor incorrecto de --listado"},
        {{"--imprimir", ""}, "valor incorrecto de --imprimir"},
        {{"dos\nlíneas\r\t\x01"}, "acción desconocida: 'dos líneas   '"},
        {{"--tipo", "sin\nmás"}, "valor incorrecto de --tipo: 'sin más'"},
    };
    for (const CasoLinea &caso : Casos) {
        SCOPED_TRACE(caso.queja);
        // Nothing is carried out, not even what stands in front.
        const auto r = Correr(Mas({"--tipo", "sin", "--volcado"}, caso.argumentos));
        EXPECT_EQ(r.estado, 2);
        EXPECT_EQ(r.salida, "");
        EXPECT_NE(r.errores.find(caso.queja), std::string::npos) << r.errores;
        EXPECT_EQ(r.errores.find('\n'), r.errores.size() - 1) << "one line";
        const auto conSucesos = Correr(Mas({"--json"}, caso.argumentos));
        EXPECT_EQ(conSucesos.estado, 2);
        EXPECT_EQ(conSucesos.salida, "{\"suceso\":\"fin\",\"estado\":2}\n");
    }
}

TEST(Lote, SinAccionesYConAyudaMuestraElUso) {
    for (const auto &argumentos : {std::vector<std::string>{}, std::vector<std::string>{"--ayuda"}}) {
        const auto r = Correr(argumentos);
        EXPECT_EQ(r.estado, 0);
        for (const char *accion :
             {"--json", "--tipo", "--formato", "--importar", "--exportar", "--procesar", "--sentencia",
              "--seguir", "--respuesta", "--decimales", "--borrar", "--relacion", "--muestra-actual",
              "--ultima-regresion", "--imprimir", "--imprimir-salidas", "--listado", "--traza", "--volcado"})
            EXPECT_NE(r.salida.find(accion), std::string::npos) << accion;
    }
}

struct CasoEstado {
    std::vector<std::string> argumentos;
    int estado;
    std::vector<std::string> cajas;
};

TEST(Lote, EstadoDeSalida) {
    const CasoEstado Casos[] = {
        {{"--sentencia", "SER X = 1"}, 1, {"Tipo de datos no válidos"}},
        {{"--procesar", "klein.txt"}, 1, {"Tipo de datos no válidos"}},
        {{"--importar", "klein.csv"}, 1, {"Tipo de datos no válidos"}},
        {{"--exportar", "nada.csv"}, 1, {"Tipo de datos no válidos"}},
        {{"--muestra-actual"}, 1, {"Tipo de datos no válidos"}},
        {{"--tipo", "anual:1990:2005", "--sentencia", "SER X = 1"}, 0, {}},
        {{"--tipo", "anual:1990:2005", "--sentencia", "SER X = (1"}, 1, {"Número inadecuado de paréntesis"}},
        // A statement that shows a message and lets the batch go on is no failure.
        {{"--tipo", "anual:1990:2005", "--sentencia", "SER FICTIC NADA"}, 0, {"(NADA        )"}},
        {{"--tipo", "anual:1800:2005"}, 1, {"Año mínimo no válido"}},
        {{"--tipo", "sin", "--importar", "no_existe.csv"}, 1, {"Error al abrir el archivo"}},
        {{"--tipo", "sin", "--importar", "no-existe.csv"}, 1, {"Nombre archivo incorrecto"}},
        // Actions behind a failed one are not carried out, unless --seguir stands before it.
        {{"--tipo", "sin", "--sentencia", "SER X = (1", "--sentencia", "SER X = )1"},
         1,
         {"Número inadecuado de paréntesis"}},
        {{"--seguir", "--tipo", "sin", "--sentencia", "SER X = (1", "--sentencia", "SER X = [1"},
         1,
         {"Número inadecuado de paréntesis", "Número inadecuado de corchetes"}},
        {{"--tipo", "sin", "--sentencia", "SER X = (1", "--seguir", "--sentencia", "SER X = [1"},
         1,
         {"Número inadecuado de paréntesis"}},
        // A cancelled question.
        {{"--tipo", "sin", "--importar", "norris.csv", "--respuesta", "cancelar", "--importar", "norris.csv"},
         1,
         {"Existen Series ¿Desea sustituirlas?"}},
    };
    for (const CasoEstado &caso : Casos) {
        std::string linea;
        for (const std::string &a : caso.argumentos) linea += a + " ";
        SCOPED_TRACE(linea);
        const auto r = Correr(Mas({"--json"}, caso.argumentos));
        EXPECT_EQ(r.estado, caso.estado) << r.salida << r.errores;
        std::vector<std::string> cajas;
        for (const json &c : SucesosDe(r, "caja")) cajas.push_back(c["texto"]);
        EXPECT_EQ(cajas, caso.cajas);
        EXPECT_EQ(Sucesos(r).back(), json({{"suceso", "fin"}, {"estado", caso.estado}}));
    }
}

TEST(Lote, ArchivosQueFaltanDicenUnaLinea) {
    const auto r = Correr({"--tipo", "sin", "--procesar", "no_existe.txt"});
    EXPECT_EQ(r.estado, 1);
    EXPECT_EQ(r.errores, "tabira-lote: no se puede leer 'no_existe.txt'\n");
    EXPECT_EQ(Correr({"--tipo", "sin", "--procesar", "no\nexiste\n"}).errores,
              "tabira-lote: no se puede leer 'no existe '\n");
    EXPECT_EQ(Correr({"--tipo", "sin", "--procesar", "/dev/zero"}).errores,
              "tabira-lote: no se puede leer '/dev/zero'\n");
    EXPECT_EQ(Correr({"--tipo", "sin", "--sentencia", "SER X = 1", "--imprimir", "no/hay\n/x.pdf",
                      "--listado", "series:X"})
                  .errores,
              "tabira-lote: no se puede escribir 'no/hay /x.pdf'\n");
}

TEST(Lote, RespuestaNoOcultaElInforme) {
    const auto r = Correr(Mas({"--json", "--respuesta", "no"}, Klein));
    EXPECT_EQ(r.estado, 0);
    const auto sucesos = Sucesos(r);
    ASSERT_EQ(sucesos.size(), 2u);
    EXPECT_EQ(sucesos[0]["respuesta"], "no");
}

TEST(Lote, EntradaEstandarYCodificaciones) {
    const std::string sentencias = "CAL 2 + 3 * 4\n; comentario con eñe: ñ\nESC A = 7\nPEÑA X\n";
    const std::string en1252 = "CAL 2 + 3 * 4\n; comentario con e\xF1"
                               "e: \xF1\nESC A = 7\nPE\xD1"
                               "A X\n";
    for (const std::string &texto : {sentencias, en1252, "\xEF\xBB\xBF" + sentencias}) {
        const auto r =
            Correr({"--json", "--tipo", "sin", "--procesar", "-"}, {.carpeta = {}, .entrada = texto});
        EXPECT_EQ(r.estado, 1);
        const auto cajas = SucesosDe(r, "caja");
        ASSERT_EQ(cajas.size(), 2u) << r.salida;
        EXPECT_EQ(cajas[0]["titulo"], "Resultado");
        EXPECT_EQ(cajas[0]["texto"], "  14.0000 ");
        EXPECT_EQ(cajas[1]["texto"], "Funciones o parámetros no válidos: \n (PEÑA)");
        EXPECT_EQ(cajas[1]["titulo"], "Proceso Cancelado");
    }
}

TEST(Lote, RelacionesYBorrado) {
    const auto r =
        Correr({"--json",    "--tipo",      "anual:1990:1992", "--sentencia", "SER X = TEND",  "--sentencia",
                "SER Y = X", "--sentencia", "ESC A = 2",       "--sentencia", "MAT M = {X Y}", "--relacion",
                "series",    "--relacion",  "matrices",        "--relacion",  "escalares",     "--borrar",
                "serie:X",   "--borrar",    "matriz:M",        "--borrar",    "escalar:A",     "--relacion",
                "series",    "--seguir",    "--borrar",        "escalar:A"});
    EXPECT_EQ(r.estado, 1) << "the scalar was gone";
    const auto salidas = SucesosDe(r, "salida");
    ASSERT_EQ(salidas.size(), 4u) << r.salida;
    EXPECT_EQ(salidas[0], json({{"suceso", "salida"},
                                {"ventana", "relacion"},
                                {"titulo", "Relación de series"},
                                {"lineas", json::array({{0, "X"}, {0, "Y"}})}}));
    EXPECT_EQ(salidas[1]["titulo"], "Relación de matrices");
    EXPECT_EQ(salidas[1]["lineas"], json::array({{0, "M              ( 3, 2)"}}));
    EXPECT_EQ(salidas[2]["titulo"], "Relación de escalares");
    EXPECT_EQ(salidas[2]["lineas"], json::array({{0, "NOBS    =   3"}, {0, "A           =   2.0000"}}));
    EXPECT_EQ(salidas[3]["lineas"], json::array({{0, "Y"}}));
    EXPECT_EQ(r.errores, "tabira-lote: no se ha borrado 'escalar:A'\n");
}

TEST(Lote, MuestraActual) {
    const auto r = Correr({"--json", "--tipo", "trimestral:1995.1:1996.4", "--sentencia",
                           "MUEST 1995.2 1996.1", "--muestra-actual"});
    const auto salidas = SucesosDe(r, "salida");
    ASSERT_EQ(salidas.size(), 1u) << r.salida;
    EXPECT_EQ(salidas[0]["ventana"], "muestra");
    EXPECT_EQ(salidas[0]["titulo"], "Muestra actual");
    EXPECT_EQ(salidas[0]["lineas"], json::array({{0, "Período inicial: 1995.2"},
                                                 {0, "Período final: 1996.1"},
                                                 {0, "Muestra máxima: 1995.1#1996.4"},
                                                 {0, "Número máximo datos: 8"}}));
}

TEST(Lote, VolcadoDeValoresQueFaltanYNoFinitos) {
    const auto r =
        Correr({"--json", "--tipo", "anual:1990:1992", "--sentencia", "SER X = TEND", "--sentencia",
                "OBS X[1992] = 5", "--sentencia", "SER Y = X(-1)", "--sentencia", "ESC N = POT(0-1, 0.5)",
                "--sentencia", "ESC I = POT(10, 400)", "--sentencia", "ESC D = 1 / 3", "--volcado"});
    ASSERT_EQ(r.estado, 0) << r.salida;
    const json v = SucesosDe(r, "volcado").at(0);
    EXPECT_EQ(BuscarCodigo(v["series"], "Y")["valores"], json::array({nullptr, 1.0, 2.0}));
    EXPECT_EQ(BuscarCodigo(v["escalares"], "I")["valor"], "inf");
    EXPECT_EQ(BuscarCodigo(v["escalares"], "N")["valor"], "nan");
    EXPECT_NE(r.salida.find("{\"codigo\":\"D\",\"valor\":0.33333333333333331}"), std::string::npos);
}

// The bounds as they stand: the dump alone doesn't refresh the sample.
TEST(Lote, VolcadoNoMueveLaMuestra) {
    const auto r =
        Correr({"--json", "--tipo", "anual:1990:1995", "--volcado", "--relacion", "series", "--volcado"});
    const auto volcados = SucesosDe(r, "volcado");
    ASSERT_EQ(volcados.size(), 2u) << r.salida;
    EXPECT_EQ(volcados[0]["muestra"], json({0, 0}));
    EXPECT_EQ(volcados[1]["muestra"], json({0, 5}));
}

TEST(Lote, VolcadoConRotulos) {
    const std::string carpeta = CarpetaNueva("rotulos");
    EscribirBytes(carpeta + "/r.csv", "\"\",X\n\"Pe\xF1\xF3n\",1\n\"Dos\",2\n");
    const auto r =
        Correr({"--json", "--tipo", "sin,etiquetas", "--formato",
                "variable:separador=coma,delimitador=comillas,delimitados=etiquetas,codigos,etiquetas=1",
                "--importar", "r.csv", "--volcado"},
               {.carpeta = carpeta, .entrada = {}});
    ASSERT_EQ(r.estado, 0) << r.salida << r.errores;
    const json v = SucesosDe(r, "volcado").at(0);
    EXPECT_EQ(v["etiquetas"], true);
    ASSERT_EQ(v["rotulos"].size(), 4000u);
    EXPECT_EQ(v["rotulos"][0], "Peñón");
    EXPECT_EQ(v["rotulos"][1], "Dos");
    EXPECT_EQ(v["rotulos"][2], "");
}

TEST(Lote, VolcadoParaPersonas) {
    const auto r =
        Correr({"--tipo", "anual:1990:1992", "--sentencia", "SER X = TEND", "--sentencia", "SER Y = X(-1)",
                "--sentencia", "ESC A = 2", "--sentencia", "MAT M = {X X}", "--volcado"});
    EXPECT_EQ(r.salida, "Archivo de trabajo PROYEC01, tipo 1, intervalo 1990#1992, 3 observaciones\n"
                        "Muestra: filas 1 a 2; regresión: 0 a 0\n"
                        "Serie X           : 1 2 3\n"
                        "Serie Y           : --- 1 2\n"
                        "Escalar A           = 2\n"
                        "Matriz M           (2,2)\n"
                        "    2 2\n"
                        "    3 3\n");
}

TEST(Lote, LoMismoEnEspanolYEnUnaCarpetaConAcentos) {
    const std::string carpeta = CarpetaNueva("año de prueba é");
    for (const char *f : {"klein.csv", "klein.txt"})
        std::filesystem::copy_file(std::string(TABIRA_DATOS) + "/" + f, carpeta + "/" + f);
    const auto linea =
        Mas({"--json"}, Mas(Klein, {"--decimales", "4", "--exportar", "vuelta.csv", "--volcado"}));
    const std::string llano = CarpetaNueva("llano");
    for (const char *f : {"klein.csv", "klein.txt"})
        std::filesystem::copy_file(std::string(TABIRA_DATOS) + "/" + f, llano + "/" + f);
    const auto base = Correr(linea, {.carpeta = llano, .entrada = {}, .variables = {{"LC_ALL", "C"}}});
    const auto espanol =
        Correr(linea, {.carpeta = carpeta,
                       .entrada = {},
                       .variables = {{"LC_ALL", "es_ES.UTF-8"}, {"LOCPATH", TABIRA_LOCPATH}}});
    EXPECT_EQ(base.estado, 0) << base.salida << base.errores;
    EXPECT_EQ(espanol.estado, 0);
    EXPECT_EQ(espanol.salida, base.salida);
    EXPECT_EQ(LeerBytes(carpeta + "/vuelta.csv"), LeerBytes(llano + "/vuelta.csv"));
    EXPECT_NE(LeerBytes(carpeta + "/vuelta.csv").find("39.8000"), std::string::npos);
    // The whole path, too.
    const auto ruta =
        Correr({"--json", "--tipo", "anual:1920:1941", "--importar", carpeta + "/klein.csv", "--volcado"});
    EXPECT_EQ(ruta.estado, 0) << ruta.salida;
}

TEST(Lote, EntradasDisparatadas) {
    const std::string largo(100000, 'A');
    const std::string Textos[] = {
        "SER X = " + largo + "\n",
        "SER X = " + std::string(10000, '(') + "1" + std::string(10000, ')') + "\n",
        "MAT X = " + std::string(10000, '(') + "1" + std::string(10000, ')') + "\n",
        "SER X = Y(0)\n",
        "SER X = Y[99999999999]\n",
        "ESC X = M[0,0]\n",
        "MC " + largo + " 1\n",
        largo + "\n",
        std::string("SER X = \x01\x02\xFF\n"),
        "REPITE J DESDE 1 HASTA 2\nSER X = (\n",
    };
    for (const std::string &texto : Textos) {
        SCOPED_TRACE(texto.substr(0, 40));
        const auto r = Correr({"--json", "--tipo", "sin", "--sentencia", "SER Y = TEND", "--procesar", "-",
                               "--seguir", "--volcado"},
                              {.carpeta = {}, .entrada = texto});
        EXPECT_EQ(r.estado, 1) << r.errores;
        EXPECT_FALSE(SucesosDe(r, "caja").empty());
    }
}

// One observation only: the automatic sample then ends at row 100,000, beyond every table. What computes row by row stops
// at the last one; a regression and a matrix are refused.
TEST(Lote, MuestraSinDatos) {
    const std::string carpeta = CarpetaNueva("datos");
    EscribirBytes(carpeta + "/una.csv", "X,Y\n1,2\n");
    static constexpr struct {
        const char *sentencia;
        bool pasa;
    } Sentencias[] = {{"SER Z = X + 1", true},
                      {"ESC A = X", true},
                      {"MC Y 1 X", false},
                      {"MAT M = {X Y}", false},
                      {"OBS X[2] = 3", true}};
    for (const auto &s : Sentencias) {
        SCOPED_TRACE(s.sentencia);
        const auto r =
            Correr({"--json", "--tipo", "sin", "--importar", "una.csv", "--sentencia", s.sentencia},
                   {.carpeta = carpeta, .entrada = {}});
        EXPECT_EQ(r.estado, s.pasa ? 0 : 1) << r.salida;
        EXPECT_EQ(SucesosDe(r, "caja").empty(), s.pasa);
    }
    const auto r = Correr({"--json", "--tipo", "sin", "--importar", "una.csv", "--muestra-actual",
                           "--exportar", "v.csv", "--volcado"},
                          {.carpeta = carpeta, .entrada = {}});
    EXPECT_EQ(r.estado, 0) << r.salida << r.errores;
    EXPECT_EQ(SucesosDe(r, "volcado").at(0)["muestra"], json({0, 100000}));
}

// The listings of the last regression.
TEST(Lote, ListadosDeLaRegresion) {
    static constexpr struct {
        const char *cual, *titulo;
        int contenido;
        std::size_t lineas, fijas;
        const char *enPapel; // first line
    } Casos[] = {
        // Four regressors; 21 observations, since one has a lag.
        {"covarianza", "Matriz de covarianza", 1, 10, 0,
         "Matriz de covarianza de los estimadores      Página.:   1"},
        {"valores", "Valores observados", 2, 21, 2,
         "MC CONSUMO 1 BENEF BENEF(-1) SALARIOS              Página.:  1"},
        {"varianza", "Análisis de la varianza", 3, 5, 0, "Análisis de la varianza de la regresión"},
    };
    for (const auto &caso : Casos) {
        SCOPED_TRACE(caso.cual);
        const auto r = Correr(Mas(Mas({"--json", "--imprimir-salidas"}, Klein), {"--listado", caso.cual}));
        EXPECT_EQ(r.estado, 0) << r.errores;
        const auto salidas = SucesosDe(r, "salida"), impresiones = SucesosDe(r, "impresion");
        ASSERT_EQ(salidas.size(), 2u) << "the report, then the listing";
        const json &s = salidas.back();
        EXPECT_EQ(s["ventana"], "resultado");
        EXPECT_EQ(s["titulo"], caso.titulo);
        EXPECT_EQ(s["clase"], 8);
        EXPECT_EQ(s["contenido"], caso.contenido);
        EXPECT_EQ(s["lineas"].size(), caso.lineas);
        EXPECT_EQ(s.contains("fijas") ? s["fijas"].size() : 0, caso.fijas);
        ASSERT_EQ(impresiones.size(), 2u);
        EXPECT_EQ(impresiones.back()["titulo"], caso.titulo);
        EXPECT_EQ(impresiones.back()["paginas"].at(0).at(0), caso.enPapel);
    }
}

TEST(Lote, ListadosDeLaRegresionQueSeNiegan) {
    const std::vector<std::string> Datos = {"--json", "--tipo", "anual:1920:1941", "--importar", "klein.csv"};
    const struct {
        std::vector<std::string> antes;
        const char *cual, *titulo, *texto;
    } Casos[] = {
        {{"--json"}, "covarianza", "Proceso cancelado", "Tipo de datos no válido"},
        {Datos, "covarianza", "Aviso", "Efectue primero una regresión"},
        {Datos, "valores", "Aviso", "Efectue primero una regresión"},
        {Mas(Datos, {"--sentencia", "VSR NO", "--sentencia", "MC CONSUMO BENEF SALPRIV"}), "varianza",
         "Aviso", "Introduzca el término independiente"},
    };
    for (const auto &caso : Casos) {
        SCOPED_TRACE(caso.texto);
        const auto r = Correr(Mas(caso.antes, {"--listado", caso.cual}));
        EXPECT_EQ(r.estado, 1);
        const auto cajas = SucesosDe(r, "caja");
        ASSERT_EQ(cajas.size(), 1u) << r.salida;
        EXPECT_EQ(cajas[0]["titulo"], caso.titulo);
        EXPECT_EQ(cajas[0]["texto"], caso.texto);
        EXPECT_TRUE(SucesosDe(r, "salida").empty());
    }
}

TEST(Lote, Ecuaciones) {
    std::vector<std::string> linea = {"--json", "--tipo", "anual:1990:1999"};
    for (const char *e : {"CONS=CONSUMO 1 RENTA", "CONS=OTRA 1", " AÑO = Y = 1 ", "VACIA=", "=Y 1"}) {
        linea.emplace_back("--ecuacion");
        linea.emplace_back(e);
    }
    linea.emplace_back("--volcado");
    const auto r = Correr(linea);
    EXPECT_EQ(r.estado, 0) << r.errores;
    const auto sucesos = Sucesos(r);
    ASSERT_EQ(sucesos.size(), 2u) << r.salida;
    EXPECT_EQ(sucesos[0]["ecuaciones"], json::parse(R"([{"codigo": "CONS", "texto": "CONSUMO 1 RENTA"},
                                                        {"codigo": "AÑO", "texto": "Y = 1"}])"));

    const auto sinIgual = Correr({"--ecuacion", "CONS"});
    EXPECT_EQ(sinIgual.estado, 2);
    EXPECT_EQ(sinIgual.errores, "tabira-lote: valor incorrecto de --ecuacion: 'CONS'\n");

    const auto sinTipo = Correr({"--ecuacion", "CONS=Y 1"});
    EXPECT_EQ(sinTipo.estado, 1);
    EXPECT_EQ(sinTipo.salida, "[Proceso cancelado] Tipo de datos no válidos\n");
}

} // namespace
