# SPDX-FileCopyrightText: The ctrDnContacts authors
# SPDX-License-Identifier: Apache-2.0

# Read by cpack ahead of its work. Without dpkg-shlibdeps it would make packages that depend on nothing, and say so in one
# line among many.
if(CPACK_GENERATOR STREQUAL "DEB")
    find_program(DN_SHLIBDEPS dpkg-shlibdeps)
    if(NOT DN_SHLIBDEPS)
        message(FATAL_ERROR "dpkg-shlibdeps is missing, which finds what the packages depend on: apt install dpkg-dev")
    endif()
endif()
