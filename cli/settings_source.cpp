#include "cli/settings_source.h"

#include <cerrno>
#include <cstring>

#include "cli/error_messages.h"
#include "settings/settings_reader.h"

using SASM::FileImage;
using SASM::SimpleString;
using SMImplementation::SettingsReader;

ReadResult ReadImage(const SimpleString& path, FileImage* image) {
  errno = 0;
  if (SASM::ReadFileImage(path, image)) return ReadResult::kDone;
  if (errno == ENOENT || errno == ENOTDIR) return ReadResult::kMissing;
  PrintError(path.c_str(),
             errno ? std::strerror(errno) : "not a settings file");
  return ReadResult::kFailed;
}

SettingsOnDisk ReadSettings(const SimpleString& path) {
  SettingsOnDisk settings;
  FileImage image;
  const ReadResult result = ReadImage(path, &image);
  settings.is_missing = result == ReadResult::kMissing;
  if (result != ReadResult::kDone) return settings;
  SettingsReader reader(image.bytes.get(), image.size);
  reader.KeepQuiet();
  SimpleString* name = nullptr;
  settings.dictionary.reset(reader.GetNewSettingsData(&name));
  delete name;
  const SettingsReader::Fault fault = reader.TakeFault();
  settings.is_intact = !fault.what;
  if (fault.what) PrintDamage(path.c_str(), fault.what, fault.offset);
  return settings;
}
