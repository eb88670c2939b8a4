// A check behind every test of every binary that this file is linked into.
#include "store/archivo.h"

#include <gtest/gtest.h>

namespace {

// After every test: whatever wrote into the tables of observations has noted the rows. Behind the mark of its slot nothing
// stands, or clearing by the mark would leave it there.
class RevisorDeFilas : public ::testing::EmptyTestEventListener {
    void OnTestEnd(const ::testing::TestInfo &) override {
        const CabeceraArchivo &a = ArchivoTrabajo;
        for (int i = 0; i < MaxObservaciones; ++i)
            for (int s = 0; s < MaxSeries; ++s)
                if (i >= a.FilasEscritas[s] && (a.PresenciaObs[i][s] != 0 || a.ValoresObs[i][s] != 0.0)) {
                    ADD_FAILURE() << "row " << i << " of slot " << s << " was written without its mark";
                    return;
                }
    }
};

const bool ConRevisor = [] {
    ::testing::UnitTest::GetInstance()->listeners().Append(new RevisorDeFilas);
    return true;
}();

} // namespace
