// A large element file for benchmarks, made by repeating the records of a small one.
#pragma once

#include <QString>

namespace vyn {

/// How many minor planets are known.
inline constexpr int kManyObjects = 1'400'000;

/// The file whose records are repeated: the one that the environment variable
/// VYN_BENCH_ELEMENTS names, else the demo's minor planets.
QString BenchSourceFile();

/// A file of as many records; the identifier of the last is "THE LAST ONE". It lies in a temporary
/// folder until the program ends and is made once for each count. Empty when it cannot be written.
QString LargeElementFile(int objects);

}  // namespace vyn
