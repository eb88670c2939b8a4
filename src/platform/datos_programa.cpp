// The places of what comes with the program.
#include "platform/datos_programa.h"

#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

// From the folder of the program: installed, and built by a preset (build/PRESET/src/shell).
struct Lugares {
    const char *instalado, *compilado;
};

// By DatosDelPrograma.
constexpr Lugares TablaLugares[] = {
    {"../" TABIRA_DATADIR "/tabira/ejemplos", "../../../../ejemplos"},
    {"../" TABIRA_DATADIR "/tabira/tutorial", "../../../../docs/tutorial"},
};

std::string CarpetaDelPrograma; // empty: where its file stands

} // namespace

std::string CarpetaDeDatos(DatosDelPrograma cuales) {
    std::error_code error;
    const fs::path propia = !CarpetaDelPrograma.empty()
                                ? fs::path(CarpetaDelPrograma)
                                : fs::read_symlink("/proc/self/exe", error).parent_path();
    const Lugares &lugares = TablaLugares[static_cast<int>(cuales)];
    for (const char *lugar : {lugares.instalado, lugares.compilado}) {
        const fs::path carpeta = fs::weakly_canonical(propia / lugar, error);
        if (!error && fs::is_directory(carpeta, error)) return carpeta.string();
    }
    return {};
}

void PonerCarpetaDelPrograma(const std::string &carpeta) {
    CarpetaDelPrograma = carpeta;
}
