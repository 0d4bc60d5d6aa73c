// The limit of the data that a site may store.
#pragma once

#include <string>

#include "model/permission_setting.h"

// Shows a limit in kilobytes as a permission and as a slider position with a
// label, and shows how much the site stores now. A missing limit reads as
// Block.
//
// Changes are staged and written by commit(). A staged slider position takes
// precedence over a staged permission.
class StorageSetting : public SettingBase {
 public:
  StorageSetting(const char* key, SASM::SimpleString domain);

  // Stage a change. Positions run from -1 to 5.
  StorageSetting& setSliderSetting(int position);
  StorageSetting& setPermissionState(PermissionState state);
  // Drops a staged slider position; a staged permission stays.
  void revert();

  // Writes what is staged. A permission of the master domain is also given to
  // every listed site. Block deletes the stored data of each site that it is
  // given to: false when that failed, with the limits stored all the same. A
  // slider position changes this one limit and deletes nothing.
  bool commit();
  // Write at once, and drop a staged slider position.
  void setValue(double limit_kb);
  void setDontAsk(bool dont_ask);

  [[nodiscard]] double getValue() const;
  // What is staged, or else what is stored. A stored Block is position 0 of
  // the slider and position -1 of the combo box.
  [[nodiscard]] PermissionState getPermissionState();
  [[nodiscard]] int getSliderSetting() const;
  [[nodiscard]] int getComboboxSetting() const;
  // English in every language; constant.
  [[nodiscard]] const char* getSliderLabel() const;

  // The size of the domain's local storage in bytes.
  [[nodiscard]] double spaceUsed();
  // Writes the space used as text in the user's language, cut to `size` bytes
  // including the terminating zero; kSpaceTextSize is enough for any.
  static constexpr int kSpaceTextSize = 80;
  void formatSpaceUsed(char* buffer, int size);
  // That text for any number of bytes.
  [[nodiscard]] static std::string TextOfSpace(double bytes);

  // True when what is staged lowers the stored limit.
  [[nodiscard]] bool isSettingLessThanOldValue();
  // True when the site stores more than the staged, or else the stored, limit
  // allows. The codes are taken as the numbers they are.
  [[nodiscard]] bool isLessThanSpaceUsed();

  [[nodiscard]] static double linearSettingToKB(int position);
  [[nodiscard]] static int kbToLinearSetting(double limit_kb);
  [[nodiscard]] static double permissionSettingToKB(PermissionState state);
  [[nodiscard]] static PermissionState kbToPermissionSetting(double limit_kb);

 private:
  [[nodiscard]] bool HasPendingPosition() const;
  static void FetchTexts();
  static void FormatSpace(double bytes, char* buffer, int size);

  // Texts of sizes, in the language chosen when the first one is needed.
  // Owned by the table of texts; null before.
  static const char* mNoneString;
  static const char* mBytesFormat;
  static const char* mKBFormat;
  static const char* mMBFormat;
  static const char* mGBFormat;

  int pending_position_;
  PermissionState pending_state_ = kPermissionStateNone;
  bool is_master_;
};
