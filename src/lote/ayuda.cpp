// The texts of `--ayuda tipo`, `formato` and `sucesos`.
#include "lote/ayuda.h"

namespace {

constexpr const char *AyudaTipo =
    "--tipo TIPO elige el tipo de datos y vacía el archivo de trabajo.\n\n"
    "  sin                              sin periodicidad\n"
    "  anual:1990:2005                  años\n"
    "  trimestral:1990.1:2005.4         trimestres\n"
    "  mensual:1990.01:2005.12          meses; los años pueden faltar: anual\n"
    "  panel:constante:PRIMERO:N:PERIODICIDAD:INICIO:FIN\n"
    "                                   N individuos con los mismos períodos; PRIMERO: periodo o individuo;\n"
    "                                   PERIODICIDAD: anual, trimestral o mensual\n"
    "  panel:variable:periodo:1990=3,1991=2\n"
    "                                   períodos y el número de sus individuos\n"
    "  panel:variable:individuo:1=1990/1991,2=1990\n"
    "                                   individuos y sus períodos\n\n"
    ",etiquetas detrás de sin o de un panel da una etiqueta a cada observación.\n";

constexpr const char *AyudaFormato =
    "--formato F vale para los --importar y --exportar que siguen, hasta el próximo --formato.\n\n"
    "  variable[:OP,OP...]              campos separados:\n"
    "    separador=coma|tab|C           lo que separa los campos; C es un carácter\n"
    "    delimitador=comillas|nada|C    lo que rodea los campos\n"
    "    delimitados=etiquetas|todo     qué campos lo llevan\n"
    "    codigos                        el primer registro tiene los códigos\n"
    "    etiquetas=0|1|3                sin etiquetas, en el primer campo, en el tercero\n"
    "    comas                          decimales con coma\n"
    "    panel                          campos de período e individuo\n"
    "  fijo:T/INICIO/LONGITUD/CODIGO;...[,comas]\n"
    "                                   campos por su lugar; T: A etiqueta, P período, I individuo, N "
    "número\n\n"
    "Al empezar: variable:separador=coma,delimitador=comillas,delimitados=etiquetas,codigos,etiquetas=0\n";

constexpr const char *AyudaSucesos =
    "Con --json cada suceso es un objeto JSON en una línea; «suceso» dice cuál es.\n\n"
    "  caja        titulo, texto, icono, botones, respuesta; en un lote también linea y sentencia\n"
    "  salida      ventana, titulo, lineas, y según la ventana clase, contenido, fijas\n"
    "  regresion   detrás de su salida: metodo, dependiente, muestra, observaciones,\n"
    "              regresores [{codigo, coeficiente, desviacion, t, probabilidad}], estadisticos\n"
    "  grafico     ventana, titulo, ancho, alto, c, h, ordenes\n"
    "  impresion   documento, titulo, paginas\n"
    "  nota        texto, linea: lo que se ha aceptado y quizá no se quería; también en la salida de "
    "errores\n"
    "  parada      linea, sentencia: dónde se ha detenido un lote\n"
    "  paso        con --traza, cada paso de un cálculo: n, nivel, sentencia, formula, destino, clase,\n"
    "              filas, columnas, valores, explicacion, fallo\n"
    "  volcado     el contenido del archivo de trabajo\n"
    "  fin         estado: el de salida; siempre el último\n\n"
    "Los textos están en UTF-8; los números, con todas sus cifras.\n";

constexpr struct {
    std::string_view palabra;
    const char *texto;
} Ayudas[] = {{"tipo", AyudaTipo}, {"formato", AyudaFormato}, {"sucesos", AyudaSucesos}};

} // namespace

const char *TextoDeAyuda(std::string_view palabra) {
    for (const auto &a : Ayudas)
        if (a.palabra == palabra) return a.texto;
    return nullptr;
}
