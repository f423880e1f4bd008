# What every target of the project is built with, and where it is put.
#
# The build tree has the layout of an installed system (bin/, lib/velkaro-print/...), so that the
# programs find the plug-in bundle relative to themselves in both.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
# The same code for libraries and programs, so that they can share precompiled headers.
add_compile_options(-fPIC)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

include(cmake/ReleaseBuild.cmake)
include(cmake/Hardening.cmake)

set(VELKARO_PRIVATE_DIR ${CMAKE_INSTALL_LIBDIR}/velkaro-print)
set(VELKARO_PLUGINS_DIR ${VELKARO_PRIVATE_DIR}/PlugIns)
set(VELKARO_OWN_BUNDLE VKInkQuality14.bundle)
set(VELKARO_INCLUDE_DIR ${CMAKE_INSTALL_INCLUDEDIR}/velkaro-print)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_BINDIR})
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${VELKARO_PRIVATE_DIR})
# From the programs. The build tree takes the installed one: CMake would leave room for it there with
# empty entries, which are the folder that the user happens to be in.
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${VELKARO_PRIVATE_DIR}")
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)

add_library(velkaro_build_rules INTERFACE)
target_include_directories(velkaro_build_rules INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(velkaro_build_rules INTERFACE
    # A newer compiler may warn of more: that ends no user's build.
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${VELKARO_WERROR}>:-Werror>)
target_compile_definitions(velkaro_build_rules INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS)
velkaro_harden(velkaro_build_rules)
if(VELKARO_SANITIZE)
    target_compile_options(velkaro_build_rules INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(velkaro_build_rules INTERFACE -fsanitize=address,undefined)
endif()
if(VELKARO_FUZZ)
    target_compile_options(velkaro_build_rules INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(VELKARO_TIDY)
    set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
    find_program(CLANG_TIDY clang-tidy REQUIRED)
    set(CMAKE_CXX_CLANG_TIDY ${CLANG_TIDY} --quiet)
    # The nearest file counts, so this one is for the sources that moc writes: nobody mends those.
    # (A file without any check would be an error.)
    file(WRITE ${CMAKE_BINARY_DIR}/.clang-tidy "Checks: '-*,misc-definitions-in-headers'\n")
endif()

# velkaro_add_rules(NAME SOURCES...): a library of rules, on Qt Core alone, so that a rule is read,
# changed and tested by itself. A source that reaches for more does not compile (CoreOnly.h).
function(velkaro_add_rules name)
    add_library(${name} STATIC ${ARGN})
    target_link_libraries(${name} PUBLIC velkaro_build_rules Qt6::Core)
    target_compile_options(${name} PRIVATE -include ${CMAKE_SOURCE_DIR}/cmake/CoreOnly.h)
endfunction()
