#pragma once
// The words that answer "why was this file not sent?". Plain functions on values; any thread.

#include <QList>
#include <QString>

#include "engine/FileExplanation.h"
#include "platform/Problems.h"

struct WhyLine {
  enum class Tone { Good, KeepsBack, Note };
  Tone tone = Tone::Good;
  QString text;
};

struct WhyAnswer {
  QString verdict;       ///< what comes of it all, in one sentence
  QList<WhyLine> lines;  ///< each rule's answer, in the order in which the rules are asked
};

/// `problems` are the present ones, `enabled` the master switch of uploading.
[[nodiscard]] WhyAnswer whyAnswer(const FileExplanation& explanation, const UploaderTask& task,
                                  const QList<Problem>& problems, bool enabled);

/// A span of seconds in the largest unit that fits, rounded down.
[[nodiscard]] QString spanText(double seconds);
