// What an assistive technology sees of a program.
#pragma once

#include <gio/gio.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

// A rectangle of the screen, in pixels.
struct ScreenBox {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

// A node of the accessibility tree, asked anew over the accessibility bus for
// everything. What is asked of a node that has gone, or of none, is empty or
// false.
class Accessible {
 public:
  // The numbers are those of the accessibility protocol.
  enum State {
    kActive = 1,
    kChecked = 4,
    kFocused = 12,
    kSelected = 23,
    kSensitive = 24,
    kShowing = 25,
  };

  Accessible() = default;

  // The program with that process id, on the accessibility bus of the session
  // bus in the environment; none as long as it has not registered there.
  [[nodiscard]] static Accessible OfProgram(int process_id);

  [[nodiscard]] bool Exists() const { return bus_ != nullptr; }
  [[nodiscard]] std::string Name() const;
  // "push button".
  [[nodiscard]] std::string Role() const;
  [[nodiscard]] bool Is(State state) const;
  [[nodiscard]] std::vector<Accessible> Children() const;
  [[nodiscard]] ScreenBox Place() const;

  // Those below that fit, each before its own children.
  using Condition = std::function<bool(const Accessible&)>;
  [[nodiscard]] std::vector<Accessible> FindAll(const Condition& fits) const;

  // Does what a click on it does. False when it cannot be done.
  [[nodiscard]] bool Act() const;
  [[nodiscard]] bool Focus() const;

 private:
  using Bus = std::shared_ptr<GDBusConnection>;

  Accessible(Bus bus, std::string program, std::string path)
      : bus_(std::move(bus)),
        program_(std::move(program)),
        path_(std::move(path)) {}

  // Owned by the caller; null after an error. `arguments` may be null.
  [[nodiscard]] GVariant* NewAnswer(const char* interface, const char* method,
                                    GVariant* arguments,
                                    const char* type) const;

  Bus bus_;
  std::string program_;
  std::string path_;
};
