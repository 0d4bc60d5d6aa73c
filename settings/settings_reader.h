// Reads settings images.
#pragma once

#include <cstdint>
#include <utility>

#include "settings/settings_dictionary.h"

namespace SMImplementation {

// Parses one complete settings image in memory. The image is borrowed and must
// stay unchanged while the reader is used. Its bytes are hostile: any bytes
// give a dictionary or null, and at most lines on standard error that begin
// "SMSettingsReader: ".
class SettingsReader {
 public:
  SettingsReader(const unsigned char* data, unsigned long size);

  // Prints nothing from here on, for callers that report the faults
  // themselves.
  void KeepQuiet() { is_quiet_ = true; }

  // Parses the image from its start. Returns a new dictionary, owned by the
  // caller, or null when the image is rejected. `*name` becomes a new string
  // with the dictionary name, owned by the caller, as soon as the name has been
  // read, whatever follows; if it is not read, `*name` is unchanged.
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
  // byte. If the image ends before, prints a message and returns the empty
  // text, having taken the count only. The caller owns the string.
  [[nodiscard]] SASM::SimpleString* ReadAndCopyPStringAsSimpleString();

  // The result of reading an entry: one to store, one of an unknown type to
  // skip, or a reason to reject the whole image.
  enum class Entry { kRead, kDropped, kRejected };

  // The steps of GetNewSettingsData, for callers that read an image entry by
  // entry. ReadHeaders starts at the first byte of the image and stops before
  // the first entry; false when it rejects the image. ReadEntry may be called
  // until AtEnd() or a rejection, and fills `item` unless it is kRejected; a
  // dropped item has a name, its unknown type and no value.
  [[nodiscard]] bool ReadHeaders(SASM::SimpleString** name);
  [[nodiscard]] Entry ReadEntry(SASM::SettingDataItem* item);
  [[nodiscard]] bool AtEnd() const { return position_ == size_; }
  // Bytes taken so far.
  [[nodiscard]] std::uint64_t Position() const { return position_; }

  // A fault in the image: a constant text, null for none, and the offset in
  // bytes at which it was found.
  struct Fault {
    const char* what = nullptr;
    std::uint64_t offset = 0;
  };
  // The first fault since the last call; later ones are often its consequence.
  [[nodiscard]] Fault TakeFault() { return std::exchange(fault_, {}); }

 private:
  // `count` bytes; null after reporting `message` when fewer are left.
  const unsigned char* Take(std::uint64_t count, const char* message);
  // False, having remembered the fault without printing it.
  bool Reject(const char* what);
  // Remembers the fault and prints it.
  void Report(const char* message);
  void Remember(const char* what);
  SASM::SimpleString ReadText();
  // Null when the array is not closed by its marker.
  [[nodiscard]] SASM::SDIVector* ReadArray();
  // A value of type 0, 1 or 2.
  [[nodiscard]] SASM::SettingDataItem ReadScalar(unsigned char type,
                                                 SASM::SimpleString&& name);

  const unsigned char* data_;
  std::uint64_t size_;
  std::uint64_t position_ = 0;
  Fault fault_;
  bool is_quiet_ = false;
};

}  // namespace SMImplementation
