// The cursors of what is dragged in a chart: SLIDE, HORMOVE, VERTMOVE.
#pragma once

#include "platform/plataforma.h"

#include <QCursor>

// The arrow for any other cursor.
QCursor CursorDeGrafico(Cursor cursor);
