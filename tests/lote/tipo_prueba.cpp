// The argument of --tipo: what can be read, and what the dialogs say to it.
#include "lote/tipo.h"

#include "apoyo/plataforma_prueba.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct CasoTipo {
    const char *texto;
    int tipo;
    const char *intervalo;
    int filas;
    const char *primera, *ultima; // row texts
    bool etiquetas;
};

constexpr CasoTipo Aceptados[] = {
    {"sin", TipoSinPeriodicidad, " 1 # 4000", 4000, "1", "4000", false},
    {"sin,etiquetas", TipoSinPeriodicidad, " 1 # 4000", 4000, "1", "4000", true},
    {"anual", TipoAnual, "2001#6000", 4000, "2001", "6000", false},
    {"anual:1990:2005", TipoAnual, "1990#2005", 16, "1990", "2005", false},
    {"anual:1990", TipoAnual, "1990#5989", 4000, "1990", "5989", false},
    {"anual:1990:", TipoAnual, "1990#5989", 4000, "1990", "5989", false},
    {"anual::2005", TipoAnual, "2001#2005", 5, "2001", "2005", false},
    {"trimestral", TipoTrimestral, "2001.1#3000.4", 4000, "2001.1", "3000.4", false},
    {"trimestral:1990.1:2005.4", TipoTrimestral, "1990.1#2005.4", 64, "1990.1", "2005.4", false},
    {"mensual:1990.01:2005.12", TipoMensual, "1990. 1#2005.12", 192, "1990.01", "2005.12", false},
    {"mensual", TipoMensual, "2001. 1#2334. 4", 4000, "2001.01", "2334.04", false},
    {"panel:constante:periodo:3:anual:1990:1991", TipoPanel, "1990#1991", 6, "1990-1", "1991-3", false},
    {"panel:constante:individuo:3:anual:1990:1991,etiquetas", TipoPanel, "1990#1991", 6, "1-1990", "3-1991",
     true},
    {"panel:constante:periodo:2:trimestral:1990.2:1990.3", TipoPanel, "1990.2#1990.3", 4, "1990.2-1",
     "1990.3-2", false},
    {"panel:constante:periodo:2:mensual:1990.9:1990.10", TipoPanel, "1990. 9#1990.10", 4, "1990.09-1",
     "1990.10-2", false},
    {"panel:constante:periodo:10:trimestral", TipoPanel, "2001.1#2100.4", 4000, "2001.1-1", "2100.4-10",
     false},
    {"panel:variable:periodo:1991=2,1990=3", TipoPanel, "1990#1991", 5, "1990-1", "1991-2", false},
    {"panel:variable:periodo:1990=3,1991=2,etiquetas", TipoPanel, "1990#1991", 5, "1990-1", "1991-2", true},
    {"panel:variable:individuo:1=1990/1991,2=1990", TipoPanel, "1#2", 3, "1-1990", "2-1990", false},
    {"panel:variable:individuo:1=1990/1991,2=1990,etiquetas", TipoPanel, "1#2", 3, "1-1990", "2-1990", true},
};

TEST(LeerTipo, Aceptados) {
    for (const CasoTipo &c : Aceptados) {
        SCOPED_TRACE(c.texto);
        EmpezarPrueba();
        PropuestaTipoDatos p;
        ASSERT_TRUE(LeerTipo(c.texto, p));
        ASSERT_EQ(AceptarTipoDatos(nullptr, p), 1);
        EXPECT_TRUE(Prueba.cajas.empty());
        EXPECT_EQ(ArchivoTrabajo.TipoDatos, c.tipo);
        EXPECT_EQ(Recortado(ArchivoTrabajo.TextoIntervalo, RecorteDerecha), c.intervalo);
        ASSERT_EQ(ArchivoTrabajo.NumObs, c.filas);
        EXPECT_EQ(TextoPeriodo(0), c.primera);
        EXPECT_EQ(TextoPeriodo(c.filas - 1), c.ultima);
        EXPECT_EQ(ArchivoTrabajo.ConEtiquetas, c.etiquetas ? 1 : 0);
        EXPECT_STREQ(ArchivoTrabajo.NombreProyecto, "PROYEC01 ");
    }
}

