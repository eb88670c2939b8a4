// The help pages: their table, their texts, their buttons and the walk through a chain.
#include "apoyo/plataforma_prueba.h"
#include "data/comandos_editor.h"
#include "platform/texto.h"
#include "shell/ayuda.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <deque>
#include <set>
#include <string>
#include <vector>

namespace {

std::vector<std::string> LineasDe(const PaginaManual &pagina) {
    std::vector<std::string> r;
    for (const LineaAyuda *l = pagina.lineas; l->texto != nullptr; ++l) r.push_back(Utf8De1252(l->texto));
    return r;
}

// One blank for each run of blanks.
std::string SinBlancosDeMas(std::string_view texto) {
    std::string r;
    for (const char c : texto)
        if (c != ' ' || (!r.empty() && r.back() != ' ')) r.push_back(c);
    return r;
}

// 0 for no command and for no next page.
struct PaginaEsperada {
    int id;
    const char *titulo;
    int comando, siguiente;
};

constexpr PaginaEsperada Esperadas[] = {
    {1194, "Reglas generales", 2067, 1138},
    {1138, "Reglas generales", 0, 1128},
    {1128, "Reglas generales", 0, 0},
    {1197, "Generación de series", 2051, 1130},
    {1130, "Generación de series", 0, 1127},
    {1127, "Generación de series", 0, 1131},
    {1131, "Generación de series", 0, 1132},
    {1132, "Generación de series", 0, 1217},
    {1217, "Generación de series", 0, 1218},
    {1218, "Generación de series", 0, 0},
    {1192, "Generación de matrices", 2069, 1129},
    {1129, "Generación de matrices", 0, 0},
    {1191, "Métodos y contrastes", 2084, 1133},
    {1133, "Métodos y contrastes", 0, 1134},
    {1134, "Métodos y contrastes", 0, 0},
    {1190, "Control de flujo y otros", 2089, 1135},
    {1135, "Control de flujo y otros", 0, 1136},
    {1136, "Control de flujo y otros", 0, 0},
    {1193, "Generación de escalares", 2068, 0},
    {1196, "Calculadora", 2053, 0},
    {1114, "Acotación intervalos muestra", 2101, 0},
    {1220, "Generación de series", 2096, 0},
    {1221, "Generación de series", 2097, 0},
    {1219, "Generación de series", 2098, 0},
    {1224, "Acceso a procedimientos desde la Pantalla de Edición", 2102, 0},
    {1223, "Ejemplos de ayuda", 2100, 0},
    {1198, "Acerca de..", 2046, 0},
    {1222, "Generación de series", 2099, 0},
    {1195, "Alisado exponencial", 2052, 0},
    {1126, "Ventana de Edición", 0, 0},
    {1125, "Opción del menú", 0, 0},
    {1141, "Importación/Exportación a/de  ASCII", 0, 0},
    {1144, "Datos Panel", 0, 0},
    {1155, "Histograma", 0, 0},
    {1159, "Contrastes de significatividad: Hipótesis nula", 0, 0},
    {1162, "Contrastes de heteroscedasticidad: Goldfeld y Quandt", 0, 0},
    {1166, "Funciones de autocorrelación", 0, 0},
    {1180, "Gráficos de series", 0, 0},
    {1183, "Gráficos de la regresión", 0, 0},
};

TEST(Ayuda, TablaDePaginas) {
    EXPECT_EQ(PaginasManual().size(), std::size(Esperadas));
    for (const PaginaEsperada &e : Esperadas) {
        SCOPED_TRACE(e.id);
        const PaginaManual *p = BuscarPagina(e.id);
        ASSERT_NE(p, nullptr);
        EXPECT_EQ(p->id, e.id);
        EXPECT_EQ(Utf8De1252(p->titulo), e.titulo);
        EXPECT_EQ(p->comando, e.comando);
        EXPECT_EQ(p->botonSiguiente == 0 ? 0 : PaginaDeBoton(p->botonSiguiente), e.siguiente);
        if (e.comando != 0) {
            EXPECT_EQ(PaginaDeComando(e.comando), e.id);
        }
    }
}

TEST(Ayuda, PaginasQueNoSeMuestran) {
    for (const int id : {0, -1, 1137, 1207, 99999}) EXPECT_EQ(BuscarPagina(id), nullptr) << id;
}

TEST(Ayuda, BotonesSiguiente) {
    constexpr int Enlaces[][2] = {{5015, 1130}, {5018, 1129}, {5033, 1131}, {5034, 1132}, {5035, 1128},
                                  {5058, 1127}, {5065, 1133}, {5068, 1134}, {5070, 1135}, {5071, 1136},
                                  {5072, 1137}, {5073, 1217}, {5074, 1138}, {5075, 1218}};
    std::set<int> usados;
    for (const PaginaManual &p : PaginasManual())
        if (p.botonSiguiente != 0) {
            EXPECT_TRUE(usados.insert(p.botonSiguiente).second) << p.id;
        }
    for (const auto &[boton, pagina] : Enlaces) {
        EXPECT_EQ(PaginaDeBoton(boton), pagina);
        EXPECT_EQ(usados.count(boton), boton == 5072 ? 0u : 1u) << boton;
    }
    EXPECT_EQ(usados.size(), std::size(Enlaces) - 1);
    EXPECT_EQ(PaginaDeBoton(5016), 0);
    EXPECT_EQ(PaginaDeBoton(0), 0);
}

TEST(Ayuda, Comandos) {
    for (const int comando : {0, 1, 2001, 2002, 2003, 2006, 2010, 2074, 2103})
        EXPECT_EQ(PaginaDeComando(comando), 0) << comando;
    // In the editor's window the same ids mean something else.
    EmpezarConDatos(TipoSinPeriodicidad, "");
    AbrirEditor(EditorDeSeries);
    for (const int comando : {2046, 2074, 2067}) EjecutarComandoEditor(nullptr, comando);
    ASSERT_EQ(Prueba.dialogos.size(), 2u);
    EXPECT_EQ(Prueba.dialogos[0].cual, Dialogo::Ayuda);
    EXPECT_EQ(Prueba.dialogos[0].datos.modo, 1126);
    EXPECT_EQ(Prueba.dialogos[1].cual, Dialogo::NoEnsamblada);
}

TEST(Ayuda, MismoTextoEnDosPaginas) {
    constexpr int Pares[][2] = {{1220, 1217}, {1221, 1218}, {1219, 1132}};
    for (const auto &[a, b] : Pares) EXPECT_EQ(BuscarPagina(a)->lineas, BuscarPagina(b)->lineas) << a;
}

TEST(Ayuda, AnchoYNumeroDeLineas) {
    for (const PaginaManual &p : PaginasManual()) {
        SCOPED_TRACE(p.id);
        int lineas = 0;
        for (const LineaAyuda *l = p.lineas; l->texto != nullptr; ++l, ++lineas) {
            EXPECT_LE(std::strlen(l->texto), static_cast<std::size_t>(AnchoLineaAyuda))
                << Utf8De1252(l->texto);
            EXPECT_EQ(std::count_if(l->texto, l->texto + std::strlen(l->texto),
                                    [](char c) { return c >= 0 && c < ' '; }),
                      0);
            if (l->tipo == LineaDeEjemplo) {
                EXPECT_NE(std::strspn(l->texto, " "), std::strlen(l->texto));
            }
        }
        if (p.id == PaginaAcerca || p.id == PaginaNoEnsamblada) continue;
        EXPECT_GE(lineas, 10);
        EXPECT_LE(lineas, 20);
    }
}

// Lines that a page must hold as they stand. They may run over the end of a line.
struct LineaCitada {
    int pagina;
    const char *texto;
};

constexpr LineaCitada Citas[] = {
    {1194, "Las secuencias que empiezan por 'punto y coma' (;), se consideran comentarios y no se procesan"},
    {1138, "No deben tener más de ocho caracteres."},
    {1138, "Las operaciones se realizan, dentro de la misma prioridad, de izquierda a derecha."},
    {1128, "El número máximo de datos en una serie es de 4.000. El número máximo de series es de 100. Las "
           "dimensiones "
           "máximas de una matriz son de 60 x 60. El número máximo de matrices es de 30."},
    {1128,
     "Los códigos de las series/matrices/escalares generados por la aplicación comienzan con el caracter "
     "subrayado (_)"},
    {1128,
     "Es importante a la hora de ordenar las series recordar que dicha ordenación afecta solo a la Muestra "
     "seleccionada."},
    {1130, "SER Código_Serie = -TEND"},
    {1192, "MAT Código_matriz = fórmula"},
    {1192, "la prioridad de la operación baja al nivel de la suma y la resta"},
    {1129, "Una matriz no admite datos missing"},
    {1133, "CR Y1   1   X1   X2 ......"},
    {1133, "número * beta(número) + número * beta(número) + ...... = número"},
    {1133, "CHN MR 2  beta(1) + 5 * beta(3) = 0"},
    {1133, "3*BETA(1)+4+BETA(2) = 8"},
    {1133, "CGQ (Variable ordenación) RA Di Df Ni Nf"},
    {1134, "Sintaxis: CDU "},
    {1134, "Deben existir series retardadas."},
    {1134, "Sintaxis: CWA"},
    {1134, "CRA  Variable de ordenación"},
    {1134, "CWH PC RA"},
    {1134, "No admite series retardadas"},
    {1224, "Use la palabra GRAF seguida del nombre de las series que desee representar gráficamente."},
    {1224,
     "Escriba entre paréntesis la serie que quiera representar en el eje X. Ejemplo: GRAF (EDUCAC)  EDAD"},
    {1224, "Use la palabra HIST seguida del nombre de la serie que desee representar  Ejemplo: HIST EDAD"},
    {1224, "INTERVALOY   MAXY   MINY   INTERVALOX   MAXX   MINX"},
    {1195, "Los comandos AES y AED tienen la siguiente sintaxis:"},
    {1195, "AES   [LOG]   Valor de alfa  serie a procesar"},
    {1195, "AED   [LOG]   Valor de alfa  serie a procesar"},
    {1195, "[LOG] es opcional. Si se incluye este comando se tomarán logaritmos."},
    {1195, "El valor de alfa puede ser un número ó un escalar."},
    {1195,
     "La serie a procesar puede ser una existente o una serie que se genere a través de una transformación."},
    {1195, "AES LOG  0.3  Ingresos"},
    {1195, "AED   0.7  Edad"},
    {1195, "AES LOG Alfa TEND(2,3)"},
    {1195, "AES 0.8 PROBT(TEND,TEND)"},
    {1126, "Para confirmar un campo se debe pulsar una tecla de control de cursor: Enter, Flechas, "
           "Tabulador, etc."},
    {1126, "Borrar un campo: Utilice la tecla Escape"},
    {1126, "Borrar una serie: Borre únicamente su código"},
    {1126, "En una serie no se pueden entrar datos, si previamente no se ha escrito su código"},
    {1126, "Las matrices deben tener el mismo número de datos en todas sus filas (columnas)"},
    {1126, "Una matriz no puede tener datos missing"},
    {1126, "Las flechas no desplazan la pantalla."},
    {1141,
     "Mientras no esté ensamblada la opción del menú 'Combinar archivos', se puede simular exportando e "
     "importando a ASCII el archivo a combinar."},
    {1198, "TABIRA"},
    {1198, "Diseño :"},
    {1198, "Programación informática:"},
    {1125, "No ensamblada"},
};

TEST(Ayuda, LineasCitadas) {
    for (const LineaCitada &cita : Citas) {
        SCOPED_TRACE(cita.texto);
        const PaginaManual *p = BuscarPagina(cita.pagina);
        ASSERT_NE(p, nullptr);
        const std::vector<std::string> lineas = LineasDe(*p);
        std::string todo;
        bool entera = false;
        for (const std::string &l : lineas) {
            entera = entera || l.find(cita.texto) != std::string::npos;
            todo += l + ' ';
        }
        // Only what doesn't fit in a line may be parted.
        const bool larga = std::strlen(cita.texto) > 60;
        EXPECT_TRUE(entera ||
                    (larga && SinBlancosDeMas(todo).find(SinBlancosDeMas(cita.texto)) != std::string::npos));
    }
}

TEST(Ayuda, AcercaDe) {
    EXPECT_EQ(LineasDe(*BuscarPagina(1198)),
              (std::vector<std::string>{"TABIRA", "Diseño :", "Programación informática:"}));
    ASSERT_EQ(NombresAcercaDe().size(), 3u);
    for (const char *nombre : NombresAcercaDe()) EXPECT_NE(*nombre, '\0');
}

TEST(Ayuda, BotonesDeCadaPagina) {
    constexpr struct {
        int pagina;
        const char *botones;
    } Casos[] = {
        {1194, "Siguiente Cancelar "},
        {1138, "Anterior Siguiente Cancelar "},
        {1128, "Anterior Cancelar "},
        {1217, "Anterior Siguiente Cancelar "},
        {1220, "OK "},
        {1196, "OK "},
        {1198, "OK "},
        {1125, "OK "},
        {1126, "OK "},
        {1192, "Siguiente Cancelar "},
        {1129, "Anterior Cancelar "},
    };
    for (const auto &c : Casos) {
        const BotonesPagina b = BotonesDePagina(*BuscarPagina(c.pagina));
        std::string textos;
        for (int i = 0; i < b.numero; ++i) textos += std::string(b.boton[i].texto) + ' ';
        EXPECT_EQ(textos, c.botones) << c.pagina;
    }
}

// A button of every page is handled: its id is one of the common ones or leads to a page that exists.
TEST(Ayuda, TodoBotonLlevaAAlgo) {
    for (const PaginaManual &p : PaginasManual()) {
        const BotonesPagina b = BotonesDePagina(p);
        ASSERT_GE(b.numero, 1);
        for (int i = 0; i < b.numero; ++i) {
            const int id = b.boton[i].id;
            const bool comun = id == BotonAyudaOK || id == BotonAyudaCancelar || id == BotonAyudaAnterior;
            EXPECT_TRUE(comun || BuscarPagina(PaginaDeBoton(id)) != nullptr) << p.id;
        }
    }
}

// The buttons that a reader presses, one for each page on top, and the pages that were on top. When the reader is out of
// buttons it presses "Cancelar", so that no fault leaves the test in a circle.
std::deque<int> PorPulsar;
std::vector<int> Mostradas;
int Abiertas, MaximoAbiertas;

void AbrirDePrueba(Ventana *ventana, const PaginaManual &pagina) {
    MaximoAbiertas = std::max(MaximoAbiertas, ++Abiertas);
    int boton = 0;
    do {
        Mostradas.push_back(pagina.id);
        boton = PorPulsar.empty() ? static_cast<int>(BotonAyudaCancelar) : PorPulsar.front();
        if (!PorPulsar.empty()) PorPulsar.pop_front();
    } while (PulsarBotonAyuda(ventana, pagina, boton, AbrirDePrueba) == 0);
    --Abiertas;
}

struct Recorrido {
    const char *nombre;
    int pagina;
    std::deque<int> botones;
    std::vector<int> mostradas;
};

TEST(Ayuda, Recorridos) {
    constexpr int OK = BotonAyudaOK, Cancelar = BotonAyudaCancelar, Anterior = BotonAyudaAnterior;
    const Recorrido Casos[] = {
        {"one page", 1196, {OK}, {1196}},
        {"cancel on the third closes all three", 1194, {5074, 5035, Cancelar}, {1194, 1138, 1128}},
        {"back shows the second again", 1194, {5074, 5035, Anterior, Cancelar}, {1194, 1138, 1128, 1138}},
        {"back and forth", 1192, {5018, Anterior, 5018, Anterior, OK}, {1192, 1129, 1192, 1129, 1192}},
        {"cancel earlier doesn't close a later chain", 1190, {5070, Anterior, Cancelar}, {1190, 1135, 1190}},
        {"OK on the last goes back", 1190, {5070, 5071, OK, Cancelar}, {1190, 1135, 1136, 1135}},
        {"the longest chain to its end",
         1197,
         {5015, 5058, 5033, 5034, 5073, 5075, Cancelar},
         {1197, 1130, 1127, 1131, 1132, 1217, 1218}},
        {"and back again",
         1197,
         {5015, 5058, 5033, 5034, 5073, 5075, Anterior, Anterior, Anterior, Anterior, Anterior, Anterior,
          Cancelar},
         {1197, 1130, 1127, 1131, 1132, 1217, 1218, 1217, 1132, 1131, 1127, 1130, 1197}},
        {"methods", 1191, {5065, 5068, Cancelar}, {1191, 1133, 1134}},
        {"a button of another page closes", 1194, {5015}, {1194}},
        {"a button without a page closes", 1194, {5072}, {1194}},
        {"no button at all", 1128, {0}, {1128}},
        {"a page that doesn't exist", 1137, {}, {}},
    };
    for (const Recorrido &c : Casos) {
        SCOPED_TRACE(c.nombre);
        PorPulsar = c.botones;
        Mostradas.clear();
        Abiertas = MaximoAbiertas = 0;
        PaginaAyuda(nullptr, c.pagina, AbrirDePrueba);
        EXPECT_EQ(Mostradas, c.mostradas);
        EXPECT_TRUE(PorPulsar.empty());
        // Each page stays open below the next.
        EXPECT_EQ(MaximoAbiertas, static_cast<int>(std::set<int>(Mostradas.begin(), Mostradas.end()).size()));
    }
}

} // namespace
