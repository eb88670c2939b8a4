// The record format of the batch program: its argument, and imports and exports with it.
#include "data/ascii_apoyo.h"
#include "lote/formato.h"
#include "platform/archivos.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

// What a format says, by what it makes of the dialog: separator, delimiter, then L (labels only delimited), C (codes),
// the labels mode, D (decimal commas), P (panel fields); over panel data, where every control counts.
std::string Resumen(const FormatoAscii &f) {
    std::string r;
    if (!f.esVariable) {
        for (const EdicionCampo &c : f.filas)
            r += c.tipo + "/" + c.inicio + "/" + c.longitud + "/" + c.codigo + ";";
        return Utf8De1252(r) + (f.comas ? "comas" : "");
    }
    PrepararAscii(TipoPanel, 2);
    const OpcionesIntercambio o = Variable(f.valores);
    r += o.Separador;
    r += o.Delimitador == '\0' ? '0' : o.Delimitador;
    if (o.SoloEtiquetas != 0) r += 'L';
    if (o.PrimerRegistroCodigos != 0) r += 'C';
    r += Formatear("%d", o.ModoEtiquetas);
    if (o.DecimalesConComas != 0) r += 'D';
    if (o.CamposPanel != 0) r += 'P';
    return Utf8De1252(r);
}

struct CasoFormato {
    const char *argumento;
    const char *resumen; // null: can't be read
};

const CasoFormato Formatos[] = {
    {"variable", ",\"L0"},
    {"variable:separador=coma", ",\"L0"},
    {"variable:separador=tab", "\t\"L0"},
    {"variable:separador=;", ";\"L0"},
    {"variable:separador= ", " \"L0"},
    {"variable:separador=,", ",\"L0"},
    {"variable:separador=,,codigos", ",\"LC0"},
    {"variable:separador=§", "§\"L0"},
    {"variable:delimitador=comillas", ",\"L0"},
    {"variable:delimitador=nada", ",0L0"},
    {"variable:delimitador='", ",'L0"},
    {"variable:delimitador=,", ",,L0"},
    {"variable:delimitados=todo", ",\"0"},
    {"variable:delimitados=todo,delimitados=etiquetas", ",\"L0"}, // the last one holds
    {"variable:codigos", ",\"LC0"},
    {"variable:etiquetas=0", ",\"L0"},
    {"variable:etiquetas=1", ",\"L1"},
    {"variable:etiquetas=3", ",\"L2"},
    {"variable:etiquetas=3,etiquetas=1", ",\"L1"},
    {"variable:comas", ",\"L0D"},
    {"variable:panel", ",\"L0P"},
    {"variable:separador=c", "c\"L0"},
    {"variable:separador=;,delimitador=',delimitados=todo,codigos,etiquetas=3,comas,panel", ";'C2DP"},
    {"variable:", nullptr},
    {"variable:,", nullptr},
    {"variable:codigos,", nullptr},
    {"variable:,codigos", nullptr},
    {"variable:codigos,,comas", nullptr},
    {"variable:separador=", nullptr},
    {"variable:separador=,codigos", nullptr},
    {"variable:separador=ab", nullptr},
    {"variable:delimitador=", nullptr},
    {"variable:delimitados=nada", nullptr},
    {"variable:etiquetas=2", nullptr},
    {"variable:etiquetas=", nullptr},
    {"variable:Codigos", nullptr},
    {"variable: codigos", nullptr},
    {"variable:codigoscomas", nullptr},
    {"variables", nullptr},
    {"Variable", nullptr},
    {"", nullptr},
    {"fijo", nullptr},
    {"fijo:", nullptr},
    {"fijo:N/1/5/X", "N/1/5/X;"},
    {"fijo:N/1/5/X;A/6/12/DENO", "N/1/5/X;A/6/12/DENO;"},
    {"fijo:N/1/5/X,comas", "N/1/5/X;comas"},
    {"fijo:n/1/5/AÑO;N/6/5/Y,comas", "n/1/5/AÑO;N/6/5/Y;comas"},
    {"fijo:N/1/5/A/B", "N/1/5/A/B;"},
    {"fijo:///", "///;"}, // to be refused by "Añadir"
    {"fijo:N/1/5", nullptr},
    {"fijo:N/1/5/X;", nullptr},
    {"fijo:;N/1/5/X", nullptr},
    {"fijo:NN/1/5/X", nullptr},
    {"fijo:N/1/5/X;;N/6/5/Y", nullptr},
    {"fijo:,comas", nullptr},
};

