#include <limits>

#include "tests/cli/settings_program_test.h"

namespace {

using namespace image;
using testing::HasSubstr;

class InspectCommand : public SettingsProgramTest {
 protected:
  // The command that inspects what has been added.
  std::string Add(const std::string& name) {
    return command_ += " " + Quoted(home_ / name);
  }
  std::string AddFile(const std::string& name, const Bytes& bytes) {
    home_.Write(name, bytes);
    return Add(name);
  }

  std::string command_ = "inspect";
};

// The first entry is at byte 22; at byte 26 if the entries exceed 62 bytes.
Bytes FileOf(const Bytes& entries) { return File("name", entries); }

TEST_F(InspectCommand, ListsEntriesWithTypesAndOffsets) {
  const ProgramRun run = Run(
      AddFile("f", FileOf(Entry("klimit", Number(0.5)) + Entry("", Bool(9)) +
                          Entry("list", Array(Element("a b", String("x\"\n")) +
                                              Element("n", Number(-1)) +
                                              Element("y", Bool(0)))) +
                          Entry("text", String("")))));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output, (home_ / "f") + R"(
  "name"
        26  number   klimit = 0.5
        44  boolean   = true
        49  array    list
            string     a b = "x"\x0A"
            number     n = -1
            boolean    y = false
        88  string   text = ""
)");
}

TEST_F(InspectCommand, ListsUpToTheDamageAndSaysWhereItIs) {
  const Bytes good = Entry("good", Bool(1));  // nine bytes
  const Bytes key = Text("k");
  const struct {
    Bytes bytes;
    int listed;
    int offset;
    const char* message;
  } cases[] = {
      {"", 0, 0, "ReadU16() attempted"},
      {"another kind of file", 0, 2, "The record type is not 2."},
      {FileOf(good).substr(0, 20), 0, 2, "The declared length"},
      {FileOf(good) + Hex("00 09 61"), 2, 33, "ReadAndCopyPString"},
      {FileOf(good) + key + Bool(1), 2, 36, "ReadU8() attempted"},
      {FileOf(good + key + Bool(1) + "x" + good), 1, 37,
       "The entry is not closed by a zero byte."},
      {FileOf(good + key + Hex("03 00 00 08 00") + good), 1, 38,
       "The array is not closed by its marker."},
      // Values that are skipped.
      {FileOf(good + key + Hex("07 00") + good), 3, 35, "Unexpected data-type"},
      {FileOf(good + key + Hex("03 00 01 61 03 00 00 09 00") + good), 3, 39,
       "Nested arrays"},
  };
  std::string found;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.message);
    const std::string where = std::to_string(c.offset);
    const ProgramRun run = Run(AddFile(c.message, c.bytes));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.output, HasSubstr(where + "  damage   " + c.message));
    EXPECT_THAT(run.errors, HasSubstr(std::string(c.message) + ": byte " +
                                      where + ": " + c.message));
    found += "[" + std::to_string(c.listed) + "," + where + "]\n";
  }
  EXPECT_EQ(Answer(command_, ".[] | [(.entries | length), .damage.offset]"),
            found);
}

TEST_F(InspectCommand, WritesJsonForAnyBytes) {
  std::string any;
  for (int byte = 1; byte < 256; ++byte) any += static_cast<char>(byte);
  using Limits = std::numeric_limits<double>;
  const Bytes entries =
      Entry(any, String(any)) +
      Entry("list", Array(Element("x\"\n", Bool(0)) +
                          Element("n", Number(-Limits::infinity())))) +
      Entry("nan", Number(Limits::quiet_NaN())) +
      Entry("max", Number(Limits::max())) + Entry("zero", Number(-0.0));
  EXPECT_EQ(Answer(AddFile("f", File(any, entries)),
                   ".[0] | (.name | length), .name == .entries[0].key, "
                   ".name == .entries[0].value, (.entries[1:] | .[])"),
            R"(255
true
true
{"offset":793,"key":"list","type":"array","value":[)"
            R"({"name":"x\"\n","type":"boolean","value":false},)"
            R"({"name":"n","type":"number","value":"-Infinity"}]}
{"offset":823,"key":"nan","type":"number","value":"NaN"}
{"offset":838,"key":"max","type":"number","value":1.7976931348623157e+308}
{"offset":853,"key":"zero","type":"number","value":-0}
)");
}

// A file may be cut at any byte.
TEST_F(InspectCommand, GoesOnToTheNextFileWhateverThisOneHolds) {
  const Bytes file = FileOf(Entry("list", Array(Element("a", Number(1)))) +
                            Entry("k", String("text")));
  for (std::size_t size = 0; size < file.size(); ++size) {
    (void)AddFile(std::to_string(size), file.substr(0, size));
  }
  (void)AddFile("whole", file);
  (void)Add(".");
  const ProgramRun run =
      Query(Add("missing"), "length, (map(select(.damage)) | length)");
  const std::size_t count = file.size();
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.output,
            std::to_string(count + 3) + "\n" + std::to_string(count) + "\n");
  EXPECT_THAT(run.errors, HasSubstr("missing: No such file or directory\n"));
  EXPECT_THAT(run.errors, HasSubstr("/.: not a settings file\n"));
}

}  // namespace
