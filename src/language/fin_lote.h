// What Lote doesn't say of the last batch: where it came from, and whether its end was one by rule.
#pragma once

struct FinDeLote {
    bool deDialogo = false; // one statement that a dialog or a command composed, no text of the user
    bool porRegla = false;  // it stopped at a statement that went well and ends its batch all the same
};

extern FinDeLote UltimoFin;
