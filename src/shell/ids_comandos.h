// The ids of the commands, by which menus, buttons and the pages of the manual name them.
#pragma once

enum IdsDeComando {
    ComandoCancelar = 2, // of the cancel key
    ComandoMinimosCuadrados = 2004,
    ComandoProcesar = 2006,
    ComandoHistograma = 2007,
    ComandoHipotesisNula = 2012,
    ComandoGraficosTemporales = 2013,
    ComandoTipoDatos = 2020,
    ComandoSalir = 2021,
    ComandoGraficosDispersion = 2023,
    ComandoEditorSeries = 2035,
    ComandoPrediccion = 2036,
    ComandoMuestra = 2038,
    ComandoDescriptivos = 2039,
    ComandoAcerca = 2046, // in the editor its "Ayuda"
    ComandoDeshacer = 2047,
    ComandoCortar = 2048,
    ComandoCopiar = 2049,
    ComandoPegar = 2050,
    ComandoAyudaSeries = 2051,
    ComandoAyudaAlisado = 2052,
    ComandoAyudaCalculadora = 2053,
    ComandoEditorMatrices = 2054,
    ComandoAbrirTrabajo = 2055,
    ComandoGuardarTrabajo = 2056,
    ComandoGuardarTrabajoComo = 2057,
    ComandoRelacionMatrices = 2064,
    ComandoRelacionSeries = 2065,
    ComandoRelacionEscalares = 2066,
    ComandoAyudaReglas = 2067,
    ComandoAyudaEscalares = 2068,
    ComandoAyudaMatrices = 2069,
    ComandoExportar = 2071,
    ComandoImportar = 2072,
    ComandoAutocorrelacion = 2073,
    ComandoEditorSinEnsamblar = 2074, // of the editor alone
    ComandoModeloRestringido = 2075,
    ComandoGoldfeldQuandt = 2078,
    ComandoRangos = 2079,
    ComandoWhite = 2080,
    ComandoMinimosPonderados = 2081,
    ComandoDurbin = 2082,
    ComandoWallis = 2083,
    ComandoAyudaMetodos = 2084,
    ComandoMuestraActual = 2085,
    ComandoUltimaRegresion = 2086,
    ComandoNormalidad = 2087,
    ComandoImprimirSeleccion = 2088,
    ComandoAyudaControl = 2089,
    ComandoAnadirSentencias = 2090,
    ComandoGuardarSentencias = 2091,
    ComandoAbrirSentencias = 2092,
    ComandoAutocorrelacionParcial = 2093,
    ComandoTransformacion = 2094,
    ComandoAyudaLogicos = 2096,
    ComandoAyudaFicticias = 2097,
    ComandoAyudaProbabilidades = 2098,
    ComandoAyudaRetardadas = 2099,
    ComandoAyudaEjemplos = 2100,
    ComandoAyudaMuestra = 2101,
    ComandoAyudaPantalla = 2102
};

// What the package announces and doesn't have: three entries share the second id, no entry bears the others.
inline constexpr int ComandosSinEnsamblar[] = {2001, 2002, 2003, 2010};
inline constexpr int ComandoSinEnsamblar = ComandosSinEnsamblar[1];
