// First and last period of the work file, as numbers and as text.
#include "store/intervalo.h"

#include "platform/campos_texto.h"
#include "platform/numeros.h"
#include "platform/texto.h"
#include "store/archivo.h"

#include <algorithm>

namespace {

// Where a periodicity has its fields in TextoIntervalo, and how its periods are written.
struct FormaIntervalo {
    int porAno;
    std::size_t primerSub, ultimoAno, ultimoSub; // columns
    std::size_t anchoSub;                        // 0: no sub-periods
    const char *compuesto;                       // as a dialog leaves it; in both the years are texts
    const char *reescrito;
    const char *periodo;
};

constexpr std::size_t AnchoAno = 4;
constexpr int AnoMinimo = 1900;

constexpr FormaIntervalo Formas[] = {
    {1, 0, 5, 0, 0, "%s#%s", "%s#%s", "%4d"},
    {4, 5, 7, 12, 1, "%s#%1d#%s#%1d", "%s.%1d#%s.%1d", "%4d.%1d"},
    {12, 5, 8, 13, 2, "%s#%02d#%s#%02d", "%s.%2d#%s.%2d", "%4d.%02d"},
};

const FormaIntervalo &FormaDe(int porAno) {
    const auto *f =
        std::find_if(std::begin(Formas), std::end(Formas), [&](const auto &x) { return x.porAno == porAno; });
    return f != std::end(Formas) ? *f : Formas[0];
}

int Campo(std::string_view texto, std::size_t columna, std::size_t ancho) {
    return columna < texto.size() ? LeerEntero(texto.substr(columna, ancho)) : 0;
}

std::string TextoAno(int ano) {
    return Formatear("%4d", ano);
}

// The annual formats take the two years, the others the sub-periods too.
std::string ConFormato(const char *formato, bool conSub, const std::string &primerAno,
                       const std::string &ultimoAno, const Intervalo &v) {
    return conSub ? Formatear(formato, primerAno.c_str(), v.primerSub, ultimoAno.c_str(), v.ultimoSub)
                  : Formatear(formato, primerAno.c_str(), ultimoAno.c_str());
}

// The fields of one periodicity.
struct CamposDelTipo {
    std::size_t ancho; // characters that are read
    bool conSub;
    const char *subMinimoNoValido;
    const char *subMaximoNoValido;
};

// By TipoDatos - TipoAnual.
const CamposDelTipo Campos[] = {
    {4, false, nullptr, nullptr},
    {18, true, "Trimestre mínimo no válido"_w, "Trimestre máximo no válido"_w},
    {8, true, "Mes mínimo no válido"_w, "Mes máximo no válido"_w},
};

// A field in its two parts. Only as much of the year counts as the columns of TextoIntervalo will keep.
struct CampoPartido {
    bool blanco;
    std::string_view ano, sub;
};

CampoPartido Partir(std::string_view campo, const CamposDelTipo &forma) {
    campo = campo.substr(0, forma.ancho);
    CampoPartido r{CadenaDeCaracter(campo, ' ') == 1, campo, {}};
    if (forma.conSub) {
        const std::size_t punto = std::min(campo.find('.'), campo.size());
        r.ano = Recortado(campo.substr(0, punto)).substr(0, AnchoAno);
        r.sub = campo.substr(std::min(punto + 1, campo.size()));
    }
    return r;
}

} // namespace

int PeriodosPorAno(int periodicidad) {
    return periodicidad == TipoTrimestral ? 4 : periodicidad == TipoMensual ? 12 : 1;
}

Intervalo LeerIntervalo(std::string_view texto, int porAno) {
    const FormaIntervalo &f = FormaDe(porAno);
    return {Campo(texto, 0, AnchoAno), Campo(texto, f.primerSub, f.anchoSub),
            Campo(texto, f.ultimoAno, AnchoAno), Campo(texto, f.ultimoSub, f.anchoSub)};
}

std::string ComponerIntervalo(const Intervalo &v, int porAno) {
    const FormaIntervalo &f = FormaDe(porAno);
    const auto ano = [](int n) { return n != 0 ? TextoAno(n) : std::string(AnchoAno, ' '); };
    return ConFormato(f.compuesto, f.anchoSub > 0, ano(v.primerAno), ano(v.ultimoAno), v);
}

std::string TextoDeIntervalo(const Intervalo &v, int porAno) {
    const FormaIntervalo &f = FormaDe(porAno);
    return ConFormato(f.reescrito, f.anchoSub > 0, TextoAno(v.primerAno), TextoAno(v.ultimoAno), v);
}

int IndicePeriodo(int ano, int sub, int porAno) {
    return ano * porAno + sub - 1;
}

void PeriodoDeIndice(int indice, int porAno, int &ano, int &sub) {
    // A damaged work file can bring years before 0: the division must round down for them too.
    const int resto = (indice % porAno + porAno) % porAno;
    ano = (indice - resto) / porAno;
    sub = resto + 1;
}

std::string TextoDeIndice(int indice, int porAno) {
    const FormaIntervalo &f = FormaDe(porAno);
    int ano = 0;
    int sub = 0;
    PeriodoDeIndice(indice, porAno, ano, sub);
    return f.anchoSub > 0 ? Formatear(f.periodo, ano, sub) : Formatear(f.periodo, ano);
}

int ComprobarPeriodos(Ventana *ventana, int periodicidad, std::string_view inicio, std::string_view fin,
                      bool panel, Intervalo &intervalo) {
    const CamposDelTipo &forma = Campos[std::clamp<int>(periodicidad, TipoAnual, TipoMensual) - TipoAnual];
    const int porAno = PeriodosPorAno(periodicidad);
    const CampoPartido campoA = Partir(inicio, forma);
    const CampoPartido campoB = Partir(fin, forma);
    intervalo = {0, 1, 0, porAno};
    if (!panel && campoA.blanco && campoB.blanco) return 1;
    int a = LeerEntero(campoA.ano);
    const int b = LeerEntero(campoB.ano);
    if (panel && a == 0) a = AnoPorDefecto;
    if (a < AnoMinimo && a != 0) return MensajeCancelado(ventana, "Año mínimo no válido"_w);
    if (b > 0 && b < a && !panel) return MensajeCancelado(ventana, "Rango de años no válidos"_w);
    if (b < AnoMinimo && b != 0) return MensajeCancelado(ventana, "Año máximo no válido"_w);
    // A blank first year counts as 0 here, so most last years are too far from it.
    if ((b - a + 1) * porAno > MaxObservaciones)
        return MensajeCancelado(ventana, "Año máximo excesivamente grande"_w);
    const int subA = LeerEntero(campoA.sub);
    const int subB = LeerEntero(campoB.sub);
    if (forma.conSub && (subA < 0 || subA > porAno))
        return MensajeCancelado(ventana, forma.subMinimoNoValido);
    if (forma.conSub && (subB < 0 || subB > porAno))
        return MensajeCancelado(ventana, forma.subMaximoNoValido);
    intervalo = {a, subA < 1 ? 1 : subA, b, subB < 1 ? porAno : subB};
    return 1;
}
