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
#include <limits>
#include <utility>

namespace {

constexpr std::string_view TerminacionCopia = ".TR2";
constexpr std::string_view TerminacionTexto = ".TXT";
constexpr const char *TerminacionCerrojo = ".cerrojo";

// What the work was at a moment: 64 bits that change with it.
using Huella = std::uint64_t;

struct EstadoDeCopias {
    std::string ruta;     // of the copy, without its ending; empty: none is kept
    int cerrojo = -1;     // tells other programs that the copy belongs to one that runs
    bool escrita = false; // the file is there
    Huella copiado = 0;   // the work that it holds
    bool hayGuardado = false;
    Huella guardado = 0; // the work that a file of the user, or of an example, holds
    ControlTexto *pantalla = nullptr;
    std::string texto = {}; // that the copy of the statements holds; empty: there is none
};

EstadoDeCopias Copias;

std::string RutaCopia() {
    return Copias.ruta + std::string(TerminacionCopia);
}

std::string RutaTexto() {
    return Copias.ruta + std::string(TerminacionTexto);
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

void BorrarTexto() {
    if (!Copias.texto.empty()) BorrarArchivo(RutaTexto());
    Copias.texto.clear();
}

void GuardarTexto() {
    if (Copias.pantalla == nullptr) return;
    const std::string texto = TextoDeControl(Copias.pantalla);
    if (texto == Copias.texto) return;
    if (texto.empty()) return BorrarTexto();
    if (EscribirArchivo(RutaTexto(), texto)) Copias.texto = texto;
}

bool EscribirCopia(Huella h) {
    if (Copias.escrita && h == Copias.copiado) return true;
    if (Copias.ruta.empty() || !EscribirFicheroTrabajo(RutaCopia())) return false;
    Copias.escrita = true;
    Copias.copiado = h;
    return true;
}

// Makes a copy that was left the one of this program, without a moment in which it is nobody's.
void RecuperarTrabajo(Ventana *ventana, const std::string &ruta) {
    if (!ExisteArchivo(ruta)) return;
    if (!LeerTrabajo(ventana, ruta)) {
        MoverArchivo(ruta, ruta + ".danado");
        return;
    }
    ActualizarMuestra();
    PonerTituloTrabajo(ventana);
    if (!MoverArchivo(ruta, RutaCopia())) return;
    Copias.escrita = true;
    Copias.copiado = HuellaDelTrabajo();
}

// The same with the statements. A program without a screen for them leaves them.
void RecuperarTexto(const std::string &ruta) {
    std::string texto;
    if (Copias.pantalla == nullptr || !LeerArchivo(ruta, texto)) return;
    SeleccionarEnControl(Copias.pantalla, 0, std::numeric_limits<int>::max());
    EscribirEnControl(Copias.pantalla, texto);
    if (MoverArchivo(ruta, RutaTexto())) Copias.texto = std::move(texto);
}

} // namespace

void EmpezarCopias(const std::string &carpeta, ControlTexto *pantalla) {
    Copias = {};
    Copias.pantalla = pantalla;
    constexpr int Intentos = 100;
    for (int i = 0; i < Intentos && !carpeta.empty() && Copias.cerrojo < 0; ++i) {
        Copias.ruta = RutaDeProceso(carpeta, "copia", i);
        // A program that is gone may have had the same number, and left its copy.
        if (!ExisteArchivo(RutaCopia()) && !ExisteArchivo(RutaTexto()))
            Copias.cerrojo = TomarCerrojo(Copias.ruta + TerminacionCerrojo);
    }
    if (Copias.cerrojo < 0) Copias.ruta.clear();
}

void OfrecerCopia(Ventana *ventana) {
    if (Copias.ruta.empty()) return;
    for (const std::string &hallado :
         ArchivosConTerminacion(CarpetaDeRuta(Copias.ruta), TerminacionCopia, TerminacionTexto)) {
        const std::string ruta = hallado.substr(0, hallado.rfind('.'));
        const std::string suCerrojo = ruta + TerminacionCerrojo;
        const int cerrojo = TomarCerrojo(suCerrojo);
        if (cerrojo < 0) continue; // of a program that runs, this one perhaps
        const std::string suTrabajo = ruta + std::string(TerminacionCopia);
        const std::string suTexto = ruta + std::string(TerminacionTexto);
        const Respuesta r = MostrarCaja(
            ventana,
            "Quedó trabajo sin guardar la última vez. ¿Desea recuperarlo? Si contesta No, se borrará."_w,
            TituloAviso, IconoPregunta, BotonesSiNoCancelar);
        if (r == RespuestaNo) {
            BorrarArchivo(suTrabajo);
            BorrarArchivo(suTexto);
        }
        if (r == RespuestaSi) {
            RecuperarTrabajo(ventana, suTrabajo);
            RecuperarTexto(suTexto);
        }
        SoltarCerrojo(cerrojo, suCerrojo);
        return;
    }
}

void GuardarCopia() {
    if (Copias.ruta.empty()) return;
    GuardarTexto();
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

bool HayTrabajoSinGuardar() {
    return !EstaGuardado(HuellaDelTrabajo());
}

bool TerminarCopias(bool conservar) {
    const Huella h = HuellaDelTrabajo();
    if (conservar && !EstaGuardado(h)) {
        if (!EscribirCopia(h)) return false;
        GuardarTexto();
    } else {
        BorrarCopia();
        BorrarTexto();
    }
    SoltarCerrojo(Copias.cerrojo, Copias.ruta + TerminacionCerrojo);
    Copias = {};
    return true;
}
