#ifndef TESSALY_PLATFORM_MESSAGE_BOXES_H_
#define TESSALY_PLATFORM_MESSAGE_BOXES_H_

#include <QString>

namespace tessaly {

enum class BoxIcon { None, Information, Question, Exclamation, Critical };
enum class BoxButtons { Ok, OkCancel, YesNo };
enum class BoxAnswer { Ok, Cancel, Yes, No };

// Every modal message and question of the program goes through here, so that a test can answer in
// advance and read afterwards. Closing a box by its frame answers Cancel or No, where it has them.
class MessageBoxes {
public:
  MessageBoxes() = default;
  MessageBoxes(const MessageBoxes&) = delete;
  MessageBoxes& operator=(const MessageBoxes&) = delete;
  virtual ~MessageBoxes() = default;

  virtual BoxAnswer Show(const QString& text, const QString& title, BoxIcon icon,
                         BoxButtons buttons) = 0;

  void ShowInformation(const QString& text, const QString& title) {
    static_cast<void>(Show(text, title, BoxIcon::Information, BoxButtons::Ok));
  }
  // With no icon.
  void ShowMessage(const QString& text, const QString& title) {
    static_cast<void>(Show(text, title, BoxIcon::None, BoxButtons::Ok));
  }
  [[nodiscard]] bool AskYesNo(const QString& text, const QString& title) {
    return Show(text, title, BoxIcon::Question, BoxButtons::YesNo) == BoxAnswer::Yes;
  }
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_MESSAGE_BOXES_H_
