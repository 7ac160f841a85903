#ifndef TESSALY_BACKUP_PRIVATE_PROFILE_H_
#define TESSALY_BACKUP_PRIVATE_PROFILE_H_

#include <QString>
#include <QStringList>
#include <cstdint>

namespace tessaly {

// The text of an INI file, changed and read key by key as programs of this platform do: sections in
// brackets, "key=value" lines, names compared without case, lines of other content left alone.
class PrivateProfile {
public:
  // Line ends of any kind.
  explicit PrivateProfile(const QString& text = {});

  // Replaces the value where it stands; a new key goes to the end of its section, a new section to
  // the end of the text.
  void Write(const QString& section, const QString& key, const QString& value);

  // The number at the start of the value: an optional sign and digits, wrapping around at 32 bits.
  // Leading blanks and a pair of quotes around the value do not count. A missing value and one that
  // does not start with a number are 0.
  [[nodiscard]] std::int32_t Integer(const QString& section, const QString& key) const;

  [[nodiscard]] QString Text() const;

private:
  // Where a key stands, or where it would be put.
  struct Place {
    qsizetype line = 0;
    bool sectionFound = false;
    bool keyFound = false;
  };
  [[nodiscard]] Place Find(const QString& section, const QString& key) const;

  QStringList lines_;
};

}  // namespace tessaly

#endif  // TESSALY_BACKUP_PRIVATE_PROFILE_H_
