# Installs the build into an empty prefix, copies the example out of the tree, builds it there against
# the prefix, and installs it beside our own plug-in.
#
#   cmake -D BUILD=... -D WORK=... -D EXAMPLE=... -D GENERATOR=... -D COMPILER=... -P this

function(run)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\n${output}")
    endif()
endfunction()

set(prefix ${WORK}/prefix)
file(REMOVE_RECURSE ${prefix} ${WORK}/source ${WORK}/build)
file(COPY ${EXAMPLE}/ DESTINATION ${WORK}/source)

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
run(${CMAKE_COMMAND} -S ${WORK}/source -B ${WORK}/build -G ${GENERATOR}
    -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_PREFIX_PATH=${prefix}
    -D CMAKE_CXX_FLAGS=-Wall\ -Wextra\ -Wpedantic\ -Wno-deprecated-declarations\ -Werror)
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${CMAKE_COMMAND} --install ${WORK}/build)
