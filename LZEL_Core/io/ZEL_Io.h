// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Io.h
// -----------------------------------------------------------------------------
//
// Files, typed byte streams and the file formats on them in one include.

#ifndef LZEL_CORE_IO_ZEL_IO_H_
#define LZEL_CORE_IO_ZEL_IO_H_

#include <LZEL_Core/io/CZEL_Buffer.h>
#include <LZEL_Core/io/CZEL_File.h>
#include <LZEL_Core/io/CZEL_FileBuffer.h>
#include <LZEL_Core/io/CZEL_MemoryBuffer.h>
#include <LZEL_Core/io/ZEL_StreamForms.h>

#include <LZEL_Core/io/CZEL_CsvFile.h>
#include <LZEL_Core/io/CZEL_WinBitmapData.h>

#endif  // LZEL_CORE_IO_ZEL_IO_H_
