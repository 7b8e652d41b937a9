#include "editor/document/TextRuns.h"

#include <algorithm>
#include <iterator>

namespace trelonit {

namespace {

using Index = TextRuns::difference_type;

TextRuns::iterator At(TextRuns& runs, std::size_t index) {
  return runs.begin() + static_cast<Index>(index);
}

/// Puts a boundary at the offset; the index of the run that begins there.
std::size_t SplitAt(TextRuns& runs, std::size_t offset) {
  std::size_t index = 0;
  for (; index < runs.size() && offset > 0; ++index) {
    const std::size_t length = runs[index].Text.size();
    if (offset < length) {
      TextRun rest{runs[index].Text.substr(offset), runs[index].Format};
      runs[index].Text.resize(offset);
      runs.insert(At(runs, index + 1), std::move(rest));
      return index + 1;
    }
    offset -= length;
  }
  return index;
}

/// Joins the run with the one in front of it where both look alike.
void JoinAt(TextRuns& runs, std::size_t index) {
  if (index == 0 || index >= runs.size() || runs[index - 1].Format != runs[index].Format) {
    return;
  }
  runs[index - 1].Text += runs[index].Text;
  runs.erase(At(runs, index));
}

/// The run that holds the whole part, with the part's offset in it.
struct Holder {
  std::size_t Index;
  std::size_t Offset;
};

/// The run in which both ends lie; its index is beyond the runs where there is none.
Holder HolderOf(const TextRuns& runs, std::size_t from, std::size_t to) {
  std::size_t start = 0;
  for (std::size_t index = 0; index < runs.size(); ++index) {
    const std::size_t end = start + runs[index].Text.size();
    if (from <= end) {
      return {to <= end ? index : runs.size(), from - start};
    }
    start = end;
  }
  return {runs.size(), 0};
}

}  // namespace

std::size_t RunsLength(const TextRuns& runs) {
  std::size_t length = 0;
  for (const TextRun& run : runs) {
    length += run.Text.size();
  }
  return length;
}

std::u16string RunsText(const TextRuns& runs) {
  std::u16string text;
  for (const TextRun& run : runs) {
    text += run.Text;
  }
  return text;
}

const TextRun* RunBefore(const TextRuns& runs, std::size_t offset) {
  for (const TextRun& run : runs) {
    if (offset <= run.Text.size()) {
      return &run;
    }
    offset -= run.Text.size();
  }
  return nullptr;
}

const TextRun* RunAfter(const TextRuns& runs, std::size_t offset) {
  for (const TextRun& run : runs) {
    if (offset < run.Text.size()) {
      return &run;
    }
    offset -= run.Text.size();
  }
  return nullptr;
}

TextRuns CopyRuns(const TextRuns& runs, std::size_t from, std::size_t to) {
  TextRuns copy;
  std::size_t start = 0;
  for (const TextRun& run : runs) {
    const std::size_t end = start + run.Text.size();
    const std::size_t first = std::max(from, start);
    const std::size_t last = std::min(to, end);
    if (first < last) {
      copy.push_back({run.Text.substr(first - start, last - first), run.Format});
    }
    start = end;
  }
  return copy;
}

void EraseRuns(TextRuns& runs, std::size_t from, std::size_t to) {
  if (from == to) {
    return;
  }
  const Holder holder = HolderOf(runs, from, to);
  if (holder.Index < runs.size() && to - from < runs[holder.Index].Text.size()) {
    runs[holder.Index].Text.erase(holder.Offset, to - from);
    return;
  }
  const std::size_t first = SplitAt(runs, from);
  const std::size_t last = SplitAt(runs, to);
  runs.erase(At(runs, first), At(runs, last));
  JoinAt(runs, first);
}

void InsertRuns(TextRuns& runs, std::size_t offset, const TextRuns& inserted) {
  if (inserted.empty()) {
    return;
  }
  // A typed character mostly looks like its neighbours: then no run is cut.
  const Holder holder = HolderOf(runs, offset, offset);
  if (inserted.size() == 1 && holder.Index < runs.size() &&
      runs[holder.Index].Format == inserted.front().Format) {
    runs[holder.Index].Text.insert(holder.Offset, inserted.front().Text);
    return;
  }
  const std::size_t first = SplitAt(runs, offset);
  runs.insert(At(runs, first), inserted.begin(), inserted.end());
  JoinAt(runs, first + inserted.size());
  JoinAt(runs, first);
}

TextRuns CutRuns(TextRuns& runs, std::size_t offset) {
  const auto first = At(runs, SplitAt(runs, offset));
  TextRuns rest(std::make_move_iterator(first), std::make_move_iterator(runs.end()));
  runs.erase(first, runs.end());
  return rest;
}

void AppendRuns(TextRuns& runs, const TextRuns& appended) {
  const std::size_t joint = runs.size();
  runs.insert(runs.end(), appended.begin(), appended.end());
  JoinAt(runs, joint);
}

void FormatRuns(TextRuns& runs, std::size_t from, std::size_t to, const CharFormat& format) {
  TextRuns formatted = CopyRuns(runs, from, to);
  if (formatted.empty()) {
    return;
  }
  EraseRuns(runs, from, to);
  InsertRuns(runs, from, {{RunsText(formatted), format}});
}

}  // namespace trelonit
