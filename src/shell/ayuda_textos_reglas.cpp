// Help texts: general rules: the screen, operators, codes, limits.
#include "shell/ayuda_textos.h"

#include "platform/literal.h"

// P1194
const LineaAyuda TextoReglas1[] = {
    {T, "La ventana principal de la aplicación es también la Pantalla de Edición: en"_w},
    {T, "ella se escriben las sentencias, una en cada línea. La primera palabra dice lo"_w},
    {T, "que se hace (SER, ESC, MAT, MC, REPITE...). Valen mayúsculas y minúsculas."_w},
    {T, "Para ejecutar sentencias, selecciónelas y elija \"Procesar\" en \"Proced.\"; sin"_w},
    {T, "nada seleccionado no se procesa nada. Antes debe haber elegido el tipo de los"_w},
    {T, "datos en el menú \"Datos\". Las sentencias se procesan por orden. La primera que"_w},
    {T, "falla detiene el proceso: lo que hicieron las anteriores permanece."_w},
    {T, "Los ejemplos suponen datos anuales desde 1980, y la muestra acotada con"_w},
    {E, "     MUEST 1980 1999"_w},
    {T, ""_w},
    {T, "Las secuencias que empiezan por 'punto y coma' (;), se consideran comentarios"_w},
    {T, "y no se procesan. También detrás de una fórmula cabe un comentario, tras punto"_w},
    {T, "y coma y sin los signos + y -. En estas páginas da el resultado de CAL."_w},
    {E, "     ; La renta en logaritmos, y una suma"_w},
    {E, "     SER LRENTA = LN(RENTA)"_w},
    {E, "     CAL 2 + 3 * 4               ; 14"_w},
    {T, "Los paréntesis y corchetes de un comentario deben quedar cerrados."_w},
    {T, ""_w},
    {T, "Las sentencias se guardan y recuperan en el menú \"Util.\", con las opciones"_w},
    {T, "\"Guardar\", \"Abrir\" y \"Añadir fichero sentencias...\"."_w},
    {T, nullptr},
};

// P1138
const LineaAyuda TextoReglas2[] = {
    {T, "Los operadores son + - * / y ** (potencia). Primero se calculan los paréntesis"_w},
    {T, "y las funciones; después, * / y **; al final, + y -."_w},
    {T, "Las operaciones se realizan, dentro de la misma prioridad, de izquierda a"_w},
    {T, "derecha. La potencia tampoco pasa delante de * y /:"_w},
    {E, "     CAL 10 - 4 - 3              ; 3"_w},
    {E, "     CAL 2 * 3 ** 2              ; 36"_w},
    {E, "     CAL 2 * (3 ** 2)            ; 18"_w},
    {T, "Un número negativo detrás de * / o ** va entre paréntesis, y en una fórmula"_w},
    {T, "larga conviene que también vaya cada producto y cada cociente:"_w},
    {E, "     CAL 10 + 2 * (-3)           ; 4"_w},
    {E, "     CAL 1 + ((2 + (3 * 4)) * 5) ; 71"_w},
    {T, ""_w},
    {T, "El separador decimal es el punto: 3.5; 3,5 se lee como 3. Los decimales con"_w},
    {T, "que se muestran los datos, dos al empezar, se cambian en \"Decimales\", en los"_w},
    {T, "editores y gráficos."_w},
    {T, ""_w},
    {T, "Códigos de las series, matrices y escalares:"_w},
    {T, "No deben tener más de ocho caracteres. El primero ha de ser una letra y los"_w},
    {T, "demás, letras o cifras, sin acentos ni eñes. No pueden ser el nombre de una"_w},
    {T, "función (LN, DET...). Cada código nombra una serie, una matriz o un escalar."_w},
    {T, nullptr},
};

// P1128
const LineaAyuda TextoReglas3[] = {
    {T, "El número máximo de datos en una serie es de 4.000. El número máximo de series"_w},
    {T, "es de 100. Las dimensiones máximas de una matriz son de 60 x 60. El número"_w},
    {T, "máximo de matrices es de 30."_w},
    {T, "Las sentencias dejan libre el último lugar: crean hasta 99 series, 29 matrices"_w},
    {T, "y 59 escalares. Una regresión admite 17 regresores."_w},
    {T, ""_w},
    {T, "Los códigos de las series/matrices/escalares generados por la aplicación"_w},
    {T, "comienzan con el caracter subrayado (_). Así, una regresión deja la matriz de"_w},
    {T, "coeficientes _BETA, sus covarianzas _COV y la serie de residuos _RES:"_w},
    {E, "     MC CONSUMO 1 RENTA"_w},
    {E, "     SER RESCUAD = _RES ** 2"_w},
    {E, "     ESC BETA2 = _BETA[2,1]"_w},
    {T, "No dé a sus datos códigos que empiecen por _ : la aplicación podría borrarlos."_w},
    {T, ""_w},
    {T, "Para borrar series, matrices y escalares use las relaciones del menú \"Datos\"."_w},
    {T, "En el Editor de series se pueden eliminar observaciones y ordenar las series,"_w},
    {T, "si los datos no tienen periodicidad. No ordene series con datos missing: los"_w},
    {T, "huecos no cambian de lugar, y quedan en otras observaciones."_w},
    {T, "Es importante a la hora de ordenar las series recordar que dicha ordenación"_w},
    {T, "afecta solo a la Muestra seleccionada."_w},
    {T, nullptr},
};
