#include "reference/tip_of_the_day.h"

#include <QDir>
#include <QFile>

#include "store/conversions.h"
#include "store/options.h"
#include "store/runtime_error.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

QStringList LinesOf(QString content) {
  content.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
  QStringList lines = content.split(u'\n');
  // What follows the last line's end is no line.
  if (lines.last().isEmpty()) {
    lines.removeLast();
  }
  return lines;
}

QString ReadText(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) {
    throw RuntimeError(ErrorNumber::PermissionDenied, fileName);
  }
  return QString::fromUtf8(file.readAll());
}

QString MissingFileText() {
  return u"That the %1 file was not found? \r\n\r\nCreate a text file named %1 using NotePad with "
         u"1 tip per line. Then place it in the same directory as the application. "_s.arg(
             kTipFileName);
}

}  // namespace

TipOfTheDay::TipOfTheDay(SettingsStore& settings, Options& options)
    : settings_(settings), options_(options) {}

bool TipOfTheDay::Load(const QString& programFolder, TipOccasion occasion) {
  const QString stored = settings_.Read(settings_section::kOptions, u"TipofDay"_s, u"1"_s);
  showsAtStart_ = ToInteger(stored, u"Options/TipofDay"_s) != 0;
  if (!showsAtStart_ && occasion == TipOccasion::Start) {
    return false;
  }
  if (!LoadTips(QDir(programFolder).filePath(kTipFileName))) {
    text_ = MissingFileText();
  }
  return true;
}

bool TipOfTheDay::LoadTips(const QString& fileName) {
  if (fileName.isEmpty() || !QFile::exists(fileName)) {
    return false;
  }
  tips_ = LinesOf(ReadText(fileName));
  ShowNextTip();
  return true;
}

void TipOfTheDay::ShowNextTip() {
  const QString stored = settings_.Read(settings_section::kSettings, u"CurrentTip"_s, u"1"_s);
  const std::int32_t last = ToLong(stored, u"Settings/CurrentTip"_s);
  // A number below the first leads back to it, as one past the last does.
  current_ = last >= 0 && last < tips_.size() ? last + 1 : 1;
  DisplayCurrentTip();
  settings_.Write(settings_section::kSettings, u"CurrentTip"_s, QString::number(current_));
}

void TipOfTheDay::SetShowsAtStart(bool shows) {
  showsAtStart_ = shows;
  settings_.Write(settings_section::kOptions, u"TipofDay"_s, shows ? u"1"_s : u"0"_s);
}

void TipOfTheDay::Confirm() {
  options_.TipofDay = showsAtStart_ ? 1 : 0;
  SetShowsAtStart(showsAtStart_);
}

void TipOfTheDay::DisplayCurrentTip() {
  if (!tips_.isEmpty()) {
    text_ = tips_[current_ - 1];
  }
}

}  // namespace tessaly
