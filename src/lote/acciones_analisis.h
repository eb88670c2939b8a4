// The actions of tabira-lote that compute with series: their values as the dialogs' controls would hold them, and the
// routines that the dialogs call.
#pragma once

#include <string>

// What an action's value says, in the form of its dialog. Each reader is false when the value can't be read; each routine
// is false when the work was refused. The data type is the caller's to ask for.
bool SeLeeAutocorrelacion(const std::string &valor, bool parcial); // X:N[:BANDA]
bool SeLeePrediccion(const std::string &valor);                    // INICIO:FIN[:MODO[:PRED:DTM:DTI]]
bool SeLeeTransformacion(const std::string &valor);                // X:DESTINO[:OP=N,...]

bool EjecutarFac(const std::string &valor);
bool EjecutarFacp(const std::string &valor);
bool EjecutarNormalidad(const std::string &valor); // X
bool EjecutarPrediccion(const std::string &valor);
bool EjecutarDescriptivos(const std::string &valor); // X,Y,...
bool EjecutarTransformacion(const std::string &valor);
