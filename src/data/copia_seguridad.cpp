// The copy of the work in the state folder.
#include "data/copia_seguridad.h"

#include "data/fichero_trabajo.h"
#include "data/trabajo.h"
#include "platform/archivos.h"
#include "platform/carpeta_estado.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace {

constexpr std::string_view TerminacionCopia = ".TR2";
constexpr const char *TerminacionCerrojo = ".cerrojo";

// What the work was at a moment: 64 bits that change with it.
using Huella = std::uint64_t;

struct EstadoDeCopias {
    std::string ruta;     // of the copy, without its ending; empty: none is kept
    int cerrojo = -1;     // tells other programs that the copy belongs to one that runs
    bool escrita = false; // the file is there
    Huella copiado = 0;   // the work that it holds
    bool hayGuardado = false;
    Huella guardado = 0; // the work that a file of the user holds
};

EstadoDeCopias Copias;

std::string RutaCopia() {
    return Copias.ruta + std::string(TerminacionCopia);
}

// Eight bytes at a time: it runs over the whole work each minute.
void Mezclar(Huella &h, const void *datos, std::size_t n) {
    constexpr Huella Factor = 0x9E3779B97F4A7C15u;
    const auto *p = static_cast<const unsigned char *>(datos);
    while (n > 0) {
        std::uint64_t trozo = 0;
        const std::size_t k = std::min(n, sizeof trozo);
        std::memcpy(&trozo, p, k);
        h = std::rotl((h ^ trozo) * Factor, 29);
        p += k;
        n -= k;
    }
}

template <class T> void MezclarValor(Huella &h, const T &valor) {
    Mezclar(h, &valor, sizeof valor);
}

int FilasConDatos() {
    const auto &filas = ArchivoTrabajo.FilasEscritas;
    return *std::max_element(std::begin(filas), std::end(filas));
}

Huella HuellaDelTrabajo() {
    const CabeceraArchivo &a = ArchivoTrabajo;
    Huella h = 0;
    const auto filas = static_cast<std::size_t>(FilasConDatos());
    for (const int n : {int{a.NumSeries}, int{a.TipoDatos}, int{a.NumObs}, int{a.ConEtiquetas},
                        int{TablaMatrices.numero}, int{TablaEscalares.numero}, int{TablaEcuaciones.numero}})
        MezclarValor(h, n);
    MezclarValor(h, a.TextoIntervalo);
    MezclarValor(h, a.Codigos);
    MezclarValor(h, a.TextosPeriodo);
    MezclarValor(h, a.EtiquetasObs);
    Mezclar(h, a.ValoresObs, filas * sizeof a.ValoresObs[0]);
    Mezclar(h, a.PresenciaObs, filas * sizeof a.PresenciaObs[0]);
    for (int m = 0; m < TablaMatrices.numero; ++m) {
        const RegistroMatriz &r = TablaMatrices.registro[m];
        MezclarValor(h, r.Filas);
        MezclarValor(h, r.Columnas);
        Mezclar(h, r.Codigo, AnchoCodigo);
        Mezclar(h, TablaMatrices.bloque[m], static_cast<std::size_t>(r.Filas * r.Columnas) * sizeof(double));
    }
    for (int e = 0; e < TablaEscalares.numero; ++e) {
        MezclarValor(h, TablaEscalares.registro[e].Codigo);
        MezclarValor(h, TablaEscalares.registro[e].Valor);
    }
    MezclarValor(h, TablaEcuaciones.TextosEcuacion);
    MezclarValor(h, TablaEcuaciones.Codigos);
    MezclarValor(h, DescripcionPanel);
    return h;
}

// Something that a user would miss, and that a work file can hold.
bool HayTrabajo() {
    return ArchivoTrabajo.TipoDatos < SinTipoDatos &&
           (ArchivoTrabajo.NumSeries > 0 || TablaMatrices.numero > 0 || TablaEscalares.numero > 0 ||
            TablaEcuaciones.numero > 0 || FilasConDatos() > 0);
}

bool EstaGuardado(Huella h) {
    return !HayTrabajo() || (Copias.hayGuardado && h == Copias.guardado);
}

void BorrarCopia() {
    if (Copias.escrita) BorrarArchivo(RutaCopia());
    Copias.escrita = false;
}

bool EscribirCopia(Huella h) {
    if (Copias.escrita && h == Copias.copiado) return true;
    if (Copias.ruta.empty() || !EscribirFicheroTrabajo(RutaCopia())) return false;
    Copias.escrita = true;
    Copias.copiado = h;
    return true;
}

// Makes a copy that was left the one of this program, without a moment in which it is nobody's.
void Adoptar(const std::string &ruta) {
    if (!MoverArchivo(ruta, RutaCopia())) return;
    Copias.escrita = true;
    Copias.copiado = HuellaDelTrabajo();
}

} // namespace

void EmpezarCopias(const std::string &carpeta) {
    Copias = {};
    constexpr int Intentos = 100;
    for (int i = 0; i < Intentos && !carpeta.empty() && Copias.cerrojo < 0; ++i) {
        Copias.ruta = RutaDeProceso(carpeta, "copia", i);
        // A program that is gone may have had the same number, and left its copy.
        if (!ExisteArchivo(RutaCopia())) Copias.cerrojo = TomarCerrojo(Copias.ruta + TerminacionCerrojo);
    }
    if (Copias.cerrojo < 0) Copias.ruta.clear();
}

void OfrecerCopia(Ventana *ventana) {
    if (Copias.ruta.empty()) return;
    for (const std::string &ruta : ArchivosConTerminacion(CarpetaDeRuta(Copias.ruta), TerminacionCopia)) {
        const std::string suCerrojo =
            ruta.substr(0, ruta.size() - TerminacionCopia.size()) + TerminacionCerrojo;
        const int cerrojo = TomarCerrojo(suCerrojo);
        if (cerrojo < 0) continue; // of a program that runs, this one perhaps
        const Respuesta r = MostrarCaja(
            ventana,
            "Quedó trabajo sin guardar la última vez. ¿Desea recuperarlo? Si contesta No, se borrará."_w,
            TituloAviso, IconoPregunta, BotonesSiNoCancelar);
        if (r == RespuestaNo) BorrarArchivo(ruta);
        if (r == RespuestaSi) {
            if (LeerTrabajo(ventana, ruta)) {
                Adoptar(ruta);
                ActualizarMuestra();
                PonerTituloTrabajo(ventana);
            } else {
                MoverArchivo(ruta, ruta + ".danado");
            }
        }
        SoltarCerrojo(cerrojo, suCerrojo);
        return;
    }
}

void GuardarCopia() {
    if (Copias.ruta.empty()) return;
    const Huella h = HuellaDelTrabajo();
    if (Copias.hayGuardado && h == Copias.guardado) {
        BorrarCopia();
    } else if (HayTrabajo()) {
        EscribirCopia(h);
    }
}

void AnotarTrabajoGuardado() {
    Copias.hayGuardado = true;
    Copias.guardado = HuellaDelTrabajo();
    BorrarCopia();
}

bool TerminarCopias(bool conservar) {
    const Huella h = HuellaDelTrabajo();
    if (conservar && !EstaGuardado(h)) {
        if (!EscribirCopia(h)) return false;
    } else {
        BorrarCopia();
    }
    SoltarCerrojo(Copias.cerrojo, Copias.ruta + TerminacionCerrojo);
    Copias = {};
    return true;
}
