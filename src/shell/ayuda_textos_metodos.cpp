// Help texts: estimation and tests, smoothing.
#include "shell/ayuda_textos.h"

#include "platform/literal.h"

// P1191
const LineaAyuda TextoMetodos1[] = {
    {T, "MC estima una ecuación por mínimos cuadrados en la muestra. Sintaxis:"_w},
    {T, "     MC [(CN) | (CH) | (CA n)] dependiente regresor regresor ..."_w},
    {T, "Los regresores se separan con blancos. Pueden ser series, escalares, números,"_w},
    {T, "series retardadas y datos de un período, como X[1990], que son una constante."_w},
    {T, "El término independiente es el número 1; si no se escribe, no lo hay."_w},
    {T, "Antes, acote la muestra: si no, la acortan las series que deja la regresión."_w},
    {E, "     MUEST 1980 1999"_w},
    {E, "     MC CONSUMO 1 RENTA PRECIO"_w},
    {E, "     MC CONSUMO 1 RENTA CONSUMO(-1)"_w},
    {T, "Los retardos quitan observaciones. Un dato missing detiene la sentencia."_w},
    {T, "Las covarianzas de los coeficientes son las normales con CN, o sin indicar"_w},
    {T, "nada; CH las da consistentes con heteroscedasticidad, y CA con autocorrelación"_w},
    {T, "hasta n retardos:"_w},
    {E, "     MC (CH) SALARIO 1 EDAD EDUCAC"_w},
    {E, "     MC (CA 2) CONSUMO 1 RENTA"_w},
    {T, "MCP estima por mínimos cuadrados ponderados. Cada observación se multiplica"_w},
    {T, "por la ponderación, que es una serie o una fórmula, siempre entre paréntesis:"_w},
    {T, "     MCP (ponderación) dependiente regresor regresor ..."_w},
    {E, "     MCP (1 / EDAD) SALARIO 1 EDUCAC"_w},
    {T, "Después se pregunta si se desea ver la regresión. VSR NO evita la pregunta."_w},
    {T, nullptr},
};

// P1133
const LineaAyuda TextoMetodos2[] = {
    {T, "CR contrasta un modelo restringido, con menos regresores que el último MC:"_w},
    {T, "     CR Y1   1   X1   X2 ......"_w},
    {E, "     MC CONSUMO 1 RENTA PRECIO"_w},
    {E, "     CR CONSUMO 1 RENTA"_w},
    {T, "CHN contrasta restricciones lineales sobre los coeficientes, que son BETA(1),"_w},
    {T, "BETA(2)... por el orden de los regresores. IR y FR dan el número de"_w},
    {T, "restricciones, y cada MR su número de orden y la ecuación:"_w},
    {T, "     número * beta(número) + número * beta(número) + ...... = número"_w},
    {E, "     CHN IR 2"_w},
    {E, "     CHN MR 1  beta(2) + beta(3) = 1"_w},
    {E, "     CHN MR 2  beta(1) + 5 * beta(3) = 0"_w},
    {E, "     CHN FR 2"_w},
    {T, "Un número suelto no cuenta: 3*BETA(1)+4+BETA(2) = 8 es 3*BETA(1)+BETA(2) = 8"_w},
    {T, "CGQ es el contraste de Goldfeld y Quandt:"_w},
    {T, "     CGQ (Variable ordenación) RA Di Df Ni Nf"_w},
    {T, "Di, Df: primera y última observación, una vez ordenadas, del denominador; Ni,"_w},
    {T, "Nf: del numerador. RA, opcional, muestra las dos regresiones."_w},
    {T, "El primer grupo empieza siempre en la primera, y el otro acaba en la última."_w},
    {E, "     CGQ (RENTA) RA 1 8 13 20"_w},
    {T, "CGQ detiene el proceso: póngalo al final, y repita MC antes de otro contraste."_w},
    {T, nullptr},
};

