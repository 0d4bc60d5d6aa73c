// A home directory of the benchmark's own, with known sites in it.
#pragma once

#include "tests/support/temporary_home.h"

// One for a process: the panel works its paths out once.
class SiteHome : public TemporaryHome {
 public:
  // Absolute ones.
  struct Paths {
    std::string settings_directory;
    std::string settings_file;
    std::string storage;
  };

  // Whatever was there goes; `count` known sites with default settings come,
  // each with a stored file.
  void MakeSites(std::size_t count);
  // Removes each `step`-th site by bare calls, and its share of the master
  // file.
  void RemoveSites(std::size_t step) const;
  // Puts back what MakeSites made of these, and of the master file.
  void RestoreSites(std::size_t step) const;

  [[nodiscard]] const Names& Sites() const { return sites_; }
  [[nodiscard]] const std::vector<Paths>& SitePaths() const { return paths_; }
  [[nodiscard]] std::string MasterPath() const { return *this / MasterFile(); }
  // The bytes of the master file as MakeSites made it.
  [[nodiscard]] const std::string& MasterImage() const { return master_; }

  // The names of `count` known sites. No two neighbours are of one registered
  // domain, as users meet them.
  [[nodiscard]] static Names NamesOf(std::size_t count);
  // In a home directory, which another process may have made.
  [[nodiscard]] static std::vector<Paths> PathsOf(const std::string& home,
                                                  const Names& sites);

 private:
  void AddStoredFile(std::size_t index) const;

  Names sites_;
  std::vector<Paths> paths_;
  std::string master_;
};

// Reads the settings files by bare calls, into memory that it uses again.
void ReadSiteFiles(const std::vector<SiteHome::Paths>& sites);
