// The grammar of a settings image, for its reader and its writer.
//
//   image   = header body
//   header  = U16                 record type << 6 | short length
//             [U32]               body length, if the short length is 63
//   body    = U32                 magic number
//             U16                 version: written 4, read 2 to 4
//             [U32]               reserved: in version 4 only
//             text                name of the dictionary
//             U32                 reserved
//             {entry}             up to the end of the image
//   entry   = text                key
//             value
//             U8                  0
//   value   = U8 = 0  double
//           | U8 = 1  U8          boolean: written 0 or 1, true unless 0
//           | U8 = 2  text
//           | U8 = 3  {element} end
//           | U8                  any other type: no value, dropped when read
//   element = text                name, never empty
//             value               of type 0 to 2; any other type as above
//   end     = U16 = 0             an empty name
//             U8 = 9
//   text    = U16                 count of bytes
//             bytes               no terminating zero
//   double  = 8 bytes             IEEE 754 binary64
//
// Numbers are big-endian. The body length counts the bytes after the header;
// more bytes may follow than it says, and are read as entries. Reserved fields
// are written 0 and skipped. The types 0 to 3 are those of _SettingsDataType.
#pragma once

namespace SMImplementation {

inline constexpr unsigned int kRecordType = 2;
inline constexpr unsigned int kShortLengthBits = 6;
inline constexpr unsigned int kShortLengthMask = 0x3F;
// The short length that announces a U32 with the body length.
inline constexpr unsigned int kLongLengthFollows = 63;
// The header in bytes, without and with that U32.
inline constexpr unsigned int kShortHeaderSize = 2;
inline constexpr unsigned int kLongHeaderSize = 6;
inline constexpr unsigned int kLongestBody = 0xFFFFFFFF;

inline constexpr unsigned int kMagic = 0x5443534F;  // "TCSO"
inline constexpr unsigned int kOldestVersion = 2;
inline constexpr unsigned int kNewestVersion = 4;

inline constexpr unsigned int kLongestText = 0xFFFF;
inline constexpr unsigned char kEntryTerminator = 0;
inline constexpr unsigned char kEndOfArray = 9;

}  // namespace SMImplementation
