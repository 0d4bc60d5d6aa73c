// The limit of the data that a site may store.
#pragma once

#include <cstdint>

#include "model/permission_setting.h"

// Shows a limit in kilobytes as a permission, as a slider position with a
// label, and beside it the space that the site uses now. A missing limit
// counts as Block.
//
// Changes are staged and written by commit(). A staged slider position comes
// before a staged permission.
class StorageSetting : public SettingBase {
 public:
  using State = PermissionSetting::_SettingsPermissionState;

  // Limits that are codes.
  static constexpr double kBlock = -1.0;
  static constexpr double kAsk = 0.0;
  static constexpr double kUnlimited = -2.0;

  StorageSetting(const char* key, SASM::SimpleString domain);

  // Both stage a change. Positions run from -1 to 5, see kSliderPositions.
  StorageSetting& setSliderSetting(int position);
  StorageSetting& setPermissionState(State state);
  // Drops a staged slider position; a staged permission stays.
  void revert();

  // Writes what is staged. A permission of the master domain is given to
  // every known site as well, and Block deletes the stored data of the sites
  // it reaches. False only when a site's data could not be deleted; the
  // limits are stored all the same.
  bool commit();
  // Writes at once.
  void setValue(double limit_kb);
  void setDontAsk(bool dont_ask);

  [[nodiscard]] double getValue() const;
  // What is staged, or else what is stored. They differ in a stored Block:
  // position 0 of the slider, position -1 of the combo box.
  [[nodiscard]] State getPermissionState();
  [[nodiscard]] int getSliderSetting() const;
  [[nodiscard]] int getComboboxSetting() const;
  // A constant English text.
  [[nodiscard]] const char* getSliderLabel() const;

  // Bytes of the domain's local storage now.
  [[nodiscard]] double spaceUsed();
  // The space used as text in the user's language, cut to `size` bytes with
  // its zero.
  static constexpr int kSpaceTextSize = 80;  // fits every text
  void formatSpaceUsed(char* buffer, int size);
  static void FormatSpace(double bytes, char* buffer, int size);

  // Whether what is staged lowers the stored limit.
  [[nodiscard]] bool isSettingLessThanOldValue();
  // Whether the site uses more than what is staged, or else stored, allows;
  // the codes count as the numbers they are.
  [[nodiscard]] bool isLessThanSpaceUsed();

  [[nodiscard]] static double linearSettingToKB(int position);
  [[nodiscard]] static int kbToLinearSetting(double limit_kb);
  [[nodiscard]] static double permissionSettingToKB(State state);
  [[nodiscard]] static State kbToPermissionSetting(double limit_kb);

 private:
  [[nodiscard]] bool HasPendingPosition() const;
  [[nodiscard]] static const char* LabelOf(int position);
  static void FetchTexts();

  // The texts of sizes, in the language of the first setting built. Constant,
  // owned by the string table.
  static const char* mNoneString;
  static const char* mBytesFormat;
  static const char* mKBFormat;
  static const char* mMBFormat;
  static const char* mGBFormat;

  int pending_position_;
  State pending_state_ = PermissionSetting::kPermissionStateNone;
  bool is_master_;
};
