#include "windows/services/MimeAppsList.h"

#include <algorithm>
#include <utility>

namespace trelonit {

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// A line of a text: from its first byte to the one behind its last, without the line feed.
struct Line {
  std::size_t Begin = 0;
  std::size_t End = 0;

  std::string_view In(std::string_view text) const { return text.substr(Begin, End - Begin); }
  /// Where the next line begins.
  std::size_t Next(std::string_view text) const { return End < text.size() ? End + 1 : End; }
};

struct Place {
  /// The head of the first such group.
  std::optional<Line> Head;
  /// The last line with the key.
  std::optional<Line> Key;
};

Place Look(std::string_view text, std::string_view group, std::string_view key) {
  Place place;
  bool inside = false;
  for (std::size_t begin = 0; begin < text.size();) {
    const Line line{begin, std::min(text.find('\n', begin), text.size())};
    const std::string_view said = Trimmed(line.In(text));
    if (said.starts_with('[')) {
      inside = said == group;
      if (inside && !place.Head) {
        place.Head = line;
      }
    } else if (inside && said.find('=') != std::string_view::npos &&
               Trimmed(said.substr(0, said.find('='))) == key) {
      place.Key = line;
    }
    begin = line.Next(text);
  }
  return place;
}

std::string Put(std::string text, const Place& place, const std::string& line) {
  if (place.Key) {
    return text.replace(place.Key->Begin, place.Key->End - place.Key->Begin, line);
  }
  if (place.Head) {
    if (place.Head->End == text.size()) {
      text += '\n';
    }
    return text.insert(place.Head->End + 1, line + '\n');
  }
  if (!text.empty() && text.back() != '\n') {
    text += '\n';
  }
  return text.append(apps_group::Default).append("\n").append(line).append("\n");
}

std::string TakeAway(std::string text, const Place& place) {
  if (!place.Key) {
    return text;
  }
  std::size_t begin = place.Key->Begin;
  const std::size_t end = place.Key->Next(text);
  const bool alone =
      place.Head && place.Head->Next(text) == begin && (end == text.size() || text[end] == '[');
  if (alone) {
    begin = place.Head->Begin;
  }
  return text.erase(begin, end - begin);
}

}  // namespace

std::vector<std::string> ListedValues(std::string_view text, std::string_view group,
                                      std::string_view key) {
  const Place place = Look(text, group, key);
  return place.Key ? ValuesOf(place.Key->In(text)) : std::vector<std::string>();
}

std::optional<std::string> DefaultLine(std::string_view text, std::string_view mimeType) {
  const Place place = Look(text, apps_group::Default, mimeType);
  return place.Key ? std::optional(std::string(place.Key->In(text))) : std::nullopt;
}

std::vector<std::string> ValuesOf(std::string_view line) {
  std::vector<std::string> values;
  const std::size_t sign = line.find('=');
  std::string_view rest = sign == std::string_view::npos ? "" : line.substr(sign + 1);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find(';'), rest.size());
    if (const std::string_view value = Trimmed(rest.substr(0, end)); !value.empty()) {
      values.emplace_back(value);
    }
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return values;
}

std::string LineOf(std::string_view key, const std::vector<std::string>& values) {
  std::string line = std::string(key) + '=';
  for (const std::string& value : values) {
    line += value + ';';
  }
  return line;
}

std::string WithDefaultLine(std::string text, std::string_view mimeType,
                            const std::optional<std::string>& line) {
  const Place place = Look(text, apps_group::Default, mimeType);
  return line ? Put(std::move(text), place, *line) : TakeAway(std::move(text), place);
}

}  // namespace trelonit
