// The list of the series of the work file, from which many dialogs let the user choose one.
#pragma once

#include <QListWidget>

#include <string>

// Fills the list with the codes, in the order of the table; nothing is chosen.
void LlenarSeries(QListWidget &lista);

// The code that is chosen, empty for none.
std::string SerieElegida(const QListWidget &lista);
