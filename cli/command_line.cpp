#include "cli/command_line.h"

#include <getopt.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace {

using Action = CommandLine::Action;

struct CommandRow {
  const char* word;
  const char* arguments;
  const char* help;
  Action action;
  // Letters of the options that this command takes, beside --help and
  // --version.
  const char* options;
  bool takes_names;
  bool needs_names;
};

constexpr CommandRow kCommands[] = {
    {"show", "[SITE...]", "show the global settings and those of the sites",
     Action::kShow, "jp", true, false},
    {"inspect", "FILE...", "show what settings files hold, entry by entry",
     Action::kInspect, "j", true, true},
    {"version", "", "show which versions are installed", Action::kVersion, "",
     false, false},
};

struct OptionRow {
  char letter;
  const char* name;
  const char* argument;
  const char* help;
};

constexpr OptionRow kOptions[] = {
    {'j', "json", nullptr, "with show or inspect: print JSON"},
    {'p', "permission", "KIND=STATE",
     "with show: only sites with this permission"},
    {'h', "help", nullptr, "print this help and exit"},
    {'V', "version", nullptr, "print the version of this program and exit"},
};

// These return false, for callers that then fail.
bool SuggestHelp() {
  std::fprintf(stderr, "Try '%s --help'.\n", kProgramName);
  return false;
}
bool PrintUsageError(const char* message, std::string_view argument = "") {
  std::fprintf(stderr, "%s: %s%.*s\n", kProgramName, message,
               static_cast<int>(argument.size()), argument.data());
  return SuggestHelp();
}

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

bool ParseFilter(std::string_view text, CommandLine* command) {
  const std::size_t equals = text.find('=');
  if (equals != text.npos) {
    const auto* permission = FindWord(kPermissions, text.substr(0, equals));
    const auto* choice = FindWord(kPermissionChoices, text.substr(equals + 1));
    if (permission && choice) {
      command->filters.push_back({permission->kind, choice->state});
      return true;
    }
  }
  return PrintUsageError("no such permission: ", text);
}

bool ParseCommand(std::span<char* const> words, std::string_view option_letters,
                  CommandLine* command) {
  if (words.empty()) return PrintUsageError("a command is missing");
  const CommandRow* row = FindWord(kCommands, words[0]);
  if (!row) return PrintUsageError("no such command: ", words[0]);
  const std::size_t refused = option_letters.find_first_not_of(row->options);
  if (refused != option_letters.npos) {
    return PrintUsageError("the command does not take the option -",
                           option_letters.substr(refused, 1));
  }
  command->action = row->action;
  command->names = words.subspan(1);
  if (command->names.empty()) {
    return !row->needs_names || PrintUsageError("a file is missing");
  }
  return row->takes_names || PrintUsageError("unexpected argument: ", words[1]);
}

// kOptions in the form of getopt_long(3).
struct OptionTables {
  OptionTables() {
    for (const OptionRow& row : kOptions) {
      const int has_argument = row.argument ? required_argument : no_argument;
      names.push_back({row.name, has_argument, nullptr, row.letter});
      letters += row.letter;
      if (row.argument) letters += ':';
    }
    names.push_back({});
  }

  std::vector<option> names;
  std::string letters;
};

}  // namespace

bool ParseCommandLine(std::span<char*> arguments, CommandLine* command) {
  const OptionTables tables;
  const auto count = static_cast<int>(arguments.size());
  std::string option_letters;
  for (;;) {
    const int letter =
        getopt_long(count, arguments.data(), tables.letters.c_str(),
                    tables.names.data(), nullptr);
    if (letter == -1) break;
    if (letter == '?') return SuggestHelp();
    option_letters += static_cast<char>(letter);
    if (letter == 'j') command->json = true;
    if (letter == 'p' && !ParseFilter(optarg, command)) return false;
    if (letter != 'h' && letter != 'V') continue;
    command->action = letter == 'h' ? Action::kHelp : Action::kProgramVersion;
    return true;
  }
  return ParseCommand(arguments.subspan(static_cast<std::size_t>(optind)),
                      option_letters, command);
}

void PrintHelp(std::FILE* output) {
  constexpr int kColumn = 30;
  std::fprintf(output,
               "Usage: %s COMMAND [OPTION...] [ARGUMENT...]\n"
               "Show the settings of Corvane Player without changing them.\n\n"
               "Commands:\n",
               kProgramName);
  for (const CommandRow& row : kCommands) {
    const std::string words = std::string(row.word) + " " + row.arguments;
    std::fprintf(output, "  %-*s%s\n", kColumn, words.c_str(), row.help);
  }
  std::fputs("\nOptions:\n", output);
  for (const OptionRow& row : kOptions) {
    std::string words = {'-', row.letter, ',', ' ', '-', '-'};
    words += row.name;
    if (row.argument) words += std::string("=") + row.argument;
    std::fprintf(output, "  %-*s%s\n", kColumn, words.c_str(), row.help);
  }
  std::fprintf(output, "\nKIND is %s; STATE is %s.\n",
               Alternatives(kPermissions).c_str(),
               Alternatives(kPermissionChoices).c_str());
  std::fputs(
      "Exit status: 0 on success, 1 if something is damaged, unknown or "
      "cannot be read,\n2 if the command line is wrong.\n",
      output);
}

void PrintProgramVersion(std::FILE* output) {
  std::fprintf(output, "%s %s\n", kProgramName, PROGRAM_VERSION);
}
