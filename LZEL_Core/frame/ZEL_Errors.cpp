// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/frame/ZEL_Errors.h>

namespace ZEL {

char const* ErrorName(u32 code) {
  // One row per code, in the order of the header; spelled as the constants.
  struct Row {
    u32 code;
    char const* name;
  };
  static constexpr Row kNames[] = {
      {ZEL_ERR_NONE, "ZEL_ERR_NONE"},
      {ZEL_ERR_OPEN_FAILED, "ZEL_ERR_OPEN_FAILED"},
      {ZEL_ERR_INVALID_ARGUMENT, "ZEL_ERR_INVALID_ARGUMENT"},
      {ZEL_ERR_OUT_OF_RANGE, "ZEL_ERR_OUT_OF_RANGE"},
      {ZEL_ERR_BAD_POSITION, "ZEL_ERR_BAD_POSITION"},
      {ZEL_ERR_NOT_SUPPORTED, "ZEL_ERR_NOT_SUPPORTED"},
      {ZEL_ERR_EMPTY_INPUT, "ZEL_ERR_EMPTY_INPUT"},
      {ZEL_ERR_NOT_READY, "ZEL_ERR_NOT_READY"},
      {ZEL_ERR_BAD_FORMAT, "ZEL_ERR_BAD_FORMAT"},
      {ZEL_ERR_FILE_NOT_OPEN, "ZEL_ERR_FILE_NOT_OPEN"},
      {ZEL_ERR_WRITE_DENIED, "ZEL_ERR_WRITE_DENIED"},
      {ZEL_ERR_READ_DENIED, "ZEL_ERR_READ_DENIED"},
      {ZEL_ERR_IO, "ZEL_ERR_IO"},
      {ZEL_ERR_FAILED, "ZEL_ERR_FAILED"},
  };
  for (Row const& row : kNames) {
    if (row.code == code) return row.name;
  }
  return "unknown";
}

}  // namespace ZEL
