// What the desktop remembers between two runs: choices of the user, none of which touches what the program computes.
#pragma once

#include <QSettings>

inline QSettings Preferencias() {
    return QSettings(QStringLiteral("tabira"), QStringLiteral("tabira"));
}
