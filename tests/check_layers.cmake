# Fails when a core file includes Qt, the audio library or a front-end file.
#
#   cmake -DROOT=<checkout> -P check_layers.cmake
#
# The front end's files are known by their names; all others in the four folders are core.

set(front_end "/(frm|Qt|Sdl|picGameField|Glint(Button|Painter)|modFadeInOut|Application|main|SingleCopy|PlayerGridModel)[^/]*$")
file(GLOB files
    "${ROOT}/app/*.h" "${ROOT}/app/*.cpp" "${ROOT}/battle/*.h" "${ROOT}/battle/*.cpp"
    "${ROOT}/players/*.h" "${ROOT}/players/*.cpp" "${ROOT}/controls/*.h" "${ROOT}/controls/*.cpp")
set(checked 0)
foreach(file IN LISTS files)
    if(file MATCHES "${front_end}")
        continue()
    endif()
    math(EXPR checked "${checked} + 1")
    file(STRINGS "${file}" includes REGEX "^ *#include")
    foreach(line IN LISTS includes)
        string(REGEX MATCH "[<\"]([^>\"]+)[>\"]" _ "${line}")
        set(included "/${CMAKE_MATCH_1}")
        if(included MATCHES "${front_end}" OR included MATCHES "^/(Q[A-Z]|Qt|SDL)")
            message(SEND_ERROR "${file} is core, but has ${line}")
        endif()
    endforeach()
endforeach()
if(checked LESS 20)
    message(SEND_ERROR "only ${checked} core files found below ${ROOT}")
endif()
