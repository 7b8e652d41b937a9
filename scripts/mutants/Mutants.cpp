#include "scripts/mutants/Mutants.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mutants {

bool inForce[mostMutants] = {};
bool recording = false;

namespace {

/// A byte a mutant. It is a file's, so that the programs that a test starts, and those that it
/// kills, note theirs too.
volatile unsigned char* notes = nullptr;
int count = 0;

/// Before any constructor of the program: those may be changed as well.
[[gnu::constructor(101)]] void Start() {
  const char* chosen = std::getenv("MUTANTS");
  while (chosen != nullptr && *chosen != '\0') {
    char* rest = nullptr;
    const long mutant = std::strtol(chosen, &rest, 10);
    if (rest == chosen || mutant < 0 || mutant >= mostMutants) {
      std::abort();
    }
    inForce[mutant] = true;
    chosen = *rest == ',' ? rest + 1 : rest;
  }
  const char* path = std::getenv("MUTANTS_REACHED");
  const int file = path == nullptr ? -1 : ::open(path, O_RDWR | O_CLOEXEC);
  struct stat state {};
  if (file < 0 || ::fstat(file, &state) != 0) {
    return;
  }
  count = static_cast<int>(state.st_size);
  void* const mapped =
      ::mmap(nullptr, static_cast<std::size_t>(count), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  ::close(file);
  if (mapped != MAP_FAILED) {
    notes = static_cast<volatile unsigned char*>(mapped);
    recording = true;
  }
}

}  // namespace

void Write(int mutant, Note note) {
  if (mutant < count && (notes[mutant] & note) == 0) {
    notes[mutant] = static_cast<unsigned char>(notes[mutant] | note);
  }
}

}  // namespace mutants
