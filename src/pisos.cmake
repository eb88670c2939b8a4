# Refuses an include that goes up the house. The floors from the ground; the rooms of one floor may include each other.
# A file right under src/ stands above all of them.
cmake_minimum_required(VERSION 3.25)
set(pisos
    "platform"
    "store"
    "language matrix"
    "charts/resultados"
    "estimation"
    "charts/graficos"
    "hypothesis"
    "analysis"
    "data"
    "shell"
    "lote")

# The floor of a path below src/, from 1; 0 for a file right under src/; -1 for a folder that is no room.
function(piso_de ruta resultado)
    set(${resultado} -1 PARENT_SCOPE)
    if(NOT ruta MATCHES "/")
        set(${resultado} 0 PARENT_SCOPE)
        return()
    endif()
    set(piso 0)
    foreach(salas ${pisos})
        math(EXPR piso "${piso} + 1")
        string(REPLACE " " ";" salas "${salas}")
        foreach(sala ${salas})
            string(FIND "${ruta}" "${sala}/" lugar)
            if(lugar EQUAL 0)
                set(${resultado} ${piso} PARENT_SCOPE)
                return()
            endif()
        endforeach()
    endforeach()
endfunction()

file(GLOB_RECURSE fuentes RELATIVE ${CARPETA} ${CARPETA}/*.cpp ${CARPETA}/*.h)
foreach(fuente ${fuentes})
    piso_de(${fuente} piso)
    if(piso EQUAL -1)
        message(FATAL_ERROR "src/${fuente} is in no room of the list of floors")
    endif()
    file(STRINGS ${CARPETA}/${fuente} lineas REGEX "^[ \t]*#[ \t]*include[ \t]*\"[^\"]*/")
    foreach(linea ${lineas})
        string(REGEX REPLACE "^[^\"]*\"([^\"]*)\".*" "\\1" incluido "${linea}")
        piso_de(${incluido} otro)
        if(otro EQUAL -1)
            message(FATAL_ERROR "src/${fuente} includes ${incluido}, which is in no room of the list of floors")
        endif()
        if(piso GREATER 0 AND otro GREATER piso)
            message(FATAL_ERROR "src/${fuente} includes ${incluido}, which stands above it")
        endif()
        # The Qt side hangs on the core, never the other way round.
        if(NOT fuente MATCHES "(^|/)ventanas/|^platform/qt/|^shell/main" AND incluido MATCHES "(^|/)ventanas/|^platform/qt/")
            message(FATAL_ERROR "src/${fuente} is core and includes ${incluido}, which is the desktop's")
        endif()
    endforeach()
endforeach()
