#include "tests/platform/deep_tree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_descriptor.h"

void MakeDeepTree(const std::string& path, int depth,
                  const std::string& link_target) {
  ASSERT_EQ(mkdir(path.c_str(), 0700), 0);
  FileDescriptor directory(open(path.c_str(), O_DIRECTORY));
  for (int level = 0; level < depth; ++level) {
    if (level % 100 == 0) {
      const FileDescriptor file(
          openat(directory.Get(), "file", O_CREAT | O_WRONLY, 0600));
      ASSERT_EQ(write(file.Get(), "1234567", 7), 7);
      ASSERT_EQ(symlinkat(link_target.c_str(), directory.Get(), "link"), 0);
    }
    ASSERT_EQ(mkdirat(directory.Get(), "one more level", 0700), 0);
    directory =
        FileDescriptor(openat(directory.Get(), "one more level", O_DIRECTORY));
    ASSERT_TRUE(directory.IsOpen());
  }
}

void OnSmallStack(const std::function<void()>& action) {
  const auto call = [](void* argument) -> void* {
    (*static_cast<const std::function<void()>*>(argument))();
    return nullptr;
  };
  std::function<void()> copy = action;
  pthread_attr_t attributes;
  pthread_t thread;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
  ASSERT_EQ(pthread_create(&thread, &attributes, call, &copy), 0);
  ASSERT_EQ(pthread_join(thread, nullptr), 0);
  pthread_attr_destroy(&attributes);
}
