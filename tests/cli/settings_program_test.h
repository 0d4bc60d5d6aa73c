// Runs corvane-player-settings on a temporary home.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "tests/support/program_run.h"
#include "tests/support/settings_image.h"
#include "tests/support/temporary_home.h"

class SettingsProgramTest : public testing::Test {
 protected:
  SettingsProgramTest() { setenv("LC_ALL", "C", 1); }

  static ProgramRun Run(const std::string& arguments) {
    return RunCommand(Quoted(PROGRAM) + " " + arguments);
  }
  // The same with --json; the output is that of a jq filter. iconv checks that
  // it is UTF-8: jq alone would replace bytes that are not.
  static ProgramRun Query(const std::string& arguments,
                          const std::string& filter) {
    return RunCommand("json=$(" + Quoted(PROGRAM) + " --json " + arguments +
                      "); status=$?; printf %s \"$json\" |"
                      " iconv -f UTF-8 -t UTF-8 | jq -cr " +
                      Quoted(filter) + " && exit $status");
  }
  static std::string Answer(const std::string& arguments,
                            const std::string& filter) {
    return Query(arguments, filter).output;
  }

  TemporaryHome home_;
};
