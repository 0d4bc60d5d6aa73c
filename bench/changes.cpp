// Changes of settings, as they reach the disk.
#include <sqlite3.h>
#include <unistd.h>

#include <memory>

#include "bench/bare_calls.h"
#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "bench/site_home.h"
#include "model/permission_changes.h"
#include "model/permission_setting.h"
#include "tests/support/settings_image.h"

namespace {

constexpr std::size_t kSizes[] = {1000, 10000, 100000};
constexpr std::size_t kChanges = 200;  // in one run

using Database = std::unique_ptr<sqlite3, int (*)(sqlite3*)>;

void Execute(sqlite3* database, const std::string& statements) {
  Check(sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr) ==
            SQLITE_OK,
        "SQLite");
}

Database OpenDatabase(const SiteHome& home) {
  sqlite3* database = nullptr;
  const std::string path = home / "settings.db";
  unlink(path.c_str());
  Check(sqlite3_open(path.c_str(), &database) == SQLITE_OK, "sqlite3_open");
  std::string statements =
      "PRAGMA journal_mode=WAL; PRAGMA synchronous=OFF; BEGIN;"
      "CREATE TABLE settings (site TEXT PRIMARY KEY, always, allow, klimit)"
      " WITHOUT ROWID;";
  for (const std::string& site : home.Sites()) {
    statements += "INSERT INTO settings VALUES ('" + site + "', 0, 0, 100);";
  }
  Execute(database, statements + "COMMIT");
  return {database, sqlite3_close};
}

// The store on what is now in the home directory, all of it loaded.
void OpenLoadedStore(const SiteHome& home) {
  OpenFreshStore();
  for (const std::string& site : home.Sites()) {
    SettingBase::mSettingsManager->EnsureSettingsAreLoadedForDomain(
        site.c_str());
  }
}

// Changes the site in the middle of the list.
void MeasureOneChange(const SiteHome& home, sqlite3* database) {
  const std::size_t middle = home.Sites().size() / 2;
  const std::string& site = home.Sites()[middle];
  const std::string& file = home.SitePaths()[middle].settings_file;
  const std::string image = image::DefaultSiteFile(site);
  const std::string update =
      "UPDATE settings SET always = 1 - always WHERE site = '" + site + "'";
  bool blocks = false;
  const auto change = [&] {
    blocks = !blocks;
    PermissionSetting(kPermissions[kCamera], site.c_str())
        .setState(StateOf(blocks, false));
  };
  Measure({"permission changed 200 times", home.Sites().size()},
          {{kPanel, Times(kChanges, change)},
           {kFloor, Times(2 * kChanges, [&] { RewriteFile(file, image); })},
           {"SQLite", Times(kChanges, [&] { Execute(database, update); })}});
}

void MeasureBlockAll(const SiteHome& home, sqlite3* database) {
  const std::string image = image::DefaultSiteFile(home.Sites()[0]);
  Measure({"storage blocked for all sites", home.Sites().size()},
          {{kPanel,
            [] {
              (void)SetGlobalState(kPermissions[kStorage],
                                   kPermissionStateAlwaysDeny);
            }},
           {kFloor,
            [&] {
              RewriteFile(home.MasterPath(), home.MasterImage());
              for (const SiteHome::Paths& site : home.SitePaths()) {
                RewriteFile(site.settings_file, image);
                unlink(site.storage.c_str());
              }
            }},
           {"SQLite",
            [&] { Execute(database, "UPDATE settings SET klimit = -1"); }}});
}

// As one action.
void MeasureRemovedSites(const SiteHome& home) {
  constexpr std::size_t kStep = 100;
  const auto remove = [&] {
    SASM::SettingsManager* manager = SettingBase::mSettingsManager;
    const SASM::ListWriteGuard guard(manager);
    for (std::size_t i = 0; i < home.Sites().size(); i += kStep) {
      manager->RemoveDomainInformation(home.Sites()[i].c_str(), true, true);
    }
  };
  const auto restore = [&] {
    home.RestoreSites(kStep);
    OpenFreshStore();
  };
  Measure({"1 of 100 sites removed", home.Sites().size()},
          {{kPanel, remove, restore},
           {kFloor, [&] { home.RemoveSites(kStep); }, restore}});
}

}  // namespace

int main() {
  SiteHome home;
  for (const std::size_t size : kSizes) {
    home.MakeSites(size);
    MeasureRemovedSites(home);
    home.MakeSites(size);
    OpenLoadedStore(home);
    const Database database = OpenDatabase(home);
    MeasureOneChange(home, database.get());
    MeasureBlockAll(home, database.get());
  }
}
