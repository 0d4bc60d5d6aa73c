// Writes settings images.
#pragma once

#include "settings/settings_aggregator.h"

namespace SASM {
// The writer asks the manager for keys and values, and the manager asks the
// writer for an image: the one knot between the two folders.
class SettingsManager;
}  // namespace SASM

namespace SMImplementation {

// Builds the settings image of one domain. Made for one domain, asked once,
// dropped: what it has appended stays.
class SettingsWriter {
 public:
  // The manager is borrowed and outlives the writer.
  SettingsWriter(SASM::SettingsManager* manager,
                 const SASM::SimpleString& domain);

  // The image of the domain's dictionary under the given dictionary name:
  // `*data` is a new array of `length` bytes, freed by the caller with
  // delete[]. Null and 0 when the body would be longer than its length field
  // can say or memory is short.
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
