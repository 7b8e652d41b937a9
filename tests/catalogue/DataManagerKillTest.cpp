#ifndef _WIN32

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

#include "tests/catalogue/DataManagerDesk.h"
#include "tests/catalogue/DataManagerFolder.h"

namespace trelonit {
namespace {

constexpr Long recordCount = 40;

/// What the child tells before it writes: the record and which of its states comes next.
struct Announced {
  std::int32_t Record;
  std::int32_t State;
};
using Tell = std::function<void(const Announced&)>;

/// Runs the body in a child process, kills that after the time, and gives all it announced.
std::vector<Announced> Killed(const std::function<void(const Tell&)>& body,
                              std::chrono::microseconds time) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) {
    throw std::runtime_error("no pipe");
  }
  const pid_t child = ::fork();
  if (child < 0) {
    throw std::runtime_error("no child process");
  }
  if (child == 0) {
    ::close(ends[0]);
    // Whatever happens, the child must not go on as a second run of the tests.
    try {
      body([&](const Announced& announced) {
        if (::write(ends[1], &announced, sizeof(announced)) != sizeof(announced)) {
          ::_exit(2);
        }
      });
    } catch (...) {
      ::_exit(4);
    }
    ::_exit(1);
  }
  ::close(ends[1]);
  // The time runs from the first write on: starting a process takes longer than a write.
  std::vector<Announced> all;
  Announced announced{};
  if (::read(ends[0], &announced, sizeof(announced)) == sizeof(announced)) {
    all.push_back(announced);
  }
  std::this_thread::sleep_for(time);
  ::kill(child, SIGKILL);
  while (::read(ends[0], &announced, sizeof(announced)) == sizeof(announced)) {
    all.push_back(announced);
  }
  ::close(ends[0]);
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "the child ended by itself";
  return all;
}

/// The texts of the boxes for a state of a record, every byte of which tells the state.
std::vector<std::string> Boxes(const Announced& edit) {
  const std::string mark(1, static_cast<char>('A' + edit.State % 26));
  std::vector<std::string> texts{mark + std::to_string(edit.Record) + mark,
                                 std::string(50, mark[0])};
  texts.resize(16, std::to_string(edit.State) + ".5");
  return texts;
}

std::string BytesAfter(const Announced& edit) {
  const std::vector<std::string> texts = Boxes(edit);
  ProfileRec record;
  record.Name = std::string_view(texts[0]);
  record.Type = std::string_view(texts[1]);
  for (const ProfileField& listed : profileFields) {
    record.*listed.Number = edit.State + 0.5;
  }
  return test::BytesOf(record);
}

/// Edits one record after another through the window until it is killed.
void EditForEver(const std::string& path, std::int32_t state, const Tell& tell) {
  DiskFiles files;
  test::DataManagerDesk desk(files);
  desk.Load(path);
  for (;; ++state) {
    const Announced edit{1 + state * 7 % recordCount, state};
    desk.GoTo(edit.Record);
    desk.Type(Boxes(edit));
    tell(edit);
    desk.Form.cmdEditCurrent_Click();
    if (!desk.Messages.Shown.empty()) {
      ::_exit(3);
    }
  }
}

/// A folder for the copies that killed writes leave.
class Copies {
 public:
  Copies() {
    for (const char* name : {"XDG_DATA_HOME", "TMPDIR"}) {
      const char* value = std::getenv(name);
      before_.emplace_back(name, value == nullptr ? std::optional<std::string>() : value);
      ::setenv(name, folder_.In("").c_str(), 1);
    }
  }
  Copies(const Copies&) = delete;
  Copies& operator=(const Copies&) = delete;
  ~Copies() {
    for (const auto& [name, value] : before_) {
      value ? ::setenv(name, value->c_str(), 1) : ::unsetenv(name);
    }
  }
  std::vector<std::string> All() const {
    std::vector<std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.In(""))) {
      contents.push_back(test::ContentOf(entry.path()));
    }
    return contents;
  }

 private:
  test::ScratchFolder folder_;
  std::vector<std::pair<const char*, std::optional<std::string>>> before_;
};

