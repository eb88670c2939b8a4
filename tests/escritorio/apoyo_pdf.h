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

// The lines of a document, each character in its column of the page. Without pdftotext a failure.
QStringList TextoDePdf(const QString &ruta);

// The lines of the text, up to 70 characters each, are in the document with the blanks between their fields.
void EstaEnElPdf(const QString &texto, const QString &ruta);
