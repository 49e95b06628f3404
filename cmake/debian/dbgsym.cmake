# SPDX-License-Identifier: Apache-2.0
# Run by cpack after it has built the packages (CPACK_POST_BUILD_SCRIPTS).
# CMake's debug-symbol package (.ddeb) needs two touches to be what Debian's
# own debhelper makes: its md5sums name the files by their path inside the
# package, not by the path of cpack's staging folder, and its documentation
# folder is a link to that of the library package it depends on, which holds
# the copyright file and the changelog.
find_program(LZEL_DPKG_DEB dpkg-deb REQUIRED)
set(ddebs ${CPACK_PACKAGE_FILES})
list(FILTER ddebs INCLUDE REGEX "-dbgsym_[^/]*\\.ddeb$")
foreach(ddeb IN LISTS ddebs)
  set(root "${ddeb}.root")
  file(REMOVE_RECURSE "${root}")
  execute_process(COMMAND ${LZEL_DPKG_DEB} -R "${ddeb}" "${root}" COMMAND_ERROR_IS_FATAL ANY)
  file(READ "${root}/DEBIAN/md5sums" sums)
  string(REGEX REPLACE "  [^\n]*/(usr/lib/debug/)" "  \\1" sums "${sums}")
  file(WRITE "${root}/DEBIAN/md5sums" "${sums}")
  execute_process(COMMAND ${LZEL_DPKG_DEB} -f "${ddeb}" Package
    OUTPUT_VARIABLE package OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "-dbgsym$" "" library "${package}")
  file(MAKE_DIRECTORY "${root}/usr/share/doc")
  file(CREATE_LINK "${library}" "${root}/usr/share/doc/${package}" SYMBOLIC)
  execute_process(COMMAND ${LZEL_DPKG_DEB} --root-owner-group -b "${root}" "${ddeb}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE "${root}")
endforeach()
