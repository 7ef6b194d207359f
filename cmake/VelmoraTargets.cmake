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
find_program(MOLD mold)
if(MOLD AND NOT CMAKE_BUILD_TYPE STREQUAL "Release")
    add_link_options(-fuse-ld=mold)
endif()

add_library(velmora_options INTERFACE)
target_include_directories(velmora_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(velmora_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
    -Wimplicit-fallthrough)
# Where several sources are compiled at a time, names without linkage share a file; single ones are checked for these.
set(several $<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>)
target_compile_options(velmora_options INTERFACE
    $<$<NOT:${several}>:-Wshadow> $<$<AND:${several},$<CXX_COMPILER_ID:GNU>>:-Wno-subobject-linkage>)
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
    target_compile_options(velmora_options INTERFACE $<$<CXX_COMPILER_ID:Clang>:
        -fsanitize-ignorelist=${CMAKE_SOURCE_DIR}/tests/support/libraries.ignorelist>)
    target_link_options(velmora_options INTERFACE -fsanitize=address,undefined)
endif()

# velmora_layer(NAME [QT] SOURCES ... DEPENDS ...): adds one folder of src/ as the static library `velmora_NAME`. QT
# runs moc on its headers, for classes with signals, slots or texts; one file includes what it wrote, because each file
# that includes Qt's headers takes seconds.
function(velmora_layer name)
    cmake_parse_arguments(LAYER "QT" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(velmora_${name} STATIC ${LAYER_SOURCES})
    target_link_libraries(velmora_${name} PUBLIC ${LAYER_DEPENDS} PRIVATE velmora_options)
    target_include_directories(velmora_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    if(VELMORA_SANITIZE AND NOT LAYER_QT) # these layers compute; unoptimised, their tests take a minute
        target_compile_options(velmora_${name} PRIVATE -O1)
    endif()
    if(LAYER_QT)
        list(FILTER LAYER_SOURCES INCLUDE REGEX "\\.h$")
        qt_wrap_cpp(mocs ${LAYER_SOURCES} TARGET velmora_${name} OPTIONS --no-notes)
        list(TRANSFORM mocs REPLACE "(.+)" "#include \"\\1\"\n" OUTPUT_VARIABLE includes)
        string(CONCAT includes ${includes})
        file(CONFIGURE OUTPUT mocs_of_${name}.cpp CONTENT "${includes}" @ONLY)
        set_source_files_properties(${mocs} PROPERTIES HEADER_FILE_ONLY ON)
        target_sources(velmora_${name} PRIVATE ${mocs} ${CMAKE_CURRENT_BINARY_DIR}/mocs_of_${name}.cpp)
    endif()
endfunction()

# velmora_tests(NAME SOURCES ... DEPENDS ...): adds the tests of one layer as `velmora_NAME_tests` and registers each of
# them with ctest. With sanitizers it registers four shares of them, because each start of a program takes half a second.
function(velmora_tests name)
    cmake_parse_arguments(TESTS "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(velmora_${name}_tests ${TESTS_SOURCES})
    target_compile_options(velmora_${name}_tests PRIVATE -O0) # optimising them takes longer than running them
    target_include_directories(velmora_${name}_tests PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(velmora_${name}_tests PRIVATE ${TESTS_DEPENDS} GTest::gmock velmora_options)
    if(VELMORA_SANITIZE)
        foreach(share RANGE 3)
            add_test(NAME ${name}.${share} COMMAND velmora_${name}_tests --gtest_brief=1)
            set_tests_properties(${name}.${share} PROPERTIES
                ENVIRONMENT "GTEST_TOTAL_SHARDS=4;GTEST_SHARD_INDEX=${share}" TIMEOUT 600)
        endforeach()
    else()
        gtest_discover_tests(velmora_${name}_tests
            TEST_PREFIX ${name}.
            DISCOVERY_TIMEOUT 60
            PROPERTIES TIMEOUT 120)
    endif()
endfunction()
