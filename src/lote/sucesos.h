// The events of a run, printed on standard output: as JSON objects, or as text for people.
#pragma once

#include "charts/graficos/grafico.h"
#include "charts/resultados/resultado.h"
#include "platform/impresora_grabadora.h"
#include "platform/plataforma.h"

#include <string>
#include <string_view>
#include <vector>

// A box that was shown, with the answer that it got.
void SucesoCaja(std::string_view texto, std::string_view titulo, Icono icono, Botones botones,
                Respuesta respuesta);

// Where the batch stopped that has just ended.
void SucesoParada();

// A note, also on standard error; `linea` 0 outside a batch.
void SucesoNota(std::string_view texto, int linea);

// Steps [desde, hasta) of the trace, numbered through the whole run; an empty range ends the steps of a batch, of which the
// ones that were not kept are told by their number alone.
void SucesoPasos(int desde, int hasta);

// A result window.
void SucesoSalida(const SalidaResultado &salida);

// The same for a dialog that shows lines of one kind.
void SucesoLineas(TiposDeSalida tipo, std::string_view titulo, const std::vector<std::string> &lineas);

// A chart, with what was drawn on its surface.
void SucesoGrafico(const Grafico &grafico, const Superficie &superficie,
                   const std::vector<OrdenDibujo> &ordenes);

// A print job that is over.
void SucesoImpresion(const TrabajoImpreso &trabajo);

// The content of the store.
void SucesoVolcado();

// A complaint on standard error, in UTF-8: one line, whatever the text holds.
void Quejarse(std::string_view texto);

// The end of the run.
void SucesoFin(int estado);

// Installs the platform of the batch runner: events out, answers from the command line, a printer whose pages become
// events and documents.
void InstalarPlataformaLote();
