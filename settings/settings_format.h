// The figures of the settings image, shared by its reader and its writer.
//
// An image is a record header, then the body: magic, version, a reserved U32
// in version 4, the dictionary name, a reserved U32, and the entries. All
// numbers are big-endian. A text (PString) is a U16 byte count and the bytes.
#pragma once

namespace SMImplementation {

inline constexpr unsigned int kRecordType = 2;
// The header word: record type above, short length in the low six bits.
inline constexpr unsigned int kShortLengthBits = 6;
inline constexpr unsigned int kShortLengthMask = 0x3F;
// A short length of this value says that a U32 with the length follows.
inline constexpr unsigned int kLongLengthFollows = 63;
inline constexpr unsigned int kMagic = 0x5443534F;
inline constexpr unsigned int kOldestVersion = 2;
inline constexpr unsigned int kNewestVersion = 4;
inline constexpr unsigned int kLongestText = 65535;
inline constexpr unsigned int kLongestBody = 4294967295U;
inline constexpr unsigned char kEndOfArray = 9;
inline constexpr unsigned char kEntryTerminator = 0;

}  // namespace SMImplementation
