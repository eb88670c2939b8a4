// Help texts: matrices, scalars and the calculator.
#include "shell/ayuda_textos.h"

#include "platform/literal.h"

// P1192
const LineaAyuda TextoMatrices1[] = {
    {T, "MAT genera una matriz con el resultado de una fórmula. Sintaxis:"_w},
    {T, "     MAT Código_matriz = fórmula"_w},
    {T, "Los operandos son matrices, escalares, números y funciones. Los operadores son"_w},
    {T, "+ - * / y los signos ' (traspuesta) y $ (inversa), que van tras el operando."_w},
    {E, "     MAT C = A * B + A'"_w},
    {E, "     MAT D = 2 * A - B / 4"_w},
    {E, "     MAT C = A$"_w},
    {T, "Un escalar multiplica o divide a una matriz, pero no puede sumarse a ella."_w},
    {T, ""_w},
    {T, "Se puede multiplicar sin el signo * : basta un blanco, o el ' o $ del primero."_w},
    {T, "Entonces la prioridad de la operación baja al nivel de la suma y la resta:"_w},
    {T, "A + B C es (A + B) C. Delante de un paréntesis es necesario el signo."_w},
    {E, "     MAT XX = X'X"_w},
    {E, "     MAT BETA = (X'X)$ X'Y"_w},
    {T, ""_w},
    {T, "Un número negativo se escribe entre paréntesis, y la fórmula no puede empezar"_w},
    {T, "por el signo menos:"_w},
    {E, "     MAT C = A * (-3)"_w},
    {E, "     MAT D = (-1) * A"_w},
    {T, "La inversa admite hasta 17 x 17. La traspuesta toma, como máximo, 100 filas."_w},
    {T, nullptr},
};

// P1129
const LineaAyuda TextoMatrices2[] = {
    {T, "DIAG(m)  matriz diagonal con los elementos de m, que ha de tener una columna"_w},
    {T, "VECT(m)  vector fila con la diagonal de la matriz cuadrada m"_w},
    {T, "LNMT(m)  logaritmo neperiano de cada elemento; 0 si no es positivo"_w},
    {T, "RCMT(m)  raíz cuadrada de cada elemento; 0 si no es positivo"_w},
    {E, "     MAT C = DIAG(V) * 2"_w},
    {E, "     MAT D = RCMT(VECT(_COV))"_w},
    {T, "Con DIAG y VECT los números van detrás: 2 * DIAG(V) no es válido."_w},
    {T, ""_w},
    {T, "Para formar una matriz con series, se escriben entre llaves, separadas por"_w},
    {T, "blancos: cada serie, escalar o número es una columna, y cada observación de la"_w},
    {T, "muestra una fila. No caben fórmulas ni números negativos."_w},
    {E, "     MAT XD = {1 RENTA PRECIO}"_w},
    {E, "     MAT YD = {CONSUMO}"_w},
    {T, "Una matriz no admite datos missing."_w},
    {T, ""_w},
    {T, "Ejemplo: una regresión paso a paso, con 100 observaciones como máximo."_w},
    {E, "     MAT BETA = (XD'XD)$ XD'YD"_w},
    {E, "     MAT U = YD - XD * BETA"_w},
    {E, "     CAL ESCAL(U'U) / (NOBS - NFILA(BETA))"_w},
    {T, nullptr},
};

// P1193
const LineaAyuda TextoEscalares[] = {
    {T, "ESC da valor a un escalar. Sintaxis:"_w},
    {T, "     ESC Código_escalar = fórmula"_w},
    {T, "La fórmula es como las de SER, y se toma su valor en la primera observación de"_w},
    {T, "la muestra. Lo normal es que valga lo mismo en todas:"_w},
    {E, "     ESC IVA = 0.16"_w},
    {E, "     ESC MEDIA = MEDSER(SALARIO)"_w},
    {E, "     ESC RENTA90 = RENTA[1990]"_w},
    {E, "     ESC BETA2 = _BETA[2,1]"_w},
    {E, "     ESC MCUAD = RCUAD(SUMSER(SALARIO ** 2) / NOBS)"_w},
    {T, "Si el escalar existe, cambia de valor:"_w},
    {E, "     ESC IVA = IVA + 0.02"_w},
    {T, ""_w},
    {T, "Un escalar puede usarse en cualquier fórmula, de regresor, entre corchetes"_w},
    {T, "como período y como retardo; el retardo toma entonces el signo del escalar:"_w},
    {E, "     SER PRECIVA = PRECIO * (1 + IVA)"_w},
    {E, "     ESC RET = -2"_w},
    {E, "     SER RENTA2 = RENTA(RET)"_w},
    {T, "El código no puede ser el de una serie ni el de una matriz."_w},
    {T, nullptr},
};

// P1196
const LineaAyuda TextoCalculadora[] = {
    {T, "CAL muestra el resultado de una fórmula, con cuatro decimales. Sintaxis:"_w},
    {T, "     CAL fórmula"_w},
    {T, "La fórmula es como las de SER y ESC, y no se guarda nada. Si su valor cambia"_w},
    {T, "con las observaciones, se muestra el de la primera de la muestra."_w},
    {E, "     CAL 2 + 3 * 4               ; 14"_w},
    {E, "     CAL (2 + 3) * 4             ; 20"_w},
    {E, "     CAL 2 ** 3 * 2              ; 16"_w},
    {E, "     CAL RCUAD(2) / 2            ; 0.7071"_w},
    {E, "     CAL LN(10)                  ; 2.3026"_w},
    {E, "     CAL ABS(3 - 8)              ; 5"_w},
    {E, "     CAL 3 > 2                   ; 1"_w},
    {T, "También sirve para consultar datos y probar contrastes:"_w},
    {E, "     CAL CONSUMO[1990] / RENTA[1990]"_w},
    {E, "     CAL 100 * DESSER(SALARIO) / MEDSER(SALARIO)"_w},
    {E, "     CAL DET(A)"_w},
    {E, "     CAL PROBT(2.086,20)         ; 0.05"_w},
    {T, "La división por cero da cero:"_w},
    {E, "     CAL 5 / 0                   ; 0"_w},
    {T, nullptr},
};
