#include "tests/cli/settings_program_test.h"

namespace {

using testing::HasSubstr;
using CommandLine = SettingsProgramTest;
using VersionCommand = SettingsProgramTest;

TEST_F(CommandLine, IsRefusedWhenItIsWrong) {
  for (const char* arguments :
       {"",
        "shw",
        "show --jsn",
        "show --permission",
        "show -p storage",
        "show -p storage=",
        "show -p =block",
        "show -p disk=block",
        "show -p storage=none",
        "show -p storage=block=x",
        "inspect",
        "inspect -p storage=block x",
        "inspect --global x",
        "version --json",
        "version x",
        "--json",
        "--json=x show",
        "-x show",
        "show --null",
        "show --names a",
        "export -o",
        "export -o a -o b",
        "import",
        "import a b",
        "set",
        "set a.example",
        "set storage=block",
        "set camera=1 a",
        "set storage=-1 a",
        "set storage=1x a",
        "set storage=inf a",
        "set storage=1e999 a",
        "set camera=ask camera=ask a",
        "set -- camera=ask a",
        "set camera=ask a/../b",
        "set camera=ask ''",
        "set camera=ask ___MASTER_DOMAIN",
        "set --all-sites camera=allow",
        "set --all-sites network=allow",
        "set --all-sites camera=ask a",
        "remove",
        "remove a ..",
        "clear",
        "clear all",
        "clear --older-than 3d cache",
        "clear --older-than d storage",
        "clear --older-than 3 storage",
        "clear --older-than 3dd storage",
        "clear --older-than 999999999999999999d storage",
        "trust",
        "trust ''",
        "untrust",
        "doctor --dry-run",
        "doctor x"}) {
    SCOPED_TRACE(arguments);
    const ProgramRun run = Run(arguments);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_THAT(run.errors, HasSubstr("--help"));
  }
}

TEST_F(CommandLine, FailsWhenItsOutputIsLost) {
  const struct {
    const char* arguments;
    const char* error;
  } cases[] = {{"show >/dev/full", "No space left on device"},
               {"show >&- <&-", "Bad file descriptor"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.arguments);
    const ProgramRun run = Run(c.arguments);
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr(c.error));
  }
}

// Installs a stand-in for the plug-in, or none.
TEST_F(VersionCommand, ShowsWhatIsInstalled) {
  const struct {
    const char* stand_in;
    const char* text;
  } cases[] = {
      {"none", "Tessary Corvane Player is not installed on this computer."},
      {"good.so",
       "Tessary Corvane Player 10.1 r53 is installed on this computer."},
      {"failing.so",
       "Unable to determine the version of Tessary Corvane Player installed on "
       "this computer."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.stand_in);
    // Without PATH no plug-in of this computer is found.
    const ProgramRun run = RunCommand(
        "ln -sf " + Quoted(STAND_INS "/" + std::string(c.stand_in)) +
        " ~/libcorvaneplayer.so; PATH=/nonexistent MOZ_PLUGIN_PATH=~ " +
        Quoted(PROGRAM) + " version");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output,
              "corvane-player-settings 1.0.0\n" + std::string(c.text) + "\n");
  }
}

}  // namespace
