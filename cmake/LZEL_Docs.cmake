# SPDX-License-Identifier: Apache-2.0
# The API reference (target docs): Doxygen reads the public headers' comments
# through docs/comment-filter.py and writes HTML to docs/html/index.html of the
# build folder. It needs Doxygen and Python 3 (apt-get install doxygen
# python3); without them target docs says so and fails.
# LZEL_DOCS_WARN_AS_ERROR (default ON) makes any Doxygen warning fail the
# target; an undocumented public class, member or enumerator is a warning.

option(LZEL_DOCS_WARN_AS_ERROR "Fail the docs target on any Doxygen warning" ON)

find_package(Doxygen QUIET)
find_package(Python3 QUIET COMPONENTS Interpreter)
if(NOT DOXYGEN_FOUND OR NOT Python3_Interpreter_FOUND)
  message(STATUS "Doxygen or Python 3 not found: target docs only says what to install")
  add_custom_target(docs
    COMMAND ${CMAKE_COMMAND} -E echo
      "The API reference needs Doxygen and Python 3: apt-get install doxygen python3, then configure again."
    COMMAND ${CMAKE_COMMAND} -E false
    VERBATIM)
  return()
endif()

set(LZEL_DOCS_DIR ${PROJECT_BINARY_DIR}/docs)
if(LZEL_DOCS_WARN_AS_ERROR)
  set(LZEL_DOCS_WARN_AS_ERROR FAIL_ON_WARNINGS)
else()
  set(LZEL_DOCS_WARN_AS_ERROR NO)
endif()
# The public headers only (cmake/LZEL_PublicHeaders.cmake), one per line.
lzel_public_headers(${PROJECT_SOURCE_DIR} LZEL_DOCS_HEADERS)
list(TRANSFORM LZEL_DOCS_HEADERS PREPEND "${PROJECT_SOURCE_DIR}/LZEL_Core/")
list(JOIN LZEL_DOCS_HEADERS " \\\n                         " LZEL_DOCS_HEADERS)
configure_file(docs/Doxyfile.in ${LZEL_DOCS_DIR}/Doxyfile @ONLY)
add_custom_target(docs
  COMMAND Doxygen::doxygen ${LZEL_DOCS_DIR}/Doxyfile
  WORKING_DIRECTORY ${LZEL_DOCS_DIR}
  COMMENT "API reference: ${LZEL_DOCS_DIR}/html/index.html"
  VERBATIM)
