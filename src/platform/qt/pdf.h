// Printed pages as a PDF document.
#pragma once

#include "platform/impresora_grabadora.h"

#include <QPagedPaintDevice>

// A QGuiApplication without a display, for a program that has none: fonts need one. It stays until the process ends.
void CrearAplicacionSinPantalla();

// Paints the pages on paper or on what stands in for it. False when the device refuses.
bool PintarPaginas(QPagedPaintDevice &papel, const std::deque<PaginaImpresa> &paginas);

// Writes the pages to `ruta`, A4 in portrait, the fixed-pitch font embedded; the old file stays whole until the new one
// is complete. `titulo` is what a reader shows. Needs no desktop: a program without a QGuiApplication gets one, which
// stays. False when there are no pages or the file can't be written.
bool EscribirPdf(const std::string &ruta, std::string_view titulo, const std::deque<PaginaImpresa> &paginas);
