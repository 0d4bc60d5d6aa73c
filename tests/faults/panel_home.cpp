#include "tests/faults/panel_home.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "model/setting_base.h"
#include "store/default_settings.h"

namespace fs = std::filesystem;
using SASM::SettingsManager;

namespace {

const SASM::SimpleString& Master() { return SettingsManager::MasterDomain(); }

void Write(const fs::path& root, const Snapshot& snapshot) {
  for (const auto& [name, content] : snapshot) {
    const fs::path path = root / name;
    if (name.ends_with('/')) {
      fs::create_directories(path);
    } else {
      std::ofstream(path, std::ios::binary) << content;
    }
  }
}

}  // namespace

PanelHome::PanelHome() {
  const std::string base = ".orbelline/Corvane_Player/";
  home_.Write(".profile", "profile");
  home_.Write("settings.sol", "another program's");
  home_.Write(".orbelline/other/data", "data");
  home_.Write(base + "notes", "notes");
  home_.Write(".tessary/Corvane_Player/notes", "notes");
  around_ = Take();
  const std::string stored =
      std::string(TemporaryHome::kSharedObjects) + "/X7/";
  for (const char* site : {"a.example", "b.example"}) {
    home_.Write(stored + site + "/one.sol", "one");
    home_.Write(stored + site + "/deep/er/two.sol", "two");
  }
  home_.Write(std::string(TemporaryHome::kAssetCache) + "/d/asset", "asset");
  home_.Write(std::string(TemporaryHome::kLicences) + "/licence", "licence");
  Panel panel;
  panel.Start();
  const double limit = 10;
  SASM::SettingDataItem item("defaultklimit", SASM::kSettingsDataTypeDouble,
                             &limit);
  panel.manager->SetSetting(&item, "defaultklimit", Master());
  panel.manager->AddDomainWithDefaultSettings("a.example");
  panel.manager->AddDomainWithDefaultSettings("b.example");
  whole_ = Take();
}

void PanelHome::Reset(bool with_panel_files) const {
  const Snapshot& wanted = with_panel_files ? whole_ : around_;
  if (Take() == wanted) return;
  for (const auto& entry : fs::directory_iterator(home_.Path())) {
    fs::remove_all(entry.path());
  }
  Write(home_.Path(), wanted);
}

Snapshot PanelHome::Take() const {
  Snapshot snapshot;
  for (const auto& entry : fs::recursive_directory_iterator(home_.Path())) {
    const std::string name = entry.path().lexically_relative(home_.Path());
    if (entry.is_directory()) {
      snapshot[name + "/"] = "";
    } else {
      std::ifstream file(entry.path(), std::ios::binary);
      snapshot[name] = {std::istreambuf_iterator<char>(file), {}};
    }
  }
  return snapshot;
}

void Panel::Start() {
  manager.emplace(&files);
  SettingBase::mSettingsManager = &*manager;
}

Panel::~Panel() { SettingBase::mSettingsManager = nullptr; }

std::vector<std::string> Panel::Sites() {
  std::vector<std::string> sites;
  const SASM::SDIVector* domains = manager->GetDomains();
  for (unsigned int i = 0; domains && i < domains->count; ++i) {
    sites.emplace_back(domains->At(i)->name.c_str());
  }
  return sites;
}

std::optional<double> Panel::Number(const char* key, const char* domain) {
  const auto* item = manager->GetSetting(key, domain);
  if (!item || item->type != SASM::kSettingsDataTypeDouble) return {};
  return item->value.number;
}

std::string WhyUnusable() {
  constexpr double kLimit = 1024;
  for (const bool is_first : {true, false}) {
    Panel panel;
    panel.Start();
    for (const auto& row : SASM::DefaultMasterSettings()) {
      if (!panel.manager->HasSetting(row.key, Master())) return row.key;
    }
    if (!panel.manager->GetDomains()) return "no list of sites";
    if (!is_first) {
      const bool is_kept = panel.Number("klimit", "later.example") == kLimit;
      return is_kept ? "" : "a change is not kept";
    }
    if (!panel.manager->AddDomainWithDefaultSettings("later.example")) {
      return "a site cannot be added";
    }
    SASM::SettingDataItem item("klimit", SASM::kSettingsDataTypeDouble,
                               &kLimit);
    if (!panel.manager->SetSetting(&item, "klimit", "later.example")) {
      return "a setting cannot be changed";
    }
  }
  return {};
}
