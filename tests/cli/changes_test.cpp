#include <unistd.h>

#include <filesystem>
#include <limits>

#include "tests/cli/settings_program_test.h"

namespace {

using namespace image;
using testing::HasSubstr;
using Home = TemporaryHome;

// The format, then what is given.
std::string DocumentOf(const std::string& members) {
  return R"({"format": "corvane-player-settings 1", )" + members + "}";
}

class Changes : public SettingsProgramTest {
 protected:
  ProgramRun Import(const std::string& document,
                    const std::string& options = "") const {
    home_.Write("document", document);
    return Run("import " + options + " " + Quoted(home_ / "document"));
  }
  static std::string Sites() { return Answer("show", "[.sites[].site]"); }
};

// Each row works on what the rows above have left.
TEST_F(Changes, ArePrintedOnceAndMadeOnce) {
  const std::string data = Home::StorageOf("a.example") + "/data";
  home_.Write(data, "x");
  home_.Write(Home::StorageOf("d.example") + "/data", "x");
  (void)RunCommand("touch -d '3 days ago' " + Quoted(home_ / data));
  home_.Write(std::string(Home::kAssetCache) + "/x", "x");
  home_.Write(std::string(Home::kLicences) + "/x", "x");
  home_.Write("policy",
              DocumentOf(R"("global": [{"key": "defaultalways", "value": true},
      {"key": "x", "value": {"number": "NaN"}}], "trusted_locations": ["/p"],
      "sites": [{"site": "a.example", "settings": [
        {"key": "klimit", "value": -1}, {"key": "p2palways", "value": true}]},
        {"site": "e", "listed": false, "settings": []}])"));
  const std::string policy = " " + Quoted(home_ / "policy");
  const struct {
    std::string arguments;
    const char* output;
  } cases[] = {
      {"set --add storage=250 camera=allow a.example b.example",
       "a.example: added\n"
       "a.example: storage allow → 250\n"
       "a.example: camera ask → allow\n"
       "b.example: added\n"
       "b.example: storage allow → 250\n"
       "b.example: camera ask → allow\n"},
      {"set storage=allow camera=allow a.example", ""},
      {"set --add network=block -- c=d a.example",
       "c=d: added\n"
       "c=d: network ask → block\n"
       "a.example: network ask → block\n"},
      {"set --all-sites camera=block storage=7",
       "all sites: camera ask → block\n"
       "a.example: camera allow → block\n"
       "b.example: camera allow → block\n"
       "c=d: camera ask → block\n"
       "all sites: storage allow → 7\n"},
      {"set --all-sites network=block", "all sites: network ask → block\n"},
      {"clear --older-than 4d storage", ""},
      {"clear --older-than 48h --keep .example storage", ""},
      {"clear --older-than 2d storage",
       "all sites: stored data older than 2d deleted\n"},
      {"set storage=block a.example d.example",
       "a.example: storage 250 → block\n"},
      {"remove --keep-data c=d nobody", "c=d: removed\n"},
      {"remove d.example", "d.example: stored data deleted\n"},
      {"trust /t/1 /t/2 /t/1", "/t/1: trusted\n/t/2: trusted\n"},
      {"untrust /t/1 /t/3", "/t/1: no longer trusted\n"},
      {"import" + policy,
       "all sites: x unset → nan\n"
       "/p: trusted\n"
       "e: added\n"},
      {"import --replace" + policy,
       "all sites: storage 7 → allow\n"
       "all sites: network block → ask\n"
       "/t/2: no longer trusted\n"
       "b.example: removed\n"
       "a.example: camera block → ask\n"
       "a.example: p2pallow false → unset\n"},
      {"clear --keep a.example settings", "e: removed\n"},
      {"clear settings cache licences storage",
       "all sites: stored data deleted\n"
       "all sites: settings removed\n"
       "asset cache: deleted\n"
       "licences: deleted\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.arguments);
    const Home::Snapshot before = home_.Take();
    EXPECT_EQ(Run("--dry-run " + c.arguments).output, c.output);
    EXPECT_EQ(home_.Take(), before);
    EXPECT_EQ(Run(c.arguments).output, c.output);
    const Home::Snapshot after = home_.Take();
    const ProgramRun again = Run(c.arguments);
    EXPECT_EQ(again.output, "");
    EXPECT_EQ(home_.Take(), after);
  }
}

TEST_F(Changes, AreRefusedAsAWhole) {
  home_.Write(Home::MasterFile(), "damaged");
  const char* arguments[] = {"set --add camera=ask a", "remove a",
                             "clear settings", "trust /x", "untrust /x"};
  for (const char* each : arguments) {
    SCOPED_TRACE(each);
    const Home::Snapshot before = home_.Take();
    const ProgramRun damaged = Run(each);
    EXPECT_EQ(damaged.status, 1);
    EXPECT_THAT(damaged.errors, HasSubstr("doctor --relist"));
    EXPECT_EQ(home_.Take(), before);
  }
  if (geteuid() != 0) GTEST_SKIP() << "only root can give a home away";
  ASSERT_EQ(chown(home_.Path().c_str(), 1234, 1234), 0);
  for (const char* each : arguments) {
    SCOPED_TRACE(each);
    EXPECT_THAT(Run(each).errors, HasSubstr("run it as that user"));
  }
}

TEST_F(Changes, LeaveOutWhatIsDamagedOrUnknown) {
  home_.Write(Home::SettingsFileOf("bad"), "damaged");
  (void)Run("set --add camera=ask good");
  const struct {
    std::string arguments;
    const char* output;
    const char* error;
  } cases[] = {
      {"set camera=block bad good", "good: camera ask → block\n",
       "byte 2: The record type is not 2."},
      {"set camera=ask Good good", "good: camera block → ask\n",
       "Good: no such site; did you mean good?; --add adds it"},
      {"export", "", "byte 2: The record type is not 2."},
      {"export nobody", "", "nobody: no such site"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.arguments);
    const ProgramRun run = Run(c.arguments);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, c.output);
    EXPECT_THAT(run.errors, HasSubstr(c.error));
  }
  EXPECT_EQ(home_.Read(Home::SettingsFileOf("bad")), "damaged");
}

TEST_F(Changes, OfADocumentThatIsWrongAreNotMade) {
  const std::string list = R"({"name": "a", "value": 1})";
  const auto value = [](const std::string& text) {
    return DocumentOf(R"("sites": [{"site": "a", "settings": []},
        {"site": "b", "settings": [{"key": "k", "value": )" +
                      text + "}]}]");
  };
  const std::string deep(100000, '[');
  const struct {
    std::string document;
    const char* problem;
  } cases[] = {
      {"", ":1:0: "},
      {DocumentOf("\n\"sites\": x"), ":2:10: "},
      {DocumentOf("\"sites\": [], \"sites\": []"), "duplicate object key"},
      {deep, "maximum parsing depth"},
      {"[]", ": the document: is not an object"},
      {"{}", ": format: is missing"},
      {R"({"format": "corvane-player-settings 2"})", ": format: is not"},
      {DocumentOf(R"("\u001b": 1)"), ": \\x1B: is an unknown member"},
      {DocumentOf(R"("global": {})"), ": global: is not an array"},
      {DocumentOf(R"("global": [{"key": "domains", "value": 1}])"),
       ": global[0].key: has a member of its own"},
      {DocumentOf(R"("trusted_locations": [""])"),
       ": trusted_locations[0]: is empty"},
      {DocumentOf(R"("sites": [{"site": "..", "settings": []}])"),
       ": sites[0].site: can be no site"},
      {DocumentOf(R"("sites": [{"site": "a", "settings": []},
                     {"site": {"bytes": "61"}, "settings": []}])"),
       ": sites[1].site: is there twice"},
      {DocumentOf(R"("sites": [{"site": "a", "listed": 1, "settings": []}])"),
       ": sites[0].listed: is neither true nor false"},
      {value("null"), ": sites[1].settings[0].value: is no value"},
      {value(R"({"bytes": "6"})"), ".value.bytes: is not a text of hex"},
      {value(R"({"bytes": "00"})"), ".value.bytes: is not a text of hex"},
      {value(R"("a\u0000b")"), ":2:"},
      {value("\"" + std::string(65536, 'x') + "\""), "longer than 65535"},
      {value(R"({"number": "1"})"), ".value.number: is not"},
      {value("1e999"), ":2:"},
      {value(R"({"array": [{"name": "", "value": 1}]})"),
       ".value.array[0].name: is empty"},
      {value(R"({"array": [{"name": "a", "value": {"array": []}}]})"),
       ".value.array[0].value: is an array within an array"},
      {value(R"(1}, {"key": "k", "value": 1)"),
       ": sites[1].settings[1].key: is there twice"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.problem);
    const ProgramRun run = Import(c.document);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_THAT(run.errors, HasSubstr(c.problem));
  }
  const ProgramRun partial = Import(DocumentOf("\"sites\": []"), "--replace");
  EXPECT_EQ(partial.status, 2);
  EXPECT_THAT(partial.errors, HasSubstr("global: is missing"));
  (void)RunCommand("truncate -s 64M ~/document && printf x >> ~/document");
  EXPECT_THAT(Run("import ~/document").errors, HasSubstr("larger than 64 MiB"));
  for (const char* unreadable : {"import /nonexistent", "import /"}) {
    EXPECT_EQ(Run(unreadable).status, 2);
  }
  EXPECT_THAT(home_.List(), testing::ElementsAre("document"));
}

TEST_F(Changes, CarryAllSettingsToAnotherHome) {
  using Limits = std::numeric_limits<double>;
  home_.Write(
      Home::SettingsFileOf("\xFF"),
      File("n", Entry("a", Array(Element("\xFE", String("x\x7F\u202E")) +
                                 Element("b", Number(-0.0)))) +
                    Entry("", Bool(1)) +
                    Entry("least", Number(Limits::denorm_min())) +
                    Entry("third", Number(1.0 / 3)) +
                    Entry("endless", Number(-Limits::infinity()))));
  (void)Run("set --add camera=allow listed a/b a");
  (void)Run("trust /x");
  const std::string document = Run("export").output;
  EXPECT_EQ(document.find_first_of("\x7F\xFF"), document.npos);
  const TemporaryHome other;
  other.Write("document", document);
  EXPECT_EQ(Run("import ~/document").status, 0);
  EXPECT_EQ(Run("export").output, document);
  EXPECT_EQ(Sites(), "[\"a\",\"a/b\",\"listed\",\"\uFFFD\"]\n");
  // The sites below and above it stay.
  (void)Run(
      "export a/b | sed 's/\"sites\"/\"global\": [], "
      "\"trusted_locations\": [], &/' >~/b");
  EXPECT_EQ(Run("import --replace --delete-data ~/b").status, 0);
  EXPECT_EQ(Sites(), "[\"a/b\"]\n");
}

TEST_F(Changes, AreProposedByTheDoctor) {
  EXPECT_EQ(Run("doctor").status, 0);
  (void)Run("set --add camera=allow good Up 'b c' bad gone");
  home_.Write(Home::SettingsFileOf("bad"), "damaged");
  std::filesystem::remove(home_ / Home::SettingsFileOf("gone"));
  home_.Write(Home::SettingsFileOf("new"),
              File("n", Entry("klimit", Number(5))));
  home_.Write(Home::StorageOf("data") + "/x", "x");
  home_.Write(std::string(Home::kSharedObjects) + "/z/x", "x");
  std::filesystem::create_symlink(
      "/tmp", home_ / (std::string(Home::kSettings) + "/#link"));
  const std::string kinds =
      "[.findings[] | .kind + \" \" + "
      "(.site // (.path | sub(\".*/\"; \"\")))] | "
      "join(\", \")";
  EXPECT_EQ(Answer("doctor", kinds),
            "impossible-name Up, impossible-name b c, missing-file gone, "
            "damaged-file settings.sol, unlisted-settings new, "
            "further-directory z, unlisted-data data, link #link\n");
  EXPECT_EQ(Run("doctor").status, 1);
  home_.Write(Home::MasterFile(), "");
  EXPECT_THAT(Run("doctor --relist").output,
              HasSubstr("all sites: defaults again\nUp: added\nb c: added\n"
                        "good: added\nnew: added\n"));
  EXPECT_EQ(Answer("show",
                   "[.sites[] | select(.listed) | .site, "
                   ".storage_limit_kb]"),
            "[\"Up\",100,\"b c\",100,\"good\",100,\"new\",5]\n");
}

}  // namespace
