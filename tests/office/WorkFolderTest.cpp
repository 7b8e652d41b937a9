#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "windows/office/OfficeWorkFolder.h"

namespace trelonit::test {
namespace {

/// The names in a folder.
QStringList In(const QTemporaryDir& place) {
  return QDir(place.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
}

void MakeFile(const QString& path) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("document");
}

/// Lets another process make a work folder with a document in it, and die without a word.
void LeaveOneBehind(const QTemporaryDir& place) {
  const pid_t child = ::fork();
  if (child == 0) {
    const OfficeWorkFolder folder(place.path().toStdString());
    MakeFile(folder.Path(QStringLiteral("document.rtf")));
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST(OfficeWorkFolder, IsGoneWithItsObject) {
  const QTemporaryDir place;
  {
    const OfficeWorkFolder folder(place.path().toStdString());
    MakeFile(folder.Path(QStringLiteral("document.rtf")));
    EXPECT_EQ(In(place).size(), 1);
  }
  EXPECT_EQ(In(place), QStringList());
}

TEST(OfficeWorkFolder, OfAKilledProcessIsRemovedOnceItIsLookedFor) {
  const QTemporaryDir place;
  LeaveOneBehind(place);
  ASSERT_EQ(In(place).size(), 1);
  RemoveLeftWorkFolders(place.path().toStdString());
  EXPECT_EQ(In(place), QStringList());
}

TEST(OfficeWorkFolder, OfALivingConversionStays) {
  const QTemporaryDir place;
  const OfficeWorkFolder folder(place.path().toStdString());
  RemoveLeftWorkFolders(place.path().toStdString());
  EXPECT_EQ(In(place).size(), 1);
}

TEST(OfficeWorkFolder, ThatIsJustBeingMadeStays) {
  const QTemporaryDir place;
  QDir(place.path()).mkdir(QStringLiteral("trelonit-office-abcdef"));
  RemoveLeftWorkFolders(place.path().toStdString());
  EXPECT_EQ(In(place), QStringList(QStringLiteral("trelonit-office-abcdef")));
}

TEST(OfficeWorkFolder, IsToldFromWhatIsNoneOfOurs) {
  const QTemporaryDir place;
  const QTemporaryDir elsewhere;
  LeaveOneBehind(elsewhere);
  MakeFile(place.filePath(QStringLiteral("trelonit-office-notes")));
  QDir(place.path()).mkdir(QStringLiteral("trelonit-project"));
  const QString left = QDir(elsewhere.path()).filePath(In(elsewhere).first());
  ASSERT_TRUE(QFile::link(left, place.filePath(QStringLiteral("trelonit-office-link"))));
  RemoveLeftWorkFolders(place.path().toStdString());
  EXPECT_EQ(In(place).size(), 3);
  EXPECT_EQ(In(elsewhere).size(), 1);
}

}  // namespace
}  // namespace trelonit::test
