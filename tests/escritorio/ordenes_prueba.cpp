// The menu: what stands in it, what each entry asks for first, and what answers where nothing is built.
#include "apoyo_escritorio.h"

#include "platform/qt/ventana_qt.h"
#include "shell/comandos.h"
#include "store/archivo.h"

#include <QMenu>
#include <QMenuBar>

namespace {

constexpr const char *Plural = "Tipo de datos no válidos", *Singular = "Tipo de datos no válido";

struct EntradaEsperada {
    int id;
    const char *menu, *texto;
    const char *guardia = nullptr; // the message while there is no data type
    bool sinEnsamblar = false;     // once there is one
};

constexpr const char *Estadistica = "Estad. y Gráf.";
constexpr const char *Significatividad = "Contrastes/Contrastes de Significatividad";
constexpr const char *Heteroscedasticidad = "Contrastes/Contrastes de heteroscedasticidad";
constexpr const char *Autocorrelacion = "Contrastes/Contrastes de autocorrelación";

constexpr EntradaEsperada Entradas[] = {
    {2055, "Archivo", "&Abrir archivo trabajo..."},
    {2056, "Archivo", "&Guardar archivo trabajo ... "},
    {2057, "Archivo", "Guardar archivo &trabajo como ..."},
    {2021, "Archivo", "&Salir"},
    {2047, "Edición", "&Deshacer"},
    {2048, "Edición", "&Cortar"},
    {2049, "Edición", "C&opiar"},
    {2050, "Edición", "&Pegar"},
    {2020, "Datos", "&Tipo de datos ..."},
    {2035, "Datos", "&Editor de series...", Singular},
    {2054, "Datos", "Editor de &matrices...", Singular},
    {2065, "Datos", "&Relación de series..."},
    {2064, "Datos", "Relación &de matrices..."},
    {2066, "Datos", "Re&lación de escalares..."},
    {2085, "Datos", "&Muestra actual...", Plural},
    {2038, "Proced.", "&Muestra...", Plural},
    {2006, "Proced.", "&Procesar", Plural},
    {2039, Estadistica, "&Estadísticos descriptivos...", Plural, false},
    {2007, Estadistica, "&Histograma...", Singular},
    {2036, Estadistica, "&Predicción y evaluación...", Singular, false},
    {2094, Estadistica, "Transformación de series...", nullptr, false},
    {2013, "Estad. y Gráf./Gráficos", "&Gráficos temporales..."},
    {2023, "Estad. y Gráf./Gráficos", "Gráficos &de dispersión..."},
    {2004, "Estimación", "&Mínimos cuadrados...", Plural},
    {2081, "Estimación", "Mínimos &cuadrados ponderados...", Plural},
    {2002, "Estimación", "Método &variables instrumentales...", nullptr, true},
    {2086, "Estimación", "&Última regresión..."},
    {2012, Significatividad, "&Especificando Hipótesis nula...", Plural},
    {2075, Significatividad, "Especificando &Modelo restringido...", Plural},
    {2078, Heteroscedasticidad, "&Goldfeld y Quandt...", Plural},
    {2080, Heteroscedasticidad, "&White...", Plural},
    {2079, Heteroscedasticidad, "&Rangos...", Plural},
    {2082, Autocorrelacion, "&h de Durbin...", Plural},
    {2083, Autocorrelacion, "&Contraste de Wallis...", Plural},
    {2073, Autocorrelacion, "&Función de autocorrelación...", Singular, false},
    {2093, Autocorrelacion, "Función de autocorrelación parcial...", Singular, false},
    {2087, "Contrastes", "Contraste de &normalidad...", Singular, false},
    {2002, "Contrastes", "&Otros contrastes", nullptr, true},
    {2071, "Util.", "&Exportar a ASCII...", Plural},
    {2072, "Util.", "I&mportar de ASCII...", Plural},
    {2002, "Util.", "&Combinar archivos", nullptr, true},
    {2088, "Util.", "&Imprimir selección"},
    {2092, "Util.", "&Abrir fichero sentencias..."},
    {2091, "Util.", "&Guardar fichero sentencias..."},
    {2090, "Util.", "Aña&dir fichero sentencias..."},
    {2067, "Ayuda", "&Reglas generales..."},
    {2101, "Ayuda", "Acotación de la muestra..."},
    {2051, "Ayuda", "&Transformación de series..."},
    {2068, "Ayuda", "&Escalares..."},
    {2053, "Ayuda", "&Calculadora..."},
    {2069, "Ayuda", "Cálculo &matricial..."},
    {2084, "Ayuda", "Mét&odos y contrastes..."},
    {2089, "Ayuda", "Co&ntrol de flujo y otros..."},
    {2096, "Ayuda", "Operadores lógicos..."},
    {2097, "Ayuda", "Series ficticias..."},
    {2098, "Ayuda", "Probabilidades..."},
    {2102, "Ayuda", "Funciones desde Pantalla Edición"},
    {2100, "Ayuda", "Ejemplos de ayuda..."},
    {2046, "Ayuda", "&Acerca de Tabira..."},
};

struct EntradaVista {
    std::string menu;
    QAction *accion;
};

void Recorrer(const QWidget &menu, const std::string &ruta, std::vector<EntradaVista> &vistas) {
    for (QAction *a : menu.actions()) {
        if (a->menu() == nullptr) {
            vistas.push_back({ruta, a});
            continue;
        }
        const std::string titulo = QString(a->text()).remove(u'&').toStdString();
        Recorrer(*a->menu(), ruta.empty() ? titulo : ruta + "/" + titulo, vistas);
    }
}

std::vector<EntradaVista> EntradasDe(const VentanaPrincipal &ventana) {
    std::vector<EntradaVista> vistas;
    Recorrer(*ventana.menuBar(), "", vistas);
    return vistas;
}

const Paso DialogoNoEnsamblada = {"Opción del menú", [](QDialog &d) {
                                      EXPECT_EQ(TextoDe(d, "texto"), "No ensamblada");
                                      EXPECT_EQ(d.objectName().toStdString(), "OpcionDelMenu");
                                      Pulsar(d, "OK");
                                  }};

} // namespace

