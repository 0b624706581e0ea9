#pragma once
// The words of the live sample. Plain functions; any thread.

#include <QString>

#include "engine/FolderSample.h"

/// The rule that keeps a file out, in a few words; empty for Due.
[[nodiscard]] QString verdictWords(Verdict verdict);
/// One line: how many files match, and the first of them.
[[nodiscard]] QString sampleLine(const FolderSample& sample);
/// The files that are kept out, one to a line with its rule; empty when there are none.
[[nodiscard]] QString sampleDetails(const FolderSample& sample);
