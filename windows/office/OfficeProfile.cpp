#include "windows/office/OfficeProfile.h"

#include <QDir>
#include <string_view>

#include "platform/errors/RuntimeError.h"
#include "platform/files/Files.h"

namespace trelonit {

namespace {

// The proxy is one that nobody serves: what asks for the network all the same gets no answer.
constexpr std::string_view settings = R"(<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry">
<item oor:path="/org.openoffice.Office.Common/Security/Scripting">
<prop oor:name="DisableMacrosExecution" oor:op="fuse"><value>true</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Security/Scripting">
<prop oor:name="MacroSecurityLevel" oor:op="fuse"><value>3</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Security/Scripting">
<prop oor:name="BlockUntrustedRefererLinks" oor:op="fuse"><value>true</value></prop></item>
<item oor:path="/org.openoffice.Office.Writer/Content/Update">
<prop oor:name="Link" oor:op="fuse"><value>0</value></prop></item>
<item oor:path="/org.openoffice.Inet/Settings">
<prop oor:name="ooInetProxyType" oor:op="fuse"><value>2</value></prop></item>
<item oor:path="/org.openoffice.Inet/Settings">
<prop oor:name="ooInetHTTPProxyName" oor:op="fuse"><value>127.0.0.1</value></prop></item>
<item oor:path="/org.openoffice.Inet/Settings">
<prop oor:name="ooInetHTTPProxyPort" oor:op="fuse"><value>1</value></prop></item>
<item oor:path="/org.openoffice.Inet/Settings">
<prop oor:name="ooInetHTTPSProxyName" oor:op="fuse"><value>127.0.0.1</value></prop></item>
<item oor:path="/org.openoffice.Inet/Settings">
<prop oor:name="ooInetHTTPSProxyPort" oor:op="fuse"><value>1</value></prop></item>
</oor:items>
)";

}  // namespace

void WriteOfficeProfile(const QString& folder) {
  const QString user = folder + QStringLiteral("/user");
  if (!QDir().mkpath(user)) {
    throw RuntimeError(ErrorNumber::PathFileAccess);
  }
  DiskFiles().ReplaceFile((user + QStringLiteral("/registrymodifications.xcu")).toStdString(),
                          settings);
}

}  // namespace trelonit
