// SPDX-License-Identifier: MIT
// Does one kind of operation on a file a number of times, to be counted from outside, and prints the
// heap allocations of the last time:
//   OneGet int|bool|string|record|set|reset|create FILE COUNT
#include <unistd.h>

#include <Bq27542FuelGauge.hpp>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>
#include <string_view>
#include <utility>

using namespace dral;

namespace {
unsigned news = 0;
unsigned mallocs = 0;
}  // namespace

// glibc calls these of the program's for its own needs too, such as a stream of fopen.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* malloc(std::size_t size) {
  ++mallocs;
  return __libc_malloc(size);
}
void* operator new(std::size_t size) {
  ++news;
  if (void* const memory = std::malloc(size)) {
    return memory;
  }
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}

namespace {

constexpr auto Property = FuelGaugeProperty::LifetimeData;

template <typename T>
bool Get(FuelGaugeIF& gauge) {
  return gauge.Get<T>(Property).first == FuelGaugeStatus::Success;
}
bool Set(FuelGaugeIF& gauge) {
  return gauge.Set(Property, LifetimeData{}) == FuelGaugeStatus::Success;
}
bool Reset(FuelGaugeIF& gauge) {
  return gauge.Reset(Property) == FuelGaugeStatus::Success;
}
bool Create(FuelGaugeIF& /*gauge*/) {
  return InterfaceFactory::Create<FuelGaugeIF, std::string_view>("DefaultIF", "") != nullptr;
}

struct Kind {
  std::string_view name;
  bool (*operation)(FuelGaugeIF& gauge);
};
constexpr Kind Kinds[] = {
    {"int", Get<int>},
    {"bool", Get<bool>},
    {"string", Get<std::string>},
    {"record", Get<LifetimeData>},
    {"set", Set},
    {"reset", Reset},
    {"create", Create},
};

// Shows in a list of the system calls where the last operation begins and ends.
void Mark(const char* text) {
  static_cast<void>(::access(text, F_OK));
}

bool Run(bool (*operation)(FuelGaugeIF& gauge), const char* path, int count) {
  // Sixteen entries, as a gauge has, of which one is used.
  auto map = Bq27542FuelGauge::PropertyMapAt("/");
  map->at(Property).location = path;
  Bq27542FuelGauge gauge("", std::move(map));
  bool all = true;
  for (int done = 1; done < count; ++done) {
    all = operation(gauge) && all;
  }
  news = mallocs = 0;
  Mark("begin");
  all = operation(gauge) && all;
  Mark("end");
  // Taken before printing, which allocates.
  const unsigned newsOfLast = news;
  const unsigned mallocsOfLast = mallocs;
  std::printf("new %u\nmalloc %u\n", newsOfLast, mallocsOfLast);
  return all;
}

}  // namespace

int main(int argc, char** argv) {
  for (const Kind& kind : Kinds) {
    if (argc == 4 && kind.name == argv[1]) {
      if (Run(kind.operation, argv[2], std::atoi(argv[3]))) {
        return 0;
      }
      std::fputs("OneGet: an operation failed\n", stderr);
      return 1;
    }
  }
  std::fputs("usage: OneGet int|bool|string|record|set|reset|create FILE COUNT\n", stderr);
  return 64;
}
