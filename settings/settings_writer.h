// Writes settings images.
#pragma once

#include "settings/settings_aggregator.h"

namespace SASM {
// The writer asks the manager for keys and values, and the manager asks the
// writer for an image: the one knot between the two folders.
class SettingsManager;
}  // namespace SASM

namespace SMImplementation {

// Builds the settings image of one domain. Make one writer per image: it keeps
// everything it has appended.
class SettingsWriter {
 public:
  // The manager is borrowed and outlives the writer.
  SettingsWriter(SASM::SettingsManager* manager,
                 const SASM::SimpleString& domain);

  // Builds the image of the domain's dictionary under the given dictionary
  // name: `*data` becomes a new array of `length` bytes, which the caller frees
  // with delete[]. Null and 0 when the body is longer than its length field can
  // hold, or when the buffer or the array cannot be allocated.
  void GetNewSettingsWithName(const SASM::SimpleString& name,
                              unsigned char** data, unsigned long& length);

  // Append the two halves of the body.
  void WriteHeaderInfo(const SASM::SimpleString& name);
  void WriteSettingsDictionary();

 private:
  void WriteItem(const SASM::SettingDataItem& item);
  void WriteScalar(const SASM::SettingDataItem& item);
  void WriteArray(const SASM::SDIVector& array);

  SASM::SettingsManager* manager_;
  SASM::SimpleString domain_;
  SettingsAggregator aggregator_{1024};
  bool failed_ = false;
};

}  // namespace SMImplementation
