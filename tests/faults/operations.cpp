#include "tests/faults/operations.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "model/storage_setting.h"
#include "platform/drm_license_manager.h"

using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using Home = TemporaryHome;

namespace {

constexpr char kA[] = "a.example";
constexpr char kB[] = "b.example";
constexpr char kNew[] = "c.example";

bool Start(Panel& panel) {
  panel.Start();
  return true;
}

bool ChangeSetting(Panel& panel) { return panel.SetNumber("klimit", 1024, kA); }

bool AddSite(Panel& panel) {
  return panel.manager->AddDomainWithDefaultSettings(kNew);
}

bool RemoveSite(Panel& panel) {
  return panel.manager->RemoveDomainInformation(kA, true, true);
}

bool BlockStorageEverywhere(Panel&) {
  StorageSetting limit("defaultklimit", Panel::Master());
  return limit.setPermissionState(PermissionState::kPermissionStateAlwaysDeny)
      .commit();
}

bool DeleteAll(Panel& panel) {
  bool done = panel.manager->RemoveAllSettingsAndOrLocalStorage(true, true);
  done = panel.manager->RemoveAssetCache() && done;
  return SASM::DRMLicenseManager(&panel.files).Reset() && done;
}

void ExpectStarted(Panel& panel, const Outcome&) { panel.ExpectWhole(); }

// What could not be read before is as it was.
void ExpectChanged(Panel& panel, const Outcome& outcome) {
  const double limit = panel.Number("klimit", kA);
  EXPECT_TRUE(limit == 1024 || (limit == 10 && !outcome.result)) << limit;
}

void ExpectAdded(Panel& panel, const Outcome& outcome) {
  // A site is listed as soon as its own file is written.
  const auto sites = panel.Sites();
  const bool is_listed = std::ranges::count(sites, kNew) > 0;
  EXPECT_TRUE(is_listed || !outcome.result);
  EXPECT_TRUE(!is_listed || outcome.after.contains(Home::SettingsFileOf(kNew)));
}

void ExpectRemoved(Panel& panel, const Outcome& outcome) {
  const auto& after = outcome.after;
  const bool settings_went_first =
      after.contains(Home::StorageOf(kA) + "/one.sol") &&
      !after.contains(Home::SettingsFileOf(kA));
  if (outcome.result || settings_went_first) {
    EXPECT_THAT(panel.Sites(), Not(Contains(kA)));
  }
}

void ExpectBlocked(Panel& panel, const Outcome&) {
  EXPECT_THAT(panel.Sites(), ElementsAre(kA, kB));
  for (const char* site : {kA, kB}) {
    EXPECT_THAT(panel.Number("klimit", site), AnyOf(-1, 10));
  }
  EXPECT_EQ(panel.Number("defaultklimit", Panel::Master()), -1);
}

void ExpectDeleted(Panel& panel, const Outcome&) {
  EXPECT_THAT(panel.Sites(), IsEmpty());
  EXPECT_EQ(panel.Number("defaultklimit", Panel::Master()), 10);
}

const std::string kMaster = Home::MasterFile();
const std::string kSettings = Home::kSettings;

using On = Operation::On;
const Operation kOperations[] = {
    {"first start",
     On::kNothing,
     Start,
     ExpectStarted,
     {".orbelline/Corvane_Player/tessary.example/"},
     /*reports=*/false},
    {"start", On::kFiles, Start, ExpectStarted, {kMaster}, /*reports=*/false},
    {"change a setting",
     On::kPanel,
     ChangeSetting,
     ExpectChanged,
     {Home::SettingsFileOf(kA)}},
    {"add a site",
     On::kPanel,
     AddSite,
     ExpectAdded,
     {kMaster, kSettings + "/#c.example/"}},
    {"remove a site",
     On::kPanel,
     RemoveSite,
     ExpectRemoved,
     {kMaster, kSettings + "/#a.example/", Home::StorageOf(kA) + "/"}},
    {"block storage for all sites",
     On::kPanel,
     BlockStorageEverywhere,
     ExpectBlocked,
     {kMaster, Home::SettingsFileOf(kA), Home::SettingsFileOf(kB),
      Home::StorageOf(kA) + "/", Home::StorageOf(kB) + "/"},
     /*reports=*/false},
    {"delete all",
     On::kPanel,
     DeleteAll,
     ExpectDeleted,
     {kSettings + "/", Home::StorageOf(""), Home::kAssetCache, Home::kLicences},
     /*reports=*/false,
     /*keeps_settings=*/false},
};

}  // namespace

std::span<const Operation> AllOperations() { return kOperations; }
