#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <limits>
#include <map>
#include <sstream>

#include "tests/support/program_run.h"
#include "tests/support/settings_image.h"
#include "tests/support/temporary_home.h"

using image::Array;
using image::Bool;
using image::Element;
using image::Entry;
using image::Number;
using image::String;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class ShowCommand : public testing::Test {
 protected:
  ShowCommand() { setenv("LC_ALL", "C", 1); }

  // A site that is on the list when StoreMaster is called.
  void StoreSite(const std::string& site, const image::Bytes& entries) {
    home_.Write(TemporaryHome::SettingsFileOf(site),
                image::File(site + "/settings", entries));
    List(site);
  }
  void List(const std::string& site) { listed_ += Element(site, Bool(1)); }
  void StoreMaster(const image::Bytes& entries = {}) {
    home_.Write(
        TemporaryHome::MasterFile(),
        image::File("settings", Entry("domains", Array(listed_)) + entries));
  }
  static ProgramRun Run(const std::string& arguments) {
    return RunCommand(std::string(PROGRAM) + " " + arguments);
  }
  // What a jq filter makes of the JSON, which it has to accept.
  static std::string Query(const std::string& filter,
                           const std::string& arguments = "show") {
    const ProgramRun run =
        RunCommand(std::string(PROGRAM) + " --json " + arguments + " 2>&1 | " +
                   "jq -cr " + Quoted(filter));
    EXPECT_EQ(run.errors, "");
    return run.output;
  }

  TemporaryHome home_;

 private:
  image::Bytes listed_;
};

TEST_F(ShowCommand, ShowsDefaultsWhereNothingIsKept) {
  const ProgramRun run = Run("show");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output,
            "Tessary Corvane Player Preferences\n"
            "  Local Storage Settings          Allow (100 kB)\n"
            "  Camera and Microphone Settings  Ask me\n"
            "  Peer-assisted Networking        Ask me\n"
            "\n"
            "Website  Storage Used  Storage Access  Camera and Mic Access  "
            "Network Access\n"
            "\n"
            "Trusted File or Folder Location\n");
  EXPECT_THAT(home_.List(), IsEmpty());
}

TEST_F(ShowCommand, ShowsSitesInOrderWithEverythingTheyHave) {
  StoreSite("b.example",
            Entry("klimit", Number(-2)) + Entry("always", Bool(1)) +
                Entry("allow", Bool(1)) + Entry("p2palways", Bool(1)));
  StoreSite("a.example", Entry("klimit", Number(10240)));
  StoreMaster(Entry("trustedPaths", Array(Element("/home/me/x", Bool(1)))));
  EXPECT_EQ(Query(".sites[]"),
            "{\"site\":\"b.example\",\"storage\":\"allow\","
            "\"camera\":\"allow\",\"network\":\"block\","
            "\"storage_limit_kb\":-2,\"storage_used_bytes\":0,"
            "\"damaged\":false}\n"
            "{\"site\":\"a.example\",\"storage\":\"allow\","
            "\"camera\":\"ask\",\"network\":\"ask\","
            "\"storage_limit_kb\":10240,\"storage_used_bytes\":0,"
            "\"damaged\":false}\n");
  EXPECT_EQ(Query(".trusted_locations[]"), "/home/me/x\n");
  EXPECT_THAT(
      Run("show").output,
      HasSubstr("\n  b.example  none          Allow (∞)         Allow     "
                "             Block\n"
                "  a.example  none          Allow (10.00 MB)  Ask me    "
                "             Ask me\n"
                "\nTrusted File or Folder Location\n  /home/me/x\n"));
}

