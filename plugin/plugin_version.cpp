#include "plugin/plugin_version.h"

#include <dlfcn.h>

#include <cstring>

#include "plugin/plugin_library.h"

namespace {

// The browser plug-in interface, as far as a description needs it.
using GetValue = short(void* instance, int variable, void* value);
constexpr char kGetValueName[] = "NP_GetValue";
constexpr int kPluginDescription = 2;
constexpr short kNoError = 0;

const char* VersionIn(const char* description) {
  return description + std::strcspn(description, "0123456789");
}

const char* AskForVersion(void* library) {
  auto* get_value = reinterpret_cast<GetValue*>(dlsym(library, kGetValueName));
  if (!get_value) return nullptr;
  const char* description = nullptr;
  // It takes the function's type for that of a pointer.
  // cppcheck-suppress AssignmentAddressToInteger
  const short error = get_value(nullptr, kPluginDescription, &description);
  return error == kNoError && description ? VersionIn(description) : nullptr;
}

}  // namespace

const char* get_plugin_version() {
  void* library = LoadPluginLibrary();
  return library ? AskForVersion(library) : nullptr;
}

PluginState FindPluginVersion(const char** version) {
  *version = nullptr;
  void* library = LoadPluginLibrary();
  if (!library) return PluginState::kNotInstalled;
  const char* text = AskForVersion(library);
  if (!text || !*text) return PluginState::kNoVersion;
  *version = text;
  return PluginState::kInstalled;
}
