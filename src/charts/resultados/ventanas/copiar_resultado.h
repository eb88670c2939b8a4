// A result on the clipboard.
#pragma once

#include "charts/resultados/resultado.h"

// The lines, as they stand.
void CopiarTexto(const SalidaResultado &salida);

// The table, in the decimals that the user chose: as text parted by tabulators and as HTML together, so that a spreadsheet
// and a word processor each take what they know; as LaTeX; as Markdown.
void CopiarComoTabla(const SalidaResultado &salida);
void CopiarComoLatex(const SalidaResultado &salida);
void CopiarComoMarkdown(const SalidaResultado &salida);

// The same as text and as HTML for any table as formatos_tabla.h has it.
void CopiarTabla(std::string_view titulo, const std::string &tabla);

// Whether what is copied as a table has decimal commas; remembered between two runs.
bool ComasAlCopiar();
void PonerComasAlCopiar(bool comas);
