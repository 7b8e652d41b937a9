#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <map>
#include <stdexcept>
#include <string>

#include "platform/console/ConsoleServices.h"
#include "platform/errors/RuntimeError.h"
#include "platform/files/Files.h"
#include "windows/binding/Binding.h"
#include "windows/services/MimeDefaults.h"

namespace trelonit::test {

/// Sets a variable of the environment as long as it lives; a null text takes it away.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* name, const QString& text)
      : name_(name), there_(qEnvironmentVariableIsSet(name)), before_(qgetenv(name)) {
    Set(!text.isNull(), text.toUtf8());
  }
  ~EnvironmentVariable() { Set(there_, before_); }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
  void Set(bool there, const QByteArray& text) const {
    if (there) {
      qputenv(name_, text);
    } else {
      qunsetenv(name_);
    }
  }

  const char* name_;
  bool there_;
  QByteArray before_;
};

/// A user's home and a system, in a folder of their own, with the real service over them. Paths
/// are those below it: "config" and "data" are the user's, "etc" and "share" the system's.
class MimeHome {
 public:
  static constexpr const char* own = "ru.trelonit.Trelonit.desktop";
  static constexpr const char* userList = "config/mimeapps.list";

  MimeHome() {
    AddEntry("data", own);
    AddEntry("share", "editor.desktop");
    AddEntry("share", "other.desktop");
    // The toolkit looks for new types only every few seconds, so that every home has the same ones.
    Put("share/mime/packages/types.xml",
        R"(<mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">)"
        R"(<mime-type type="text/plain"/>)"
        R"(<mime-type type="text/x-log"><sub-class-of type="text/plain"/></mime-type>)"
        R"(</mime-info>)");
  }

  std::string Path(const std::string& name) const { return FromQt(folder_.filePath(ToQt(name))); }
  void Put(const std::string& name, const std::string& text) {
    const QString path = ToQt(Path(name));
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(QByteArray::fromStdString(text)) != static_cast<qint64>(text.size())) {
      throw std::runtime_error("not written: " + name);
    }
  }
  /// Empty where there is no such file.
  std::string Text(const std::string& name) const {
    QFile file(ToQt(Path(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "";
  }
  bool Exists(const std::string& name) const { return QFile::exists(ToQt(Path(name))); }
  void AddEntry(const std::string& data, const std::string& name, const std::string& more = "") {
    Put(data + "/applications/" + name,
        "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=true %f\n" + more);
  }
  static std::string List(const std::string& lines) { return "[Default Applications]\n" + lines; }

 private:
  QTemporaryDir folder_;
  EnvironmentVariable config_{"XDG_CONFIG_HOME", folder_.filePath("config")};
  EnvironmentVariable data_{"XDG_DATA_HOME", folder_.filePath("data")};
  EnvironmentVariable systemConfig_{"XDG_CONFIG_DIRS", folder_.filePath("etc")};
  EnvironmentVariable systemData_{"XDG_DATA_DIRS", folder_.filePath("share")};
  EnvironmentVariable desktop_{"XDG_CURRENT_DESKTOP", {}};
  EnvironmentVariable menus_{"XDG_MENU_PREFIX", {}};

 public:
  DiskFiles Files;
  MemorySettings Settings;
  MimeDefaults Defaults{Files, Settings};
};

/// Tests in a home of their own.
class MimeTest : public ::testing::Test, protected MimeHome {
 protected:
  static constexpr const char* plain = "text/plain";

  std::string Program(const std::string& type = plain) { return Defaults.DefaultProgram(type); }
  void Choose(const std::string& type = plain) { Defaults.SetDefaultProgram(type, own); }
  void Undo(const std::string& type = plain) { Defaults.UndoDefaultProgram(type, own); }
  /// The number of the error that the act raises; 0 for none.
  template <class Act>
  static int NumberOf(Act&& act) {
    try {
      act();
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  }
};

}  // namespace trelonit::test
