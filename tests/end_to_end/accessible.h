// What an assistive technology sees of the programs on a desktop.
#pragma once

#include <gio/gio.h>

#include <functional>
#include <string>
#include <vector>

// A node of the accessibility tree, asked anew over the accessibility bus for
// everything. What is asked of a node that has gone is empty or false.
class Accessible {
 public:
  // The numbers are those of the accessibility protocol.
  enum State {
    kActive = 1,
    kChecked = 4,
    kSelected = 23,
    kSensitive = 24,
    kShowing = 25,
  };

  // The desktop, whose children are programs.
  Accessible() = default;

  [[nodiscard]] std::string Name() const;
  // "push button".
  [[nodiscard]] std::string Role() const;
  [[nodiscard]] bool Is(State state) const;
  // The middle, as "x y", in pixels of the screen.
  [[nodiscard]] std::string Place() const;

  [[nodiscard]] std::vector<Accessible> Children() const;
  // Those below that fit, each before its own children.
  using Condition = std::function<bool(const Accessible&)>;
  [[nodiscard]] std::vector<Accessible> FindAll(const Condition& fits) const;

  // Does what a click on it does. False when it cannot be done.
  [[nodiscard]] bool Act() const;
  [[nodiscard]] bool Focus() const;

 private:
  Accessible(const char* program, const char* path)
      : program_(program), path_(path) {}

  // Takes the values of the answer, whose format is as of g_variant_get().
  // False, and no value is taken, when there is no such answer.
  template <typename... Values>
  bool Ask(const char* interface, const char* method, GVariant* arguments,
           const char* format, Values*... values) const;

  std::string program_ = "org.a11y.atspi.Registry";
  std::string path_ = "/org/a11y/atspi/accessible/root";
};
