#include <string>

#include "cli/commands.h"
#include "cli/plain_text.h"
#include "plugin/plugin_version.h"
#include "strings/placeholder.h"
#include "strings/printable_text.h"

namespace {

// By PluginState.
constexpr int kTextIds[] = {51302, 51301, 51300};

}  // namespace

ExitStatus RunVersion(const CommandLine&) {
  PrintProgramVersion(stdout);
  const char* version = nullptr;
  const PluginState state = FindPluginVersion(&version);
  std::string text = TextOf(kTextIds[static_cast<unsigned int>(state)]);
  if (version) text = FillPlaceholder(text, Printable(version));
  std::puts(text.c_str());
  return kSuccess;
}
