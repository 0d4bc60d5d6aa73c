#include <sys/stat.h>

#include "tests/support/privileges.h"
#include "tests/support/store_test.h"

namespace {

using namespace image;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

using MasterSettings = StoreTest;

TEST_F(MasterSettings, AreWrittenAtTheFirstStart) {
  int writes = 0;
  files_.before_removal = [&](const std::string&) { return ++writes; };
  Start();
  EXPECT_EQ(writes, 3);
  EXPECT_EQ(Master(), DefaultMasterFile());
  std::vector<std::string> chain;
  for (fs::path path = TemporaryHome::MasterFile(); !path.empty();
       path = path.parent_path()) {
    chain.insert(chain.begin(), path);
    struct stat info = {};
    ASSERT_EQ(stat((home_ / path).c_str(), &info), 0);
    EXPECT_TRUE(!S_ISDIR(info.st_mode) || (info.st_mode & 07777) == 0700);
  }
  EXPECT_EQ(home_.List(), chain) << "and nothing else";
  Start();
  Start();
  EXPECT_EQ(Master(), DefaultMasterFile())
      << "each start turns the entries of a bucket round";
}

TEST_F(MasterSettings, KeepWhatIsThereAndFillInTheRest) {
  WriteMaster(Entry("defaultklimit", String("no number")) +
              Entry("autoUpdateInterval", Number(3)) +
              Entry("somebody's", Bool(1)) + Entry("trustedPaths", Bool(0)));
  Start();
  EXPECT_EQ(Describe(Master()),
            "autoUpdateInterval=3 crossdomainAllow=false "
            "crossdomainAlways=true disallowP2PUplink=false "
            "autoUpdateDisabled=false defaultalways=false "
            "secureCrossDomainCacheSize=-1 allowThirdPartyLSOAccess=true "
            "trustedPaths=false domains=[] somebody's=true "
            "defaultklimit='no number'");
}

TEST_F(MasterSettings, ReplaceAFileThatCannotBeUsed) {
  const std::string file = home_ / TemporaryHome::MasterFile();
  const struct {
    const char* what;
    std::function<void()> put;
  } cases[] = {
      {"empty", [&] { home_.Write(TemporaryHome::MasterFile(), ""); }},
      {"garbage", [&] { home_.Write(TemporaryHome::MasterFile(), "garbage"); }},
      {"cut off", [&] { WriteMaster(Text("a") + Hex("03")); }},
      {"a directory", [&] { fs::create_directories(file + "/x"); }},
      {"a pipe nobody writes to", [&] { mkfifo(file.c_str(), 0600); }},
      {"a link to nothing", [&] { fs::create_symlink("none", file); }},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    fs::create_directories(fs::path(file).parent_path());
    c.put();
    testing::internal::CaptureStderr();
    Start();
    (void)testing::internal::GetCapturedStderr();  // the reader's
    EXPECT_EQ(Master(), DefaultMasterFile());
    fs::remove(file);
  }
}

TEST_F(MasterSettings, StartWithWhateverOneByteIsMade) {
  Begin({"a.example"});
  const std::string whole = Master();
  testing::internal::CaptureStderr();
  for (std::size_t i = 0; i < whole.size(); ++i) {
    std::string flipped = whole;
    flipped[i] = static_cast<char>(flipped[i] ^ (i % 2 ? 0xFF : 0x03));
    home_.Write(TemporaryHome::MasterFile(), flipped);
    Start();
    ASSERT_NE(manager_->GetDomains(), nullptr) << i;
    ASSERT_NE(Held("autoUpdateInterval"), "none") << i;
    ASSERT_NE(Describe(Master()), "rejected") << i;
  }
  (void)testing::internal::GetCapturedStderr();
}

TEST_F(MasterSettings, ReadFilesAboutTheSizeOfTheBuffer) {
  const std::string rest = File("n", Entry("k", String("")));
  for (const std::size_t size : {65535, 65536, 65537}) {
    SCOPED_TRACE(size);
    const std::string text(size - rest.size() - 4, 't');
    home_.Write(TemporaryHome::SettingsFileOf("a"),
                File("n", Entry("k", String(text))));
    ASSERT_EQ(SiteFile("a").size(), size);
    Start();
    EXPECT_EQ(Held("k", "a"), "k='" + text + "'");
  }
}

TEST_F(MasterSettings, GetAListOfDomainsInPlaceOfAnythingElse) {
  for (const Bytes& value : {Number(1), Bool(1), String("a"), Hex("07")}) {
    SCOPED_TRACE(static_cast<int>(value[0]));
    WriteMaster(Entry("domains", value));
    testing::internal::CaptureStderr();
    Start();
    (void)testing::internal::GetCapturedStderr();  // of an unknown type
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_THAT(ListedOnDisk(), IsEmpty());
  }
  // Lost while the panel runs.
  EXPECT_TRUE(SetNumber("domains", 1, "___MASTER_DOMAIN"));
  EXPECT_THAT(Listed(), IsEmpty());
  EXPECT_TRUE(manager_->RemoveSettingWithKey(
      "domains", SASM::SettingsManager::MasterDomain()));
  EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(MasterSettings, DropSitesWithoutAFileFromMemoryOnly) {
  Begin({"a", "b", "c", "d"});
  fs::remove_all(home_ / TemporaryHome::SettingsFileOf("a"));
  home_.Write(TemporaryHome::SettingsFileOf("c"), "");
  Start();
  EXPECT_THAT(Listed(), ElementsAre("b", "d"));
  EXPECT_THAT(ListedOnDisk(), ElementsAre("a", "b", "c", "d"));
  EXPECT_TRUE(manager_->WriteOrUpdateDefaultMasterSettings());
  EXPECT_THAT(ListedOnDisk(), ElementsAre("b", "d"));
}

TEST_F(MasterSettings, FindTheLocalStorageAtTheStart) {
  const std::string root = TemporaryHome::kSharedObjects;
  const struct {
    std::vector<const char*> entries;
    const char* chosen;
  } cases[] = {{{}, "/site"}, {{"/10/x", "/2/x"}, "/2/site"}};
  for (const auto& c : cases) {
    for (const char* entry : c.entries) home_.Write(root + entry, "");
    Start();
    home_.Write(root + c.chosen + "/data", "x");
    EXPECT_GT(manager_->SizeOfLocalStorage("site"), 1u) << c.chosen;
    fs::remove_all(home_ / root);
    EXPECT_EQ(manager_->SizeOfLocalStorage("site"), 0u);
    fs::create_directories(home_ / root);
  }
}

TEST_F(MasterSettings, LiveInMemoryWithoutAHome) {
  home_.Write("before", "");
  const NoHome none;
  testing::internal::CaptureStderr();
  LinuxFileManager homeless;
  SASM::SettingsManager manager(&homeless);
  EXPECT_TRUE(manager.AddDomainWithDefaultSettings("site"));
  EXPECT_TRUE(manager.HasSetting("klimit", "site"));
  EXPECT_THAT(NamesOf(*manager.GetDomains()), ElementsAre("site"));
  EXPECT_EQ(manager.SizeOfSettings("site"), 0u);
  EXPECT_EQ(manager.SizeOfLocalStorage("site"), 0u);
  EXPECT_TRUE(manager.RemoveDomainInformation("site", true, true));
  EXPECT_TRUE(manager.RemoveAllSettingsAndOrLocalStorage(true, true));
  EXPECT_TRUE(manager.RemoveAllSettingsAndOrLocalStorageForTimeRange(
      true, true, 0, 1UL << 40));
  EXPECT_TRUE(manager.RemoveAssetCache());
  EXPECT_EQ(image::NamesOf(*manager.GetDomains()).size(), 0u);
  EXPECT_THAT(testing::internal::GetCapturedStderr(),
              testing::HasSubstr("There is no home directory"));
  EXPECT_THAT(home_.List(), ElementsAre("before"));
}

}  // namespace
