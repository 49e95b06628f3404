# SPDX-License-Identifier: Apache-2.0
# The public headers are those the umbrella header LZEL_Core/LZEL_Core.h and
# the opt-in standard-library bridge LZEL_Core/ZEL_Std.h
# reach through their #include <LZEL_Core/...> lines, directly or not. A
# header that only the library's own sources include (the CRC engine's fast
# paths, the calendar's shared clock and format helpers) is internal: it is
# neither installed nor documented, since what it declares isn't exported.

# lzel_public_headers(<source dir> <out var>): the public headers, as paths
# relative to <source dir>/LZEL_Core, sorted.
function(lzel_public_headers source_dir out_var)
  cmake_policy(PUSH)
  cmake_policy(SET CMP0057 NEW)  # if(IN_LIST), also when run by the install script
  set(root ${source_dir}/LZEL_Core)
  set(seen LZEL_Core.h ZEL_Std.h)
  set(queue LZEL_Core.h ZEL_Std.h)
  while(queue)
    list(POP_FRONT queue header)
    file(STRINGS ${root}/${header} includes REGEX "^[ \t]*#[ \t]*include[ \t]*<LZEL_Core/")
    foreach(line IN LISTS includes)
      string(REGEX REPLACE ".*<LZEL_Core/([^>]+)>.*" "\\1" included "${line}")
      if(NOT included IN_LIST seen AND EXISTS ${root}/${included})
        list(APPEND seen ${included})
        list(APPEND queue ${included})
      endif()
    endforeach()
  endwhile()
  list(SORT seen)
  set(${out_var} ${seen} PARENT_SCOPE)
  cmake_policy(POP)
endfunction()

# lzel_install_public_headers(<source dir> <include dir>): copies the public
# headers under <include dir>/LZEL_Core, keeping their folders. Run at install
# time (install(CODE)), so that it always sees the headers as they are.
function(lzel_install_public_headers source_dir include_dir)
  lzel_public_headers(${source_dir} headers)
  foreach(header IN LISTS headers)
    get_filename_component(folder ${header} DIRECTORY)
    file(INSTALL ${source_dir}/LZEL_Core/${header} DESTINATION ${include_dir}/LZEL_Core/${folder})
  endforeach()
endfunction()
