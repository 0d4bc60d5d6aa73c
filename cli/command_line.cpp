#include "cli/command_line.h"

#include <getopt.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "cli/commands.h"
#include "strings/printable_text.h"

namespace {

constexpr std::size_t kAnyNumber = SIZE_MAX;

constexpr Command kCommands[] = {
    {"show", "[SITE...]", "show the global settings and those of the sites",
     "jpN0", nullptr, RunShow, kAnyNumber},
    {"inspect", "FILE...", "show what settings files hold, entry by entry",
     "jsg", nullptr, RunInspect, kAnyNumber},
    {"doctor", "", "find what is wrong and what no list shows", "jrn", nullptr,
     RunDoctor, 0},
    {"export", "[SITE...]", "print all settings as a JSON document", "o",
     nullptr, RunExport, kAnyNumber},
    {"import", "FILE", "apply such a document", "RDn", "a file", RunImport, 1},
    {"set", "KIND=STATE... SITE...", "set permissions of sites", "aAn",
     "a permission", RunSet, kAnyNumber},
    {"remove", "SITE...", "remove sites, with their settings and data", "kn",
     "a site", RunRemove, kAnyNumber},
    {"clear", "WHAT...", "delete what sites and the plug-in have stored", "KOn",
     "what to clear", RunClear, kAnyNumber},
    {"trust", "PATH...", "add trusted locations", "n", "a path", RunTrust,
     kAnyNumber},
    {"untrust", "PATH...", "remove trusted locations", "n", "a path",
     RunUntrust, kAnyNumber},
    {"version", "", "show which versions are installed", "", nullptr,
     RunVersion, 0},
};

struct OptionRow {
  Option option;
  bool is_short;
  const char* name;
  const char* argument;
  const char* help;
};

constexpr OptionRow kOptions[] = {
    {kJson, true, "json", nullptr, "print JSON"},
    {kPermission, true, "permission", "KIND=STATE",
     "only sites with this permission"},
    {kNames, false, "names", nullptr, "only the names of the listed sites"},
    {kNull, false, "null", nullptr,
     "end each name with a zero byte, not a line"},
    {kSite, false, "site", "NAME", "the settings file of a site"},
    {kGlobal, false, "global", nullptr, "the file of the global settings"},
    {kRelist, false, "relist", nullptr,
     "put sites that are not listed on the list"},
    {kOutput, true, "output", "FILE", "write to this file"},
    {kReplace, false, "replace", nullptr,
     "remove what the document does not name"},
    {kDeleteData, false, "delete-data", nullptr,
     "delete the stored data of sites that are blocked or removed"},
    {kAdd, false, "add", nullptr, "add sites that are not listed"},
    {kAllSites, false, "all-sites", nullptr,
     "the global setting, as in the panel"},
    {kKeepData, false, "keep-data", nullptr, "leave the stored data"},
    {kKeep, false, "keep", "SITE", "leave this site; .SITE: and those below"},
    {kOlderThan, false, "older-than", "AGE",
     "only stored data of this age, such as 30d or 12h"},
    {kDryRun, false, "dry-run", nullptr, "print changes, make none"},
    {kHelp, true, "help", nullptr, "print this help and exit"},
    {kVersion, true, "version", nullptr,
     "print the version of this program and exit"},
};

template <typename Rows>
const auto* FindWord(const Rows& rows, std::string_view word) {
  const auto* row = std::find_if(
      std::begin(rows), std::end(rows),
      [word](const auto& candidate) { return candidate.word == word; });
  return row == std::end(rows) ? nullptr : row;
}

// "a, b or c"
template <typename Row, std::size_t count>
std::string Alternatives(const Row (&rows)[count]) {
  std::string text = rows[0].word;
  for (std::size_t i = 1; i < count; ++i) {
    text += i + 1 < count ? ", " : " or ";
    text += rows[i].word;
  }
  return text;
}

// "show, inspect", or nothing for an option of every command.
std::string CommandsWith(Option option) {
  std::string text;
  for (const Command& command : kCommands) {
    if (command.options.find(option) == std::string_view::npos) continue;
    text += (text.empty() ? "" : ", ") + std::string(command.word);
  }
  return text;
}

const OptionRow* RowOf(Option option) {
  return std::ranges::find(kOptions, option, &OptionRow::option);
}

// kOptions in the form of getopt_long(3).
struct OptionTables {
  OptionTables() {
    for (const OptionRow& row : kOptions) {
      const int has_argument = row.argument ? required_argument : no_argument;
      names.push_back({row.name, has_argument, nullptr, row.option});
      if (row.is_short) letters += static_cast<char>(row.option);
      if (row.is_short && row.argument) letters += ':';
    }
    names.push_back({});
  }

