#include "tests/end_to_end/installation.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <stdexcept>

#include "store/settings_store.h"
#include "tests/support/file_contents.h"

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

void Copy(const QString& source, const QString& target) {
  if (!QFile::copy(source, target)) {
    throw std::runtime_error("cannot copy " + source.toStdString() + " to " + target.toStdString());
  }
}

}  // namespace

Installation::Installation(const QString& parentFolder)
    : bank(parentFolder), workingFolder_(bank.WorkingFolder()) {
  const QString built = QString::fromUtf8(TESSALY_PROGRAM_DIR);
  Copy(built + u"/tessaly"_s, ProgramPath());
  Copy(built + u"/tessaly-print"_s, Folder() + u"/tessaly-print"_s);
  Copy(built + u"/splash01.bmp"_s, Folder() + u"/splash01.bmp"_s);
  Copy(built + u"/tips.bmp"_s, Folder() + u"/tips.bmp"_s);
  QDir(Folder()).mkpath(u"help"_s);
  Copy(built + u"/help/tessaly2002.chm"_s, Folder() + u"/help/tessaly2002.chm"_s);
  UseConfigFolder(home_.path());
}

void Installation::AddReferenceBrowser() const {
  Copy(QString::fromUtf8(TESSALY_PROGRAM_DIR) + u"/tessaly-browser"_s,
       Folder() + u"/tessaly-browser"_s);
  for (const QString& page :
       {u"pubmenu.html"_s, u"ipubmenu.html"_s, u"notfound.html"_s, u"pubs/p501.html"_s,
        u"kovrins/kovrin.html"_s, u"glossary/glossary.html"_s}) {
    QDir(Folder()).mkpath(QFileInfo(page).path());
    WriteBytes(Folder() + u'/' + page,
               "<!DOCTYPE html><title>Page " + page.toUtf8() + "</title><p>A page.</p>");
  }
}

void Installation::UseConfigFolder(const QString& folder) {
  configFolder_ = folder;
  Store(u"Options/Suppress2587Msg"_s, u"1"_s);
}

void Installation::SlowDown(const QString& folder, int milliseconds) {
  SetVariable(u"LD_PRELOAD"_s, QString::fromUtf8(TESSALY_SLOW_VOLUME_LIBRARY));
  SetVariable(u"TESSALY_SLOW_VOLUME"_s, folder);
  SetVariable(u"TESSALY_SLOW_MILLISECONDS"_s, QString::number(milliseconds));
}

QString Installation::SettingsPath() const {
  return configFolder_ + u'/' + kApplicationTitle + u".ini"_s;
}

QProcessEnvironment Installation::Environment() const {
  QProcessEnvironment environment;
  environment.insert(u"PATH"_s, qEnvironmentVariable("PATH"));
  environment.insert(u"LANG"_s, u"C.UTF-8"_s);
  environment.insert(u"HOME"_s, home_.path());
  environment.insert(u"XDG_RUNTIME_DIR"_s, home_.path());
  environment.insert(u"XDG_CONFIG_HOME"_s, configFolder_);
  environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
  environment.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"tessaly_agent"_s);
  environment.insert(u"QT_PLUGIN_PATH"_s, QString::fromUtf8(TESSALY_AGENT_PLUGINS));
  for (auto variable = variables_.begin(); variable != variables_.end(); ++variable) {
    environment.insert(variable.key(), variable.value());
  }
  return environment;
}

void Installation::Store(const QString& address, const QString& value) const {
  QSettings settings(SettingsPath(), QSettings::IniFormat);
  settings.setValue(address, value);
}

QString Installation::Stored(const QString& address) const {
  return QSettings(SettingsPath(), QSettings::IniFormat).value(address).toString();
}

}  // namespace tessaly::test
