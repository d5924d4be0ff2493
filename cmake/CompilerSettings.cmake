set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# One target that every target of the project links privately: warnings are errors, and floating point is evaluated as
# written, so that every machine writes the same numbers.
add_library(orvane_settings INTERFACE)
target_compile_options(orvane_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast -Wcast-qual -Wformat=2 -Werror -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlapping copies in plain `"literal" + string` once it optimises (its bug 105651).
    target_compile_options(orvane_settings INTERFACE -Wno-restrict)
endif()
if(ORVANE_SANITIZE)
    target_compile_options(orvane_settings INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(orvane_settings INTERFACE -fsanitize=address,undefined)
endif()
