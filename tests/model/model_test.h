// Setting objects over a store of the test's own.
#pragma once

#include <cstdlib>

#include "model/setting_base.h"
#include "tests/support/store_test.h"

class ModelTest : public StoreTest {
 protected:
  ModelTest() { setenv("LC_ALL", "C", 1); }
  ~ModelTest() override { SettingBase::mSettingsManager = nullptr; }

  void StartModel() {
    Start();
    SettingBase::mSettingsManager = &*manager_;
  }
};
