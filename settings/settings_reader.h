// Reads settings images.
#pragma once

#include <cstdint>
#include <utility>

#include "settings/hash_map.h"

namespace SMImplementation {

// Parses one complete settings image held in memory. The image is borrowed
// and must stay unchanged while the reader is used. Its bytes are hostile:
// any bytes at all give a dictionary or null, and lines on standard error
// that begin "SMSettingsReader: ".
class SettingsReader {
 public:
  SettingsReader(const unsigned char* data, unsigned long size);

  // The lines on standard error, for callers that tell of the faults
  // themselves.
  void KeepQuiet() { is_quiet_ = true; }

  // Parses the image from its start. A new dictionary, owned by the caller;
  // null when the image is rejected or memory is short. `*name` becomes a new
  // string with the dictionary name, owned by the caller, as soon as it has
  // been read, whatever comes after; otherwise it stays as it was.
  [[nodiscard]] SASM::SettingsDictionary* GetNewSettingsData(
      SASM::SimpleString** name);

  // Reads the record header: the record type and the length of the body.
  void GetHeaderInfo(unsigned short* type, unsigned int* length);

  // Each takes one primitive. At the end of the image it prints its message,
  // stays where it is and returns 0.
  unsigned char ReadU8();
  unsigned short ReadU16();
  unsigned int ReadU32();
  double ReadDouble();

  // Takes a U16 count and that many bytes; the text is cut at its first zero
  // byte. When the bytes are not there prints its message and gives the empty
  // text, having taken the count. The caller owns the string; null when
  // memory is short.
  [[nodiscard]] SASM::SimpleString* ReadAndCopyPStringAsSimpleString();

  // What an entry turned out to be: one to store, one of an unknown type that
  // is passed over, or a reason to reject the whole image.
  enum class Entry { kRead, kDropped, kRejected };

  // The steps of GetNewSettingsData, for callers that walk an image entry by
  // entry. ReadHeaders starts at the image's first byte and stops in front of
  // the first entry; false when it rejects the image. ReadEntry may be called
  // until AtEnd() or a rejection, and fills `item` unless it is kRejected; a
  // dropped one has a name, its unknown type and no value.
  [[nodiscard]] bool ReadHeaders(SASM::SimpleString** name);
  [[nodiscard]] Entry ReadEntry(SASM::SettingDataItem* item);
  [[nodiscard]] bool AtEnd() const { return position_ == size_; }
  // Bytes taken so far.
  [[nodiscard]] std::uint64_t Position() const { return position_; }

  // True when it was memory that the reader was short of: a null dictionary
  // and a rejected entry then say nothing about the image.
  [[nodiscard]] bool WasShortOfMemory() const { return short_of_memory_; }

  // Something found wrong: a constant text, null when nothing was, and the
  // offset in bytes at which it was found.
  struct Fault {
    const char* what = nullptr;
    std::uint64_t offset = 0;
  };
  // The first since the last call of this: what comes after is often its
  // consequence.
  [[nodiscard]] Fault TakeFault() { return std::exchange(fault_, {}); }

 private:
  // `count` bytes, or null and a line that names the operation.
  const unsigned char* Take(std::uint64_t count, const char* message);
  bool Reject(const char* what);
  void Report(const char* message);
  // False, having noted that memory is short, unless `had` is true.
  [[nodiscard]] bool HadMemory(bool had);
  void Remember(const char* what);
  SASM::SimpleString ReadText();
  // Null when the array is not closed or memory is short.
  [[nodiscard]] SASM::SDIVector* ReadArray();
  // A value of type 0, 1 or 2.
  [[nodiscard]] SASM::SettingDataItem ReadScalar(unsigned char type,
                                                 SASM::SimpleString&& name);

  const unsigned char* data_;
  std::uint64_t size_;
  std::uint64_t position_ = 0;
  Fault fault_;
  bool short_of_memory_ = false;
  bool is_quiet_ = false;
};

}  // namespace SMImplementation
