#include "workstation/design/ProjectFile.h"

#include <array>
#include <cstdint>
#include <istream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/errors/Guard.h"
#include "platform/text/CodePage1251.h"
#include "workstation/design/modUtility.h"

namespace trelonit {

namespace {

constexpr const char* header = "Trelo calculation save file";
constexpr const char* arrayDelimiter = ";";

/// Sections in the order of the file: the support diagonals before the diagonals, unlike storage.
constexpr std::array<SectionPlace, sectionCount> fileOrder{
    sectionUpPoyas, sectionDwnPoyas, sectionOpornRaskos, sectionRaskos, sectionStoyka};

void ShowOpenFailure(const RuntimeError& error, const Services& services) {
  // Reading and writing share text and title; that is intended.
  services.Messages.Show(
      {.Title = "WriteApplParameters",
       .Text = "Ошибка создания файла для записи ! err discription : \n" + error.Description(),
       .Style = MessageStyle::Critical});
}

class ProjectWriter {
 public:
  explicit ProjectWriter(const NumberLocale& locale) : locale_(locale) {}

  void Put(const std::string& value) { text_ += '"' + EncodeCodePage1251(value) + "\"\r\n"; }
  void Put(Long value) { Put(std::to_string(value)); }
  void Put(double value) { Put(NumberToText(value, locale_)); }
  void Put(bool value) { Put(BooleanToText(value)); }
  void Put(const BoundedArray<double>& values) {
    Put(values.IsAllocated() ? JoinDoubles(values, arrayDelimiter, locale_) : std::string());
  }

  std::string Take() { return std::move(text_); }

