// The modal boxes of the desktop.
#pragma once

#include "platform/plataforma.h"

#include <string_view>

Respuesta CajaQt(Ventana *ventana, std::string_view texto, std::string_view titulo, Icono icono,
                 Botones botones);