using Ordenes = Escritorio;

TEST_F(Ordenes, TodasEnSuMenuYEnSuOrden) {
    const std::vector<EntradaVista> vistas = EntradasDe(*ventana);
    ASSERT_EQ(vistas.size(), std::size(Entradas));
    for (std::size_t i = 0; i < vistas.size(); ++i) {
        SCOPED_TRACE(Entradas[i].texto);
        EXPECT_EQ(vistas[i].accion->text().toStdString(), Entradas[i].texto);
        EXPECT_EQ(vistas[i].accion->data().toInt(), Entradas[i].id);
        EXPECT_EQ(vistas[i].menu, Entradas[i].menu);
        EXPECT_TRUE(vistas[i].accion->isEnabled());
        EXPECT_TRUE(vistas[i].accion->shortcut().isEmpty()); // no accelerators
    }
}

TEST_F(Ordenes, LosMenusEnSuOrden) {
    static constexpr const char *Menus[] = {"Archivo",    "Edición",    "Datos", "Proced.", "Estad. y Gráf.",
                                            "Estimación", "Contrastes", "Util.", "Ayuda"};
    const QList<QAction *> acciones = ventana->menuBar()->actions();
    ASSERT_EQ(static_cast<std::size_t>(acciones.size()), std::size(Menus));
    for (std::size_t i = 0; i < std::size(Menus); ++i)
        EXPECT_EQ(QString(acciones[static_cast<int>(i)]->text()).remove(u'&').toStdString(), Menus[i]);
}

TEST_F(Ordenes, SinTipoDeDatosCadaUnaConSuMensaje) {
    const std::vector<EntradaVista> vistas = EntradasDe(*ventana);
    ASSERT_EQ(vistas.size(), std::size(Entradas));
    for (std::size_t i = 0; i < vistas.size(); ++i) {
        if (Entradas[i].guardia == nullptr) continue;
        SCOPED_TRACE(Entradas[i].texto);
        ConGuion({Caja("Proceso cancelado", Entradas[i].guardia)}, [&] { vistas[i].accion->trigger(); });
        EXPECT_EQ(ArchivoTrabajo.TipoDatos, SinTipoDatos);
    }
}

