#include "settings/settings_reader.h"

#include <gmock/gmock.h>

#include "tests/support/settings_image.h"

namespace {

using namespace image;

std::string Beyond(const std::string& step) {
  return "SMSettingsReader: " + step +
         "() attempted to read beyond end-of-stream.\n";
}
const std::string kU8 = Beyond("ReadU8");
const std::string kU16 = Beyond("ReadU16");
const std::string kU32 = Beyond("ReadU32");
const std::string kDouble = Beyond("ReadDouble");
const std::string kText = Beyond("ReadAndCopyPStringAsSimpleString");
const std::string kUnknown =
    "SMSettingsReader: Unexpected data-type encountered when parsing "
    "settings; IGNORING VALUE.\n";
const std::string kUnknownElement =
    "SMSettingsReader: Unexpected data-type encountered when parsing array; "
    "IGNORING VALUE.\n";
const std::string kNested =
    "SMSettingsReader: Nested arrays are not supported. They are currently "
    "not a use-case; IGNORING VALUE.\n";

struct Case {
  const char* what;
  Bytes file;
  std::string read;
  std::string messages = {};
};

void Check(const Case& c) {
  SCOPED_TRACE(c.what);
  testing::internal::CaptureStderr();
  EXPECT_EQ(Describe(c.file), c.read);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), c.messages);
}

TEST(SettingsReader, AcceptsAndRejectsHeaders) {
  const Bytes magic = Hex("54 43 53 4F");
  const Bytes tail = Text("settings") + U32(0);
  const Bytes body = Body("settings", Entry("a", Bool(1)));
  const Case cases[] = {
      {"another record type", U16(0xC0 | 30) + body, "rejected"},
      {"one byte too long", U16(0x80 | 31) + body, "rejected"},
      {"too short", U16(0x81) + body, "a=true"},
      {"no long length", Hex("00 BF 00"), "rejected", kU32 + kU32},
      {"another magic", Framed("TCSP" + body.substr(4)), "rejected"},
      {"version 1", Framed(magic + U16(1) + tail), "rejected"},
      {"version 2", Framed(magic + U16(2) + tail), ""},
      {"version 5", Framed(magic + U16(5) + U32(0) + tail), "rejected"},
      {"nothing after the version", Framed(magic + U16(4)), "",
       kU32 + kU16 + kU32},
  };
  for (const Case& c : cases) Check(c);
}

TEST(SettingsReader, ReadsEntriesUpToTheDamage) {
  const Bytes a = Text("a");
  Case cases[] = {
      {"one of each",
       Entry("number", Number(-2.5)) + Entry("flag", Bool(0x80)) +
           Entry("text", String("some text")) +
           Entry("list",
                 Array(Element("a", String("x")) + Element("b", Bool(0)) +
                       Element("c", Number(7)))) +
           Entry("empty", Array()),
       "text='some text' number=-2.5 flag=true list=[a='x' b=false c=7] "
       "empty=[]"},
      {"the later value, in the place of the first",
       Entry("ab", Bool(0)) + Entry("ba", Bool(0)) + Entry("ab", Number(3)),
       "ba=false ab=3"},
      {"a key up to its zero", Entry(std::string("k\0x", 3), Bool(1)),
       "k=true"},
      {"unknown types",
       Entry("z", Hex("07")) +
           Entry("a", Array(Element("e", Hex("FF")) + Element("f", Bool(0)))),
       "a=[f=false]", kUnknown + kUnknownElement},
      {"a nested array, whose end ends the outer one",
       Entry("a", Array(Element("n", Array(Element("m", Bool(1)))))),
       "=0 a=[m=true]", kNested + kText + kDouble + kU8},
      {"no closing zero", a + Bool(1), "a=true", kU8},
      {"another closing byte", a + Bool(1) + Hex("01"), "rejected"},
      {"the end in a count", Hex("00"), "=0", kU16 + kDouble + kU8},
      {"in a number", a + Hex("00 40 59"), "rejected", kDouble},
      {"in a string", a + Hex("02 00 05 78"), "rejected", kText},
      {"in a key", Hex("00 02 61"), "", kText + kUnknown + kU8},
      {"in an array", a + Hex("03 00"), "rejected", kU16},
      {"before an array's marker", a + Hex("03 00 00"), "rejected", kU8},
      {"another marker", Entry("a", Hex("03 00 00 08")), "rejected"},
  };
  for (Case& c : cases) {
    c.file = File("settings", c.file);
    Check(c);
  }
}

}  // namespace
