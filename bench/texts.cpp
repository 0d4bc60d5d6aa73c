// Texts looked up.
#include <libintl.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "bench/bare_calls.h"
#include "bench/harness.h"
#include "strings/fixed_language.h"
#include "strings/string_table.h"
#include "tests/support/temporary_home.h"

namespace {

using namespace NCPStrings;

constexpr char kDomain[] = "corvane-bench";
constexpr Language kLanguage = Language::kGerman;
constexpr auto kFirstText = static_cast<std::size_t>(kLanguage) * kTextCount;
constexpr std::size_t kTimes = 1000;

// So that the compiler does not leave out the look-up.
void Use(const char* text) { asm volatile("" : : "r"(text) : "memory"); }

[[gnu::noinline]] const char* Bisect(int id) {
  int low = 0;
  int high = kTextCount - 1;
  while (low <= high) {
    const int middle = (low + high) / 2;
    const StringMapping& record =
        NCPStringsMappingTable[static_cast<std::size_t>(middle)];
    const int record_id = static_cast<int>(record.id);
    if (record_id == id) {
      return NCPStringsConstants[kFirstText + record.row];
    }
    if (id < record_id) {
      high = middle - 1;
    } else {
      low = middle + 1;
    }
  }
  return nullptr;
}

std::vector<int> AllIds() {
  std::vector<int> ids;
  for (const StringMapping& mapping : NCPStringsMappingTable) {
    ids.push_back(static_cast<int>(mapping.id));
  }
  return ids;
}

// A catalogue of the same texts under their ids.
void MakeCatalogue(const TemporaryHome& home, const std::vector<int>& ids) {
  std::string source =
      "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n";
  for (const int id : ids) {
    source += "msgid \"" + std::to_string(id) + "\"\nmsgstr \"";
    for (const char* byte = Bisect(id); *byte; ++byte) {
      if (*byte == '"' || *byte == '\\') source += '\\';
      source += *byte == '\n' ? std::string("\\n") : std::string(1, *byte);
    }
    source += "\"\n";
  }
  const std::string directory = "locale/de/LC_MESSAGES/";
  home.Write(directory + "source.po", source);
  RunProgram({"msgfmt", "-o", home / (directory + kDomain + ".mo"),
              home / (directory + "source.po")});
}

}  // namespace

int main() {
  const TemporaryHome home;
  const std::vector<int> ids = AllIds();
  MakeCatalogue(home, ids);
  // Any locale but "C" makes gettext look.
  Check(std::setlocale(LC_ALL, "C.UTF-8"), "setlocale");
  setenv("LANGUAGE", "de", 1);
  bindtextdomain(kDomain, (home / "locale").c_str());
  std::vector<std::string> keys;
  for (const int id : ids) keys.push_back(std::to_string(id));
  FixedLanguage strings(kLanguage);
  const auto for_each = [](const auto& keys_or_ids, auto look_up) {
    return Times(kTimes, [&keys_or_ids, look_up] {
      for (const auto& key : keys_or_ids) Use(look_up(key));
    });
  };
  Measure(
      {"all texts looked up 1,000 times", ids.size()},
      {{kPanel, for_each(ids, [&](int id) { return strings.GetString(id); })},
       {kFloor, for_each(ids, Bisect)},
       {"gettext", for_each(keys, [](const std::string& key) {
          return dgettext(kDomain, key.c_str());
        })}});
}
