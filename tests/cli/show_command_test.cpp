#include <sys/stat.h>

#include <clocale>

#include "tests/cli/settings_program_test.h"

namespace {

using namespace image;
using testing::HasSubstr;
using testing::Not;
using Home = TemporaryHome;

constexpr char kGlobalStates[] =
    ".global | \"\\(.storage) \\(.camera) \\(.network) \\(.damaged)\"";
constexpr char kSiteStates[] =
    ".sites[] | \"\\(.site): \\(.storage) \\(.storage_limit_kb) \\(.camera) "
    "\\(.network) \\(.damaged)\"";

// A home with a site of each kind.
class ShowCommand : public SettingsProgramTest {
 protected:
  ShowCommand() {
    Store("block", Entry("klimit", Number(-1)) + Entry("always", Bool(1)));
    Store("日\x1B", Entry("klimit", Number(10240)) + Entry("always", Bool(1)) +
                        Entry("allow", Bool(1)) + Entry("p2palways", Bool(1)));
    Store("ask", Entry("klimit", Number(0)));
    Store("\xFF", Entry("klimit", Number(-2)));
    home_.Write(Home::SettingsFileOf("empty"), "");
    StoreMaster(Entry("trustedPaths", Array(Element("/a\n", Bool(1)))));
  }
  void Store(const std::string& site, const Bytes& entries) const {
    home_.Write(Home::SettingsFileOf(site), File("n", entries));
  }
  void StoreMaster(const Bytes& entries) const {
    const Bytes sites =
        Flags({"gone", "block", "日\x1B", "ask", "empty", "\xFF"});
    home_.Write(Home::MasterFile(),
                File("n", Entry("domains", Array(sites)) + entries));
  }
};

TEST_F(ShowCommand, ShowsDefaultsWhenNothingIsStored) {
  for (const char* directory : {"empty", "missing"}) {
    const TemporaryHome home;
    setenv("HOME", (home / directory).c_str(), 1);
    std::filesystem::create_directory(home / "empty");
    const ProgramRun run = Query("show", kGlobalStates);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, "allow ask ask false\n");
    EXPECT_THAT(home.List(), testing::ElementsAre("empty"));
  }
}

TEST_F(ShowCommand, ShowsSitesInOrderWithAllTheirSettings) {
  EXPECT_EQ(Answer("show", kSiteStates),
            "block: block -1 block ask false\n"
            "日\x1B: allow 10240 allow block false\n"
            "ask: ask 0 ask ask false\n"
            "\uFFFD: allow -2 ask ask false\n");
  EXPECT_EQ(Answer("show", ".trusted_locations"), "[\"/a\\n\"]\n");
  EXPECT_EQ(Run("show").output, R"(Tessary Corvane Player Preferences
  Local Storage Settings          Allow (100 kB)
  Camera and Microphone Settings  Ask me
  Peer-assisted Networking        Ask me

Website   Storage Used  Storage Access    Camera and Mic Access  Network Access
  block   none          Block             Block                  Ask me
  日\x1B  none          Allow (10.00 MB)  Allow                  Block
  ask     none          Ask me            Ask me                 Ask me
  \xFF    none          Allow (∞)         Ask me                 Ask me

Trusted File or Folder Location
  /a\x0A
)");
}

TEST_F(ShowCommand, MeasuresTheDataOfSites) {
  const std::string data = Home::StorageOf("ask");
  home_.Write(data + "/data", std::string(1500, 'x'));
  struct stat info = {};
  ASSERT_EQ(stat((home_ / data).c_str(), &info), 0);
  const std::string used = std::to_string(info.st_size + 1500);
  EXPECT_EQ(Answer("show ask", ".sites[].storage_used_bytes"), used + "\n");
  EXPECT_THAT(Run("show").output, HasSubstr(" (" + used + ") "));
}

TEST_F(ShowCommand, LetsAGlobalBlockOverrideASite) {
  Store("ask", Entry("p2palways", Bool(1)) + Entry("p2pallow", Bool(7)));
  EXPECT_EQ(Answer("show ask", kSiteStates), "ask: block -1 ask allow false\n");
  StoreMaster(Entry("disallowP2PUplink", Bool(1)) +
              Entry("defaultalways", Bool(1)) +
              Entry("defaultklimit", String("of another type")));
  EXPECT_EQ(Answer("show", kGlobalStates), "block block block false\n");
  EXPECT_EQ(Answer("show ask", kSiteStates), "ask: block -1 ask block false\n");
}

