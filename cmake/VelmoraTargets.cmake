# Compiler options of all targets, and functions that add a layer or its tests.
include_guard()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(velmora_options INTERFACE)
target_include_directories(velmora_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(velmora_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast
    -Woverloaded-virtual -Wimplicit-fallthrough)
if(VELMORA_WARNINGS_AS_ERRORS)
    target_compile_options(velmora_options INTERFACE -Werror)
endif()

# Hardening of the build for users. Control-flow protection exists only on x86.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection VELMORA_HAS_CF_PROTECTION)
target_compile_options(velmora_options INTERFACE
    $<$<CONFIG:Release>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -Wformat -Werror=format-security>
    $<$<AND:$<CONFIG:Release>,$<BOOL:${VELMORA_HAS_CF_PROTECTION}>>:-fcf-protection>)
target_link_options(velmora_options INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)

if(VELMORA_SANITIZE)
    target_compile_options(velmora_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(velmora_options INTERFACE -fsanitize=address,undefined)
endif()
if(VELMORA_FUZZERS)
    target_compile_options(velmora_options INTERFACE
        -fsanitize=fuzzer-no-link -fsanitize-ignorelist=${CMAKE_SOURCE_DIR}/tests/fuzz/libraries.ignorelist)
endif()

# velmora_precompile(TARGET): precompiles the headers that nearly every widget source includes. Takes effect only in
# presets that enable precompiled headers; the others check that every file includes what it uses.
function(velmora_precompile target)
    target_precompile_headers(${target} PRIVATE
        <QPainter> <QTimer> <QVBoxLayout> <QWidget> <algorithm> <chrono> <functional> <optional> <vector>)
endfunction()

# velmora_layer(NAME [QT] SOURCES ... DEPENDS ...): adds one folder of src/ as the static library `velmora_NAME`. QT
# runs moc, for classes with signals or slots.
function(velmora_layer name)
    cmake_parse_arguments(LAYER "QT" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(velmora_${name} STATIC ${LAYER_SOURCES})
    set_target_properties(velmora_${name} PROPERTIES AUTOMOC ${LAYER_QT})
    target_link_libraries(velmora_${name} PUBLIC ${LAYER_DEPENDS} PRIVATE velmora_options)
    target_include_directories(velmora_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
endfunction()

# velmora_tests(NAME SOURCES ... DEPENDS ...): adds the tests of one layer as `velmora_NAME_tests` and registers each of
# them with ctest.
function(velmora_tests name)
    cmake_parse_arguments(TESTS "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(velmora_${name}_tests ${TESTS_SOURCES})
    target_include_directories(velmora_${name}_tests PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(velmora_${name}_tests PRIVATE ${TESTS_DEPENDS} GTest::gmock velmora_options)
    gtest_discover_tests(velmora_${name}_tests
        TEST_PREFIX ${name}.
        DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT 120)
endfunction()