// The guard is for every type that isn't below 6, and 5, which nothing gives, passes it.
TEST_F(Ordenes, LaGuardiaMiraSiElTipoEstaPorDebajoDeSeis) {
    ArchivoTrabajo.TipoDatos = 5;
    ConGuion({Pulsando("Muestra actual", "OK")}, [&] { Ordenar(2085); });
    ArchivoTrabajo.TipoDatos = 6;
    ConGuion({Caja("Proceso cancelado", Plural)}, [&] { Ordenar(2085); });
}

TEST_F(Ordenes, LasNoEnsambladas) {
    const std::vector<EntradaVista> vistas = EntradasDe(*ventana);
    ASSERT_EQ(vistas.size(), std::size(Entradas));
    for (const bool conTipo : {false, true}) {
        if (conTipo) PonerDatos(TipoAnual, "1990#1999");
        for (std::size_t i = 0; i < vistas.size(); ++i) {
            if (!Entradas[i].sinEnsamblar || (!conTipo && Entradas[i].guardia != nullptr)) continue;
            SCOPED_TRACE(Entradas[i].texto);
            ConGuion({DialogoNoEnsamblada}, [&] { vistas[i].accion->trigger(); });
        }
    }
}

TEST_F(Ordenes, IdentificadoresSinEntrada) {
    for (const int id : {2001, 2002, 2003, 2010}) {
        SCOPED_TRACE(id);
        ConGuion({DialogoNoEnsamblada}, [&] { EjecutarComando(AVentana(ventana.get()), id); });
    }
    ConGuion({Pulsando("Alisado exponencial", "OK")},
             [&] { EjecutarComando(AVentana(ventana.get()), 2052); });
    ConGuion({Pulsando("Generación de series", "OK")},
             [&] { EjecutarComando(AVentana(ventana.get()), 2099); });
    for (const int id : {0, 1, 3, 120, 2005, 2058, 2074, 2095, 2103, 9999, -1, -2002, 1 << 30}) {
        SCOPED_TRACE(id);
        ConGuion({}, [&] { EjecutarComando(AVentana(ventana.get()), id); });
    }
    EXPECT_EQ(ventana->windowTitle(), QStringLiteral("Tabira"));
}

// A command marked so finds the sample refreshed, and one that isn't marked leaves it.
TEST_F(Ordenes, RefrescanLaMuestra) {
    static constexpr struct {
        int id;
        const char *titulo;
        bool refresca;
    } Casos[] = {
        {2065, "Relación de series", true},
        {2064, "Relación de matrices", true},
        {2066, "Relación de escalares", true},
        {2085, "Muestra actual", true},
        {2086, "Última regresión", true},
        {2038, "Acotación de la muestra a utilizar", false},
        {2013, "Gráficos temporales", true},
        {2036, "Proceso cancelado", false},
        {2012, "Contrastes de significatividad: Hipótesis nula", false},
        {2004, "Mínimos cuadrados ordinarios", true},
        {2071, "Exportación de Series", true},
        {2087, "Contraste de normalidad", true},
        {2039, "Selección de series", true},
        {2007, "HISTOGRAMA", true},
        {2073, "Función de autocorrelación estimada", true},
        {2080, "Contrastes de heteroscedasticidad: White", false},
    };
    PonerDatos(TipoAnual, "1990#1999");
    PonerSerie("A", {1, 2, 3}, 2);
    for (const auto &c : Casos) {
        SCOPED_TRACE(c.id);
        Muestra.InicioMuestra = Muestra.FinMuestra = 9;
        ConGuion({ConEscape(c.titulo)}, [&] { Ordenar(c.id); });
        EXPECT_EQ(Muestra.InicioMuestra, c.refresca ? 2 : 9);
        EXPECT_EQ(Muestra.FinMuestra, c.refresca ? 4 : 9);
    }
    // The editor's window is no dialog.
    for (const int id : {2035, 2054}) {
        Muestra.InicioMuestra = Muestra.FinMuestra = 9;
        ConGuion({}, [&] { Ordenar(id); });
        EXPECT_EQ(Muestra.InicioMuestra, id == 2035 ? 2 : 9);
        EXPECT_EQ(Muestra.FinMuestra, id == 2035 ? 4 : 9);
    }
}
