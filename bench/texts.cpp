// Texts looked up: every id in every language.
#include <benchmark/benchmark.h>
#include <libintl.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include "bench/bare_calls.h"
#include "bench/harness.h"
#include "bench/private_home.h"
#include "strings/localized_string_manager.h"
#include "strings/string_table.h"

// Tells gettext that the language has changed.
extern "C" int _nl_msg_cat_cntr;  // NOLINT(bugprone-reserved-identifier)

namespace {

using namespace NCPStrings;

constexpr char kDomain[] = "corvane-bench";
// Languages for gettext; which ones does not matter.
constexpr const char* kCodes[] = {"en", "cs", "de", "es", "fr", "it",
                                  "ja", "ko", "nl", "pl", "pt", "ru",
                                  "sv", "tr", "zh", "da"};

class FixedLanguage : public LocalizedStringManager {
 public:
  int GetCurrentSystemLanguageID() override { return language; }
  int language = 0;
};

[[gnu::noinline]] const char* Bisect(int id, unsigned int language) {
  int low = 0;
  int high = kTextCount - 1;
  while (low <= high) {
    const int middle = (low + high) / 2;
    const StringMapping& record =
        NCPStringsMappingTable[static_cast<std::size_t>(middle)];
    const int record_id = static_cast<int>(record.id);
    if (record_id == id) {
      const char* text =
          NCPStringsConstants[language * kTextCount + record.row];
      return text;
    }
    if (id < record_id) {
      high = middle - 1;
    } else {
      low = middle + 1;
    }
  }
  return nullptr;
}

void BenchPanel(benchmark::State& state) {
  FixedLanguage strings;
  for ([[maybe_unused]] auto _ : state) {
    for (strings.language = 0; strings.language < state.range(0);
         ++strings.language) {
      for (const StringMapping& mapping : NCPStringsMappingTable) {
        benchmark::DoNotOptimize(
            strings.GetString(static_cast<int>(mapping.id)));
      }
    }
  }
}

void BenchFloor(benchmark::State& state) {
  const auto languages = static_cast<unsigned int>(state.range(0));
  for ([[maybe_unused]] auto _ : state) {
    for (unsigned int language = 0; language < languages; ++language) {
      for (const StringMapping& mapping : NCPStringsMappingTable) {
        benchmark::DoNotOptimize(
            Bisect(static_cast<int>(mapping.id), language));
      }
    }
  }
}

// The change of language is not measured.
void BenchGettext(benchmark::State& state) {
  std::vector<std::string> ids;
  for (const StringMapping& mapping : NCPStringsMappingTable) {
    ids.push_back(std::to_string(mapping.id));
  }
  for ([[maybe_unused]] auto _ : state) {
    for (int language = 0; language < state.range(0); ++language) {
      state.PauseTiming();
      setenv("LANGUAGE", kCodes[language], 1);
      ++_nl_msg_cat_cntr;
      benchmark::DoNotOptimize(dgettext(kDomain, ids[0].c_str()));
      state.ResumeTiming();
      for (const std::string& id : ids) {
        benchmark::DoNotOptimize(dgettext(kDomain, id.c_str()));
      }
    }
  }
}

// Catalogues of the same texts under their ids.
void MakeCatalogues(const std::string& directory) {
  for (unsigned int language = 0; language < kLanguageCount; ++language) {
    const std::string place =
        directory + "/" + kCodes[language] + "/LC_MESSAGES";
    std::filesystem::create_directories(place);
    std::ofstream source(place + "/source.po");
    source << "msgid \"\"\nmsgstr \"Content-Type: text/plain; "
              "charset=UTF-8\\n\"\n";
    for (const StringMapping& mapping : NCPStringsMappingTable) {
      source << "msgid \"" << mapping.id << "\"\nmsgstr \"";
      for (const char* byte = Bisect(static_cast<int>(mapping.id), language);
           *byte; ++byte) {
        if (*byte == '"' || *byte == '\\') source << '\\';
        (*byte == '\n' ? source << "\\n" : source << *byte);
      }
      source << "\"\n";
    }
    source.close();
    RunProgram(
        {"msgfmt", "-o", place + "/" + kDomain + ".mo", place + "/source.po"});
  }
}

// Hands the repetitions to the table of all subjects.
class TableReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const auto size = std::stoul(run.run_name.args);
      const double iterations = static_cast<double>(run.iterations);
      samples_[size][run.run_name.function_name].push_back(
          {run.cpu_accumulated_time / iterations,
           run.real_accumulated_time / iterations});
    }
  }
  void Finalize() override {
    for (const auto& [size, sides] : samples_) {
      const std::size_t count = sides.at(kPanel).size();
      std::vector<std::vector<Sample>> rounds;
      for (std::size_t i = 0; i < count; ++i) {
        rounds.push_back(
            {sides.at(kPanel)[i], sides.at(kFloor)[i], sides.at("gettext")[i]});
      }
      Print({"160 texts looked up, languages", size},
            {kPanel, kFloor, "gettext"}, rounds, 0);
    }
  }

 private:
  std::map<std::size_t, std::map<std::string, std::vector<Sample>>> samples_;
};

void Register(const char* name, benchmark::internal::Function* function) {
  benchmark::RegisterBenchmark(name, function)
      ->Arg(1)
      ->Arg(4)
      ->Arg(16)
      ->MinTime(0.05)
      ->Repetitions(9);
}

}  // namespace

int main(int argc, char** argv) {
  const PrivateHome home;
  MakeCatalogues(home / "locale");
  // Any locale but "C" makes gettext look.
  Check(std::setlocale(LC_ALL, "C.UTF-8"), "setlocale");
  bindtextdomain(kDomain, (home / "locale").c_str());
  benchmark::Initialize(&argc, argv);
  benchmark::SetBenchmarkFilter(".*");
  Register(kPanel, BenchPanel);
  Register(kFloor, BenchFloor);
  Register("gettext", BenchGettext);
  TableReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
