#include "platform/config_file_manager.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <memory>

#include "tests/support/temporary_home.h"

using SASM::ConfigFileManager;
using SASM::SimpleString;
using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAreArray;
using namespace std::string_literals;

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
  Entries Read(const std::string& bytes) {
    home_.Write("config", bytes);
    return EntriesOf(ConfigFileManager(path_));
  }
  // Sets these entries in this order, writes the file and reads it again.
  Entries ReadBack(const Entries& entries) {
    home_.Write("config", "");
    ConfigFileManager config(path_);
    for (const auto& [key, value] : entries) {
      config.UpdateSetting(key.c_str(), value.c_str());
    }
    EXPECT_TRUE(config.UpdateSettingsFile());
    return EntriesOf(ConfigFileManager(path_));
  }

  TemporaryHome home_;
  const SimpleString path_ = (home_ / "config").c_str();
};

TEST_F(ConfigFile, IsTakenApartInAllItsForms) {
  const std::string mark = "\xEF\xBB\xBF";
  const std::pair<std::string, Entries> cases[] = {
      {"a=b=c", {{"a", "b=c"}}},
      {"\x01\t a \v=\x1F b c \x7F \f\n", {{"a", "b c \x7F"}}},
      {"=b\na=\n = \na= \n =b\nab\n\n  \n", {}},
      {"#a=1\na=1\nb=2\na=3\n", {{"#a", "1"}, {"a", "3"}, {"b", "2"}}},
      {"\xC2\xA0k\xC3\xA9=caf\xC3\xA9\xFF",
       {{"\xC2\xA0k\xC3\xA9", "caf\xC3\xA9\xFF"}}},
      {"a=b\0=c\nd\0=e\n\0f=g\nh=i\0"s, {{"a", "b"}, {"h", "i"}}},
      {"\ra=1\r\xFF=2", {{"a", "1"}, {"\xFF", "2"}}},
      // The first four bytes decide whether it is a text.
      {"a=b", {}},
      {mark, {}},
      {mark + "a=b", {{"a", "b"}}},
      {mark + mark + "a=b", {{mark + "a", "b"}}},
      {"\xFE\xFF\na=b\n", {}},
      {"\xFF\xFE\na=b\n", {}},
      {"\xFF\n\na=b\n", {{"a", "b"}}},
  };
  for (const auto& [bytes, entries] : cases) {
    SCOPED_TRACE(testing::PrintToString(bytes));
    EXPECT_THAT(Read(bytes), UnorderedElementsAreArray(entries));
  }
  for (const std::string end : {"\n", "\r", "\r\n", "\n\r", "\r\r\n"}) {
    for (const std::string& last : {end, ""s, "\r"s}) {
      SCOPED_TRACE(testing::PrintToString(end + "|" + last));
      EXPECT_THAT(Read("a=1" + end + "b=2" + end + end + "c=3" + last),
                  ElementsAre(Pair("a", "1"), Pair("b", "2"), Pair("c", "3")));
    }
  }
}

TEST_F(ConfigFile, KeepsLinesOfAnyLengthWhole) {
  for (const std::size_t size : {1020, 1021, 1022, 2044, 2045, 50 << 20}) {
    SCOPED_TRACE(size);
    const Entries entries = {{"k", std::string(size, 'v')}, {"n", "1"}};
    EXPECT_TRUE(Read("k=" + entries[0].second + "\r\nn=1\n") == entries);
  }
}

TEST_F(ConfigFile, WritesInDictionaryOrder) {
  home_.Write("config",
              "\xEF\xBB\xBF# a comment\r\nallow=1\ralways=\rklimit=2");
  ConfigFileManager config(path_);
  const SimpleString* value = config.ValueForKey("allow");
  EXPECT_STREQ(config.ValueForKey("always")->c_str(), "");
  config.UpdateSetting("ab", "x");
  config.UpdateSetting("ba", "y");
  config.UpdateSetting("allow", "a longer value");
  EXPECT_STREQ(value->c_str(), "a longer value");
  EXPECT_TRUE(config.UpdateSettingsFile());
  EXPECT_EQ(home_.Read("config"),
            "ba=y\nab=x\nklimit=2\nallow=a longer value\n");
}

TEST_F(ConfigFile, FindsOfUnreadableTextsWhatTheHeaderSays) {
  const std::pair<Entries, Entries> cases[] = {
      {{{"k", "a\rb=c"}}, {{"k", "a"}, {"b", "c"}}},
      {{{"a=b\r\nk", "v"}}, {{"a", "b"}, {"k", "v"}}},
      {{{"a=b", "v"}}, {{"a", "b=v"}}},
      {{{" k\t", " v w "}}, {{"k", "v w"}}},
      {{{"k", "1"}, {" k", "2"}}, {{"k", "1"}}},  // buckets 11 and 11
      {{{" k", "2"}, {"k", "1"}}, {{"k", "2"}}},
      {{{"", "v"}, {" ", "v"}, {"k", ""}, {"l", " \t"}}, {}},
      {{{"\xEF\xBB\xBFk", "v"}}, {{"k", "v"}}},
      {{{"h", "w"}, {"\xFF\xFEk", "v"}}, {}},  // walked newest first
      {{{"\xFF\xFEk", "v"}, {"h", "w"}}, {{"\xFF\xFEk", "v"}, {"h", "w"}}},
      {{{"#", "="}, {"k k", "v\tv"}}, {{"#", "="}, {"k k", "v\tv"}}},
  };
  for (const auto& [set, found] : cases) {
    SCOPED_TRACE(testing::PrintToString(set));
    EXPECT_THAT(ReadBack(set), UnorderedElementsAreArray(found));
  }
}

// Nothing here may block.
TEST_F(ConfigFile, ReadsOnlyRegularFilesAndCreatesOne) {
  std::filesystem::create_directory(home_ / "directory");
  ASSERT_EQ(mkfifo((home_ / "pipe").c_str(), 0600), 0);
  const std::pair<std::string, bool> written[] = {
      {"", false},
      {home_ / "directory", false},
      {home_ / "pipe", false},
      {home_ / "no/config", false},
      {"/dev/zero", true},
      {home_ / "config", true},
  };
  for (const auto& [path, is_written] : written) {
    SCOPED_TRACE(path);
    ConfigFileManager config(path.c_str());
    EXPECT_EQ(EntriesOf(config), Entries());
    config.UpdateSetting("a", "b");
    EXPECT_EQ(config.UpdateSettingsFile(), is_written);
  }
  std::filesystem::create_symlink("config", home_ / "link");
  const ConfigFileManager linked((home_ / "link").c_str());
  EXPECT_THAT(EntriesOf(linked), ElementsAre(Pair("a", "b")));
}

}  // namespace
