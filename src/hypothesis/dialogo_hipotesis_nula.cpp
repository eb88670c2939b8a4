// The statements of the null hypothesis, put together from the fields of its dialog.
#include "hypothesis/dialogo_hipotesis_nula.h"

#include "hypothesis/hipotesis_nula.h"
#include "language/lote_sentencias.h"
#include "language/traza.h"
#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/periodos.h"

ValoresHipotesisNula AbrirHipotesisNula() {
    EstadoHipotesisNula &h = HipotesisNula;
    if (!h.dialogoAbierto) h.textosGuardados = {};
    h.dialogoAbierto = true;
    ValoresHipotesisNula valores;
    valores.restricciones = h.textosGuardados;
    return valores;
}

void MostrarRestricciones(Ventana *ventana, ValoresHipotesisNula &valores, std::string_view numero) {
    valores.visibles = 0;
    HipotesisNula.q = LeerEntero(numero);
    const int bien = PrepararRestricciones(ventana);
    valores.numero = HipotesisNula.q;
    if (bien == 1) valores.visibles = HipotesisNula.q;
}

std::vector<std::string> SentenciasHipotesisNula(const ValoresHipotesisNula &valores) {
    std::vector<std::string> sentencias = {Formatear("CHN IR %d", valores.numero)};
    for (int i = 0; i < valores.visibles; ++i) {
        const std::string &texto = valores.restricciones[static_cast<std::size_t>(i)];
        sentencias.push_back(Formatear("CHN MR %d  ", i + 1).append(Recortado(texto, RecorteDerecha)));
    }
    sentencias.push_back(Formatear("CHN FR %d", valores.numero));
    return sentencias;
}

void AceptarHipotesisNula(Ventana *ventana, const ValoresHipotesisNula &valores) {
    EmpezarTraza(); // the statements are the steps of one test
    for (const std::string &sentencia : SentenciasHipotesisNula(valores))
        ProcesarSentencia(ventana, sentencia, Muestra.InicioRegresion, Muestra.FinRegresion);
    TerminarTraza();
}
