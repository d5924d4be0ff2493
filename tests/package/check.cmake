# Installs a built tree into a folder of its own, configures and builds a program against it, and compares what the
# program exports with what is expected.
# Variables: BUILD_DIR (of the project), WORK_DIR (emptied), COMPILER, BUILD_TYPE, LINK_FLAGS.
file(REMOVE_RECURSE ${WORK_DIR})
foreach(step IN ITEMS
        "--install|${BUILD_DIR}|--prefix|${WORK_DIR}/installed"
        "-S|${CMAKE_CURRENT_LIST_DIR}|-B|${WORK_DIR}/build|-G|Ninja|-DCMAKE_PREFIX_PATH=${WORK_DIR}/installed|-DCMAKE_CXX_COMPILER=${COMPILER}|-DCMAKE_BUILD_TYPE=${BUILD_TYPE}|-DCMAKE_EXE_LINKER_FLAGS=${LINK_FLAGS}|-DPROJECT_SOURCES=${CMAKE_CURRENT_LIST_DIR}/../../src"
        "--build|${WORK_DIR}/build")
    string(REPLACE "|" ";" arguments "${step}")
    execute_process(COMMAND ${CMAKE_COMMAND} ${arguments} COMMAND_ERROR_IS_FATAL ANY)
endforeach()

execute_process(COMMAND ${WORK_DIR}/build/package_user WORKING_DIRECTORY ${WORK_DIR} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND diff -u ${CMAKE_CURRENT_LIST_DIR}/expected/plate.gltf ${WORK_DIR}/plate/plate.gltf
    COMMAND_ERROR_IS_FATAL ANY)
# Little-endian: a float of 1 is 0000803f, of 2 it is 00000040.
string(CONCAT expected
    "000000000000000000000000" "000000400000000000000000" "000000400000803f00000000" # positions
    "000000000000000000000000" "000000400000803f00000000" "000000000000803f00000000"
    "00000000000000000000803f" "00000000000000000000803f" "00000000000000000000803f" # normals
    "00000000000000000000803f" "00000000000000000000803f" "00000000000000000000803f"
    "0000000000000000" "0000803f00000000" "0000803f0000803f" # texture coordinates
    "0000000000000000" "0000803f0000803f" "000000000000803f"
    "000001000200030004000500") # indices
file(READ ${WORK_DIR}/plate/plate.part.bin found HEX)
if(NOT found STREQUAL expected)
    message(FATAL_ERROR "plate.part.bin is\n${found}\nexpected\n${expected}")
endif()

execute_process(COMMAND ${WORK_DIR}/installed/bin/orvane --version COMMAND_ERROR_IS_FATAL ANY)
if(NOT EXISTS "${WORK_DIR}/installed/share/orvane/library/data/graphics/Materials")
    message(FATAL_ERROR "The sample library is not installed")
endif()
