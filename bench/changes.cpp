// Changes of settings, as they reach the disk.
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>

#include "bench/bare_calls.h"
#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "bench/private_home.h"
#include "model/permission_setting.h"
#include "model/storage_setting.h"
#include "settings/settings_writer.h"
#include "store/setting_keys.h"

using SASM::SettingsManager;

namespace {

constexpr std::size_t kSizes[] = {100, 1000, 10000};
constexpr std::size_t kChanges = 200;  // in one run
constexpr std::size_t kRemoved = 100;

using Database = std::unique_ptr<sqlite3, int (*)(sqlite3*)>;

void Execute(sqlite3* database, const std::string& statement) {
  Check(sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr) ==
            SQLITE_OK,
        statement.c_str());
}

Database OpenDatabase(const PrivateHome& home) {
  sqlite3* database = nullptr;
  const std::string path = home / "settings.db";
  unlink(path.c_str());
  Check(sqlite3_open(path.c_str(), &database) == SQLITE_OK, "sqlite3_open");
  Execute(database,
          "PRAGMA journal_mode=WAL; PRAGMA synchronous=OFF; BEGIN;"
          "CREATE TABLE settings (site TEXT, key TEXT, value,"
          " PRIMARY KEY (site, key)) WITHOUT ROWID;");
  for (const std::string& site : home.Sites()) {
    for (const char* key : {"always", "allow", "klimit"}) {
      Execute(database,
              "INSERT INTO settings VALUES ('" + site + "','" + key + "', 1)");
    }
  }
  Execute(database, "COMMIT");
  return {database, sqlite3_close};
}

void Replace(sqlite3_stmt* replace, const char* key, int value) {
  sqlite3_bind_text(replace, 1, key, -1, SQLITE_STATIC);
  sqlite3_bind_int(replace, 2, value);
  Check(sqlite3_step(replace) == SQLITE_DONE, "REPLACE");
  sqlite3_reset(replace);
}

// The store on what is now in the home directory, all of it loaded.
void StartAgain(const PrivateHome& home) {
  OpenFreshStore();
  for (const std::string& site : home.Sites()) {
    SettingBase::mSettingsManager->EnsureSettingsAreLoadedForDomain(
        site.c_str());
  }
}

void MeasureOneChange(const PrivateHome& home) {
  StartAgain(home);
  const Database database = OpenDatabase(home);
  const std::string site = home.Sites()[home.Sites().size() / 2];
  const std::string file = home.FileOf(site);
  const std::string image = PrivateHome::SiteImage(site);
  sqlite3_stmt* replace = nullptr;
  sqlite3_prepare_v2(
      database.get(),
      ("REPLACE INTO settings VALUES ('" + site + "', ?1, ?2)").c_str(), -1,
      &replace, nullptr);
  Measure({"permission changed, 200 times", home.Sites().size()},
          {{kPanel,
            [&] {
              for (std::size_t i = 0; i < kChanges; ++i) {
                PermissionSetting(kPermissions[kCamera], site.c_str())
                    .setState(i % 2 ? kPermissionStateAlwaysDeny
                                    : kPermissionStateAlwaysAsk);
              }
            }},
           {kFloor,
            [&] {
              for (std::size_t i = 0; i < kChanges * 2; ++i) {
                RewriteFile(file.c_str(), image.data(), image.size());
              }
            }},
           {"SQLite, 2 REPLACE", [&] {
              for (std::size_t i = 0; i < kChanges; ++i) {
                Replace(replace, "always", i % 2 == 1);
                Replace(replace, "allow", 0);
              }
            }}});
  sqlite3_finalize(replace);
}

void MeasureBlockAll(const PrivateHome& home) {
  StartAgain(home);
  const Database database = OpenDatabase(home);
  const std::string master = home.MasterImage();
  Measure(
      {"storage blocked for all sites", home.Sites().size()},
      {{kPanel,
        [&] {
          (void)StorageSetting(SASM::kDefaultStorageLimit,
                               SettingsManager::MasterDomain())
              .setPermissionState(kPermissionStateAlwaysDeny)
              .commit();
        }},
       {kFloor,
        [&, image = PrivateHome::SiteImage(home.Sites()[0])] {
          RewriteFile(home.MasterFile().c_str(), master.data(), master.size());
          for (const std::string& site : home.Sites()) {
            RewriteFile(home.FileOf(site).c_str(), image.data(), image.size());
            unlink(home.StorageOf(site).c_str());
          }
        }},
       {"SQLite, 1 transaction", [&] {
          Execute(database.get(),
                  "UPDATE settings SET value = -1 WHERE key = 'klimit'");
        }}});
}

// What is written anew whenever the list of sites changes.
void BuildMasterImage() {
  unsigned char* image = nullptr;
  unsigned long size = 0;
  SMImplementation::SettingsWriter(SettingBase::mSettingsManager,
                                   SettingsManager::MasterDomain())
      .GetNewSettingsWithName("settings", &image, size);
  delete[] image;
}

void MeasureRemovedSites(PrivateHome* home) {
  const auto& sites = home->Sites();
  std::vector<std::string> removed;
  for (std::size_t i = 0; i < kRemoved; ++i) {
    removed.push_back(sites[i * sites.size() / kRemoved]);
  }
  const auto prepare = [&] {
    for (std::size_t i = 0; i < kRemoved; ++i) {
      home->MakeSite(i * sites.size() / kRemoved, true);
    }
    home->WriteMasterFile();
  };
  const std::string master = home->MasterImage();
  const std::size_t entry_size = sites[0].size() + 4;
  Measure({"100 sites removed", sites.size()},
          {{kPanel,
            [&] {
              for (const std::string& site : removed) {
                SettingBase::mSettingsManager->RemoveDomainInformation(
                    site.c_str(), true, true);
              }
            },
            [&] {
              prepare();
              StartAgain(*home);
            }},
           {kFloor,
            [&] {
              std::size_t size = master.size();
              for (const std::string& site : removed) {
                RemoveTree(home->StorageOf(site));
                RemoveTree(home->DirectoryOf(site));
                size -= entry_size;
                RewriteFile(home->MasterFile().c_str(), master.data(), size);
              }
            },
            prepare},
           {"its images alone", [] {
              for (std::size_t i = 0; i < kRemoved; ++i) BuildMasterImage();
            }}});
}

}  // namespace

int main() {
  PrivateHome home;
  for (const std::size_t size : kSizes) {
    home.MakeSites(size, false);
    MeasureOneChange(home);
    MeasureBlockAll(home);
    home.MakeSites(size, true);
    MeasureRemovedSites(&home);
  }
}
