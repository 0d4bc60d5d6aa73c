#include "store/site_name.h"

#include <string_view>

namespace SASM {

const SimpleString& MasterDomainName() {
  static const SimpleString name("___MASTER_DOMAIN");
  return name;
}

bool IsSiteName(const SimpleString& name) {
  if (name == MasterDomainName()) return false;
  std::string_view rest = name.c_str();
  for (;;) {
    const std::size_t slash = rest.find('/');
    const std::string_view component = rest.substr(0, slash);
    if (component.empty() || component == "." || component == "..") {
      return false;
    }
    if (slash == rest.npos) return true;
    rest.remove_prefix(slash + 1);
  }
}

}  // namespace SASM
