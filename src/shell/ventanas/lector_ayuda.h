// The reader of the manual: a window that stays open beside the statements. The pages of the menu are modal and a chain, as
// ever; here the same texts stand in a list, behind them the chapters of the tutorial, and all can be searched.
#pragma once

#include <QPlainTextEdit>

// From here on F1 in the control opens the reader at the page that explains the word of the caret.
void PonerLector(QPlainTextEdit &control);
