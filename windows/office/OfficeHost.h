#pragma once

#include <QProcessEnvironment>
#include <QStringList>
#include <QtGlobal>

class QProcess;

namespace trelonit {

// What an office program needs of each system: OfficeHostPosix.cpp or OfficeHostWindows.cpp.

/// The folders where the program is usually installed.
QStringList UsualOfficeFolders();

/// Nothing of the user's session but what a program needs to start at all.
QProcessEnvironment CleanEnvironment(const QString& folder);

/// Before its start: makes the process one that can be ended with all that it starts.
void LeadItsTree(QProcess& process);

/// Ends the process with this number and all that it has started.
void KillTree(qint64 leader);

}  // namespace trelonit
