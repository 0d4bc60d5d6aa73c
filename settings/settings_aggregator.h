// The output buffer of the settings writer.
#pragma once

#include <cstdint>

#include "settings/setting_data_item.h"

namespace SMImplementation {

// A growable buffer with big-endian write operations. An append for which the
// buffer cannot grow is lost; Failed() is then true.
class SettingsAggregator {
 public:
  // `initial_size` in bytes; the capacity is at least 1024.
  explicit SettingsAggregator(unsigned long initial_size);
  ~SettingsAggregator();
  SettingsAggregator(const SettingsAggregator&) = delete;
  SettingsAggregator& operator=(const SettingsAggregator&) = delete;

  // Doubles the capacity until the bytes leave at least one spare byte.
  void AppendData(const void* data, unsigned long count);

  void WriteU8(unsigned char value) {
    if (unsigned char* room = Extend(sizeof value)) *room = value;
  }
  void WriteU16(unsigned short value);
  void WriteU32(unsigned int value);
  void WriteDouble(double value);
  // A text longer than 65535 bytes is cut there.
  void WriteSimpleStringAsPString(const SASM::SimpleString& text);
  void WriteSettingsDataType(SASM::_SettingsDataType type) {
    WriteU8(static_cast<unsigned char>(type));
  }

  // Copies the first `count` bytes of the buffer, at most its capacity, to
  // `dest`. Returns the number copied.
  unsigned long GetData(unsigned long count, unsigned char* dest) const;

  // Bytes appended so far.
  [[nodiscard]] std::uint64_t Size() const { return size_; }
  [[nodiscard]] bool Failed() const { return failed_; }

 private:
  // Appends `count` bytes for the caller to fill; null when they are lost.
  unsigned char* Extend(unsigned long count) {
    if (count >= capacity_ - size_ && !MakeRoom(count)) return nullptr;
    unsigned char* room = buffer_ + size_;
    size_ += count;
    return room;
  }
  bool MakeRoom(unsigned long count);
  [[nodiscard]] bool SetCapacity(std::uint64_t capacity);
  template <typename Number>
  void AppendBigEndian(Number number);

  unsigned char* buffer_ = nullptr;
  std::uint64_t capacity_ = 0;
  std::uint64_t size_ = 0;
  bool failed_ = false;
};

}  // namespace SMImplementation
