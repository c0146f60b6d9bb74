# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT

# Read by CPack, which would only warn, and make a package that brings none of its libraries.
find_program(DPKG_SHLIBDEPS dpkg-shlibdeps)
if(NOT DPKG_SHLIBDEPS)
    message(FATAL_ERROR "Without dpkg-shlibdeps the package would not name the libraries that it \
needs: sudo apt-get install dpkg-dev")
endif()
