#pragma once

namespace trelonit::test {

/// For a child process of a test, before it ends by _exit or by a signal: what it took joins the
/// counts of the coverage, which only an ordinary end would keep. Takes back the rights that it
/// still can and the room for files, since the counts are the tests' own. Does nothing in other
/// builds.
void KeepCounts();

}  // namespace trelonit::test
