# Installs a built tree into a folder of its own, and configures, builds and runs a program against it.
# Variables: BUILD_DIR (of the project), WORK_DIR (emptied), COMPILER, BUILD_TYPE, LINK_FLAGS.
file(REMOVE_RECURSE ${WORK_DIR})
foreach(step IN ITEMS
        "--install|${BUILD_DIR}|--prefix|${WORK_DIR}/installed"
        "-S|${CMAKE_CURRENT_LIST_DIR}|-B|${WORK_DIR}/build|-G|Ninja|-DCMAKE_PREFIX_PATH=${WORK_DIR}/installed|-DCMAKE_CXX_COMPILER=${COMPILER}|-DCMAKE_BUILD_TYPE=${BUILD_TYPE}|-DCMAKE_EXE_LINKER_FLAGS=${LINK_FLAGS}"
        "--build|${WORK_DIR}/build")
    string(REPLACE "|" ";" arguments "${step}")
    execute_process(COMMAND ${CMAKE_COMMAND} ${arguments} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
execute_process(COMMAND ${WORK_DIR}/build/package_user COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/installed/bin/orvane --version COMMAND_ERROR_IS_FATAL ANY)
if(NOT EXISTS "${WORK_DIR}/installed/share/orvane/library/data/graphics/Materials")
    message(FATAL_ERROR "The sample library is not installed")
endif()
