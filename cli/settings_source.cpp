#include "cli/settings_source.h"

#include <cerrno>
#include <cstring>

#include "cli/problems.h"
#include "settings/settings_reader.h"

using SASM::FileImage;
using SASM::SimpleString;
using SMImplementation::SettingsReader;

Reading ReadImage(const SimpleString& path, FileImage* image) {
  errno = 0;
  if (SASM::ReadFileImage(path, image)) return Reading::kDone;
  if (errno == ENOENT || errno == ENOTDIR) return Reading::kMissing;
  ReportProblem(path.HasText() ? path.c_str() : "",
                errno ? std::strerror(errno) : "not a settings file");
  return Reading::kFailed;
}

SettingsOnDisk ReadSettings(const SimpleString& path) {
  SettingsOnDisk settings;
  FileImage image;
  const Reading reading = ReadImage(path, &image);
  settings.is_missing = reading == Reading::kMissing;
  if (reading != Reading::kDone) return settings;
  SettingsReader reader(image.bytes.get(), image.size);
  reader.KeepQuiet();
  SimpleString* name = nullptr;
  settings.dictionary.reset(reader.GetNewSettingsData(&name));
  delete name;
  const SettingsReader::Fault fault = reader.TakeFault();
  settings.is_sound = settings.dictionary && !fault.what;
  if (fault.what) {
    ReportDamage(path.c_str(), fault.what, fault.offset);
  } else if (!settings.dictionary) {
    ReportProblem(path.c_str(), std::strerror(ENOMEM));
  }
  return settings;
}
