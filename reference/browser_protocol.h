#ifndef TESSALY_REFERENCE_BROWSER_PROTOCOL_H_
#define TESSALY_REFERENCE_BROWSER_PROTOCOL_H_

#include <QByteArray>
#include <QLatin1StringView>
#include <QStringList>

namespace tessaly {

// What the program and the process of the reference browser's window tell each other, over the two
// pipes that the process is born with: a message a line, its fields percent-encoded and parted by
// blanks. The first field is the message's name; flags are "0" and "1".

// To the window. The end of the pipe unloads it.
namespace browser_command {
inline constexpr QLatin1StringView kNavigate{"navigate"};  // address
inline constexpr QLatin1StringView kCaption{"caption"};
inline constexpr QLatin1StringView kListCaption{"list-caption"};
inline constexpr QLatin1StringView kListVisible{"list-visible"};
inline constexpr QLatin1StringView kTimer{"timer"};  // enabled
inline constexpr QLatin1StringView kShow{"show"};
}  // namespace browser_command

// From the window.
namespace browser_report {
inline constexpr QLatin1StringView kListClicked{"list-clicked"};
inline constexpr QLatin1StringView kCloseClicked{"close-clicked"};
inline constexpr QLatin1StringView kTick{"tick"};                     // title, busy
inline constexpr QLatin1StringView kNavigated{"navigated"};           // title
inline constexpr QLatin1StringView kDocumentShown{"document-shown"};  // title, address, HTTP status
}  // namespace browser_report

// The process ends with this when it cannot show pages any more.
inline constexpr int kPageLostExitCode = 3;

// Beside the program.
inline constexpr QLatin1StringView kBrowserProgramName{"tessaly-browser"};

[[nodiscard]] QByteArray EncodeMessage(const QStringList& fields);
// Missing fields are for the reader to take as empty.
[[nodiscard]] QStringList DecodeMessage(const QByteArray& line);
[[nodiscard]] QString FlagText(bool flag);
[[nodiscard]] bool IsFlagSet(const QString& text);

// Puts the bytes of a pipe together to messages, in whatever pieces they come.
class MessageReader {
public:
  // The messages that are complete with these bytes.
  [[nodiscard]] QList<QStringList> Add(const QByteArray& bytes);

private:
  QByteArray pending_;
};

}  // namespace tessaly

#endif  // TESSALY_REFERENCE_BROWSER_PROTOCOL_H_
