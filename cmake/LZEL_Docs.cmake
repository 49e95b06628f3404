# The API reference (target docs): Doxygen reads the headers' comments through
# docs/comment-filter.py and writes HTML to docs/html/index.html of the build
# folder. The target exists only when Doxygen and Python 3 are found
# (apt-get install doxygen python3). LZEL_DOCS_WARN_AS_ERROR (default ON)
# makes any Doxygen warning fail the target.

option(LZEL_DOCS_WARN_AS_ERROR "Fail the docs target on any Doxygen warning" ON)

find_package(Doxygen QUIET)
find_package(Python3 QUIET COMPONENTS Interpreter)
if(NOT DOXYGEN_FOUND OR NOT Python3_Interpreter_FOUND)
  message(STATUS "Doxygen or Python 3 not found: no docs target")
  return()
endif()

set(LZEL_DOCS_DIR ${PROJECT_BINARY_DIR}/docs)
if(LZEL_DOCS_WARN_AS_ERROR)
  set(LZEL_DOCS_WARN_AS_ERROR FAIL_ON_WARNINGS)
else()
  set(LZEL_DOCS_WARN_AS_ERROR NO)
endif()
configure_file(docs/Doxyfile.in ${LZEL_DOCS_DIR}/Doxyfile @ONLY)
add_custom_target(docs
  COMMAND Doxygen::doxygen ${LZEL_DOCS_DIR}/Doxyfile
  WORKING_DIRECTORY ${LZEL_DOCS_DIR}
  COMMENT "API reference: ${LZEL_DOCS_DIR}/html/index.html"
  VERBATIM)
