#include "backup/private_profile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

bool SameName(QStringView one, QStringView other) {
  return one.compare(other, Qt::CaseInsensitive) == 0;
}

bool IsSection(QStringView line) {
  return line.trimmed().startsWith(u'[');
}

QStringView SectionName(QStringView line) {
  const QStringView inner = line.trimmed().mid(1);
  return inner.left(std::max<qsizetype>(inner.indexOf(u']'), 0)).trimmed();
}

// Empty for a line without a key, as a comment.
QStringView KeyName(QStringView line) {
  const QStringView trimmed = line.trimmed();
  const qsizetype equals = trimmed.indexOf(u'=');
  return trimmed.startsWith(u';') || equals < 0 ? QStringView() : trimmed.left(equals).trimmed();
}

QStringView ValueOf(QStringView line) {
  const QStringView value = line.mid(line.indexOf(u'=') + 1).trimmed();
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == u'"' || value.front() == u'\'');
  return quoted ? value.mid(1, value.size() - 2) : value;
}

std::int32_t LeadingInteger(QStringView text) {
  const QStringView number = text.trimmed();
  const bool negative = number.startsWith(u'-');
  std::uint32_t value = 0;
  for (const QChar digit : number.mid(negative || number.startsWith(u'+') ? 1 : 0)) {
    if (digit < u'0' || digit > u'9') {
      break;
    }
    value = value * 10 + static_cast<std::uint32_t>(digit.unicode() - u'0');
  }
  return static_cast<std::int32_t>(negative ? 0 - value : value);
}

}  // namespace

PrivateProfile::PrivateProfile(const QString& text) {
  QString normal = text;
  normal.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
  if (normal.endsWith(u'\n')) {
    normal.chop(1);
  }
  if (!normal.isEmpty()) {
    lines_ = normal.split(u'\n');
  }
}

void PrivateProfile::Write(const QString& section, const QString& key, const QString& value) {
  const QString line = key + u'=' + value;
  const Place place = Find(section, key);
  if (place.keyFound) {
    lines_[place.line] = line;
    return;
  }
  if (!place.sectionFound) {
    lines_.append(u'[' + section + u']');
  }
  lines_.insert(place.sectionFound ? place.line : lines_.size(), line);
}

std::int32_t PrivateProfile::Integer(const QString& section, const QString& key) const {
  const Place place = Find(section, key);
  return place.keyFound ? LeadingInteger(ValueOf(lines_[place.line])) : 0;
}

QString PrivateProfile::Text() const {
  return lines_.isEmpty() ? QString() : lines_.join(u'\n') + u'\n';
}

PrivateProfile::Place PrivateProfile::Find(const QString& section, const QString& key) const {
  Place place;
  for (qsizetype i = 0; i < lines_.size(); ++i) {
    const QString& line = lines_[i];
    if (IsSection(line)) {
      if (place.sectionFound) {
        break;
      }
      place.sectionFound = SameName(SectionName(line), section);
    }
    if (place.sectionFound && SameName(KeyName(line), key)) {
      return {i, true, true};
    }
    // Behind the section's last line; blank lines before the next section stay there.
    if (place.sectionFound && !line.trimmed().isEmpty()) {
      place.line = i + 1;
    }
  }
  return place;
}

}  // namespace tessaly
