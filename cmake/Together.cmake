# Most of a compiler's time goes to headers of others. So a library's sources are compiled several at a
# time, and the headers that most of them include are compiled beforehand. Both may hide that a source
# lacks an include: a build with SKYLOB_TOGETHER=OFF does neither.
if(SKYLOB_TOGETHER)
    set(CMAKE_UNITY_BUILD ON)
    set(CMAKE_UNITY_BUILD_BATCH_SIZE 6)
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        # That warns of what would be a fault in a header, and takes these sources for headers.
        target_compile_options(skylob_strict INTERFACE -Wno-subobject-linkage)
    endif()
endif()

# skylob_include_beforehand(<target> <first target> <header>...)
# The headers are compiled with the first of the targets that are given them. All of these need the same
# options and definitions. Never name a header of ours: who may include that, the rooms say.
function(skylob_include_beforehand target first)
    # Other compilers take such headers only where options are alike to the last.
    if(NOT SKYLOB_TOGETHER OR NOT CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        return()
    endif()
    if(target STREQUAL first)
        list(TRANSFORM ARGN REPLACE "(.+)" "<\\1>")
        target_precompile_headers(${target} PRIVATE ${ARGN})
    else()
        target_precompile_headers(${target} REUSE_FROM ${first})
    endif()
endfunction()