TEST_F(ShowCommand, MeasuresTheDataOfSites) {
  StoreSite("a", {});
  StoreMaster();
  home_.Write(std::string(TemporaryHome::kSharedObjects) + "/ABC/a/data",
              std::string(1500, 'x'));
  const std::string directory = TemporaryHome::kSharedObjects;
  struct stat info = {};
  ASSERT_EQ(stat((home_ / (directory + "/ABC/a")).c_str(), &info), 0);
  const std::string used = std::to_string(info.st_size + 1500);
  EXPECT_EQ(Query(".sites[].storage_used_bytes"), used + "\n");
  EXPECT_THAT(Run("show").output, HasSubstr(" (" + used + ")  "));
}

// Of storage, camera and network: b(lock), a(llow) or q, ask.
constexpr char kStates[] =
    "[(.global, .sites[0]) | .storage, .camera, .network"
    " | {block: \"b\", ask: \"q\", allow: \"a\"}[.]] | add";

TEST_F(ShowCommand, ShowsEffectiveStates) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  const struct {
    const char* what;
    image::Bytes master;
    image::Bytes site;
    const char* states;  // global, then the site's
  } cases[] = {
      {"nothing stored for the site", {}, {}, "aqqbqq"},
      {"ask before storing", {}, Entry("klimit", Number(0)), "aqqqqq"},
      {"unlimited storage", {}, Entry("klimit", Number(-2)), "aqqaqq"},
      {"a limit without meaning", {}, Entry("klimit", Number(-3)), "aqqbqq"},
      {"a limit that is no number",
       {},
       Entry("klimit", Number(kNaN)),
       "aqqqqq"},
      {"a limit of another type", {}, Entry("klimit", Bool(1)), "aqqbqq"},
      {"camera always", {}, Entry("always", Bool(1)), "aqqbbq"},
      {"camera allow without always", {}, Entry("allow", Bool(1)), "aqqbqq"},
      {"network allow",
       {},
       Entry("p2palways", Bool(1)) + Entry("p2pallow", Bool(7)),
       "aqqbqa"},
      {"network blocked for all, allowed for the site",
       Entry("disallowP2PUplink", Bool(1)),
       Entry("p2palways", Bool(1)) + Entry("p2pallow", Bool(1)), "aqbbqb"},
      {"camera blocked for new sites",
       Entry("defaultalways", Bool(1)),
       {},
       "abqbqq"},
      {"storage blocked for new sites", Entry("defaultklimit", Number(-1)),
       Entry("klimit", Number(1)), "bqqaqq"},
      {"global values of other types",
       Entry("defaultklimit", String("1")) + Entry("defaultalways", Number(1)),
       {},
       "bqqbqq"},
  };
  const std::string master = TemporaryHome::MasterFile();
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    home_.Write(TemporaryHome::SettingsFileOf("s"),
                image::File("s/settings", c.site));
    home_.Write(
        master,
        image::File("settings",
                    Entry("domains", Array(Element("s", Bool(1)))) + c.master));
    EXPECT_EQ(Query(kStates), std::string(c.states) + "\n");
  }
}

TEST_F(ShowCommand, ShowsTheSitesThatWereAskedFor) {
  StoreSite("block", Entry("klimit", Number(-1)) + Entry("always", Bool(1)));
  StoreSite("ask", Entry("klimit", Number(0)));
  StoreSite("allow", Entry("klimit", Number(7)) + Entry("always", Bool(1)));
  StoreMaster();
  const struct {
    const char* arguments;
    const char* sites;
  } cases[] = {
      {"show", "block ask allow"},
      {"show ask block", "block ask"},
      {"show -p storage=block", "block"},
      {"show --permission=storage=ask", "ask"},
      {"show --permission camera=block", "block allow"},
      {"show -p camera=block -p storage=allow", "allow"},
      {"show -p network=ask allow", "allow"},
      {"show -p storage=block -p storage=ask", ""},
      {"show -p storage=block -- ask", ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.arguments);
    EXPECT_EQ(Run(c.arguments).status, 0);
    EXPECT_EQ(Query("[.sites[].site] | join(\" \")", c.arguments),
              std::string(c.sites) + "\n");
  }
}

