// The desktop behind the seam: boxes, cursor, text control, result windows, printing.
#pragma once

// Installs the desktop's operations. Once, after the QApplication exists.
void InstalarPlataformaQt();
