// A home directory of a test's own, with what the panel keeps in it.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

// Makes a private directory and points HOME at it; removes it at the end,
// whatever was done to it, and puts HOME back. Paths are relative to it.
class TemporaryHome {
 public:
  TemporaryHome();
  ~TemporaryHome();
  TemporaryHome(const TemporaryHome&) = delete;
  TemporaryHome& operator=(const TemporaryHome&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  [[nodiscard]] std::string operator/(const std::string& name) const;

  // Makes the directories above as well.
  void Write(const std::string& name, const std::string& bytes) const;
  // Fails the test and gives an empty text when there is no such file.
  [[nodiscard]] std::string Read(const std::string& name) const;
  [[nodiscard]] bool Has(const std::string& name) const;
  using Names = std::vector<std::string>;
  // All files and directories, sorted.
  [[nodiscard]] Names List() const;

  // Each name to its bytes; that of a directory ends in "/".
  using Snapshot = std::map<std::string, std::string>;
  [[nodiscard]] Snapshot Take() const;
  // Makes the home hold that and nothing else.
  void Restore(const Snapshot& snapshot) const;

  // Where the panel keeps things.
  static constexpr char kSettings[] =
      ".orbelline/Corvane_Player/tessary.example/support/corvaneplayer/sys";
  static constexpr char kSharedObjects[] =
      ".orbelline/Corvane_Player/#SharedObjects";
  static constexpr char kAssetCache[] = ".tessary/Corvane_Player/AssetCache";
  static constexpr char kLicences[] = ".tessary/Corvane_Player/APSPrivateData2";
  [[nodiscard]] static std::string MasterFile();
  [[nodiscard]] static std::string SettingsFileOf(const std::string& domain);
  // The directory of a site's local storage.
  [[nodiscard]] static std::string StorageOf(const std::string& site);

  // Default settings with lists of known sites, which have theirs, and of
  // trusted locations, in the place of earlier ones.
  void AddSites(const Names& sites, const Names& locations = {}) const;
  // A file in the site's local storage.
  void AddData(const std::string& site, std::size_t bytes) const;

 private:
  std::filesystem::path path_;
  std::string former_home_;
};
