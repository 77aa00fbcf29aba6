# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0
#
# What every target of this project has in common: language level, warnings, sanitizers, compiler cache.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

find_program(DN_CCACHE ccache)
if(DN_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${DN_CCACHE}")
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
if(DN_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()

# dn_configure(TARGET): warnings and include roots. Sources include each other from the root of their tree
# ("screen/label.h", "host/database/server.h", "tests/support/fake_connection.h").
function(dn_configure target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
    if(DN_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}")
endfunction()
