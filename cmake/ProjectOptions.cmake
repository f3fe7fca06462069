# SPDX-License-Identifier: Apache-2.0
# What every target of the project shares: language level, warnings, sanitizers, output folders,
# and the functions by which the folders declare their libraries and tests.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(IEC61850_CCACHE ccache)
    if(IEC61850_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${IEC61850_CCACHE})
    endif()
endif()

add_library(project_options INTERFACE)
target_compile_options(project_options INTERFACE -Wall -Wextra -Wshadow -Wconversion)
target_compile_definitions(project_options INTERFACE
    QT_DISABLE_DEPRECATED_BEFORE=0x050E00 QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)

if(IEC61850_SANITIZE)
    add_compile_options(-fsanitize=${IEC61850_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${IEC61850_SANITIZE})
    if(IEC61850_SANITIZE MATCHES undefined)
        add_compile_options(-fno-sanitize-recover=undefined)
    endif()
    if(IEC61850_SANITIZE MATCHES thread AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        # Asio's fences, which only handlers' memory needs; its queues have locks.
        add_compile_options(-Wno-tsan)
    endif()
    # These programs are big, and mold links them in a fraction of the time.
    find_program(IEC61850_MOLD mold)
    if(IEC61850_MOLD)
        add_link_options(-fuse-ld=mold)
    endif()
endif()

# project_library(NAME STATIC|SHARED|MODULE|OBJECT
#     SOURCES file... [LINK target...] [LINK_PRIVATE target...] [STANDARD 17|20] [INCLUDE_ROOT dir])
# A library with the project's warnings and Qt's moc, uic and rcc. INCLUDE_ROOT is the folder that
# includes are written from; it defaults to the parent of the calling folder, so that
# extension/model is included as "model/iedmodel.h" and sdk/tavrix as <tavrix/tavrix.h>.
function(project_library name type)
    cmake_parse_arguments(arg "" "STANDARD;INCLUDE_ROOT" "SOURCES;LINK;LINK_PRIVATE" ${ARGN})
    if(NOT arg_INCLUDE_ROOT)
        get_filename_component(arg_INCLUDE_ROOT ${CMAKE_CURRENT_SOURCE_DIR} DIRECTORY)
    endif()
    add_library(${name} ${type} ${arg_SOURCES})
    project_target(${name})
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${arg_INCLUDE_ROOT}>)
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE ${arg_LINK_PRIVATE})
    if(arg_STANDARD)
        set_target_properties(${name} PROPERTIES CXX_STANDARD ${arg_STANDARD})
    endif()
endfunction()

# project_target(NAME): warnings, moc, uic and rcc for a target made by add_executable or add_library.
function(project_target name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:project_options>)
endfunction()

# project_add_test(NAME SOURCES file... [LINK target...] [LABELS label...] [GTEST] [TIMEOUT seconds]
#     [ENVIRONMENT NAME=value...])
# A test executable registered with ctest under its own name, labelled with its folder
# ("tests/driver"). Qt tests bring their own main (QTEST_MAIN and the like); with GTEST the test links
# GoogleTest and its main.
function(project_add_test name)
    cmake_parse_arguments(arg "GTEST" "TIMEOUT" "SOURCES;LINK;LABELS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    project_target(${name})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests/bin)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${arg_LINK})
    # Expectations read better as plain literals. What is tested is optimised, tests need not be: that
    # saves a fifth of their time in the compiler.
    target_compile_options(${name} PRIVATE -UQT_NO_CAST_FROM_ASCII $<$<CONFIG:Release>:-O1>)
    if(arg_GTEST)
        set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
        target_link_libraries(${name} PRIVATE GTest::gtest GTest::gtest_main)
    else()
        target_link_libraries(${name} PRIVATE Qt5::Test)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    set(suppressions ${PROJECT_SOURCE_DIR}/tests/support)
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        LABELS "tests/${folder};${arg_LABELS}"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FONT_DPI=96;LC_ALL=C.UTF-8;LSAN_OPTIONS=suppressions=${suppressions}/lsan.supp;TSAN_OPTIONS=ignore_noninstrumented_modules=1 suppressions=${suppressions}/tsan.supp;UBSAN_OPTIONS=print_stacktrace=1;${arg_ENVIRONMENT}")
    set_property(GLOBAL APPEND PROPERTY IEC61850_TEST_EXECUTABLES ${name})
endfunction()
