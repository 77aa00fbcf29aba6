# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
#
# What every target of this project has in common: language level, warnings, sanitizers, compiler cache.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

find_program(DN_CCACHE ccache)
if(DN_CCACHE)
    # The cache serves files that use a precompiled header only when told that its macros and times do not matter.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        "${DN_CCACHE}")
endif()

# Not -O3: nothing here runs faster with it, and g++ 12 then warns of overlapping copies in std::string that are none.
string(REPLACE "-O3" "-O2" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")

if(DN_ASSERTIONS)
    string(REPLACE "-DNDEBUG" "" CMAKE_CXX_FLAGS_RELWITHDEBINFO "${CMAKE_CXX_FLAGS_RELWITHDEBINFO}")
endif()
if(DN_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(DN_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(DN_COVERAGE)
    # clang's counts, by what the source says: scripts/coverage reads them
    add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
    add_link_options(-fprofile-instr-generate)
endif()

# dn_configure(TARGET): warnings and include roots. Sources include each other from the root of their tree
# ("screen/label.h", "host/database/server.h", "tests/support/fake_connection.h").
function(dn_configure target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
    if(DN_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}")
    if(DN_UNITY STREQUAL "all")
        dn_unite(${target})
    endif()
endfunction()

# dn_configure_library(TARGET): as dn_configure, for what also becomes a shared library: names hidden but for those that
# src/base/export.h marks, and code that can lie anywhere.
function(dn_configure_library target)
    dn_configure(${target})
    set_target_properties(${target} PROPERTIES
        POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()

# dn_unite(TARGET): compiles its files in bundles, which read each header and instantiate each template once. Names of
# one file that hide those of another are no mistake then, and builds without bundles look for real ones.
function(dn_unite target)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 24)
    target_compile_options(${target} PRIVATE -Wno-shadow)
endfunction()

# dn_precompile(TARGET HEADER...): headers that most files of the target include, read once for all of them.
# dn_precompile(TARGET REUSE OTHER): those of another target, which must be compiled with the same options.
# It hides a missing #include, so one preset builds without.
function(dn_precompile target)
    if(NOT DN_PRECOMPILE)
        return()
    endif()
    if(ARGV1 STREQUAL "REUSE")
        target_precompile_headers(${target} REUSE_FROM ${ARGV2})
    else()
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE -fpch-preprocess) # what the compiler cache needs
    endif()
endfunction()

set(DN_STANDARD_HEADERS <algorithm> <any> <array> <cstdint> <functional> <map> <memory> <optional> <set> <string>
    <string_view> <utility> <vector>)
set(DN_TEST_HEADERS ${DN_STANDARD_HEADERS} <gmock/gmock.h> <gtest/gtest.h>)
set(DN_QT_HEADERS ${DN_STANDARD_HEADERS} <QtWidgets/QDialog> <QtWidgets/QGridLayout> <QtWidgets/QLabel>
    <QtWidgets/QLineEdit> <QtWidgets/QMessageBox> <QtWidgets/QPushButton> <QtWidgets/QTableView>)

# dn_configure_test(TARGET): as dn_configure; unoptimised, for tests are compiled more often than they take long.
function(dn_configure_test target)
    dn_configure(${target})
    if(CMAKE_BUILD_TYPE STREQUAL "RelWithDebInfo")
        target_compile_options(${target} PRIVATE -O0)
    endif()
    if(DN_UNITY STREQUAL "tests")
        dn_unite(${target})
    endif()
endfunction()
