#include "store/settings_file.h"
#include "tests/support/call_hooks.h"
#include "tests/support/privileges.h"
#include "tests/support/store_test.h"

namespace {

using namespace image;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace fs = std::filesystem;
using namespace std::string_literals;

using MasterSettings = StoreTest;
using SiteSettings = StoreTest;

TEST_F(MasterSettings, AreWrittenAtTheFirstStart) {
  Start();
  EXPECT_EQ(Master(), DefaultMasterFile());
  const std::vector<std::string> made = home_.List();
  EXPECT_EQ(made.back(), TemporaryHome::MasterFile());
  for (const std::string& path : made) {
    EXPECT_TRUE(made.back().starts_with(path)) << "nothing else is made";
    EXPECT_TRUE(path == made.back() ||
                fs::status(home_ / path).permissions() == fs::perms::owner_all);
  }
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

TEST_F(MasterSettings, AreTheDefaultsInPlaceOfGarbage) {
  Begin({"a"});
  testing::internal::CaptureStderr();
  for (const char* unusable : {"", "garbage"}) {
    home_.Write(TemporaryHome::MasterFile(), unusable);
    Start();
    EXPECT_EQ(Master(), DefaultMasterFile());
  }
  // Nobody hears the complaints about the file.
  const FileDescriptor errors(dup(STDERR_FILENO));
  dup2(FileDescriptor(open("/dev/full", O_WRONLY)).Get(), STDERR_FILENO);
  home_.Write(TemporaryHome::MasterFile(), "a");
  Start();
  dup2(errors.Get(), STDERR_FILENO);
  EXPECT_EQ(Master(), DefaultMasterFile());
  (void)testing::internal::GetCapturedStderr();
  EXPECT_TRUE(SetNumber("domains", 1, "___MASTER_DOMAIN"));
  EXPECT_THAT(Listed(), IsEmpty()) << "lost while the panel runs";
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

TEST_F(MasterSettings, StayWhenAPassingErrorKeepsThemFromBeingRead) {
  Begin({"a", "b"});
  EXPECT_TRUE(SetNumber("defaultklimit", 5, "___MASTER_DOMAIN"));
  EXPECT_TRUE(SetNumber("klimit", 7, "b"));
  const TemporaryHome::Snapshot before = home_.Take();
  testing::internal::CaptureStderr();
  {
    const LoweredLimit no_more_descriptors(RLIMIT_NOFILE, 0);
    Start();
    EXPECT_EQ(Held("defaultklimit"), "defaultklimit=100");
    EXPECT_EQ(Held("klimit", "b"), "klimit=100");
    EXPECT_FALSE(SetNumber("klimit", 1, "b"));
    EXPECT_FALSE(SetNumber("defaultklimit", 1, "___MASTER_DOMAIN"));
    EXPECT_FALSE(manager_->AddDomainWithDefaultSettings("c"));
    EXPECT_FALSE(manager_->RemoveDomainInformation("a", true, true));
    EXPECT_FALSE(manager_->RemoveAllSettingsAndOrLocalStorage(true, false));
    EXPECT_FALSE(manager_->RemoveAllSettingsAndOrLocalStorageForTimeRange(
        true, false, 0, 1UL << 40));
    EXPECT_FALSE(manager_->WriteOrUpdateDefaultMasterSettings());
    EXPECT_THAT(Listed(), IsEmpty());
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "SMSettingsManager: " + (home_ / TemporaryHome::MasterFile()) +
                ": Too many open files\nSMSettingsManager: " +
                (home_ / TemporaryHome::SettingsFileOf("b")) +
                ": Too many open files\n");
  EXPECT_EQ(home_.Take(), before);
  EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("a")) << "tried again";
  EXPECT_TRUE(manager_->DeleteDomainStorage("a"));
  EXPECT_FALSE(fs::exists(home_ / Storage("a"))) << "looked for again";
  EXPECT_EQ(Held("klimit", "b"), "klimit=7");
  EXPECT_EQ(Held("defaultklimit"), "defaultklimit=5");
  EXPECT_THAT(Listed(), ElementsAre("a", "b"));
}

TEST_F(MasterSettings, StayWhileTheirWriterRemovesAndRewritesThem) {
  Begin({"a"});
  EXPECT_TRUE(SetNumber("defaultklimit", 5, "___MASTER_DOMAIN"));
  const std::string files[] = {TemporaryHome::MasterFile(),
                               TemporaryHome::SettingsFileOf("a")};
  const std::string whole[] = {Master(), SiteFile("a")};
  for (const std::string& meanwhile : {"missing"s, ""s, Hex("00 BF 00")}) {
    for (int i = 0; i < 2; ++i) {
      SCOPED_TRACE(meanwhile + files[i]);
      fs::remove(home_ / files[i]);
      if (meanwhile != "missing") home_.Write(files[i], meanwhile);
      before_call = [&](unsigned int calls, auto&) {
        if (calls == faults::kWait) home_.Write(files[i], whole[i]);
      };
      testing::internal::CaptureStderr();
      Start();
      EXPECT_EQ(Held("defaultklimit"), "defaultklimit=5");
      EXPECT_THAT(Listed(), ElementsAre("a"));
      EXPECT_EQ(Held("klimit", "a"), "klimit=100");
      before_call = nullptr;
      (void)testing::internal::GetCapturedStderr();
    }
  }
}

TEST_F(SiteSettings, StayWhereFewDescriptorsAreLeft) {
  Begin({"a"});
  EXPECT_TRUE(SetNumber("klimit", 100, "a"));
  const FileDescriptor first_free(dup(STDIN_FILENO));
  for (int few = 0; few < 6; ++few) {
    SCOPED_TRACE(few);
    {
      const LoweredLimit limit(RLIMIT_NOFILE, rlim_t(first_free.Get() + few));
      EXPECT_EQ(SetNumber("klimit", few, "a"), few > 2);
    }
    EXPECT_THAT(SiteOnDisk("a"),
                HasSubstr("klimit=" + std::to_string(few > 2 ? few : 100)));
  }
}

TEST_F(SiteSettings, ComeBackWhenNewOnesDoNotFit) {
  Begin({"a"});
  const std::string text(4000, 'x');
  SASM::SettingDataItem item("k", new SASM::SimpleString(text.c_str()));
  const TemporaryHome::Snapshot before = home_.Take();
  {
    const LoweredLimit small_files(RLIMIT_FSIZE, 2000);
    EXPECT_FALSE(manager_->SetSetting(&item, "k", "a"));
    EXPECT_FALSE(manager_->SetSetting(&item, "k", "___MASTER_DOMAIN"));
    EXPECT_EQ(home_.Take(), before);
    const LoweredLimit tiny_files(RLIMIT_FSIZE, 10);
    EXPECT_FALSE(manager_->HasSetting("k", "new"));
    EXPECT_FALSE(home_.Has(TemporaryHome::SettingsFileOf("new"))) << "torn";
  }
  EXPECT_TRUE(manager_->SetSetting(&item, "k", "a"));
}

TEST_F(MasterSettings, GoWithTheFirstLocalStorageInNaturalOrder) {
  const std::string root = std::string(TemporaryHome::kSharedObjects) + "/";
  Start();
  home_.Write(root + "site/data", "");
  EXPECT_TRUE(manager_->DeleteDomainStorage("site"));
  EXPECT_FALSE(home_.Has(root + "site")) << "there was none at the start";
  // So many that no directory lists them in this order by chance.
  for (int i = 1; i < 30; ++i) {
    const std::string name = i == 15 ? "2" : std::to_string(i * 7 % 30 + 10);
    home_.Write(root + name + "/site/data", i == 15 ? "longer" : "x");
  }
  Start();
  EXPECT_EQ(manager_->SizeOfLocalStorage("site"),
            files_.SizeOfFileAtPath((home_ / (root + "2/site")).c_str()));
  EXPECT_TRUE(manager_->DeleteDomainStorage("site"));
  EXPECT_FALSE(home_.Has(root + "2/site"));
}

TEST_F(SiteSettings, AreReadUpToALimit) {
  const std::string file = TemporaryHome::SettingsFileOf("a");
  home_.Write(file, File("n", Entry("klimit", Number(5))));
  for (const bool is_too_large : {false, true}) {
    fs::resize_file(home_ / file, SASM::kLargestSettingsFile + is_too_large);
    SASM::FileImage image;
    EXPECT_EQ(SASM::ReadFileImage((home_ / file).c_str(), &image),
              !is_too_large);
  }
}

TEST_F(MasterSettings, LiveInMemoryWithoutAHome) {
  setenv("HOME", "", 1);
  home_in_password_database = "";
  testing::internal::CaptureStderr();
  LinuxFileManager homeless;
  SASM::SettingsManager manager(&homeless);
  EXPECT_TRUE(manager.AddDomainWithDefaultSettings("site"));
  EXPECT_TRUE(manager.HasSetting("klimit", "site"));
  EXPECT_EQ(manager.SizeOfSettings("site"), 0u);
  EXPECT_EQ(manager.SizeOfLocalStorage("site"), 0u);
  EXPECT_TRUE(manager.RemoveDomainInformation("site", true, true));
  EXPECT_TRUE(manager.RemoveAllSettingsAndOrLocalStorage(true, true));
  EXPECT_TRUE(manager.RemoveAllSettingsAndOrLocalStorageForTimeRange(
      true, true, 0, 1UL << 40));
  EXPECT_TRUE(manager.RemoveAssetCache());
  home_in_password_database = nullptr;
  EXPECT_THAT(testing::internal::GetCapturedStderr(),
              HasSubstr("There is no home directory for \"~/"));
  EXPECT_THAT(home_.List(), IsEmpty());
}

TEST_F(SiteSettings, GetAFileWhenTheyAreOnlyAskedFor) {
  Start();
  EXPECT_FALSE(manager_->HasSetting("klimit", "new.example"));
  EXPECT_EQ(SiteFile("new.example"), File("new.example/settings"));
  EXPECT_THAT(Listed(), IsEmpty());

  home_.Write(TemporaryHome::SettingsFileOf("broken"), "garbage");
  EXPECT_EQ(Held("klimit", "broken"), "none");
  EXPECT_EQ(SiteFile("broken"), File("broken/settings"));
}

TEST_F(SiteSettings, AreWrittenWithEveryChange) {
  Begin({"a"});
  EXPECT_TRUE(SetNumber("klimit", 5, "a"));
  EXPECT_EQ(SiteOnDisk("a"),
            "p2pallow=false always=false p2palways=false klimit=5 "
            "allow=false");
  // In bucket 1: behind "p2pallow", before "p2palways".
  for (const char* key : {"always", "no such key"}) {
    home_.Write(TemporaryHome::SettingsFileOf("a"), "");
    EXPECT_TRUE(manager_->RemoveSettingWithKey(key, "a"));
    EXPECT_EQ(SiteOnDisk("a"),
              "p2pallow=false p2palways=false klimit=5 allow=false");
  }
  EXPECT_EQ(Held("p2pallow", "a"), "p2pallow=false");
}

TEST_F(SiteSettings, OfANewSiteFollowTheMasterSettings) {
  const std::tuple<Bytes, const char*, const char*> cases[] = {
      {Entry("defaultklimit", Number(7)) + Entry("defaultalways", Bool(1)),
       "always=true", "klimit=7"},
      {Entry("defaultklimit", Bool(1)) + Entry("defaultalways", Number(1)),
       "always=false", "klimit=100"},
      {"", "always=false", "klimit=100"},
  };
  for (const auto& [master, always, limit] : cases) {
    SCOPED_TRACE(limit);
    fs::remove_all(home_ / TemporaryHome::kSettings);
    WriteMaster(master);
    Start();
    EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("a"));
    EXPECT_EQ(SiteOnDisk("a"), always + " p2pallow=false p2palways=false "s +
                                   limit + " allow=false");
    EXPECT_EQ(Held("domains"), "domains=[a=true]");
    EXPECT_THAT(ListedOnDisk(), ElementsAre("a"));
  }
}

TEST_F(SiteSettings, ThatAreThereStayWhenTheSiteIsAdded) {
  Begin({"listed"});
  home_.Write(TemporaryHome::SettingsFileOf("known"),
              File("n", Entry("klimit", Number(5)) + Entry("x", Bool(1))));
  EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("known"));
  EXPECT_THAT(SiteOnDisk("known"), HasSubstr("klimit=5 "));
  EXPECT_THAT(SiteOnDisk("known"), HasSubstr(" allow=false"));

