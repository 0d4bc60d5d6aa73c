#include <string>

#include "cli/commands.h"
#include "cli/plain_text.h"
#include "plugin/plugin_version.h"
#include "strings/placeholder.h"
#include "strings/printable_text.h"

namespace {

// Ids of texts.
int TextIdOf(PluginState state) {
  switch (state) {
    case PluginState::kInstalled:
      return 51300;
    case PluginState::kNoVersion:
      return 51301;
    case PluginState::kNotInstalled:
      break;
  }
  return 51302;
}

}  // namespace

ExitStatus RunVersion(const CommandLine&) {
  PrintProgramVersion(stdout);
  const char* version = nullptr;
  const PluginState state = FindPluginVersion(&version);
  std::string text = TextOf(TextIdOf(state));
  if (version) text = FillPlaceholder(text, Printable(version));
  std::puts(text.c_str());
  return kSuccess;
}
