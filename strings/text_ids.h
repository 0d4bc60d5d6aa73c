// Ids of the texts that both programs show. The ids of others are where they
// are used, those of permissions in model/permissions.h.
#pragma once

inline constexpr int kPanelTitleId = 11400;
inline constexpr int kSiteColumnTitleId = 61000;
inline constexpr int kUsedSpaceColumnTitleId = 61004;
inline constexpr int kLocationColumnTitleId = 81003;
