// A save that doesn't come to its end: at any moment the file is the old one or the new one, whole.
#include "data/fichero_trabajo.h"

#include "data/trabajo_apoyo.h"
#include "store/archivo.h"

#include <chrono>
#include <csignal>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class FicheroInterrumpido : public EnCarpeta {
protected:
    // The old file and the new one, as they are when nothing comes between; the new work is in memory afterwards.
    void Preparar() {
        TrabajoPequeno(2);
        ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("nuevo")));
        nuevo = BytesDe(Ruta("nuevo"));
        TrabajoPequeno(1);
        ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("a.TR2")));
        viejo = BytesDe(Ruta("a.TR2"));
        ASSERT_NE(viejo, nuevo);
        TrabajoPequeno(2);
    }
    std::string viejo, nuevo;
};

TEST_F(FicheroInterrumpido, MuertoEnCualquierMomento) {
    Preparar();
    const auto empieza = std::chrono::steady_clock::now();
    ASSERT_TRUE(EscribirFicheroTrabajo(Ruta("nuevo")));
    const auto tarda =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - empieza);
    std::mt19937 azar(7);
    int conViejo = 0;
    for (int caso = 0; caso < 200; ++caso) {
        PonerBytes(Ruta("a.TR2"), viejo);
        int avisos[2];
        ASSERT_EQ(pipe(avisos), 0);
        const pid_t hijo = fork();
        ASSERT_GE(hijo, 0);
        if (hijo == 0) {
            (void)!write(avisos[1], "x", 1);
            EscribirFicheroTrabajo(Ruta("a.TR2"));
            _exit(0);
        }
        char aviso = 0;
        ASSERT_EQ(read(avisos[0], &aviso, 1), 1);
        usleep(static_cast<useconds_t>(azar() % static_cast<unsigned>(tarda.count() * 5 / 4 + 1)));
        kill(hijo, SIGKILL);
        waitpid(hijo, nullptr, 0);
        close(avisos[0]);
        close(avisos[1]);
        const std::string quedo = BytesDe(Ruta("a.TR2"));
        ASSERT_TRUE(quedo == viejo || quedo == nuevo) << caso;
        conViejo += quedo == viejo ? 1 : 0;
    }
    EXPECT_GT(conViejo, 0);
}

// As on a full disk: the process may write so many bytes and no more.
TEST_F(FicheroInterrumpido, DiscoLlenoEnCualquierMomento) {
    Preparar();
    std::mt19937 azar(8);
    for (int caso = 0; caso < 200; ++caso) {
        const rlim_t cabe = caso == 0 ? nuevo.size() : azar() % nuevo.size();
        const pid_t hijo = fork();
        ASSERT_GE(hijo, 0);
        if (hijo == 0) {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limite{cabe, cabe};
            setrlimit(RLIMIT_FSIZE, &limite);
            _exit(EscribirFicheroTrabajo(Ruta("a.TR2")) ? 0 : 1);
        }
        int estado = 0;
        waitpid(hijo, &estado, 0);
        const bool escrito = WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
        EXPECT_EQ(escrito, caso == 0) << cabe;
        ASSERT_TRUE(BytesDe(Ruta("a.TR2")) == (escrito ? nuevo : viejo)) << cabe;
        if (escrito) PonerBytes(Ruta("a.TR2"), viejo);
        ASSERT_EQ(Ficheros(), 2) << cabe; // what couldn't be finished is gone
    }
}

} // namespace
