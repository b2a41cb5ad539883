# A room is one folder below src/, built as a static library. The LINK lists in the folders say which rooms a
# room may use; .ci/rooms checks the includes, which are written from src/ and so name their room.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

option(VETROLAN_WERROR "Treat warnings as errors" OFF)
option(VETROLAN_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(VETROLAN_PRECOMPILE "Read the common headers once for all files" OFF)
option(VETROLAN_BENCH "Build the benchmarks" OFF)
option(VETROLAN_NIGHTLY "Build the trials that take long" OFF)

# All targets take their include paths, warnings and checks from here.
add_library(vetrolan_options INTERFACE)
target_include_directories(vetrolan_options INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR})
target_compile_options(vetrolan_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wimplicit-fallthrough)
target_compile_definitions(vetrolan_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER)
if(VETROLAN_WERROR)
    target_compile_options(vetrolan_options INTERFACE -Werror)
endif()
if(VETROLAN_SANITIZE)
    target_compile_options(vetrolan_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(vetrolan_options INTERFACE -fsanitize=address,undefined)
endif()

# Under the sanitizers the tests themselves aren't optimised: compiling would take longer than running gains.
add_library(vetrolan_test_options INTERFACE)
target_link_libraries(vetrolan_test_options INTERFACE vetrolan_options GTest::gtest GTest::gmock GTest::gtest_main)
# In a test a text of ASCII letters may stand as it is; there are thousands of them.
target_compile_options(vetrolan_test_options INTERFACE -UQT_NO_CAST_FROM_ASCII)
if(VETROLAN_SANITIZE)
    target_compile_options(vetrolan_test_options INTERFACE -O0)
endif()

# Precompiles the headers that nearly all files include. A file must still include what it uses: the release
# preset builds without this.
if(VETROLAN_PRECOMPILE)
    # -fpch-preprocess is for ccache. -pthread comes with some libraries, and must be the same wherever a
    # precompiled header is used.
    add_compile_options(-fpch-preprocess -pthread)
    set(emptyFile ${CMAKE_BINARY_DIR}/precompiled/empty.cpp)
    file(CONFIGURE OUTPUT ${emptyFile} CONTENT "")
    foreach(kind windowless windows)
        set(qt Qt6::Core)
        if(kind STREQUAL windows)
            set(qt Qt6::Widgets)
        endif()
        set(headers ${CMAKE_CURRENT_LIST_DIR}/headers/${kind}.h)
        add_library(precompiled_${kind} OBJECT ${emptyFile})
        target_link_libraries(precompiled_${kind} PRIVATE ${qt} vetrolan_options)
        target_precompile_headers(precompiled_${kind} PRIVATE ${headers})
        if(BUILD_TESTING)
            add_library(precompiled_tests_${kind} OBJECT ${emptyFile})
            target_link_libraries(precompiled_tests_${kind} PRIVATE ${qt} vetrolan_test_options)
            target_precompile_headers(precompiled_tests_${kind} PRIVATE ${headers} <gtest/gtest.h>)
        endif()
    endforeach()
endif()

# vetrolan_precompiled(TARGET KIND): lets TARGET use the precompiled headers of KIND, see headers/.
function(vetrolan_precompiled target kind)
    if(VETROLAN_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM precompiled_${kind})
    endif()
endfunction()

# vetrolan_room(NAME [WINDOWLESS] SOURCES file... LINK target...): the library of a room.
# WINDOWLESS: the room uses QtCore, but no windows.
function(vetrolan_room name)
    cmake_parse_arguments(ROOM "WINDOWLESS" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(${name} PUBLIC ${ROOM_LINK} PRIVATE vetrolan_options)
    if(ROOM_WINDOWLESS)
        vetrolan_precompiled(${name} windowless)
    else()
        vetrolan_precompiled(${name} windows)
    endif()
endfunction()

# vetrolan_program(NAME SOURCES file... LINK target...): an executable.
function(vetrolan_program name)
    cmake_parse_arguments(PROGRAM "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${PROGRAM_SOURCES})
    target_link_libraries(${name} PRIVATE ${PROGRAM_LINK} vetrolan_options)
endfunction()

# vetrolan_tests(NAME [WINDOWLESS] SOURCES file... LINK target...): a test program; CTest knows each of its
# cases.
function(vetrolan_tests name)
    cmake_parse_arguments(TESTS "WINDOWLESS" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${TESTS_SOURCES})
    target_link_libraries(${name} PRIVATE ${TESTS_LINK} vetrolan_test_options)
    if(TESTS_WINDOWLESS)
        vetrolan_precompiled(${name} tests_windowless)
    else()
        vetrolan_precompiled(${name} tests_windows)
    endif()
    gtest_discover_tests(${name}
        DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT 120 ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()
