#include "cli/settings_source.h"

#include <cerrno>
#include <cstring>

#include "settings/settings_reader.h"

using SASM::FileImage;
using SASM::SimpleString;
using SMImplementation::SettingsReader;

ReadResult ReadImage(const SimpleString& path, FileImage* image,
                     FileProblem* problem) {
  errno = 0;
  if (SASM::ReadFileImage(path, image)) return ReadResult::kDone;
  problem->text = errno ? std::strerror(errno) : "not a settings file";
  return errno == ENOENT || errno == ENOTDIR ? ReadResult::kMissing
                                             : ReadResult::kFailed;
}

SettingsOnDisk ReadSettings(const SimpleString& path) {
  SettingsOnDisk settings;
  FileImage image;
  const ReadResult result = ReadImage(path, &image, &settings.problem);
  settings.is_missing = result == ReadResult::kMissing;
  if (settings.is_missing) settings.problem = {};
  if (result != ReadResult::kDone) return settings;
  SettingsReader reader(image.bytes.get(), image.size);
  reader.KeepQuiet();
  SimpleString* name = nullptr;
  settings.dictionary.reset(reader.GetNewSettingsData(&name));
  delete name;
  const SettingsReader::Fault fault = reader.TakeFault();
  if (fault.what) settings.problem = {fault.what, fault.offset};
  return settings;
}
