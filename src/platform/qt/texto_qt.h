// Text between the core (Windows-1252) and QString. One character of the core is one UTF-16 unit and the other way
// round, so that positions in a text control are positions in the core's text.
#pragma once

#include <QString>

#include <string>
#include <string_view>

QString QDe1252(std::string_view texto);

// A unit that Windows-1252 lacks becomes "?".
std::string De1252Q(const QString &texto);
