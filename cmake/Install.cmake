# SPDX-License-Identifier: Apache-2.0
# Where `cmake --install` puts things, and the function by which the SDK's folders install theirs.
#
# Components, each a Debian package: `library` are the shared libraries that the plug-in and its host
# need, `plugin` is the plug-in, `sdk` is what a host is built with, `workbench` is the workbench,
# `tools` is the command line and `simulator` the simulated device. The plug-in looks for its
# translations beside the program that loads it and the workbench for the plug-in, hence one folder
# for the three.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(IEC61850_PROGRAM_DIR ${CMAKE_INSTALL_LIBDIR}/iec61850ext)
set(IEC61850_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/iec61850ext)
set(IEC61850_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/IEC61850Ext)
file(RELATIVE_PATH IEC61850_PROGRAM_TO_LIBRARIES
    /prefix/${IEC61850_PROGRAM_DIR} /prefix/${CMAKE_INSTALL_LIBDIR})

# project_install_tool(NAME COMPONENT)
# A command-line program and its manual page, which it prints itself when run with --manual-page.
function(project_install_tool name component)
    add_custom_command(OUTPUT ${name}.1
        COMMAND ${name} --manual-page > ${name}.1
        DEPENDS ${name} VERBATIM)
    add_custom_target(${name}_manual ALL DEPENDS ${name}.1)
    file(RELATIVE_PATH toLibraries
        /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${name} PROPERTIES INSTALL_RPATH $ORIGIN/${toLibraries})
    install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component})
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
endfunction()

# project_install_sdk_library(NAME FILENAME HEADERS file...)
# A shared library of the SDK: libIEC61850Ext<FILENAME>.so with the version of its binary interface,
# its headers, and IEC61850Ext::NAME for those who find the package.
function(project_install_sdk_library name filename)
    cmake_parse_arguments(arg "" "" "HEADERS" ${ARGN})
    set_target_properties(${name} PROPERTIES
        OUTPUT_NAME IEC61850Ext${filename}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
        INSTALL_RPATH $ORIGIN)
    target_compile_features(${name} INTERFACE cxx_std_17)
    install(TARGETS ${name} EXPORT IEC61850ExtTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT library NAMELINK_COMPONENT sdk
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT sdk
        INCLUDES DESTINATION ${IEC61850_HEADER_DIR})
    install(FILES ${arg_HEADERS} DESTINATION ${IEC61850_HEADER_DIR}/${name} COMPONENT sdk)
endfunction()

# project_install_package(): what find_package(IEC61850Ext) reads; after all libraries are declared.
function(project_install_package)
    install(EXPORT IEC61850ExtTargets NAMESPACE IEC61850Ext::
        DESTINATION ${IEC61850_PACKAGE_DIR} COMPONENT sdk)
    set(PLUGIN_FILE ${IEC61850_PROGRAM_DIR}/plugins/IEC61850Ext${CMAKE_SHARED_MODULE_SUFFIX})
    set(TRANSLATION_DIR ${IEC61850_PROGRAM_DIR}/translation)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/IEC61850ExtConfig.cmake.in
        ${CMAKE_CURRENT_BINARY_DIR}/IEC61850ExtConfig.cmake
        INSTALL_DESTINATION ${IEC61850_PACKAGE_DIR}
        PATH_VARS TRANSLATION_DIR PLUGIN_FILE)
    write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/IEC61850ExtConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES
            ${CMAKE_CURRENT_BINARY_DIR}/IEC61850ExtConfig.cmake
            ${CMAKE_CURRENT_BINARY_DIR}/IEC61850ExtConfigVersion.cmake
        DESTINATION ${IEC61850_PACKAGE_DIR} COMPONENT sdk)
endfunction()
