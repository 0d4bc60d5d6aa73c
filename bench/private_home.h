// A home directory of the benchmark's own, with known sites in it.
#pragma once

#include <string>
#include <vector>

// Makes a directory in $BENCH_DIRECTORY, or else in /tmp, points HOME at it,
// and removes it at the end. One for a process: the panel works its paths out
// once.
class PrivateHome {
 public:
  PrivateHome();
  ~PrivateHome();
  PrivateHome(const PrivateHome&) = delete;
  PrivateHome& operator=(const PrivateHome&) = delete;

  // Whatever was there goes; `count` known sites with typical settings come,
  // with a directory of one stored file each when `with_storage`.
  void MakeSites(std::size_t count, bool with_storage);
  // Puts one of them back as MakeSites made it.
  void MakeSite(std::size_t index, bool with_storage) const;
  void WriteMasterFile() const;

  [[nodiscard]] const std::vector<std::string>& Sites() const { return sites_; }
  // The bytes of a typical file of a site.
  [[nodiscard]] static std::string SiteImage(const std::string& site);
  [[nodiscard]] std::string MasterImage() const;

  [[nodiscard]] std::string operator/(const std::string& name) const;
  [[nodiscard]] std::string MasterFile() const;
  [[nodiscard]] std::string DirectoryOf(const std::string& site) const;
  [[nodiscard]] std::string FileOf(const std::string& site) const;
  [[nodiscard]] std::string StorageOf(const std::string& site) const;

 private:
  std::string path_;
  std::vector<std::string> sites_;
};

void WriteFile(const std::string& path, const std::string& bytes);
