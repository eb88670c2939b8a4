// Help texts of the dialogs that have a page of their own: tests, charts.
#include "shell/ayuda_textos.h"

#include "platform/literal.h"

// P1159
const LineaAyuda TextoHipotesisNula[] = {
    {T, "Contrasta restricciones lineales sobre los coeficientes de la última regresión"_w},
    {T, "(MC o MCP), que debe haberse hecho antes."_w},
    {T, ""_w},
    {T, "1. Escriba el número de restricciones, de 1 a 11, y pulse SI. Aparecen tantos"_w},
    {T, "   campos como restricciones."_w},
    {T, "2. Escriba en cada campo una ecuación. BETA(1) es el coeficiente del primer"_w},
    {T, "   regresor, BETA(2) el del segundo, por el orden en que se escribieron:"_w},
    {T, "     número * beta(número) + número * beta(número) + ...... = número"_w},
    {T, "   Para ayudarse, marque el botón a la derecha del campo, elija un símbolo de"_w},
    {T, "   la lista y pulse Añadir."_w},
    {T, "3. Pulse OK."_w},
    {T, ""_w},
    {T, "Ejemplos:      beta(2) + beta(3) = 1          beta(1) + 5 * beta(3) = 0"_w},
    {T, ""_w},
    {T, "Un número suelto no cuenta, y un coeficiente repetido en la misma ecuación"_w},
    {T, "sustituye al anterior: no se suma. Las restricciones no pueden ser más que los"_w},
    {T, "coeficientes. Al volver a abrir la ventana están las últimas que se leyeron"_w},
    {T, "sin error."_w},
    {T, nullptr},
};

// P1162
const LineaAyuda TextoGoldfeldQuandt[] = {
    {T, "Ordena las observaciones de la última regresión por una variable, estima el"_w},
    {T, "modelo en dos grupos de ellas y compara las sumas de cuadrados de los"_w},
    {T, "residuos."_w},
    {T, ""_w},
    {T, "Variable de ordenación: una serie o una fórmula que origine una serie, como"_w},
    {T, "     SALARIO          LN(SALARIO)/RND"_w},
    {T, "Elija una serie de la lista para añadirla a lo escrito."_w},
    {T, ""_w},
    {T, "Muestra denominador F y Muestra numerador F: número de orden de la primera y"_w},
    {T, "de la última observación de cada grupo, una vez ordenadas de menor a mayor. La"_w},
    {T, "primera es la 1. Con 20 observaciones, por ejemplo:"_w},
    {T, "     Denominador:   1   8          Numerador:   13   20"_w},
    {T, "El grupo que va primero empieza siempre en la primera observación, y el otro"_w},
    {T, "acaba siempre en la última. Entre los dos pueden quedar observaciones."_w},
    {T, ""_w},
    {T, "Marque la última casilla para ver además las dos regresiones. No se puede"_w},
    {T, "contrastar así una regresión ponderada: utilice MC."_w},
    {T, nullptr},
};

// P1180
const LineaAyuda TextoGraficos[] = {
    {T, "Pase las series que desee representar a la lista de la derecha y pulse OK. En"_w},
    {T, "un gráfico de dispersión escriba además el código de la serie del eje X."_w},
    {T, ""_w},
    {T, "Intervalos y títulos: títulos del gráfico y de los ejes, divisiones y límites"_w},
    {T, "de cada eje, leyenda y su marco. Los límites del eje X se escriben como en la"_w},
    {T, "muestra: 1973, 1973.1, 1973.01; en los de dispersión, como valores de X."_w},
    {T, "Formas y colores: líneas, símbolos o barras para todo el gráfico, y color,"_w},
    {T, "grosor y dibujo de cada serie. Elija una y pulse \"Si\" para confirmarlos."_w},
    {T, "Decimales: los de los números de los ejes."_w},
    {T, ""_w},
    {T, "En la ventana del gráfico se arrastran con el ratón los títulos y, elegida con"_w},
    {T, "un clic, la leyenda; sus asas cambian su tamaño. Imprimir lo lleva al papel."_w},
    {T, ""_w},
    {T, "Los datos missing se dibujan como ceros. Desde la Pantalla de Edición:"_w},
    {T, "     GRAF SERIE SERIE ...            gráfico temporal"_w},
    {T, "     GRAF (SERIEX) SERIE ...         gráfico de dispersión"_w},
    {T, nullptr},
};

// P1183
const LineaAyuda TextoGraficosRegresion[] = {
    {T, "Los gráficos de la última regresión: los residuos, los valores observados y"_w},
    {T, "los estimados, y las predicciones frente a las observaciones. Tienen las"_w},
    {T, "mismas opciones que los de series."_w},
    {T, ""_w},
    {T, "Antes del gráfico de los residuos se pregunta si se desean estandarizados, es"_w},
    {T, "decir, divididos por su desviación típica. Entonces el eje va de -5 a 5; si"_w},
    {T, "no, de menos el mayor residuo al mayor. El cero está siempre en el centro."_w},
    {T, ""_w},
    {T, "Otras opciones:"_w},
    {T, "     Con banda     dos líneas a dos desviaciones típicas del cero"_w},
    {T, "     Sin banda"_w},
    {T, "     Al medio, Parte inferior     dónde se señalan los períodos"_w},
    {T, ""_w},
    {T, "Con el ratón se arrastran los títulos y, elegida con un clic, la leyenda; sus"_w},
    {T, "asas cambian su tamaño. Las opciones valen hasta que se cierra el gráfico."_w},
    {T, nullptr},
};

// P1155
const LineaAyuda TextoHistograma[] = {
    {T, "Elija una serie. Sus observaciones en la muestra se reparten en clases, que se"_w},
    {T, "dan de una de estas tres maneras:"_w},
    {T, "     Por defecto: 10 clases iguales entre el menor y el mayor de los valores."_w},
    {T, "     Máximo, mínimo y número de intervalos, de 2 a 18."_w},
    {T, "     Los límites uno a uno, de izquierda a derecha y de arriba a abajo. Cada"_w},
    {T, "     uno debe ser mayor que el anterior; con el primero que no lo es acaba la"_w},
    {T, "     lista."_w},
    {T, ""_w},
    {T, "Eje Y: de 4 a 20 divisiones, y su valor mínimo y máximo, por defecto u otros,"_w},
    {T, "sin decimales. El título se escribe en la parte superior del gráfico o al pie."_w},
    {T, ""_w},
    {T, "Un valor cuenta en la clase cuyo límite inferior alcanza y cuyo límite"_w},
    {T, "superior no alcanza; la última clase incluye el suyo. Fuera de los límites no"_w},
    {T, "cuenta. Los datos missing cuentan como ceros. Si todos los valores son"_w},
    {T, "negativos, las clases por defecto llegan hasta cero."_w},
    {T, ""_w},
    {T, "Primero se ve la tabla de frecuencias, y desde ella el gráfico. Desde la"_w},
    {T, "Pantalla de Edición:     HIST SERIE INTERX clases"_w},
    {T, nullptr},
};
