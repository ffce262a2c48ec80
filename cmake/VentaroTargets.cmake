# The definitions that every target shares, and the two functions that create a layer and a test.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

add_library(ventaro_definitions INTERFACE)
target_include_directories(ventaro_definitions INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(ventaro_definitions INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
    QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050f00)
target_compile_options(ventaro_definitions INTERFACE -Wall -Wextra -Wconversion -Wshadow
    -ffp-contract=off)
if(VENTARO_WERROR)
    target_compile_options(ventaro_definitions INTERFACE -Werror)
endif()
if(VENTARO_SANITIZE)
    target_compile_options(ventaro_definitions INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(ventaro_definitions INTERFACE -fsanitize=address,undefined)
endif()

# ventaro_layer(<target> SOURCES <file>... [LINK <target>...])
# One static library per layer. tools/check_layers.py reads these calls to learn which file belongs to which layer.
function(ventaro_layer target)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(${target} STATIC ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_link_libraries(${target} PUBLIC ventaro_definitions ${arg_LINK})
endfunction()

# ventaro_test(<name> SOURCES <file>... [LINK <target>...])
# One Qt Test program, run off-screen by CTest.
function(ventaro_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(${name} PRIVATE ventaro_definitions ${arg_LINK} Qt5::Test)
    target_compile_definitions(${name} PRIVATE VENTARO_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data")
    add_test(NAME ${name} COMMAND ${name})
    # Tests wait for warnings that logging rules of whoever runs them would silence.
    set_tests_properties(${name} PROPERTIES TIMEOUT 120 ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/tests/config/${name};LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/lsan.supp")
endfunction()
