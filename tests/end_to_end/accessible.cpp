#include "tests/end_to_end/accessible.h"

#include <cstdlib>

namespace {

constexpr char kAccessible[] = "org.a11y.atspi.Accessible";
constexpr char kAction[] = "org.a11y.atspi.Action";
constexpr char kComponent[] = "org.a11y.atspi.Component";
constexpr char kRootPath[] = "/org/a11y/atspi/accessible/root";

// Long enough for a machine that is busy with other tests.
constexpr int kPatience = 20000;  // milliseconds

// Owned by the caller; null after an error, which tells that what was asked
// has gone or is not there yet.
GVariant* NewReply(GDBusConnection* bus, const char* program, const char* path,
                   const char* interface, const char* method,
                   GVariant* arguments, const char* type) {
  return g_dbus_connection_call_sync(
      bus, program, path, interface, method, arguments, G_VARIANT_TYPE(type),
      G_DBUS_CALL_FLAGS_NONE, kPatience, nullptr, nullptr);
}

std::shared_ptr<GDBusConnection> Connect(const char* address) {
  GDBusConnection* bus = g_dbus_connection_new_for_address_sync(
      address,
      static_cast<GDBusConnectionFlags>(
          G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
      nullptr, nullptr, nullptr);
  return bus ? std::shared_ptr<GDBusConnection>(bus, g_object_unref) : nullptr;
}

std::shared_ptr<GDBusConnection> ConnectToAccessibilityBus() {
  const auto session = Connect(std::getenv("DBUS_SESSION_BUS_ADDRESS"));
  GVariant* reply =
      session ? NewReply(session.get(), "org.a11y.Bus", "/org/a11y/bus",
                         "org.a11y.Bus", "GetAddress", nullptr, "(s)")
              : nullptr;
  if (!reply) return nullptr;
  const char* address = nullptr;
  g_variant_get(reply, "(&s)", &address);
  auto bus = Connect(address);
  g_variant_unref(reply);
  return bus;
}

guint32 ProcessOf(GDBusConnection* bus, const std::string& program) {
  guint32 id = 0;
  GVariant* reply =
      NewReply(bus, "org.freedesktop.DBus", "/", "org.freedesktop.DBus",
               "GetConnectionUnixProcessID",
               g_variant_new("(s)", program.c_str()), "(u)");
  if (!reply) return 0;
  g_variant_get(reply, "(u)", &id);
  g_variant_unref(reply);
  return id;
}

// A boolean answer; false for none. Takes over `answer`.
bool IsTrue(GVariant* answer) {
  gboolean value = FALSE;
  if (!answer) return false;
  g_variant_get(answer, "(b)", &value);
  g_variant_unref(answer);
  return value;
}

}  // namespace

Accessible Accessible::OfProgram(int process_id) {
  static Bus bus;
  if (!bus || g_dbus_connection_is_closed(bus.get())) {
    bus = ConnectToAccessibilityBus();
  }
  if (!bus) return {};
  const Accessible registry(bus, "org.a11y.atspi.Registry", kRootPath);
  for (const Accessible& program : registry.Children()) {
    if (ProcessOf(bus.get(), program.program_) ==
        static_cast<guint32>(process_id)) {
      return program;
    }
  }
  return {};
}

GVariant* Accessible::NewAnswer(const char* interface, const char* method,
                                GVariant* arguments, const char* type) const {
  if (bus_) {
    return NewReply(bus_.get(), program_.c_str(), path_.c_str(), interface,
                    method, arguments, type);
  }
  if (arguments) g_variant_unref(g_variant_ref_sink(arguments));
  return nullptr;
}

std::string Accessible::Name() const {
  GVariant* answer =
      NewAnswer("org.freedesktop.DBus.Properties", "Get",
                g_variant_new("(ss)", kAccessible, "Name"), "(v)");
  if (!answer) return {};
  GVariant* value = nullptr;
  g_variant_get(answer, "(v)", &value);
  std::string name = g_variant_get_string(value, nullptr);
  g_variant_unref(value);
  g_variant_unref(answer);
  return name;
}

std::string Accessible::Role() const {
  GVariant* answer = NewAnswer(kAccessible, "GetRoleName", nullptr, "(s)");
  if (!answer) return {};
  const char* role = nullptr;
  g_variant_get(answer, "(&s)", &role);
  std::string copy = role;
  g_variant_unref(answer);
  return copy;
}

bool Accessible::Is(State state) const {
  GVariant* answer = NewAnswer(kAccessible, "GetState", nullptr, "(au)");
  if (!answer) return false;
  GVariantIter* words = nullptr;
  g_variant_get(answer, "(au)", &words);
  guint32 low_word = 0;  // that of the first 32 states
  g_variant_iter_next(words, "u", &low_word);
  g_variant_iter_free(words);
  g_variant_unref(answer);
  return (low_word >> state & 1) != 0;
}

std::vector<Accessible> Accessible::Children() const {
  std::vector<Accessible> children;
  GVariant* answer = NewAnswer(kAccessible, "GetChildren", nullptr, "(a(so))");
  if (!answer) return children;
  GVariantIter* nodes = nullptr;
  g_variant_get(answer, "(a(so))", &nodes);
  const char* program = nullptr;
  const char* path = nullptr;
  while (g_variant_iter_next(nodes, "(&s&o)", &program, &path)) {
    children.push_back(Accessible(bus_, program, path));
  }
  g_variant_iter_free(nodes);
  g_variant_unref(answer);
  return children;
}

ScreenBox Accessible::Place() const {
  constexpr guint32 kOfScreen = 0;
  ScreenBox box;
  GVariant* answer = NewAnswer(kComponent, "GetExtents",
                               g_variant_new("(u)", kOfScreen), "((iiii))");
  if (!answer) return box;
  g_variant_get(answer, "((iiii))", &box.x, &box.y, &box.width, &box.height);
  g_variant_unref(answer);
  return box;
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
  return IsTrue(NewAnswer(kAction, "DoAction", g_variant_new("(i)", 0), "(b)"));
}

bool Accessible::Focus() const {
  return IsTrue(NewAnswer(kComponent, "GrabFocus", nullptr, "(b)"));
}