  std::vector<option> names;
  // The dash hands words over in their place among the options, the colon keeps
  // the library from printing what nobody has made printable.
  std::string letters = "-:";
};

// `argument` is where the library stopped; a group of short options has not
// been left then.
bool RefuseOption(int reason, std::string_view argument) {
  const auto letter = static_cast<char>(optopt);
  const bool is_known =
      std::ranges::count(kOptions, letter, &OptionRow::option);
  if (reason == ':') return Refuse("the option needs an argument: ", argument);
  if (is_known) return Refuse("the option takes no argument: ", argument);
  if (optopt) return Refuse("no such option: ", std::string{'-', letter});
  return Refuse("no such option: ", argument);
}

// False when an option is wrong, which is reported.
bool SplitArguments(std::span<char*> arguments, CommandLine* line) {
  constexpr int kWord = 1;
  const OptionTables tables;
  const auto count = static_cast<int>(arguments.size());
  for (;;) {
    const int letter =
        getopt_long(count, arguments.data(), tables.letters.c_str(),
                    tables.names.data(), nullptr);
    if (letter == -1) break;
    if (letter == '?' || letter == ':') {
      return RefuseOption(letter,
                          arguments[static_cast<std::size_t>(optind) - 1]);
    }
    if (letter == kWord) {
      line->words.push_back(optarg);
    } else {
      line->options.push_back({static_cast<Option>(letter), optarg});
    }
  }
  line->words_before_dashes = line->words.size();
  const auto rest = arguments.subspan(static_cast<std::size_t>(optind));
  line->words.insert(line->words.end(), rest.begin(), rest.end());
  return true;
}

// Takes the command's word off the words.
bool TakeCommand(CommandLine* line) {
  if (line->words.empty()) return Refuse("a command is missing");
  line->command = FindWord(kCommands, line->words[0]);
  if (!line->command) return Refuse("no such command: ", line->words[0]);
  line->words.erase(line->words.begin());
  if (line->words_before_dashes > 0) --line->words_before_dashes;
  return true;
}

bool CheckArguments(const CommandLine& line) {
  const Command& command = *line.command;
  for (const auto& given : line.options) {
    if (command.options.find(given.option) == std::string_view::npos) {
      return Refuse("the command does not take the option --",
                    RowOf(given.option)->name);
    }
  }
  if (command.needed_word && line.words.empty()) {
    return Refuse(std::string(command.needed_word) + " is missing");
  }
  return line.words.size() <= command.most_words ||
         Refuse("unexpected argument: ", line.words[command.most_words]);
}

bool ParseLimit(std::string_view text, PermissionChange* change) {
  change->is_limit = true;
  change->limit_kb = kUnlimited;
  if (text != kUnlimitedWord) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, change->limit_kb);
    if (result.ec != std::errc() || result.ptr != end) return false;
    if (!std::isfinite(change->limit_kb) || std::signbit(change->limit_kb)) {
      return false;
    }
  }
  change->state = StateOfLimit(change->limit_kb);
  return true;
}

}  // namespace

bool CommandLine::Has(Option option) const {
  return std::ranges::count(options, option, &GivenOption::option) > 0;
}

std::vector<const char*> CommandLine::ArgumentsOf(Option option) const {
  std::vector<const char*> arguments;
  for (const GivenOption& given : options) {
    if (given.option == option) arguments.push_back(given.argument);
  }
  return arguments;
}

ExitStatus PrintUsageError(std::string_view message,
                           std::string_view argument) {
  std::fprintf(stderr, "%s: %s%s\n", kProgramName, std::string(message).c_str(),
               Printable(argument).c_str());
  std::fprintf(stderr, "Try '%s --help'.\n", kProgramName);
  return kUsageError;
}

bool Refuse(std::string_view message, std::string_view argument) {
  return PrintUsageError(message, argument) == kSuccess;
}

bool ParseCommandLine(std::span<char*> arguments, CommandLine* line) {
  if (!SplitArguments(arguments, line)) return false;
  if (line->Has(kHelp) || line->Has(kVersion)) return true;
  return TakeCommand(line) && CheckArguments(*line);
}

bool ParsePermission(std::string_view text, Limits limits,
                     PermissionChange* change) {
  const std::size_t equals = text.find('=');
  change->permission = FindWord(kPermissions, text.substr(0, equals));
  if (!change->permission || equals == text.npos) {
    return Refuse("no such permission: ", text);
  }
  const std::string_view word = text.substr(equals + 1);
  if (const auto* choice = FindWord(kPermissionChoices, word)) {
    change->state = choice->state;
    return true;
  }
  return (limits == Limits::kAllowed && change->permission->limit_key &&
          ParseLimit(word, change)) ||
         Refuse("no such permission: ", text);
}

void PrintHelp(std::FILE* output) {
  constexpr int kColumn = 30;
  std::fprintf(output,
               "Usage: %s COMMAND [OPTION...] [ARGUMENT...]\n"
               "Show and change the settings of Corvane Player.\n\n"
               "Commands:\n",
               kProgramName);
  for (const Command& command : kCommands) {
    const std::string words =
        std::string(command.word) + " " + command.arguments;
    std::fprintf(output, "  %-*s%s\n", kColumn, words.c_str(), command.help);
  }
  std::fputs("\nOptions:\n", output);
  for (const OptionRow& row : kOptions) {
    std::string words = row.is_short ? std::string{'-', row.option} + ", " : "";
    words += std::string("--") + row.name;
    if (row.argument) words += std::string("=") + row.argument;
    const std::string commands = CommandsWith(row.option);
    std::fprintf(output, "  %-*s%s%s%s\n", kColumn, words.c_str(),
                 commands.c_str(), commands.empty() ? "" : ": ", row.help);
  }
  std::fprintf(output, "\nKIND is %s; STATE is %s.\n",
               Alternatives(kPermissions).c_str(),
               Alternatives(kPermissionChoices).c_str());
  std::fputs(
      "Exit status: 0 on success, 1 if something is damaged, unknown or "
      "cannot be done,\n2 if the command line or the document is wrong.\n",
      output);
}

void PrintProgramVersion(std::FILE* output) {
  std::fprintf(output, "%s %s\n", kProgramName, PROGRAM_VERSION);
}
