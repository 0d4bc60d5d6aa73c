#include "settings/settings_reader.h"

#include <gmock/gmock.h>

#include <memory>
#include <span>

#include "tests/support/settings_image.h"

namespace {

using namespace image;
using SASM::SimpleString;

constexpr char kU8[] =
    "SMSettingsReader: ReadU8() attempted to read beyond end-of-stream.\n";
constexpr char kU16[] =
    "SMSettingsReader: ReadU16() attempted to read beyond end-of-stream.\n";
constexpr char kU32[] =
    "SMSettingsReader: ReadU32() attempted to read beyond end-of-stream.\n";
constexpr char kDouble[] =
    "SMSettingsReader: ReadDouble() attempted to read beyond end-of-stream.\n";
constexpr char kText[] =
    "SMSettingsReader: ReadAndCopyPStringAsSimpleString() attempted to read "
    "beyond end-of-stream.\n";
constexpr char kUnknown[] =
    "SMSettingsReader: Unexpected data-type encountered when parsing "
    "settings; IGNORING VALUE.\n";
constexpr char kUnknownElement[] =
    "SMSettingsReader: Unexpected data-type encountered when parsing array; "
    "IGNORING VALUE.\n";
constexpr char kNested[] =
    "SMSettingsReader: Nested arrays are not supported. They are currently "
    "not a use-case; IGNORING VALUE.\n";

struct Case {
  const char* what;
  Bytes file;
  std::string read;
  std::string messages = {};
};

void Check(std::span<const Case> cases) {
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    testing::internal::CaptureStderr();
    const std::string read = Describe(c.file);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), c.messages);
    EXPECT_EQ(read, c.read);
  }
}

Bytes WithEntries(const Bytes& entries) { return File("settings", entries); }

// Every kind of value there is.
Bytes Sample() {
  return WithEntries(
      Entry("number", Number(-2.5)) + Entry("flag", Bool(1)) +
      Entry("text", String("some text")) +
      Entry("list", Array(Element("a", String("x")) + Element("b", Bool(0)) +
                          Element("c", Number(7)))) +
      Entry("empty", Array()));
}

TEST(SettingsReader, AcceptsAndRejectsHeaders) {
  const Bytes magic = Hex("54 43 53 4F");
  const Bytes tail = Text("settings") + U32(0);
  const Bytes body = Body("settings", Entry("a", Bool(1)));
  const Case cases[] = {
      {"nothing", "", "rejected", kU16},
      {"one byte", Hex("00"), "rejected", kU16},
      {"an empty dictionary",
       Hex("00 98 54 43 53 4F 00 04 00 00 00 00 00 08 73 65 74 74 69 6E 67 "
           "73 00 00 00 00"),
       ""},
      {"another record type", U16(0xC0 | 24) + Body("settings", ""),
       "rejected"},
      {"one byte too long", U16(0x80 | 31) + body, "rejected"},
      {"too short", U16(0x81) + body, "a=true"},
      {"no long length", Hex("00 BF 00"), "rejected", kU32 + std::string(kU32)},
      {"the longest length", Hex("00 BF FF FF FF FF") + body, "rejected"},
      {"another magic", Framed("TCSP" + body.substr(4)), "rejected"},
      {"no body", Hex("00 80"), "rejected", kU32},
      {"no version", Hex("00 80") + magic, "rejected", kU16},
      {"version 1", Framed(magic + U16(1) + tail), "rejected"},
      {"version 2", Framed(magic + U16(2) + tail + Entry("a", Bool(1))),
       "a=true"},
      {"version 3", Framed(magic + U16(3) + tail), ""},
      {"version 5", Framed(magic + U16(5) + U32(0) + tail), "rejected"},
      {"nothing after the version", Framed(magic + U16(4)), "",
       std::string(kU32) + kU16 + kU32},
  };
  Check(cases);
}