TEST(DataManagerKill, LeavesEveryRecordWholeButTheOneThatIsWritten) {
  const test::ScratchFolder folder;
  const Copies copies;
  const auto path = folder.Put("some.dat", test::NumberedFile(recordCount));
  std::string expected = test::ContentOf(path);
  std::mt19937 random(20240229);
  std::uniform_int_distribution<int> microseconds(0, 20000);
  std::size_t edits = 0;
  std::int32_t state = 0;
  constexpr std::size_t rounds = 200;
  // A busy machine may need more time for the second write than any of these rounds has.
  for (std::size_t round = 0; round < rounds || (edits == round && round < 2 * rounds); ++round) {
    const int longer = round < rounds ? 1 : 50;
    const std::vector<Announced> announced =
        Killed([&](const Tell& tell) { EditForEver(test::Utf8Of(path), state, tell); },
               std::chrono::microseconds(longer * microseconds(random)));
    ASSERT_FALSE(announced.empty());
    // All but the last one are surely done.
    for (std::size_t place = 0; place + 1 < announced.size(); ++place) {
      expected.replace(static_cast<std::size_t>(announced[place].Record - 1) * 177, 177,
                       BytesAfter(announced[place]));
    }
    const std::string found = test::ContentOf(path);
    ASSERT_EQ(found.size(), expected.size());
    const auto begin = static_cast<std::size_t>(announced.back().Record - 1) * 177;
    const std::string written = BytesAfter(announced.back());
    for (std::size_t place = 0; place < found.size(); ++place) {
      const bool inside = place >= begin && place < begin + 177;
      ASSERT_TRUE(found[place] == expected[place] ||
                  (inside && found[place] == written[place - begin]))
          << "byte " << place << " after kill " << round;
    }
    ASSERT_EQ(folder.Count(), 1);
    expected = found;
    edits += announced.size();
    state = announced.back().State + 1;
  }
  // Otherwise it never came past its first write.
  EXPECT_GT(edits, rounds);
  // What a kill has left is a copy of the file before the write, or the beginning of one where the
  // file had not been touched yet.
  const std::vector<std::string> left = copies.All();
  EXPECT_GT(std::count_if(left.begin(), left.end(),
                          [&](const std::string& copy) { return copy.size() == expected.size(); }),
            0);
  for (const std::string& copy : left) {
    EXPECT_LE(copy.size(), expected.size());
  }
}

/// The first byte that comes from neither of the two contents, or the size of the file.
std::size_t FirstStrangeByte(const std::string& found, const std::string& before,
                             const std::string& after) {
  std::size_t place = 0;
  while (place < found.size() && (found[place] == before[place] || found[place] == after[place])) {
    ++place;
  }
  return place;
}

void CheckOnDisk(const std::string& path) {
  DiskFiles files;
  test::DataManagerDesk desk(files);
  desk.Check(path);
}

TEST(DataManagerKill, LeavesTheFileOrItsCopyWholeWhenItChecks) {
  const test::ScratchFolder folder;
  const Copies copies;
  const std::string before = test::NumberedFile(1800);
  const auto copy = folder.In("some.dat.bak");
  // A whole run first: the kills are spread over the time that it takes.
  const auto whole = folder.Put("some.dat", before);
  const auto start = std::chrono::steady_clock::now();
  CheckOnDisk(test::Utf8Of(whole));
  const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - start;
  const std::string after = test::ContentOf(whole);
  ASSERT_EQ(after.size(), before.size());
  ASSERT_NE(before, after);
  std::mt19937 random(19750501);
  std::uniform_int_distribution<int> microseconds(0, static_cast<int>(1.3 * taken.count()));
  for (int round = 0; round < 40; ++round) {
    const auto path = folder.Put("some.dat", before);
    std::filesystem::remove(copy);
    Killed(
        [&](const Tell& tell) {
          tell({});
          CheckOnDisk(test::Utf8Of(path));
          // Done early: what it left is judged as well.
          ::pause();
        },
        std::chrono::microseconds(microseconds(random)));
    const std::string found = test::ContentOf(path);
    ASSERT_EQ(found.size(), before.size());
    ASSERT_EQ(FirstStrangeByte(found, before, after), found.size()) << "kill " << round;
    if (found != before || std::filesystem::exists(copy)) {
      ASSERT_EQ(test::ContentOf(copy), before) << "kill " << round;
    }
  }
}

}  // namespace
}  // namespace trelonit

#endif
