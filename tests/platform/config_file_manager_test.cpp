#include "platform/config_file_manager.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
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
using namespace std::string_literals;

namespace {

// How many allocations succeed before one fails, and whether all later ones
// fail too.
int allocations_left = std::numeric_limits<int>::max();
bool memory_stays_short = false;
std::size_t largest_allocation = 0;

void* Allocate(std::size_t size) {
  largest_allocation = std::max(largest_allocation, size);
  const int left = allocations_left--;
  const bool fails = left == 0 || (left < 0 && memory_stays_short);
  return fails ? nullptr : std::malloc(size);
}

}  // namespace

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size);
}
void* operator new(std::size_t size) {
  void* bytes = std::malloc(size);
  if (!bytes) std::abort();
  return bytes;
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* bytes) noexcept { std::free(bytes); }
void operator delete[](void* bytes) noexcept { std::free(bytes); }
void operator delete(void* bytes, std::size_t) noexcept { std::free(bytes); }
void operator delete[](void* bytes, std::size_t) noexcept { std::free(bytes); }

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

TEST_F(ConfigFile, TakesLinesApart) {
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
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.bytes));
    EXPECT_THAT(ReadBytes(c.bytes),
                testing::UnorderedElementsAreArray(c.entries));
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
  EXPECT_THAT(ReadBytes("\ra=1\r\xFF=2"),
              ElementsAre(Pair("a", "1"), Pair("\xFF", "2")))
      << "a byte that looks like the end of the file";
}

TEST_F(ConfigFile, LooksAtTheFirstFourBytes) {
  const struct {
    std::string bytes;
    bool is_read;
  } cases[] = {
      {"", false},
      {"a=b", false},
      {"a=b\n", true},
      {"\xEF\xBB\xBF", false},
      {"\xEF\xBB\xBF\n", false},
      {"\xEF\xBB\xBF"
       "a=b",
       true},
      {"\xFE\xFF\na=b\n", false},
      {"\xFF\xFE\na=b\n", false},
      {"\xFF\n\na=b\n", true},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.bytes));
    const Entries expected = c.is_read ? Entries{{"a", "b"}} : Entries{};
    EXPECT_EQ(ReadBytes(c.bytes), expected);
  }
  EXPECT_THAT(ReadBytes("\xEF\xBB"
                        "a=b"),
              ElementsAre(Pair("\xEF\xBB"
                               "a",
                               "b")));
  EXPECT_THAT(ReadBytes("\xEF\xBB\xBF\xEF\xBB\xBF"
                        "a=b"),
              ElementsAre(Pair("\xEF\xBB\xBF"
                               "a",
                               "b")))
      << "only one mark is skipped";
}

TEST_F(ConfigFile, KeepsLinesOfAnyLengthWhole) {
  const std::size_t sizes[] = {1018, 1019, 1020,  1021,
                               1022, 2043, 2044,  2045,
                               2046, 4095, 65536, std::size_t{50} << 20};
  for (const std::size_t size : sizes) {
    SCOPED_TRACE(size);
    const std::string value(size, 'v');
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
      {{{"k", "\na"}}, {}},
      {{{"a\nk", "v"}}, {{"k", "v"}}},
      {{{"a=b\r\nk", "v"}}, {{"a", "b"}, {"k", "v"}}},
      {{{"k\n", "v"}}, {}},
      {{{"a=b", "v"}}, {{"a", "b=v"}}},
      {{{"=b", "v"}}, {}},
      {{{" k\t", " v w "}}, {{"k", "v w"}}},
      {{{"k", "1"}, {" k", "2"}}, {{"k", "1"}}},  // buckets 11 and 11
      {{{" k", "2"}, {"k", "1"}}, {{"k", "2"}}},
      {{{"", "v"}}, {}},
      {{{"k", ""}}, {}},
      {{{" ", "v"}, {"k", " \t"}}, {}},
      {{{"\xEF\xBB\xBFk", "v"}}, {{"k", "v"}}},
      {{{"\xFE\xFFk", "v"}, {"l", "w"}}, {}},
      {{{"h", "w"}, {"\xFF\xFEk", "v"}}, {}},  // walked newest first
      {{{"\xFF\xFEk", "v"}, {"h", "w"}}, {{"\xFF\xFEk", "v"}, {"h", "w"}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.set));
    EXPECT_THAT(ReadBack(c.set), testing::UnorderedElementsAreArray(c.found));
  }
  const Entries fine = {{"#", "="}, {"\xC3\xA9", "\x80"}, {"k k", "v\tv"}};
  EXPECT_THAT(ReadBack(fine), testing::UnorderedElementsAreArray(fine));
}

TEST_F(ConfigFile, StripsInPlace) {
  char text[] = " \t a b\r ";
  EXPECT_EQ(ConfigFileManager::StripString(text), text + 3);
  EXPECT_STREQ(text + 3, "a b");
  char blanks[] = " \x01 ";
  EXPECT_EQ(ConfigFileManager::StripString(blanks), nullptr);
  EXPECT_EQ(ConfigFileManager::StripString(nullptr), nullptr);
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
      {"/dev/full", true},
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

TEST_F(ConfigFile, SpendsNoMemoryOnHoles) {
  home_.Write("config", "a=b\n");
  std::filesystem::resize_file(home_ / "config", 4 << 20);
  largest_allocation = 0;
  EXPECT_THAT(Read(), ElementsAre(Pair("a", "b")));
  EXPECT_LE(largest_allocation, 1024u);
}

// Reads, changes and lists with memory running short after so many
// allocations; true when none was refused. What is found is right or missing,
// and nothing without a text comes out.
bool SurvivesShortMemory(const SimpleString& path, const std::string& text,
                         int allocations) {
  allocations_left = allocations;
  ConfigFileManager config(path);
  config.UpdateSetting("a", "3");
  config.UpdateSetting("c", "4");
  const std::unique_ptr<SASM::StringVector> keys(config.CreateListOfAllKeys());
  const bool ran_through = allocations_left >= 0;
  allocations_left = std::numeric_limits<int>::max();
  const Entries entries = EntriesOf(config);
  const Entries right = {
      {"a", "1"}, {"a", "3"}, {"long", text}, {"b", "2"}, {"c", "4"}};
  EXPECT_THAT(entries, testing::Each(testing::AnyOfArray(right)));
  EXPECT_TRUE(!keys || keys->count == entries.size());
  EXPECT_NE(config.ValueForKey("none"), nullptr);
  EXPECT_TRUE(!ran_through || entries.size() == 4);
  return ran_through;
}

TEST_F(ConfigFile, LeavesOutWhatMemoryIsTooShortFor) {
  const std::string text(5000, 'v');
  home_.Write("config", "a=1\nlong=" + text + "\nb=2\n");
  const SimpleString path = Path();
  for (const bool stays_short : {true, false}) {
    memory_stays_short = stays_short;
    for (int limit = 0; !SurvivesShortMemory(path, text, limit); ++limit) {
      ASSERT_LT(limit, 1000) << "stays short: " << stays_short;
    }
  }
}

}  // namespace
