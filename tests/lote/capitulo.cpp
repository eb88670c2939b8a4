// Reading the tutorial.
#include "lote/capitulo.h"

#include "lote/corrida.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

std::string RutaDeCapitulo(const std::string &fichero) {
    return std::string(TABIRA_FUENTES) + "/docs/tutorial/" + fichero;
}

namespace {

// The parts of a fence behind its "{": ".clase", "nombre="valor"".
void LeerAtributos(const std::string &texto, Bloque &bloque) {
    std::size_t i = 0;
    while ((i = texto.find_first_not_of(" {}", i)) != texto.npos) {
        if (texto[i] == '.') {
            const std::size_t fin = texto.find_first_of(" }", i);
            ASSERT_TRUE(bloque.clase.empty()) << texto;
            bloque.clase = texto.substr(i + 1, fin - i - 1);
            i = fin;
            continue;
        }
        const std::size_t igual = texto.find("=\"", i);
        ASSERT_NE(igual, texto.npos) << texto;
        const std::size_t cierre = texto.find('"', igual + 2);
        ASSERT_NE(cierre, texto.npos) << texto;
        bloque.atributos[texto.substr(i, igual - i)] = texto.substr(igual + 2, cierre - igual - 2);
        i = cierre + 1;
    }
}

} // namespace

Capitulo LeerCapitulo(const std::string &fichero) {
    Capitulo r;
    std::ifstream f(RutaDeCapitulo(fichero));
    EXPECT_TRUE(f.is_open()) << fichero;
    bool dentro = false;
    int n = 0;
    for (std::string linea; std::getline(f, linea);) {
        ++n;
        if (linea.starts_with("```")) {
            dentro = !dentro;
            if (!dentro) continue;
            r.bloques.push_back({"", {}, {}, n});
            LeerAtributos(linea.substr(3), r.bloques.back());
        } else if (dentro) {
            r.bloques.back().lineas.push_back(linea);
        } else {
            r.prosa.emplace_back(n, linea);
        }
    }
    EXPECT_FALSE(dentro) << fichero << ": un bloque sin cerrar";
    return r;
}

std::vector<std::string> AccionesDeCapitulo(const Capitulo &capitulo) {
    const std::string carpeta = CarpetaNueva("tutorial");
    std::vector<std::string> acciones = {"--json", "--seguir"};
    const auto accion = [&](const char *nombre, const std::string &valor) {
        if (!valor.empty()) acciones.insert(acciones.end(), {nombre, valor});
    };
    int n = 0;
    for (const Bloque &b : capitulo.bloques) {
        if (!b.SeEjecuta()) continue;
        accion("--tipo", b.Atributo("tipo"));
        accion("--importar", b.Atributo("datos"));
        accion("--semilla", b.Atributo("semilla"));
        if (b.clase == "tabira") {
            std::string texto;
            for (const std::string &l : b.lineas) texto += l + "\n";
            const std::string fichero = carpeta + "/" + std::to_string(++n) + ".txt";
            EscribirBytes(fichero, texto);
            accion("--procesar", fichero);
        }
        std::istringstream partes(b.Atributo("lote"));
        for (std::string p; partes >> p;) acciones.push_back(p);
        acciones.push_back("--volcado");
    }
    return acciones;
}
