// Every dialog of the program and how a user gets to it.
#pragma once

#include "apoyo_escritorio.h"

struct AperturaDeDialogo {
    const char *titulo;
    Guion camino; // through the dialogs above it
    std::function<void(VentanaPrincipal &)> abrir;
    std::vector<const char *> orden; // controls in the order of the Tab key, from the one that has it first
    bool aceptaConEnter = true;      // Enter closes it as OK does
};

// With a work file that fills the lists.
std::vector<AperturaDeDialogo> TodosLosDialogos();

// Opens the dialog, does `hacer` in it, closes it if it is still there, and cancels those above it.
void EnDialogo(VentanaPrincipal &ventana, const AperturaDeDialogo &a,
               const std::function<void(QDialog &)> &hacer);
