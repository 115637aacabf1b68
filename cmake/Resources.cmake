# Sounds, pictures and forms are part of the program, compiled once. The executables that use them link
# skylob_resources, which is no static library: of that the linker would drop them.
function(skylob_make_resources)
    set(target skylob_resources)
    add_library(${target} OBJECT)
    file(GLOB sounds CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/sounds/*.wav)
    file(GLOB look CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/look/*.png
        ${PROJECT_SOURCE_DIR}/resources/look/*.qss)
    file(GLOB pictures CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/pictures/*.png
        ${PROJECT_SOURCE_DIR}/resources/pictures/*.txt)
    file(GLOB strings CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/strings/*.txt)
    file(GLOB manual CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/strings/manual/*.txt)
    file(GLOB forms CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/forms/*.json)
    qt_add_resources(${target} forms PREFIX /forms
        BASE ${PROJECT_SOURCE_DIR}/resources/forms FILES ${forms})
    qt_add_resources(${target} strings PREFIX /strings
        BASE ${PROJECT_SOURCE_DIR}/resources/strings FILES ${strings})
    qt_add_resources(${target} manual PREFIX /strings/manual
        BASE ${PROJECT_SOURCE_DIR}/resources/strings/manual FILES ${manual})
    qt_add_resources(${target} sounds PREFIX /sounds
        BASE ${PROJECT_SOURCE_DIR}/resources/sounds FILES ${sounds})
    qt_add_resources(${target} look PREFIX /look
        BASE ${PROJECT_SOURCE_DIR}/resources/look FILES ${look})
    qt_add_resources(${target} pictures PREFIX /pictures
        BASE ${PROJECT_SOURCE_DIR}/resources/pictures FILES ${pictures})
endfunction()
