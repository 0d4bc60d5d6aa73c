#include "tests/end_to_end/accessible.h"

#include <cstdlib>

namespace {

constexpr char kAccessible[] = "org.a11y.atspi.Accessible";
constexpr char kComponent[] = "org.a11y.atspi.Component";

// Long enough for a machine that is busy with other tests.
constexpr int kPatience = 20000;  // milliseconds

GDBusConnection* AccessibilityBus() {
  static GDBusConnection* const bus = g_dbus_connection_new_for_address_sync(
      std::getenv("AT_SPI_BUS_ADDRESS"),
      static_cast<GDBusConnectionFlags>(
          G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
      nullptr, nullptr, nullptr);
  return bus;
}

}  // namespace

template <typename... Values>
bool Accessible::Ask(const char* interface, const char* method,
                     GVariant* arguments, const char* format,
                     Values*... values) const {
  GVariant* answer = g_dbus_connection_call_sync(
      AccessibilityBus(), program_.c_str(), path_.c_str(), interface, method,
      arguments, nullptr, G_DBUS_CALL_FLAGS_NONE, kPatience, nullptr, nullptr);
  const bool fits =
      answer && g_variant_check_format_string(answer, format, TRUE);
  if (fits) g_variant_get(answer, format, values...);
  if (answer) g_variant_unref(answer);
  return fits;
}

std::string Accessible::Property(const char* name) const {
  GVariant* value = nullptr;
  if (!Ask("org.freedesktop.DBus.Properties", "Get",
           g_variant_new("(ss)", kAccessible, name), "(v)", &value)) {
    return {};
  }
  std::string text = g_variant_get_string(value, nullptr);
  g_variant_unref(value);
  return text;
}

std::string Accessible::Role() const {
  char* text = nullptr;
  if (!Ask(kAccessible, "GetRoleName", nullptr, "(s)", &text)) return {};
  std::string role = text;
  g_free(text);
  return role;
}

bool Accessible::Is(State state) const {
  GVariantIter* words = nullptr;
  if (!Ask(kAccessible, "GetState", nullptr, "(au)", &words)) return false;
  guint32 low_word = 0;  // has the first 32 states
  g_variant_iter_next(words, "u", &low_word);
  g_variant_iter_free(words);
  return (low_word >> state & 1) != 0;
}

std::string Accessible::Place() const {
  constexpr guint32 kOfScreen = 0;
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  (void)Ask(kComponent, "GetExtents", g_variant_new("(u)", kOfScreen),
            "((iiii))", &x, &y, &width, &height);
  return std::to_string(x + width / 2) + " " + std::to_string(y + height / 2);
}

std::vector<Accessible> Accessible::Children() const {
  GVariantIter* nodes = nullptr;
  std::vector<Accessible> children;
  if (!Ask(kAccessible, "GetChildren", nullptr, "(a(so))", &nodes)) return {};
  const char* program = nullptr;
  const char* path = nullptr;
  while (g_variant_iter_next(nodes, "(&s&o)", &program, &path)) {
    children.push_back(Accessible(program, path));
  }
  g_variant_iter_free(nodes);
  return children;
}

std::vector<Accessible> Accessible::FindAll(const Condition& fits) const {
  std::vector<Accessible> found;
  for (const Accessible& child : Children()) {
    if (fits(child)) found.push_back(child);
    for (const Accessible& node : child.FindAll(fits)) found.push_back(node);
  }
  return found;
}

bool Accessible::Act() const {
  gboolean is_done = FALSE;
  (void)Ask("org.a11y.atspi.Action", "DoAction", g_variant_new("(i)", 0), "(b)",
            &is_done);
  return is_done;
}

bool Accessible::Focus() const {
  gboolean is_done = FALSE;
  (void)Ask(kComponent, "GrabFocus", nullptr, "(b)", &is_done);
  return is_done;
}
