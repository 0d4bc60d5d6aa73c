#include "tests/end_to_end/end_to_end_test.h"

#include <chrono>
#include <thread>

namespace {

// The accessibility modules and the file chooser leak: leaks are detected by
// the tests without them. The time limit ends a program that hangs.
const std::string kCommand =
    "G_DEBUG=fatal-warnings GTK_MODULES=gail:atk-bridge"
    " LSAN_OPTIONS=detect_leaks=0 timeout 60 " +
    Quoted(PANEL_PROGRAM) + " ";

constexpr std::chrono::seconds kPatience(30);
constexpr std::chrono::milliseconds kPause(10);

void SendInput(const std::string& command) {
  EXPECT_EQ(RunCommand("xdotool " + command).status, 0) << command;
}

constexpr char kClick[] = " mousedown 1 sleep 0.15 mouseup 1";

std::string ClickAtPlaceOf(const Accessible& node) {
  return "mousemove " + node.Place() + kClick;
}

}  // namespace

bool EndToEndTest::Eventually(const std::function<bool()>& condition) {
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (!condition()) {
    // Waits only once in a failing test.
    if (HasFailure() || std::chrono::steady_clock::now() > deadline) {
      return false;
    }
    std::this_thread::sleep_for(kPause);
  }
  return true;
}

void EndToEndTest::TearDown() {
  if (!program_.valid()) return;
  if (HasFailure()) {
    std::cerr << program_.get().errors;
  } else {
    Close();
  }
}

void EndToEndTest::Start(const std::string& options) {
  program_ = std::async(std::launch::async, RunCommand, kCommand + options);
  See(kMainWindow);
}

std::vector<Accessible> EndToEndTest::ShownWindows(const std::string& title) {
  std::vector<Accessible> windows;
  for (const Accessible& program : Accessible().Children()) {
    for (const Accessible& window : program.Children()) {
      if (window.Name() == title && window.Is(Accessible::kShowing)) {
        windows.push_back(window);
      }
    }
  }
  return windows;
}

void EndToEndTest::See(const std::string& title) {
  ASSERT_TRUE(Eventually([&] {
    for (const Accessible& window : ShownWindows(title)) {
      if (!window.Is(Accessible::kActive)) continue;
      window_ = window;
      return true;
    }
    return false;
  })) << title;
}

Accessible EndToEndTest::Get(const Roles& roles, const std::string& name) {
  const Accessible place = roles.contains("menu item") ? Accessible() : window_;
  std::vector<Accessible> nodes;
  EXPECT_TRUE(Eventually([&] {
    nodes = place.FindAll([&](const Accessible& node) {
      return node.Name() == name && roles.contains(node.Role()) &&
             node.Is(Accessible::kShowing);
    });
    return !nodes.empty();
  })) << name
      << " in " << place.Name();
  return nodes.empty() ? Accessible() : nodes.front();
}

void EndToEndTest::Click(const std::string& name) {
  const Accessible button = Get({"push button", "radio button", "check box",
                                 "page tab", "table column header"},
                                name);
  EXPECT_TRUE(Eventually([&] {
    return button.Is(Accessible::kSensitive) && button.Act();
  })) << name;
}

void EndToEndTest::ClickAt(const Accessible& place) {
  SendInput(ClickAtPlaceOf(place));
}

void EndToEndTest::DoubleClickAt(const Accessible& place,
                                 int gap_milliseconds) {
  SendInput(ClickAtPlaceOf(place) + " sleep " +
            std::to_string(gap_milliseconds / 1000.0) + kClick);
}

void EndToEndTest::Select(const std::vector<std::string>& rows) {
  for (const std::string& row : rows) {
    const std::string click = ClickAtPlaceOf(Get({"table cell"}, row));
    const bool is_first = row == rows.front();
    SendInput(is_first ? click : "keydown ctrl " + click + " keyup ctrl");
    ExpectSelected(row);
  }
}

void EndToEndTest::ExpectSelected(const std::string& row) {
  EXPECT_TRUE(Eventually([&] {
    return Get({"table cell"}, row).Is(Accessible::kSelected);
  })) << row;
}

void EndToEndTest::Press(const std::string& keys) { SendInput("key " + keys); }

void EndToEndTest::Type(const std::string& text) {
  SendInput("type " + Quoted(text));
}

void EndToEndTest::ExpectStored(const std::string& site, const char* key,
                                const std::string& value) {
  EXPECT_TRUE(Eventually([&] { return home_.Stored(site, key) == value; }))
      << site << " " << key << " = " << home_.Stored(site, key);
}

void EndToEndTest::ExpectEnd(const char* errors) {
  const ProgramRun run = program_.get();
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.errors, testing::MatchesRegex(errors));
}

void EndToEndTest::Close(const char* errors) {
  window_ = ShownWindows(kMainWindow).front();
  Click("Close");
  ExpectEnd(errors);
}
