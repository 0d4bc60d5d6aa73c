#include "tests/faults/panel.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/setting_base.h"
#include "store/default_settings.h"
#include "tests/support/settings_image.h"

using SASM::SettingsManager;

Panel::~Panel() { SettingBase::mSettingsManager = nullptr; }

void Panel::Start() {
  manager.emplace(&files);
  SettingBase::mSettingsManager = &*manager;
}

bool Panel::SetNumber(const char* key, double value, const char* domain) {
  SASM::SettingDataItem item(key, value);
  return manager->SetSetting(&item, key, domain);
}

double Panel::Number(const char* key, const char* domain) {
  return SASM::NumberOr(manager->GetSetting(key, domain),
                        std::numeric_limits<double>::quiet_NaN());
}

std::vector<std::string> Panel::Sites() {
  return image::NamesOf(*manager->GetDomains());
}

void Panel::ExpectWhole() {
  for (const auto& row : SASM::DefaultMasterSettings()) {
    EXPECT_TRUE(manager->HasSetting(row.key, Master())) << row.key;
  }
  EXPECT_TRUE(manager->GetDomains());
}

const char* Panel::Master() { return SettingsManager::MasterDomain().c_str(); }

void ExpectUsable() {
  constexpr char kSite[] = "later.example";
  Panel panel;
  panel.Start();
  panel.ExpectWhole();
  EXPECT_TRUE(panel.manager->AddDomainWithDefaultSettings(kSite));
  EXPECT_TRUE(panel.SetNumber("klimit", 1024, kSite));
  Panel next;
  next.Start();
  next.ExpectWhole();
  EXPECT_EQ(next.Number("klimit", kSite), 1024);
}
