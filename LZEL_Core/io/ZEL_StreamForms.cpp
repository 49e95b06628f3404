#include <LZEL_Core/io/ZEL_StreamForms.h>

using ZEL::u32;

CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_String const& text) {
  buffer << text.GetLength();
  buffer.AppendData(text.GetStringC(), text.GetLength());
  return buffer;
}

CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_String& text) {
  u32 uiSize = 0;
  buffer >> uiSize;
  text.SetLength(uiSize, ' ');
  buffer.RetrieveData(text.GetStringC(), uiSize);
  return buffer;
}
