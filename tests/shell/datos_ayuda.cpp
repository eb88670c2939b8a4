// Twenty observations of made-up data for the examples of the help pages.
#include "datos_ayuda.h"

#include "apoyo/plataforma_prueba.h"
#include "platform/campos_texto.h"
#include "store/archivo.h"
#include "store/periodos.h"

#include <cmath>
#include <vector>

namespace {

// The work file that the pages suppose: twenty years from 1980 on, with the series, matrices and scalars they name.
void PonerDatos() {
    constexpr double Edades[] = {22, 25, 31, 67, 45, 38, 29, 52, 61, 33,
                                 41, 27, 19, 48, 56, 63, 35, 24, 44, 50};
    constexpr double Estudios[] = {1, 2, 3, 1, 2, 3, 3, 1, 1, 2, 3, 2, 1, 2, 3, 1, 2, 3, 2, 1};
    std::vector<double> renta, consumo, precio, poblacion, salario, edad, sexo, educacion;
    for (int i = 0; i < Filas; ++i) {
        const double onda = std::sin(1.7 * i);
        renta.push_back(60 + 4 * i + 3 * onda);
        consumo.push_back(10 + 0.7 * (60 + 4 * i + 3 * onda) + 2 * std::cos(2.9 * i));
        precio.push_back(80 + 2.5 * i + 4 * std::cos(0.8 * i));
        poblacion.push_back(30 + 0.3 * i);
        edad.push_back(Edades[i]);
        educacion.push_back(Estudios[i]);
        sexo.push_back(i % 3 == 0 ? 1 : 0);
        salario.push_back(5 + 0.3 * Edades[i] + 4 * Estudios[i] + onda);
    }
    PonerSerie("RENTA", renta);
    PonerSerie("CONSUMO", consumo);
    PonerSerie("PRECIO", precio);
    PonerSerie("POBLAC", poblacion);
    PonerSerie("SALARIO", salario);
    PonerSerie("EDAD", edad);
    PonerSerie("SEXO", sexo);
    PonerSerie("EDUCAC", educacion);
    PonerSerie("ESTUDIOS", educacion);
    PonerSerie("INDICE", std::vector<double>(Filas, 100.0));
    PonerMatriz("A", {2, 1, 1, 3}, 2, 2);
    PonerMatriz("B", {4, 0, 2, 1}, 2, 2);
    PonerMatriz("X", {1, 2, 1, 3, 1, 5, 1, 4}, 4, 2);
    PonerMatriz("Y", {3, 5, 8, 7}, 4, 1);
    PonerMatriz("V", {1, 2, 2, 4}, 4, 1);
    PonerMatriz("_BETA", {0.5, 0.25, 2}, 3, 1);
    PonerMatriz("_COV", {4, 1, 0, 1, 9, 2, 0, 2, 16}, 3, 3);
    ActualizarMuestra();
}

} // namespace

void EmpezarPagina(int tipo) {
    constexpr const char *Intervalos[] = {"", "1980#1999", "1995#1#1999#4", "1994#01#1998#12", "1989#1995"};
    EmpezarConDatos(tipo, Intervalos[tipo]);
    if (tipo == DePanel) {
        DescripcionPanel.FormaPanel = PanelConstante;
        DescripcionPanel.PrimerConcepto = PeriodoPrimero;
        DescripcionPanel.NumEntradas = 3;
        DescripcionPanel.TipoPeriodoPanel = 1;
        PonerCampo(ArchivoTrabajo.TextoIntervalo, Intervalos[tipo], AnchoIntervalo);
        VaciarArchivoTrabajo();
    }
    PonerDatos();
    if (tipo == Anuales) Procesar("MUEST 1980 1999");
}
