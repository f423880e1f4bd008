# What makes a memory error in a release hard to use: overwritten stacks and buffers end the program,
# jumps land where functions begin, and the tables of functions are read-only before main().
#
#   velkaro_harden(TARGET)  everything that links the interface library gets it
#
# Optimised builds only: _FORTIFY_SOURCE needs that, and the sanitizers see more by themselves.

include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)

set(VELKARO_HARDENED OFF)
if(CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$" AND NOT VELKARO_SANITIZE)
    set(VELKARO_HARDENED ON)
endif()

function(velkaro_harden target)
    if(NOT VELKARO_HARDENED)
        return()
    endif()
    target_compile_options(${target} INTERFACE -fstack-protector-strong)
    # For x86 alone.
    check_cxx_compiler_flag(-fcf-protection VELKARO_HAS_CF_PROTECTION)
    if(VELKARO_HAS_CF_PROTECTION)
        target_compile_options(${target} INTERFACE -fcf-protection)
    endif()
    # Distributions set it too, in the flags or in the compiler, and perhaps higher.
    set(CMAKE_REQUIRED_FLAGS -O2)
    check_cxx_source_compiles("
        #ifndef _FORTIFY_SOURCE
        #error
        #endif
        int main() {}" VELKARO_IS_FORTIFIED)
    if(NOT VELKARO_IS_FORTIFIED)
        target_compile_definitions(${target} INTERFACE _FORTIFY_SOURCE=2)
    endif()
    target_link_options(${target} INTERFACE -Wl,-z,relro,-z,now)
endfunction()
