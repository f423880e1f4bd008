# The pages of the public headers: what a plug-in is made with. Only where Doxygen is installed.
#
#   cmake --build --preset debug --target docs     writes build/debug/docs/html; a warning ends it

find_package(Doxygen)
if(NOT DOXYGEN_FOUND)
    return()
endif()

set(DOXYGEN_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/docs)
set(DOXYGEN_FILE_PATTERNS *.h)
set(DOXYGEN_RECURSIVE NO)
set(DOXYGEN_JAVADOC_AUTOBRIEF YES)
set(DOXYGEN_HAVE_DOT NO)
set(DOXYGEN_GENERATE_LATEX NO)
set(DOXYGEN_QUIET YES)
set(DOXYGEN_MACRO_EXPANSION YES)
set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
set(DOXYGEN_PREDEFINED VELKARO_PLATFORM_EXPORT= Q_OBJECT=)
set(DOXYGEN_WARN_NO_PARAMDOC NO) # the sentence of a function names its parameters
set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)
# What the toolkit describes: overridden functions, and constructors that take a parent.
set(DOXYGEN_INPUT_FILTER
    "sed -e 's/.* override.*//' -e 's/.*explicit [A-Za-z]*(QWidget .parent = nullptr);//'")

set(public_folders pde ppd printmanager foundation toolkit)
list(TRANSFORM public_folders PREPEND ${PROJECT_SOURCE_DIR}/platform/)
doxygen_add_docs(docs ${public_folders})
