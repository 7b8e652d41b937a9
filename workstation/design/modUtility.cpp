#include "workstation/design/modUtility.h"

#include <algorithm>

#include "platform/errors/Guard.h"
#include "platform/files/Paths.h"

namespace trelonit {

Long MaxOfTwoLong(Long a, Long b) {
  return std::max(a, b);
}

double MaxInArray(const BoundedArray<double>& values, MessageService& messages) {
  double greatest = 0;
  Guard(messages, "MaxInArray", [&] {
    if (values.UpperBound() >= 1) {
      greatest = *std::max_element(values.begin(), values.end());
    }
  });
  return greatest;
}

bool IsThisFileExists(const std::string& path, const Services& services) {
  bool exists = false;
  if (!PassOver([&] { exists = services.Files.FileExists(path); })) {
    services.Messages.Show(
        {.Title = "IsThisFileExists",
         .Text = "Can't create Scripting.FileSystemObject object ! File not checked !",
         .Style = MessageStyle::Critical});
  }
  return exists;
}

std::string JoinDoubles(const BoundedArray<double>& values, std::string_view delimiter,
                        const NumberLocale& locale) {
  std::string text;
  for (Long place = values.LowerBound(); place <= values.UpperBound(); ++place) {
    if (place > values.LowerBound()) {
      text += delimiter;
    }
    text += NumberToText(values[place], locale);
  }
  return text;
}

BoundedArray<double> SplitDoubles(std::string_view text, std::string_view delimiter,
                                  const NumberLocale& locale) {
  BoundedArray<double> values(0, -1);
  for (std::size_t start = 0;;) {
    const std::size_t end =
        delimiter.empty() ? std::string_view::npos : text.find(delimiter, start);
    values.Append(ParseNumber(text.substr(start, end - start), locale));
    if (end == std::string_view::npos) {
      return values;
    }
    start = end + delimiter.size();
  }
}

std::string FindHelpFile(const std::string& fileName, const Services& services) {
  std::string found;
  Guard(services.Messages, "Help comand", [&] {
    const std::string path = JoinPath(services.ProgramFolder, fileName);
    if (IsThisFileExists(path, services)) {
      found = path;
      return;
    }
    services.Messages.Show({.Title = "FindHelpFile",
                            .Text = "\n Файл справки : " + path + " не найден !\n",
                            .Style = MessageStyle::Critical});
  });
  return found;
}

}  // namespace trelonit
