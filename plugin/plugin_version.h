// Which version of the player's browser plug-in is installed.
#pragma once

// Looking for the version loads the plug-in library, and loading a library
// runs its code inside this program, with all the user's rights. What is
// loaded is what LoadPluginLibrary finds and nothing else; it stays loaded
// until the program ends, because the version text lives in it. Nothing is
// printed, and every failure is a null result. Not for concurrent calls.

// Asks the plug-in for its description and returns the part of it from its
// first decimal digit on: "10.1 r53" of "Media plug-in 10.1 r53". The text is
// the plug-in's own and stays valid. Empty when the description holds no
// digit. Null when no library was found and loaded, when it cannot be asked,
// and when it answers with an error or without a text.
extern "C" __attribute__((visibility("default"))) const char*
get_plugin_version();

enum class PluginState {
  kNotInstalled,  // no library was found and loaded
  kNoVersion,     // a library was loaded, but gives no version, or an empty one
  kInstalled,
};

// The same search, with what null and the empty text leave open. `*version`
// becomes the text when there is one, else null.
[[nodiscard]] PluginState FindPluginVersion(const char** version);
