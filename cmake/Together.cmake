# Most of a compiler's time goes to headers of others. So a library's sources are compiled several at a
# time, and the headers that most of them include are compiled beforehand. Both may hide that a source
# lacks an include: a build with SKYLOB_TOGETHER=OFF does neither.
if(SKYLOB_TOGETHER)
    set(CMAKE_UNITY_BUILD ON)
    set(CMAKE_UNITY_BUILD_BATCH_SIZE 6)
    if(NOT SKYLOB_FRONT_END)
        # A build of the rules alone makes one library of all rooms' rules, and one program of their
        # tests: the more sources at a time, the better. Which room sees which, the other builds tell.
        set(SKYLOB_ROOMS_TOGETHER ON)
        set(CMAKE_UNITY_BUILD_BATCH_SIZE 14)
        # These units are small, and their compiler need not be thrifty with memory.
        target_compile_options(skylob_strict INTERFACE
            "$<$<CXX_COMPILER_ID:GNU>:SHELL:--param ggc-min-expand=500 --param ggc-min-heapsize=500000>")
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        # That warns of what would be a fault in a header, and takes these sources for headers.
        target_compile_options(skylob_strict INTERFACE -Wno-subobject-linkage)
    endif()
endif()

# skylob_include_beforehand(<target> <first target> <header>...)
# The headers are compiled with the first of the targets that are given them. All of these need the same
# options and definitions. Never name a header of ours: who may include that, the rooms say.
function(skylob_include_beforehand target first)
    # Few sources do not repay them, and other compilers take them only where options are alike to the
    # last.
    if(NOT SKYLOB_TOGETHER OR SKYLOB_ROOMS_TOGETHER OR NOT CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        return()
    endif()
    if(target STREQUAL first)
        list(TRANSFORM ARGN REPLACE "(.+)" "<\\1>")
        target_precompile_headers(${target} PRIVATE ${ARGN})
    else()
        target_precompile_headers(${target} REUSE_FROM ${first})
    endif()
endfunction()