 private:
  const NumberLocale& locale_;
  std::string text_;
};

using Lines = std::vector<std::string>;

/// The lines of the format, each without its end, as far as they are there; what stands behind them
/// is not looked at. Read once, for a pipe has no beginning to go back to. A line longer than any
/// project can need is cut, so that a damaged file costs no memory, and a file without an end, as
/// devices have, ends after more bytes than any project has. Raises 57 where the reading breaks
/// off.
Lines ReadLines(std::istream& stream) {
  using Traits = std::istream::traits_type;
  constexpr std::size_t maxLineLength = std::size_t{64} * 1024;
  constexpr std::uint64_t mostBytes = std::uint64_t{256} << 20U;
  std::streambuf& buffer = *stream.rdbuf();
  std::uint64_t bytes = 0;
  const auto next = [&] { return bytes++ < mostBytes ? buffer.sbumpc() : Traits::eof(); };
  const auto isEnd = [](int byte) { return Traits::eq_int_type(byte, Traits::eof()); };
  Lines lines;
  while (lines.size() < projectLineCount) {
    int byte = next();
    if (isEnd(byte)) {
      break;
    }
    std::string line;
    for (; !isEnd(byte) && byte != '\n'; byte = next()) {
      if (line.size() < maxLineLength) {
        line.push_back(Traits::to_char_type(byte));
      }
    }
    if (!line.empty() && line.back() == '\r') {
      line.pop_back();
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

/// The text between the first two quotes of a line; an unquoted line whole.
std::string Unquote(const std::string& line) {
  const std::size_t open = line.find('"');
  if (open == std::string::npos) {
    return line;
  }
  return line.substr(open + 1, line.find('"', open + 1) - open - 1);
}

/// Reads item after item. Past the end the last text stays, and the fields are converted from it;
/// a text that does not convert leaves its field at 0.
class ProjectReader {
 public:
  ProjectReader(const Lines& lines, const NumberLocale& locale) : locale_(locale), lines_(lines) {}

  DesignInputs Record(const ProfileTypeArray& catalogue);

  const std::string& NextItem() {
    if (next_ < lines_.size()) {
      item_ = DecodeCodePage1251(Unquote(lines_[next_++]));
    }
    return item_;
  }

  void Get(std::string& field) { field = NextItem(); }
  void Get(double& field) { field = ParseNumber(NextItem(), locale_); }
  void Get(Integer& field) {
    PassOver([&] { field = TextToInteger(NextItem(), locale_); });
  }
  /// Whole numbers of the file are 16-bit ones, also where the record has more room.
  void Get(Long& field) {
    Integer value = 0;
    Get(value);
    field = value;
  }
  void Get(bool& field) {
    PassOver([&] { field = TextToBoolean(NextItem(), locale_); });
  }
  void Get(BoundedArray<double>& field) {
    field = SplitDoubles(NextItem(), arrayDelimiter, locale_);
  }

 private:
  const NumberLocale& locale_;
  const Lines& lines_;
  std::size_t next_ = 0;
  std::string item_;
};

/// Hands every field to the archive in the order of the file: the one place that knows the order.
template <class Archive, class Record, class SectionStep>
void ForEachField(Archive& archive, Record& record, SectionStep&& section) {
  archive(record.TreloType);
  archive(record.UpPoyasBrace);
  archive(record.DownPoyasBrace);
  archive(record.LengthF);
  archive(record.Hight);
  archive(record.LenOporn);
  archive(record.PanelNum);
  archive(record.SteelName);
  archive(record.Ry);
  archive(record.Density);
  archive(record.ModulYung);
  archive(record.LimitFlex);
  archive(record.Nadegnost);
  archive(record.UsloviyaRabot);
  archive(record.ProgibOn);
  archive(record.LenLim);
  archive(record.ProgibUpper);
  archive(record.ActiveGroup);
  for (const SectionPlace place : fileOrder) {
    auto& fields = record.ElementSection[place];
    archive(fields.SizeIdx);
    archive(fields.TypeIdx);
    archive(fields.Gdist);
    archive(fields.Paired);
    archive(fields.Layout);
    section(fields);
  }
  archive(record.DinloadOn);
  archive(record.OwnWeightOn);
  archive(record.AllPanelsOn);
  archive(record.PForceTool);
  archive(record.Loads.UpPForce);
  archive(record.Loads.UpDistForce);
  archive(record.Loads.DwnPForce);
  archive(record.Loads.DwnDistForce);
}

/// The fields behind the first line.
DesignInputs ProjectReader::Record(const ProfileTypeArray& catalogue) {
  DesignInputs record;
  auto get = [this](auto& field) { Get(field); };
  ForEachField(get, record, [&catalogue](SectionRec& section) {
    PassOver([&] { section.Profile = catalogue[section.TypeIdx].Rec[section.SizeIdx]; });
  });
  return record;
}

}  // namespace

bool IsProjectText(const std::string& bytes) {
  std::istringstream stream(bytes);
  const Lines lines = ReadLines(stream);
  return lines.size() == projectLineCount && Unquote(lines.front()) == header;
}

DesignInputs ProjectOfText(const std::string& bytes, const ProfileTypeArray& catalogue,
                           const NumberLocale& locale) {
  std::istringstream stream(bytes);
  const Lines lines = ReadLines(stream);
  ProjectReader reader(lines, locale);
  reader.NextItem();
  return reader.Record(catalogue);
}

std::string ProjectText(const DesignInputs& record, const NumberLocale& locale) {
  ProjectWriter writer(locale);
  writer.Put(std::string(header));
  auto put = [&writer](const auto& field) { writer.Put(field); };
  ForEachField(put, record, [](const SectionRec&) {});
  // Nothing ever sets the last flag; its line is part of the format.
  writer.Put(false);
  return writer.Take();
}

bool WriteApplParameters(const std::string& fileName, const DesignInputs& record,
                         const Services& services) {
  // Making the file is one step from outside: it stands there whole or the old one does. So every
  // failure of it is a failure to create the file, and the user hears of it.
  try {
    services.Files.ReplaceFile(fileName, ProjectText(record, services.Locale));
    return true;
  } catch (const RuntimeError& error) {
    ShowOpenFailure(error, services);
    return false;
  }
}

DesignInputs ReadApplParameters(const std::string& fileName, const ProfileTypeArray& catalogue,
                                const Services& services) {
  Lines lines;
  try {
    lines = ReadLines(*services.Files.OpenForReading(fileName));
  } catch (...) {
    // What a stream's buffer raises is of the stream's kind, not of ours.
    ShowOpenFailure(ErrorInHand(), services);
  }
  if (lines.size() < projectLineCount) {
    services.Messages.Show({.Title = "ReadApplParameters",
                            .Text = "Ошибка чтения файла сохранения.\n"
                                    "колличество строк не соответствует ожидаемому!",
                            .Style = MessageStyle::Critical});
  }
  ProjectReader reader(lines, services.Locale);
  if (reader.NextItem() != header) {
    services.Messages.Show({.Title = "",
                            .Text = "Ошибка считывания первой строки файла сохранения !",
                            .Style = MessageStyle::Critical});
  }
  return reader.Record(catalogue);
}

}  // namespace trelonit
