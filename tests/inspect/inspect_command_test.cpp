#include <gmock/gmock.h>

#include <limits>

#include "tests/support/program_run.h"
#include "tests/support/settings_image.h"
#include "tests/support/temporary_home.h"

using image::Array;
using image::Bool;
using image::Element;
using image::Entry;
using image::Hex;
using image::Number;
using image::String;
using image::Text;
using testing::HasSubstr;

namespace {

class InspectCommand : public testing::Test {
 protected:
  [[nodiscard]] std::string Path(const std::string& name = "file") const {
    return home_ / name;
  }
  ProgramRun Inspect(const image::Bytes& bytes,
                     const std::string& arguments = "") {
    home_.Write("file", bytes);
    return RunCommand(std::string(PROGRAM) + " inspect " + Quoted(Path()) +
                      " " + arguments);
  }
  std::string Query(const image::Bytes& bytes, const std::string& filter) {
    return Inspect(bytes, "--json | jq -cr " + Quoted(filter)).output;
  }

  TemporaryHome home_;
};

image::Bytes FileOf(const image::Bytes& entries) {
  return image::File("s" + std::string(70, '/'), entries);
}
// Where the entries begin, and where one begins that follows 'good'.
constexpr int kFirst = 93;
constexpr int kSecond = kFirst + 9;

TEST_F(InspectCommand, ListsEntriesWithTypesAndOffsets) {
  const image::Bytes file = FileOf(
      Entry("klimit", Number(0.5)) + Entry("", Bool(9)) +
      Entry("list", Array(Element("a b", String("x\"\n")) +
                          Element("n", Number(-1)) + Element("y", Bool(0)))) +
      Entry("text", String("")));
  const ProgramRun run = Inspect(file);
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output, Path() + "\n  \"s" + std::string(70, '/') +
                            "\"\n"
                            "        93  number   klimit = 0.5\n"
                            "       111  boolean   = true\n"
                            "       116  array    list\n"
                            "            string     a b = \"x\"\\x0A\"\n"
                            "            number     n = -1\n"
                            "            boolean    y = false\n"
                            "       155  string   text = \"\"\n");
  EXPECT_EQ(Query(file, ".[0].entries[] | [.offset, .key, .type, .value]"),
            "[93,\"klimit\",\"number\",0.5]\n"
            "[111,\"\",\"boolean\",true]\n"
            "[116,\"list\",\"array\",["
            "{\"name\":\"a b\",\"type\":\"string\",\"value\":\"x\\\"\\n\"},"
            "{\"name\":\"n\",\"type\":\"number\",\"value\":-1},"
            "{\"name\":\"y\",\"type\":\"boolean\",\"value\":false}]]\n"
            "[155,\"text\",\"string\",\"\"]\n");
}

TEST_F(InspectCommand, ListsUpToTheDamageAndSaysWhereItIs) {
  const image::Bytes good = Entry("good", Bool(1));
  const struct {
    const char* what;
    image::Bytes bytes;
    int listed;
    int offset;
    const char* message;
  } cases[] = {
      {"nothing at all", "", 0, 0, "ReadU16() attempted"},
      {"another kind of file",
       "\x7F"
       "ELF",
       0, 2, "The record type is not 2."},
      {"cut in the header", FileOf(good).substr(0, 40), 0, 6,
       "The declared length"},
      {"cut in a key", FileOf(good) + Hex("00 09 61"), 2, kSecond + 2,
       "ReadAndCopyPString"},
      {"cut in a number", FileOf(good) + Entry("k", Number(1)).substr(0, 9), 1,
       kSecond + 4, "ReadDouble() attempted"},
      {"cut before the closing zero", FileOf(good) + Text("k") + Bool(1), 2,
       kSecond + 5, "ReadU8() attempted"},
      {"not closed", FileOf(good + Text("k") + Bool(1) + "x" + good), 1,
       kSecond + 6, "The entry is not closed by a zero byte."},
      {"an array that is not closed",
       FileOf(good + Text("k") + Hex("03 00 00 08 00") + good), 1, kSecond + 7,
       "The array is not closed by its marker."},
      {"an unknown type, passed over",
       FileOf(good + Text("k") + Hex("07 00") + good), 3, kSecond + 4,
       "Unexpected data-type"},
      {"an array in an array",
       FileOf(good + Text("k") + Hex("03") + Text("a") + Hex("03 00 00 09 00") +
              good),
       3, kSecond + 8, "Nested arrays"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const ProgramRun run = Inspect(c.bytes);
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.output, HasSubstr(std::to_string(c.offset) + "  damage   " +
                                      c.message));
    EXPECT_THAT(run.errors,
                HasSubstr(Path() + ": byte " + std::to_string(c.offset) + ": " +
                          c.message));
    EXPECT_EQ(
        Query(c.bytes, "(.[0].entries // [] | length), .[0].damage.offset"),
        std::to_string(c.listed) + "\n" + std::to_string(c.offset) + "\n");
  }
}

TEST_F(InspectCommand, GoesOnWithTheNextFile) {
  home_.Write("good", FileOf(Entry("k", Bool(1))));
  home_.Write("bad", "x");
  const ProgramRun run =
      RunCommand("cd " + Quoted(home_.Path()) + "; " + PROGRAM +
                 " inspect missing bad . good --json | jq -c "
                 "'map([.file, (.entries | length), .damage != null])'");
  EXPECT_EQ(run.output,
            "[[\"missing\",0,false],[\"bad\",0,true],[\".\",0,false],"
            "[\"good\",1,false]]\n");
  EXPECT_THAT(run.errors, HasSubstr("missing: No such file or directory\n"));
  EXPECT_THAT(run.errors, HasSubstr("bad: byte 0: "));
  EXPECT_THAT(run.errors, HasSubstr(".: not a settings file\n"));
}

TEST_F(InspectCommand, WritesJsonForAnyBytes) {
  std::string all_bytes;
  for (int byte = 1; byte < 256; ++byte) all_bytes += static_cast<char>(byte);
  using Limits = std::numeric_limits<double>;
  const image::Bytes file = image::File(
      all_bytes, Entry(all_bytes, String(all_bytes)) +
                     Entry("list", Array(Element(all_bytes, Bool(1)))) +
                     Entry("nan", Number(Limits::quiet_NaN())) +
                     Entry("inf", Number(-Limits::infinity())) +
                     Entry("max", Number(Limits::max())) +
                     Entry("zero", Number(-0.0)));
  EXPECT_EQ(Query(file,
                  ".[0].name == .[0].entries[0].key, "
                  "(.[0].entries[0].value | length), "
                  "(.[0].entries[2:] | map(.value))"),
            "true\n255\n"
            "[\"NaN\",\"-Infinity\",1.7976931348623157e+308,-0]\n");
}

// Every prefix of a file is a file that somebody's disk may hold.
TEST_F(InspectCommand, AcceptsAnyPrefix) {
  const image::Bytes file =
      image::File("settings", Entry("list", Array(Element("a", Number(1)))) +
                                  Entry("k", String("text")));
  std::string paths;
  for (std::size_t size = 0; size < file.size(); ++size) {
    home_.Write(std::to_string(size), file.substr(0, size));
    paths += " " + Quoted(Path(std::to_string(size)));
  }
  const std::string inspect = std::string(PROGRAM) + " inspect" + paths;
  EXPECT_EQ(RunCommand(inspect + " --json | jq -c 'length'").output,
            std::to_string(file.size()) + "\n");
  EXPECT_EQ(RunCommand(inspect).status, 1);
}

}  // namespace
