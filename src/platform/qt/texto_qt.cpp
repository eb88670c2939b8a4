// Text between the core and QString.
#include "platform/qt/texto_qt.h"

#include "platform/literal.h"
#include "platform/texto.h"

QString QDe1252(std::string_view texto) {
    return QString::fromStdString(Utf8De1252(texto));
}

std::string De1252Q(const QString &texto) {
    std::string r;
    r.reserve(static_cast<std::size_t>(texto.size()));
    for (const QChar c : texto) {
        const int b = Byte1252(c.unicode());
        r += b > 0 ? static_cast<char>(static_cast<unsigned char>(b)) : '?';
    }
    return r;
}
