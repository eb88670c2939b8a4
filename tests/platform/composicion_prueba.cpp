// The text that grows by the items of lists.
#include "platform/composicion.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr ReglaDeAnadir Serie = {" ", 12, 20}, Retardo = {"", 12, 20};

} // namespace

TEST(Composicion, ElElementoVaDetrasDeLoEscrito) {
    struct {
        const char *texto, *elemento;
        const ReglaDeAnadir &regla;
        const char *nuevo;
    } const casos[] = {
        {"", "X1", Serie, " X1"},
        {" X1", "(-1)  ", Retardo, " X1(-1)  "},
        {" X1(-1)  ", "1 ", Serie, " X1(-1) 1 "},
        {"A   ", "(-6)  ", Retardo, "A(-6)  "},
        {"   ", "X", Serie, " X"},
        {"", "(-1)  ", Retardo, "(-1)  "},
        {"", "", Serie, " "},
        // A text of 11 characters still grows, one of 12 doesn't: blanks at its right are not counted.
        {"12345678901", "X", Serie, "12345678901 X"},
        {"123456789012", "X", Serie, "123456789012"},
        {"12345678901    ", "X", Serie, "12345678901 X"},
        {"123456789012  ", "X", Serie, "123456789012  "},
        // What the field can't hold whole isn't begun.
        {"12345678901", "ABCDEFGH", Serie, "12345678901 ABCDEFGH"},
        {"12345678901", "ABCDEFGHI", Serie, "12345678901"},
        {"12345678901", "ABCDEFGHI", Retardo, "12345678901ABCDEFGHI"},
        {"12345678901", "ABCDEFGHIJ", Retardo, "12345678901"},
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(std::string(c.texto) + "|" + c.elemento);
        EXPECT_EQ(TextoConElemento(c.texto, c.elemento, c.regla), c.nuevo);
    }
}