// P1134
const LineaAyuda TextoMetodos3[] = {
    {T, "Estos contrastes se refieren a la última regresión, que debe haberse hecho."_w},
    {T, "CDU es la h de Durbin, de autocorrelación en un modelo con retardos."_w},
    {T, "Sintaxis: CDU "_w},
    {T, "Deben existir series retardadas. Se usa la de menor retardo."_w},
    {E, "     MC CONSUMO 1 RENTA CONSUMO(-1)"_w},
    {E, "     CDU"_w},
    {T, "CWA es el contraste de Wallis, de autocorrelación de cuarto orden, para datos"_w},
    {T, "trimestrales. No da probabilidad."_w},
    {T, "Sintaxis: CWA"_w},
    {E, "     MC CONSUMO 1 RENTA"_w},
    {E, "     CWA"_w},
    {T, "CRA es el contraste de heteroscedasticidad por rangos. Sintaxis:"_w},
    {T, "     CRA  Variable de ordenación"_w},
    {T, "La variable puede ser una serie o una fórmula que la genere:"_w},
    {E, "     CRA LN(RENTA)"_w},
    {T, "CWH es el contraste de White. PC incluye los productos cruzados y RA muestra"_w},
    {T, "la regresión auxiliar; los dos son opcionales, y van por este orden:"_w},
    {T, "     CWH PC RA"_w},
    {T, "No admite series retardadas."_w},
    {E, "     CWH PC RA"_w},
    {T, nullptr},
};

// P1195
const LineaAyuda TextoAlisado[] = {
    {T, "Los comandos AES y AED tienen la siguiente sintaxis:"_w},
    {T, "     AES   [LOG]   Valor de alfa  serie a procesar"_w},
    {T, "     AED   [LOG]   Valor de alfa  serie a procesar"_w},
    {T, "AES corresponde al alisado simple y AED al alisado doble de Brown."_w},
    {T, ""_w},
    {T, "[LOG] es opcional. Si se incluye este comando se tomarán logaritmos."_w},
    {T, "El valor de alfa puede ser un número ó un escalar."_w},
    {T, "La serie a procesar puede ser una existente o una serie que se genere a través"_w},
    {T, "de una transformación."_w},
    {T, ""_w},
    {T, "Ejemplos:"_w},
    {E, "     AES LOG  0.3  Ingresos"_w},
    {E, "     AED   0.7  Edad"_w},
    {E, "     AES LOG Alfa TEND(2,3)"_w},
    {E, "     AES 0.8 PROBT(TEND,TEND)"_w},
    {T, ""_w},
    {T, "En esta versión las dos sentencias se aceptan sin hacer nada: no calculan el"_w},
    {T, "alisado ni detienen el proceso."_w},
    {T, nullptr},
};

// P1166
const LineaAyuda TextoAutocorrelacion[] = {
    {T, "Elija la serie y escriba el número de retardos, o el de coeficientes en la"_w},
    {T, "función parcial. Los cálculos se hacen en la muestra actual, donde un dato"_w},
    {T, "missing cuenta como cero."_w},
    {T, ""_w},
    {T, "El número de retardos no puede ser superior a un tercio de la muestra."_w},
    {T, "La función parcial toma como mucho los 499 primeros datos de la muestra."_w},
    {T, ""_w},
    {T, "Bandas de confianza, al 95 por 100:"_w},
    {T, "     Uniforme     1.96 / raíz de n, la misma en todos los retardos"_w},
    {T, "     Arma         crece con los coeficientes; en el listado, la desviación de"_w},
    {T, "                  cada retardo va junto a su coeficiente"_w},
    {T, "     Sin banda"_w},
    {T, "La función parcial no tiene la banda Arma."_w},
    {T, ""_w},
    {T, "El listado da tres retardos por línea, con los decimales elegidos en"_w},
    {T, "\"Decimales\". \"Imprimir\" lo lleva al papel y \"Gráficos\" lo dibuja, con el"_w},
    {T, "título y las marcas que se elijan aquí."_w},
    {T, nullptr},
};
