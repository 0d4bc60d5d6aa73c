// The command line of the program.
#pragma once

#include <cstdio>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/permissions.h"

inline constexpr char kProgramName[] = "corvane-player-settings";

enum ExitStatus { kSuccess = 0, kFailure = 1, kUsageError = 2 };

// Each is the letter of its short form, if it has one.
enum Option : char {
  kJson = 'j',
  kPermission = 'p',
  kNames = 'N',
  kNull = '0',
  kSite = 's',
  kGlobal = 'g',
  kRelist = 'r',
  kOutput = 'o',
  kReplace = 'R',
  kDeleteData = 'D',
  kDryRun = 'n',
  kAdd = 'a',
  kAllSites = 'A',
  kKeepData = 'k',
  kKeep = 'K',
  kOlderThan = 'O',
  kHelp = 'h',
  kVersion = 'V',
};

struct CommandLine;

struct Command {
  const char* word;
  const char* arguments;
  const char* help;
  // Besides --help and --version.
  std::string_view options;
  // Names the words that follow, of which there must be at least one; null
  // when there may be none.
  const char* needed_word;
  ExitStatus (*run)(const CommandLine& line);
  std::size_t most_words;
};

// What the user typed; borrowed from the program's arguments.
struct CommandLine {
  struct GivenOption {
    Option option;
    const char* argument;
  };

  // Null when one of the options is --help or --version.
  const Command* command = nullptr;
  std::vector<GivenOption> options;
  // Those that follow the command's word.
  std::vector<const char*> words;
  // How many of these are before a "--".
  std::size_t words_before_dashes = 0;

  [[nodiscard]] bool Has(Option option) const;
  // The arguments of all its occurrences.
  [[nodiscard]] std::vector<const char*> ArgumentsOf(Option option) const;
};

// When the arguments, the first of which is the program's name, are wrong,
// prints why and returns false.
[[nodiscard]] bool ParseCommandLine(std::span<char*> arguments,
                                    CommandLine* line);

// Prints the message, with the argument made printable, and where help is.
ExitStatus PrintUsageError(std::string_view message,
                           std::string_view argument = "");
// The same, for checks: false.
bool Refuse(std::string_view message, std::string_view argument = "");

// A permission and a state or, for storage, perhaps a limit.
struct PermissionChange {
  const Permission* permission = nullptr;
  PermissionState state = kPermissionStateNone;
  // The limit that was given as a number or as "unlimited".
  bool is_limit = false;
  double limit_kb = 0;
};
enum class Limits { kAllowed, kRefused };
// KIND=STATE. Refuses what is none, and a limit where none is allowed.
[[nodiscard]] bool ParsePermission(std::string_view text, Limits limits,
                                   PermissionChange* change);

void PrintHelp(std::FILE* output);
void PrintProgramVersion(std::FILE* output);