  home_.Write(TemporaryHome::SettingsFileOf("listed"), "untouched");
  home_.Write(TemporaryHome::MasterFile(), "untouched");
  EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("listed"));
  EXPECT_EQ(SiteFile("listed"), "untouched");
  EXPECT_EQ(Master(), "untouched");
}

TEST_F(SiteSettings, TakeThePlaceOfOddThings) {
  home_.Write("precious", "");
  const std::string files[] = {home_ / TemporaryHome::MasterFile(),
                               home_ / TemporaryHome::SettingsFileOf("a")};
  for (const std::string command :
       {"mkfifo \"$place\"", "mkdir -p \"$place/inside\"",
        "ln -s ~/precious \"$place\"", "ln -s \"$place\" \"$place\"",
        "ln -s /dev/tty \"$place\""}) {
    SCOPED_TRACE(command);
    fs::remove_all(home_ / ".orbelline");
    fs::create_directories(fs::path(files[1]).parent_path());
    for (const std::string& file : files) {
      setenv("place", file.c_str(), 1);
      ASSERT_EQ(std::system(command.c_str()), 0);
    }
    testing::internal::CaptureStderr();  // an empty file has no header
    Start();
    EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("a"));
    (void)testing::internal::GetCapturedStderr();
    for (const std::string& file : files) {
      EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(file)));
    }
    EXPECT_EQ(home_.Read("precious"), "");
  }
}

}  // namespace
