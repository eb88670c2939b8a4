// ASCII exchange: series from a text file and to a text file, in variable or fixed records.
#pragma once

#include "platform/plataforma.h"
#include "store/limites.h"

#include <string>
#include <string_view>
#include <vector>
