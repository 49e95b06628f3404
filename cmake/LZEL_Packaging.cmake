# Debian packages of the installed library (cpack in the build folder):
#   liblzel-core0     the shared library (component Runtime);
#   liblzel-core-dev  headers, the libLZEL_Core.so link, the CMake package and
#                     the pkg-config file (component Development), depending
#                     on liblzel-core0 of the same version.
# Both install under /usr: `apt-get install ./liblzel-core0_*.deb
# ./liblzel-core-dev_*.deb` gives find_package(LZEL_Core) and
# `pkg-config LZEL_Core`.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME liblzel-core)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "C++17 foundation class library of exact value types, containers and I/O")
set(CPACK_PACKAGE_CONTACT "LZEL_Core maintainers <lzel-core@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL Runtime Development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME liblzel-core${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liblzel-core-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${PROJECT_VERSION})")
find_program(LZEL_DPKG_SHLIBDEPS dpkg-shlibdeps)
if(LZEL_DPKG_SHLIBDEPS)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)  # libc6, libstdc++6 ... as linked
else()
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libc6, libstdc++6, libgcc-s1")
endif()
include(CPack)
