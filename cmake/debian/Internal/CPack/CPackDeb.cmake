# SPDX-License-Identifier: Apache-2.0
# Runs CMake's own Debian package step for one package, then changes what
# Debian policy wants done otherwise: the shared library package refreshes the
# dynamic linker's cache with the ldconfig trigger (cmake/debian/triggers,
# given in its control files) instead of postinst and postrm scripts that call
# ldconfig. Found through CMAKE_MODULE_PATH, which cmake/debian/CPackOptions.cmake
# sets when cpack runs.
include(${CMAKE_ROOT}/Modules/Internal/CPack/CPackDeb.cmake)
set(GEN_CPACK_DEBIAN_GENERATE_POSTINST 0)
set(GEN_CPACK_DEBIAN_GENERATE_POSTRM 0)
