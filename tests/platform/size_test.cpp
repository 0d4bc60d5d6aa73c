#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "tests/platform/deep_tree.h"
#include "tests/support/home_file_manager.h"
#include "tests/support/privileges.h"

namespace {

namespace fs = std::filesystem;

class Size : public testing::Test {
 protected:
  std::uint64_t Of(const std::string& name) const {
    return files_.SizeOfFileAtPath((home_ / name).c_str());
  }
  // As stat reports it, links followed.
  std::uint64_t Own(const std::string& name) const {
    struct stat info = {};
    EXPECT_EQ(stat((home_ / name).c_str(), &info), 0) << name;
    return static_cast<std::uint64_t>(info.st_size);
  }
  void Link(const std::string& target, const std::string& name) const {
    fs::create_symlink(target, home_ / name);
  }
  void Sparse(const std::string& name, std::uint64_t size) const {
    home_.Write(name, "");
    fs::resize_file(home_ / name, size);
  }

  // Of a deep tree at `name`, the links in it left out.
  std::uint64_t Deep(const std::string& name, std::uint64_t depth) const {
    fs::create_directory(home_ / "empty");
    const std::uint64_t with_file = depth / 100;
    return with_file * (Own(name) + 7) +
           (depth - with_file) * Own(name + "/one more level") + Own("empty");
  }

  TemporaryHome home_;
  HomeFileManager files_{home_};
};

TEST_F(Size, AddsFilesAndTheDirectoriesThemselves) {
  home_.Write("d/ten", "0123456789");
  home_.Write("d/e/.three", "012");
  Sparse("d/e/huge", std::uint64_t{1} << 42);
  const std::uint64_t huge = std::uint64_t{1} << 42;
  EXPECT_EQ(Of("d/ten"), 10u);
  EXPECT_EQ(Of("d"), Own("d") + Own("d/e") + 13 + huge);
  EXPECT_EQ(Of("none"), 0u);
  EXPECT_EQ(Of("d/ten/below"), 0u);
  EXPECT_EQ(files_.SizeOfFileAtPath(""), 0u);
}

TEST_F(Size, OfAnUnreadableDirectoryIsItsOwn) {
  home_.Write("d/e/ten", "0123456789");
  const OrdinaryUser user(home_);
  EXPECT_EQ(chmod((home_ / "d/e").c_str(), 0), 0);
  EXPECT_EQ(Of("d"), Own("d") + Own("d/e"));
}

TEST_F(Size, FollowsLinksAndCountsWhatTheyReachAgain) {
  home_.Write("far/ten", "0123456789");
  home_.Write("far/e/f", "01");
  home_.Write("d/one", "0");
  Link("../far", "d/link");
  Link("../far", "d/link too");
  Link("../far/ten", "d/to a file");
  Link("nowhere", "d/to nothing");
  const std::uint64_t far = Own("far") + Own("far/e") + 12;
  EXPECT_EQ(Of("far"), far);
  EXPECT_EQ(Of("d"), Own("d") + 1 + 2 * far + 10);
  EXPECT_EQ(Of("d/link"), far);
}

TEST_F(Size, EndsWhereLinksRunInCircles) {
  home_.Write("d/e/one", "0");
  Link(".", "d/self");
  Link("..", "d/e/up");
  Link("turn", "d/turn");
  // Each way back counts the directory it leads to, and ends there.
  EXPECT_EQ(Of("d"), Own("d") * 3 + Own("d/e") + 1);

  // Two directories that point to each other twice, and so on: without care
  // a walk of them takes for ever.
  for (int i = 0; i < 40; ++i) {
    const std::string name = "ring/" + std::to_string(i);
    home_.Write(name + "/one", "0");
    const std::string next = "../" + std::to_string((i + 1) % 40);
    for (const char* link : {"/a", "/b", "/c"}) Link(next, name + link);
  }
  EXPECT_GT(Of("ring"), 40 * Own("ring/0"));
}

TEST_F(Size, FindsItsWayBackFromFarBehindALink) {
  // So deep that the directory of the links has been closed on the way.
  MakeDeepTree(home_ / "far", 100, "/nowhere");
  home_.Write("d/x/one", "0");
  Link("../../far", "d/x/a");
  Link("../../far/one more level", "d/x/b");
  home_.Write("d/y/two", "01");
  const std::uint64_t far = Of("far");
  EXPECT_EQ(far, Deep("far", 100));
  EXPECT_EQ(Of("d"), Own("d") + Own("d/x") + Own("d/y") + 3 + far +
                         Of("far/one more level"));
}

TEST_F(Size, EndsInADeepTreeWithLittleStackAndFewDescriptors) {
  MakeDeepTree(home_ / "d", 2000, home_ / "d");
  std::uint64_t size = 0;
  for (const rlim_t descriptors : {64, 12}) {
    SCOPED_TRACE(descriptors);
    {
      const LoweredLimit few(RLIMIT_NOFILE, descriptors);
      OnSmallStack([&] { size = Of("d"); });
    }
    // The links lead back to the top, which counts once more for each.
    EXPECT_EQ(size, Deep("d", 2000) + 20 * Own("d"));
  }
}

}  // namespace
