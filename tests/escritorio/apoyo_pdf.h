// Reading back what the desktop wrote, PDF documents above all, and the folders of the run.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QStringList>

// The home of this run, and its documents folder.
QString Casa();
QDir Documentos();

// The bytes of a file, none when it can't be read.
QByteArray Leer(const QString &ruta);

// What a program writes to its standard output; empty when it can't be run.
QString SalidaDe(const char *programa, const QStringList &argumentos);

// Without pdftotext the content of documents isn't looked at.
bool HayPdftotext();

// The lines of a document, as they are laid out.
QStringList TextoDePdf(const QString &ruta);

// The lines of the text are in the document, with their columns: fields of a line stand as far apart as they did.
void EstaEnElPdf(const QString &texto, const QString &ruta);
