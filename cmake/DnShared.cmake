# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
#
# What is installed for an application that embeds the control: a shared library for each part, so that whoever reaches
# his server over ODBC needs no libmariadb, its public headers, and the files by which CMake and pkg-config find them.
#
# The shared libraries are linked of the objects of the static ones, which the tests and the program use: nothing is
# compiled twice, and what was tested is what is installed.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Raised when a program that was linked to an older library would not run with the new one.
set(DN_SOVERSION 0)

set(DN_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/DnContacts")

# When this version came out, as a software centre shows it and as Debian's changelog has it.
set(DN_RELEASE_DATE 2026-11-22)
set(DN_RELEASE_TIME "Sun, 22 Nov 2026 08:00:00 +0000")

# dn_install_zipped(SOURCE NAME FOLDER COMPONENT): documents are installed packed, without a time in them.
function(dn_install_zipped source name folder component)
    set(packed "${PROJECT_BINARY_DIR}/package/${component}/${name}.gz")
    get_filename_component(parent "${packed}" DIRECTORY)
    file(MAKE_DIRECTORY "${parent}")
    execute_process(COMMAND gzip -9nc "${source}" OUTPUT_FILE "${packed}" COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${source}")
    install(FILES "${packed}" DESTINATION "${folder}" COMPONENT ${component})
endfunction()

# dn_share(NAME OUTPUT SUMMARY OBJECTS TARGET... LINKS ... NEEDS ... REQUIRES ... HEADERS ...): the library of dn_NAME
# as DnContacts::NAME. LINKS are for whoever links it, NEEDS its own matter, REQUIRES the modules of pkg-config that
# whoever links it needs; HEADERS are relative to src.
function(dn_share name)
    if(NOT DN_SHARED)
        return()
    endif()
    cmake_parse_arguments(arg "" "OUTPUT;SUMMARY" "OBJECTS;LINKS;NEEDS;REQUIRES;HEADERS;DEFINITIONS" ${ARGN})
    set(objects "")
    foreach(target IN LISTS arg_OBJECTS)
        list(APPEND objects "$<TARGET_OBJECTS:${target}>")
    endforeach()
    list(TRANSFORM arg_HEADERS PREPEND "${PROJECT_SOURCE_DIR}/src/")
    set(shared "dn_${name}_shared")
    add_library(${shared} SHARED ${objects})
    set_target_properties(${shared} PROPERTIES
        EXPORT_NAME ${name} OUTPUT_NAME ${arg_OUTPUT} LINKER_LANGUAGE CXX
        VERSION ${PROJECT_VERSION} SOVERSION ${DN_SOVERSION} INSTALL_RPATH "$ORIGIN")
    target_compile_features(${shared} INTERFACE cxx_std_20)
    target_compile_definitions(${shared} INTERFACE ${arg_DEFINITIONS})
    target_link_options(${shared} PRIVATE LINKER:--no-undefined)
    target_link_libraries(${shared} PUBLIC ${arg_LINKS} PRIVATE ${arg_NEEDS})
    target_sources(${shared} PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/src" FILES ${arg_HEADERS})

    install(TARGETS ${shared} EXPORT DnContacts-${name}
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development
        FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/dncontacts" COMPONENT development)
    install(EXPORT DnContacts-${name} NAMESPACE DnContacts:: DESTINATION "${DN_CMAKE_DIR}" COMPONENT development)

    string(JOIN " " requires ${arg_REQUIRES})
    list(TRANSFORM arg_DEFINITIONS PREPEND " -D" OUTPUT_VARIABLE flags)
    string(JOIN "" flags ${flags})
    set(pc "${PROJECT_BINARY_DIR}/package/${arg_OUTPUT}.pc")
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig"
        OUTPUT_VARIABLE way_to_prefix)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/dncontacts.pc.in" "${pc}" @ONLY)
    install(FILES "${pc}" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
endfunction()

# dn_describe_package(): the files by which CMake finds the libraries.
function(dn_describe_package)
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/DnContactsConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/package/DnContactsConfig.cmake" INSTALL_DESTINATION "${DN_CMAKE_DIR}")
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/DnContactsConfigVersion.cmake"
        COMPATIBILITY SameMinorVersion)
    install(FILES "${PROJECT_BINARY_DIR}/package/DnContactsConfig.cmake"
        "${PROJECT_BINARY_DIR}/package/DnContactsConfigVersion.cmake"
        DESTINATION "${DN_CMAKE_DIR}" COMPONENT development)
endfunction()