TEST(FormatoLote, Leer) {
    for (const CasoFormato &caso : Formatos) {
        SCOPED_TRACE(caso.argumento);
        FormatoAscii f;
        f.filas.push_back({"ANTES", "N", "1", "1"});
        f.esVariable = false;
        ASSERT_EQ(LeerFormato(Texto1252DeUtf8(caso.argumento), f), caso.resumen != nullptr);
        EXPECT_EQ(Resumen(f), caso.resumen != nullptr ? caso.resumen : "N/1/1/ANTES;");
    }
}

// The program starts with the codes in the first record; a --formato begins from the dialog, which has them off.
TEST(FormatoLote, Inicial) {
    EXPECT_EQ(Resumen(FormatoInicial()), ",\"LC0");
}

struct Ejecutar : testing::Test {
    const std::string ruta = "datos.txt";
    void SetUp() override {
        EntrarEnCarpeta();
        PrepararAscii(TipoSinPeriodicidad, 2);
    }
    void TearDown() override { SalirDeCarpeta(); }

    bool Con(const char *formato, bool importar) {
        FormatoAscii f;
        EXPECT_TRUE(LeerFormato(Texto1252DeUtf8(formato), f));
        Prueba.cajas.clear();
        return EjecutarIntercambio(nullptr, f, importar, ruta);
    }
    void Archivo(const char *contenido) { ASSERT_TRUE(EscribirArchivo(ruta, contenido)); }
};

TEST_F(Ejecutar, Variable) {
    Archivo("X;Y\n1,5;2\n");
    EXPECT_TRUE(Con("variable:separador=;,codigos,comas", true));
    EXPECT_EQ(VolcadoSeries(2), "X: 1.5 . / Y: 2 .");
    EXPECT_TRUE(EjecutarIntercambio(nullptr, FormatoInicial(), true, ruta));
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"Existen Series ¿Desea sustituirlas?"});
}

TEST_F(Ejecutar, CanceladoYSinTipo) {
    PonerSerie("X", {1});
    Archivo("5\n");
    Prueba.respuestas = {RespuestaCancelar};
    EXPECT_FALSE(Con("variable", true));
    EXPECT_EQ(VolcadoSeries(1), "X: 1");
    ArchivoTrabajo.TipoDatos = SinTipoDatos;
    EXPECT_FALSE(Con("fijo:N/1/1/X", false));
    EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{"Tipo de datos no válidos"});
}

TEST_F(Ejecutar, FijoSustituyeLaTabla) {
    ASSERT_TRUE(AnadirFilas(true, {"N/1/1/VIEJA"}));
    Archivo("12\n34\n");
    EXPECT_TRUE(Con("fijo:N/2/1/X;N/1/1/Y", true));
    EXPECT_EQ(VolcadoSeries(2), "X: 2 4 / Y: 1 3");
    std::filesystem::remove(ruta);
    EXPECT_TRUE(Con("fijo:N/3/4/Y,comas", false))
        << "not refused as repeated: the dialog's own rows are gone";
    std::string escrito;
    ASSERT_TRUE(LeerArchivo(ruta, escrito));
    EXPECT_EQ(escrito, "  1,00\n  3,00\n");
}

TEST_F(Ejecutar, FilaRechazada) {
    PonerSerie("X", {1, 2});
    EXPECT_FALSE(Con("fijo:N/1/4/X;N/5/4/NOHAY;A/0/4/DENO;A/9/4/DENO", false));
    EXPECT_EQ(TextosDeCajas(),
              (std::vector<std::string>{"Nombre de serie no existe", "Posición de inicio no válida"}));
    std::string escrito;
    ASSERT_TRUE(LeerArchivo(ruta, escrito)) << "the others are used";
    EXPECT_EQ(escrito, "1.00        \n2.00        \n");
}

TEST_F(Ejecutar, NingunaFila) {
    Archivo("1\n");
    EXPECT_FALSE(Con("fijo:Z/1/1/X", true));
    EXPECT_EQ(TextosDeCajas(), (std::vector<std::string>{"Tipo debe ser 'A' ó 'N'", "Introduzca datos"}));
    EXPECT_EQ(ArchivoTrabajo.NumSeries, 0);
}

} // namespace
