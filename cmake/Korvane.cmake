# What every target of this project has in common, and one helper per kind of target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

option(KORVANE_WARNINGS_ARE_ERRORS "Stop on any compiler warning" OFF)
set(KORVANE_SANITIZE "" CACHE STRING "Value for -fsanitize=, empty for none")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # base_dir and hash_dir=false let several build folders share compilations.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_NOHASHDIR=1
        "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" ${CCACHE_PROGRAM})
endif()

add_library(korvane-settings INTERFACE)
target_include_directories(korvane-settings INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_definitions(korvane-settings INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(korvane-settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2
    $<$<BOOL:${KORVANE_WARNINGS_ARE_ERRORS}>:-Werror>)
if(KORVANE_SANITIZE)
    add_compile_options(-fsanitize=${KORVANE_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=${KORVANE_SANITIZE})
endif()

# For libraries: a missing symbol stops their own link. (clang's sanitizers are in the program.)
set(KORVANE_NO_UNDEFINED -Wl,--no-undefined)

option(KORVANE_FUZZ "Build the fuzz targets in tests/fuzz/; needs clang" OFF)
if(KORVANE_FUZZ)
    set(KORVANE_NO_UNDEFINED)
    # Qt's own libraries tell nothing about their classes, which the check of dynamic types would need.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr
        -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# korvane_room(NAME SOURCES file... LINK target...): one room of the house as a static library.
function(korvane_room name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(korvane-${name} STATIC ${ARG_SOURCES})
    target_link_libraries(korvane-${name} PUBLIC korvane-settings ${ARG_LINK})
endfunction()

# korvane_test(NAME SOURCES file... LINK target... [LABELS label...]): a GoogleTest program whose
# every case is a test of ctest, run without a display.
function(korvane_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK;LABELS;PROPERTIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE korvane-settings korvane-test-support ${ARG_LINK})
    if(ARG_LABELS)
        set(labels LABELS ${ARG_LABELS})
    endif()
    # Without a list in it: gtest_discover_tests() takes ";" as the end of a value.
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT 120 ${labels} ENVIRONMENT LC_ALL=C.UTF-8 ${ARG_PROPERTIES})
endfunction()
