// What the tests of the ASCII exchange share.
#include "data/ascii_apoyo.h"

#include "platform/campos_texto.h"
#include "platform/texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cstdint>
#include <filesystem>
#include <unistd.h>

namespace {
std::filesystem::path Anterior, Carpeta;
}

void PrepararAscii(int tipo, int observaciones, int primerConcepto) {
    EmpezarPrueba();
    for (int s = 0; s < MaxSeries; ++s) BorrarSerie(s);
    ArchivoTrabajo.TipoDatos = static_cast<std::int16_t>(tipo);
    ArchivoTrabajo.NumObs = observaciones;
    DescripcionPanel.PrimerConcepto = primerConcepto;
    for (int i = 0; i < observaciones; ++i) {
        const int ano = 1990 + i / 2, individuo = i % 2 + 1;
        std::string texto = Formatear("%4d", i + 1);
        if (tipo == TipoPanel)
            texto =
                primerConcepto == 0 ? Formatear("%d-%d", ano, individuo) : Formatear("%d-%d", individuo, ano);
        PonerTextoPeriodo(i, texto);
    }
    Muestra.InicioMuestra = 0;
    Muestra.FinMuestra = observaciones - 1;
    TablaCampos = {};
    Prueba = {};
}

std::string VolcadoSeries(int filas) {
    std::string r;
    for (int s = 0; s < ArchivoTrabajo.NumSeries; ++s) {
        if (s > 0) r += " / ";
        r += Utf8De1252(Recortado(ArchivoTrabajo.Codigos[s])) + ":";
        for (int i = 0; i < filas; ++i)
            r += ArchivoTrabajo.PresenciaObs[i][s] == 1 ? Formatear(" %g", ArchivoTrabajo.ValoresObs[i][s])
                                                        : " .";
    }
    return r;
}

std::string VolcadoEtiquetas(int filas) {
    std::string r = "|";
    for (int i = 0; i < filas; ++i)
        r += Utf8De1252(Recortado(ArchivoTrabajo.EtiquetasObs[i], RecorteDerecha)) + "|";
    return r;
}

std::string VolcadoPeriodos(int filas) {
    std::string r = "|";
    for (int i = 0; i < filas; ++i)
        r += Utf8De1252(Recortado(ArchivoTrabajo.TextosPeriodo[i], RecorteDerecha)) + "|";
    return r;
}

void ImportarUtf8(const OpcionesIntercambio &opciones, std::string_view texto) {
    ImportarTexto(opciones, Texto1252DeUtf8(texto), Muestra.InicioMuestra, Muestra.FinMuestra);
}

std::string ExportarUtf8(const OpcionesIntercambio &opciones, int decimales) {
    return Utf8De1252(TextoDeExportacion(opciones, Muestra.InicioMuestra, Muestra.FinMuestra, decimales));
}

OpcionesIntercambio Variable(const ValoresFormatoVariable &valores, bool importando) {
    OpcionesIntercambio opciones;
    opciones.Importando = importando ? 1 : 0;
    AceptarFormatoVariable(valores, opciones);
    return opciones;
}

bool AnadirFilas(bool importando, std::initializer_list<std::string_view> filas) {
    bool todas = true;
    for (std::string_view fila : filas) {
        std::string partes[3];
        for (std::string &parte : partes) {
            parte = fila.substr(0, fila.find('/'));
            fila.remove_prefix(parte.size() + 1);
        }
        EdicionCampo edicion = {Texto1252DeUtf8(fila), partes[0], partes[1], partes[2]};
        todas = AnadirCampo(nullptr, importando, edicion) && todas;
    }
    return todas;
}

OpcionesIntercambio Fijo(std::initializer_list<std::string_view> filas, bool importando, bool comas) {
    OpcionesIntercambio opciones;
    opciones.Importando = importando ? 1 : 0;
    TablaCampos = {};
    AnadirFilas(importando, filas);
    AceptarFormatoFijo(nullptr, comas, opciones);
    return opciones;
}

void EntrarEnCarpeta() {
    Anterior = std::filesystem::current_path();
    Carpeta =
        std::filesystem::temp_directory_path() / Formatear("tabira_ascii_%d", static_cast<int>(getpid()));
    std::filesystem::remove_all(Carpeta);
    std::filesystem::create_directories(Carpeta);
    std::filesystem::current_path(Carpeta);
}

void SalirDeCarpeta() {
    std::filesystem::current_path(Anterior);
    std::filesystem::remove_all(Carpeta);
}
