// The programs on a desktop, as an assistive technology sees them.
#pragma once

#include <gio/gio.h>

#include <functional>
#include <string>
#include <vector>

// A node of the accessibility tree. Every call asks over the accessibility bus;
// for a node that no longer exists the answer is empty or false.
class Accessible {
 public:
  // The numbers are those of the accessibility protocol.
  enum State {
    kActive = 1,
    kChecked = 4,
    kFocusable = 11,
    kFocused = 12,
    kSelected = 23,
    kSensitive = 24,
    kShowing = 25,
  };

  // The desktop, whose children are programs.
  Accessible() = default;

  [[nodiscard]] std::string Name() const { return Property("Name"); }
  [[nodiscard]] std::string Description() const {
    return Property("Description");
  }
  // "push button".
  [[nodiscard]] std::string Role() const;
  [[nodiscard]] bool Is(State state) const;
  // The centre as "x y", in pixels on the screen.
  [[nodiscard]] std::string Place() const;

  [[nodiscard]] std::vector<Accessible> Children() const;
  // The nodes below that meet the condition, each before its children.
  using Condition = std::function<bool(const Accessible&)>;
  [[nodiscard]] std::vector<Accessible> FindAll(const Condition& fits) const;

  // Has the effect of a click. False on failure.
  [[nodiscard]] bool Act() const;
  [[nodiscard]] bool Focus() const;

 private:
  Accessible(const char* program, const char* path)
      : program_(program), path_(path) {}

  // Reads the values from the answer, in a format of g_variant_get(). Without
  // an answer in that format reads nothing and returns false.
  [[nodiscard]] std::string Property(const char* name) const;
  template <typename... Values>
  bool Ask(const char* interface, const char* method, GVariant* arguments,
           const char* format, Values*... values) const;

  std::string program_ = "org.a11y.atspi.Registry";
  std::string path_ = "/org/a11y/atspi/accessible/root";
};
