#include "tests/end_to_end/end_to_end_test.h"

#include <sstream>

namespace {

// The accessibility modules leak, and so does the file chooser: in builds
// that look for leaks this is left to the tests without them.
const std::vector<std::string> kSettings = {"GTK_MODULES=gail:atk-bridge",
                                            "LSAN_OPTIONS=detect_leaks=0"};

}  // namespace

EndToEndTest::~EndToEndTest() {
  if (program_ && program_->IsRunning() && !HasFailure()) Close();
  if (program_ && !HasFailure()) ExpectQuietEnd();
  program_.reset();
}

std::string EndToEndTest::Program() { return PANEL_PROGRAM; }

void EndToEndTest::Start(const std::vector<std::string>& options) {
  std::vector<std::string> command = {Program()};
  command.insert(command.end(), options.begin(), options.end());
  program_ = std::make_unique<Process>(command, kSettings);
  See(kMainWindow);
}

Accessible EndToEndTest::ShownWindow(const std::string& title) {
  const Accessible application = Accessible::OfProgram(program_->Id());
  for (const Accessible& window : application.Children()) {
    if (window.Name() == title && window.Is(Accessible::kShowing))
      return window;
  }
  return {};
}

void EndToEndTest::See(const std::string& title) {
  ASSERT_TRUE(Eventually([&] {
    window_ = ShownWindow(title);
    return window_.Is(Accessible::kActive) || !program_->IsRunning();
  })) << title;
  ASSERT_TRUE(program_->IsRunning()) << program_->Errors();
}

void EndToEndTest::SeeNoMore(const std::string& title) {
  EXPECT_TRUE(Eventually([&] { return !ShownWindow(title).Exists(); }))
      << title;
}

Accessible EndToEndTest::Get(const std::string& role, const std::string& name) {
  Accessible found;
  EXPECT_TRUE(Eventually([&] {
    const auto nodes = window_.FindAll([&](const Accessible& node) {
      return node.Role() == role && node.Name() == name &&
             node.Is(Accessible::kShowing);
    });
    if (!nodes.empty()) found = nodes.front();
    return found.Exists();
  })) << name
      << " in " << window_.Name();
  return found;
}

void EndToEndTest::Click(const std::string& name, const std::string& role) {
  const Accessible button = Get(role, name);
  EXPECT_TRUE(Eventually([&] { return button.Is(Accessible::kSensitive); }))
      << name;
  EXPECT_TRUE(button.Act()) << name;
}

void EndToEndTest::Focus(const std::string& role, const std::string& name) {
  const Accessible node = Get(role, name);
  EXPECT_TRUE(node.Focus()) << name;
  EXPECT_TRUE(Eventually([&] {
    const auto is_focused = [](const Accessible& part) {
      return part.Is(Accessible::kFocused);
    };
    return is_focused(node) || !node.FindAll(is_focused).empty();
  })) << name;
}

void EndToEndTest::ClickAt(const Accessible& place, const char* modifier) {
  const ScreenBox box = place.Place();
  desktop_.Click(box.x + box.width / 2, box.y + box.height / 2, modifier);
}

void EndToEndTest::ExpectStored(const std::string& site, const char* key,
                                const std::string& value) {
  EXPECT_TRUE(Eventually([&] { return home_.Stored(site, key) == value; }))
      << site << " " << key << " = " << home_.Stored(site, key) << ", not "
      << value;
}

void EndToEndTest::Close() {
  window_ = ShownWindow(kMainWindow);
  Click("Close");
}

void EndToEndTest::ExpectQuietEnd() {
  EXPECT_EQ(program_->ExitStatus(), 0);
  std::istringstream errors(program_->Errors());
  std::string unexpected;
  for (std::string line; std::getline(errors, line);) {
    const bool is_expected =
        !expected_errors_.empty() && line.starts_with(expected_errors_);
    if (!is_expected) unexpected += line + "\n";
  }
  EXPECT_EQ(unexpected, "");
}
