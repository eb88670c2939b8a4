// The desktop: its windows, its printer, and every dialog of the program.
#pragma once

#include "platform/qt/plataforma_qt.h"

#include <span>

// The table of dialogs: a row for each name of platform/dialogos.h.
std::span<const FilaDeDialogo> TablaDeDialogos();

// Installs the desktop's operations of the platform, its printer left out: boxes, windows, dialogs.
void InstalarVentanas();

// Installs all that the program asks of the desktop. Once, after the QApplication exists.
void PrepararEscritorio();
