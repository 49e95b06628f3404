# SPDX-License-Identifier: Apache-2.0
# Cross build for 64-bit Windows with mingw-w64 (the POSIX-thread variant of
# the compilers, for std::thread), e.g. Debian's g++-mingw-w64-x86-64-posix:
#   cmake --preset windows
# Programs built here run under Wine: the emulator makes ctest and the test
# discovery run them through it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(LZEL_MINGW_TRIPLET x86_64-w64-mingw32)

set(CMAKE_C_COMPILER ${LZEL_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${LZEL_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${LZEL_MINGW_TRIPLET}-windres)

# Libraries and headers come from the mingw-w64 tree alone; packages also
# from CMAKE_PREFIX_PATH, so that an application finds an installed
# LZEL_Core with find_package.
list(APPEND CMAKE_FIND_ROOT_PATH /usr/${LZEL_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

# Programs run under Wine, through the emulator: a script written into the
# build folder, with a private Wine prefix there (unless WINEPREFIX is set)
# and no debug noise. WINEPATH finds the DLLs of the build folder and the
# compiler's runtime DLLs (libstdc++, libgcc, winpthread): the library and
# the programs share one C++ runtime, and so one std::cout.
find_program(LZEL_WINE NAMES wine wine64 PATHS /usr/lib/wine)
if(LZEL_WINE)
  set(wine_path "${CMAKE_BINARY_DIR}")
  foreach(runtime_dll IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime_dll}
      OUTPUT_VARIABLE runtime_path OUTPUT_STRIP_TRAILING_WHITESPACE)
    get_filename_component(runtime_dir "${runtime_path}" DIRECTORY)
    get_filename_component(runtime_dir "${runtime_dir}" REALPATH)
    list(APPEND wine_path "${runtime_dir}")
  endforeach()
  list(REMOVE_DUPLICATES wine_path)
  list(TRANSFORM wine_path PREPEND "Z:")
  string(REPLACE "/" "\\" wine_path "${wine_path}")
  set(LZEL_WINE_RUN ${CMAKE_BINARY_DIR}/wine-run.sh)
  file(WRITE ${LZEL_WINE_RUN} "#!/bin/sh\n"
    "export WINEDEBUG=-all\n"
    "export WINEPREFIX=\"\${WINEPREFIX:-${CMAKE_BINARY_DIR}/wine-prefix}\"\n"
    "export WINEPATH='${wine_path}'\"\${WINEPATH:+;\$WINEPATH}\"\n"
    "exec ${LZEL_WINE} \"\$@\"\n")
  file(CHMOD ${LZEL_WINE_RUN} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${LZEL_WINE_RUN})
endif()