TEST(SettingsReader, ReadsValuesOfEveryType) {
  const Case cases[] = {
      {"one of each", Sample(),
       "text='some text' number=-2.5 flag=true list=[a='x' b=false c=7] "
       "empty=[]"},
      {"any byte but zero is true", WithEntries(Entry("a", Bool(0x80))),
       "a=true"},
      {"the later value, in the place of the first",
       WithEntries(Entry("ab", Bool(0)) + Entry("ba", Bool(0)) +
                   Entry("ab", Number(3))),
       "ba=false ab=3"},
      {"a key up to its zero",
       WithEntries(Entry(std::string("k\0x", 3), Bool(1))), "k=true"},
      {"an empty key", WithEntries(Entry("", Bool(1))), "=true"},
  };
  Check(cases);
}

TEST(SettingsReader, PassesOverWhatItDoesNotKnow) {
  const Bytes last = Entry("z", Bool(1));
  const Bytes nested = Element("n", Array(Element("m", Bool(1))));
  const Case cases[] = {
      {"an unknown type", WithEntries(Entry("a", Hex("07")) + last), "z=true",
       kUnknown},
      {"an unknown type in an array",
       WithEntries(
           Entry("a", Array(Element("e", Hex("FF")) + Element("f", Bool(0))))),
       "a=[f=false]", kUnknownElement},
      {"a nested array, whose end ends the outer one",
       WithEntries(Entry("a", Array(nested))), "=0 a=[m=true]",
       std::string(kNested) + kText + kDouble + kU8},
  };
  Check(cases);
}

TEST(SettingsReader, EndsWithTheImage) {
  const Bytes a = Text("a");
  const Case cases[] = {
      {"before the closing zero", WithEntries(a + Bool(1)), "a=true", kU8},
      {"another closing byte", WithEntries(a + Bool(1) + Hex("01")),
       "rejected"},
      {"in a count", WithEntries(Hex("00")), "=0",
       std::string(kU16) + kDouble + kU8},
      {"in a number", WithEntries(a + Hex("00 40 59")), "rejected", kDouble},
      {"in a string", WithEntries(a + Hex("02 00 05 78")), "rejected", kText},
      {"in a key", WithEntries(Hex("00 02 61")), "",
       std::string(kText) + kUnknown + kU8},
      {"in an array", WithEntries(a + Hex("03 00")), "rejected", kU16},
      {"before an array's marker", WithEntries(a + Hex("03 00 00")), "rejected",
       kU8},
      {"another marker", WithEntries(Entry("a", Hex("03 00 00 08"))),
       "rejected"},
  };
  Check(cases);
}

TEST(SettingsReader, HandsBackTheNameOnceItIsRead) {
  const struct {
    const char* what;
    Bytes file;
    const char* name;
  } cases[] = {
      {"accepted", File("site/settings"), "site/settings"},
      {"rejected later", File("n", Text("a") + Bool(1) + Hex("01")), "n"},
      {"rejected before", Framed("TCSO" + U16(5) + Text("n")), nullptr},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    SimpleString* name = nullptr;
    const std::vector<unsigned char> bytes(c.file.begin(), c.file.end());
    SMImplementation::SettingsReader reader(bytes.data(), bytes.size());
    delete reader.GetNewSettingsData(&name);
    const std::unique_ptr<SimpleString> owned(name);
    EXPECT_STREQ(name ? name->c_str() : nullptr, c.name);
  }
}

// The sanitizers watch these; the values are read once more while described.
TEST(SettingsReader, SurvivesEveryTruncationAndEveryFlippedBit) {
  const Bytes whole = Sample();
  testing::internal::CaptureStderr();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_EQ(Describe(whole.substr(0, size)), "rejected") << size;
    // With a declared length that lets it pass.
    const Bytes body = whole.substr(6, size < 6 ? 0 : size - 6);
    (void)Describe(Hex("00 80") + body);
  }
  for (std::size_t i = 0; i < whole.size() * 8; ++i) {
    Bytes flipped = whole;
    flipped[i / 8] = static_cast<char>(flipped[i / 8] ^ 1 << i % 8);
    (void)Describe(flipped);
  }
  EXPECT_THAT(testing::internal::GetCapturedStderr(),
              testing::StartsWith("SMSettingsReader: "));
}

}  // namespace
