# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
#
# The Debian packages: the program, which carries the control in itself and so needs no other package of ours; the
# shared libraries for applications that embed it; what their developers need. cpack -G DEB makes them of a built tree.
set(DN_MAINTAINER "The ctrDnContacts authors <dncontacts@example.com>")

configure_file(packaging/debian/changelog.in "${PROJECT_BINARY_DIR}/package/changelog" @ONLY)
set(shlibs "")
foreach(library IN ITEMS dncontacts dncontacts-mariadb dncontacts-odbc dncontacts-qt)
    string(APPEND shlibs
        "lib${library} ${DN_SOVERSION} libdncontacts${DN_SOVERSION} (>= ${PROJECT_VERSION})\n")
endforeach()
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/package/shlibs" CONTENT "${shlibs}" @ONLY)
set(DN_PACKAGE_OF_program dncontacts)
set(DN_PACKAGE_OF_runtime "libdncontacts${DN_SOVERSION}")
set(DN_PACKAGE_OF_development libdncontacts-dev)
foreach(component IN ITEMS program runtime development)
    set(folder "${CMAKE_INSTALL_DATAROOTDIR}/doc/${DN_PACKAGE_OF_${component}}")
    install(FILES packaging/debian/copyright DESTINATION "${folder}" COMPONENT ${component})
    dn_install_zipped("${PROJECT_BINARY_DIR}/package/changelog" changelog "${folder}" ${component})
    string(TOUPPER "${component}" upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME "${DN_PACKAGE_OF_${component}}")
endforeach()
# dn_install_page(PAGE FOLDER COMPONENT ABSENT): a page of the documents; what it says of pages that are not installed
# with it, by a regular expression, stays as words without a link.
function(dn_install_page page folder component absent)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/${page}.md")
    file(READ "${PROJECT_SOURCE_DIR}/docs/${page}.md" text)
    string(REGEX REPLACE "\\[([^]\n]+)\\]\\((${absent})[^) ]*\\)" "\\1" text "${text}")
    file(WRITE "${PROJECT_BINARY_DIR}/package/${component}/${page}.md" "${text}")
    install(FILES "${PROJECT_BINARY_DIR}/package/${component}/${page}.md" DESTINATION "${folder}"
        COMPONENT ${component})
endfunction()
foreach(page IN ITEMS embedding database mail)
    dn_install_page(${page} "${CMAKE_INSTALL_DATAROOTDIR}/doc/libdncontacts-dev/docs" development
        "manual\\.md|reliability\\.md")
endforeach()
# The manual that Ayuda > Manual shows, with the pages that it leads to.
foreach(page IN ITEMS manual database mail)
    dn_install_page(${page} "${CMAKE_INSTALL_DATAROOTDIR}/dncontacts" program
        "embedding\\.md|reliability\\.md|\\.\\./host")
endforeach()
install(DIRECTORY docs/manual docs/pictures DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/dncontacts" COMPONENT program)
install(DIRECTORY host/database/schema DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/dncontacts/host/database"
    COMPONENT program)
# The program's sources: what the guide says is there to be copied.
install(DIRECTORY host DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/libdncontacts-dev" COMPONENT development
    FILES_MATCHING PATTERN "*.h" PATTERN "*.cpp" PATTERN "*.in" PATTERN "*.sql" PATTERN "CMakeLists.txt"
    PATTERN "desktop_entry" EXCLUDE)
install(DIRECTORY examples/minimal-host DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/libdncontacts-dev/examples"
    COMPONENT development)

set(CPACK_GENERATOR DEB)
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_SOURCE_DIR}/cmake/DnPackagesNeed.cmake")
set(CPACK_PACKAGE_NAME dncontacts)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own, the first line of its description
set(CPACK_PACKAGE_CONTACT "${DN_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL program runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Where the plugin of Qt Designer finds our own libraries; which package they are in is said below.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/src" "${PROJECT_BINARY_DIR}/src/screen/qt")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "sales-force workbench
An agent works through prospects, projects and the calls of the day, a
supervisor through everybody's. The program opens a private database with
sample data, or another one on MariaDB, MySQL or SQL Server. Its texts are
Spanish.")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION misc)
# What is found at run time only: the drawings' engine, the private server, and a font narrow enough for the fixed frame.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS
    "libqt6svg6, mariadb-server-core, mariadb-client-core, fonts-roboto-unhinted")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS "odbc-mariadb, tdsodbc")

set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "sales-force workbench control, shared libraries
The control that a business application places on one of its windows, as a
Qt widget, and its connections to MySQL, MariaDB and ODBC.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
    "${PROJECT_BINARY_DIR}/package/shlibs;${PROJECT_SOURCE_DIR}/packaging/debian/triggers")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "libqt6svg6, fonts-roboto-unhinted")

set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "sales-force workbench control, development files
Headers, files for CMake and pkg-config, a plugin for Qt Designer, and an
example of an application that embeds the control.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "libdncontacts${DN_SOVERSION} (= ${PROJECT_VERSION}), qt6-base-dev")
include(CPack)
