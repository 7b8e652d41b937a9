#include "windows/services/MimeDefaults.h"

#include <QDir>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QStandardPaths>
#include <algorithm>
#include <iterator>
#include <set>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "platform/files/FileBytes.h"
#include "platform/files/Paths.h"
#include "windows/binding/Binding.h"
#include "windows/services/MimeAppsList.h"

namespace trelonit {

namespace {

constexpr const char* commonList = "mimeapps.list";
/// Stands for a list that had no line: no line of a choice begins so.
constexpr const char* noLine = "#";

using Names = std::vector<std::string>;

std::string UserFolder() {
  return FromQt(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}

Names Folders(QStandardPaths::StandardLocation location) {
  Names folders;
  for (const QString& folder : QStandardPaths::standardLocations(location)) {
    folders.push_back(FromQt(folder));
  }
  return folders;
}

/// Where lists may lie, the strongest first.
Names ListFolders() {
  Names folders = Folders(QStandardPaths::GenericConfigLocation);
  const Names entries = Folders(QStandardPaths::ApplicationsLocation);
  folders.insert(folders.end(), entries.begin(), entries.end());
  return folders;
}

/// Names of the lists in each folder, the strongest first: those of the running desktop come before
/// the one of all desktops.
Names ListNames() {
  Names names;
  for (const QString& desktop :
       qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
    names.push_back(FromQt(desktop.toLower()) + "-" + commonList);
  }
  names.emplace_back(commonList);
  return names;
}

/// The type, then what it is a kind of, the nearest first.
Names TypeAndParents(const std::string& mimeType) {
  Names types{mimeType};
  for (const QString& parent : QMimeDatabase().mimeTypeForName(ToQt(mimeType)).allAncestors()) {
    types.push_back(FromQt(parent));
  }
  return types;
}

/// The entry's file in this folder or below it: a minus in the name may stand for a folder. Empty
/// where there is none.
QString EntryFile(const QDir& folder, const QString& name) {
  if (QFileInfo(folder.filePath(name)).isFile()) {
    return folder.filePath(name);
  }
  for (qsizetype minus = name.indexOf(QLatin1Char('-')); minus > 0;
       minus = name.indexOf(QLatin1Char('-'), minus + 1)) {
    const QDir inner(folder.filePath(name.left(minus)));
    const QString file = inner.exists() ? EntryFile(inner, name.mid(minus + 1)) : QString();
    if (!file.isEmpty()) {
      return file;
    }
  }
  return {};
}

bool Chooses(const std::optional<std::string>& line, const std::string& entry) {
  const Names programs = line ? ValuesOf(*line) : Names();
  return !programs.empty() && programs.front() == entry;
}

/// The line without this program; nothing where no other is left.
std::optional<std::string> Without(const std::string& line, const std::string& mimeType,
                                   const std::string& entry) {
  Names programs = ValuesOf(line);
  std::erase(programs, entry);
  return programs.empty() ? std::nullopt : std::optional(LineOf(mimeType, programs));
}

/// Access that fails in any other way than by right or room is one error to the caller.
template <class Access>
auto Stored(Access&& access) {
  try {
    return access();
  } catch (const RuntimeError& error) {
    const auto is = [&error](ErrorNumber number) {
      return error.Number() == static_cast<int>(number);
    };
    if (is(ErrorNumber::PermissionDenied) || is(ErrorNumber::DiskFull)) {
      throw;
    }
    throw RuntimeError(ErrorNumber::PathFileAccess);
  }
}

}  // namespace

// Reading --------------------------------------------------------------------------------------

std::string MimeDefaults::Read(const std::string& path) const {
  try {
    return ReadBytesIfThere(files_, path);
  } catch (const RuntimeError&) {
    return {};
  }
}

bool MimeDefaults::EntryExists(const std::string& entry) const {
  if (entry.find('/') != std::string::npos) {
    return false;
  }
  for (const std::string& folder : Folders(QStandardPaths::ApplicationsLocation)) {
    const QString file = EntryFile(QDir(ToQt(folder)), ToQt(entry));
    if (!file.isEmpty()) {
      // A hidden entry takes away the one of the weaker folders.
      return ListedValues(Read(FromQt(file)), apps_group::Entry, "Hidden") != Names{"true"};
    }
  }
  return false;
}

std::string MimeDefaults::DefaultProgram(const std::string& mimeType) {
  // Associations that a stronger list takes away from all weaker ones.
  std::set<std::string> removed;
  for (const std::string& type : TypeAndParents(mimeType)) {
    Names chosen;
    Names offered;
    for (const std::string& folder : ListFolders()) {
      const auto add = [&](const std::string& text, std::string_view group) {
        std::ranges::copy_if(
            ListedValues(text, group, type), std::back_inserter(offered),
            [&removed](const std::string& program) { return !removed.contains(program); });
      };
      for (const std::string& name : ListNames()) {
        const std::string list = Read(JoinPath(folder, name));
        std::ranges::copy(ListedValues(list, apps_group::Default, type),
                          std::back_inserter(chosen));
        add(list, apps_group::Added);
        for (const std::string& program : ListedValues(list, apps_group::Removed, type)) {
          removed.insert(program);
        }
      }
      add(Read(JoinPath(folder, "mimeinfo.cache")), apps_group::Cache);
    }
    for (const Names* programs : {&chosen, &offered}) {
      for (const std::string& program : *programs) {
        if (EntryExists(program)) {
          return program;
        }
      }
    }
  }
  return {};
}

// Choosing -------------------------------------------------------------------------------------

std::string MimeDefaults::ListInForce(const std::string& mimeType) const {
  for (const std::string& name : ListNames()) {
    if (DefaultLine(ReadUserList(name), mimeType)) {
      return name;
    }
  }
  return commonList;
}

std::string MimeDefaults::ReadUserList(const std::string& name) const {
  return Stored([&] { return ReadBytesIfThere(files_, JoinPath(UserFolder(), name)); });
}

void MimeDefaults::WriteUserList(const std::string& name, const std::string& text) {
  QDir().mkpath(ToQt(UserFolder()));
  Stored([&] { files_.ReplaceFile(JoinPath(UserFolder(), name), text); });
}

void MimeDefaults::SetDefaultProgram(const std::string& mimeType, const std::string& entry) {
  if (!EntryExists(entry)) {
    throw RuntimeError(ErrorNumber::FileNotFound);
  }
  const std::string name = ListInForce(mimeType);
  const std::string list = ReadUserList(name);
  const std::optional<std::string> line = DefaultLine(list, mimeType);
  if (Chooses(line, entry)) {
    return;
  }
  Names programs = line ? ValuesOf(*line) : Names();
  std::erase(programs, entry);
  programs.insert(programs.begin(), entry);
  // Before the list changes: a list that was changed without a memory could not be undone.
  Remember(name, mimeType, line);
  try {
    WriteUserList(name, WithDefaultLine(list, mimeType, LineOf(mimeType, programs)));
  } catch (const RuntimeError&) {
    Forget(name, mimeType);
    throw;
  }
}

void MimeDefaults::UndoDefaultProgram(const std::string& mimeType, const std::string& entry) {
  // Every list of this desktop: each has a former choice of its own.
  for (const std::string& name : ListNames()) {
    const std::string list = ReadUserList(name);
    const std::optional<std::string> line = DefaultLine(list, mimeType);
    const std::optional<Former> former = Recall(name, mimeType);
    if (Chooses(line, entry)) {
      WriteUserList(name, WithDefaultLine(list, mimeType,
                                          former ? *former : Without(*line, mimeType, entry)));
    }
    if (former) {
      Forget(name, mimeType);
    }
  }
}

// Memory ---------------------------------------------------------------------------------------

void MimeDefaults::Remember(const std::string& name, const std::string& mimeType,
                            const Former& line) {
  settings_.Set(FormerChoices, name + "/" + mimeType, line.value_or(noLine));
}

std::optional<MimeDefaults::Former> MimeDefaults::Recall(const std::string& name,
                                                         const std::string& mimeType) const {
  const std::string stored = settings_.Get(FormerChoices, name + "/" + mimeType, "");
  if (stored.empty()) {
    return std::nullopt;
  }
  return stored == noLine ? Former() : Former(stored);
}

void MimeDefaults::Forget(const std::string& name, const std::string& mimeType) {
  settings_.Set(FormerChoices, name + "/" + mimeType, "");
}

}  // namespace trelonit
