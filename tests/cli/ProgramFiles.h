#pragma once

#include <set>
#include <string>

#include "tests/cli/Workbench.h"

namespace trelonit::test {

inline const std::string dataName = "GOST profile.dat";
inline const std::string indexName = "Index.ind";
inline const std::set<std::string> bothNames{dataName, indexName};

constexpr std::size_t recordSize = 177;
constexpr std::size_t rowSize = 58;
/// 2698 records and the stray byte that is intended to stand behind them.
constexpr std::size_t dataSize = 2698 * recordSize + 1;
constexpr std::size_t indexSize = 22 * rowSize;

/// What a program says that can neither find nor make one of its files.
inline const std::string cannotWrite = "Ошибка создания файла данных профиля \n";

/// What it says after that: the path of a file that it has not is empty.
inline const std::string badFileName = ErrorLine("Form_Load", 52, "Bad file name or number");

/// The catalogue files of a program.
class ProgramFiles : public CliTest {
 protected:
  static std::string ProgramName();

  /// Lets the program make its files.
  void Unpack();

  static void Cut(const fs::path& file, std::size_t size) { fs::resize_file(file, size); }
  void CutData(std::size_t records) { Cut(ProgramFolder() / dataName, records * recordSize); }
  void CutIndex(std::size_t rows) { Cut(ProgramFolder() / indexName, rows * rowSize); }
  void RemoveBoth();

  Outcome CalculatedExample(int scheme);

  /// How many standards a start of the program lists; it must be a good one.
  static std::size_t StandardsListed(const Outcome& list);
  std::size_t StandardsListed() const { return StandardsListed(Run({"catalogue", "list"})); }

  static void ExpectFailure(const Outcome& outcome, const std::string& err);

  /// Both files whole in the folder, and of other names those told and no more.
  static void ExpectWholeFiles(const fs::path& folder, std::set<std::string> others);
};

}  // namespace trelonit::test
