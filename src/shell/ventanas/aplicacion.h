// What the application is to its desktop, whatever runs it.
#pragma once

// Behind the application's start: numbers with a decimal point in every locale, name, icon, and the toolkit's own texts in
// Spanish where its translation is installed.
void PrepararAplicacion();
