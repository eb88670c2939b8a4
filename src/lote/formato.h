// The record format of the ASCII actions of the batch program: its argument, and the transfer that uses it.
#pragma once

#include "data/intercambio.h"

#include <string>
#include <string_view>
#include <vector>

// What --formato says, kept until the next one: the values of the dialog that an --importar or --exportar accepts.
struct FormatoAscii {
    bool esVariable = true;
    ValoresFormatoVariable valores;  // variable format
    std::vector<EdicionCampo> filas; // fixed format: the rows for "Añadir", in order
    bool comas = false;              // fixed format: decimals with commas
};

// The format of the program at its start: the dialog's, with the codes in the first record.
FormatoAscii FormatoInicial();

// Reads the argument: `variable`, `variable:OP,OP...` or `fijo:T/INICIO/LONGITUD/CODIGO;...[,comas]`. What it
// doesn't name is as the dialog opens. False when it can't be read; `formato` then stays as it was. The rows of a
// fixed format are parted here and checked when the transfer begins.
bool LeerFormato(std::string_view argumento, FormatoAscii &formato);

// One import or export as the dialogs do it, with Lote.DecimalesSalida. The sample must be up to date. In a fixed
// format the rows take the place of whatever stands in the table; a row that "Añadir" refuses shows its message and is
// left out, and the transfer goes on with the others. True when nothing was refused and the file was transferred.
bool EjecutarIntercambio(Ventana *ventana, const FormatoAscii &formato, bool importar,
                         const std::string &archivo);
