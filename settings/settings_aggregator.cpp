#include "settings/settings_aggregator.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <new>

#include "settings/big_endian.h"
#include "settings/settings_format.h"

namespace SMImplementation {
namespace {

constexpr unsigned long kSmallestCapacity = 1024;

template <typename Number>
void AppendBigEndian(SettingsAggregator* aggregator, Number number) {
  unsigned char bytes[sizeof(Number)];
  StoreBigEndian(number, bytes);
  aggregator->AppendData(bytes, sizeof bytes);
}

}  // namespace

SettingsAggregator::SettingsAggregator(unsigned long initial_size)
    : capacity_(std::max(initial_size, kSmallestCapacity)) {
  buffer_ = new (std::nothrow) unsigned char[capacity_];
  if (!buffer_) capacity_ = 0;
}

SettingsAggregator::~SettingsAggregator() { delete[] buffer_; }

void SettingsAggregator::AppendData(const unsigned char* data,
                                    unsigned long count) {
  while (count >= capacity_ - size_) {
    if (!Grow()) {
      failed_ = true;
      return;
    }
  }
  std::memcpy(buffer_ + size_, data, count);
  size_ += count;
}

bool SettingsAggregator::Grow() {
  const std::uint64_t grown_capacity =
      capacity_ ? capacity_ * 2 : kSmallestCapacity;
  auto* grown = new (std::nothrow) unsigned char[grown_capacity];
  if (!grown) return false;
  if (size_) std::memcpy(grown, buffer_, size_);
  delete[] buffer_;
  buffer_ = grown;
  capacity_ = grown_capacity;
  return true;
}

void SettingsAggregator::WriteU8(unsigned char value) { AppendData(&value, 1); }

void SettingsAggregator::WriteU16(unsigned short value) {
  AppendBigEndian(this, value);
}

void SettingsAggregator::WriteU32(unsigned int value) {
  AppendBigEndian(this, value);
}

void SettingsAggregator::WriteDouble(double value) {
  AppendBigEndian(this, std::bit_cast<std::uint64_t>(value));
}

void SettingsAggregator::WriteSimpleStringAsPString(
    const SASM::SimpleString& text) {
  if (!text.HasText()) failed_ = true;
  const char* bytes = text.HasText() ? text.c_str() : "";
  const std::size_t size = strnlen(bytes, kLongestText);
  WriteU16(static_cast<unsigned short>(size));
  AppendData(static_cast<const unsigned char*>(static_cast<const void*>(bytes)),
             size);
}

void SettingsAggregator::WriteSettingsDataType(SASM::_SettingsDataType type) {
  WriteU8(static_cast<unsigned char>(type));
}

unsigned long SettingsAggregator::GetData(unsigned long count,
                                          unsigned char* dest) const {
  count = std::min(count, capacity_);
  if (count) std::memcpy(dest, buffer_, count);
  return count;
}

}  // namespace SMImplementation