TEST_F(ShowCommand, PassesOverListedSitesWithoutSettings) {
  List("gone");
  List("empty");
  home_.Write(TemporaryHome::SettingsFileOf("empty"), "");
  StoreSite("there", {});
  StoreMaster();
  EXPECT_EQ(Query(".sites[].site"), "there\n");
  for (const char* site : {"gone", "empty", "never seen", ""}) {
    SCOPED_TRACE(site);
    const ProgramRun run = Run("show " + Quoted(site));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "corvane-player-settings: " + std::string(site) +
                              ": no such site\n");
  }
}

TEST_F(ShowCommand, NamesWhatIsDamagedAndShowsTheRest) {
  StoreSite("damaged", {});
  StoreSite("sound", Entry("klimit", Number(0)));
  StoreMaster();
  const std::string file = TemporaryHome::SettingsFileOf("damaged");
  const image::Bytes sound = image::File("damaged/settings", {});
  const struct {
    image::Bytes bytes;
    const char* what;
  } cases[] = {
      {"x", "byte 0: ReadU16() attempted to read beyond end-of-stream."},
      {"garbage", "The record type is not 2."},
      {sound + image::Text("key") + Bool(1) + "x",
       "The entry is not closed by a zero byte."},
      {sound + image::Text("key") + Bool(1),  // read, but something is missing
       "ReadU8() attempted to read beyond end-of-stream."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    home_.Write(file, c.bytes);
    const ProgramRun run = Run("show --json");
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr(home_ / file));
    EXPECT_THAT(run.errors, HasSubstr(c.what));
    EXPECT_EQ(std::ranges::count(run.errors, '\n'), 1);
    EXPECT_THAT(run.output,
                HasSubstr("{\"site\":\"sound\",\"storage\":\"ask\""));
    EXPECT_THAT(run.output, HasSubstr("\"damaged\":true"));
  }
  EXPECT_EQ(Run("show sound").status, 0);
}

TEST_F(ShowCommand, NamesDamagedGlobalSettings) {
  for (const char* bytes : {"", "garbage"}) {
    home_.Write(TemporaryHome::MasterFile(), bytes);
    const ProgramRun run = Run("show --json");
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr(TemporaryHome::MasterFile()));
    EXPECT_THAT(run.output, HasSubstr("\"storage\":\"allow\""));
  }
}

TEST_F(ShowCommand, NamesSettingsThatAreNoFile) {
  std::filesystem::create_directories(home_ / TemporaryHome::MasterFile());
  const ProgramRun run = Run("show");
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.errors, HasSubstr("not a settings file"));
}

TEST_F(ShowCommand, WritesJsonForAnyBytes) {
  const std::string hostile = "\xFF\"\\\n\x01\x7F\xC0\xAF日";
  StoreSite(hostile, Entry("klimit", Number(-HUGE_VAL)));
  StoreMaster(
      Entry("defaultklimit", Number(HUGE_VAL)) +
      Entry("trustedPaths", Array(Element("\xED\xA0\x80/\t", Bool(1)))));
  EXPECT_EQ(Query(".global.storage_limit_kb, .sites[0].storage_limit_kb"),
            "Infinity\n-Infinity\n");
  EXPECT_EQ(Query(".sites[0].site"), "\uFFFD\"\\\n\x01\x7F\uFFFD\uFFFD日\n");
  EXPECT_EQ(Query(".trusted_locations[0]"), "\uFFFD\uFFFD\uFFFD/\t\n");
  EXPECT_THAT(Run("show").output,
              HasSubstr("  \\xFF\"\\\\\\x0A\\x01\\x7F\\xC0\\xAF日  none"));
}

TEST_F(ShowCommand, FindsASiteWhoseNameIsNoText) {
  StoreSite("\xFF", {});
  StoreMaster();
  EXPECT_EQ(Run("show \xFF").status, 0);
}

TEST_F(ShowCommand, NeedsAHomeDirectoryThatIsThere) {
  const ProgramRun run =
      RunCommand(std::string("HOME=/nonexistent ") + PROGRAM + " show");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
}

