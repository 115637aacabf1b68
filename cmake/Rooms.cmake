# A room is a folder of the program: its rules at the top, what needs the toolkit in qt/. Each of the
# two layers is a library of its own, skylob_<room> and skylob_<room>_qt, and sees of other rooms the
# headers of those layers that it links, nothing else: a wrong include does not compile.
#
# For that every layer has a folder of links to its own headers, build/<preset>/rooms/<library>, which
# stands on the include path of whoever links it.

# skylob_add_layer(<library> <room folder>
#     SOURCES <source>... HEADERS <header>... LINKS <public>... USES <private>...)
# Sources and headers are named within the room's folder. A layer of headers only has no sources.
function(skylob_add_layer library room)
    cmake_parse_arguments(PARSE_ARGV 2 layer "" "" "SOURCES;HEADERS;LINKS;USES")
    set(seen ${PROJECT_BINARY_DIR}/rooms/${library})
    file(REMOVE_RECURSE ${seen})
    foreach(header IN LISTS layer_HEADERS)
        cmake_path(GET header PARENT_PATH folder)
        file(MAKE_DIRECTORY ${seen}/${room}/${folder})
        file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${header} ${seen}/${room}/${header} SYMBOLIC)
    endforeach()

    if(layer_SOURCES AND NOT SKYLOB_ROOMS_TOGETHER)
        add_library(${library} STATIC ${layer_SOURCES})
        target_include_directories(${library} PUBLIC ${seen})
        target_link_libraries(${library} PUBLIC ${layer_LINKS} PRIVATE ${layer_USES} skylob_strict)
        skylob_compile_exactly(${library})
        if(NOT library MATCHES "_qt$")
            skylob_include_beforehand(${library} skylob_base
                algorithm array charconv cmath functional optional span string string_view vector)
        endif()
    else()
        add_library(${library} INTERFACE)
        target_include_directories(${library} INTERFACE ${seen})
        target_link_libraries(${library} INTERFACE ${layer_LINKS})
    endif()
    if(SKYLOB_ROOMS_TOGETHER)
        list(TRANSFORM layer_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
        target_sources(skylob_rules PRIVATE ${layer_SOURCES})
        target_include_directories(skylob_rules PRIVATE ${seen})
        target_link_libraries(${library} INTERFACE skylob_rules)
    endif()
endfunction()

# A flight is the same on every machine: no fused multiply-add where the rules round twice.
function(skylob_compile_exactly library)
    target_compile_options(${library} PRIVATE -ffp-contract=off)
endfunction()

if(SKYLOB_ROOMS_TOGETHER)
    add_library(skylob_rules STATIC)
    set_target_properties(skylob_rules PROPERTIES UNITY_BUILD_BATCH_SIZE 12)
    target_link_libraries(skylob_rules PRIVATE skylob_strict)
    skylob_compile_exactly(skylob_rules)
endif()

# The rules' headers, each compiled by itself. A source includes its own header first, which shows the
# same where each source is compiled by itself, and always in the toolkit's layers.
function(skylob_check_headers)
    set(alone)
    set(libraries)
    file(GLOB_RECURSE headers LIST_DIRECTORIES OFF RELATIVE ${PROJECT_BINARY_DIR}/rooms
        ${PROJECT_BINARY_DIR}/rooms/*.h)
    list(FILTER headers EXCLUDE REGEX "(_qt|_test_support)/")
    foreach(header IN LISTS headers)
        string(REGEX MATCH "^([^/]+)/(.+)$" _ ${header})
        set(library ${CMAKE_MATCH_1})
        set(included ${CMAKE_MATCH_2})
        cmake_path(REPLACE_EXTENSION included cpp OUTPUT_VARIABLE own)
        if(SKYLOB_TOGETHER OR NOT EXISTS ${PROJECT_SOURCE_DIR}/${own})
            set(source ${PROJECT_BINARY_DIR}/headers/${own})
            file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${included}\"\n")
            list(APPEND alone ${source})
            list(APPEND libraries ${library})
        endif()
    endforeach()
    list(REMOVE_DUPLICATES libraries)
    add_library(headers_alone OBJECT EXCLUDE_FROM_ALL ${alone})
    set_target_properties(headers_alone PROPERTIES UNITY_BUILD OFF)
    target_link_libraries(headers_alone PRIVATE ${libraries} skylob_strict)
endfunction()

# The same for a room's qt/ folder; nothing at all in a build of the rules alone.
function(skylob_add_qt_layer library room)
    if(NOT SKYLOB_FRONT_END)
        return()
    endif()
    skylob_add_layer(${library} ${room} ${ARGN})
    get_target_property(kind ${library} TYPE)
    if(NOT kind STREQUAL INTERFACE_LIBRARY)
        set_target_properties(${library} PROPERTIES AUTOMOC ON)
        # Texts are converted where one can see it, and nothing old is called.
        target_compile_definitions(${library} PRIVATE
            QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
            QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH
            QT_DISABLE_DEPRECATED_BEFORE=0x060400)
        skylob_include_beforehand(${library} skylob_base_qt
            algorithm functional memory optional string string_view utility vector
            QAccessible QApplication QCheckBox QFile QKeyEvent QLabel QPainter QPainterPath QPointer
            QScreen QScrollBar QShortcut QTimer QWidget QWindow)
    endif()
endfunction()
