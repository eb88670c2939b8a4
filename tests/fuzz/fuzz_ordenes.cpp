// Any bytes as a command line of tabira-lote: one argument a line. The run stands in an empty folder of its own, reads nothing
// from standard input and prints into nothing.
#include "language/palabras.h"
#include "lote/acciones.h"
#include "lote/sucesos.h"
#include "store/archivo.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t MaxTexto = 2048;

void PrepararProceso() {
    char carpeta[] = "/tmp/tabira_fuzz_XXXXXX";
    if (mkdtemp(carpeta) == nullptr || chdir(carpeta) != 0) std::abort();
    if (std::freopen("/dev/null", "r", stdin) == nullptr || std::freopen("/dev/null", "w", stdout) == nullptr)
        std::abort();
    InstalarPlataformaLote();
}

std::vector<std::string> Argumentos(std::string texto) {
    // Paths stay inside the folder.
    std::replace(texto.begin(), texto.end(), '/', '_');
    std::replace(texto.begin(), texto.end(), '\0', '?');
    std::vector<std::string> argumentos;
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t fin = std::min(texto.find('\n', i), texto.size());
        argumentos.push_back(texto.substr(i, fin - i));
        i = fin + 1;
    }
    return argumentos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t n) {
    if (n > MaxTexto) return 0;
    static const bool Preparado = [] {
        PrepararProceso();
        return true;
    }();
    if (!Preparado) std::abort();
    IniciarArchivoTrabajo();
    IniciarProcedimientos();
    const int estado = EjecutarLinea(Argumentos({reinterpret_cast<const char *>(datos), n}));
    if (estado < EstadoBien || estado > EstadoMalaLinea) std::abort();
    return 0;
}
