#include "tests/faults/operations.h"

#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "cli/command_line.h"
#include "cli/json.h"
#include "model/storage_setting.h"
#include "platform/drm_license_manager.h"

namespace {

bool DeleteAll(StoreTest& panel) {
  bool done = panel.manager_->RemoveAllSettingsAndOrLocalStorage(true, true);
  done = panel.manager_->RemoveAssetCache() && done;
  return SASM::DRMLicenseManager(&panel.files_).Reset() && done;
}

// A file's clock may be ahead of that of the process.
bool DeleteByAge(StoreTest& panel) {
  const bool done =
      panel.manager_->RemoveAllSettingsAndOrLocalStorageForTimeRange(
          true, true, -9UL, 1UL << 40);
  return panel.manager_->GetDomains() && done;  // has the defaults loaded
}

// The command with these words.
Operation ByCommand(const char* line, const std::string& may_change) {
  const auto run = [line](StoreTest&) {
    std::istringstream stream(line);
    using Word = std::istream_iterator<std::string>;
    std::vector<std::string> words = {kProgramName};
    words.insert(words.end(), Word(stream), {});
    std::vector<char*> arguments;
    arguments.reserve(words.size());
    for (std::string& word : words) arguments.push_back(word.data());
    stdout = stderr;
    PrepareJson();
    CommandLine parsed;
    if (!ParseCommandLine(arguments, &parsed)) std::abort();
    const ExitStatus status = parsed.command->run(parsed);
    if (status == kUsageError) std::abort();
    return status == kSuccess;
  };
  return {line, kCommand, run, may_change, kReports | kInSteps};
}

}  // namespace

std::vector<Operation> Operations() {
  const std::string master = TemporaryHome::MasterFile();
  const std::string settings = TemporaryHome::kSettings;
  const std::string storage = TemporaryHome::StorageOf("");
  const std::string everything = settings + "/|" + storage + "|" +
                                 TemporaryHome::kAssetCache + "|" +
                                 TemporaryHome::kLicences;
  return {
      {"first start", kNothing, StartPanel,
       ".orbelline/Corvane_Player/tessary.example/"},
      {"start", kFiles, StartPanel, master},
      {"change a setting", kPanel,
       [](StoreTest& panel) { return panel.SetNumber("klimit", 1024, kA); },
       TemporaryHome::SettingsFileOf(kA), kReports},
      {"add a site", kPanel,
       [](StoreTest& panel) {
         return panel.manager_->AddDomainWithDefaultSettings(kNew);
       },
       master + "|" + settings + "/#c.example/", kReports | kListsWhatIsThere},
      {"remove a site", kPanel,
       [](StoreTest& panel) {
         return panel.manager_->RemoveDomainInformation(kA, true, true);
       },
       master + "|" + settings + "/#a.example/|" + storage + "a.example/",
       kReports | kListsWhatIsThere},
      {"block storage for all sites", kPanel,
       [](StoreTest&) {
         StorageSetting limit("defaultklimit", "___MASTER_DOMAIN");
         return limit.setPermissionState(kPermissionStateAlwaysDeny).commit();
       },
       master + "|" + settings + "/#[ab].example/settings.sol|" + storage +
           "[ab].example/",
       kForgetsAtOnce},
      {"delete by age", kPanel, DeleteByAge, settings + "/|" + storage,
       kRemovesSettings},
      {"delete all", kPanel, DeleteAll, everything, kForgetsAtOnce},
      ByCommand("set --all-sites camera=block", settings),
      ByCommand("set --add storage=block a.example c.example", everything),
      ByCommand("remove a.example b.example", everything),
      ByCommand("trust /t", master),
      ByCommand("untrust /old", master),
      ByCommand("import --replace --delete-data document", everything),
      ByCommand("doctor --relist", settings),
      ByCommand("clear storage settings cache licences", everything),
      ByCommand("clear --keep=a.example storage settings", everything),
  };
}

bool StartPanel(StoreTest& panel) {
  panel.Start();
  SettingBase::mSettingsManager = &*panel.manager_;
  return true;
}
