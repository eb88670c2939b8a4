// Help texts: the windows: editor, ASCII exchange, panel data, credits.
#include "shell/ayuda_textos.h"

#include "platform/literal.h"

// P1126
const LineaAyuda TextoEdicion[] = {
    {T, "Tabulador              columna siguiente (con Mayúsculas, la anterior)"_w},
    {T, "Enter, Flecha abajo    fila siguiente"_w},
    {T, "Flecha arriba          fila anterior"_w},
    {T, "Inicio, Fin            primera y última celda de la pantalla"_w},
    {T, "Re Pág, Av Pág         página anterior y siguiente"_w},
    {T, "Las flechas no desplazan la pantalla. Flecha abajo actúa como Enter, que en la"_w},
    {T, "última fila pasa a la página siguiente. Al escribir, Flecha izquierda, Flecha"_w},
    {T, "derecha, Retroceso y Suprimir corrigen el campo."_w},
    {T, ""_w},
    {T, "Para confirmar un campo se debe pulsar una tecla de control de cursor: Enter,"_w},
    {T, "Flechas, Tabulador, etc. Un clic del ratón en otra celda no lo confirma."_w},
    {T, "Borrar un campo: Utilice la tecla Escape"_w},
    {T, "Borrar una serie: Borre únicamente su código"_w},
    {T, "En una serie no se pueden entrar datos, si previamente no se ha escrito su"_w},
    {T, "código. Un campo en blanco es un dato missing."_w},
    {T, "Ctrl+C copia las series de la muestra; Ctrl+V pega un bloque de una hoja."_w},
    {T, ""_w},
    {T, "Una matriz existe cuando se guarda con \"Salvar matriz\", después de escribir su"_w},
    {T, "código y pulsar Enter. Las matrices deben tener el mismo número de datos en"_w},
    {T, "todas sus filas (columnas). Una matriz no puede tener datos missing."_w},
    {T, nullptr},
};

// P1141
const LineaAyuda TextoAscii[] = {
    {T, "Exportar escribe las series en un archivo de texto, con un registro por"_w},
    {T, "observación. Importar las lee, y pregunta si sustituyen a las que haya."_w},
    {T, ""_w},
    {T, "Formato variable: los campos se separan con comas, tabuladores u otro signo, y"_w},
    {T, "pueden ir entre delimitadores. El primer registro puede llevar los códigos de"_w},
    {T, "las series, y el primer campo las etiquetas de las observaciones."_w},
    {T, "Formato fijo: de cada campo se da el código, el tipo (A etiqueta, N serie), la"_w},
    {T, "posición de inicio, contada desde 1, y la longitud. El código de las etiquetas"_w},
    {T, "es DENO."_w},
    {T, "Los decimales que se exportan se eligen en \"Decimales\". Si en el archivo van"_w},
    {T, "con coma, marque \"Decimales con comas\". Un campo en blanco, o de guiones, es"_w},
    {T, "un dato missing. El nombre del archivo no puede tener * ? ni guiones."_w},
    {T, "Al importar se llenan las observaciones de la muestra, y se pierden registros"_w},
    {T, "si no caben. Al exportar salen tantos registros como observaciones tiene la"_w},
    {T, "muestra, pero desde la primera observación del archivo."_w},
    {T, ""_w},
    {T, "Mientras no esté ensamblada la opción del menú 'Combinar archivos', se puede"_w},
    {T, "simular exportando e importando a ASCII el archivo a combinar."_w},
    {T, nullptr},
};

// P1144
const LineaAyuda TextoPanel[] = {
    {T, "En un archivo de datos Panel los primeros campos pueden ser el período y el"_w},
    {T, "individuo, por el orden del primer concepto elegido en \"Datos Panel\":"_w},
    {T, "     Período primero:     período, individuo, etiqueta, series"_w},
    {T, "     Individuo primero:   individuo, período, etiqueta, series"_w},
    {T, "Las etiquetas van siempre en el primer o en el tercer campo."_w},
    {T, ""_w},
    {T, "Formato variable: marque \"Exportar Períodos/Individúos\" para que salgan, y"_w},
    {T, "\"Tercer campo etiquetas\" si las hay. Al importar con esta opción se saltan los"_w},
    {T, "dos primeros campos; sin ella se toman como series."_w},
    {T, ""_w},
    {T, "Formato fijo: los códigos y tipos de estos campos son"_w},
    {T, "     PERI  tipo P   período"_w},
    {T, "     INDI  tipo I   individuo"_w},
    {T, "     DENO  tipo A   etiqueta"_w},
    {T, "y los de las series, su código y el tipo N. Al importar, los dos campos forman"_w},
    {T, "el nombre de cada observación. Si el individuo va primero, al importar no se"_w},
    {T, "admite el período en el segundo campo: prescinda de los dos, y quedarán los"_w},
    {T, "nombres que dio al elegir el tipo de datos."_w},
    {T, nullptr},
};

// P1198
const LineaAyuda TextoAcerca[] = {
    {T, "TABIRA"_w},
    {T, "Diseño :"_w},
    {T, "Programación informática:"_w},
    {T, nullptr},
};

// P1125
const LineaAyuda TextoNoEnsamblada[] = {
    {T, "No ensamblada"_w},
    {T, nullptr},
};
