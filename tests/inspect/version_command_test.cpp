#include <gmock/gmock.h>

#include "tests/support/program_run.h"
#include "tests/support/temporary_home.h"

namespace {

// Puts one of the stand-ins for the plug-in, or none, where it is found.
TEST(VersionCommand, TellsWhatIsInstalled) {
  const struct {
    const char* stand_in;
    const char* text;
  } cases[] = {
      {"good.so",
       "Tessary Corvane Player 10.1 r53 is installed on this "
       "computer."},
      {"digitless.so",
       "Unable to determine the version of Tessary Corvane "
       "Player installed on this computer."},
      {"failing.so",
       "Unable to determine the version of Tessary Corvane "
       "Player installed on this computer."},
      {nullptr, "Tessary Corvane Player is not installed on this computer."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    const TemporaryHome home;
    home.Write("plugins/placeholder", "");
    if (c.stand_in) {
      std::filesystem::copy_file(std::string(STAND_INS "/") + c.stand_in,
                                 home / "plugins/libcorvaneplayer.so");
    }
    // Without PATH nothing is located that this computer may have.
    const ProgramRun run =
        RunCommand("LC_ALL=C PATH=/nonexistent MOZ_PLUGIN_PATH=" +
                   Quoted(home / "plugins") + " " + PROGRAM + " version");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output,
              "corvane-player-settings 1.0.0\n" + std::string(c.text) + "\n");
  }
}

}  // namespace
