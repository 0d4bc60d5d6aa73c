#include "platform/config_file_manager.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <limits>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/temporary_home.h"

using SASM::ConfigFileManager;
using SASM::SimpleString;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAreArray;
using namespace std::string_literals;

namespace {

// Later ones fail.
int allocations_left = std::numeric_limits<int>::max();

}  // namespace

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return allocations_left-- > 0 ? operator new[](size) : nullptr;
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return allocations_left-- > 0 ? operator new(size) : nullptr;
}

namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;

Entries EntriesOf(const ConfigFileManager& config) {
  Entries entries;
  const std::unique_ptr<SASM::StringVector> keys(config.CreateListOfAllKeys());
  for (unsigned int i = 0; i < keys->count; ++i) {
    const char* key = keys->TextAt(i);
    entries.emplace_back(key, config.ValueForKey(key)->c_str());
  }
  return entries;
}

class ConfigFile : public testing::Test {
 protected:
  [[nodiscard]] SimpleString Path() const { return (home_ / "config").c_str(); }
  [[nodiscard]] Entries Read() const {
    return EntriesOf(ConfigFileManager(Path()));
  }
  [[nodiscard]] Entries ReadBytes(const std::string& bytes) const {
    home_.Write("config", bytes);
    return Read();
  }
  // What a later read finds of these entries, set in this order.
  [[nodiscard]] Entries ReadBack(const Entries& entries) const {
    home_.Write("config", "");
    ConfigFileManager config(Path());
    for (const auto& [key, value] : entries) {
      config.UpdateSetting(key.c_str(), value.c_str());
    }
    EXPECT_TRUE(config.UpdateSettingsFile());
    return Read();
  }

  TemporaryHome home_;
};

TEST_F(ConfigFile, IsTakenApartInAllItsForms) {
  const std::string mark = "\xEF\xBB\xBF";
  const struct {
    std::string bytes;
    Entries entries;
  } cases[] = {
      {"a = b\n", {{"a", "b"}}},
      {"a=b=c", {{"a", "b=c"}}},
      {"a==\n", {{"a", "="}}},
      {"\x01\t a \v=\x1F b c \x7F \f\n", {{"a", "b c \x7F"}}},
      {"=b\na=\n = \na= \n =b\nab\n\n  \n", {}},
      {"#a=b\n", {{"#a", "b"}}},
      {"a=1\nb=2\na=3\n", {{"a", "3"}, {"b", "2"}}},
      {"A=1\na=2\n", {{"A", "1"}, {"a", "2"}}},
      {"\xC2\xA0k\xC3\xA9=caf\xC3\xA9\xFF\n",
       {{"\xC2\xA0k\xC3\xA9", "caf\xC3\xA9\xFF"}}},
      {"a=b\0=c\nd\0=e\n\0f=g\nh=i\0"s, {{"a", "b"}, {"h", "i"}}},
      {"\ra=1\r\xFF=2", {{"a", "1"}, {"\xFF", "2"}}},
      // The first four bytes tell whether it is a text.
      {"", {}},
      {"a=b", {}},
      {mark, {}},
      {mark + "\n", {}},
      {mark + "a=b", {{"a", "b"}}},
      {mark + mark + "a=b", {{mark + "a", "b"}}},
      {mark.substr(0, 2) + "a=b", {{mark.substr(0, 2) + "a", "b"}}},
      {"\xFE\xFF\na=b\n", {}},
      {"\xFF\xFE\na=b\n", {}},
      {"\xFF\n\na=b\n", {{"a", "b"}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.bytes));
    EXPECT_THAT(ReadBytes(c.bytes), UnorderedElementsAreArray(c.entries));
  }
}

TEST_F(ConfigFile, EndsLinesAtEveryLineEnd) {
  for (const std::string end : {"\n", "\r", "\r\n", "\n\r", "\r\r\n"}) {
    for (const std::string& last : {end, ""s, "\r"s}) {
      SCOPED_TRACE(testing::PrintToString(end + "|" + last));
      EXPECT_THAT(ReadBytes("a=1" + end + "b=2" + end + end + "c=3" + last),
                  ElementsAre(Pair("a", "1"), Pair("b", "2"), Pair("c", "3")));
    }
  }
}

TEST_F(ConfigFile, KeepsLinesOfAnyLengthWhole) {
  for (const int size : {1020, 1021, 1022, 2044, 2045, 65536, 50 << 20}) {
    SCOPED_TRACE(size);
    const std::string value(static_cast<std::size_t>(size), 'v');
    home_.Write("config", "k=" + value + "\r\nn=1\n");
    const ConfigFileManager config(Path());
    EXPECT_TRUE(config.ValueForKey("k")->c_str() == value);
    EXPECT_STREQ(config.ValueForKey("n")->c_str(), "1");
  }
}

