#pragma once
// What the fuzz targets and the corpus test run for one input, without libFuzzer: a crash or a
// sanitizer report is a fault; a designed fatal stop is an answer, reported as Stopped.
#include <QString>

#include <cstddef>
#include <cstdint>

namespace FuzzEntries {
enum class Outcome { Done, Stopped };

// A fuzz target's start: an application on the offscreen platform, then prepare().
void startApplication(int* argc, char*** argv);
// Once per process: a temporary store for the merge.
void prepare();
// The input as an exchange file merged into the store, then the store exported; the store
// is emptied again afterwards.
Outcome mergeAndExport(const uint8_t* data, std::size_t size);
// The input as a stored picture: decoded, re-encoded for the export, redrawn for storage.
Outcome picture(const uint8_t* data, std::size_t size);
// The designed stop met last, for the corpus test to show.
QString lastStop();
} // namespace FuzzEntries
