# SPDX-License-Identifier: Apache-2.0
# Coverage of the test suite (option LZEL_COVERAGE, g++ and gcov).
#
# Everything is compiled with --coverage and without optimisation, so that
# each line and branch of the library maps onto the counters. The `coverage`
# target runs the suite and reports line and branch coverage of LZEL_Core/
# with gcovr: a summary on the console, an HTML report in coverage/index.html
# of the build folder. The counters are cleared afterwards, so every run of the
# target measures one run of the suite.

if(NOT LZEL_COVERAGE)
  return()
endif()
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  message(WARNING "LZEL_COVERAGE expects g++: gcov reads g++'s counters")
endif()
add_compile_options(--coverage -O0)
add_link_options(--coverage)

find_program(LZEL_GCOVR gcovr)
if(NOT LZEL_GCOVR)
  message(STATUS "gcovr not found (apt-get install gcovr): no coverage target")
  return()
endif()
set(LZEL_COVERAGE_DIR ${PROJECT_BINARY_DIR}/coverage)
add_custom_target(coverage
  COMMAND ${CMAKE_COMMAND} -E make_directory ${LZEL_COVERAGE_DIR}
  COMMAND ${CMAKE_CTEST_COMMAND} --test-dir ${PROJECT_BINARY_DIR} -j2 --output-on-failure
  COMMAND ${LZEL_GCOVR} --root ${PROJECT_SOURCE_DIR}
          --filter ${PROJECT_SOURCE_DIR}/LZEL_Core/
          --exclude-unreachable-branches --exclude-throw-branches
          --print-summary --txt ${LZEL_COVERAGE_DIR}/summary.txt
          --html-details ${LZEL_COVERAGE_DIR}/index.html
          --delete ${PROJECT_BINARY_DIR}
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
  COMMENT "Running the tests and measuring line and branch coverage of LZEL_Core/"
  VERBATIM)