TEST_F(ConfigFile, WritesInDictionaryOrder) {
  home_.Write("config",
              "\xEF\xBB\xBF# a comment\r\nallow = 1\r\nalways=\rklimit=2\rab=");
  ConfigFileManager config(Path());
  const SimpleString* value = config.ValueForKey("allow");
  EXPECT_STREQ(config.ValueForKey("always")->c_str(), "");
  config.UpdateSetting("ab", "x");
  config.UpdateSetting("ba", "y");
  config.UpdateSetting("allow", "a longer value");
  EXPECT_STREQ(value->c_str(), "a longer value");
  EXPECT_THAT(Read(), ElementsAre(Pair("klimit", "2"), Pair("allow", "1")))
      << "nothing is written yet";
  EXPECT_TRUE(config.UpdateSettingsFile());
  EXPECT_EQ(home_.Read("config"),
            "ba=y\nab=x\nklimit=2\nallow=a longer value\n");
}

TEST_F(ConfigFile, FindsOfUnreadableTextsWhatTheHeaderSays) {
  const struct {
    Entries set;
    Entries found;
  } cases[] = {
      {{{"k", "a\nb"}}, {{"k", "a"}}},
      {{{"k", "a\rb=c"}}, {{"k", "a"}, {"b", "c"}}},
      {{{"a\nk", "v"}}, {{"k", "v"}}},
      {{{"a=b\r\nk", "v"}}, {{"a", "b"}, {"k", "v"}}},
      {{{"a=b", "v"}}, {{"a", "b=v"}}},
      {{{" k\t", " v w "}}, {{"k", "v w"}}},
      {{{"k", "1"}, {" k", "2"}}, {{"k", "1"}}},  // buckets 11 and 11
      {{{" k", "2"}, {"k", "1"}}, {{"k", "2"}}},
      {{{" ", "v"}, {"k", " \t"}}, {}},
      {{{"\xEF\xBB\xBFk", "v"}}, {{"k", "v"}}},
      {{{"\xFE\xFFk", "v"}, {"l", "w"}}, {}},
      {{{"h", "w"}, {"\xFF\xFEk", "v"}}, {}},  // walked newest first
      {{{"\xFF\xFEk", "v"}, {"h", "w"}}, {{"\xFF\xFEk", "v"}, {"h", "w"}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.set));
    EXPECT_THAT(ReadBack(c.set), UnorderedElementsAreArray(c.found));
  }
  const Entries fine = {{"#", "="}, {"\xC3\xA9", "\x80"}, {"k k", "v\tv"}};
  EXPECT_THAT(ReadBack(fine), UnorderedElementsAreArray(fine));
}

// None of these may wait for another program.
TEST_F(ConfigFile, ReadsOnlyRegularFilesAndCreatesOne) {
  std::filesystem::create_directory(home_ / "directory");
  ASSERT_EQ(mkfifo((home_ / "pipe").c_str(), 0600), 0);
  std::filesystem::create_symlink("config", home_ / "link");
  const struct {
    std::string path;
    bool is_written;
  } cases[] = {
      {"", false},
      {home_ / "directory", false},
      {home_ / "pipe", false},
      {home_ / "no/config", false},
      {"/dev/zero", true},
      {home_ / "config", true},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.path);
    ConfigFileManager config(c.path.c_str());
    EXPECT_THAT(EntriesOf(config), IsEmpty());
    config.UpdateSetting("a", "b");
    EXPECT_EQ(config.UpdateSettingsFile(), c.is_written);
  }
  const ConfigFileManager linked((home_ / "link").c_str());
  EXPECT_THAT(EntriesOf(linked), ElementsAre(Pair("a", "b")));
}

TEST_F(ConfigFile, LeavesOutWhatMemoryIsTooShortFor) {
  const Entries right = {
      {"a", "1"}, {"a", "3"}, {"long", std::string(5000, 'v')}, {"c", "4"}};
  home_.Write("config", "a=1\nlong=" + right[2].second + "\n");
  const SimpleString path = Path();
  bool ran_through = false;
  for (int limit = 0; !ran_through && limit < 1000; ++limit) {
    SCOPED_TRACE(limit);
    allocations_left = limit;
    ConfigFileManager config(path);
    config.UpdateSetting("a", "3");
    config.UpdateSetting("c", "4");
    ran_through = allocations_left >= 0;
    allocations_left = std::numeric_limits<int>::max();
    EXPECT_THAT(EntriesOf(config), testing::Each(testing::AnyOfArray(right)));
  }
  EXPECT_TRUE(ran_through);
}

}  // namespace
