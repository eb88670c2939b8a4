// A result's table in the forms that documents take. All text is Windows-1252: whoever writes it out converts it.
#pragma once

#include "charts/resultados/resultado.h"

#include <string>
#include <string_view>

// The lines of the result, fixed ones first, blanks at their right removed.
std::string TextoDeResultado(const SalidaResultado &salida);

// Fields parted by tabulators, numbers with all their digits, so that a spreadsheet takes them apart. A result without a
// table of its own is parted where its lines leave two blanks or more.
std::string TablaDeResultado(const SalidaResultado &salida);

// How numbers are written. A number is a whole field of digits with a point or an exponent; the periods of a sample and of a
// listing are none, though those of a quarter look like one.
enum SignoDecimal { PuntoDecimal, ComaDecimal };

// The routines below take a table as TablaDeResultado gives it: its lines end in "\n", a line without text parts two
// sections. The first line of a section is its head when it names the columns of what follows.

// The same table, with the decimal sign asked for.
std::string TablaEnTexto(std::string_view tabla, SignoDecimal signo);

// A whole page with one table, its title above it. It says that it is UTF-8.
std::string TablaEnHtml(std::string_view titulo, std::string_view tabla, SignoDecimal signo);

// A table of booktabs under its title; one that no page holds is a longtable. The comment in front names the packages.
std::string TablaEnLatex(std::string_view titulo, std::string_view tabla, SignoDecimal signo);

// The title in bold and a table for each section; one without a head has an empty one, since that form knows no other.
std::string TablaEnMarkdown(std::string_view titulo, std::string_view tabla, SignoDecimal signo);

// RFC 4180: records end in CR LF and have the same number of fields; a field with a comma, a quote or an end of line stands
// between quotes. A record without text parts two sections.
std::string TablaEnCsv(std::string_view tabla, SignoDecimal signo);
