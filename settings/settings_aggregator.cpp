#include "settings/settings_aggregator.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>

#include "settings/big_endian.h"
#include "settings/settings_format.h"

namespace SMImplementation {
namespace {

constexpr unsigned long kSmallestCapacity = 1024;

}  // namespace

SettingsAggregator::SettingsAggregator(unsigned long initial_size) {
  (void)SetCapacity(std::max(initial_size, kSmallestCapacity));  // else 0
}

SettingsAggregator::~SettingsAggregator() { std::free(buffer_); }

template <typename Number>
void SettingsAggregator::AppendBigEndian(Number number) {
  unsigned char* room = Extend(sizeof number);
  if (room) StoreBigEndian(number, room);
}

void SettingsAggregator::AppendData(const void* data, unsigned long count) {
  unsigned char* room = Extend(count);
  if (room) std::memcpy(room, data, count);
}

bool SettingsAggregator::MakeRoom(unsigned long count) {
  while (count >= capacity_ - size_) {
    if (!SetCapacity(capacity_ ? capacity_ * 2 : kSmallestCapacity)) {
      failed_ = true;
      return false;
    }
  }
  return true;
}

// realloc grows a large buffer in place; new pages would cost more than copying
// the bytes.
bool SettingsAggregator::SetCapacity(std::uint64_t capacity) {
  void* resized = std::realloc(buffer_, capacity);
  if (!resized) return false;
  buffer_ = static_cast<unsigned char*>(resized);
  capacity_ = capacity;
  return true;
}

void SettingsAggregator::WriteU16(unsigned short value) {
  AppendBigEndian(value);
}

void SettingsAggregator::WriteU32(unsigned int value) {
  AppendBigEndian(value);
}

void SettingsAggregator::WriteDouble(double value) {
  AppendBigEndian(std::bit_cast<std::uint64_t>(value));
}

void SettingsAggregator::WriteSimpleStringAsPString(
    const SASM::SimpleString& text) {
  const std::size_t size = strnlen(text.c_str(), kLongestText);
  WriteU16(static_cast<unsigned short>(size));
  AppendData(text.c_str(), size);
}

unsigned long SettingsAggregator::GetData(unsigned long count,
                                          unsigned char* dest) const {
  count = std::min(count, capacity_);
  if (count) std::memcpy(dest, buffer_, count);
  return count;
}

}  // namespace SMImplementation
