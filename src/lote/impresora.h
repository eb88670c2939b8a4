// The printer of a run: its jobs become events, and their pages the documents that --imprimir names.
#pragma once

#include <string>

// From here on pages go to the PDF document `ruta`, behind those that it got before. Without a document they go
// nowhere, and the events alone tell of them.
void ElegirDocumento(const std::string &ruta);

// Ends a job of the platform: its event, and its pages to the document in use.
void TerminarTrabajoDeCorrida();

// Writes every document that has pages. False, with one line on standard error for each, where that failed.
bool EscribirDocumentos();

// No documents, as at the start of a run.
void OlvidarDocumentos();
