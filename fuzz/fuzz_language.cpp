// The choice of language, beside a plain model of its rules.
#include <string>

#include "fuzz/fuzz_target.h"
#include "strings/languages.h"
#include "strings/string_manager.h"

namespace {

int ModelOf(const std::string& name) {
  std::string language = name;
  if (const auto end = name.rfind('_'); end != name.npos) {
    language = name.substr(0, end);
  }
  std::string locale = name;
  if (const auto end = name.find('.'); end != name.npos) {
    locale = name.substr(0, end);
  }
  if (locale == "zh_HK" || locale == "zh_MO" || locale == "zh_TW") return 15;
  for (const auto& row : NCPStrings::kLanguages) {
    if (language == row.code) return static_cast<int>(row.language);
  }
  return 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  const std::string bytes(data, data + size);
  const std::string name = bytes.substr(0, bytes.find('\0'));
  const int language = LanguageOfLocale(name.c_str());
  Require(language == ModelOf(name), "the language is that of the rules");
  return 0;
}
