# SPDX-License-Identifier: Apache-2.0
# Debian packages of the installed library (cpack -G DEB in a build folder
# configured with -DCMAKE_INSTALL_PREFIX=/usr, so that GNUInstallDirs picks the
# multiarch library folder, /usr/lib/x86_64-linux-gnu on amd64):
#   liblzel-core1        the shared library (component Runtime), named after
#                        its SONAME libLZEL_Core.so.1, Multi-Arch: same; it
#                        refreshes the linker cache with the ldconfig trigger;
#   liblzel-core1-dbgsym its debug symbols (a .ddeb), split off the stripped
#                        library by build id;
#   liblzel-core-dev     headers, the libLZEL_Core.so link, the CMake package
#                        and the pkg-config file (component Development),
#                        depending on liblzel-core1 of the same version.
# Each package carries the machine-readable copyright file (Apache-2.0) and a
# Debian changelog in /usr/share/doc/<package>/. The files these need are in
# cmake/debian/.

set(LZEL_DEB_REVISION 1)
set(LZEL_DEB_VERSION ${PROJECT_VERSION}-${LZEL_DEB_REVISION})
set(LZEL_DEB_MAINTAINER "LZEL_Core maintainers <lzel-core@lzel.org>")
set(LZEL_DEB_SOURCE lzel-core)
set(LZEL_DEB_RUNTIME liblzel-core${PROJECT_VERSION_MAJOR})
set(LZEL_DEB_DEV liblzel-core-dev)
set(LZEL_DEB_DIR ${PROJECT_SOURCE_DIR}/cmake/debian)

# The copyright file and the gzipped Debian changelog of each package. gzip
# -n leaves out the name and time, so that the file is the same on every
# architecture, as Multi-Arch: same wants.
configure_file(${LZEL_DEB_DIR}/changelog ${PROJECT_BINARY_DIR}/debian/changelog.Debian @ONLY)
find_program(LZEL_GZIP gzip)
if(LZEL_GZIP)
  execute_process(COMMAND ${LZEL_GZIP} -n -9 -f -k ${PROJECT_BINARY_DIR}/debian/changelog.Debian)
  foreach(pair Runtime:${LZEL_DEB_RUNTIME} Development:${LZEL_DEB_DEV})
    string(REPLACE ":" ";" pair ${pair})
    list(GET pair 0 component)
    list(GET pair 1 package)
    install(FILES ${LZEL_DEB_DIR}/copyright ${PROJECT_BINARY_DIR}/debian/changelog.Debian.gz
      DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package} COMPONENT ${component}
      EXCLUDE_FROM_ALL)
  endforeach()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${LZEL_DEB_SOURCE})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "LZEL_Core maintainers")
set(CPACK_PACKAGE_CONTACT ${LZEL_DEB_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${LZEL_DEB_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_RELEASE ${LZEL_DEB_REVISION})
set(CPACK_DEBIAN_PACKAGE_SOURCE ${LZEL_DEB_SOURCE})
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL Runtime Development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Stripping is done by the debug-symbol split (objcopy --strip-unneeded).
set(CPACK_STRIP_FILES OFF)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_BINARY_DIR}/debian/CPackOptions.cmake)
configure_file(${LZEL_DEB_DIR}/CPackOptions.cmake.in ${CPACK_PROJECT_CONFIG_FILE} @ONLY)
set(CPACK_POST_BUILD_SCRIPTS ${LZEL_DEB_DIR}/dbgsym.cmake)

set(LZEL_DEB_ABOUT [=[
LZEL_Core gives C++ applications value types with a defined result at
every bound: a byte string class with searches, tag extraction and
number conversion, bit sets of any length, bit and BCD fields, a
parametric CRC engine with a catalogue of standard CRCs, fixed-point
decimal numbers, dates in five calendars, times of day, points,
rectangles, colours and IP addresses, with exact-size vectors and
cursor lists over all of them, and files, typed byte streams, CSV files
and a Windows bitmap reader.]=])

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${LZEL_DEB_RUNTIME})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_MULTIARCH same)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
    "C++17 foundation class library of exact value types\n${LZEL_DEB_ABOUT}\n\nThis package holds the shared library.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${LZEL_DEB_DIR}/triggers)
set(CPACK_DEBIAN_RUNTIME_DEBUGINFO_PACKAGE ON)
# shlibs: applications built against 1.0.0 need at least 1.0.0 of the same
# SONAME; tools/abi-check keeps the SONAME honest.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${LZEL_DEB_DEV})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_MULTIARCH same)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
    "C++17 foundation class library of exact value types (development files)\n${LZEL_DEB_ABOUT}\n\nThis package holds the headers, the CMake package\n(find_package(LZEL_Core)) and the pkg-config file (LZEL_Core.pc).")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${LZEL_DEB_RUNTIME} (= ${LZEL_DEB_VERSION})")

find_program(LZEL_DPKG_SHLIBDEPS dpkg-shlibdeps)
if(LZEL_DPKG_SHLIBDEPS)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)  # libc6, libstdc++6 ... as linked
else()
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libc6, libstdc++6, libgcc-s1")
endif()
include(CPack)
