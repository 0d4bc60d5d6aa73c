// The keys of the settings files.
#pragma once

namespace SASM {

// Master settings.
inline constexpr char kDomains[] = "domains";
inline constexpr char kDefaultCameraAlways[] = "defaultalways";
inline constexpr char kDefaultStorageLimit[] = "defaultklimit";
inline constexpr char kDisallowP2PUplink[] = "disallowP2PUplink";
inline constexpr char kTrustedPaths[] = "trustedPaths";

// Settings of one site.
inline constexpr char kCameraAllow[] = "allow";
inline constexpr char kCameraAlways[] = "always";
inline constexpr char kStorageLimit[] = "klimit";
inline constexpr char kP2PAllow[] = "p2pallow";
inline constexpr char kP2PAlways[] = "p2palways";

}  // namespace SASM
