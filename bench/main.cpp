// SPDX-License-Identifier: MIT
// The benchmarks; scripts/bench runs them and prints what matters.
#include <filesystem>
#include <string>

#include "Benchmarks.hpp"
#include "support/TemporaryFolder.hpp"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
    return 64;
  }
  const TemporaryFolder temporary;
  const std::string folder = temporary.At("gauge");
  std::filesystem::copy(SIMULATED_GAUGE, folder);
  AddReads(folder);
  AddWrites(folder);
  AddCreate();
  AddSysfs();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
