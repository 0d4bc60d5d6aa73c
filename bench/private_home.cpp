#include "bench/private_home.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "bench/harness.h"
#include "settings/settings_aggregator.h"
#include "settings/settings_format.h"
#include "store/setting_keys.h"

namespace fs = std::filesystem;
using SMImplementation::SettingsAggregator;

namespace {

constexpr char kBase[] = "/.orbelline/Corvane_Player";
constexpr char kSettings[] = "/tessary.example/support/corvaneplayer/sys";

std::string MakeDirectory() {
  const char* wanted = std::getenv("BENCH_DIRECTORY");
  std::string pattern = std::string(wanted ? wanted : "/tmp") + "/bench-XXXXXX";
  Check(mkdtemp(pattern.data()), "mkdtemp");
  return pattern;
}

void WriteBool(SettingsAggregator* body, const char* key, bool value) {
  body->WriteSimpleStringAsPString(key);
  body->WriteSettingsDataType(SASM::kSettingsDataTypeBool);
  body->WriteU8(value);
  body->WriteU8(SMImplementation::kEntryTerminator);
}

void WriteHeader(SettingsAggregator* body, const std::string& name) {
  body->WriteU32(SMImplementation::kMagic);
  body->WriteU16(SMImplementation::kNewestVersion);
  body->WriteU32(0);
  body->WriteSimpleStringAsPString(name.c_str());
  body->WriteU32(0);
}

// With the long record header.
std::string ImageOf(const SettingsAggregator& body) {
  const auto size = static_cast<unsigned int>(body.Size());
  std::vector<unsigned char> bytes(size);
  body.GetData(size, bytes.data());
  std::string image("\0\xBF", 2);
  for (int shift = 24; shift >= 0; shift -= 8) {
    image += static_cast<char>(size >> shift);
  }
  return image.append(bytes.begin(), bytes.end());
}

}  // namespace

PrivateHome::PrivateHome() : path_(MakeDirectory()) {
  setenv("HOME", path_.c_str(), 1);
}

PrivateHome::~PrivateHome() { fs::remove_all(path_); }

std::string PrivateHome::operator/(const std::string& name) const {
  return path_ + "/" + name;
}

std::string PrivateHome::MasterFile() const {
  return path_ + kBase + kSettings + "/settings.sol";
}

std::string PrivateHome::DirectoryOf(const std::string& site) const {
  return path_ + kBase + kSettings + "/#" + site;
}

std::string PrivateHome::FileOf(const std::string& site) const {
  return DirectoryOf(site) + "/settings.sol";
}

std::string PrivateHome::StorageOf(const std::string& site) const {
  return path_ + kBase + "/#SharedObjects/QWERTY12/" + site;
}

void PrivateHome::MakeSites(std::size_t count, bool with_storage) {
  fs::remove_all(path_ + kBase);
  fs::create_directories(StorageOf(""));
  fs::create_directories(path_ + kBase + kSettings);
  sites_.clear();
  for (std::size_t i = 0; i < count; ++i) {
    // No two neighbours of one registered domain, as users meet them.
    sites_.push_back("www" + std::to_string(i * 7919 % 10) + ".site" +
                     std::to_string(i * 7919 % count) + ".example.com");
    MakeSite(i, with_storage);
  }
  WriteMasterFile();
}

void PrivateHome::MakeSite(std::size_t index, bool with_storage) const {
  const std::string& site = sites_[index];
  fs::create_directory(DirectoryOf(site));
  WriteFile(FileOf(site), SiteImage(site));
  if (!with_storage) return;
  fs::create_directory(StorageOf(site));
  WriteFile(StorageOf(site) + "/game.sol", std::string(index % 5000, 'x'));
}

std::string PrivateHome::SiteImage(const std::string& site) {
  SettingsAggregator body(1024);
  WriteHeader(&body, site + "/settings");
  WriteBool(&body, SASM::kCameraAlways, true);
  WriteBool(&body, SASM::kP2PAlways, false);
  body.WriteSimpleStringAsPString(SASM::kStorageLimit);
  body.WriteSettingsDataType(SASM::kSettingsDataTypeDouble);
  body.WriteDouble(100);
  body.WriteU8(SMImplementation::kEntryTerminator);
  WriteBool(&body, SASM::kP2PAllow, false);
  WriteBool(&body, SASM::kCameraAllow, true);
  return ImageOf(body);
}

std::string PrivateHome::MasterImage() const {
  SettingsAggregator body(1024);
  WriteHeader(&body, "settings");
  WriteBool(&body, SASM::kDefaultCameraAlways, false);
  body.WriteSimpleStringAsPString(SASM::kDomains);
  body.WriteSettingsDataType(SASM::kSettingsDataTypeArray);
  for (const std::string& site : sites_) {
    body.WriteSimpleStringAsPString(site.c_str());
    body.WriteSettingsDataType(SASM::kSettingsDataTypeBool);
    body.WriteU8(1);
  }
  body.WriteU16(0);
  body.WriteU8(SMImplementation::kEndOfArray);
  body.WriteU8(SMImplementation::kEntryTerminator);
  return ImageOf(body);
}

void PrivateHome::WriteMasterFile() const {
  WriteFile(MasterFile(), MasterImage());
}

void WriteFile(const std::string& path, const std::string& bytes) {
  Check(bool(std::ofstream(path, std::ios::binary) << bytes), path.c_str());
}