// Bytes, identity and all times of everything under the home directory.
std::map<std::string, std::string> Snapshot(const TemporaryHome& home) {
  std::map<std::string, std::string> snapshot;
  for (const std::string& name : home.List()) {
    struct stat info = {};
    EXPECT_EQ(lstat((home / name).c_str(), &info), 0) << name;
    std::ostringstream text;
    for (const timespec& time : {info.st_atim, info.st_mtim, info.st_ctim}) {
      text << time.tv_sec << "." << time.tv_nsec << " ";
    }
    text << info.st_ino << " " << info.st_mode << " " << info.st_size;
    snapshot[name] = text.str();
  }
  return snapshot;
}

TEST_F(ShowCommand, ChangesNothing) {
  StoreSite("a", Entry("klimit", Number(1)));
  StoreSite("damaged", {});
  List("gone");
  StoreMaster();
  home_.Write(TemporaryHome::SettingsFileOf("damaged"), "garbage");
  home_.Write(std::string(TemporaryHome::kSharedObjects) + "/ABC/a/b/data",
              "x");
  // Reading updates a time of access that is older than the last change.
  const timespec old_access[2] = {{1, 0}, {0, UTIME_OMIT}};
  for (const std::string& name : home_.List()) {
    ASSERT_EQ(utimensat(AT_FDCWD, (home_ / name).c_str(), old_access, 0), 0);
  }
  const auto before = Snapshot(home_);
  const std::string file = home_ / TemporaryHome::SettingsFileOf("a");
  for (const std::string& arguments :
       {std::string("show"), std::string("show --json a gone"),
        "inspect " + Quoted(file), "inspect --json " + Quoted(file)}) {
    SCOPED_TRACE(arguments);
    (void)Run(arguments);
    EXPECT_EQ(Snapshot(home_), before);
  }
}

TEST_F(ShowCommand, CarriesNoCodeThatWritesSettings) {
  const ProgramRun run = RunCommand(std::string("nm -C ") + PROGRAM);
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.output, HasSubstr("SettingsReader::ReadEntry"));
  EXPECT_THAT(run.output, testing::Not(HasSubstr("SettingsManager::")));
  EXPECT_THAT(run.output, testing::Not(HasSubstr("SettingsWriter::")));
}

TEST_F(ShowCommand, SaysWhenItsOutputIsLost) {
  const ProgramRun run = RunCommand(std::string(PROGRAM) + " show >/dev/full");
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.errors, HasSubstr("No space left on device"));
}

TEST_F(ShowCommand, RefusesCommandLinesWithoutSense) {
  for (const char* arguments :
       {"", "shw", "show --jsn", "show --permission", "show -p storage",
        "show -p storage=", "show -p =block", "show -p disk=block",
        "show -p storage=none", "show -p storage=block=x", "inspect",
        "inspect -p storage=block x", "version --json", "version x",
        "--json"}) {
    SCOPED_TRACE(arguments);
    const ProgramRun run = Run(arguments);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_THAT(run.errors, HasSubstr("--help"));
  }
}

TEST_F(ShowCommand, SpeaksTheLanguageOfTheUserButNotInJson) {
  constexpr char kLocale[] = "de_DE.UTF-8";
  if (!std::setlocale(LC_MESSAGES, kLocale)) GTEST_SKIP() << kLocale;
  setenv("LC_ALL", kLocale, 1);
  EXPECT_THAT(Run("show").output,
              HasSubstr("Kamera- und Mikrofoneinstellungen  "));
  EXPECT_EQ(Query(".global.camera"), "ask\n");
}

TEST_F(ShowCommand, TellsOfItself) {
  EXPECT_EQ(Run("--version").output, "corvane-player-settings 1.0.0\n");
  EXPECT_THAT(Run("show --help").output, HasSubstr("Usage: "));
  EXPECT_EQ(Run("--help").status, 0);
}

}  // namespace