struct CasoRechazado {
    const char *texto, *mensaje;
};

constexpr CasoRechazado Rechazados[] = {
    {"anual:1800:2005", "Año mínimo no válido"},
    {"anual:2005:1990", "Rango de años no válidos"},
    {"anual:1990:-5", "Año máximo no válido"},
    {"anual:1990:9999", "Año máximo excesivamente grande"},
    {"trimestral:1990.5:2005.4", "Trimestre mínimo no válido"},
    {"mensual:1990.01:2005.13", "Mes máximo no válido"},
    {"panel:constante:periodo:0:anual:1990:1991", "Introduzca datos"},
    {"panel:constante:periodo:3:anual:1800:1991", "Año mínimo no válido"},
    {"panel:variable:periodo:", "Introduzca datos"},
    {"panel:variable:periodo:900=1", "Período ha de ser mayor de mil"},
    {"panel:variable:periodo:1990=0", "Individuos ha de ser mayor de cero"},
    {"panel:variable:individuo:0=1990", "Individuos ha de ser mayor de cero"},
    {"panel:variable:individuo:1=900", "Período ha de ser mayor de 1000"},
    {"panel:variable:individuo:1=1990/1991/1992/1993/1994/1995/1996/1997/1998/1999/2000/2001/2002/2003/2004/"
     "2005/"
     "2006/2007/2008/2009/2010/2011/2012/2013/2014/2015",
     "No se pueden introducir más periodos"},
};

TEST(LeerTipo, RechazadosPorElDialogo) {
    for (const CasoRechazado &c : Rechazados) {
        SCOPED_TRACE(c.texto);
        EmpezarPrueba();
        PropuestaTipoDatos p;
        ASSERT_TRUE(LeerTipo(c.texto, p));
        EXPECT_EQ(AceptarTipoDatos(nullptr, p), 0);
        EXPECT_EQ(TextosDeCajas(), std::vector<std::string>{c.mensaje});
        EXPECT_EQ(ArchivoTrabajo.TipoDatos, SinTipoDatos);
        EXPECT_EQ(ArchivoTrabajo.NumObs, 0);
    }
}

constexpr const char *Ilegibles[] = {
    "",
    "SIN",
    "sin:1990",
    "sin,labels",
    ",etiquetas",
    "semanal",
    "anual:a:b",
    "anual:1990:2005:2010",
    "anual,etiquetas",
    "anual:1990:2005,etiquetas",
    "panel",
    "panel:constante",
    "panel:constante:periodo",
    "panel:constante:periodo:3",
    "panel:constante:periodo:x:anual:1990:1991",
    "panel:constante:periodo::anual:1990:1991",
    "panel:constante:grupo:3:anual:1990:1991",
    "panel:constante:periodo:3:semanal:1990:1991",
    "panel:constante:periodo:3:anual:1990:1991:1992",
    "panel:constante:periodo:3:anual:1990:x",
    "panel:otro:periodo:3:anual:1990:1991",
    "panel:variable:periodo",
    "panel:variable:periodo:1990",
    "panel:variable:periodo:1990=",
    "panel:variable:periodo:=3",
    "panel:variable:periodo:1990=3,",
    "panel:variable:periodo:1990=3=4",
    "panel:variable:periodo:1990=3:4",
    "panel:variable:individuo:1=",
    "panel:variable:individuo:1=1990/",
    "panel:variable:individuo:a=1990",
};

TEST(LeerTipo, Ilegibles) {
    for (const char *texto : Ilegibles) {
        EmpezarPrueba();
        PropuestaTipoDatos p;
        EXPECT_FALSE(LeerTipo(texto, p)) << texto;
    }
}

TEST(LeerTipo, ElNombreEsElDelDialogo) {
    EmpezarPrueba();
    PropuestaTipoDatos p;
    ASSERT_TRUE(LeerTipo("sin", p));
    EXPECT_EQ(p.nombre, "PROYEC01");
    p.nombre = "Klein";
    AceptarTipoDatos(nullptr, p);
    ASSERT_TRUE(LeerTipo("anual", p));
    EXPECT_EQ(p.nombre, "Klein");
}

} // namespace
