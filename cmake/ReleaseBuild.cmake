# How release builds are optimised. Most of the code runs once in a run, or in no run at all: what
# counts is how much of it there is to load, so the dialog is built small, and everything is put
# together as a whole. The panels and what they stand on answer each pick, and are built to be fast.
#
#   VELKARO_QUICK_BUILD           (option) neither: what `make run` builds, once, in half the time
#   velkaro_release_flags()       fast: for the folder that calls, and those below it
#   velkaro_release_flags(SMALL)  small

include(CheckIPOSupported)
include(CheckLinkerFlag)

option(VELKARO_QUICK_BUILD "Release builds that are soon built" OFF)

macro(velkaro_release_flags)
    if(VELKARO_QUICK_BUILD)
        set(CMAKE_CXX_FLAGS_RELEASE "-O1 -DNDEBUG")
    elseif("${ARGN}" STREQUAL "SMALL")
        set(CMAKE_CXX_FLAGS_RELEASE "-Os -DNDEBUG")
    else()
        set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
    endif()
endmacro()

velkaro_release_flags()

set(VELKARO_WHOLE_BUILD OFF)
if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT VELKARO_QUICK_BUILD AND NOT VELKARO_SANITIZE)
    set(VELKARO_WHOLE_BUILD ON)
endif()

if(VELKARO_WHOLE_BUILD AND NOT DEFINED CMAKE_INTERPROCEDURAL_OPTIMIZATION)
    check_ipo_supported(RESULT CMAKE_INTERPROCEDURAL_OPTIMIZATION OUTPUT reason LANGUAGES CXX)
endif()
if(CMAKE_INTERPROCEDURAL_OPTIMIZATION AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_link_options(-flto-partition=one) # in parts, some functions are there in each
endif()

# The tables of addresses that the loader goes through at every start, a tenth as large.
if(VELKARO_WHOLE_BUILD)
    check_linker_flag(CXX LINKER:-z,pack-relative-relocs VELKARO_PACKS_RELOCATIONS)
endif()
if(VELKARO_PACKS_RELOCATIONS)
    add_link_options(LINKER:-z,pack-relative-relocs)
endif()