TEST_F(ShowCommand, ShowsTheSitesThatWereAskedFor) {
  Store("unlisted", Entry("klimit", Number(10)));
  const struct {
    const char* arguments;
    int status;
    const char* sites;
  } cases[] = {
      {"ask block", 0, "block ask"},
      {"\xFF", 0, "\uFFFD"},
      {"ask gone", 1, "ask"},
      {"unlisted", 0, "unlisted"},
      {"-p storage=block", 0, "block"},
      {"--permission=storage=ask", 0, "ask"},
      {"--permission network=block", 0, "日\x1B"},
      {"-p camera=ask -p storage=allow", 0, "\uFFFD unlisted"},
      {"-p storage=block -p storage=ask", 0, ""},
      {"-p storage=block -- ask", 0, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.arguments);
    const ProgramRun run = Query(std::string("show ") + c.arguments,
                                 "[.sites[].site] | join(\" \")");
    EXPECT_EQ(run.status, c.status);
    EXPECT_EQ(run.output, std::string(c.sites) + "\n");
  }
  for (const char* arguments : {"show empty Ask", "show --json empty Ask"}) {
    const ProgramRun run = Run(arguments);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(
        run.errors,
        "corvane-player-settings: empty: no such site\n"
        "corvane-player-settings: Ask: no such site; did you mean ask?\n");
  }
}

TEST_F(ShowCommand, NamesWhatIsDamagedAndShowsTheRest) {
  const std::string site = Home::SettingsFileOf("ask");
  const std::string master = Home::MasterFile();
  const struct {
    std::string file;
    Bytes bytes;
    const char* damage;
    const char* storage;  // of all sites, then of each
  } cases[] = {
      {site, "garbage", ": byte 2: The record type is not 2.\n",
       "allow block allow block! allow"},
      {site, File("n") + Text("klimit") + Number(7),  // still read
       ": byte 36: ReadU8() attempted to read beyond end-of-stream.\n",
       "allow block allow allow! allow"},
      {master, "",
       ": byte 0: ReadU16() attempted to read beyond end-of-stream.\n",
       "allow! allow! block allow allow"},  // listed no more
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.damage);
    home_.Write(c.file, c.bytes);
    const ProgramRun run =
        Query("show",
              "[.global, .sites[] | .storage + if .damaged then \"!\" else "
              "\"\" end] | join(\" \")");
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(
        run.errors,
        HasSubstr("corvane-player-settings: " + (home_ / c.file) + c.damage));
    EXPECT_EQ(run.output, std::string(c.storage) + "\n");
  }
  std::filesystem::remove(home_ / master);
  std::filesystem::create_directory(home_ / master);
  EXPECT_EQ(Run("show").status, 1);
}

TEST_F(ShowCommand, ChangesNothing) {
  home_.Write(Home::SettingsFileOf("block"), "garbage");
  home_.Write(Home::StorageOf("ask") + "/data", "x");
  // Reading a file updates an access time older than the last change.
  (void)RunCommand("find ~ -type f -exec touch -a -d @1 {} +");
  const std::string state =
      "find ~ -type d -printf '%p %m %C@\n' -o -printf '%p %i %m %A@ %C@\n'";
  const std::string before = RunCommand(state).output;
  const std::string file = Quoted(home_ / Home::SettingsFileOf("ask"));
  for (const std::string& arguments :
       {std::string("show"), std::string("show --json ask gone"),
        "inspect " + file, "inspect --json " + file}) {
    SCOPED_TRACE(arguments);
    (void)Run(arguments);
    EXPECT_EQ(RunCommand(state).output, before);
  }
}

TEST_F(ShowCommand, SpeaksTheLanguageOfTheUserButNotInJson) {
  constexpr char kLocale[] = "de_DE.UTF-8";
  ASSERT_NE(std::setlocale(LC_MESSAGES, kLocale), nullptr) << kLocale;
  setenv("LC_ALL", kLocale, 1);
  EXPECT_THAT(Run("show").output,
              HasSubstr("Kamera- und Mikrofoneinstellungen  "));
  EXPECT_EQ(Answer("show", ".global.camera"), "ask\n");
}

#ifndef __SANITIZE_ADDRESS__  // a sanitizer reserves more than any limit
TEST_F(ShowCommand, EndsWithOneLineWhenMemoryRunsOut) {
  std::filesystem::resize_file(home_ / Home::MasterFile(), 60 << 20);
  const ProgramRun run = RunCommand("ulimit -v 50000; " PROGRAM " show");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "Out of memory.\n");
}
#endif

}  // namespace
