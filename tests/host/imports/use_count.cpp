#include <cstdio>
#include <thread>
#include <vector>

#include "vtlcmd/host/imports/orvel_ptr.h"

/// Threads share, use and release one object; whoever is last ends it. Built with the thread
/// sanitizer, which reports an order of the counts that lets the end come before a use.

namespace {

int ends;

class Block final : public Orvel::Internal::ControlBlock {
 public:
  explicit Block(int& object) : object_(object) {}
  void librarySlot() noexcept override {}
  void endObject() noexcept override {
    object_ = 0;
    ++ends;
    delete this;
  }

 private:
  int& object_;
};

}  // namespace

int main() {
  constexpr int rounds = 200;
  for (int round = 0; round < rounds; ++round) {
    int object = 1;
    std::vector<std::thread> threads;
    {
      const Orvel::Ptr<int> shared(&object, new Block(object));
      for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([own = shared]() mutable {
          const Orvel::Ptr<int> copy = own;
          own = {};
          if (*copy != 1) std::puts("ended while in use");
        });
      }
    }
    for (std::thread& thread : threads) thread.join();
  }
  std::printf("%d of %d objects ended\n", ends, rounds);
  return ends == rounds ? 0 : 1;
}
